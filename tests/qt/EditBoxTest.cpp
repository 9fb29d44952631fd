#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QPlainTextEdit>

#include "platform/qt/base/KeyMap.h"
#include "platform/qt/home/QtHome.h"
#include "tests/qt/QtForm.h"

/// The ways into a text that only a desktop has.
namespace kel::test {
namespace {

struct OneField {
    explicit OneField(bool multiLine = false) : form(qt::makeHome({})), placed(form.place(u"a", 900)) {
        textOf(placed).put_MultiLine(multiLine);
        form.show();
        form.window().focus(placed);
        form.takeLog();
    }
    TextEntry& box() { return boxOf(placed); }
    QWidget& widget() { return widgetOf(box()); }

    void compose(const QString& preedit, const QString& commit = {}, int replaceFrom = 0, int replaceLength = 0) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit, replaceFrom, replaceLength);
        QApplication::sendEvent(&widget(), &event);
    }

    QAction* menuEntry(const char* name) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&widget(), &event);
        QWidget* const menu = QApplication::activePopupWidget();
        return menu == nullptr ? nullptr : menu->findChild<QAction*>(QLatin1String(name));
    }

    TextForm form;
    PlacedControl& placed;
};

TEST(InputMethod, CommitsAreTyped) {
    for (const bool multiLine : {false, true}) {
        OneField field(multiLine);
        put(field.box(), "1[2]3");
        field.form.takeLog();
        field.compose(QStringLiteral("n"));
        field.compose(QStringLiteral("ni"));
        field.compose({});
        EXPECT_EQ(drawn(field.box()), "1[2]3") << "a composition that is cancelled leaves no trace";
        EXPECT_EQ(field.form.takeLog(), "");

        field.compose(QStringLiteral("ni"));
        field.compose({}, QStringLiteral("\u65E5\u672C"));
        EXPECT_EQ(drawn(field.box()), "1\u65E5\u672C|3");
        EXPECT_EQ(field.form.takeLog(), "a.Change(1\u65E53) a.Change(1\u65E5\u672C3) ");
    }
}

TEST(InputMethod, CorrectsWhatStandsInFront) {
    OneField field;
    put(field.box(), "teh|");
    field.compose({}, QStringLiteral("the"), -3, 3);
    EXPECT_EQ(drawn(field.box()), "the|");
}

TEST(InputMethod, CodeEndsAComposition) {
    for (const bool multiLine : {false, true}) {
        OneField field(multiLine);
        put(field.box(), "a|b");
        field.compose(QStringLiteral("n"));
        field.box().setText(u"cd");
        field.compose({}, QStringLiteral("ni"));
        EXPECT_EQ(drawn(field.box()), "ni|cd");
        QInputMethodQueryEvent query(Qt::ImSurroundingText | Qt::ImCursorPosition);
        QApplication::sendEvent(&field.widget(), &query);
        EXPECT_EQ(query.value(Qt::ImSurroundingText), QStringLiteral("nicd"));
        EXPECT_EQ(query.value(Qt::ImCursorPosition), 2);
    }
}

TEST(ContextMenu, WorksOnTheControlsTerms) {
    OneField field;
    put(field.box(), "a[b]c");
    field.form.window().setClipboard(u"xy\n2");
    ASSERT_NE(field.menuEntry("edit-paste"), nullptr);
    field.menuEntry("edit-paste")->trigger();
    EXPECT_EQ(drawn(field.box()), "axy|c");
    field.menuEntry("edit-undo")->trigger();
    EXPECT_EQ(drawn(field.box()), "a[b]c");
    field.menuEntry("edit-cut")->trigger();
    EXPECT_EQ(drawn(field.box()), "a|c");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("b"));

    EXPECT_FALSE(field.menuEntry("edit-delete")->isEnabled());
    QApplication::activePopupWidget()->close();
}

TEST(EditBox, AssistiveWritingPassesTheControlsRules) {
    const auto insert = [](QWidget& widget, int at, const QString& text) {
        QAccessible::queryAccessibleInterface(&widget)->editableTextInterface()->insertText(at, text);
    };
    for (const bool multiLine : {false, true}) {
        OneField field(multiLine);
        textOf(field.placed).entry().put_MaxLength(4);
        put(field.box(), "|ab");
        insert(field.widget(), 2, QStringLiteral("xyz"));
        EXPECT_EQ(drawn(field.box()), "abxy|") << "no longer than it may be";
    }
}

