#include "platform/qt/home/ForeignWidgets.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include "platform/qt/base/FieldColors.h"
#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

namespace {

/// A dashed frame with the name of a class in it, for what nobody knows how to draw.
class Placeholder final : public QWidget {
public:
    Placeholder(const QString& className, QWidget& parent) : QWidget(&parent), ClassName_(className) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int Margin = 4;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Disabled, QPalette::WindowText), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        const QString shown = fontMetrics().elidedText(ClassName_, Qt::ElideRight, width() - 2 * Margin);
        painter.drawText(rect(), Qt::AlignCenter, shown);
    }

private:
    QString ClassName_;
};

/// A frame with its title in the upper line, which leaves all the rest to what is placed in it.
class Frame final : public QWidget, public PlacedPanel {
public:
    Frame(const QString& title, QWidget& parent) : QWidget(&parent), Title_(title) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int TitleIndent = 6;
        constexpr int TitleMargin = 2;
        QPainter painter(this);
        const int height = fontMetrics().height();
        QRect title(TitleIndent, 0, fontMetrics().size(Qt::TextShowMnemonic, Title_).width() + 2 * TitleMargin, height);
        title = QStyle::visualRect(layoutDirection(), rect(), title);
        painter.setPen(edgeColor(palette()));
        painter.drawRect(rect().adjusted(0, Title_.isEmpty() ? 0 : height / 2, -1, -1));
        if (Title_.isEmpty()) return;
        painter.fillRect(title, palette().color(QPalette::Window));
        style()->drawItemText(&painter, title, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), true, Title_,
                              QPalette::WindowText);
    }

private:
    QString Title_;
};

/// A line, level or upright.
class Line final : public QWidget {
public:
    explicit Line(QWidget& parent) : QWidget(&parent) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(rect(), edgeColor(palette())); }
};

QWidget* makeLabel(const ForeignBlock& block, QWidget& parent) {
    auto* const label = new QLabel(toQString(block.caption), &parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

QWidget* makeButton(const ForeignBlock& block, QWidget& parent) {
    auto* const button = new QPushButton(toQString(block.caption), &parent);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    return button;
}

QWidget* make(const ForeignBlock& block, QWidget& parent) {
    switch (block.kind) {
        case ForeignBlock::Kind::Label: return makeLabel(block, parent);
        case ForeignBlock::Kind::Button: return makeButton(block, parent);
        case ForeignBlock::Kind::Panel: return new Frame(toQString(block.caption), parent);
        case ForeignBlock::Kind::Line: return new Line(parent);
        case ForeignBlock::Kind::Other: break;
    }
    return new Placeholder(toQString(block.className), parent);
}

/// A line is never thinner than it shows.
QRect pixelsOf(const ForeignBlock& block, const TwipGrid& grid) {
    const QRect pixels = grid.pixels(block.placement.bounds);
    if (block.kind != ForeignBlock::Kind::Line) return pixels;
    constexpr int Thickness = 1;
    return {pixels.topLeft(), pixels.size().expandedTo({Thickness, Thickness})};
}

}  // namespace

QWidget* makeForeignWidget(const ForeignBlock& block, const TwipGrid& grid, QWidget& parent) {
    QWidget* const widget = make(block, parent);
    widget->setObjectName(toQString(block.placement.name));
    widget->setGeometry(pixelsOf(block, grid));
    widget->setVisible(block.placement.visible);
    return widget;
}

}  // namespace kel::qt
