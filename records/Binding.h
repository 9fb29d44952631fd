#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "records/LookupField.h"

/// Which column a field of a form shows, and how a value goes from one to the other.
namespace kel::records {

/// Where a field wants to be kept, by what its form's designer has written in its `DataField`: "customer" is the
/// column, "customer:tag" the column that keeps the tag of the item that a combo shows, where "customer" keeps its
/// text. Where nothing is written it goes by the control's name, with or without the letters in front that tell its
/// kind.
struct FieldSource {
    std::u16string column;  ///< as it is made where it is not there
    std::u16string name;    ///< of the control; empty where a column is written
    bool byTag = false;

    /// The column of `table` that it means; nothing where there is none.
    std::optional<std::size_t> in(const Table& table) const;
};
FieldSource sourceOf(std::u16string_view dataField, std::u16string_view controlName);

/// A field that keeps its value in a column. The control outlives it.
class Binding {
public:
    Binding(const Form::Placed& placed, std::size_t column, bool byTag, const RegionalSettings& region)
        : Control_(placed.control),
          Block_(placed.block),
          Region_(&region),
          Column_(column),
          Kind_(kindOf(*placed.control)),
          ByTag_(byTag) {}

    PlacedControl& control() const { return *Control_; }
    std::size_t column() const { return Column_; }

    /// What is wrong when such a column cannot keep what the field holds, or the field not show what stands there:
    /// "txtName shows text, and the column is a date". Nothing when all is well.
    std::optional<std::u16string> misfit(const Column& column) const;

    /// The column, still without a name, that would be made for the field.
    Column ownColumn() const;

    /// From now on the list of the field, which keeps tags, is the records that the column points to. Leaves a list
    /// alone that the form has given it.
    void offer(Store& store, const Column& column);
    /// That table, with its key and its text; nullptr where there is none.
    const Table* offered() const { return Lookup_ ? &Lookup_->table() : nullptr; }

    /// Shows what stands in the column; that is what the field's own change tracking compares with from now on.
    void show(const Cell& cell);
    /// Shows what the form gives to a new record.
    void showDefault(const Form& form);
    /// Reads a text from elsewhere as the field would read it, numbers in the way of another region, and shows it.
    /// Says what is wrong with it: "is no date"; nothing when the field holds all of it.
    std::optional<std::u16string> take(std::u16string_view text, const RegionalSettings& numbers);
    /// The field's value now is what was stored.
    void markStored();
    /// Something else than what was shown or stored last. What is half typed is taken as if the field was left.
    bool isChanged() const;
    /// The same by its looks, which leaves what is half typed alone.
    bool looksChanged() const;
    /// What the column is to keep. Where `before` says more than the field shows, such as the time of a moment whose
    /// day stands in a date field, that stays.
    Cell cell(const Column& column, const Cell& before) const;
    /// A moment of which another field says `other`, and this one `own`: one the day, one the time of day.
    Cell joined(const Cell& other, const Cell& own) const;
    /// Whether `cell` is what the field's own value would be kept as; 12.5 and 12.50 are one number.
    bool holds(const Column& column, const Cell& cell) const;
    /// `cell` in words for the person: the text of a tag, yes or no.
    std::u16string textOf(const Cell& cell) const;
    /// `cell` as the field shows it, by its format and its decimals: for lists, where one that is cut short does no
    /// harm.
    std::u16string shownTextOf(const Cell& cell) const;
    /// What a person looks for who sees that, where it is another text than `cell` itself: the text of a tag, a day as
    /// the field writes it.
    std::optional<std::u16string> searchedTextOf(const Cell& cell) const;
    bool showsNumber() const { return Kind_ == Kind::Number; }
    bool showsDay() const { return Kind_ == Kind::Date; }
    /// What is said where a moment has a time of day and no day: of the field of the day, if there is one.
    std::u16string dayMissing() const;

    /// Asked with a message for the person when it is not.
    bool isValid(bool sayWhy) const;
    /// The database alone gives the value to a new record, such as a number that counts them.
    bool isGiven(const Column& column) const { return column.hasDefault && isLocked(); }
    /// The person cannot change it.
    bool isLocked() const { return isTrue(u"Locked"); }
    /// Whether the control itself tells the person what is wrong.
    bool saysWhy() const;
    /// In words, where the control has none of its own: "Fee: please fill in this field."
    std::u16string whyNotValid() const;
    /// The caption as it is read: without the mark of its mnemonic. The name where there is none.
    std::u16string caption() const;

private:
    enum class Kind : std::uint8_t { Text, Number, Date, Time, Combo, Check, None };

    static Kind kindOf(PlacedControl& control);
    const MemberRow& valueMember() const;
    Variant get(std::u16string_view member) const;
    bool isTrue(std::u16string_view member) const;
    void put(std::u16string_view member, const Variant& value) const;
    /// What stands in the field, as a person sees it.
    std::u16string look() const;
    /// A number field draws what is beyond its bounds to the nearest of them when it is left. Nobody has typed that.
    bool isDrawn(double number, const Cell& before) const;
    /// The part of a moment that a date or a time field shows; nothing where it has none.
    std::optional<Date> dayOrTimeIn(std::u16string_view text) const;
    std::u16string textWithTag(const std::u16string& tag) const;
    /// Of the item that stands in the field.
    std::u16string tag() const;
    /// A field that keeps tags has a text that stands for none.
    bool isWithoutTag() const;
    static std::u16string notInList(std::u16string_view text);
    std::optional<std::u16string> takeText(std::u16string_view text);
    std::optional<std::u16string> takeNumber(std::u16string_view text, const RegionalSettings& numbers);
    std::optional<std::u16string> takeMoment(std::u16string_view text);
    std::optional<std::u16string> takeTruth(std::u16string_view text);

    PlacedControl* Control_;
    FormBlockId Block_;
    const RegionalSettings* Region_;
    std::size_t Column_;
    Kind Kind_;
    bool ByTag_;
    std::u16string StoredLook_;
    std::unique_ptr<LookupField> Lookup_;  ///< where another table gives the list
};

/// Adds what the field holds, as `Binding::cell` gives it, to `values`, where another one may stand for the same
/// column.
void addValue(std::vector<Change>& values, const Binding& binding, const Cell& own);

/// Whether that is a time of day without a day, in a column of moments.
bool lacksDay(const Column& column, const Cell& cell);

/// Whether the control has a value that a column could keep.
bool isField(const Control& control);

/// The fields of a form with their columns, in the order of the Tab key. Throws StoreError when a column is not there
/// or cannot keep what its field holds. `others` has the tables that give lists to fields; without it these stay empty.
std::vector<Binding> bind(const Form& form, const Table& table, const RegionalSettings& region,
                          Store* others = nullptr);

}  // namespace kel::records
