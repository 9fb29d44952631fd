#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/KeyAnswer.h"
#include "library/Message.h"
#include "values/FormatExpression.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// What the date field and the time field make alike of texts, values and keys, as pure functions. Texts are
/// read by the run-time object alone: functions take what it has made of them.
namespace kel {

// ---- Values

/// The date or time that a variant holds; nothing for every other kind of value.
std::optional<Date> dateIn(const Variant& value);

/// Whether `value` (Empty, Null or a date) is another one than `reference`. Null equals Null alone; Empty counts as
/// 0, numbers and booleans as day serials; a text or an object is never a date.
bool isChanged(const Variant& reference, const Variant& value);

/// The same for a value that a step has led to, except that nothing differs from Null.
bool isChangedByStep(const Variant& reference, Date value);

/// A display format, as it was written and ready for use.
class FieldFormat {
public:
    explicit FieldFormat(std::u16string text) : Text_(std::move(text)), Expression_(Text_) {}

    const std::u16string& text() const { return Text_; }
    /// No value shows as "".
    std::u16string show(std::optional<Date> value, const RegionalSettings& region) const;
    /// Where the fields of the value stand in that text.
    std::vector<ShownField> fields(Date value, const RegionalSettings& region) const {
        return Expression_.fields(value, region);
    }

private:
    std::u16string Text_;
    FormatExpression Expression_;
};

// ---- Ranges

enum class BoundsCompare : std::uint8_t {
    ByTime,
    ByDay  ///< whatever time of day they carry
};

/// The least and the greatest value that a field takes, as they were put. Where a put would make them cross, the
/// other one goes along.
struct DateBounds {
    Date minimum;
    Date maximum;
    BoundsCompare compare = BoundsCompare::ByTime;

    void putMinimum(Date date);
    void putMaximum(Date date);

    /// The lower bound is looked at first.
    Date clamp(Date date) const;
    bool contain(Date date) const;

    friend bool operator==(const DateBounds&, const DateBounds&) = default;

private:
    Date counted(Date date) const;
    bool isBefore(Date left, Date right) const;
};

enum class Validity : std::uint8_t { Valid, OutOfRange, NoValue };

/// How the value of an unlocked field stands to its bounds.
Validity validityOf(std::optional<Date> value, const DateBounds& bounds, bool mayBeEmpty);

/// What a field goes by.
struct FieldRules {
    const FieldFormat& format;
    DateBounds bounds;
    const RegionalSettings& region;
};

/// What the user is told of a value that is not valid.
struct ValueMessages {
    MessageRow noValue;
    MessageRow outOfRange;

    const MessageRow& of(Validity validity) const { return validity == Validity::OutOfRange ? outOfRange : noValue; }
};

/// The message in the words of a field, which may have bounds to tell.
std::u16string complaint(const MessageRow& message, const FieldRules& rules);

// ---- Steps

/// The text box of a field before a step.
struct BoxState {
    std::u16string text;
    std::size_t caret = 0;
    std::optional<Date> value{};  ///< that the text stands for
};

/// Where a step leads.
struct FieldStep {
    Date value{};
    std::u16string text{};
    std::size_t caret = 0;  ///< may be past the end of the text, which means the end
    bool isFirst = false;   ///< there was no value to start from
};

/// What can be stepped.
enum class StepPart : std::uint8_t { Day, Month, Year, Hour, Minute, Second };

/// The parts that a field steps, by the letters that formats write them with.
struct PartLetters {
    std::u16string_view letters;
    StepPart first;  ///< of the first letter; the others follow it

    std::optional<StepPart> partOf(char16_t formatUnit) const;
    /// The part that a field of a format shows.
    std::optional<StepPart> partOf(DateField field) const;

    /// Whether a format shows its parts by their letters, each in its place: without words in quotes, names of
    /// formats, formats of the region's and separators that it writes with more than one character.
    bool writeAllOf(std::u16string_view format, const RegionalSettings& region) const;
};

/// The part that a step moves, and the field that shows it at the caret: its number among those of the text.
struct StepPlace {
    StepPart part;
    std::optional<std::size_t> field{};
};

/// The first part that ends at this place or after it, in a text that shows `value`; `usual` where there is none.
StepPlace placeFrom(std::size_t start, Date value, const FieldRules& rules, const PartLetters& parts, StepPart usual);

/// The field at that place in the text that shows `value`, or without a number the last that shows the part.
std::optional<ShownField> fieldOf(const StepPlace& place, Date value, const FieldRules& rules,
                                  const PartLetters& parts);

// ---- Keys

/// What Enter, "+", "-", backspace and Escape come to in either field; nothing for other characters.
std::optional<KeyAnswer> answerToCommonCharacter(char32_t character);

}  // namespace kel
