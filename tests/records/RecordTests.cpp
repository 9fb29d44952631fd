#include <algorithm>
#include <random>
#include <set>
#include <sstream>

#include "forms/file/FileWriter.h"
#include "forms/file/FormStore.h"
#include "forms/play/Script.h"
#include "records/Commands.h"
#include "records/exchange/ListFiles.h"
#include "records/Finder.h"
#include "records/make/FormOfTable.h"
#include "tests/records/OnDatabase.h"

namespace kel::test {
namespace {

// ---- In a row

/// Records in the order that the rules give, by sorting them in memory.
TEST_F(OnDatabase, WalksInEveryOrder) {
    execute("CREATE TABLE line (a INTEGER NOT NULL, b TEXT NOT NULL, n INTEGER, t TEXT, PRIMARY KEY (a, b))");
    execute("CREATE TABLE parent (b INTEGER PRIMARY KEY, t TEXT)");
    execute("INSERT INTO parent VALUES (0, 'd'), (1, NULL), (2, 'b'), (3, 'b'), (5, 'a'), (6, NULL)");
    // One that is pointed to is not there; a server does not allow it.
    if (isServer()) execute("INSERT INTO parent VALUES (4, 'a')");
    std::mt19937 random(7);
    const auto pick = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const auto store = open();
    const Table table = store->table(u"LINE").value();
    ASSERT_EQ(table.key, (std::vector<std::size_t>{0, 1}));
    const auto records = store->open(table);
    std::vector<Record> model;
    for (int i = 0; i < 60; ++i) {
        const Cell number = pick(3) == 0 ? Cell(Null{}) : Cell(std::int64_t{pick(4)});
        const Cell text = pick(3) == 0 ? Cell(Null{}) : Cell(std::u16string(1, static_cast<char16_t>(u'p' + pick(3))));
        model.push_back({{std::int64_t{i / 7}, widen(std::to_string(10 + i)), number, text}});
        const Record stored =
            records->insert({{0, model.back().cells[0]}, {1, model.back().cells[1]}, {2, number}, {3, text}});
        EXPECT_EQ(stored, model.back());
    }
    enum class By : std::uint8_t { Value, Text, TextByIndex };
    struct Row {
        std::optional<std::size_t> column;
        By by = By::Value;
    };
    const std::u16string texts[] = {u"2d0", u"11", u"2b2", u"2b3", isServer() ? u"2a4" : u"04"};
    for (const Row row : {Row{}, Row{2}, Row{3}, Row{1}, Row{2, By::Text}, Row{2, By::TextByIndex}}) {
        const auto column = row.column;
        if (row.by == By::Text) records->orderByText(2, store->table(u"parent").value());
        if (row.by == By::TextByIndex) records->makeQuick({2, false});
        for (const bool descending : {false, true}) {
            const Order order{column, descending};
            std::vector<Record> wanted = model;
            std::sort(wanted.begin(), wanted.end(), [&](const Record& left, const Record& right) {
                // Nothing comes first; all values are one digit or letter, or as long as each other.
                const auto places = [&](const Record& record) {
                    std::u16string text;
                    if (column) text = isNull(record.cells[*column]) ? u"0" : u"1" + textOf(record.cells[*column]);
                    if (row.by != By::Value && text != u"0")
                        text = texts[static_cast<std::size_t>(std::get<std::int64_t>(record.cells[2]))];
                    return text + u' ' + textOf(record.cells[0]) + textOf(record.cells[1]);
                };
                return descending ? places(right) < places(left) : places(left) < places(right);
            });
            std::vector<Record> forward;
            for (auto some = records->walk(nullptr, Way::Forward, 7, order); !some.empty();
                 some = records->walk(&forward.back(), Way::Forward, 7, order))
                forward.insert(forward.end(), some.begin(), some.end());
            EXPECT_EQ(forward, wanted);
            std::vector<Record> backward;
            for (auto some = records->walk(nullptr, Way::Backward, 7, order); !some.empty();
                 some = records->walk(&backward.back(), Way::Backward, 7, order))
                backward.insert(backward.end(), some.begin(), some.end());
            std::reverse(backward.begin(), backward.end());
            EXPECT_EQ(backward, wanted);
            for (std::size_t from = 0; from < wanted.size(); from += 13) {
                EXPECT_EQ(records->countBetween(nullptr, &wanted[from], order), static_cast<std::int64_t>(from));
                EXPECT_EQ(records->countBetween(&wanted[from], nullptr, order),
                          static_cast<std::int64_t>(wanted.size() - from) - 1);
                EXPECT_EQ(records->skip(nullptr, static_cast<std::int64_t>(from), order), wanted[from]);
                for (std::size_t to = from + 1; to < wanted.size(); to += 11) {
                    const auto steps = static_cast<std::int64_t>(to - from);
                    EXPECT_EQ(records->skip(&wanted[from], steps, order), wanted[to]);
                    EXPECT_EQ(records->countBetween(&wanted[from], &wanted[to], order), steps - 1);
                    EXPECT_TRUE(records->isBehind(keyOf(table, wanted[to]), wanted[from], order));
                    EXPECT_FALSE(records->isBehind(keyOf(table, wanted[from]), wanted[to], order));
                }
            }
        }
    }
}

// ---- Keys

/// A key that a field uses itself would do two things at once.
TEST_F(OnDatabase, NoFieldUsesTheKeyOfACommand) {
    const auto store = open();
    Person person(formOf({{"txtName", "KelText", ""},
                          {"numFee", "KelNumber", UpTo99},
                          {"datJoined", "KelDate", ""},
                          {"timMeets", "KelTime", ""},
                          {"cboBranch", "KelCombo", "      List = \"North,South\"\r\n"}}),
                  *store, u"member");
    person.put(u"txtName", std::u16string(u"Anna Bell"));
    person.put(u"numFee", 12.0);
    person.put(u"datJoined", Date{41348});
    person.put(u"timMeets", Date{0.5});
    person.put(u"cboBranch", std::u16string(u"North"));
    std::set<std::u16string> taken;
    for (const FieldKeyRow& row : fieldKeyRows())
        for (std::u16string_view rest = row.key; !rest.empty();) {
            const std::size_t end = std::min(rest.find(u", "), rest.size());
            taken.emplace(rest.substr(0, end));
            rest.remove_prefix(std::min(end + 2, rest.size()));
        }
    for (const CommandRow& row : commandRows()) {
        EXPECT_TRUE(taken.emplace(row.key).second) << toUtf8(row.key) << " is used twice, or not there";
        std::string key = toUtf8(row.key);
        if (const auto page = key.find("Pg"); page != std::string::npos) key.replace(page, 2, "Page");
        KeyStroke stroke;
        try {
            stroke = readScript("keys", "key " + key + "\n").commands.front().stroke;
        } catch (const std::exception&) {
            continue;  // no field knows such a key at all
        }
        for (const char16_t* const field : {u"txtName", u"numFee", u"datJoined", u"timMeets", u"cboBranch"}) {
            const auto look = [&] {
                const TextEntry& entry = person.entry(field);
                return std::pair(entry.text(), entry.selStart());
            };
            person.click(field);
            const auto before = look();
            person.press(stroke);
            EXPECT_EQ(look(), before) << key << " in " << toUtf8(field);
        }
    }
}

/// The letters of a form are those that its keeper knows by heart.
TEST(Commands, MenusGiveWay) {
    const struct {
        std::string captions;  ///< of a field and of a label
        std::vector<std::u16string> menus;
    } rows[] = {
        {"N&ame|&Fee", {u"&Go", u"&Help", u"&Record", u"&View"}},
        {"&Rate|&Go on", {u"G&o", u"&Help", u"Re&cord", u"&View"}},
        {"&view|&hours", {u"&Go", u"He&lp", u"&Record", u"Vie&w"}},
    };
    for (const auto& row : rows) {
        const std::size_t middle = row.captions.find('|');
        const FormFile form = FormFile::parse(
            "VERSION 5.00\r\nBegin VB.Form frmA\r\n   Caption = \"A &Log\"\r\n   Begin KelControls8.KelText txtA\r\n"
            "      Caption = \"" +
                row.captions.substr(0, middle) + "\"\r\n   End\r\n   Begin VB.Label lblA\r\n      Caption = \"" +
                row.captions.substr(middle + 1) + "\"\r\n   End\r\nEnd\r\n",
            "a.frm");
        std::vector<std::u16string> menus;
        for (const auto& [name, caption] : menuCaptions(form)) menus.push_back(caption);
        EXPECT_EQ(menus, row.menus) << row.captions;
    }
}

// ---- Two people

TEST_F(OnDatabase, SecondToSaveIsAsked) {
    const auto store = open();
    const auto other = open();
    Person first(MemberForm, *store, u"member");
    first.put(u"txtName", std::u16string(u"Anna"));
    ASSERT_TRUE(first.records().save());
    Person second(MemberForm, *other, u"member");

    first.put(u"txtName", std::u16string(u"Anne"));
    first.put(u"numFee", 5.0);
    ASSERT_TRUE(first.records().save());
    second.put(u"txtName", std::u16string(u"Hanna"));
    EXPECT_FALSE(second.records().save()) << "goes back to the record";
    EXPECT_EQ(second.heard, "txtName: Anna / Hanna / Anne\nnumFee: 0 / 0 / 5\n");
    EXPECT_EQ(second.text(u"txtName"), u"Hanna");
    EXPECT_TRUE(second.records().isChanged());

    second.choices = {Choice::Mine, Choice::Theirs};
    EXPECT_TRUE(second.records().save());
    EXPECT_EQ(value("SELECT name || ' ' || CAST(CAST(fee AS INTEGER) AS TEXT) FROM member"), "Hanna 5");
    EXPECT_EQ(second.text(u"numFee"), u"5.00");

    first.put(u"numFee", 6.0);
    first.choices = {Choice::Theirs};
    EXPECT_TRUE(first.records().save());
    EXPECT_EQ(value("SELECT name || ' ' || CAST(CAST(fee AS INTEGER) AS TEXT) FROM member"), "Hanna 6");

    EXPECT_TRUE(first.records().remove());
    second.put(u"txtName", std::u16string(u"Johanna"));
    EXPECT_FALSE(second.records().save());
    EXPECT_EQ(value("SELECT count(*) FROM member"), "0");
    second.keeps = true;
    EXPECT_TRUE(second.records().save());
    EXPECT_EQ(value("SELECT name FROM member"), "Johanna");
}

/// What goes along into a new record is what that one begins with, and goes back to.
TEST_F(OnDatabase, NewRecordIsUndoneToWhatWasCarried) {
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    person.put(u"txtName", std::u16string(u"Anna"));
    person.put(u"numFee", 5.0);
    person.records().setCarried(person.records().bindings()[0], true);
    ASSERT_TRUE(person.records().saveAndStartNew()) << person.heard;
    EXPECT_EQ(person.text(u"txtName"), u"Anna");
    person.put(u"txtName", std::u16string(u"Berta"));
    person.put(u"numFee", 6.0);
    person.records().undo();
    EXPECT_EQ(person.text(u"txtName"), u"Anna");
    EXPECT_EQ(person.text(u"numFee"), u"0.00");
    EXPECT_FALSE(person.records().isChanged());
}

/// What another program changes in columns that the form does not show is no question, and is not lost.
TEST_F(OnDatabase, ForeignColumnsAreLeftAlone) {
    execute(
        "CREATE TABLE member (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL, fee NUMERIC(12,4), joined TIMESTAMP, "
        "note TEXT)");
    execute("INSERT INTO member VALUES (4, 'Anna', 1.2045, '2013-03-15 10:15:30.125', 'kept')");
    const auto store = open();
    Person person(MemberForm, *store, u"Member");
    EXPECT_EQ(person.text(u"numFee"), u"1.20");
    EXPECT_FALSE(person.records().isChanged());
    // The field shows 1.2045 while it is edited.
    person.click(u"numFee");
    EXPECT_NE(person.text(u"numFee"), u"1.20");
    EXPECT_FALSE(person.records().looksChanged());
    person.press({u'5', u'5', NoModifier});
    EXPECT_TRUE(person.records().looksChanged());
    person.records().undo();
    execute("UPDATE member SET note = 'changed'");
    person.put(u"txtName", std::u16string(u"Anne"));
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(
        value("SELECT name || ' ' || CAST(fee AS TEXT) || ' ' || CAST(joined AS TEXT) || ' ' || note FROM member"),
        "Anne 1.2045 2013-03-15 10:15:30.125 changed");
    person.put(u"datJoined", Date{41349});
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(value("SELECT CAST(joined AS TEXT) FROM member"), "2013-03-16 10:15:30.125") << "the time of day stays";
    EXPECT_EQ(person.heard, "");
}

/// What one of the two fields of a moment says goes together with the other one's, and with what neither shows.
TEST_F(OnDatabase, DayAndTimeOfAMomentGoTogether) {
    execute(isServer() ? "CREATE TABLE member (id INTEGER PRIMARY KEY, at TIMESTAMP WITH TIME ZONE)"
                       : "CREATE TABLE member (id INTEGER PRIMARY KEY, at TIMESTAMP)");
    const char* const zone = "&options=-c%20TimeZone%3DEurope/Berlin";
    const auto store = qt::openStore(databaseAddress() + (isServer() ? zone : ""), {});
    const char* const stored =
        isServer() ? "SELECT coalesce(CAST(at AT TIME ZONE 'Europe/Berlin' AS TEXT), 'none') FROM member"
                   : "SELECT coalesce(at, 'none') FROM member";
    const std::string at = "      DataField = \"at\"\r\n      Value = \"\"\r\n";
    const std::array<std::string, 3> day{"datDay", "KelDate", at};
    const std::array<std::string, 3> time{"timMeets", "KelTime", at};
    const std::optional<Variant> kept;
    const Variant none = Null{};
    const Variant january = Date{41289};
    const Variant eleven = Date{11.0 / 24};
    const char* const missing = "datDay: please fill in the day.\n";
    const std::string summer = "'2013-07-15 10:15:30.125+02'";
    const struct {
        std::string before;
        std::optional<Variant> day;
        std::optional<Variant> time;
        const char* after;
        const char* said = "";
    } rows[] = {
        {"NULL", kept, eleven, "none", missing},
        {"NULL", january, eleven, "2013-01-15 11:00:00"},
        {"NULL", january, kept, "2013-01-15 00:00:00"},
        {summer, january, kept, "2013-01-15 10:15:30.125"},  // which is at the same time of day in winter
        {summer, kept, eleven, "2013-07-15 11:00:00"},
        {summer, kept, none, "2013-07-15 00:00:00"},
        {summer, january, eleven, "2013-01-15 11:00:00"},
        {summer, none, none, "none"},
        {summer, none, eleven, nullptr, missing},
        {summer, none, kept, nullptr, missing},
        {"'2013-07-15 00:00:00+02'", none, kept, "none"},
    };
    for (const auto& form : {formOf({day, time}), formOf({time, day})}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.before + " to " + (row.after == nullptr ? "the same" : row.after));
            execute("DELETE FROM member");
            execute(("INSERT INTO member VALUES (1, " + row.before + ")").c_str());
            const std::string before = value(stored);
            Person person(form, *store, u"member");
            if (row.day) person.put(u"datDay", *row.day);
            if (row.time) person.put(u"timMeets", *row.time);
            EXPECT_EQ(person.records().save(), *row.said == '\0');
            EXPECT_EQ(person.heard, row.said);
            if (*row.said != '\0') EXPECT_EQ(person.focused(), u"datDay");
            EXPECT_EQ(value(stored), row.after == nullptr ? before : row.after);
        }
    }
    execute("DELETE FROM member");
    Person person(formOf({time}), *store, u"member");
    person.put(u"timMeets", eleven);
    EXPECT_FALSE(person.records().save());
    EXPECT_EQ(person.heard, "timMeets: a time needs a day, and no field of the form shows that.\n");
}

