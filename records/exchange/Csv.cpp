#include "records/exchange/Csv.h"

#include <algorithm>
#include <stdexcept>

namespace kel::records {

namespace {

constexpr std::size_t BytesAtOnce = std::size_t{1} << 18U;
constexpr std::string_view EncodingMark = "\xEF\xBB\xBF";
constexpr std::string_view Separators = ",;\t";

bool endsLine(int character) { return character == '\n' || character == '\r'; }

}  // namespace

CsvReader::CsvReader(std::istream& list, char separator) : List_(list), Separator_(separator) {
    fill();
    if (std::string_view(Buffer_).starts_with(EncodingMark)) Next_ = EncodingMark.size();
    if (std::string_view(Buffer_).starts_with("\xFF\xFE") || std::string_view(Buffer_).starts_with("\xFE\xFF"))
        throw std::runtime_error("The list is written in UTF-16. Please have it written in UTF-8.");
    if (Separator_ == 0) findSeparator();
}

void CsvReader::findSeparator() {
    const std::string_view head = std::string_view(Buffer_).substr(Next_);
    const std::string_view line = head.substr(0, head.find_first_of("\r\n"));
    const auto inLine = [&](char separator) {
        bool isQuoted = false;
        return std::count_if(line.begin(), line.end(), [&](char character) {
            if (character == '"') isQuoted = !isQuoted;
            return character == separator && !isQuoted;
        });
    };
    Separator_ = *std::max_element(Separators.begin(), Separators.end(),
                                   [&](char left, char right) { return inLine(left) < inLine(right); });
}

bool CsvReader::fill() {
    Before_ += static_cast<std::int64_t>(Buffer_.size());
    Buffer_.resize(BytesAtOnce);
    List_.read(Buffer_.data(), static_cast<std::streamsize>(BytesAtOnce));
    if (List_.bad()) throw std::runtime_error("The list cannot be read on.");
    Buffer_.resize(static_cast<std::size_t>(List_.gcount()));
    Next_ = 0;
    return !Buffer_.empty();
}

int CsvReader::peek() {
    if (Next_ == Buffer_.size() && !fill()) return -1;
    return static_cast<unsigned char>(Buffer_[Next_]);
}

int CsvReader::take() {
    const int character = peek();
    if (character >= 0) ++Next_;
    // The two together are one line's end, and so is either alone.
    if (character == '\r' || (character == '\n' && !IsBehindReturn_)) ++NextLine_;
    IsBehindReturn_ = character == '\r';
    return character;
}

bool CsvReader::next() {
    while (endsLine(peek())) take();
    if (peek() < 0) return false;
    Line_ = NextLine_;
    Text_.clear();
    Ends_.clear();
    for (;;) {
        if (peek() == '"')
            takeQuoted();
        else
            takePlain();
        endValue();
        if (peek() != static_cast<unsigned char>(Separator_)) break;
        take();
    }
    return true;
}

void CsvReader::takePlain() {
    const auto ends = [this](char character) { return character == Separator_ || endsLine(character); };
    while (peek() >= 0) {
        const auto from = Buffer_.begin() + static_cast<std::ptrdiff_t>(Next_);
        const auto end = std::find_if(from, Buffer_.end(), ends);
        Text_.append(from, end);
        if (from != end) IsBehindReturn_ = false;
        Next_ += static_cast<std::size_t>(end - from);
        if (end != Buffer_.end()) return;
    }
}

void CsvReader::takeQuoted() {
    take();
    for (;;) {
        const int character = take();
        if (character < 0) {
            IsOpen_ = true;
            return;
        }
        if (character == '"') {
            if (peek() != '"') break;
            take();
        }
        Text_ += static_cast<char>(character);
    }
    // "Hill" Street: not as it should be, and nothing of it is lost.
    takePlain();
}

std::string_view CsvReader::value(std::size_t place) const {
    const std::size_t from = place == 0 ? 0 : Ends_[place - 1];
    return std::string_view(Text_).substr(from, Ends_[place] - from);
}

void appendCsv(std::string& line, std::string_view value, char separator, bool isFirst) {
    if (!isFirst) line += separator;
    const char special[] = {separator, '"', '\r', '\n'};
    // A blank at an end is lost by some who read it.
    const bool isQuoted = value.find_first_of(std::string_view(special, std::size(special))) != value.npos ||
                          value.starts_with(' ') || value.ends_with(' ');
    if (!isQuoted) {
        line += value;
        return;
    }
    line += '"';
    for (const char character : value) line.append(character == '"' ? 2 : 1, character);
    line += '"';
}

}  // namespace kel::records
