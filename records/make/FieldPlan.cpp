#include "records/make/FieldPlan.h"

#include <algorithm>
#include <cmath>

#include "records/Binding.h"
#include "records/make/Words.h"
#include "records/Moments.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel::records {

namespace {

using Words = std::vector<std::u16string>;

constexpr std::int32_t RecordsLookedAt = 100;
constexpr std::size_t LongestLine = 80;     ///< characters; a longer text has several lines
constexpr std::int32_t LongestShort = 120;  ///< of a column that says how long its texts may be
constexpr std::int32_t MostMaxLength = INT16_MAX;
constexpr std::int32_t MostDecimals = 6;  ///< of a number that may have any
/// A field shows every digit of such a number.
constexpr double MostNumber = 999999999999999.0;
constexpr std::size_t LongestName = 36;

// Twips.
constexpr std::int32_t Character = 105;
constexpr std::int32_t Edges = 150;
constexpr std::int32_t Button = 300;  ///< spinner, or that of a list
constexpr std::int32_t Narrowest = 750;
constexpr std::int32_t Widest = 4200;

std::int32_t widthOf(std::int32_t characters, std::int32_t beside = 0) {
    return std::clamp(characters * Character + Edges + beside, Narrowest, Widest);
}

/// By a word that such columns have everywhere.
bool soundsLong(const Words& words) {
    static constexpr std::u16string_view Long[] = {u"note",    u"notes",    u"remark", u"remarks",
                                                   u"comment", u"comments", u"memo",   u"description",
                                                   u"details", u"body",     u"message"};
    return !words.empty() && std::find(std::begin(Long), std::end(Long), words.back()) != std::end(Long);
}

/// "customer_id" is the customer, where the field shows who that is.
Words withoutKeyWord(Words words) {
    static constexpr std::u16string_view KeyWords[] = {u"id", u"key", u"fk", u"ref", u"code", u"no", u"nr", u"number"};
    if (words.size() > 1 && std::find(std::begin(KeyWords), std::end(KeyWords), words.back()) != std::end(KeyWords))
        words.pop_back();
    return words;
}

/// The region's order, with all of the year.
std::u16string dateFormatOf(const RegionalSettings& region) {
    const std::u16string& usual = region.ShortDateFormat;
    const std::size_t day = usual.find(u'd');
    const std::size_t month = usual.find(u'm');
    const std::size_t year = usual.find(u'y');
    const std::u16string separator =
        region.DateSeparator == u"." || region.DateSeparator == u"-" ? region.DateSeparator : u"/";
    if (year < month && year < day) return u"yyyy" + separator + u"mm" + separator + u"dd";
    if (month < day) return u"mm" + separator + u"dd" + separator + u"yyyy";
    return u"dd" + separator + u"mm" + separator + u"yyyy";
}

double largestOf(const Column& column) {
    if (column.type == ColumnType::Integer) return column.most > 0 ? static_cast<double>(column.most) : MostNumber;
    const std::int32_t places = column.length - column.decimals;
    if (column.type != ColumnType::Decimal || column.length == 0 || places > 15) return MostNumber;
    return std::pow(10.0, places) - std::pow(10.0, -column.decimals);
}

}  // namespace

FieldPlanner::FieldPlanner(Store& store, const Table& table, const RegionalSettings& region)
    : Store_(store),
      Table_(table),
      Region_(region),
      Seen_(store.open(table)->walk(nullptr, Way::Forward, RecordsLookedAt, {})) {}

std::vector<FieldPlan> FieldPlanner::fieldsFor(std::size_t column) {
    if (column == Table_.version) return {};
    if (const std::optional<Table> others = lookupTable(Store_, at(column))) return {list(column, *others)};
    switch (at(column).type) {
        case ColumnType::Text: return {text(column)};
        case ColumnType::Integer:
        case ColumnType::Real:
        case ColumnType::Decimal: return {number(column)};
        case ColumnType::Date: return {date(column)};
        case ColumnType::Time: return {time(column)};
        case ColumnType::Truth: return {check(column)};
        case ColumnType::Other: return {};
        case ColumnType::Moment: break;
    }
    FieldPlan day = date(column);
    FieldPlan hours = time(column);
    hours.isBesideBefore = true;
    hours.caption = u"Time";
    return {std::move(day), std::move(hours)};
}