// ---- Lists of other tables

const std::string ListForm =
    formOf({{"txtName", "KelText", ""}, {"cboP", "KelCombo", "      DataField = \"p:tag\"\r\n"}});

TEST_F(OnDatabase, KeysAreShownAsTheRecordsTheyPointTo) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY, code VARCHAR(9), name VARCHAR(20) NOT NULL)");
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, p INTEGER REFERENCES parent (id))");
    execute("INSERT INTO parent VALUES (1, 'x', 'Smith'), (2, 'x', 'adams'), (3, 'x', 'Smith'), (4, 'x', 'Smith (3)')");
    execute("INSERT INTO parent VALUES (5, 'x', 'B, \"C\"'), (6, NULL, ' ')");
    execute("INSERT INTO member VALUES (1, 'Anna', 3)");
    const auto store = open();
    Person person(ListForm, *store, u"member");
    const auto list = [&] { return toUtf8(std::get<std::u16string>(person.get(u"cboP", u"List"))); };
    EXPECT_EQ(list(), "(6),adams,\"B, \"\"C\"\"\",Smith (1),Smith (3) (3),Smith (3)");
    EXPECT_EQ(person.text(u"cboP"), u"Smith (3) (3)") << "two of one name, and one of the name that tells them apart";
    struct {
        std::u16string_view picked;
        const char* stored;
    } const rows[] = {{u"Smith (1)", "1"}, {u"Smith (3)", "4"}, {u"B, \"C\"", "5"}, {u"(6)", "6"}, {u"", ""}};
    for (const auto& row : rows) {
        person.put(u"cboP", std::u16string(row.picked));
        EXPECT_TRUE(person.records().save()) << person.heard;
        EXPECT_EQ(value("SELECT coalesce(CAST(p AS TEXT), '') FROM member"), row.stored);
    }
    person.put(u"cboP", std::u16string(u"adams"));
    EXPECT_TRUE(person.records().save());

    // Meanwhile the other table changes.
    execute("UPDATE parent SET name = 'Adamson' WHERE id = 2");
    execute("DELETE FROM parent WHERE id = 5");
    person.drop(u"cboP");
    EXPECT_EQ(list(), "(6),Adamson,Smith (1),Smith (3) (3),Smith (3)");
    EXPECT_EQ(person.text(u"cboP"), u"Adamson");
    EXPECT_FALSE(person.records().isChanged()) << "it is the same record";
    person.put(u"cboP", std::u16string(u"Smith (1)"));
    EXPECT_TRUE(person.records().isChanged());
    execute("UPDATE parent SET name = 'Smythe' WHERE id = 1");
    person.drop(u"cboP");
    EXPECT_EQ(person.text(u"cboP"), u"Smythe");
    EXPECT_TRUE(person.records().isChanged()) << "what was picked is still another one";
    EXPECT_TRUE(person.records().save());
    EXPECT_EQ(value("SELECT p FROM member"), "1");
}

