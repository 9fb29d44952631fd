#include "records/RecordScript.h"

#include <algorithm>
#include <cmath>

#include "forms/ScriptValue.h"
#include "records/OpenTable.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr double FarthestPlace = 1e15;
constexpr std::u16string_view Answers[] = {u"save", u"discard", u"stay", u"yes", u"no",
                                           u"mine", u"theirs",  u"keep", u"back"};

std::pair<std::u16string_view, std::u16string_view> firstWord(std::u16string_view text) {
    const std::size_t end = std::min(text.find(u' '), text.size());
    const std::size_t next = std::min(text.find_first_not_of(u' ', end), text.size());
    return {text.substr(0, end), text.substr(next)};
}

/// The same on every database: one gives a decimal number with all its places, 12.50, another none that it can leave
/// out.
std::u16string cellText(const Column& column, const Cell& cell) {
    if (isNull(cell)) return u"Null";
    if (column.type == ColumnType::Decimal) {
        std::u16string number = textOf(cell);
        if (number.find(u'.') != std::u16string::npos) number.erase(number.find_last_not_of(u'0') + 1);
        if (number.ends_with(u'.')) number.pop_back();
        return number;
    }
    if (const auto* const text = std::get_if<std::u16string>(&cell)) return quoteScriptText(*text);
    return textOf(cell);
}

[[noreturn]] void fail(std::u16string_view message) { throw RecordCommands::Error(toUtf8(message)); }

}  // namespace

void RecordScript::formOpened(Form& form) {
    const Table table = openTable(*Store_, form, TableName_, *Region_, {});
    Records_ = Store_->open(table);
    Questions& questions = *this;
    Form_ = std::make_unique<RecordForm>(form, *Records_, questions, *Region_, Store_);
}

void RecordScript::formCloses() {
    Form_.reset();
    Records_.reset();
}

void RecordScript::run(std::u16string_view command, const Print& print) {
    Print_ = print;
    const auto [verb, rest] = firstWord(command);
    if (!runAlone(verb, rest) && !runMove(verb, rest) && !runChange(verb, rest))
        fail(u"there is no command \"" + std::u16string(verb) + u"\"");
}

// ---- The commands

bool RecordScript::runAlone(std::u16string_view verb, std::u16string_view rest) {
    struct Row {
        std::u16string_view verb;
        bool (RecordForm::*action)();
    };
    static constexpr Row Rows[] = {{u"first", &RecordForm::toFirst}, {u"previous", &RecordForm::toPrevious},
                                   {u"next", &RecordForm::toNext},   {u"last", &RecordForm::toLast},
                                   {u"new", &RecordForm::startNew},  {u"duplicate", &RecordForm::duplicate},
                                   {u"delete", &RecordForm::remove}};
    const auto* const row =
        std::find_if(std::begin(Rows), std::end(Rows), [&](const Row& each) { return each.verb == verb; });
    const bool isUndo = verb == u"undo";
    if (row == std::end(Rows) && !isUndo) return false;
    // A command with something after it may mean another one, and none of these is taken back.
    if (!rest.empty()) fail(std::u16string(verb) + u": \"" + std::u16string(rest) + u"\" is too much");
    if (isUndo)
        Form_->undo();
    else
        (*Form_.*row->action)();
    return true;
}

bool RecordScript::runMove(std::u16string_view verb, std::u16string_view rest) {
    if (verb == u"find") return find(rest);
    if (verb == u"show") return printRecord(), true;
    if (verb != u"go") return false;
    double place = 0;
    if (!readPlainNumber(rest, defaultRegion(), place) || place != std::trunc(place) || std::abs(place) > FarthestPlace)
        fail(u"go: the number of a record is wanted");
    Form_->toPlace(static_cast<std::int64_t>(place));
    return true;
}