TEST(EditBox, PressesThatFollowSelectMore) {
    for (const bool multiLine : {false, true}) {
        OneField field(multiLine);
        put(field.box(), "one t|wo  3");
        const QPoint place = field.widget().inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QWidget& area = multiLine ? *static_cast<QPlainTextEdit&>(field.widget()).viewport() : field.widget();
        field.form.takeLog();
        const auto send = [&](QEvent::Type type) {
            const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, place, area.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(&area, &event);
        };
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
            send(type);
            send(QEvent::MouseButtonRelease);
        }
        EXPECT_EQ(drawn(field.box()), "one [two]  3") << multiLine;
        EXPECT_EQ(field.form.takeLog(), "a.Click(one two  3) ") << "the second one is none";
        send(QEvent::MouseButtonPress);
        EXPECT_EQ(drawn(field.box()), "[one two  3]") << multiLine;
    }
}

TEST(EditBox, KeysThatMeanNothingHereGoOn) {
    struct Case {
        KeyStroke stroke;
        bool multiLine;
        bool claimed;  ///< ahead of the window's shortcuts
        bool used;
    };
    const Case cases[] = {{{keys::Insert}, false, true, false},
                          {{keys::Up}, true, true, true},
                          {{keys::Tab, 0, ControlKey}, true, false, false}};
    for (const Case& row : cases) {
        OneField field(row.multiLine);
        const qt::QtKey key = qt::keyFor(row.stroke);
        QKeyEvent asked(QEvent::ShortcutOverride, key.key, key.modifiers, key.text);
        QObject& control = *field.widget().parent();
        asked.ignore();
        control.event(&asked);
        EXPECT_EQ(asked.isAccepted(), row.claimed) << row.stroke.code;
        QKeyEvent pressed(QEvent::KeyPress, key.key, key.modifiers, key.text);
        control.event(&pressed);
        EXPECT_EQ(pressed.isAccepted(), row.used) << row.stroke.code;
    }
}

/// Only the screen knows where a line was wrapped, how wide its letters are and which way they run.
TEST(EditBox, CaretMovesByWhatIsSeen) {
    struct Case {
        const char* what;
        bool multiLine;
        const char* before;
        std::vector<std::int16_t> strokes;
        const char* after;
    };
    const Case cases[] = {
        {"up under what was typed", true, "HHHH\r\n|", {'H', 'H', keys::Up}, "HH|HH\r\nhh"},
        {"the column outlives a short line", true, "HHH|\r\nH\r\nHHH", {keys::Down, keys::Down}, "HHH\r\nH\r\nHHH|"},
        {"from right to left", false, "\u05D0|\u05D1", {keys::Left}, "\u05D0\u05D1|"},
        {"in several lines too", true, "\u05D0|\u05D1", {keys::Right}, "|\u05D0\u05D1"},
        {"out of a selection", false, "\u05D0[\u05D1]\u05D2", {keys::Right}, "\u05D0|\u05D1\u05D2"},
    };
    for (const Case& row : cases) {
        OneField field(row.multiLine);
        put(field.box(), row.before);
        for (const std::int16_t code : row.strokes)
            field.form.window().press(code == 'H' ? strokeFor(U'h') : KeyStroke{code, 0, NoModifier});
        EXPECT_EQ(drawn(field.box()), row.after) << row.what;
    }
    OneField field(true);
    put(field.box(), "a line " + std::string(200, 'x') + "|");
    const auto press = [&field](std::int16_t code) {
        field.form.window().press({code, 0, NoModifier});
        return field.box().selStart();
    };
    const std::int32_t start = press(keys::Home);
    EXPECT_GT(start, 7) << "of the last line that is seen";
    EXPECT_EQ(press(keys::Home), start);
    EXPECT_LT(press(keys::Up), start);
    EXPECT_EQ(press(keys::Down), start);
    EXPECT_EQ(press(keys::End), field.box().textLength());
}

}  // namespace
}  // namespace kel::test
