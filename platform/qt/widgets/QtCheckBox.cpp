#include "platform/qt/widgets/QtCheckBox.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include "platform/qt/base/FieldColors.h"
#include "platform/qt/base/KeyMap.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 7, 0)
constexpr auto StateChanged = &QCheckBox::stateChanged;
#else
constexpr auto StateChanged = &QCheckBox::checkStateChanged;
#endif

Qt::CheckState stateFor(std::int32_t value) {
    if (value == CheckBox::Grey) return Qt::PartiallyChecked;
    return value == CheckBox::Checked ? Qt::Checked : Qt::Unchecked;
}

std::int32_t valueFor(Qt::CheckState state) {
    if (state == Qt::PartiallyChecked) return CheckBox::Grey;
    return state == Qt::Checked ? CheckBox::Checked : CheckBox::Unchecked;
}

}  // namespace

QtCheckBox::QtCheckBox(ControlSite& site, CheckBox& box, QWidget& parent)
    : QCheckBox(&parent), FieldView(site, *this, box), Box_(box) {
    setFocusPolicy(Qt::StrongFocus);
    connect(this, StateChanged, this, [this] { stateChangedInWidget(); });
}

void QtCheckBox::outOfDate() {
    const Changes changes = Box_.takeChanges();
    showState(changes);
    if (changes.has(Change::Caption)) {
        setText(toQString(Box_.caption()));
        if (!site().isAmongOthers()) setShortcut({});
        site().widget().updateGeometry();
    }
    if (changes.has(Change::Value)) setCheckState(stateFor(Box_.value()));
    update();
}

/// Also by somebody who found Qt's own widget. An error must not fly through Qt, which is amid the toggling.
void QtCheckBox::stateChangedInWidget() {
    atEdge([this] {
        Box_.setValue(valueFor(checkState()));
        return true;
    });
}

void QtCheckBox::nextCheckState() {
    atEdge([this] {
        Box_.release();
        return true;
    });
}

// ---- Looks

int QtCheckBox::baseline() const {
    const QFontMetrics metrics = fontMetrics();
    return (height() - metrics.height() + 1) / 2 + metrics.ascent();
}

/// The caption is all there is to be seen.
int QtCheckBox::widthFor(int /*characters*/) const { return QCheckBox::sizeHint().width(); }

/// All the height of the control, where the style wants more for a line than its share.
QRect QtCheckBox::place() const {
    const QRect share = FieldView::place();
    if (share.height() >= QCheckBox::sizeHint().height()) return share;
    return {share.left(), 0, share.width(), site().widget().height()};
}

/// The control alone takes no input while it is locked; with something around it that takes none, it is as grey as all
/// there.
bool QtCheckBox::looksEnabled() const {
    const QWidget* const around = site().widget().parentWidget();
    return Box_.enabled() && (around == nullptr || around->isEnabled());
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
    const QColor text = enabled ? captionColorOn(palette, Box_.foreColor()) : disabledCaptionColor(palette);
    if (text != palette.color(QPalette::WindowText)) palette.setColor(QPalette::WindowText, text);
    return option;
}

void QtCheckBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QStyleOptionButton option = look();
    style()->drawControl(QStyle::CE_CheckBox, &option, &painter, this);
}

void QtCheckBox::prepareSpeech() {
    if (Box_.caption().empty()) takeNameOfLabel();
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
                Box_.pressMnemonic();
                return true;
            });
        default: break;
    }
    return hear(*event, [&] { return QCheckBox::event(event); });
}

/// Qt's own keys for buttons, which also move among them, are not asked.
void QtCheckBox::keyPressEvent(QKeyEvent* event) {
    const CheckBox::Key deed = Box_.keyDown(strokeOf(*event));
    if (deed == CheckBox::Key::Presses && !event->isAutoRepeat()) {
        HeldKey_ = event->key();
        setDown(true);
    }
    event->setAccepted(deed != CheckBox::Key::Ignored);
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

void QtCheckBox::changeEvent(QEvent* event) {
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::FontChange) site().widget().updateGeometry();
}

}  // namespace kel::qt
