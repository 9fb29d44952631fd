#include <QAccessibleWidget>

#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/widgets/QtLine.h"

namespace kel::qt {

namespace {

int toInt(std::size_t position) { return static_cast<int>(position); }

/// The text of a line, which assistive technology reads, and writes by the control's rules.
class AccessibleLine final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
public:
    explicit AccessibleLine(QtLine& line) : QAccessibleWidget(&line, QAccessible::EditableText), Line_(line) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.readOnly = box().locked();
        state.selectableText = true;
        state.passwordEdit = box().isPassword();
        return state;
    }

    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Value ? shown() : QAccessibleWidget::text(what);
    }
    void setText(QAccessible::Text what, const QString& text) override {
        if (what == QAccessible::Value)
            replaceText(0, characterCount(), text);
        else
            QAccessibleWidget::setText(what, text);
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
    TextEntry& box() const { return Line_.box(); }
    QString shown() const { return toQString(box().shownText()); }
    std::size_t within(int position) const {
        return static_cast<std::size_t>(std::clamp(position, 0, characterCount()));
    }
    void select(int start, int end) { box().select({within(start), within(end)}); }

    QtLine& Line_;
};

}  // namespace

QAccessibleInterface* QtLine::makeAccessible() { return new AccessibleLine(*this); }

}  // namespace kel::qt
