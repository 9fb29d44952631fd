#include <sstream>

#include "records/exchange/Importer.h"
#include "records/make/FormOfTable.h"
#include "tests/records/OnDatabase.h"

/// Tables that others have made, with rules of their own.
namespace kel::test {
namespace {

const std::string NameForm = formOf({{"txtName", "KelText", ""}});

/// How often this is in the database.
std::string countOf(const char* name) { return "SELECT count(*) FROM member WHERE name = '" + std::string(name) + "'"; }

/// A trigger may leave a record out without an error. Nobody is told then that it is saved, or gone.
TEST_F(OnDatabase, WhatIsLeftOutSilentlyIsSaid) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT)");
    execute("INSERT INTO member VALUES (1, 'Anna')");
    const auto store = open();
    const auto ignore = [&](const char* what) {
        if (isServer())
            execute(
                "CREATE OR REPLACE FUNCTION nothing() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN RETURN NULL; END'");
        execute((std::string("CREATE TRIGGER t BEFORE ") + what + " ON member FOR EACH ROW " +
                 (isServer() ? "EXECUTE FUNCTION nothing()" : "BEGIN SELECT RAISE(IGNORE); END"))
                    .c_str());
    };
    const auto allow = [&] { execute(isServer() ? "DROP TRIGGER t ON member" : "DROP TRIGGER t"); };
    Person person(NameForm, *store, u"member");

    ignore("UPDATE");
    person.put(u"txtName", std::u16string(u"Berta"));
    EXPECT_FALSE(person.records().save());
    EXPECT_EQ(person.heard, "The database did not keep the change, and gives no reason.\n");
    EXPECT_EQ(person.text(u"txtName"), u"Berta");
    EXPECT_TRUE(person.records().isChanged());
    allow();
    EXPECT_TRUE(person.records().save());

    ignore("DELETE");
    person.heard.clear();
    EXPECT_FALSE(person.records().remove());
    EXPECT_EQ(person.heard, "The database did not delete the record, and gives no reason.\n");
    EXPECT_FALSE(person.records().isNew());
    allow();

    ignore("INSERT");
    std::istringstream list("Carla\n");
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(NameForm, "member.frm"), person.records().store(), nullptr);
    std::string rejects;
    const auto result = importer.run(
        list, {.separator = ',', .hasHeader = false}, false, [&](std::string_view line) { rejects += line; },
        [](std::int64_t) { return true; });
    EXPECT_EQ(result.stored, 0);
    EXPECT_NE(rejects.find("did not keep the new record"), std::string::npos) << rejects;
    allow();
    EXPECT_EQ(value(countOf("Berta").c_str()), "1");
}

/// A database may write a key otherwise than it was typed.
TEST_F(OnDatabase, KeyThatTheDatabaseChangesIsFollowed) {
    if (!isServer()) GTEST_SKIP() << "triggers of a file change no value on its way";
    execute("CREATE TABLE member (name TEXT PRIMARY KEY)");
    execute(
        "CREATE OR REPLACE FUNCTION nothing() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN new.name = upper(new.name); "
        "RETURN new; END'");
    execute("CREATE TRIGGER t BEFORE INSERT OR UPDATE ON member FOR EACH ROW EXECUTE FUNCTION nothing()");
    const auto store = open();
    Person person(NameForm, *store, u"member");
    for (const char16_t* const name : {u"anna", u"berta", u"carla"}) {
        person.put(u"txtName", std::u16string(name));
        EXPECT_TRUE(person.records().save()) << person.heard;
    }
    EXPECT_EQ(person.text(u"txtName"), u"CARLA");
    EXPECT_EQ(value("SELECT string_agg(name, ',') FROM member"), "CARLA");
}

