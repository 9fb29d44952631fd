#include "records/exchange/Importer.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "records/exchange/Csv.h"
#include "values/CaseFolding.h"
#include "values/Text.h"

namespace kel::records {

namespace {

/// That are stored together. Each time the disk has to turn; meanwhile nobody else can write.
constexpr std::int64_t MostTogether = 50'000;
constexpr std::int64_t BetweenQuestions = 32;
/// Different values of a column that are remembered: a town, a day or a yes comes again and again.
constexpr std::size_t MostKnown = 512;
// In front of what is rejected.
constexpr std::string_view NumberHeading = "line";
constexpr std::string_view ReasonHeading = "reason";

/// A message of a control or of a database on one line.
std::string onOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char character) { return character == '\r' || character == '\n'; }, ' ');
    return text;
}

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

}  // namespace

/// The machine as the fields see it, whose messages are reasons.
class Importer::Listening final : public System {
public:
    explicit Listening(System& platform) : Platform_(platform) {}

    std::string takeHeard() { return std::exchange(Heard_, {}); }

    Date today() const override { return Platform_.today(); }
    double timer() const override { return Platform_.timer(); }
    void messageBox(std::u16string_view prompt, std::int32_t, std::u16string_view) override { Heard_ = toUtf8(prompt); }
    void beep() override {}
    bool tabKeyDown() const override { return false; }
    TwipScale scale() const override { return Platform_.scale(); }

private:
    System& Platform_;
    std::string Heard_;
};

struct Importer::Field {
    struct Known {
        Cell cell;
        std::string reason;
    };
    explicit Field(Binding field) : binding(std::move(field)) {}

    Binding binding;
    std::optional<std::size_t> place{};  ///< of its column in the list
    std::unordered_map<std::string, Known, TextHash, std::equal_to<>> known{};
    Known last{};

    std::string caption() const { return toUtf8(binding.caption()); }
};

Importer::Importer(Home& unseen, const FormFile& form, RecordStore& records, Store* others)
    : System_(std::make_unique<Listening>(unseen.system())),
      Region_(unseen.region()),
      Numbers_(&Region_),
      Form_(unseen, *System_, Observer_, form),
      Records_(records) {
    Form_.show();
    for (Binding& binding : bind(Form_, records.table(), Region_, others)) Fields_.emplace_back(std::move(binding));
}

Importer::~Importer() = default;

const Column& Importer::columnOf(const Field& field) const { return Records_.table().columns[field.binding.column()]; }

// ---- The columns of the list

void Importer::findColumns(const CsvReader& header, Result& result) {
    const auto isMeant = [&](const Field& field, const std::u16string& heading) {
        return Records_.table().find(heading) == field.binding.column() ||
               isSameName(field.binding.control().name(), heading) ||
               compareFolded(field.binding.caption(), heading) == 0;
    };
    for (std::size_t place = 0; place < header.size(); ++place) {
        const std::u16string heading = fromUtf8(header.value(place)).value_or(u"");
        bool found = false;
        for (Field& field : Fields_) {
            if (heading.empty() || !isMeant(field, heading)) continue;
            if (field.place)
                throw StoreError(StoreError::Kind::Wrong, "The list has two columns for " + field.caption() + ".",
                                 columnOf(field).name);
            field.place = place;
            found = true;
        }
        if (!found) result.passedOver.emplace_back(header.value(place));
    }
    if (std::none_of(Fields_.begin(), Fields_.end(), [](const Field& field) { return field.place.has_value(); }))
        throw StoreError(StoreError::Kind::Wrong,
                         "The first line of the list has no heading that means a field of the form.");
}

void Importer::takeFieldsInOrder(std::size_t columns) {
    std::vector<std::size_t> places;
    for (Field& field : Fields_) {
        auto found = std::find(places.begin(), places.end(), field.binding.column());
        if (found == places.end()) found = places.insert(places.end(), field.binding.column());
        const auto place = static_cast<std::size_t>(found - places.begin());
        if (place < columns) field.place = place;
    }
    if (columns > places.size())
        throw StoreError(StoreError::Kind::Wrong, "The first line of the list has " + std::to_string(columns) +
                                                      " values, and the form has " + std::to_string(places.size()) +
                                                      " fields.");
}

