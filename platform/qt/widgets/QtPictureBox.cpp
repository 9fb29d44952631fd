#include "platform/qt/widgets/QtPictureBox.h"

#include <algorithm>
#include <cmath>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>

#include "platform/qt/base/FieldColors.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

constexpr int Whole = 100;  ///< percent

/// What a screen reader finds.
class SpokenBar final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SpokenBar(QtPictureBox& box) : QAccessibleWidget(&box, QAccessible::ProgressBar), Box_(box) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return toQString(Box_.picture().text);
        QString own = QAccessibleWidget::text(kind);
        // It goes by the name of its control.
        return own.isEmpty() && kind == QAccessible::Name ? parent()->text(kind) : own;
    }

    QVariant currentValue() const override { return Box_.picture().percent; }
    void setCurrentValue(const QVariant& /*value*/) override {}
    QVariant maximumValue() const override { return Whole; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    const QtPictureBox& Box_;
};

}  // namespace

QtPictureBox::QtPictureBox(ControlSite& site, PictureBox& box, QWidget& parent)
    : QWidget(&parent), PlacedView(site, *this, box), Box_(box) {
    // What is behind it need not be painted with each step of a job.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QAccessibleInterface* QtPictureBox::makeAccessible() { return new SpokenBar(*this); }

void QtPictureBox::outOfDate() {
    const Changes changes = Box_.takeChanges();
    if (changes.has(Change::Place)) placeAgain();
    if (changes.has(Change::Enabled)) setEnabled(Box_.enabled());
    if (changes.has(Change::Font)) setWidgetFont(*this, fontOf(font(), Box_.font()));
    if (changes.has(Change::ToolTip)) setWidgetToolTip(*this, Box_.toolTip());
    update();
    if (!changes.has(Change::Percent) || !QAccessible::isActive()) return;
    QAccessibleValueChangeEvent event(this, picture().percent);
    QAccessible::updateAccessibility(&event);
}

Size QtPictureBox::extentOf(std::u16string_view text) const {
    const QFontMetrics metrics = fontMetrics();
    return site().grid().twips(QSize(metrics.horizontalAdvance(toQString(text)), metrics.height()));
}

// ---- Painting

/// Its end lies between two dots of the screen, which may be finer than Qt's pixels.
QRectF QtPictureBox::barArea() const {
    const std::int32_t whole = Box_.bounds().width;
    if (whole <= 0) return {};
    const double dots = width() * devicePixelRatioF();
    const double share = static_cast<double>(picture().barWidth) / whole;
    const double length = std::round(dots * std::clamp(share, 0.0, 1.0)) / devicePixelRatioF();
    return {isRightToLeft() ? width() - length : 0, 0, length, static_cast<double>(height())};
}

void QtPictureBox::paintEvent(QPaintEvent* /*event*/) {
    const QPalette& colors = palette();
    const QColor ground = colors.color(QPalette::Window);
    // Readable on the ground, and so the ground on it.
    const QColor ink = isEnabled() ? captionColorOn(colors, Box_.foreColor()) : disabledCaptionColor(colors);
    const QRectF bar = barArea();
    QPainter painter(this);
    painter.fillRect(rect(), colors.window());
    if (!bar.isEmpty()) painter.fillRect(bar, ink);
    if (!picture().text.empty()) paintText(painter, bar, ink, ground);
}

void QtPictureBox::paintText(QPainter& painter, const QRectF& bar, const QColor& ink, const QColor& ground) const {
    const QString text = toQString(picture().text);
    const QFontMetrics metrics = fontMetrics();
    const TwipGrid& grid = site().grid();
    QRect area(grid.pixel(picture().textLeft), grid.pixel(picture().textTop), metrics.horizontalAdvance(text),
               metrics.height());
    area = QStyle::visualRect(layoutDirection(), rect(), area);
    const QPointF start(area.left(), area.top() + metrics.ascent());
    const QRectF rest =
        isRightToLeft() ? QRectF(0, 0, bar.left(), height()) : QRectF(bar.right(), 0, width() - bar.right(), height());
    const auto write = [&](const QRectF& part, const QColor& color) {
        if (!part.intersects(area)) return;
        painter.setClipRect(part);
        painter.setPen(color);
        painter.drawText(start, text);
    };
    // A text runs in its own direction, whichever way the window does.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    write(bar, ground);
    write(rest, ink);
}

}  // namespace kel::qt
