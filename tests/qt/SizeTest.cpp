#include <gtest/gtest.h>
#include <KelCheckWidget.h>
#include <KelComboWidget.h>
#include <KelDateWidget.h>
#include <KelNumberWidget.h>
#include <KelProgressBarWidget.h>
#include <KelTextWidget.h>
#include <KelTimeWidget.h>
#include <cmath>
#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOptionButton>

#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/QtLine.h"
#include "tests/qt/Pictures.h"
#include "tests/qt/QtForm.h"

/// How large the widgets of a program are, in the font that they are given.
namespace kel::test {
namespace {

const QString Tall = QStringLiteral("\u00C5gjpq");

template <class Field>
Field* captioned(QWidget& window) {
    auto* const field = new Field(&window);
    field->setCaption(Tall);
    return field;
}

/// One of each kind with something in it, and the text that it shows.
struct Shown {
    const char* what;
    qt::KelControlWidget* (*make)(QWidget& window);
    QString text;
};

const Shown Kinds[] = {
    {"text",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const field = captioned<KelTextWidget>(window);
         field->setText(Tall);
         return field;
     },
     Tall},
    {"several lines",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const field = captioned<KelTextWidget>(window);
         field->setMultiLine(true);
         field->setText(Tall);
         return field;
     },
     Tall},
    {"number",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const field = captioned<KelNumberWidget>(window);
         field->setUpDown(true);
         field->setValue(-12);
         return field;
     },
     QStringLiteral("(12.00)")},
    {"date",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const field = captioned<KelDateWidget>(window);
         field->setFormat(QStringLiteral("dd/mm\\g"));
         field->setProperty("value", QDate(2013, 3, 15));
         return field;
     },
     QStringLiteral("15/03g")},
    {"choice",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const field = captioned<KelComboWidget>(window);
         field->setLimitToList(false);
         field->setText(Tall);
         return field;
     },
     Tall},
    {"check box", [](QWidget& window) -> qt::KelControlWidget* { return captioned<KelCheckWidget>(window); }, Tall},
    {"bar",
     [](QWidget& window) -> qt::KelControlWidget* {
         auto* const bar = new KelProgressBarWidget(&window);
         bar->setProperty("value", 0);
         return bar;
     },
     QStringLiteral("0%")},
};

QImage pictureOf(QWidget& widget) { return widget.grab().toImage(); }

bool isInk(const QColor& pixel, const QColor& paper) {
    constexpr int Shade = 40;  // of a frame or a button
    return std::max({std::abs(pixel.red() - paper.red()), std::abs(pixel.green() - paper.green()),
                     std::abs(pixel.blue() - paper.blue())}) > Shade;
}

/// How much of a part of the picture (in the widget's pixels) is written on, top to bottom and across, in dots.
QSize writtenIn(const QImage& picture, const QRect& part) {
    const qreal ratio = picture.devicePixelRatio();
    const QRect dots = QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio).toAlignedRect();
    const QColor paper = picture.pixelColor(dots.center().x(), dots.top());
    return where(picture, dots & picture.rect(), [&paper](const QColor& pixel) { return isInk(pixel, paper); }).size();
}

/// The same of a text for which there is all the room in the world.
QSize writtenSize(const QString& text, const QFont& font, qreal ratio) {
    QImage picture(QSize(300, 100) * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.drawText(20, 60, text);
    painter.end();
    return writtenIn(picture, {0, 0, 300, 100});
}

/// Where the text of a field may be seen, without its frame and what stands beside it. `wide` is the text.
QRect textPartOf(qt::KelControlWidget& field, int wide) {
    const WidgetSet widgets = field.control().widgets();
    if (widgets.picture != nullptr) return field.rect().adjusted(40, 2, -40, -2);
    auto& inner = dynamic_cast<QWidget&>(*widgets.field->view());
    if (widgets.checkBox != nullptr) {
        const QStyleOptionButton option = [&inner] {
            QStyleOptionButton all;
            all.initFrom(&inner);
            return all;
        }();
        const QRect box = inner.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &inner);
        QRect rest = inner.rect();
        if (inner.isRightToLeft())
            rest.setRight(box.left() - 2);
        else
            rest.setLeft(box.right() + 2);
        return rest.translated(inner.pos());
    }
    const auto* const line = dynamic_cast<qt::QtLine*>(&inner);
    const int left =
        line != nullptr ? line->caretRect(0).left() : dynamic_cast<QPlainTextEdit&>(inner).cursorRect().left() + 3;
    return QRect(left - 1, 2, wide + 2, inner.height() - 4).translated(inner.pos());
}

