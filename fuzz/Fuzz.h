#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// What the targets share: how an input is taken apart, and how a broken promise is told.
namespace kel::fuzz {

/// An input as lines of text, so that people can read and write inputs. A line that is missing is empty. What is no
/// UTF-8, half pairs allowed, is taken for Windows-1252.
class Lines {
public:
    Lines(const std::uint8_t* data, std::size_t size) : Rest_(reinterpret_cast<const char*>(data), size) {}

    bool atEnd() const { return Rest_.empty(); }
    std::u16string next();
    /// All lines that are left, as one text.
    std::u16string rest();
    /// The region of that name; a name that is none stands for one of them all the same.
    const RegionalSettings& region();
    /// As the scripts write it, and Missing besides; what is no such value is a text.
    Variant value();
    /// Any number: one that is written, or else eight characters for its bits.
    double number();
    std::int32_t whole();

private:
    std::string_view Rest_;
};

/// One of so many things that `text` stands for, whatever it is.
std::size_t anyOf(std::u16string_view text, std::size_t count);

std::u16string shown(double number);

/// Ends the program when the promise does not hold, with what it was about.
void require(bool holds, const char* promise, std::initializer_list<std::u16string_view> about = {});

}  // namespace kel::fuzz
