#include "records/Binding.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "controls/datetime/DateTimeText.h"
#include "controls/number/NumberText.h"
#include "host/focus/Mnemonic.h"
#include "host/Widgets.h"
#include "host/widgets/TextEntry.h"
#include "records/Moments.h"
#include "values/CaseFolding.h"
#include "values/Coercion.h"
#include "values/NumberReader.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::u16string_view TagMark = u":tag";

const std::u16string* textIn(const Variant& value) { return std::get_if<std::u16string>(&value); }

bool isTrue(const Variant& value) {
    const bool* const truth = std::get_if<bool>(&value);
    return truth != nullptr && *truth;
}

std::int16_t shortIn(const Variant& value) {
    const auto* const number = std::get_if<std::int16_t>(&value);
    return number != nullptr ? *number : std::int16_t{0};
}

/// With the time of day that a date field does not show, or the day that a time field does not.
Cell dateCell(ColumnType type, bool isTime, Date shown, const Cell& before) {
    if (type != ColumnType::Moment) return isTime ? isoTime(shown) : isoDay(shown);
    const auto* const moment = std::get_if<std::u16string>(&before);
    const std::u16string_view text = moment != nullptr ? *moment : std::u16string_view();
    return isTime ? withIsoTime(text, shown) : withIsoDay(text, shown);
}

/// A number field is never empty: where the column points to another record, zero is none, if there may be none.
Cell numberCell(const Column& column, double number) {
    const ColumnType type = column.type;
    if (number == 0 && column.reference && !column.notNull) return Null{};
    if (type == ColumnType::Decimal) return shortestNumber(number);
    if (type == ColumnType::Integer && std::abs(number) <= LargestExactWhole)
        return static_cast<std::int64_t>(std::llround(number));
    return number;
}

Cell textCell(const Column& column, const std::u16string& text) {
    if (text.empty() && !column.notNull) return Null{};
    double number = 0;
    if (column.type == ColumnType::Integer && readPlainNumber(text, defaultRegion(), number))
        return numberCell(column, number);
    return text;
}

double numberIn(const Cell& cell) {
    if (const auto* const whole = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*whole);
    if (const auto* const number = std::get_if<double>(&cell)) return *number;
    double number = 0;
    if (const auto* const text = std::get_if<std::u16string>(&cell)) readPlainNumber(*text, defaultRegion(), number);
    return number;
}

std::u16string articled(std::u16string_view kind, const Column& column) {
    return std::u16string(kind) + u", and the column " + column.name + u" is " + std::u16string(nameOf(column.type));
}

}  // namespace

FieldSource sourceOf(std::u16string_view dataField, std::u16string_view controlName) {
    if (dataField.empty()) return {databaseName(controlName), std::u16string(controlName)};
    const std::size_t front = dataField.size() - std::min(dataField.size(), TagMark.size());
    const bool byTag = front > 0 && compareFolded(dataField.substr(front), TagMark) == 0;
    return {std::u16string(byTag ? dataField.substr(0, front) : dataField), {}, byTag};
}

std::optional<std::size_t> FieldSource::in(const Table& table) const {
    if (!name.empty())
        if (const auto named = table.find(name)) return named;
    return table.find(column);
}

// ---- The control

Binding::Kind Binding::kindOf(PlacedControl& control) {
    static constexpr std::pair<std::u16string_view, Kind> Kinds[] = {
        {u"KelText", Kind::Text}, {u"KelNumber", Kind::Number}, {u"KelDate", Kind::Date},
        {u"KelTime", Kind::Time}, {u"KelCombo", Kind::Combo},   {u"KelCheck", Kind::Check}};
    for (const auto& [name, kind] : Kinds)
        if (control.control().model().name == name) return kind;
    return Kind::None;
}

const MemberRow& Binding::valueMember() const { return *findMember(Control_->control().model(), DefaultMemberId); }

Variant Binding::get(std::u16string_view member) const {
    Variant value;
    const MemberRow* const row = findMember(Control_->control().model(), member);
    if (row != nullptr) getMember(Control_->control(), *row, {}, value, *Region_);
    return value;
}

