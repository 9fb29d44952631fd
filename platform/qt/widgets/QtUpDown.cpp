#include "platform/qt/widgets/QtUpDown.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <utility>

#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

/// Many a dark palette is made without a thought of what is disabled. Styles take either colour for the arrows.
bool tellsDisabled(const QPalette& palette) {
    const auto differs = [&palette](QPalette::ColorRole role) {
        return palette.color(QPalette::Disabled, role) != palette.color(QPalette::Active, role);
    };
    return differs(QPalette::ButtonText) && differs(QPalette::WindowText);
}

}  // namespace

QtUpDown::QtUpDown(ControlSite& site, UpDown& spinner, QWidget& parent)
    : QWidget(&parent), PlacedView(site, *this, spinner), Spinner_(spinner) {
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    hide();
}

void QtUpDown::outOfDate() {
    const Changes changes = Spinner_.takeChanges();
    if (changes.has(Change::Place)) placeAgain();
    if (changes.has(Change::Enabled)) setEnabled(Spinner_.enabled());
    if (changes.has(Change::Visible)) setVisible(Spinner_.visible());
    const std::int32_t width = Spinner_.bounds().width;
    if (std::exchange(Width_, width) != width || changes.has(Change::Visible)) site().widget().updateGeometry();
}

// ---- Buttons

QRect QtUpDown::half(bool upper) const {
    const int middle = height() / 2;
    return upper ? QRect(0, 0, width(), middle) : QRect(0, middle, width(), height() - middle);
}

std::optional<QtUpDown::Button> QtUpDown::buttonAt(const QPoint& point) const {
    if (half(true).contains(point)) return Button::Upper;
    if (half(false).contains(point)) return Button::Lower;
    return std::nullopt;
}

void QtUpDown::hover(std::optional<Button> button) {
    if (button == Hovered_) return;
    Hovered_ = button;
    update();
}

/// The handler may do anything, also let the button go or destroy the spinner.
void QtUpDown::step(int millisecondsToNext) {
    Repeat_.stop();
    const QPointer<QtUpDown> self = this;
    Spinner_.press(Held_ == Button::Upper);
    if (!self.isNull() && Held_) Repeat_.start(millisecondsToNext, this);
}

void QtUpDown::release() {
    Repeat_.stop();
    if (!Held_) return;
    Held_.reset();
    update();
}

// ---- Events

bool QtUpDown::event(QEvent* event) {
    // The release goes to the message box that a handler shows.
    if (event->type() == QEvent::WindowBlocked) release();
    return atEdge([&] { return QWidget::event(event); });
}

void QtUpDown::mousePressEvent(QMouseEvent* event) {
    const auto button = buttonAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !button) {
        event->ignore();
        return;
    }
    Held_ = button;
    hover(button);
    update();
    step(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, this));
}

void QtUpDown::mouseMoveEvent(QMouseEvent* event) { hover(buttonAt(event->position().toPoint())); }

void QtUpDown::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) release();
}

void QtUpDown::leaveEvent(QEvent* /*event*/) { hover(std::nullopt); }

void QtUpDown::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) release();
}

void QtUpDown::hideEvent(QHideEvent* /*event*/) {
    release();
    hover(std::nullopt);
}

/// As long as the pointer is elsewhere nothing repeats, but time goes on.
void QtUpDown::timerEvent(QTimerEvent* event) {
    if (event->timerId() != Repeat_.timerId()) return;
    // A popup that has opened meanwhile keeps the release to itself.
    if (!QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        release();
        return;
    }
    const int interval = style()->styleHint(QStyle::SH_SpinBox_KeyPressAutoRepeatRate, nullptr, this);
    if (Hovered_ == Held_)
        step(interval);
    else
        Repeat_.start(interval, this);
}

// ---- Painting

void QtUpDown::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paint(painter, Button::Upper);
    paint(painter, Button::Lower);
}

void QtUpDown::paint(QPainter& painter, Button button) const {
    constexpr int ArrowMargin = 3;
    const bool upper = button == Button::Upper;
    const bool isSunken = Held_ == button && Hovered_ == button;
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = half(upper);
    option.state.setFlag(QStyle::State_MouseOver, isEnabled() && Hovered_ == button);
    option.state |= isSunken ? QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);

    option.rect.adjust(ArrowMargin, 1, -ArrowMargin, -1);
    if (isSunken)
        option.rect.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                              style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
    if (!isEnabled() && !tellsDisabled(option.palette)) painter.setOpacity(0.5);
    style()->drawPrimitive(upper ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &option, &painter,
                           this);
    painter.setOpacity(1);
}

}  // namespace kel::qt