/// One column holds what equals nothing, not even itself; a policy lets another record be read alone.
TEST_F(OnDatabase, SavingComesToAnEnd) {
    if (!isServer()) GTEST_SKIP() << "files have neither";
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, weight DOUBLE PRECISION)");
    execute("INSERT INTO member VALUES (1, 'Anna', 'NaN'), (2, 'Berta', 0)");
    execute("ALTER TABLE member ENABLE ROW LEVEL SECURITY");
    execute("ALTER TABLE member FORCE ROW LEVEL SECURITY");
    execute("CREATE POLICY seen ON member FOR SELECT USING (true)");
    execute("CREATE POLICY own ON member FOR UPDATE USING (id = 1)");
    execute("DROP ROLE IF EXISTS colleague");
    execute("CREATE ROLE colleague LOGIN");
    execute("GRANT ALL ON member TO colleague");
    {
        std::string address = databaseAddress();
        address.replace(address.find("//") + 2, address.find('@') - address.find("//") - 2, "colleague");
        const auto store = qt::openStore(address, {});
        Person person(NameForm, *store, u"member");
        person.put(u"txtName", std::u16string(u"Anne"));
        EXPECT_TRUE(person.records().save()) << person.heard;
        EXPECT_TRUE(person.records().toLast());
        person.put(u"txtName", std::u16string(u"Bert"));
        EXPECT_FALSE(person.records().save());
        EXPECT_EQ(person.heard, "The database lets this record be read, and not be changed.\n");
    }
    EXPECT_EQ(value("SELECT string_agg(name || weight, ',' ORDER BY id) FROM member"), "AnneNaN,Berta0");
    execute("DROP TABLE member");
    execute("DROP ROLE colleague");
}

/// A column is what it is made of, not what its type is called.
TEST_F(OnDatabase, TypesOfOthersAreToldByWhatTheyAre) {
    if (!isServer()) GTEST_SKIP() << "files have no types but their own";
    execute("DROP TYPE IF EXISTS footprint, pointer CASCADE");
    execute("DROP DOMAIN IF EXISTS dated, code CASCADE");
    execute("CREATE TYPE footprint AS ENUM ('small', 'large')");
    execute("CREATE TYPE pointer AS (x INTEGER)");
    execute("CREATE DOMAIN code AS VARCHAR(8)");
    execute("CREATE DOMAIN dated AS code NOT NULL CHECK (value <> 'x')");
    execute(
        "CREATE TABLE member (id NUMERIC PRIMARY KEY, size footprint, place pointer, name dated, years INT4RANGE, fee "
        "MONEY, amount NUMERIC(9,2), day DATE)");
    execute("INSERT INTO member VALUES (12345678901234567891, 'small', NULL, 'Anna', NULL, 1, 12345.6, NULL)");
    const auto store = open();
    const Table table = store->table(u"member").value();
    std::u16string types;
    for (const Column& column : table.columns) types += std::u16string(nameOf(column.type)) + u"; ";
    EXPECT_EQ(types,
              u"a decimal number; text; something that no field shows; text; something that no field shows; something "
              u"that no field shows; a decimal number; a date; ");
    EXPECT_EQ(table.columns[3].length, 8);
    EXPECT_TRUE(table.columns[3].notNull);
    Person person(formOf({{"txtName", "KelText", ""}, {"cboSize", "KelCombo", "      LimitToList = 0\r\n"}}), *store,
                  u"member");
    EXPECT_EQ(person.text(u"cboSize"), u"small");
    person.put(u"txtName", std::u16string(u"Anne"));
    person.put(u"cboSize", std::u16string(u"large"));
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(value("SELECT id || ' ' || name || ' ' || size FROM member"), "12345678901234567891 Anne large");
    person.put(u"cboSize", std::u16string(u"huge"));
    EXPECT_FALSE(person.records().save());
    execute("DROP TABLE member");
}

/// Databases number their records as they like; what they give is not held against the bounds of a field.
TEST_F(OnDatabase, LargeKeysAreNoHindrance) {
    execute("CREATE TABLE member (id BIGINT DEFAULT 1234567890123456789 PRIMARY KEY, name TEXT)");
    const auto store = open();
    const Table table = store->table(u"member").value();
    Person person(formFor(*store, table, defaultRegion(), "m.frm").file.output("m.frm").form, *store, u"member");
    for (const char16_t* const name : {u"Anna", u"Berta"}) {
        person.put(u"txtName", std::u16string(name));
        EXPECT_TRUE(person.records().save()) << person.heard;
    }
    EXPECT_EQ(value("SELECT id || name FROM member"), "1234567890123456789Berta");
}