/// In a list of records each may be meant by its key or by its text.
TEST_F(OnDatabase, ListsMayHaveKeysOrTexts) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL)");
    execute("CREATE TABLE member (id INTEGER DEFAULT 9 PRIMARY KEY, name TEXT, p INTEGER REFERENCES parent (id))");
    execute("INSERT INTO parent VALUES (1, 'Smith'), (2, 'adams')");
    const auto store = open();
    const auto records = store->open(store->table(u"member").value());
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(ListForm, "member.frm"), *records, store.get());
    const struct {
        std::string line;
        const char* stored;
    } rows[] = {{"Ann,2", "2"}, {"Bea,Smith", "1"}, {"Cid,", "none"}, {"Dan,3", "no row"}};
    for (const auto& row : rows) {
        execute("DELETE FROM member");
        std::istringstream stream(row.line + "\n");
        importer.run(
            stream, {.separator = 0, .hasHeader = false}, false, [](std::string_view) {},
            [](std::int64_t) { return true; });
        EXPECT_EQ(value("SELECT coalesce(CAST(p AS TEXT), 'none') FROM member"), row.stored);
    }
}

/// A table of any length gives a list that a person can open, and every record that it holds is shown and kept.
TEST_F(OnDatabase, KeysBeyondTheListAreKept) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL)");
    execute("CREATE TABLE member (id INTEGER DEFAULT 7 PRIMARY KEY, name TEXT, p INTEGER REFERENCES parent (id))");
    execute(
        "INSERT INTO parent WITH RECURSIVE n(i) AS (SELECT 10001 UNION ALL SELECT i + 1 FROM n WHERE i < 43000) SELECT "
        "i, 'no ' || i FROM n");
    execute("INSERT INTO member VALUES (1, 'Anna', 42999), (2, 'Bert', 10001)");
    const auto store = open();
    Person person(ListForm, *store, u"member");
    EXPECT_EQ(person.text(u"cboP"), u"no 42999 (42999)");
    person.put(u"txtName", std::u16string(u"Anne"));
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_TRUE(person.records().duplicate() && person.records().save()) << person.heard;
    EXPECT_EQ(value("SELECT count(*) FROM member WHERE name = 'Anne' AND p = 42999"), "2");
    EXPECT_TRUE(person.records().toPlace(2));
    EXPECT_EQ(person.text(u"cboP"), u"no 10001");

    // One that is not in the list is found by how it begins, and then the list is of those around it.
    execute("INSERT INTO parent VALUES (50000, '\u00D6st 7%_a')");
    struct {
        std::u16string_view typed;
        std::u16string_view shown;
        const char* stored;
        std::u16string_view listed;  ///< once the list has been open
    } const rows[] = {
        {u"NO 4277", u"no 42770 (42770)", "42770", u"no 42770"},
        {u"no 42999", u"no 42999", "42999", u"no 42999"},
        {u"no 10001", u"no 10001 (10001)", "10001", u"no 10001"},
        {u"\u00F6st 7%_", u"\u00D6st 7%_a (50000)", "50000", u"\u00D6st 7%_a"},
    };
    for (const auto& row : rows) {
        person.type(u"cboP", row.typed);
        EXPECT_EQ(person.text(u"cboP"), row.shown);
        EXPECT_TRUE(person.records().save()) << person.heard;
        EXPECT_EQ(value("SELECT p FROM member WHERE name = 'Bert'"), row.stored);
        person.drop(u"cboP");
        EXPECT_EQ(person.text(u"cboP"), row.listed);
        EXPECT_FALSE(person.records().isChanged());
    }
    person.type(u"cboP", u"zz");
    EXPECT_EQ(person.text(u"cboP"), rows[3].listed) << "what leads to no record is not taken";
    execute("UPDATE member SET p = 10001 WHERE name = 'Bert'");
    Person other(ListForm, *store, u"member");
    // What was written down of a record while it was in the list is there when the list is another part of the table.
    Overview& overview = other.records().overview();
    overview.wantTexts();
    while (overview.lookOn()) {
    }
    other.drop(u"cboP");
    EXPECT_EQ(other.text(u"cboP"), u"no 42999");
    const auto hit = Finder(other.records().store(), u"no 10001", {}, overview.texts(), [&](const Record& record) {
                         return other.records().textsOf(record);
                     }).nearestAround(nullptr, Way::Forward, [] { return true; });
    EXPECT_EQ(hit.hits, 1);
    EXPECT_TRUE(hit.record && hit.record->cells[1] == Cell(std::u16string(u"Bert")));
}

