#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

/// Lists of values as programs exchange them (RFC 4180): a record a line, values separated by a comma or another
/// character, in quotes where they contain that, a quote or a line break; a quote inside is written twice. UTF-8.
namespace kel::records {

/// Reads a list record by record, of any length, without holding more than one.
class CsvReader {
public:
    /// `list` outlives it. Without a separator it is the one of comma, semicolon and tab that the first line has most
    /// of. A mark of the encoding before all else is passed over.
    explicit CsvReader(std::istream& list, char separator = 0);

    /// Goes on to the next record; false after the last one. Empty lines are none.
    bool next();

    std::size_t size() const { return Ends_.size(); }
    /// Valid until the next record.
    std::string_view value(std::size_t place) const;
    /// The line on which it begins, from 1.
    std::int64_t line() const { return Line_; }
    /// A quote was still open at the end of the list, so that more than one record may be in it.
    bool isOpen() const { return IsOpen_; }
    char separator() const { return Separator_; }
    /// Bytes that have been read and understood.
    std::int64_t done() const { return Before_ + static_cast<std::int64_t>(Next_); }

private:
    /// -1 at the end.
    int peek();
    int take();
    bool fill();
    void findSeparator();
    void takeQuoted();
    void takePlain();
    void endValue() { Ends_.push_back(Text_.size()); }

    std::istream& List_;
    std::string Buffer_;
    std::size_t Next_ = 0;
    std::int64_t Before_ = 0;  ///< bytes before the buffer
    std::string Text_;         ///< all values, one after the other
    std::vector<std::size_t> Ends_;
    std::int64_t Line_ = 0;
    std::int64_t NextLine_ = 1;
    bool IsBehindReturn_ = false;
    char Separator_;
    bool IsOpen_ = false;
};

/// Ends a record that is written.
inline constexpr std::string_view CsvLineEnd = "\r\n";

/// Puts a value after those that the line has already.
void appendCsv(std::string& line, std::string_view value, char separator, bool isFirst);

}  // namespace kel::records