void Binding::put(std::u16string_view member, const Variant& value) const {
    const MemberRow* const row = findMember(Control_->control().model(), member);
    if (row != nullptr) putMember(Control_->control(), *row, value, *Region_);
}

bool isField(const Control& control) {
    return control.model().isControl() && findMember(control.model(), u"ChangedSaved") != nullptr;
}

std::vector<Binding> bind(const Form& form, const Table& table, const RegionalSettings& region, Store* others) {
    const auto refuse = [](const std::u16string& message) {
        throw StoreError(StoreError::Kind::Wrong, toUtf8(message));
    };
    std::vector<Binding> bindings;
    for (const Form::Placed& placed : form.inTabOrder()) {
        if (!isField(placed.control->control())) continue;
        const FieldSource source = sourceOf(form.file().text(placed.block, u"DataField"), placed.control->name());
        const auto column = source.in(table);
        if (!column) refuse(u"The table " + table.name + u" has no column " + source.column + u".");
        // What is typed in the one would be overwritten by the other; but a day and a time go together.
        for (const Binding& other : bindings)
            if (other.column() == *column && (table.columns[*column].type != ColumnType::Moment ||
                                              &other.control().control().model() == &placed.control->control().model()))
                refuse(other.control().name() + u" and " + placed.control->name() + u" are both kept in the column " +
                       table.columns[*column].name + u".");
        bindings.emplace_back(placed, *column, source.byTag, region);
        if (const auto misfit = bindings.back().misfit(table.columns[*column])) refuse(*misfit + u".");
        if (others != nullptr) bindings.back().offer(*others, table.columns[*column]);
    }
    return bindings;
}

// ---- Fitting

std::optional<std::u16string> Binding::misfit(const Column& column) const {
    const ColumnType type = column.type;
    const bool isWhole = type == ColumnType::Integer;
    const bool isNumber = isWhole || type == ColumnType::Real || type == ColumnType::Decimal;
    const std::u16string shows = Control_->name() + u" shows ";
    switch (Kind_) {
        case Kind::Text:
            if (type != ColumnType::Text) return articled(shows + u"text", column);
            break;
        case Kind::Combo:
            if (type != ColumnType::Text && !(ByTag_ && isWhole)) return articled(shows + u"text", column);
            break;
        case Kind::Number:
            if (!isNumber) return articled(shows + u"a number", column);
            if (isWhole && shortIn(get(u"Decimals")) != 0) return articled(shows + u"a number with decimals", column);
            break;
        case Kind::Date:
            if (type != ColumnType::Date && type != ColumnType::Moment) return articled(shows + u"a date", column);
            break;
        case Kind::Time:
            if (type != ColumnType::Time && type != ColumnType::Moment) return articled(shows + u"a time", column);
            break;
        case Kind::Check:
            if (type != ColumnType::Truth && !isWhole) return articled(shows + u"yes or no", column);
            break;
        case Kind::None: return Control_->name() + u" keeps no value";
    }
    return std::nullopt;
}

Column Binding::ownColumn() const {
    Column column;
    switch (Kind_) {
        case Kind::Number: column.type = ColumnType::Real; break;
        case Kind::Date: column.type = ColumnType::Date; break;
        case Kind::Time: column.type = ColumnType::Time; break;
        case Kind::Check: column.type = ColumnType::Truth; break;
        default: break;
    }
    return column;
}

// ---- There and back

void Binding::offer(Store& store, const Column& column) {
    const Variant list = get(u"List");
    if (!ByTag_ || Kind_ != Kind::Combo || textIn(list) == nullptr || !textIn(list)->empty()) return;
    if (const std::optional<Table> table = lookupTable(store, column))
        Lookup_ = std::make_unique<LookupField>(*Control_, Lookup(store, *table), *Region_);
}

std::u16string Binding::tag() const {
    if (Lookup_) return Lookup_->key();
    const Variant tag = get(u"ListTagItem");
    return textIn(tag) != nullptr ? *textIn(tag) : std::u16string();
}

bool Binding::isWithoutTag() const {
    if (!ByTag_ || Kind_ != Kind::Combo) return false;
    static_cast<void>(get(u"Text"));  // settles what is half typed
    const ComboBox& box = *Control_->control().widgets().comboBox;
    return !box.text().empty() && box.items().findExact(box.text()) == ListItems::NotFound;
}