// ---- Forms of tables

/// What of a made form a person would check, a line a field.
std::string fieldsOf(const FormFile& file) {
    static constexpr std::u16string_view Told[] = {u"DataField", u"Caption",   u"Decimals",  u"Format",
                                                   u"Locked",    u"Mandatory", u"MaxLength", u"MaxValue",
                                                   u"MultiLine", u"Text",      u"Value"};
    std::string lines;
    for (FormBlockId id = 1; id < file.blocks().size(); ++id) {
        lines += toUtf8(file.block(id).name);
        for (const std::u16string_view name : Told)
            if (const auto property = file.find(id, name))
                lines += " " + toUtf8(name) + "=" + toUtf8(writeFormValue(property->value));
        lines += "\n";
    }
    return lines;
}

TEST_F(OnDatabase, FormIsMadeOfATable) {
    execute("CREATE TABLE parent (code VARCHAR(4) PRIMARY KEY, name VARCHAR(20))");
    execute(
        "CREATE TABLE odd (id BIGINT PRIMARY KEY, \"orderDate\" DATE DEFAULT CURRENT_DATE NOT NULL, parent_code "
        "VARCHAR(4) NOT NULL REFERENCES parent (code), state VARCHAR(9) DEFAULT 'it''s' NOT NULL, \"VAT % & rest\" "
        "NUMERIC(5,2) NOT NULL, amount NUMERIC(8,3) DEFAULT 1.5 NOT NULL, size SMALLINT, made_at TIMESTAMP, begins "
        "TIME "
        "DEFAULT '09:30:00', is_new BOOLEAN DEFAULT TRUE NOT NULL, long VARCHAR(500), remarks TEXT, plain TEXT, seen "
        "TEXT, sel BYTEA, record_version INTEGER)");
    execute("INSERT INTO parent VALUES ('A', NULL)");
    execute("INSERT INTO odd (id, parent_code, \"VAT % & rest\", seen) VALUES (1, 'A', 1, 'one\ntwo')");
    const auto store = open();
    const Table table = store->table(u"odd").value();
    const MadeForm made = formFor(*store, table, *findRegion(u"en-US"), "odd.frm");
    EXPECT_EQ(made.leftOut, std::vector<std::u16string>{u"sel"});
    EXPECT_EQ(fieldsOf(made.file), R"(numId Caption="&ID" Decimals=0 Mandatory=-1 MaxValue=999999999999999
datOrderDate Caption="&Order date" Format="mm/dd/yyyy" Mandatory=-1 Value="Now"
cboParent DataField="parent_code:tag" Caption="&Parent" Mandatory=-1
txtState Caption="&State" Mandatory=-1 MaxLength=9 Text="it's"
numVatRest DataField="VAT % & rest" Caption="VAT % && r&est" Decimals=2 Mandatory=-1 MaxValue=999.99
numAmount Caption="&Amount" Decimals=3 Mandatory=0 MaxValue=99999.999 Value=1.5
numSize Caption="Si&ze" Decimals=0 Mandatory=0 MaxValue=32767
datMadeAt Caption="&Made at" Format="mm/dd/yyyy" Mandatory=0 Value=""
timMadeAt Caption="&Time" Format="hh:nn" Mandatory=0 Value=""
timBegins Caption="&Begins" Format="hh:nn" Mandatory=0 Value=.3958333333333333
chkNew DataField="is_new" Caption="&New" Mandatory=0 Value=-1
txtLong Caption="&Long" Mandatory=0 MaxLength=500 MultiLine=-1
txtRemarks Caption="Remar&ks" Mandatory=0 MultiLine=-1
txtPlain Caption="Plain" Mandatory=0
txtSeen Caption="Seen" Mandatory=0 MultiLine=-1
)");
    // Opened, it is a form for that table.
    Person person(made.file.output("odd.frm").form, *store, u"");
    EXPECT_EQ(person.records().table().name, u"odd");
}

