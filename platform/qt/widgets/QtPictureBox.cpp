#include "platform/qt/widgets/QtPictureBox.h"

#include <algorithm>
#include <cmath>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionProgressBar>

#include "host/Accessible.h"
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
        if (kind == QAccessible::Value) return toQString(described().value);
        QString own = QAccessibleWidget::text(kind);
        // It goes by the name of its control.
        return own.isEmpty() && kind == QAccessible::Name ? parent()->text(kind) : own;
    }

    QVariant currentValue() const override { return range().value; }
    void setCurrentValue(const QVariant& /*value*/) override {}
    QVariant maximumValue() const override { return range().maximum; }
    QVariant minimumValue() const override { return range().minimum; }
    QVariant minimumStepSize() const override { return 1; }

private:
    Accessible described() const { return describe(Box_.site().control()); }
    NumberRange range() const { return described().range.value_or(NumberRange{}); }

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
    if (changes.has(Change::Font)) fontAgain();
    if (changes.has(Change::ToolTip)) setWidgetToolTip(*this, Box_.toolTip());
    update();
    if (!changes.has(Change::Percent) || !QAccessible::isActive()) return;
    QAccessibleValueChangeEvent event(this, picture().percent);
    QAccessible::updateAccessibility(&event);
}

void QtPictureBox::fontAgain() { setWidgetFont(*this, fontOf(site().widget().font(), Box_.font())); }

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

QPixmap QtPictureBox::paintedByStyle(bool full) const {
    QStyleOptionProgressBar option;
    option.initFrom(this);
    option.state |= QStyle::State_Horizontal;
    option.maximum = Whole;
    option.progress = Whole;
    QPixmap picture(size() * devicePixelRatio());
    picture.setDevicePixelRatio(devicePixelRatio());
    picture.fill(palette().color(QPalette::Window));
    QPainter painter(&picture);
    const auto paint = [&](QStyle::SubElement place, QStyle::ControlElement what) {
        QStyleOptionProgressBar part = option;
        part.rect = style()->subElementRect(place, &option, this);
        style()->drawControl(what, &part, &painter, this);
    };
    paint(QStyle::SE_ProgressBarGroove, QStyle::CE_ProgressBarGroove);
    // An empty bar has none, but for a sliver that some styles leave there.
    if (full) paint(QStyle::SE_ProgressBarContents, QStyle::CE_ProgressBarContents);
    return picture;
}

QtPictureBox::Side QtPictureBox::makeSide(bool full) const {
    const QPixmap picture = paintedByStyle(full);
    const QColor ground = picture.toImage().pixelColor(QRect({}, picture.size()).center());
    const QPalette::ColorRole usual = full ? QPalette::HighlightedText : QPalette::Text;
    const QColor readable = readableOn(palette().color(QPalette::Active, usual), ground);
    return {picture, isEnabled() ? readable : fadedOn(readable, ground)};
}

/// A bar is drawn with every step of a job, and the style takes ten times as long for it as for copying it.
void QtPictureBox::prepare() {
    if (!Empty_.picture.isNull()) return;
    Empty_ = makeSide(false);
    Full_ = makeSide(true);
}

void QtPictureBox::forget() {
    Empty_ = {};
    Full_ = {};
    update();
}

void QtPictureBox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    forget();
}

void QtPictureBox::paintEvent(QPaintEvent* /*event*/) {
    prepare();
    const QRectF bar = barArea();
    const QRectF rest =
        isRightToLeft() ? QRectF(0, 0, bar.left(), height()) : QRectF(bar.right(), 0, width() - bar.right(), height());
    QPainter painter(this);
    paintSide(painter, Full_, bar);
    paintSide(painter, Empty_, rest);
}

void QtPictureBox::paintSide(QPainter& painter, const Side& side, const QRectF& part) const {
    if (part.isEmpty()) return;
    const qreal ratio = side.picture.devicePixelRatio();
    painter.drawPixmap(part, side.picture, QRectF(part.topLeft() * ratio, part.size() * ratio));
    const QString text = toQString(picture().text);
    const QFontMetrics metrics = fontMetrics();
    const TwipGrid& grid = site().grid();
    QRect area(grid.across().pixel(picture().textLeft), grid.down().pixel(picture().textTop),
               metrics.horizontalAdvance(text), metrics.height());
    area = QStyle::visualRect(layoutDirection(), rect(), area);
    if (!part.intersects(area)) return;
    // A text runs in its own direction, whichever way the window does.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.setClipRect(part);
    painter.setPen(side.ink);
    painter.drawText(QPointF(area.left(), area.top() + metrics.ascent()), text);
    painter.setClipping(false);
}

}  // namespace kel::qt