std::u16string Binding::textWithTag(const std::u16string& tag) const {
    if (Lookup_) return Lookup_->textOf(tag);
    const MemberRow& itemMember = *findMember(Control_->control().model(), u"ListItem");
    const MemberRow& tagMember = *findMember(Control_->control().model(), u"ListTagItem");
    const Variant items = get(u"ListCount");
    const auto* const count = std::get_if<std::int32_t>(&items);
    for (std::int32_t item = 1; count != nullptr && item <= *count; ++item) {
        std::array<Variant, 1> place{static_cast<std::int16_t>(item)};
        Variant found;
        getMember(Control_->control(), tagMember, place, found, *Region_);
        if (textIn(found) == nullptr || *textIn(found) != tag) continue;
        getMember(Control_->control(), itemMember, place, found, *Region_);
        return textIn(found) != nullptr ? *textIn(found) : std::u16string();
    }
    return {};
}

std::optional<Date> Binding::dayOrTimeIn(std::u16string_view text) const {
    return Kind_ == Kind::Time ? readIsoTime(text) : readIsoDay(text);
}

void Binding::show(const Cell& cell) {
    if (Lookup_) {
        Lookup_->show(records::textOf(cell));
        return markStored();
    }
    const MemberRow& member = valueMember();
    Variant value;
    switch (Kind_) {
        case Kind::Number: value = numberIn(cell); break;
        case Kind::Check: value = numberIn(cell) != 0; break;
        case Kind::Date:
        case Kind::Time: {
            const auto date = dayOrTimeIn(records::textOf(cell));
            value = Null{};
            if (date) value = *date;
            break;
        }
        default: value = ByTag_ ? textWithTag(records::textOf(cell)) : records::textOf(cell); break;
    }
    putMember(Control_->control(), member, value, *Region_);
    markStored();
}

void Binding::showDefault(const Form& form) { form.reload({Block_, Control_}, valueMember().persisted); }

void Binding::markStored() {
    const std::u16string name(valueMember().name);
    const Variant now = get(name);
    put(name + u"Original", now);
    put(name + u"Saved", now);
    if (Lookup_) Lookup_->markStored();
    StoredLook_ = look();
}

std::u16string Binding::look() const {
    const WidgetSet widgets = Control_->control().widgets();
    if (widgets.entry != nullptr) return widgets.entry->text();
    return isTrue(valueMember().name) ? u"yes" : u"no";
}

bool Binding::looksChanged() const {
    const std::u16string now = look();
    if (now == StoredLook_ || Kind_ != Kind::Number) return now != StoredLook_;
    // A field that is being edited shows the same number otherwise: 12.5 in place of 12.50.
    double number = 0;
    double stored = 0;
    return readNumber(now, *Region_, number) != NumberReading::Number ||
           readNumber(StoredLook_, *Region_, stored) != NumberReading::Number || number != stored;
}

bool Binding::isTrue(std::u16string_view member) const { return records::isTrue(get(member)); }

bool Binding::isChanged() const { return isTrue(u"ChangedSaved"); }

bool Binding::isDrawn(double number, const Cell& before) const {
    if (isNull(before)) return false;
    const Variant least = get(u"MinValue");
    const Variant most = get(u"MaxValue");
    const double there = numberIn(before);
    return there != number && number == std::clamp(there, std::get<double>(least), std::get<double>(most));
}

Cell Binding::cell(const Column& column, const Cell& before) const {
    if (ByTag_) return textCell(column, tag());
    const Variant value = get(valueMember().name);
    if (const std::u16string* const text = textIn(value)) return textCell(column, *text);
    if (const auto* const number = std::get_if<double>(&value))
        return isDrawn(*number, before) ? before : numberCell(column, *number);
    if (const bool* const truth = std::get_if<bool>(&value)) return static_cast<std::int64_t>(*truth ? 1 : 0);
    if (const auto* const date = std::get_if<Date>(&value))
        return dateCell(column.type, Kind_ == Kind::Time, *date, before);
    // Without a time of day a moment is the beginning of its day.
    if (Kind_ == Kind::Time && column.type == ColumnType::Moment && !isNull(before))
        return dateCell(column.type, true, Date{0}, before);
    return Null{};
}

