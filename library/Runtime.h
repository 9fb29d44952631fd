#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "values/Variant.h"

namespace kel {

/// The conversions of the run-time object. Members may throw AutomationError when the host's object fails.
class RuntimeDates : public Object {
public:
    /// A number, or the text of a field as the user left it, rounded to `decimals` places; an empty text is 0.
    virtual double NumberFromValue(const Variant& value, std::int16_t decimals) = 0;
    virtual double RoundNumber(double number, std::int16_t decimals) = 0;

    /// The date that `text` (a text, a date or a number) stands for in a field with this `format`, without a
    /// time of day; Null when there is no such date. What the text leaves out comes from `defaultDate`. A date
    /// of birth with a two-digit year is never after `defaultDate`.
    virtual Variant ParseDate(const Variant& text, const std::u16string& format, Date defaultDate, bool birthDay) = 0;
    virtual Date LastDayOfMonth(Date date) = 0;
    /// The time of day that `text` (a text, a date or a number) stands for, or Null.
    virtual Variant ParseTime(const Variant& text) = 0;
};

/// A size in points as a host gives it, made one that a font can have; 0 stands for the usual one.
constexpr double usableFontSize(double points) {
    constexpr double Largest = 1638;
    return points > 0 ? std::min(points, Largest) : 0;
}

/// The object that a host hands to the library, once for all controls: regional settings, fonts, and the
/// moving on of the focus. Members may throw AutomationError when the host's object fails.
class Runtime : public Object {
public:
    /// Bits per pixel of the display.
    virtual std::int32_t ColorDepth() = 0;

    virtual std::u16string DecimalSeparator() = 0;
    virtual std::int16_t DecimalDigits() = 0;

    virtual std::u16string CaptionFontName() = 0;
    virtual double CaptionFontSize() = 0;  ///< points
    virtual std::u16string FieldFontName() = 0;
    virtual double FieldFontSize() = 0;  ///< points

    /// Presses the key with this virtual key code; the controls send 9, Tab, to move the focus on.
    virtual void SendKey(std::int16_t keyCode) = 0;

    /// Fetched anew before each use.
    virtual std::shared_ptr<kel::RuntimeDates> RuntimeDates() = 0;

    /// `list` with `item` as a further comma-separated item, quoted where needed.
    virtual std::u16string ListAppend(std::u16string list, std::u16string_view item) = 0;

    /// The field of `text` at `position` (0 for the first); moves `position` on, to a negative value on the
    /// read after the last field.
    virtual std::u16string ReadField(const std::u16string& text, std::int32_t& position, std::int16_t separator) = 0;
};

}  // namespace kel