/// A default is shown where the field shows it as the database would give it; what else it gives is not asked for.
TEST_F(OnDatabase, DefaultsAreShownOrLeftToTheDatabase) {
    const struct {
        const char* type;
        const char* inFile;  ///< nullptr: a file has no such thing
        const char* onServer;
        const char* fields;
    } rows[] = {
        {"TEXT", "CURRENT_TIMESTAMP", "CURRENT_TIMESTAMP", "txtX Caption=\"&X\" Mandatory=0"},
        {"TEXT", nullptr, "CURRENT_USER", "txtX Caption=\"&X\" Mandatory=0"},
        {"TEXT", "'CURRENT_STATE'", "'CURRENT_STATE'", "txtX Caption=\"&X\" Mandatory=-1 Text=\"CURRENT_STATE\""},
        {"DATE", "CURRENT_DATE", "CURRENT_DATE",
         "datX Caption=\"&X\" Format=\"dd/mm/yyyy\" Mandatory=-1 Value=\"Now\""},
        {"DATE", "(date('now', 'localtime'))", "now()",
         "datX Caption=\"&X\" Format=\"dd/mm/yyyy\" Mandatory=-1 Value=\"Now\""},
        {"DATE", "(date('now', '+14 days'))", "CURRENT_DATE + 14",
         "datX Caption=\"&X\" Format=\"dd/mm/yyyy\" Mandatory=0 Value=\"\""},
        {"TIME", "CURRENT_TIME", "LOCALTIME", "timX Caption=\"&X\" Format=\"hh:nn\" Mandatory=0 Value=\"\""},
        {"TIMESTAMP", "CURRENT_TIMESTAMP", "now()",
         "datX Caption=\"&X\" Format=\"dd/mm/yyyy\" Mandatory=0 Value=\"\"\ntimX Caption=\"&Time\" Format=\"hh:nn\" "
         "Mandatory=0 Value=\"\""},
    };
    for (const auto& row : rows) {
        const char* const expression = isServer() ? row.onServer : row.inFile;
        if (expression == nullptr) continue;
        SCOPED_TRACE(std::string(row.type) + " " + expression);
        execute("DROP TABLE IF EXISTS odd");
        execute((std::string("CREATE TABLE odd (id INTEGER DEFAULT 7 PRIMARY KEY, x ") + row.type + " DEFAULT " +
                 expression + " NOT NULL)")
                    .c_str());
        const auto store = open();
        const MadeForm made = formFor(*store, store->table(u"odd").value(), *findRegion(u"en-GB"), "odd.frm");
        const std::string fields = fieldsOf(made.file);
        EXPECT_EQ(fields.substr(fields.find('\n') + 1), std::string(row.fields) + "\n");
        Person person(made.file.output("odd.frm").form, *store, u"");
        EXPECT_TRUE(person.records().save()) << person.heard;
        EXPECT_EQ(value("SELECT count(*) FROM odd WHERE length(CAST(x AS TEXT)) > 0"), "1");
    }
}

