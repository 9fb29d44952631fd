#include <QAccessibleWidget>
#include <QKeySequence>

#include "host/Accessible.h"
#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/widgets/ComboList.h"
#include "platform/qt/widgets/QtComboBox.h"
#include "platform/qt/widgets/QtLine.h"

namespace kel::qt {

namespace {

QAccessible::Role roleFor(AccessibleRole role) {
    switch (role) {
        case AccessibleRole::ComboBox: return QAccessible::ComboBox;
        case AccessibleRole::SpinBox: return QAccessible::SpinBox;
        case AccessibleRole::Text:
        case AccessibleRole::CheckBox:
        case AccessibleRole::ProgressBar: break;
    }
    return QAccessible::EditableText;
}

/// A control with a line of text, as assistive technology finds it where the focus is: what the control is and how it
/// stands, and its text, which is read, and written by the control's rules.
class AccessibleLine final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface,
                             public QAccessibleValueInterface {
public:
    explicit AccessibleLine(QtLine& line) : QAccessibleWidget(&line), Line_(line) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
        if (type == QAccessible::ValueInterface && dial()) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // ---- What it is

    QAccessible::Role role() const override { return roleFor(described().role); }

    QAccessible::State state() const override {
        const Accessible now = described();
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = !now.readOnly;
        state.readOnly = now.readOnly;
        state.selectableText = true;
        state.passwordEdit = now.hidden;
        if (now.expanded) {
            state.expandable = true;
            state.expanded = *now.expanded;
            state.collapsed = !*now.expanded;
            state.hasPopup = true;
            state.supportsAutoCompletion = true;
        }
        return state;
    }

    QString text(QAccessible::Text what) const override {
        switch (what) {
            case QAccessible::Name: return name();
            case QAccessible::Value: return shown();
            case QAccessible::Accelerator: return mnemonic();
            case QAccessible::Description: return description();
            default: return QAccessibleWidget::text(what);
        }
    }
    void setText(QAccessible::Text what, const QString& text) override {
        if (what == QAccessible::Value)
            replaceText(0, characterCount(), text);
        else
            QAccessibleWidget::setText(what, text);
    }

    // ---- The list of a combo box, while it is open

    int childCount() const override { return list() != nullptr ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 && list() != nullptr ? QAccessible::queryAccessibleInterface(list()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return list() != nullptr && child != nullptr && child->object() == list() ? 0 : -1;
    }

    // ---- What can be done with it

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (described().expanded) names.append(showMenuAction());
        if (const UpDown* const spinner = shownSpinner(); spinner != nullptr && spinner->takesInput())
            names << increaseAction() << decreaseAction();
        return names;
    }
    void doAction(const QString& action) override {
        if (action == setFocusAction()) return QAccessibleWidget::doAction(action);
        atEdge([&] {
            if (action == showMenuAction()) return press(control());
            UpDown* const spinner = shownSpinner();
            const bool steps = action == increaseAction() || action == decreaseAction();
            if (spinner == nullptr || !steps || !spinner->takesInput()) return false;
            spinner->press(action == increaseAction());
            return true;
        });
    }
    QStringList keyBindingsForAction(const QString& action) const override {
        const QString key = action == setFocusAction() ? mnemonic() : QString();
        return key.isEmpty() ? QAccessibleWidget::keyBindingsForAction(action) : QStringList(key);
    }

    // ---- The value of a spin box

    QVariant currentValue() const override { return valueOf(&NumberRange::value); }
    QVariant minimumValue() const override { return valueOf(&NumberRange::minimum); }
    QVariant maximumValue() const override { return valueOf(&NumberRange::maximum); }
    QVariant minimumStepSize() const override { return valueOf(&NumberRange::step); }
    void setCurrentValue(const QVariant& value) override {
        atEdge([&] { return control().enterNumber(value.toDouble()); });
    }

    // ---- The text as it is read

    int characterCount() const override { return box().textLength(); }
    QString text(int start, int end) const override { return shown().mid(start, end - start); }
    int cursorPosition() const override { return toInt(box().selection().caret); }
    int selectionCount() const override { return box().selection().empty() ? 0 : 1; }
    void selection(int index, int* start, int* end) const override {
        const bool exists = index == 0 && selectionCount() > 0;
        *start = exists ? toInt(box().selection().start()) : 0;
        *end = exists ? toInt(box().selection().end()) : 0;
    }
    QRect characterRect(int offset) const override {
        const QRect start = Line_.caretRect(within(offset));
        const QRect end = Line_.caretRect(within(offset + 1));
        return QRect(start.topLeft(), end.bottomLeft()).normalized().translated(Line_.mapToGlobal(QPoint()));
    }
    int offsetAtPoint(const QPoint& point) const override {
        return toInt(Line_.positionAt(Line_.mapFromGlobal(point)));
    }
    QString attributes(int offset, int* start, int* end) const override {
        *start = *end = offset;
        return {};
    }
    void scrollToSubstring(int start, int /*end*/) override { setCursorPosition(start); }

    // ---- And as it is changed

    void setCursorPosition(int position) override { select(position, position); }
    void addSelection(int start, int end) override { select(start, end); }
    void setSelection(int /*index*/, int start, int end) override { select(start, end); }
    void removeSelection(int /*index*/) override { setCursorPosition(cursorPosition()); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void replaceText(int start, int end, const QString& text) override {
        atEdge([&] {
            box().write(within(start), within(end), viewOf(text));
            return true;
        });
    }

private:
    Accessible described() const { return Line_.described(); }
    Control& control() const { return Line_.site().control(); }
    std::optional<NumberRange> dial() const {
        const Accessible now = described();
        return now.range ? now.range : now.moment;
    }
    QVariant valueOf(double NumberRange::*part) const { return dial().value_or(NumberRange()).*part; }
    UpDown* shownSpinner() const {
        UpDown* const spinner = Line_.site().hasControl() ? control().widgets().upDown : nullptr;
        return spinner != nullptr && spinner->visible() ? spinner : nullptr;
    }
    ComboList* list() const {
        const auto* const combo = dynamic_cast<const QtComboBox*>(&Line_);
        return combo != nullptr ? combo->list() : nullptr;
    }
    /// The composite's, where a label of the program's stands in front of that.
    QString ofComposite(QAccessible::Text what) const {
        const QAccessibleInterface* const composite = parent();
        return composite != nullptr ? composite->text(what) : QString();
    }
    QString name() const {
        const QString given = Line_.accessibleName();
        if (!given.isEmpty()) return given;
        const QString labelled = ofComposite(QAccessible::Name);
        return !labelled.isEmpty() ? labelled : toQString(described().name);
    }
    QString mnemonic() const {
        const char16_t letter = described().mnemonic;
        if (letter == 0) return ofComposite(QAccessible::Accelerator);
        return QKeySequence(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(QChar(letter).toUpper().unicode())))
            .toString(QKeySequence::NativeText);
    }
    /// With what there are no states for.
    QString description() const { return toQString(helpAndRemarks(described())); }

    TextEntry& box() const { return Line_.box(); }
    QString shown() const { return toQString(box().shownText()); }
    std::size_t within(int position) const {
        return static_cast<std::size_t>(std::clamp(position, 0, characterCount()));
    }
    void select(int start, int end) { box().select({within(start), within(end)}); }

    QtLine& Line_;
};

}  // namespace

/// Whoever asks for it reads how it stands, and is told of what differs from now on.
QAccessibleInterface* QtLine::makeAccessible() {
    auto* const made = new AccessibleLine(*this);
    ToldText_ = box().shownText();
    ToldDescription_ = made->text(QAccessible::Description);
    return made;
}

}  // namespace kel::qt
