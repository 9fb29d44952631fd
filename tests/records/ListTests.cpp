#include <functional>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/records/RecordTable.h"
#include "tests/records/OnDatabase.h"

/// The list beside a form, which knows no more rows than are seen.
namespace kel::test {
namespace {

constexpr int Many = 3'000;

class ListTest : public OnDatabase {
protected:
    ListTest() {
        execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, fee DOUBLE PRECISION, joined DATE)");
        execute(
            "INSERT INTO member SELECT i, 'name ' || (i * 7919 % 2999), 0, NULL FROM (WITH RECURSIVE n (i) AS (SELECT "
            "1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) SELECT i FROM n) AS r");
        Store_ = open();
        Person_.emplace(MemberForm, *Store_, u"member");
        List_.emplace(form());
        Table_.emplace(*List_);
        Table_->resize(400, 300);
        Table_->show();
        look();
    }

    RecordForm& form() { return Person_->records(); }
    /// As the window does when something may have changed.
    void look() {
        static_cast<void>(form().overview().refresh());
        form().overview().places(List_->order()).finish();
        Table_->refresh();
        mark();
    }
    void mark() {
        const auto place = form().place();
        Table_->mark(place && List_->order() == form().order() ? std::optional(*place - 1) : std::nullopt);
    }
    void scrollTo(int row) { Table_->verticalScrollBar()->setValue(row); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&*Table_, &event);
    }
    void sort(const Order& order) {
        List_->setOrder(order);
        look();
    }
    void addNamed(const std::u16string& name) {
        ASSERT_TRUE(form().startNew());
        Person_->put(u"txtName", name);
        ASSERT_TRUE(form().save()) << Person_->heard;
        look();
    }

    /// Every row that is seen is the record of the number in front of it.
    void expectRows(const char* after) {
        ASSERT_EQ(List_->count(), form().store().count()) << after;
        const int rows = List_->rowCount();
        ASSERT_GT(rows, 5) << after;
        for (int row = 0; row < rows; ++row) {
            const std::int64_t place = List_->top() + row;
            const Record wanted = form().store().skip(nullptr, place, List_->order()).value();
            ASSERT_EQ(List_->headerData(row, Qt::Vertical).toLongLong(), place + 1) << after;
            ASSERT_EQ(List_->index(row, 0).data().toString(), toQString(textOf(wanted.cells[1]))) << after;
        }
    }
    /// Of the row that is marked, which is seen whole; from 1, nothing where none is.
    std::optional<std::int64_t> marked() {
        const QModelIndexList rows = Table_->selectionModel()->selectedRows();
        if (rows.size() != 1) return std::nullopt;
        EXPECT_TRUE(Table_->viewport()->rect().contains(Table_->visualRect(rows.front())));
        return List_->top() + rows.front().row() + 1;
    }

    static QString toQString(const std::u16string& text) { return qt::toQString(text); }

    std::unique_ptr<Store> Store_;
    std::optional<Person> Person_;
    std::optional<qt::RecordList> List_;
    std::optional<qt::RecordTable> Table_;
};

TEST_F(ListTest, EachRowIsItsRecordWhateverHappens) {
    constexpr Order Down{1, true};
    constexpr std::optional<std::int64_t> None;
    const std::int64_t page = Table_->verticalScrollBar()->pageStep();
    const struct {
        const char* what;
        std::function<void()> action;
        std::optional<std::int64_t> marked;  ///< from 1
    } steps[] = {
        {"opening", [] {}, 1},
        {"scrolling away", [&] { scrollTo(1500); }, None},
        {"scrolling by one", [&] { scrollTo(1501); }, None},
        {"to the end", [&] { scrollTo(Many); }, None},
        {"a key, which goes on from the record", [&] { press(Qt::Key_Down); }, 2},
        {"a page", [&] { press(Qt::Key_PageDown); }, 2 + page},
        {"the last", [&] { press(Qt::Key_End, Qt::ControlModifier); }, Many},
        {"one before", [&] { press(Qt::Key_Up); }, Many - 1},
        {"another record in the form", [&] { form().toPlace(800), mark(); }, 800},
        {"a record that is deleted", [&] { form().remove(), look(); }, 800},
        {"a new one", [&] { addNamed(u"name 5"); }, Many},
        {"another order than the form's", [&] { sort(Down); }, None},
        {"one that comes in front of all", [&] { scrollTo(0), addNamed(u"zoo"); }, None},
        {"that order in the form", [&] { form().setOrder(Down), mark(); }, 1},
        {"far down in it", [&] { form().toPlace(2'000), mark(); }, 2'000},
        {"somebody else, who deletes many",
         [&] {
             execute("DELETE FROM member WHERE id > 100 AND id < 2900");
             if (!form().toFirst()) return;
             look();
         },
         1},
    };
    for (const auto& step : steps) {
        step.action();
        expectRows(step.what);
        EXPECT_EQ(marked(), step.marked) << step.what;
    }
}

}  // namespace
}  // namespace kel::test