/// For a list of `count` columns that has no headings.
std::vector<std::string> Importer::columnNames(std::size_t count) const {
    std::vector<std::string> names(count);
    for (const Field& field : Fields_)
        if (field.place) names[*field.place] = toUtf8(columnOf(field).name);
    return names;
}

/// What the list says nothing of stays as it is in a new record.
void Importer::settleFields() {
    for (Field& field : Fields_) {
        field.known.clear();
        if (field.place) continue;
        field.binding.showDefault(Form_);
        if (const std::string reason = whyNotValid(field); !reason.empty())
            throw StoreError(StoreError::Kind::Wrong,
                             "The list has no column for a field that a new record needs. " + reason,
                             columnOf(field).name);
        field.last.cell =
            field.binding.isGiven(columnOf(field)) ? Cell(Null{}) : field.binding.cell(columnOf(field), Null{});
    }
}

// ---- The values of a line

std::string Importer::whyNotValid(Field& field) {
    if (field.binding.isValid(false)) return {};
    System_->takeHeard();
    if (field.binding.saysWhy()) field.binding.isValid(true);
    const std::string heard = System_->takeHeard();
    return heard.empty() ? toUtf8(field.binding.whyNotValid()) : field.caption() + ": " + heard;
}

Cell Importer::readAnew(Field& field, std::string_view value, std::string& reason) {
    const std::optional<std::u16string> text = fromUtf8(value);
    if (!text) {
        reason = field.caption() + " is not written in UTF-8";
        return Null{};
    }
    const Column& column = columnOf(field);
    if (const auto wrong = field.binding.take(*text, *Numbers_)) {
        reason = field.caption() + " " + toUtf8(*wrong);
        return Null{};
    }
    reason = whyNotValid(field);
    if (text->empty() && !column.notNull) return Null{};
    return field.binding.cell(column, Cell(*text));
}

const Cell* Importer::read(Field& field, std::string_view value, std::string& reason) {
    const auto found = field.known.find(value);
    const Field::Known* known = &field.last;
    if (found != field.known.end()) {
        known = &found->second;
    } else {
        field.last.reason.clear();
        field.last.cell = readAnew(field, value, field.last.reason);
        if (field.known.size() < MostKnown) known = &(field.known[std::string(value)] = field.last);
    }
    reason = known->reason;
    return reason.empty() ? &known->cell : nullptr;
}

bool Importer::take(const CsvReader& line, std::string& reason) {
    Values_.clear();
    for (Field& field : Fields_) {
        const Cell* const cell = field.place ? read(field, line.value(*field.place), reason) : &field.last.cell;
        if (cell == nullptr) return false;
        // Of a moment the list may give the day alone, or both in one.
        if (isNull(*cell) && changeOf(Values_, field.binding.column()) != nullptr) continue;
        if (!isLeftToDatabase(columnOf(field), *cell)) addValue(Values_, field.binding, *cell);
    }
    reason = whyNoMoment();
    return reason.empty();
}

std::string Importer::whyNoMoment() const {
    for (const Change& change : Values_) {
        if (!lacksDay(Records_.table().columns[change.column], change.value)) continue;
        const auto isOf = [&](const Field& field) { return field.binding.column() == change.column; };
        const auto day = std::find_if(Fields_.begin(), Fields_.end(),
                                      [&](const Field& field) { return isOf(field) && field.binding.showsDay(); });
        const auto field = day != Fields_.end() ? day : std::find_if(Fields_.begin(), Fields_.end(), isOf);
        return toUtf8(field->binding.dayMissing());
    }
    return {};
}

/// Leaves a reason where the database does not take this one.
void Importer::store(std::string& reason) {
    try {
        Records_.add(Values_);
    } catch (const StoreError& error) {
        if (error.kind() != StoreError::Kind::Constraint) throw;
        const auto column = Records_.table().find(error.column());
        const auto field = std::find_if(Fields_.begin(), Fields_.end(),
                                        [&](const Field& each) { return each.binding.column() == column; });
        reason = toUtf8(error.wordsAbout(field == Fields_.end() ? std::u16string() : field->binding.caption()));
    }
}