// ---- What a database refuses

TEST_F(OnDatabase, ComplaintsNameTheField) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY)");
    execute(
        "CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT UNIQUE, fee DOUBLE PRECISION CHECK (fee < 9), joined "
        "DATE NOT NULL, p INTEGER REFERENCES parent (id))");
    execute("INSERT INTO member VALUES (1, 'Anna', 1, '2013-03-15', NULL)");
    execute("INSERT INTO member VALUES (2, 'Bert', 1, '2013-03-15', NULL)");
    const auto store = open();
    Person person(formOf({{"txtName", "KelText", ""},
                          {"numFee", "KelNumber", UpTo99},
                          {"datJoined", "KelDate", ""},
                          {"numP", "KelNumber", UpTo99 + "      Decimals = 0\r\n"}}),
                  *store, u"member");
    struct {
        std::u16string_view field;
        Variant value;
        const char* said;
        std::u16string_view focused;
    } const rows[] = {
        {u"txtName", std::u16string(u"Bert"), "txtName: another record has the same value already.\n", u"txtName"},
        {u"datJoined", Null{}, "datJoined: a value is needed here.\n", u"datJoined"},
        {u"numFee", 10.0, "A rule of the database is not kept", u"datJoined"},
        {u"numP", 7.0, "Another table does not have what this record refers to", u"datJoined"},
    };
    for (const auto& row : rows) {
        person.heard.clear();
        person.put(row.field, row.value);
        EXPECT_FALSE(person.records().save());
        EXPECT_TRUE(person.heard.starts_with(row.said)) << person.heard;
        EXPECT_EQ(person.focused(), row.focused);
        EXPECT_TRUE(person.records().isChanged());
        person.records().undo();
    }
    EXPECT_EQ(value("SELECT count(*) FROM member WHERE name = 'Anna' AND fee = 1"), "1");
    // One that the form does not show is called by its column's name, whatever is in that.
    execute("CREATE TABLE line (id INTEGER DEFAULT 7 PRIMARY KEY, name TEXT, \"Order no. 2\" TEXT NOT NULL)");
    Person other(formOf({{"txtName", "KelText", ""}}), *store, u"line");
    other.put(u"txtName", std::u16string(u"Anna"));
    EXPECT_FALSE(other.records().save());
    EXPECT_EQ(other.heard, "Order no. 2: a value is needed here.\n");
    std::istringstream list("Anna\n");
    std::string rejects;
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(formOf({{"txtName", "KelText", ""}}), "m.frm"), other.records().store(),
                      nullptr);
    importer.run(
        list, {.separator = ',', .hasHeader = false}, false, [&](std::string_view line) { rejects += line; },
        [](std::int64_t) { return true; });
    EXPECT_NE(rejects.find("1,Order no. 2: a value is needed here.,Anna"), std::string::npos) << rejects;
}