/// A field for numbers is never empty; a table of dates and numbers alone gives no list to pick a record from.
TEST_F(OnDatabase, NoRecordIsPointedToByZero) {
    execute("CREATE TABLE parent (id INTEGER PRIMARY KEY, day DATE)");
    execute("INSERT INTO parent VALUES (5, NULL)");
    execute(
        "CREATE TABLE member (id INTEGER DEFAULT 7 PRIMARY KEY, name TEXT, parent_id INTEGER REFERENCES parent (id), "
        "age INTEGER)");
    const auto store = open();
    const Table table = store->table(u"member").value();
    Person person(formFor(*store, table, defaultRegion(), "m.frm").file.output("m.frm").form, *store, u"member");
    const char* const kept = "SELECT coalesce(parent_id, -1) || ' ' || coalesce(age, -1) FROM member";
    for (const auto& [parent, stored] : {std::pair{0.0, "-1 0"}, {5.0, "5 0"}, {0.0, "-1 0"}}) {
        person.put(u"numParentId", parent);
        EXPECT_TRUE(person.records().save()) << person.heard;
        EXPECT_EQ(value(kept), stored);
    }
    execute("INSERT INTO member (id) VALUES (9)");
    EXPECT_TRUE(person.records().toLast() && person.records().duplicate());
    EXPECT_EQ(person.text(u"numId"), u"7") << "the number of another record";
}

/// What stands in a database may be more than a field shows. It stays, and goes along into a duplicate.
TEST_F(OnDatabase, WhatAFieldCannotShowIsKept) {
    execute(
        "CREATE TABLE member (id INTEGER DEFAULT 7 PRIMARY KEY, name TEXT, fee NUMERIC(9,2), meets TIMESTAMP, town "
        "TEXT)");
    execute("INSERT INTO member VALUES (1, 'Anna', 1234.50, '2013-03-15 10:15:30', 'East')");
    const auto store = open();
    Person person(formOf({{"numFee", "KelNumber", UpTo99 + "      MinValue = 1\r\n"},
                          {"txtName", "KelText", ""},
                          {"datMeets", "KelDate", ""},
                          {"cboTown", "KelCombo", "      List = \"North,South\"\r\n"}}),
                  *store, u"member");
    person.put(u"txtName", std::u16string(u"Anne"));
    person.click(u"numFee");
    person.click(u"txtName");
    EXPECT_EQ(person.text(u"numFee"), u"99.00") << "the field draws it to its bound";
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(person.text(u"numFee"), u"1,234.50");
    person.put(u"numFee", 5.0);
    EXPECT_TRUE(person.records().duplicate() == false) << "it is changed, and stays";
    EXPECT_TRUE(person.records().save());
    EXPECT_TRUE(person.records().duplicate() && person.records().save()) << person.heard;
    EXPECT_EQ(
        value("SELECT count(*) FROM member WHERE name = 'Anne' AND CAST(fee AS INTEGER) = 5 AND town = 'East' AND "
              "CAST(meets AS TEXT) = '2013-03-15 10:15:30'"),
        "2");
    execute("DELETE FROM member");
    EXPECT_TRUE(person.records().startNew());
    person.put(u"numFee", 1.0);
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(value("SELECT CAST(fee AS INTEGER) FROM member"), "1") << "a bound may be typed";
}

/// A field that keeps tags and takes any text may have one that stands for nothing.
TEST_F(OnDatabase, TextWithoutATagIsNotKeptAsNothing) {
    execute("CREATE TABLE member (id INTEGER PRIMARY KEY, town TEXT)");
    execute("INSERT INTO member VALUES (1, 'N')");
    const auto store = open();
    const std::string list =
        "      DataField = \"town:tag\"\r\n      LimitToList = 0\r\n      List = \"North,South,none\"\r\n"
        "      ListTag = \"N,S,\"\r\n";
    Person person(formOf({{"cboTown", "KelCombo", list}}), *store, u"member");
    const struct {
        const char16_t* put;
        const char* said;
        const char* stored;
    } rows[] = {
        {u"East", "cboTown is \"East\", which is not in the list.\n", "N"},
        {u"South", "", "S"},
        {u"none", "", "nothing"},
    };
    for (const auto& row : rows) {
        person.heard.clear();
        person.put(u"cboTown", std::u16string(row.put));
        EXPECT_EQ(person.records().save(), *row.said == '\0');
        EXPECT_EQ(person.heard, row.said);
        EXPECT_EQ(value("SELECT coalesce(town, 'nothing') FROM member"), row.stored);
    }
}