Cell Binding::joined(const Cell& other, const Cell& own) const {
    if (isNull(other)) return own;
    const auto* const text = std::get_if<std::u16string>(&own);
    const auto shown = text != nullptr ? dayOrTimeIn(*text) : std::nullopt;
    if (shown) return dateCell(ColumnType::Moment, Kind_ == Kind::Time, *shown, other);
    // Without a day there is no moment, and without a time of day the other field's stands.
    return Kind_ == Kind::Time ? other : own;
}

std::u16string Binding::dayMissing() const {
    return caption() +
           (showsDay() ? u": please fill in the day." : u": a time needs a day, and no field of the form shows that.");
}

void addValue(std::vector<Change>& values, const Binding& binding, const Cell& own) {
    if (Change* const other = changeOf(values, binding.column()))
        other->value = binding.joined(other->value, own);
    else
        values.push_back({binding.column(), own});
}

bool lacksDay(const Column& column, const Cell& cell) {
    const auto* const text = std::get_if<std::u16string>(&cell);
    return column.type == ColumnType::Moment && text != nullptr && !readIsoDay(*text) && readIsoTime(*text);
}

bool Binding::holds(const Column& column, const Cell& now) const {
    if (Kind_ == Kind::Number && isDrawn(std::get<double>(get(valueMember().name)), now)) return false;
    const Cell own = cell(column, now);
    return own == now || (Kind_ == Kind::Number && !isNull(now) && numberIn(own) == numberIn(now));
}

std::u16string Binding::textOf(const Cell& cell) const {
    if (ByTag_) return textWithTag(records::textOf(cell));
    if (Kind_ == Kind::Check) return numberIn(cell) != 0 ? u"yes" : u"no";
    return records::textOf(cell);
}

std::u16string Binding::shownTextOf(const Cell& cell) const {
    switch (isNull(cell) ? Kind::None : Kind_) {
        case Kind::Number: {
            const Variant decimals = get(u"Decimals");
            const auto* const count = std::get_if<std::int16_t>(&decimals);
            const std::int16_t places = count == nullptr || *count < 0 ? Region_->DecimalDigits : *count;
            return displayText(numberIn(cell), places, isTrue(u"GroupDigits"), *Region_);
        }
        case Kind::Date:
        case Kind::Time: {
            const std::u16string text = records::textOf(cell);
            const auto date = dayOrTimeIn(text);
            const Variant format = get(u"Format");
            return date && textIn(format) != nullptr ? FieldFormat(*textIn(format)).show(date, *Region_) : text;
        }
        default: return textOf(cell);
    }
}

std::optional<std::u16string> Binding::searchedTextOf(const Cell& cell) const {
    if (isNull(cell) || Kind_ == Kind::Check) return std::nullopt;
    if (Lookup_) return Lookup_->listedTextOf(records::textOf(cell));
    std::u16string shown = shownTextOf(cell);
    return shown.empty() || shown == records::textOf(cell) ? std::nullopt : std::optional(std::move(shown));
}

// ---- The person

bool Binding::saysWhy() const { return !findMember(Control_->control().model(), u"Valid")->parameters().empty(); }

std::u16string Binding::whyNotValid() const {
    if (isWithoutTag()) return caption() + u' ' + notInList(look()) + u'.';
    return caption() + u": please fill in this field.";
}

bool Binding::isValid(bool sayWhy) const {
    if (isWithoutTag()) return false;
    const MemberRow& row = *findMember(Control_->control().model(), u"Valid");
    std::array<Variant, 1> say{sayWhy};
    Variant valid = true;
    getMember(Control_->control(), row, std::span(say).first(row.parameters().size()), valid, *Region_);
    return records::isTrue(valid);
}

std::u16string Binding::caption() const {
    const Variant caption = get(u"Caption");
    const std::u16string* const text = textIn(caption);
    return text == nullptr || text->empty() ? Control_->name() : readCaption(*text).text;
}

}  // namespace kel::records
