#include <gtest/gtest.h>
#include <KelTextWidget.h>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include "tests/qt/ProbeForm.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

QMessageBox* boxThatIsUp() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

/// Runs `action` as soon as a message box is up, and closes the box if it is up still.
class WhileABoxIsUp {
public:
    explicit WhileABoxIsUp(std::function<void(QMessageBox&)> action) : Action_(std::move(action)) {
        Timer_.setSingleShot(true);
        QObject::connect(&Timer_, &QTimer::timeout, [this] { act(); });
        Timer_.start(0);
    }

private:
    void act() {
        const QPointer<QMessageBox> box = boxThatIsUp();
        ASSERT_FALSE(box.isNull());
        Action_(*box);
        if (!box.isNull()) box->accept();
    }

    std::function<void(QMessageBox&)> Action_;
    QTimer Timer_;
};

class AMessageBox : public testing::Test {
protected:
    AMessageBox() : first(form.place(u"a")), second(form.place(u"b")) {
        form.show();
        form.window().focus(first);
        ProbeControl::takeLog();
    }

    static void tell(PlacedControl& placed) {
        probe(placed).host().system.messageBox(u"Please enter <one>.", 64, u"Invalid Value");
    }

    ProbeForm form;
    PlacedControl& first;
    PlacedControl& second;
};

TEST_F(AMessageBox, SaysWhatItIsAbout) {
    QString shown;
    const WhileABoxIsUp acting([&](const QMessageBox& box) {
        shown = box.windowTitle() + u'/' + box.text();
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.parentWidget(), boxWidgetOf(first).window());
    });
    tell(first);
    EXPECT_EQ(shown, QStringLiteral("Invalid Value/Please enter <one>."));
}

TEST_F(AMessageBox, IsNoChangeOfFocus) {
    boxOf(first).setText(u"text");
    boxOf(first).setSelStart(1);
    boxOf(first).setSelLength(2);
    ProbeControl::takeLog();
    const WhileABoxIsUp acting([](QMessageBox&) { QCoreApplication::processEvents(); });
    tell(first);
    QCoreApplication::processEvents();
    EXPECT_EQ(ProbeControl::takeLog(), "");
    EXPECT_EQ(drawn(boxOf(first)), "t[ex]t");
    EXPECT_EQ(QApplication::focusWidget(), &boxWidgetOf(first)) << "and the user may go on";
}

TEST_F(AMessageBox, LeavesTheFocusWhereItWentMeanwhile) {
    const WhileABoxIsUp acting([this](QMessageBox&) { boxOf(second).setFocus(); });
    tell(first);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.focused(), "b");
    EXPECT_EQ(ProbeControl::takeLog(), "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus");
}

/// The control goes on when the box is closed, whatever has become of its form.
TEST_F(AMessageBox, OutlivesTheFormAndLeavesTheControlAlive) {
    const QPointer<QWidget> box = &boxWidgetOf(first);
    ProbeControl& control = probe(first);
    bool goesOn = false;
    control.on("KeyDown", [&] {
        const WhileABoxIsUp acting([this](QMessageBox&) { form.unload(); });
        control.host().system.messageBox(u"Wait.", 64, u"Title");
        EXPECT_EQ(boxThatIsUp(), nullptr) << "gone with its window";
        control.box().setText(u"still here");
        control.box().setFocus();
        control.host().container.propertyChanged(MemberRow());
        control.host().container.setSize({3000, 300});
        goesOn = control.box().text() == u"still here";
    });
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(box, &key);
    EXPECT_TRUE(goesOn);
    letGo();
    EXPECT_TRUE(box.isNull());
}

TEST(MessageBox, OutlivesAWindowThatAProgramCloses) {
    auto* const window = new QWidget;
    window->setAttribute(Qt::WA_DeleteOnClose);
    auto* const field = new KelTextWidget(window);
    window->show();
    window->activateWindow();
    QCoreApplication::processEvents();
    const QPointer<QWidget> gone = window;
    QObject::connect(field, &KelTextWidget::change, field, [&] {
        const WhileABoxIsUp acting([&gone](QMessageBox&) {
            gone->close();
            letGo();
            EXPECT_TRUE(gone.isNull());
        });
        QMessageBox::information(nullptr, {}, QStringLiteral("A box of the program's own"));
    });
    TextEntry& box = *field->control().widgets().entry;
    field->setText(QStringLiteral("x"));
    EXPECT_EQ(box.text(), u"x") << "alive until the event loop is back";
    letGo();
}

}  // namespace
}  // namespace kel::test
