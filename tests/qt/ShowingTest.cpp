#include <gtest/gtest.h>
#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QSignalSpy>

#include "platform/qt/QtHome.h"
#include "tests/qt/QtForm.h"

/// When Qt's line edit gets to know what it is to show.
namespace kel::test {
namespace {

struct ShownLine {
    ShownLine()
        : form(qt::makeHome({})),
          placed(form.place(u"a")),
          box(*placed.control().widgets().entry),
          line(dynamic_cast<QLineEdit&>(box)) {
        form.show();
        form.window().focus(placed);
    }

    TextForm form;
    PlacedControl& placed;
    TextEntry& box;
    QLineEdit& line;
};

TEST(Showing, ManyEditsAreShownAtOnce) {
    ShownLine shown;
    const QSignalSpy changes(&shown.line, &QLineEdit::textChanged);
    shown.box.setText(u"first");
    shown.box.setText(u"second");
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(&shown.line, &key);
    shown.box.setSelStart(3);
    shown.box.setSelLength(2);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(shown.line.text(), QStringLiteral("xsecond"));
    EXPECT_EQ(shown.line.selectedText(), QStringLiteral("co"));
    EXPECT_EQ(changes.size(), 1);
}

TEST(Showing, WhoeverLooksSeesTheTruth) {
    ShownLine shown;
    const auto asked = [&shown](Qt::InputMethodQuery what) {
        QInputMethodQueryEvent query(what);
        QApplication::sendEvent(&shown.line, &query);
        return query.value(what);
    };
    shown.box.setText(u"spoken");
    shown.box.setSelStart(2);
    EXPECT_EQ(asked(Qt::ImSurroundingText), QStringLiteral("spoken"));
    shown.box.setSelStart(4);
    EXPECT_EQ(asked(Qt::ImCursorPosition), 4);

    shown.box.setText(u"painted");
    const QImage grabbed = shown.line.grab().toImage();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(grabbed, shown.line.grab().toImage());

    shown.box.setText(u"aimed at by the mouse");
    const QPointF end(shown.line.width() - 8, shown.line.height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, end, shown.line.mapToGlobal(end), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&shown.line, &press);
    EXPECT_EQ(shown.box.selStart(), shown.box.textLength());

    shown.box.setText(u"found");
    QFocusEvent departure(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&shown.line, &departure);
    EXPECT_EQ(shown.line.text(), QStringLiteral("found"));
}

TEST(Showing, IsDoneBeforeAnythingIsComposed) {
    ShownLine shown;
    shown.box.setText(u"ab");
    shown.box.setSelStart(1);
    QInputMethodEvent composing(QStringLiteral("n"), {});
    QApplication::sendEvent(&shown.line, &composing);
    EXPECT_EQ(shown.line.text(), QStringLiteral("ab"));
    shown.box.setText(u"cd");
    EXPECT_EQ(shown.line.text(), QStringLiteral("cd")) << "code ends the composition";
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("ni"));
    QApplication::sendEvent(&shown.line, &committed);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(shown.line.text(), QStringLiteral("nicd"));
    EXPECT_TRUE(shown.box.textEquals(u"nicd"));
}

}  // namespace
}  // namespace kel::test