/// What a server says has more to it than a person wants to read; a list goes on behind a record that is refused.
TEST_F(OnDatabase, RefusalsOfAServerAreWords) {
    if (!isServer()) GTEST_SKIP() << "files say less";
    execute("CREATE TABLE member (name VARCHAR(9) PRIMARY KEY CONSTRAINT \"No blanks\" CHECK (name NOT LIKE '% %'))");
    execute(
        "CREATE OR REPLACE FUNCTION nothing() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN IF new.name = ''Nobody'' THEN "
        "RAISE EXCEPTION ''Nobody: is no member'' USING HINT = ''Ask''; END IF; RETURN new; END'");
    execute("CREATE TRIGGER t BEFORE INSERT ON member FOR EACH ROW EXECUTE FUNCTION nothing()");
    const auto store = open();
    Person person(NameForm, *store, u"member");
    const std::string rule = "A rule of the database is not kept: ";
    const struct {
        std::u16string_view name;
        std::string said;
    } rows[] = {
        {u"A B", rule + "new row for relation \"member\" violates check constraint \"No blanks\""},
        {u"Wilhelmina", rule + "value too long for type character varying(9)"},
        {u"Nobody", rule + "Nobody: is no member"},
        {std::u16string_view(u"A\0b", 3),
         "txtName: the text has a character 0 in it, which the database does not keep."},
    };
    std::string list;
    for (const auto& row : rows) {
        person.heard.clear();
        person.put(u"txtName", std::u16string(row.name));
        EXPECT_FALSE(person.records().save());
        EXPECT_EQ(person.heard, row.said + "\n");
        list += toUtf8(row.name) + "\n";
    }
    std::istringstream stream(list + "Anna\n");
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(NameForm, "member.frm"), person.records().store(), nullptr);
    const auto result = importer.run(
        stream, {.separator = ',', .hasHeader = false}, false, [](std::string_view) {},
        [](std::int64_t) { return true; });
    EXPECT_EQ(result.rejected, 4);
    EXPECT_EQ(result.stored, 1) << result.failure;
}

/// In a file most keys may be nothing, and not every whole number is given by the database.
TEST_F(OnDatabase, KeysOfFilesAreTakenAsTheyAre) {
    if (isServer()) GTEST_SKIP() << "keys of a server have values";
    execute("CREATE TABLE member (code TEXT PRIMARY KEY, name TEXT)");
    execute("INSERT INTO member VALUES (NULL, 'Anna'), (NULL, 'Berta'), ('c', 'Carla'), ('d', 'Dora')");
    execute("CREATE TABLE line (id INTEGER PRIMARY KEY, name TEXT) WITHOUT ROWID");
    const auto store = open();
    Person person(NameForm, *store, u"member");
    EXPECT_EQ(person.text(u"txtName"), u"Anna");
    EXPECT_TRUE(person.records().toNext());
    EXPECT_EQ(person.text(u"txtName"), u"Carla");
    EXPECT_TRUE(person.records().toPrevious());
    person.put(u"txtName", std::u16string(u"Anne"));
    EXPECT_FALSE(person.records().save());
    EXPECT_EQ(person.heard, "This record has no key that tells it from others, so that it cannot be changed here.\n");
    person.records().undo();
    EXPECT_FALSE(person.records().remove());
    EXPECT_TRUE(person.records().toLast() && person.records().place() == 4);
    EXPECT_EQ(value("SELECT group_concat(name) FROM member"), "Anna,Berta,Carla,Dora");

    const Table line = store->table(u"line").value();
    EXPECT_FALSE(line.columns[0].hasDefault);
    EXPECT_TRUE(line.columns[0].notNull);
}

}  // namespace
}  // namespace kel::test
