#include <chrono>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMessageBox>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>

#include "host/Widgets.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/records/RecordList.h"
#include "platform/qt/records/RecordWindow.h"
#include "tests/records/OnDatabase.h"

/// The window around a form with its records.
namespace kel::test {
namespace {

class WindowTest : public OnDatabase {
protected:
    WindowTest() : Home_(qt::makeHome({})), Unseen_(headless::makeHome({})), Store_(open()) {}

    void openWindow(const std::string& file) {
        Form_.emplace(*Home_, Home_->system(), Observer_, FormFile::parse(file, "member.frm"));
        Window_.emplace(*Form_, *Home_, *Unseen_, *Store_, Store_->table(u"member").value());
    }

    void give(const QKeySequence& key) {
        for (QWidget* const window : QApplication::topLevelWidgets())
            for (QAction* const action : window->findChildren<QAction*>())
                if (action->shortcut() == key) return action->trigger();
        ADD_FAILURE() << "no command has the key " << key.toString().toStdString();
    }

    SilentObserver Observer_;
    std::unique_ptr<Home> Home_;
    std::unique_ptr<Home> Unseen_;
    std::unique_ptr<Store> Store_;
    std::optional<Form> Form_;
    std::optional<qt::RecordWindow> Window_;
};

TEST_F(WindowTest, FormThatDoesNotFitIsRefused) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name DATE)");
    EXPECT_THROW(openWindow(formOf({{"txtName", "KelText", ""}})), StoreError);
}

/// Another program holds the file for longer than anybody waits.
TEST_F(WindowTest, FileThatIsHeldEndsNoCommandButWithWords) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, fee DOUBLE PRECISION, joined DATE)");
    execute("INSERT INTO member VALUES (1, 'Anna', 0, NULL), (2, 'Berta', 0, NULL)");
    openWindow(MemberForm);
    // Where the record stands is found out while nobody waits.
    for (QElapsedTimer since; since.isValid() ? since.elapsed() < 300 : (since.start(), true);)
        QCoreApplication::processEvents();
    execute("BEGIN EXCLUSIVE");
    std::string said;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
            said = box->text().toStdString();
            execute("ROLLBACK");
        }
        dialog->accept();
    });
    look.start(20);
    EXPECT_NO_THROW(give(QKeySequence(Qt::CTRL | Qt::Key_G)));
    EXPECT_NE(said.find("Another program holds the database."), std::string::npos) << said;
}

/// Whoever stays at a changed record has been asked once.
TEST_F(WindowTest, ReadingAgainAsksOnce) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, fee DOUBLE PRECISION, joined DATE)");
    execute("INSERT INTO member VALUES (1, 'Anna', 0, NULL), (2, 'Berta', 0, NULL)");
    openWindow(MemberForm);
    give(QKeySequence(Qt::ALT | Qt::Key_End));
    const TextEntry& name = *Form_->find(u"txtName")->control().widgets().entry;
    ASSERT_EQ(name.text(), u"Berta");
    Form_->window().focus(*Form_->find(u"txtName"));
    Form_->window().press({0, u'x', NoModifier});
    const std::u16string typed = name.text();
    int asked = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) ++asked, dialog->reject();
    });
    look.start(20);
    give(QKeySequence(Qt::Key_F5));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(name.text(), typed);
}

/// As any command does, a click in the list ends a search that is still going on.
TEST_F(WindowTest, ClickInTheListEndsASearch) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, fee DOUBLE PRECISION, joined DATE)");
    execute(
        "INSERT INTO member SELECT i, 'name ' || i, 0, NULL FROM (WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT "
        "i + 1 FROM n WHERE i < 9000) SELECT i FROM n) AS r");
    openWindow(MemberForm);
    give(QKeySequence(Qt::Key_F9));
    for (QElapsedTimer since; since.isValid() ? since.elapsed() < 500 : (since.start(), true);)
        QCoreApplication::processEvents();
    QTableView* list = nullptr;
    QStatusBar* bar = nullptr;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (list == nullptr) list = window->findChild<QTableView*>();
        if (bar == nullptr) bar = window->findChild<QStatusBar*>();
    }
    ASSERT_GT(list->model()->rowCount(), 2);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
            dialog->setTextValue(QStringLiteral("%2 zzz"));
            dialog->accept();
        } else if (bar->currentMessage().startsWith(QLatin1String("Looking for"))) {
            EXPECT_EQ(bar->currentMessage(), QString::fromUtf8("Looking for \"%2 zzz\"\u2026 Escape ends it."));
            look.stop();
            emit list->activated(list->model()->index(2, 0));
        }
    });
    look.start(5);
    give(QKeySequence(Qt::CTRL | Qt::Key_F));
    EXPECT_FALSE(look.isActive()) << "it was over before";
    EXPECT_EQ(bar->currentMessage(), QStringLiteral("Not looked for any further."));
    give(QKeySequence(Qt::Key_F9));
}

/// The list is painted with what can be read at once, and is right when the file is free again.
TEST_F(WindowTest, ListDoesNotWaitWhileItIsPainted) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL)");
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, p INTEGER REFERENCES parent (id))");
    execute("INSERT INTO parent VALUES (1, 'Smith')");
    execute("INSERT INTO member VALUES (1, 'Anna', 1), (2, 'Berta', NULL)");
    Person person(formOf({{"txtName", "KelText", ""}, {"cboP", "KelCombo", "      DataField = \"p:tag\"\r\n"}}),
                  *Store_, u"member");
    execute("INSERT INTO parent VALUES (2, 'Jones')");
    execute("UPDATE member SET p = 2 WHERE id = 2");
    static_cast<void>(person.records().count());
    qt::RecordList list(person.records());
    list.refresh();
    list.look(0, 2);
    EXPECT_EQ(list.index(1, 0).data().toString(), QStringLiteral("Berta"));
    execute("BEGIN EXCLUSIVE");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_NO_THROW(EXPECT_FALSE(list.index(1, 1).data().isValid()));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    execute("ROLLBACK");
    EXPECT_EQ(list.index(1, 1).data().toString(), QStringLiteral("Jones (2)"));
}

}  // namespace
}  // namespace kel::test