/// Empty when it is stored.
std::string Importer::takeRecord(const CsvReader& line, std::size_t columns) {
    std::string reason;
    if (line.isOpen())
        reason = "A quote is opened and never closed.";
    else if (line.size() != columns)
        reason = "The line has " + std::to_string(line.size()) + " values in place of " + std::to_string(columns) + ".";
    else if (take(line, reason))
        store(reason);
    return reason;
}

// ---- All of it

namespace {

/// Some records that are stored together, or all.
class Batch {
public:
    Batch(RecordStore& records, bool isAll, std::int64_t& stored) : Records_(records), IsAll_(isAll), Stored_(stored) {
        Records_.begin();
    }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    ~Batch() {
        if (IsOpen_) Records_.rollBack();
    }

    void add() {
        if (++Count_ < MostTogether || IsAll_) return;
        commit();
        Records_.begin();
        IsOpen_ = true;
    }
    void commit() {
        Records_.commit();
        IsOpen_ = false;
        Stored_ += std::exchange(Count_, 0);
    }

private:
    RecordStore& Records_;
    bool IsAll_;
    std::int64_t& Stored_;
    std::int64_t Count_ = 0;
    bool IsOpen_ = true;
};

std::vector<std::string> valuesOf(const CsvReader& line) {
    std::vector<std::string> values;
    for (std::size_t i = 0; i < line.size(); ++i) values.emplace_back(line.value(i));
    return values;
}

/// The list of what was left out.
class Rejects {
public:
    /// `headings` name the columns of the list.
    Rejects(const Importer::Reject& put, const std::vector<std::string>& headings, char separator) : Put_(put) {
        appendCsv(Headings_, NumberHeading, separator, true);
        appendCsv(Headings_, ReasonHeading, separator, false);
        for (const std::string& heading : headings) appendCsv(Headings_, heading, separator, false);
        Headings_ += CsvLineEnd;
    }

    void put(const CsvReader& line, const std::string& reason) {
        if (Count_++ == 0) Put_(Headings_);
        Put_(lineOf(std::to_string(line.line()), onOneLine(reason), line));
    }
    std::int64_t count() const { return Count_; }

private:
    static std::string lineOf(std::string_view number, std::string_view reason, const CsvReader& values) {
        std::string text;
        appendCsv(text, number, values.separator(), true);
        appendCsv(text, reason, values.separator(), false);
        for (std::size_t i = 0; i < values.size(); ++i) appendCsv(text, values.value(i), values.separator(), false);
        return text.append(CsvLineEnd);
    }

    const Importer::Reject& Put_;
    std::string Headings_;
    std::int64_t Count_ = 0;
};

}  // namespace

Importer::Result Importer::run(std::istream& list, const ListFormat& format, bool allOrNothing, const Reject& reject,
                               const GoesOn& goesOn) {
    Result result;
    CsvReader line(list, format.separator);
    Numbers_ = &numbersIn(line.separator(), Region_);
    if (!line.next()) return result;
    for (Field& field : Fields_) field.place.reset();
    // A list of rejects is taken in again, also where the list itself had no headings.
    const bool hasHeader =
        format.hasHeader || (line.size() > 2 && line.value(0) == NumberHeading && line.value(1) == ReasonHeading);
    if (hasHeader)
        findColumns(line, result);
    else
        takeFieldsInOrder(line.size());
    settleFields();
    Rejects rejects(reject, hasHeader ? valuesOf(line) : columnNames(line.size()), line.separator());
    const std::size_t columns = line.size();
    try {
        Batch batch(Records_, allOrNothing, result.stored);
        bool isThere = !hasHeader || line.next();
        for (std::int64_t count = 1; isThere; ++count, isThere = line.next()) {
            const std::string reason = takeRecord(line, columns);
            if (reason.empty())
                batch.add();
            else
                rejects.put(line, reason);
            result.isStopped = count % BetweenQuestions == 0 && !goesOn(line.done());
            if (result.isStopped) break;
        }
        if (!allOrNothing || (rejects.count() == 0 && !result.isStopped)) batch.commit();
    } catch (const StoreError& error) {
        result.failure = error.what();
    }
    result.rejected = rejects.count();
    return result;
}

}  // namespace kel::records
