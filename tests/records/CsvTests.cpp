#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "records/exchange/Csv.h"

namespace kel::test {
namespace {

using records::CsvReader;

/// Each record as "line: [value][value]".
std::string readAll(const std::string& list, char separator = 0) {
    std::istringstream stream(list);
    CsvReader reader(stream, separator);
    std::string all;
    while (reader.next()) {
        all += std::to_string(reader.line()) + ":";
        for (std::size_t i = 0; i < reader.size(); ++i) all += "[" + std::string(reader.value(i)) + "]";
        all += reader.isOpen() ? "?" : " ";
    }
    return all;
}

TEST(CsvTests, ReadsWhatProgramsWrite) {
    const struct {
        std::string list;
        std::string wanted;
    } rows[] = {
        {"", ""},
        {"a,b\r\n1,2\r\n", "1:[a][b] 2:[1][2] "},
        {"a,b\n1,2", "1:[a][b] 2:[1][2] "},
        {"a,b\r1,2\r", "1:[a][b] 2:[1][2] "},
        {"\xEF\xBB\xBF\"a\",b\n", "1:[a][b] "},
        {"a\r\nb\rc\n\rd\n\ne\r\"f\r\ng\"\rh", "1:[a] 2:[b] 3:[c] 5:[d] 7:[e] 8:[f\r\ng] 10:[h] "},
        {"a,,\n,,\n", "1:[a][][] 2:[][][] "},
        {"\n\na\n\n\"\"\n", "3:[a] 5:[] "},
        {"a;b,c;d\n1;2;3\n", "1:[a][b,c][d] 2:[1][2][3] "},
        {"\"a;a;a\",b\n1,2\n", "1:[a;a;a][b] 2:[1][2] "},
        {"a\tb\n", "1:[a][b] "},
        {"\"a\"\"b\",\"c\r\nd\",\" e \"\nf,g,h\n", "1:[a\"b][c\r\nd][ e ] 3:[f][g][h] "},
        {"\"a\" b,c\"d\n", "1:[a b][c\"d] "},
        {"a,b\n1,\"2\n3,4\n", "1:[a][b] 2:[1][2\n3,4\n]?"},
        {"\"\"\"\"\n", "1:[\"] "},
    };
    for (const auto& row : rows) EXPECT_EQ(readAll(row.list), row.wanted) << row.list;
    EXPECT_EQ(readAll("a,b|c\n", '|'), "1:[a,b][c] ");
    EXPECT_THROW(readAll(std::string("\xFF\xFE"
                                     "a\0",
                                     4)),
                 std::runtime_error)
        << "two bytes a letter";
}

/// Long enough to be read in several pieces, which begin and end anywhere.
TEST(CsvTests, ReadsWhatItWrites) {
    std::mt19937 random(11);
    const auto pick = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
    constexpr std::string_view Letters = "ab,;\"\r\n \t|";
    std::vector<std::vector<std::string>> wanted(20'000, std::vector<std::string>(3));
    std::string list;
    for (auto& record : wanted) {
        std::string line;
        for (std::string& value : record) {
            for (std::size_t length = pick(24); length > 0; --length) value += Letters[pick(Letters.size() - 1)];
            records::appendCsv(line, value, ';', &value == &record.front());
        }
        list += line + "\r\n";
    }
    std::istringstream stream(list);
    CsvReader reader(stream, ';');
    for (const auto& record : wanted) {
        ASSERT_TRUE(reader.next());
        ASSERT_EQ(reader.size(), record.size());
        for (std::size_t i = 0; i < record.size(); ++i) ASSERT_EQ(reader.value(i), record[i]);
    }
    EXPECT_FALSE(reader.next());
    EXPECT_EQ(reader.done(), static_cast<std::int64_t>(list.size()));
}

}  // namespace
}  // namespace kel::test
