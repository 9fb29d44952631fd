#pragma once

#include <cstddef>
#include <string_view>

namespace kel {

/// Takes a format expression apart into literals and characters with a meaning; what they mean is for the
/// kinds of expression to say.
class FormatScanner {
public:
    struct Token {
        std::u16string_view text;  ///< without quotes and backslash
        bool isLiteral = false;    ///< else one unit that may mean something
    };

    explicit FormatScanner(std::u16string_view expression) : Rest_(expression) {}

    /// Whether a unit begins a literal, whatever follows.
    static constexpr bool protects(char16_t unit) { return unit == u'"' || unit == u'\\'; }

    bool atEnd() const { return Rest_.empty(); }

    /// What is still to come.
    std::u16string_view rest() const { return Rest_; }

    /// The next token; not at the end.
    Token next() {
        if (Rest_.front() == u'"') return quoted();
        const bool isEscape = Rest_.front() == u'\\' && Rest_.size() > 1;
        if (isEscape) Rest_.remove_prefix(1);
        return take(1, isEscape);
    }

    void skip(std::size_t units) { Rest_.remove_prefix(units); }

    /// Takes the text up to the next semicolon that is no literal, and the semicolon; at the end, "".
    std::u16string_view nextSection() {
        const std::u16string_view whole = Rest_;
        while (!atEnd()) {
            const std::size_t before = whole.size() - Rest_.size();
            const Token token = next();
            if (!token.isLiteral && token.text == u";") return whole.substr(0, before);
        }
        return whole;
    }

private:
    Token take(std::size_t units, bool isLiteral) {
        const Token token{Rest_.substr(0, units), isLiteral};
        Rest_.remove_prefix(units);
        return token;
    }

    Token quoted() {
        Rest_.remove_prefix(1);
        const std::size_t close = Rest_.find(u'"');
        const Token token = take(close == std::u16string_view::npos ? Rest_.size() : close, true);
        if (!Rest_.empty()) Rest_.remove_prefix(1);
        return token;
    }

    std::u16string_view Rest_;
};

}  // namespace kel