void expectWhole(const Shown& kind, qt::KelControlWidget& field, const std::string& how) {
    const QImage picture = pictureOf(field);
    const qreal ratio = picture.devicePixelRatio();
    const int wide = QFontMetrics(field.font()).horizontalAdvance(kind.text);
    const QSize text = writtenSize(kind.text, field.font(), ratio);
    const QSize seen = writtenIn(picture, textPartOf(field, wide));
    EXPECT_NEAR(seen.height(), text.height(), std::ceil(ratio - 1)) << how;
    EXPECT_NEAR(seen.width(), text.width(), 2) << how;

    const auto* const label = field.control().widgets().label;
    if (label == nullptr) return;
    const int captionWidth = field.width() - static_cast<int>(field.childrenRect().width());
    const QRect part(field.isRightToLeft() ? field.width() - captionWidth : 0, 0, captionWidth, field.height());
    const QSize caption = writtenIn(picture, part);
    const QSize wanted = writtenSize(Tall, field.font(), ratio);
    EXPECT_NEAR(caption.height(), wanted.height(), std::ceil(ratio - 1)) << how << ", its caption";
    EXPECT_NEAR(caption.width(), wanted.width(), 2) << how << ", its caption";
}

TEST(Sizes, NothingIsCutInAnyFont) {
    for (const int points : {8, 12, 18, 28}) {
        for (const bool bySheet : {false, true}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                QWidget window;
                window.setLayoutDirection(direction);
                auto* const layout = new QVBoxLayout(&window);
                std::vector<qt::KelControlWidget*> fields;
                for (const Shown& kind : Kinds) layout->addWidget(fields.emplace_back(kind.make(window)));
                QFont font = window.font();
                font.setPointSize(points);
                if (bySheet)
                    window.setStyleSheet(QStringLiteral("* { font-size: %1pt }").arg(points));
                else
                    window.setFont(font);
                window.show();
                // As narrow as its layout lets it be, but for texts of more than five letters.
                window.resize(window.minimumSizeHint() + QSize(20 * points / 8, 0));
                QCoreApplication::processEvents();
                // No caret.
                if (QWidget* const focused = QApplication::focusWidget()) focused->clearFocus();
                for (std::size_t i = 0; i < fields.size(); ++i)
                    expectWhole(Kinds[i], *fields[i],
                                std::string(Kinds[i].what) + " at " + std::to_string(points) +
                                    (bySheet ? " by sheet" : "") + (direction == Qt::LeftToRight ? "" : " mirrored"));
            }
        }
    }
}