// ---- Lists

TEST_F(OnDatabase, ListsLeaveWholeRecords) {
    const auto store = open();
    execute("CREATE TABLE member (name TEXT PRIMARY KEY, fee DOUBLE PRECISION, joined DATE)");
    const auto records = store->open(store->table(u"member").value());
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(MemberForm, "member.frm"), *records, nullptr);
    std::string list;
    // A list of rejects says what stands in it, and is taken in whatever is said of headings.
    const std::string rejected =
        "line,reason,name,fee\r\n2,txtName: another record has the same value already.,Ann,2\r\n";
    for (int i = 0; i < 100; ++i) list += "Name " + std::to_string(i) + "," + std::to_string(i % 60) + "\n";
    const struct {
        std::string list;
        bool allOrNothing;
        std::int64_t stopAt;  ///< bytes
        std::int64_t stored;
        std::string rejects;
    } rows[] = {
        {list, false, 300, 32, ""},
        {list, true, 300, 0, ""},
        {"Ann,1\nAnn,2\nBea,3\n", false, 0, 2, rejected},
        {"Ann,1\nAnn,2\nBea,3\n", true, 0, 0, rejected},
        {rejected, false, 0, 1, ""},
        {"Ann,1,2013-03-15,5\nBea,3,,,\n", false, 0, 0, "has 4 values, and the form has 3 fields"},
    };
    for (const auto& row : rows) {
        execute("DELETE FROM member");
        std::istringstream stream(row.list);
        std::string rejects;
        try {
            const Importer::Result result = importer.run(
                stream, {.separator = 0, .hasHeader = false}, row.allOrNothing,
                [&](std::string_view line) { rejects += line; },
                [&](std::int64_t bytes) { return row.stopAt == 0 || bytes < row.stopAt; });
            EXPECT_EQ(result.stored, row.stored);
            EXPECT_EQ(result.isStopped, row.stopAt != 0);
            EXPECT_EQ(rejects, row.rejects);
        } catch (const StoreError& error) {
            EXPECT_NE(std::string(error.what()).find(row.rejects), std::string::npos) << error.what();
        }
        EXPECT_EQ(value("SELECT count(*) FROM member"), std::to_string(row.stored));
    }
}

/// Whoever stops an export does not find a list that looks whole.
TEST_F(OnDatabase, StoppedListTakesNoPlace) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, fee DOUBLE PRECISION, joined DATE)");
    execute(
        "INSERT INTO member SELECT i, 'name', 0, NULL FROM (WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 "
        "FROM n WHERE i < 1200) SELECT i FROM n) AS r");
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("kel-list-" + std::to_string(getpid()) + ".csv");
    writeFile(file, "as before");
    Exporter exporter(person.records().bindings(), person.records().store(), {}, defaultRegion());
    const auto write = [&](bool goesOn) {
        return exportFile(exporter, 1200, file, {}, [=](double) { return goesOn; });
    };
    EXPECT_FALSE(write(false));
    EXPECT_EQ(readWholeFile(file), "as before");
    EXPECT_EQ(write(true), 1200);
    EXPECT_EQ(readWholeFile(file).substr(0, 24), "name,fee,joined\r\nname,0,");
    std::filesystem::remove(file);
}