// ---- What all have

std::u16string FieldPlanner::freeName(std::u16string_view prefix, const Words& words) {
    const std::u16string wanted = std::u16string(prefix) + nameOf(words).substr(0, LongestName);
    for (int i = 1;; ++i) {
        std::u16string name = wanted + (i == 1 && wanted != prefix ? u"" : widen(std::to_string(i)));
        std::u16string small = name;
        std::transform(small.begin(), small.end(), small.begin(), &toLowerAscii);
        if (Names_.insert(small).second) return name;
    }
}

/// The database gives the value, and nobody else can.
bool FieldPlanner::isGiven(std::size_t column) const {
    return at(column).generated || (Table_.isKey(column) && at(column).hasDefault);
}

/// What takes the database to work it out, the field leaves to it.
bool FieldPlanner::showsDefault(std::size_t column, std::u16string_view className) const {
    const std::u16string& initial = at(column).initial;
    if (className == u"KelDate") return initial == u"Now" || readIsoDay(initial);
    if (className == u"KelTime") return readIsoTime(initial).has_value();
    return className != u"KelCombo" && !initial.empty();
}

FieldPlan FieldPlanner::plan(std::size_t column, std::u16string_view className, const Words& words) {
    static constexpr std::pair<std::u16string_view, std::u16string_view> Prefixes[] = {
        {u"KelText", u"txt"}, {u"KelNumber", u"num"}, {u"KelDate", u"dat"},
        {u"KelTime", u"tim"}, {u"KelCombo", u"cbo"},  {u"KelCheck", u"chk"}};
    const auto* const prefix = std::find_if(std::begin(Prefixes), std::end(Prefixes),
                                            [&](const auto& each) { return each.first == className; });
    FieldPlan plan;
    plan.className = className;
    plan.name = freeName(prefix->second, words);
    plan.caption = captionOf(words);
    if (plan.caption.empty()) plan.caption = at(column).name;
    const bool isByTag = className == u"KelCombo";
    if (isByTag)
        plan.dataField = at(column).name + u":tag";
    else if (sourceOf({}, plan.name).in(Table_) != column)
        plan.dataField = at(column).name;
    const bool isLeft = at(column).hasDefault && !showsDefault(column, className);
    const bool needsValue = (at(column).notNull || Table_.isKey(column)) && !isLeft;
    // A mandatory number is one other than zero, and a check field always says something.
    const bool hasAlways = className == u"KelCheck" || (className == u"KelNumber" && at(column).hasDefault);
    plan.properties = {{u"Mandatory", needsValue && !hasAlways && !isGiven(column)}};
    if (isGiven(column)) {
        plan.properties.emplace_back(u"Locked", true);
        plan.properties.emplace_back(u"TabStop", false);
    }
    return plan;
}

// ---- Each kind

bool FieldPlanner::isLongText(std::size_t column) const {
    const std::int32_t length = at(column).length;
    if (length > 0) return length > LongestShort;
    const auto isLong = [&](const Record& record) {
        const auto* const text = std::get_if<std::u16string>(&record.cells[column]);
        return text != nullptr && (text->size() > LongestLine || text->find(u'\n') != std::u16string::npos);
    };
    return std::any_of(Seen_.begin(), Seen_.end(), isLong) || soundsLong(wordsOf(at(column).name));
}

