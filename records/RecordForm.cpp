#include "records/RecordForm.h"

#include <algorithm>
#include <utility>

#include "values/Text.h"

namespace kel::records {

RecordForm::RecordForm(Form& form, RecordStore& store, Questions& questions, const RegionalSettings& region,
                       Store* others)
    : Form_(&form),
      Store_(&store),
      Others_(others),
      Overview_(std::make_unique<Overview>(store, [this](const Record& record) { return textsOf(record); })),
      Questions_(&questions),
      Bindings_(bind(form, store.table(), region, others)) {
    for (const Binding& binding : Bindings_)
        if (const Table* const other = binding.offered()) store.orderByText(binding.column(), *other);
    if (!toEnd(Way::Forward)) showNew();
}

std::vector<std::u16string> RecordForm::textsOf(const Record& record) const {
    std::vector<std::u16string> texts = textsOfColumns(record);
    for (const Binding& binding : Bindings_)
        if (auto shown = binding.searchedTextOf(record.cells[binding.column()])) texts.push_back(std::move(*shown));
    return texts;
}

// ---- From record to record

bool RecordForm::step(const Record* from, Way way) {
    const std::vector<Record> found = Store_->walk(from, way, 1, Order_);
    if (!found.empty()) show(found.front());
    return !found.empty();
}

bool RecordForm::toEnd(Way way) {
    return attempt([&] { return step(nullptr, way); });
}

bool RecordForm::walk(Way way) {
    if (Shown_) return attempt([&] { return step(&*Shown_, way); });
    // A new record comes after all others.
    return way == Way::Backward && toEnd(Way::Backward);
}

bool RecordForm::toFirst() { return mayLeave() && toEnd(Way::Forward); }
bool RecordForm::toLast() { return mayLeave() && toEnd(Way::Backward); }
bool RecordForm::toNext() { return mayLeave() && walk(Way::Forward); }
bool RecordForm::toPrevious() { return mayLeave() && walk(Way::Backward); }

bool RecordForm::toPlace(std::int64_t place) {
    return mayLeave() && attempt([&] {
               places().refresh();
               places().finish();
               const std::vector<Record> found = places().rows(place - 1, 1);
               if (found.empty()) {
                   Questions_->say(u"There is no record " + widen(std::to_string(place)) + u".");
                   return false;
               }
               show(found.front());
               return true;
           });
}

bool RecordForm::toRecord(const Record& record) {
    return mayLeave() && attempt([&] {
               const std::optional<Record> now = Store_->read(keyOf(table(), record));
               if (now) show(*now);
               return now.has_value();
           });
}

void RecordForm::stepBeside(const Record& gone) {
    if (!step(&gone, Way::Forward) && !step(&gone, Way::Backward)) showNew();
}

bool RecordForm::readAgain() {
    return Shown_ && mayLeave() && attempt([&] {
               const Record before = *Shown_;
               if (const std::optional<Record> now = Store_->read(keyOf(table(), before)))
                   show(*now);
               else
                   stepBeside(before);
               return true;
           });
}

bool RecordForm::mayLeave() {
    if (!isChanged()) return true;
    switch (Questions_->aboutUnsaved()) {
        case Unsaved::Save: return save();
        case Unsaved::Discard: undo(); return true;
        default: return false;
    }
}

// ---- On the screen

void RecordForm::compareWith(std::optional<Record> record) {
    Shown_ = std::move(record);
    Kept_.clear();
    Duplicated_ = false;
    Copied_.reset();
}

void RecordForm::becomeNew() {
    Copied_ = std::exchange(Shown_, std::nullopt);
    Duplicated_ = true;
}

void RecordForm::show(const Record& record) {
    compareWith(record);
    for (Binding& binding : Bindings_) binding.show(Shown_->cells[binding.column()]);
}

void RecordForm::showNew() {
    compareWith({});
    Begun_.clear();
    for (std::size_t i = 0; i < Bindings_.size(); ++i)
        if (isCarried(Bindings_[i])) Begun_[i] = Bindings_[i].cell(columnOf(Bindings_[i]), Null{});
    beginAgain();
}

void RecordForm::beginAgain() {
    compareWith({});
    for (std::size_t i = 0; i < Bindings_.size(); ++i) {
        const auto begun = Begun_.find(i);
        if (begun == Begun_.end())
            Bindings_[i].showDefault(*Form_);
        else
            Bindings_[i].show(begun->second);
        Bindings_[i].markStored();
    }
}

bool RecordForm::startNew() {
    if (!mayLeave()) return false;
    showNew();
    focusFirst();
    return true;
}

bool RecordForm::duplicate() {
    if (!mayLeave()) return false;
    becomeNew();
    // The number of the other record is not the new one's.
    for (Binding& binding : Bindings_)
        if (binding.isGiven(columnOf(binding))) binding.showDefault(*Form_);
    focusFirst();
    return true;
}

void RecordForm::undo() {
    if (Shown_)
        show(Record(*Shown_));
    else
        beginAgain();
}

void RecordForm::focusFirst() {
    for (const Binding& binding : Bindings_) {
        if (binding.isLocked()) continue;
        Form_->window().focus(binding.control());
        if (Form_->window().focused() == &binding.control()) return;
    }
}

bool RecordForm::isChanged() const {
    return Duplicated_ || !Kept_.empty() ||
           std::any_of(Bindings_.begin(), Bindings_.end(), [](const Binding& binding) { return binding.isChanged(); });
}

bool RecordForm::looksChanged() const {
    return Duplicated_ || !Kept_.empty() || std::any_of(Bindings_.begin(), Bindings_.end(), [](const Binding& binding) {
               return binding.looksChanged();
           });
}

void RecordForm::setCarried(const Binding& binding, bool carried) {
    if (carried)
        Carried_.insert(binding.column());
    else
        Carried_.erase(binding.column());
}

std::int64_t RecordForm::count() const {
    places().refresh();
    places().finish();
    return places().count().value();
}

std::optional<std::int64_t> RecordForm::place() const {
    if (!Shown_) return std::nullopt;
    places().refresh();
    places().finish();
    return places().placeOf(*Shown_).value() + 1;
}

// ---- Storing

template <class Action>
bool RecordForm::attempt(Action action) {
    try {
        return action();
    } catch (const StoreError& error) {
        complain(error);
        return false;
    }
}

const Binding* RecordForm::fieldOf(const std::u16string& columnName) const {
    const auto column = table().find(columnName);
    if (!column) return nullptr;
    for (const Binding& binding : Bindings_)
        if (binding.column() == *column) return &binding;
    return nullptr;
}

void RecordForm::complain(const StoreError& error) {
    const Binding* const field = fieldOf(error.column());
    if (field != nullptr) Form_->window().focus(field->control());
    Questions_->say(error.wordsAbout(field != nullptr ? field->caption() : std::u16string()));
}

bool RecordForm::isValid() {
    for (const Binding& binding : Bindings_) {
        // What the database alone gives, nobody here could put right.
        if (binding.isGiven(columnOf(binding)) || binding.isValid(false)) continue;
        Form_->window().focus(binding.control());
        // Where the control has no words of its own.
        if (!binding.saysWhy())
            Questions_->say(binding.whyNotValid());
        else
            binding.isValid(true);
        return false;
    }
    return true;
}

const Binding* RecordForm::dayBeside(const Binding& time) const {
    const auto day = std::find_if(Bindings_.begin(), Bindings_.end(), [&](const Binding& binding) {
        return binding.column() == time.column() && binding.showsDay();
    });
    return day == Bindings_.end() ? nullptr : &*day;
}

bool RecordForm::hasDay(const Binding& time) const {
    const Column& column = columnOf(time);
    if (column.type != ColumnType::Moment || time.showsDay() || time.isGiven(column)) return true;
    const Binding* const day = dayBeside(time);
    const Record* const known = Shown_ ? &*Shown_ : Copied_ ? &*Copied_ : nullptr;
    Cell before = Null{};
    if (day != nullptr)
        before = day->cell(column, Null{});
    else if (known != nullptr)
        before = known->cells[time.column()];
    const Cell moment = time.cell(column, before);
    // Midnight may be all that a day had, and goes with it.
    const bool isBeginning = known != nullptr && moment == Cell(std::u16string(u"00:00:00")) && !time.isChanged();
    return isBeginning || !lacksDay(column, moment);
}

bool RecordForm::haveDays() {
    for (const Binding& binding : Bindings_) {
        if (hasDay(binding)) continue;
        const Binding* const day = dayBeside(binding);
        const Binding& field = day != nullptr ? *day : binding;
        Form_->window().focus(field.control());
        Questions_->say(field.dayMissing());
        return false;
    }
    return true;
}

bool RecordForm::save() {
    if (!isValid() || !haveDays()) return false;
    return attempt([&] { return Shown_ ? update() : insert(); });
}

bool RecordForm::saveAndStartNew() {
    if (!save()) return false;
    showNew();
    focusFirst();
    return true;
}

/// Over what the other field of the column says, if there is one.
Cell RecordForm::ownValue(std::vector<Change>& values, const Binding& binding, const Cell& before) const {
    const Change* const other = changeOf(values, binding.column());
    return binding.cell(columnOf(binding), other != nullptr ? other->value : before);
}

std::vector<Change> RecordForm::allValues() const {
    std::vector<Change> values;
    for (const Binding& binding : Bindings_) {
        const Column& column = columnOf(binding);
        if (binding.isGiven(column)) continue;
        if (!Copied_)
            addValue(values, binding, ownValue(values, binding, Null{}));
        else if (binding.isChanged())
            addValue(values, binding, ownValue(values, binding, Copied_->cells[binding.column()]));
        else if (changeOf(values, binding.column()) == nullptr)
            values.push_back({binding.column(), Copied_->cells[binding.column()]});
    }
    std::erase_if(values,
                  [&](const Change& change) { return isLeftToDatabase(table().columns[change.column], change.value); });
    return values;
}

/// Only what the person has changed: what a field shows shorter than it is stays as it is.
std::vector<Change> RecordForm::changes() const {
    std::vector<Change> values;
    for (const Binding& binding : Bindings_)
        if (binding.isChanged() || Kept_.contains(binding.column()))
            addValue(values, binding, ownValue(values, binding, Shown_->cells[binding.column()]));
    for (Change& change : values)
        if (lacksDay(table().columns[change.column], change.value)) change.value = Null{};
    std::erase_if(values, [&](const Change& change) { return change.value == Shown_->cells[change.column]; });
    return values;
}

void RecordForm::stored(Record record) {
    ++Saves_;
    compareWith(std::move(record));
    for (Binding& binding : Bindings_) {
        // What the database has made of it: a default, a text that a trigger has changed.
        const Cell& now = Shown_->cells[binding.column()];
        if (binding.holds(columnOf(binding), now))
            binding.markStored();
        else
            binding.show(now);
    }
}

bool RecordForm::insert() {
    Record record = Store_->insert(allValues());
    Overview_->changed(nullptr, &record);
    stored(std::move(record));
    return true;
}

bool RecordForm::update() {
    for (;;) {
        Record record = *Shown_;
        const std::vector<Change> values = changes();
        const Outcome outcome = values.empty() ? Outcome::Done : Store_->update(record, values);
        if (outcome == Outcome::Done) {
            if (!values.empty()) Overview_->changed(&*Shown_, &record);
            stored(std::move(record));
            return true;
        }
        if (!settle()) return false;
        if (!Shown_) return insert();
    }
}

bool RecordForm::settle() {
    const std::optional<Record> now = Store_->read(keyOf(table(), *Shown_));
    if (!now) {
        if (!Questions_->keepDeleted()) return false;
        becomeNew();
        return true;
    }
    // It was to be held for the change, and is there as it was: only reading it is allowed.
    if (*now == *Shown_)
        throw StoreError(StoreError::Kind::ReadOnly, "The database lets this record be read, and not be changed.");
    std::vector<Difference> differences;
    std::vector<Binding*> fields;
    for (Binding& binding : Bindings_) {
        const Cell& loaded = Shown_->cells[binding.column()];
        const Cell& theirs = now->cells[binding.column()];
        if (loaded == theirs) continue;
        fields.push_back(&binding);
        differences.push_back({binding.caption(), binding.textOf(loaded),
                               binding.textOf(binding.cell(columnOf(binding), loaded)), binding.textOf(theirs),
                               binding.isChanged()});
    }
    std::optional<std::vector<Choice>> choices{std::in_place};
    if (!differences.empty()) choices = Questions_->aboutDifferences(differences);
    if (!choices) return false;
    // Their record is the one that mine is compared with from now on.
    Shown_ = now;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i < choices->size() && (*choices)[i] == Choice::Mine)
            Kept_.insert(fields[i]->column());
        else
            fields[i]->show(now->cells[fields[i]->column()]);
    }
    return true;
}

bool RecordForm::remove() {
    if (!Shown_) {
        if (isChanged() && !Questions_->reallyDelete()) return false;
        return toEnd(Way::Backward) || (showNew(), true);
    }
    if (!Questions_->reallyDelete()) return false;
    return attempt([&] {
        switch (Store_->remove(*Shown_)) {
            case Outcome::Changed:
                Questions_->say(
                    u"Somebody else has changed this record meanwhile. It is shown as it is now, and stays.");
                if (const auto now = Store_->read(keyOf(table(), *Shown_))) show(*now);
                return false;
            case Outcome::Done: Overview_->changed(&*Shown_, nullptr); break;
            case Outcome::Gone: break;
        }
        const Record gone = *Shown_;
        stepBeside(gone);
        return true;
    });
}

}  // namespace kel::records