/// A day and a time of day in two fields are one column, of which a list may give both, either, or all in one.
TEST_F(OnDatabase, ListsGiveMomentsThatTwoFieldsShow) {
    const std::string at = "      DataField = \"at\"\r\n      Value = \"\"\r\n";
    const std::array<std::string, 3> name{"txtName", "KelText", ""};
    const std::array<std::string, 3> day{"datDay", "KelDate", at};
    const std::array<std::string, 3> time{"timMeets", "KelTime", at};
    const struct {
        const char* list;
        const char* stored;
        const char* rejected = "";
    } rows[] = {
        {"name,datDay,timMeets\na,2013-03-01,10:15\nb,2013-03-02,10:15\nc,2013-03-03,10:15\nd,2013-03-01,9:30\n",
         "2013-03-01 10:15:00,2013-03-02 10:15:00,2013-03-03 10:15:00,2013-03-01 09:30:00"},
        {"name,datDay,timMeets\na,2013-03-01,\nb,,\nc,2013-03-03,10:15\n",
         "2013-03-01 00:00:00,none,2013-03-03 10:15:00"},
        {"name,datDay\na,2013-03-01\n", "2013-03-01 00:00:00"},
        {"name,at\na,2013-03-01 10:15:30.125\n", "2013-03-01 10:15:30.125"},
        {"name,timMeets\na,2013-03-01 10:15\n", "2013-03-01 10:15:00"},
        {"name,datDay,timMeets\na,,10:15\nb,2013-03-02,10:15\n", "2013-03-02 10:15:00",
         "datDay: please fill in the day."},
        {"name,timMeets\na,10:15\n", "no row", "datDay: please fill in the day."},
    };
    execute("CREATE TABLE member (name VARCHAR(9) PRIMARY KEY, at TIMESTAMP)");
    const auto store = open();
    const auto records = store->open(store->table(u"member").value());
    const auto home = headless::makeHome({.region = &defaultRegion()});
    for (const auto& form : {formOf({name, day, time}), formOf({name, time, day})}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.list);
            execute("DELETE FROM member");
            Importer importer(*home, FormFile::parse(form, "member.frm"), *records, nullptr);
            std::istringstream list(row.list);
            std::string rejects;
            importer.run(
                list, {}, false, [&](std::string_view line) { rejects += line; }, [](std::int64_t) { return true; });
            EXPECT_EQ(rejects.empty(), *row.rejected == '\0') << rejects;
            EXPECT_NE(rejects.find(row.rejected), std::string::npos) << rejects;
            std::string stored;
            for (const char each : {'a', 'b', 'c', 'd'}) {
                const std::string found =
                    value(("SELECT coalesce(CAST(at AS TEXT), 'none') FROM member WHERE name = '" +
                           std::string(1, each) + "'")
                              .c_str());
                if (found != "no row") stored += (stored.empty() ? "" : ",") + found;
            }
            EXPECT_EQ(stored.empty() ? "no row" : stored, row.stored);
        }
    }
}

TEST_F(OnDatabase, FormMustFitTheTable) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, txt_name DATE, note TEXT, at TIMESTAMP)");
    const auto store = open();
    const auto at = [](const char* column) { return std::string("      DataField = \"") + column + "\"\r\n"; };
    const struct {
        std::vector<std::array<std::string, 3>> fields;
        const char16_t* table;
        const char* said;
    } rows[] = {
        {{{"txtName", "KelText", ""}}, u"member", "txtName shows text, and the column txt_name is a date."},
        {{{"txtNote", "KelText", ""}, {"cboNote", "KelCombo", ""}},
         u"member",
         "txtNote and cboNote are both kept in the column note."},
        {{{"datAt", "KelDate", ""}, {"timAt", "KelTime", ""}, {"datOther", "KelDate", at("AT")}},
         u"member",
         "datAt and datOther are both kept in the column at."},
        {{{"prgAll", "KelProgressBar", ""}}, u"member", "The form has no field that keeps a value."},
        {{{"txtA", "KelText", at("b")}, {"txtB", "KelText", ""}},
         u"line",
         "Two fields of the form are kept in the column b."},
        {{{"txtRecordID", "KelText", ""}},
         u"line",
         "Every table that is made for a form has a column record_id of its own. Please write another one into the "
         "DataField of the field."},
    };
    for (const auto& row : rows) {
        try {
            const Person person(formOf(row.fields), *store, row.table);
            ADD_FAILURE() << "taken, and not said: " << row.said;
        } catch (const StoreError& error) {
            EXPECT_STREQ(error.what(), row.said);
        }
    }
    EXPECT_FALSE(store->table(u"line"));
    EXPECT_EQ(store->table(u"member").value().columns.size(), 4U)
        << "the column is there, under the field's whole name";
    execute("CREATE TABLE odd (a INTEGER)");
    EXPECT_THROW(store->table(u"odd"), StoreError) << "records that cannot be told apart";
}

}  // namespace
}  // namespace kel::test