FieldPlan FieldPlanner::text(std::size_t column) {
    FieldPlan field = plan(column, u"KelText", wordsOf(at(column).name));
    const std::int32_t length = at(column).length;
    if (length > 0 && length <= MostMaxLength)
        field.properties.emplace_back(u"MaxLength", static_cast<std::int16_t>(length));
    if (!at(column).initial.empty()) field.properties.emplace_back(u"Text", at(column).initial);
    field.width = length == 0 ? Widest : widthOf(length);
    if (isLongText(column)) {
        field.properties.emplace_back(u"MultiLine", true);
        field.width = Widest;
        field.rows = 3;
    }
    return field;
}

/// As many as are used, at least two; three where nothing can be seen yet.
std::int32_t FieldPlanner::decimalsSeen(std::size_t column) const {
    std::size_t most = Seen_.empty() ? 3 : 2;
    for (const Record& record : Seen_) {
        const std::u16string text = textOf(record.cells[column]);
        const std::size_t point = text.find(u'.');
        if (point != std::u16string::npos) most = std::max(most, text.size() - point - 1);
    }
    return std::min(static_cast<std::int32_t>(most), MostDecimals);
}

FieldPlan FieldPlanner::number(std::size_t column) {
    const Column& kept = at(column);
    FieldPlan field = plan(column, u"KelNumber", wordsOf(kept.name));
    const bool isWhole = kept.type == ColumnType::Integer;
    const std::int32_t decimals = isWhole                                               ? 0
                                  : kept.type == ColumnType::Decimal && kept.length > 0 ? std::min(kept.decimals, 16)
                                                                                        : decimalsSeen(column);
    const double most = largestOf(kept);
    field.properties.emplace_back(u"Decimals", static_cast<std::int16_t>(decimals));
    field.properties.emplace_back(u"MaxValue", most);
    field.properties.emplace_back(u"MinValue", -most);
    // Numbers of orders and years are read in one.
    if (isWhole) field.properties.emplace_back(u"GroupDigits", false);
    double initial = 0;
    if (readPlainNumber(kept.initial, defaultRegion(), initial) && initial != 0)
        field.properties.emplace_back(u"Value", initial);
    field.width = widthOf(isWhole ? 11 : std::clamp(kept.length * 4 / 3 + 2, 12, 20));
    return field;
}

FieldPlan FieldPlanner::date(std::size_t column) {
    FieldPlan field = plan(column, u"KelDate", wordsOf(at(column).name));
    Variant value = std::u16string();
    if (at(column).initial == u"Now") value = std::u16string(u"Now");
    if (const auto day = readIsoDay(at(column).initial)) value = *day;
    field.properties.emplace_back(u"Format", dateFormatOf(Region_));
    field.properties.emplace_back(u"Value", value);
    field.width = widthOf(11, Button);
    return field;
}

FieldPlan FieldPlanner::time(std::size_t column) {
    FieldPlan field = plan(column, u"KelTime", wordsOf(at(column).name));
    Variant value = std::u16string();
    if (const auto time = readIsoTime(at(column).initial)) value = *time;
    field.properties.emplace_back(u"Format", std::u16string(u"hh:nn"));
    field.properties.emplace_back(u"Value", value);
    field.width = widthOf(6, Button);
    return field;
}

FieldPlan FieldPlanner::check(std::size_t column) {
    Words words = wordsOf(at(column).name);
    if (words.size() > 1 && words.front() == u"is") words.erase(words.begin());
    FieldPlan field = plan(column, u"KelCheck", words);
    const std::u16string& initial = at(column).initial;
    field.properties.emplace_back(u"Value", initial == u"1" || initial == u"t" || equalsIgnoringCase(initial, u"true"));
    field.width = widthOf(static_cast<std::int32_t>(field.caption.size()), Button);
    return field;
}

FieldPlan FieldPlanner::list(std::size_t column, const Table& others) {
    FieldPlan field = plan(column, u"KelCombo", withoutKeyWord(wordsOf(at(column).name)));
    const std::int32_t length = others.columns.back().length;
    field.width = length > 0 ? widthOf(std::max(length, 12), Button) : widthOf(30, Button);
    return field;
}

}  // namespace kel::records