bool RecordScript::runChange(std::u16string_view verb, std::u16string_view rest) {
    if (verb == u"answers") return answer(rest), true;
    if (verb == u"carry") {
        for (const Binding& binding : Form_->bindings())
            if (equalsIgnoringCase(binding.control().name(), rest))
                return Form_->setCarried(binding, !Form_->isCarried(binding)), true;
        fail(u"no field \"" + std::u16string(rest) + u"\" is kept in the database");
    }
    if (verb != u"save") return false;
    if (rest.empty() ? Form_->save() : rest == u"new" && Form_->saveAndStartNew()) Print_(u"saved");
    return true;
}

bool RecordScript::find(std::u16string_view text) {
    const Way way = text == u"previous" ? Way::Backward : Way::Forward;
    const bool isAgain = text == u"next" || text == u"previous";
    if (!isAgain) Sought_ = text;
    const auto goesOn = [] { return true; };
    const Finder finder(*Records_, Sought_, Form_->order(), nullptr,
                        [this](const Record& record) { return Form_->textsOf(record); });
    const std::optional<Record> from = isAgain ? Form_->shown() : std::nullopt;
    if (!Form_->mayLeave()) return true;
    const std::optional<Record> hit = finder.nearestAround(from ? &*from : nullptr, way, goesOn).record;
    if (hit) Form_->toRecord(*hit);
    Print_(hit ? u"found, one of " + widen(std::to_string(finder.count(goesOn).value_or(0)))
               : std::u16string(u"not found"));
    return true;
}

void RecordScript::answer(std::u16string_view rest) {
    Answers_.clear();
    while (!rest.empty()) {
        const auto [word, further] = firstWord(rest);
        if (std::find(std::begin(Answers), std::end(Answers), word) == std::end(Answers))
            fail(u"answers: nobody answers \"" + std::u16string(word) + u"\"");
        Answers_.emplace_back(word);
        rest = further;
    }
}

void RecordScript::printRecord() {
    std::u16string line = u"record ";
    if (const auto place = Form_->place())
        line += widen(std::to_string(*place)) + u" of " + widen(std::to_string(Form_->count()));
    else
        line += u"new";
    Print_(line + (Form_->isChanged() ? u" changed" : u""));
    if (!Form_->shown()) return;
    for (std::size_t i = 0; i < Form_->table().columns.size(); ++i) {
        const Column& column = Form_->table().columns[i];
        Print_(u"  " + column.name + u" = " + cellText(column, Form_->shown()->cells[i]));
    }
}

// ---- What a person would be asked

std::u16string RecordScript::answered(std::u16string_view question, std::u16string_view byDefault) {
    std::u16string answer(byDefault);
    if (!Answers_.empty()) {
        answer = Answers_.front();
        Answers_.pop_front();
    }
    Print_(u"asked " + std::u16string(question) + u": " + answer);
    return answer;
}

Unsaved RecordScript::aboutUnsaved() {
    const std::u16string answer = answered(u"unsaved", u"stay");
    return answer == u"save" ? Unsaved::Save : answer == u"discard" ? Unsaved::Discard : Unsaved::Stay;
}

bool RecordScript::reallyDelete() { return answered(u"delete", u"no") == u"yes"; }

bool RecordScript::keepDeleted() { return answered(u"deleted by somebody else", u"back") == u"keep"; }

std::optional<std::vector<Choice>> RecordScript::aboutDifferences(const std::vector<Difference>& differences) {
    std::vector<Choice> choices;
    for (const Difference& each : differences) {
        const std::u16string answer =
            answered(u"difference " + quoteScriptText(each.field) + u" loaded " + quoteScriptText(each.loaded) +
                         u" mine " + quoteScriptText(each.mine) + u" theirs " + quoteScriptText(each.theirs),
                     u"back");
        if (answer != u"mine" && answer != u"theirs") return std::nullopt;
        choices.push_back(answer == u"mine" ? Choice::Mine : Choice::Theirs);
    }
    return choices;
}

void RecordScript::say(std::u16string_view message) { Print_(u"says " + quoteScriptText(message)); }

}  // namespace kel::records
