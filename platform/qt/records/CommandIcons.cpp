#include "platform/qt/records/CommandIcons.h"

#include <optional>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace kel::qt {

namespace {

using records::Command;

constexpr qreal Grid = 16;  ///< units of a picture's width

QPainterPath polygon(const QPolygonF& corners) {
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

/// Towards the end of the records.
QPainterPath arrow(bool isToEnd) {
    QPainterPath path = polygon({{5, 3}, {12, 8}, {5, 13}});
    if (isToEnd) path.addRect(12, 3, 2, 10);
    return path;
}

QPainterPath sheet() {
    return polygon({{3, 1}, {10, 1}, {13, 4}, {13, 15}, {3, 15}})
        .subtracted(polygon({{4.2, 2.2}, {9.4, 2.2}, {9.4, 4.6}, {11.8, 4.6}, {11.8, 13.8}, {4.2, 13.8}}));
}

QPainterPath disk() {
    QPainterPath holes;
    holes.addRect(5, 2, 5, 4);
    holes.addRect(4, 9, 8, 4.8);
    return polygon({{2, 2}, {12, 2}, {14, 4}, {14, 14}, {2, 14}}).subtracted(holes);
}

/// A disk, and one more.
QPainterPath diskAndNew() {
    QTransform small;
    small.scale(0.75, 0.75);
    QPainterPath plus;
    plus.addRect(12, 9, 2, 7);
    plus.addRect(9.5, 11.5, 7, 2);
    QPainterPath around;
    around.addEllipse(QPointF(13, 12.5), 4.6, 4.6);
    return small.map(disk()).subtracted(around).united(plus.simplified());
}

/// An arrow that turns back.
QPainterPath turn() {
    QPainterPath line;
    line.moveTo(4, 6);
    line.lineTo(9, 6);
    line.arcTo(QRectF(5.5, 6, 7, 7), 90, -180);
    line.lineTo(6, 13);
    QPainterPathStroker stroker;
    stroker.setWidth(2);
    return stroker.createStroke(line).united(polygon({{6.5, 1.5}, {6.5, 10.5}, {1.5, 6}})).simplified();
}

QPainterPath lens() {
    QPainterPath outer;
    outer.addEllipse(QPointF(6.5, 6.5), 5, 5);
    QPainterPath inner;
    inner.addEllipse(QPointF(6.5, 6.5), 3.4, 3.4);
    return outer.subtracted(inner).united(polygon({{9.4, 10.6}, {10.6, 9.4}, {14.8, 13.6}, {13.6, 14.8}}));
}

struct Picture {
    const char* name;  ///< of the desktop's own, where it has one
    QPainterPath (*path)();
    bool isBackwards = false;
};

std::optional<Picture> pictureOf(Command command) {
    switch (command) {
        case Command::First: return Picture{nullptr, [] { return arrow(true); }, true};
        case Command::Previous: return Picture{nullptr, [] { return arrow(false); }, true};
        case Command::Next: return Picture{nullptr, [] { return arrow(false); }};
        case Command::Last: return Picture{nullptr, [] { return arrow(true); }};
        case Command::New: return Picture{"document-new", &sheet};
        case Command::Save: return Picture{"document-save", &disk};
        case Command::SaveAndNew: return Picture{"document-save-as", &diskAndNew};
        case Command::Undo: return Picture{"edit-undo", &turn};
        case Command::Find: return Picture{"edit-find", &lens};
        default: return std::nullopt;
    }
}

/// Drawn when it is seen, as large as it is seen, in the colour of the window's texts: pictures of the styles are read
/// in every size that there is, and are dark on a dark ground too.
class DrawnIcon final : public QIconEngine {
public:
    DrawnIcon(const QPainterPath& path, const QColor& color) : Path_(path), Color_(color) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(0.4);
        painter->translate(place.topLeft());
        painter->scale(place.width() / Grid, place.height() / Grid);
        painter->fillPath(Path_, Color_);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    QPainterPath Path_;
    QColor Color_;
};

}  // namespace

QIcon iconOf(const QWidget& window, Command command) {
    const auto picture = pictureOf(command);
    if (!picture) return {};
    if (picture->name != nullptr && QIcon::hasThemeIcon(QLatin1String(picture->name)))
        return QIcon::fromTheme(QLatin1String(picture->name));
    QPainterPath path = picture->path();
    const bool isArrow = picture->name == nullptr;
    if (isArrow && picture->isBackwards != window.isRightToLeft()) path = QTransform(-1, 0, 0, 1, Grid, 0).map(path);
    return QIcon(new DrawnIcon(path, window.palette().color(QPalette::ButtonText)));
}

}  // namespace kel::qt
