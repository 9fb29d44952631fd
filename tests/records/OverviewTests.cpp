#include <sys/resource.h>
#include <csignal>
#include <random>

#include "records/Finder.h"
#include "tests/records/OnDatabase.h"

/// What is known of many records at once is what counting and reading them one by one gives.
namespace kel::test {
namespace {

constexpr int Many = 5'000;

class Crowd : public OnDatabase {
protected:
    Crowd() {
        execute("CREATE TABLE line (a INTEGER NOT NULL, b TEXT NOT NULL, n INTEGER, t TEXT, PRIMARY KEY (a, b))");
        Store_ = open();
        Records_ = Store_->open(Store_->table(u"line").value());
        Records_->begin();
        for (int i = 0; i < Many; ++i) static_cast<void>(Records_->insert(values()));
        Records_->commit();
        Overview_.emplace(*Records_, textsOfColumns);
        Overview_->wantTexts();
    }

    int pick(int most) { return std::uniform_int_distribution<int>(0, most)(Random_); }
    std::u16string word(int most) {
        constexpr std::u16string_view Letters = u"aAbBeE\u00E9\u00C9\u00DFsxX1";
        std::u16string text;
        for (int length = pick(most) + 1; length > 0; --length)
            text += Letters[static_cast<std::size_t>(pick(static_cast<int>(Letters.size()) - 1))];
        return text;
    }
    std::vector<records::Change> values() {
        return {{0, std::int64_t{pick(900)}},
                {1, widen(std::to_string(++Last_))},
                {2, pick(3) == 0 ? Cell(Null{}) : Cell(std::int64_t{pick(40)})},
                {3, pick(3) == 0 ? Cell(Null{}) : Cell(word(12))}};
    }
    Record any() { return Records_->skip(nullptr, pick(static_cast<int>(Records_->count()) - 1), {}).value(); }

    void insert() {
        const Record record = Records_->insert(values());
        Overview_->changed(nullptr, &record);
    }
    void update() {
        const Record before = any();
        Record after = before;
        const std::vector<records::Change> all = values();
        // Now and then its key.
        ASSERT_EQ(
            Records_->update(after, pick(3) == 0 ? all : std::vector<records::Change>(all.begin() + 2, all.end())),
            Outcome::Done);
        Overview_->changed(&before, &after);
    }
    void remove() {
        const Record record = any();
        ASSERT_EQ(Records_->remove(record), Outcome::Done);
        Overview_->changed(&record, nullptr);
    }

    void expectPlaces() {
        for (const Order& order : {Order{}, Order{2, true}}) {
            Places& places = Overview_->places(order);
            places.finish();
            ASSERT_EQ(places.count(), Records_->count());
            for (int i = 0; i < 6; ++i) {
                const Record record = any();
                const std::int64_t place = Records_->countBetween(nullptr, &record, order);
                ASSERT_EQ(places.placeOf(record), place);
                ASSERT_EQ(places.rows(place, 1), std::vector<Record>{record});
            }
            const std::vector<Record> last = Records_->walk(nullptr, Way::Backward, 3, order);
            ASSERT_EQ(places.rows(*places.count() - 3, 7), (std::vector<Record>{last[2], last[1], last[0]}));
        }
    }

    void expectHits() {
        while (Overview_->lookOn()) {
        }
        ASSERT_TRUE(Overview_->texts()->isWhole());
        const auto goesOn = [] { return true; };
        for (int i = 0; i < (isServer() ? 4 : 12); ++i) {
            const std::u16string sought = word(3);
            const Order order = i % 3 == 0 ? Order{2, i % 2 == 0} : Order{};
            const Way way = i % 2 == 0 ? Way::Forward : Way::Backward;
            const Record from = any();
            const Finder slow(*Records_, sought, order);
            const Finder quick(*Records_, sought, order, Overview_->texts());
            const Finder::Found found = quick.nearestAround(i % 4 == 0 ? nullptr : &from, way, goesOn);
            ASSERT_EQ(found.hits, slow.count(goesOn)) << toUtf8(sought);
            ASSERT_EQ(found.record, slow.nearestAround(i % 4 == 0 ? nullptr : &from, way, goesOn).record)
                << toUtf8(sought) << " from " << toUtf8(textOf(from.cells[1])) << " in order " << i % 3;
        }
    }

