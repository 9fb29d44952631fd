#include "platform/qt/QtCheckBox.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FieldColors.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/KeyMap.h"

namespace kel::qt {

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 7, 0)
constexpr auto StateChanged = &QCheckBox::stateChanged;
#else
constexpr auto StateChanged = &QCheckBox::checkStateChanged;
#endif

Qt::CheckState stateFor(std::int32_t value) {
    switch (value) {
        case CheckBox::Unchecked: return Qt::Unchecked;
        case CheckBox::Checked: return Qt::Checked;
        default: return Qt::PartiallyChecked;
    }
}

}  // namespace

QtCheckBox::QtCheckBox(ControlSite& site, CheckBoxListener& listener, QWidget& parent)
    : QCheckBox(&parent), QtField(site, *this), Listener_(listener) {
    setFocusPolicy(Qt::StrongFocus);
    // An error must not fly through Qt, which is amid the toggling.
    connect(this, StateChanged, this, [this] {
        atEdge([this] {
            Listener_.Check1_Click();
            return true;
        });
    });
}

void QtCheckBox::setCaption(std::u16string_view caption) {
    Caption_.assign(caption);
    QCheckBox::setText(toQString(caption));
    site().widget().updateGeometry();
}

std::int32_t QtCheckBox::value() const {
    switch (checkState()) {
        case Qt::Unchecked: return Unchecked;
        case Qt::Checked: return Checked;
        default: return Grey;
    }
}

void QtCheckBox::setValue(std::int32_t value) { setCheckState(stateFor(value)); }

void QtCheckBox::nextCheckState() { setValue(value() == Unchecked ? Checked : Unchecked); }

// ---- Looks

/// In a locked control Qt sees no difference.
void QtCheckBox::setEnabled(bool enabled) {
    QtField::setEnabled(enabled);
    update();
}

void QtCheckBox::setVisible(bool visible) {
    changeVisible(visible, [&] { QCheckBox::setVisible(visible); });
}

int QtCheckBox::baseline() const {
    const QFontMetrics metrics = fontMetrics();
    return (height() - metrics.height() + 1) / 2 + metrics.ascent();
}

/// The caption is all there is to be seen.
int QtCheckBox::widthFor(int /*characters*/) const { return QCheckBox::sizeHint().width(); }

/// The control alone takes no input while it is locked; with something around it that takes none, it is as grey as all
/// there.
bool QtCheckBox::looksEnabled() const {
    const QWidget* const around = site().widget().parentWidget();
    return enabled() && (around == nullptr || around->isEnabled());
}

QStyleOptionButton QtCheckBox::look() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    QPalette& palette = option.palette;
    const bool enabled = looksEnabled();
    if (enabled && !isEnabled()) {
        option.state.setFlag(QStyle::State_Enabled, true);
        option.state.setFlag(QStyle::State_MouseOver, false);
        palette.setCurrentColorGroup(isActiveWindow() ? QPalette::Active : QPalette::Inactive);
    }
    const QColor text = enabled ? captionColorOn(palette, foreColor()) : disabledCaptionColor(palette);
    if (text != palette.color(QPalette::WindowText)) palette.setColor(QPalette::WindowText, text);
    return option;
}

void QtCheckBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QStyleOptionButton option = look();
    style()->drawControl(QStyle::CE_CheckBox, &option, &painter, this);
}

// ---- Events

bool QtCheckBox::event(QEvent* event) {
    switch (event->type()) {
        // The release goes to the message box that a handler shows.
        case QEvent::WindowBlocked: setDown(false); break;
        case QEvent::Shortcut:
            // Qt would show the box pressed for a while before it toggles.
            if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) break;
            return atEdge([this] {
                QCheckBox::setFocus(Qt::ShortcutFocusReason);
                click();
                return true;
            });
        default: break;
    }
    return atEdge([&] { return QCheckBox::event(event); });
}

/// Qt's own keys for buttons, which also move among them, are not asked.
void QtCheckBox::keyPressEvent(QKeyEvent* event) {
    const KeyStroke stroke = strokeOf(*event);
    // Tab arrives here only when there is nowhere to go.
    char32_t character = stroke.code == keys::Tab ? 0 : keyPressCharacter(stroke);
    if (character == 0) {
        event->ignore();
        return;
    }
    Listener_.Check1_KeyPress(character);
    const bool presses = character == U' ' && takesInput();
    if (presses && !event->isAutoRepeat()) {
        HeldKey_ = event->key();
        setDown(true);
    }
    event->setAccepted(presses || character == 0);
}

void QtCheckBox::keyReleaseEvent(QKeyEvent* event) {
    if (isDown() && event->key() == HeldKey_ && !event->isAutoRepeat())
        click();
    else
        event->ignore();
}

void QtCheckBox::mousePressEvent(QMouseEvent* event) {
    // A message box that came with the focus has taken the release.
    const bool isOver = event->spontaneous() && !QGuiApplication::mouseButtons().testFlag(event->button());
    if (isOver)
        event->ignore();
    else
        QCheckBox::mousePressEvent(event);
}

void QtCheckBox::focusInEvent(QFocusEvent* event) {
    QCheckBox::focusInEvent(event);
    focus::arrived(*this, event->reason());
}

void QtCheckBox::focusOutEvent(QFocusEvent* event) {
    QCheckBox::focusOutEvent(event);
    focus::departed(*this, event->reason());
}

void QtCheckBox::changeEvent(QEvent* event) {
    QCheckBox::changeEvent(event);
    switch (event->type()) {
        case QEvent::EnabledChange:
            if (!isEnabled()) giveUpFocus();
            break;
        case QEvent::FontChange: site().widget().updateGeometry(); break;
        default: break;
    }
}

}  // namespace kel::qt
