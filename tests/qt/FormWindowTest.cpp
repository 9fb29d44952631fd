#include <gtest/gtest.h>
#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

#include "platform/qt/home/QtHome.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

TEST(FormWindow, TabFollowsTheIndexNotThePlace) {
    TextForm form(qt::makeHome({}));
    ForeignBlock frame;
    frame.kind = ForeignBlock::Kind::Panel;
    frame.placement.bounds = {0, 0, 3000, 1500};
    PlacedPanel* const panel = form.window().placeForeign(frame);
    ASSERT_NE(panel, nullptr);
    ForeignBlock button;
    button.kind = ForeignBlock::Kind::Button;
    button.placement.bounds = {3000, 0, 600, 300};
    EXPECT_EQ(form.window().placeForeign(button), nullptr);

    Placement placement{.name = u"third", .bounds = {0, 900, 3000, 300}, .tabIndex = 3};
    form.placeAt(placement);
    placement = {.name = u"first", .bounds = {0, 300, 3000, 300}, .parent = panel, .tabIndex = 1};
    form.placeAt(placement);
    placement = {.name = u"second", .bounds = {0, 600, 3000, 300}, .tabIndex = 2, .tabStop = false};
    PlacedControl* const clicked = &form.placeAt(placement);
    placement = {.name = u"unseen", .bounds = {0, 1200, 3000, 300}, .tabIndex = 2, .visible = false};
    form.placeAt(placement);
    form.show();

    std::u16string way;
    for (int i = 0; i < 3; ++i) {
        form.window().press({keys::Tab, 0, NoModifier});
        way += form.window().focused()->name() + u" ";
    }
    EXPECT_EQ(way, u"first third first ");
    form.window().click(*clicked, 0);
    EXPECT_EQ(form.window().focused(), clicked) << "no tab stop, but it takes clicks";
}

/// Twips do not always fill whole pixels: neighbours still touch, and give their sizes back unchanged.
TEST(FormWindow, KeepsTwipsAndTouchesInPixels) {
    HomeOptions options;
    options.twipsPerPixel = 12;
    TextForm form(qt::makeHome(options));
    PlacedControl& upper = form.place(u"a");
    PlacedControl& lower = form.place(u"b");
    upper.setBounds({7, 5, 3001, 305});
    lower.setBounds({7, 310, 3001, 305});
    form.show();
    EXPECT_EQ(upper.bounds(), (Rect{7, 5, 3001, 305}));
    EXPECT_EQ(boxOf(upper).bounds(), (Rect{1200, 0, 1801, 305}));
    const QWidget& above = *widgetOf(boxOf(upper)).parentWidget();
    const QWidget& below = *widgetOf(boxOf(lower)).parentWidget();
    EXPECT_EQ(above.y() + above.height(), below.y());
    EXPECT_EQ(widgetOf(boxOf(upper)).geometry().right(), above.width() - 1);
    lower.setBounds({7, 310, 3001, 10});
    EXPECT_EQ(lower.bounds().height, 300) << "its own height";
}

TEST(FormWindow, HasAPicture) {
    TextForm form(qt::makeHome({}));
    form.place(u"a");
    form.show();
    const QByteArray png = QByteArray::fromStdString(form.window().picture());
    EXPECT_EQ(QImage::fromData(png, "PNG").size(), QSize(1000, 500));
}

}  // namespace
}  // namespace kel::test