    std::mt19937 Random_{5};
    int Last_ = 10'000;
    std::unique_ptr<Store> Store_;
    std::unique_ptr<RecordStore> Records_;
    std::optional<Overview> Overview_;
};

TEST_F(Crowd, OverviewIsTrueWhateverIsChanged) {
    expectPlaces();
    expectHits();
    // A server is asked for thousands of records, by two processes that wait for each other.
    for (int round = 0; round < (isServer() ? 2 : 4); ++round) {
        for (int i = 0; i < 12; ++i) {
            switch (pick(2)) {
                case 0: insert(); break;
                case 1: update(); break;
                default: remove(); break;
            }
        }
        if (!isServer()) {
            EXPECT_TRUE(Overview_->places({}).isWhole()) << "one's own changes are kept up with";
        }
        expectPlaces();
        expectHits();
    }
    // While the texts are still being written, too.
    Overview_.emplace(*Records_, textsOfColumns);
    Overview_->wantTexts();
    Overview_->places({}).finish();
    Overview_->lookOn();
    update();
    remove();
    insert();
    expectHits();
    // What was counted in the midst of something that is undone.
    Records_->begin();
    for (int i = 0; i < 3; ++i) Records_->add(values());
    Overview_->refresh();
    expectPlaces();
    Records_->rollBack();
    EXPECT_TRUE(Overview_->refresh());
    expectPlaces();
    // By another program, and by this one past the form.
    execute("DELETE FROM line WHERE a < 100");
    if (isServer()) return;  // a server counts the changes of all with some delay
    EXPECT_TRUE(Overview_->refresh());
    expectPlaces();
    static_cast<void>(Records_->insert(values()));
    EXPECT_TRUE(Overview_->refresh());
    expectPlaces();
    expectHits();
}

/// Where there is no room for the texts, records are looked through; once there is, each is written down once.
TEST_F(Crowd, TextsThatHaveNoRoomAreWrittenAnew) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{40'000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    int refused = 0;
    for (int i = 0; i < 50; ++i) try {
            Overview_->lookOn();
        } catch (const StoreError& error) {
            EXPECT_EQ(error.kind(), StoreError::Kind::Full);
            ++refused;
        }
    EXPECT_FALSE(Overview_->texts()->isWhole());
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_GT(refused, 0);
    Overview_->wantTexts();
    expectHits();
}

TEST_F(Crowd, IndexMakesAnOrderQuick) {
    const Order order{2, false};
    EXPECT_TRUE(Records_->isQuick({}));
    EXPECT_FALSE(Records_->isQuick(order));
    Records_->makeQuick(order);
    EXPECT_TRUE(Records_->isQuick(order));
    EXPECT_TRUE(Records_->isQuick({2, true}));
    EXPECT_FALSE(Records_->isQuick({3, false}));
    expectPlaces();
}

/// What people type for what is written, and the other way round.
TEST(SearchKeyTests, IsTheSameForWhatPeopleTakeForTheSame) {
    const struct {
        std::u16string_view written;
        std::u16string_view typed;
    } rows[] = {
        {u"Stra\u00DFe", u"STRASSE"},
        {u"Cafe\u0301", u"caf\u00E9"},
        {u"\u0130stanbul", u"istanbul"},
        {u"D\u0131yarbak\u0131r", u"DIYARBAKIR"},
        {u"o\uFB03ce \uFB01n", u"OFFICE FIN"},
        {u"\uFF26\uFF35\uFF2C\uFF2C\uFF11", u"full1"},
        {u"\u03A3\u038A\u03A3\u03A5\u03A6\u039F\u03A3", u"\u03C3\u03B9\u03C3\u03C5\u03C6\u03BF\u03C2"},
    };
    for (const auto& row : rows) EXPECT_EQ(searchKey(row.written), searchKey(row.typed)) << toUtf8(row.written);
}

}  // namespace
}  // namespace kel::test