TEST(Sizes, FollowTheFontThatTheyAreGiven) {
    const struct {
        const char* what;
        void (*give)(QWidget& window, QWidget& field);
    } ways[] = {
        {"its own", [](QWidget&, QWidget& field) { field.setFont(QFont(QStringLiteral("DejaVu Sans"), 20)); }},
        {"the window's", [](QWidget& window, QWidget&) { window.setFont(QFont(QStringLiteral("DejaVu Sans"), 20)); }},
        {"of a class", [](QWidget& window, QWidget&) { window.setStyleSheet("KelNumberWidget { font-size: 20pt }"); }},
        {"of all", [](QWidget& window, QWidget&) { window.setStyleSheet("QWidget { font-size: 20pt }"); }},
        {"its own sheet", [](QWidget&, QWidget& field) { field.setStyleSheet("font-size: 20pt"); }},
    };
    for (const auto& way : ways) {
        for (const bool shownBefore : {false, true}) {
            QWidget window;
            QFormLayout layout(&window);
            auto* const field = new KelNumberWidget;
            layout.addRow(QStringLiteral("&Amount"), field);
            if (shownBefore) window.show();
            way.give(window, *field);
            window.show();
            QCoreApplication::processEvents();
            const QWidget& box = widgetOf(*field->control().widgets().entry);
            EXPECT_EQ(box.font().pointSize(), 20) << way.what;
            QLineEdit stock;
            stock.setFont(field->font());
            EXPECT_EQ(box.height(), stock.sizeHint().height()) << way.what;
            EXPECT_EQ(field->height(), box.height()) << way.what;
            EXPECT_EQ(field->control().widgets().entry->bounds().height, 300) << "in twips nothing changes";
            field->setFontBold(true);
            EXPECT_TRUE(box.font().bold() && box.font().pointSize() == 20) << way.what;
            field->setFontBold(false);
            EXPECT_FALSE(box.font().bold()) << way.what;
        }
    }
}

TEST(Sizes, ACaptionIsAsWideAsItNeedsUntilItIsTold) {
    KelNumberWidget field;
    field.resize(400, 22);
    field.show();
    const auto captionPixels = [&field] { return widgetOf(*field.control().widgets().entry).x(); };
    const auto needed = [&field](const char* text) { return field.fontMetrics().horizontalAdvance(text); };
    EXPECT_EQ(captionPixels(), 0) << "without one";
    field.setCaption(QStringLiteral("A rather long caption"));
    EXPECT_NEAR(captionPixels(), needed("A rather long caption") + needed("x"), 1);
    field.resize(60, 22);
    field.resize(400, 22);
    EXPECT_GT(captionPixels(), needed("A rather long caption")) << "where there is room again";
    field.setFontBold(true);
    QFont bold = field.font();
    bold.setBold(true);
    EXPECT_GT(captionPixels(), QFontMetrics(bold).horizontalAdvance("A rather long caption")) << "in bold";
    field.setCaptionWidth(600);
    field.setCaption(QStringLiteral("Other"));
    EXPECT_EQ(captionPixels(), 40);
    EXPECT_EQ(field.captionWidth(), 600);
    field.resetCaptionWidth();
    EXPECT_NEAR(captionPixels(), QFontMetrics(bold).horizontalAdvance("Other") + needed("x"), 2);
}

/// A form of a file grows as a whole where its desktop writes larger; told how large it is, it writes smaller.
TEST(Sizes, AFormGrowsWithTheDesktopsFont) {
    const QFont before = QApplication::font();
    const struct {
        int points;
        std::int32_t twipsPerPixel;
        bool grows;
        int shown;
    } rows[] = {{8, 0, false, 8}, {16, 0, true, 16}, {16, 15, false, 8}};
    for (const auto& row : rows) {
        QFont font = before;
        font.setPointSize(row.points);
        QApplication::setFont(font);
        HomeOptions options;
        options.twipsPerPixel = row.twipsPerPixel;
        TextForm form(qt::makeHome(options));
        PlacedControl& placed = form.place(u"a");
        form.show();
        const QWidget& box = widgetOf(boxOf(placed));
        EXPECT_EQ(box.height() > 20, row.grows) << row.points;
        EXPECT_EQ(box.font().pointSize(), row.shown) << row.points;
        EXPECT_GT(box.height(), box.fontMetrics().height()) << row.points;
        EXPECT_EQ(boxOf(placed).bounds().height, 300) << row.points;
    }
    QApplication::setFont(before);
}

}  // namespace
}  // namespace kel::test
