#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "common/EntryField.h"
#include "forms/Form.h"
#include "platform/headless/HeadlessHome.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/records/RecordDialogs.h"
#include "platform/qt/records/RecordWindow.h"
#include "platform/qt/sql/SqlStore.h"
#include "records/OpenTable.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

/// A form that no screen holds, fifty fields from its upper left to its lower right corner.
std::string largeForm() {
    std::string text =
        "VERSION 5.00\r\nBegin VB.Form frmLarge\r\n   ClientWidth = 60000\r\n   ClientHeight = 60000\r\n";
    for (int i = 0; i < 50; ++i) {
        const std::string place = std::to_string(i * 1000);
        text += "   Begin KelControls8.KelText txt" + std::to_string(i) + "\r\n      Left = " + place +
                "\r\n      Top = " + place + "\r\n      Width = 3000\r\n      Mandatory = 0\r\n   End\r\n";
    }
    return text + "End\r\n";
}

TEST(RecordWindow, LargeFormIsScrolledToTheField) {
    const QTemporaryDir folder;
    const auto store = qt::openStore((folder.path() + "/a.sqlite").toStdString(), {});
    const auto home = qt::makeHome({});
    const auto unseen = headless::makeHome({});
    SilentObserver observer;
    Form form(*home, home->system(), observer, FormFile::parse(largeForm(), "large.frm"));
    const records::Table table = records::openTable(*store, form, u"", home->region(), {});
    const qt::RecordWindow window(form, *home, *unseen, *store, table);
    QWidget& shown = *widgetOf(*form.find(u"txt0")->control().widgets().entry).window();
    QApplication::processEvents();
    const QSize screen = shown.screen()->availableSize();
    EXPECT_LE(shown.width(), screen.width());
    EXPECT_LE(shown.height(), screen.height());
    for (const char16_t* const name : {u"txt49", u"txt0", u"txt20"}) {
        PlacedControl& field = *form.find(name);
        form.window().focus(field);
        const QWidget& whole = *widgetOf(*field.control().widgets().entry).parentWidget();
        EXPECT_EQ(whole.visibleRegion().boundingRect(), whole.rect());
    }
    // Nor does the list that comes and goes beside it.
    const int before = shown.width();
    for (QAction* const action : shown.findChildren<QAction*>())
        if (action->shortcut() == QKeySequence(Qt::Key_F9))
            for (int i = 0; i < 2; ++i) {
                action->trigger();
                EXPECT_LE(shown.width(), screen.width());
            }
    EXPECT_EQ(shown.width(), before);
    // The letter of a field leads there out of the list too, before any menu.
    EntryField::of(form.find(u"txt7")->control()).put_Caption(u"&Record");
    for (QAction* const action : shown.findChildren<QAction*>())
        if (action->shortcut() == QKeySequence(Qt::Key_F9)) action->trigger();
    auto* const list = shown.findChild<QTableView*>();
    list->setFocus();
    ASSERT_TRUE(list->hasFocus());
    QTest::keyClick(shown.windowHandle(), Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(form.window().focused(), form.find(u"txt7"));
    EXPECT_FALSE(list->hasFocus());
    // What is said hides neither the record's number nor its state.
    auto& bar = *dynamic_cast<QMainWindow&>(shown).statusBar();
    bar.showMessage(QStringLiteral("\"elm\" is in 40 records."));
    bool isSeen = false;
    for (const QLabel* const label : bar.findChildren<QLabel*>())
        isSeen = isSeen || (label->isVisible() && label->text() == QLatin1String("New record, 0 so far"));
    EXPECT_TRUE(isSeen);
}

/// However much there is to say of a difference, the buttons are to be seen.
TEST(RecordWindow, QuestionsFitOnTheScreen) {
    QWidget window;
    const std::u16string novel(100'000, u'w');
    const std::vector<records::Difference> differences(3, {u"Notes", novel, u"one\ntwo", novel, true});
    int looks = 0;
    const auto look = [&] {
        QWidget& dialog = *QApplication::activeModalWidget();
        ++looks;
        EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
        EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
        for (const QComboBox* const box : dialog.findChildren<QComboBox*>())
            EXPECT_EQ(box->visibleRegion().boundingRect().width(), box->width());
        for (const QPushButton* const button : dialog.findChildren<QPushButton*>())
            EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
        dialog.close();
    };
    qt::RecordDialogs dialogs(window);
    QTimer::singleShot(100, look);
    EXPECT_FALSE(dialogs.aboutDifferences(differences));
    QTimer::singleShot(100, look);
    dialogs.say(novel);
    EXPECT_EQ(looks, 2);
}

}  // namespace
}  // namespace kel::test
