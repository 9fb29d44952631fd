#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "records/Binding.h"
#include "records/Overview.h"
#include "records/Questions.h"
#include "records/Store.h"

namespace kel::records {

/// A form with the records of a table behind it, one at a time on the screen. What is typed leaves the screen only when
/// it is stored, or when the person has said that it may go.
///
/// A command that gives a bool says whether it was done; where not, the person has been told why, or has said no.
class RecordForm {
public:
    /// All of it outlives the records. Throws StoreError when a field's column is not there or cannot keep its value,
    /// and when the list of a field cannot be read. Shows the first record, or a new one where there is none or it
    /// cannot be read, which is said. `others` has the tables that give lists to fields; without it these stay empty.
    RecordForm(Form& form, RecordStore& store, Questions& questions, const RegionalSettings& region,
               Store* others = nullptr);
    RecordForm(const RecordForm&) = delete;
    RecordForm& operator=(const RecordForm&) = delete;

    // ---- From record to record. What is changed is asked about first.

    bool toFirst();
    bool toPrevious();
    bool toNext();
    bool toLast();
    /// Counted from 1.
    bool toPlace(std::int64_t place);
    bool toRecord(const Record& record);
    /// Whether the record on the screen may be left: it is not changed, is saved now, or may be lost.
    bool mayLeave();

    // ---- The record on the screen

    bool startNew();
    /// A new record with what stands on the screen.
    bool duplicate();
    /// Checks every field in the order of the Tab key; the first that is not valid gets the focus. Then stores.
    bool save();
    bool saveAndStartNew();
    bool remove();
    /// Back to what was stored last, or to what a new record began with.
    void undo();
    /// As it is in the database now, or the next one where it is there no more.
    bool readAgain();

    /// Into the first field that takes the focus and can be changed, as a person begins.
    void focusFirst();

    bool isNew() const { return !Shown_; }
    /// How many records have been stored, by whichever command.
    std::int64_t saves() const { return Saves_; }
    /// What is half typed is taken as if its field was left; `looksChanged` leaves it alone.
    bool isChanged() const;
    bool looksChanged() const;
    /// As it was read or stored last; nothing while it is a new one.
    const std::optional<Record>& shown() const { return Shown_; }

    // ---- The table

    const Table& table() const { return Store_->table(); }
    RecordStore& store() const { return *Store_; }
    Store* others() const { return Others_; }
    const std::vector<Binding>& bindings() const { return Bindings_; }
    /// What is known of all records; keeps up with what is stored and deleted here.
    Overview& overview() const { return *Overview_; }
    /// By which a search finds the record.
    std::vector<std::u16string> textsOf(const Record& record) const;
    /// Of all records; takes its time where that is not known yet.
    std::int64_t count() const;
    /// From 1; nothing for a new record. Takes its time like that.
    std::optional<std::int64_t> place() const;
    const Order& order() const { return Order_; }
    void setOrder(const Order& order) { Order_ = order; }

    // ---- Values that go along into the next new record

    bool isCarried(const Binding& binding) const { return Carried_.contains(binding.column()); }
    void setCarried(const Binding& binding, bool carried);

private:
    void show(const Record& record);
    void showNew();
    void beginAgain();
    bool toEnd(Way way);
    bool walk(Way way);
    /// Shows the next one from there; false where there is none.
    bool step(const Record* from, Way way);
    /// Shows what stands beside a record that is there no more.
    void stepBeside(const Record& gone);
    /// What stands on the screen is another record from now on.
    void becomeNew();
    /// From now on this is what the screen is compared with; a new record has nothing to compare with.
    void compareWith(std::optional<Record> record);
    /// Runs `action`; what the database says against it is told to the person.
    template <class Action>
    bool attempt(Action action);
    void complain(const StoreError& error);
    /// nullptr: none shows it.
    const Binding* fieldOf(const std::u16string& columnName) const;
    bool isValid();
    /// Whether no time of day stands there without the day that makes a moment of it.
    bool haveDays();
    bool hasDay(const Binding& time) const;
    /// The field of the same column; nullptr where the form has none.
    const Binding* dayBeside(const Binding& time) const;
    bool insert();
    bool update();
    /// Somebody else was first. False when the person goes back to the record.
    bool settle();
    std::vector<Change> changes() const;
    std::vector<Change> allValues() const;
    Cell ownValue(std::vector<Change>& values, const Binding& binding, const Cell& before) const;
    void stored(Record record);
    Places& places() const { return Overview_->places(Order_); }
    const Column& columnOf(const Binding& binding) const { return table().columns[binding.column()]; }

    Form* Form_;
    RecordStore* Store_;
    Store* Others_;
    std::unique_ptr<Overview> Overview_;
    Questions* Questions_;
    std::vector<Binding> Bindings_;  ///< in the order of the Tab key
    std::optional<Record> Shown_;
    std::set<std::size_t> Kept_;     ///< columns that keep what is on the screen against another person's change
    std::set<std::size_t> Carried_;  ///< columns
    Order Order_;
    std::int64_t Saves_ = 0;
    bool Duplicated_ = false;            ///< a new record that is worth keeping as it stands
    std::map<std::size_t, Cell> Begun_;  ///< what a new record has of the one before, by the places of its fields
    std::optional<Record> Copied_;       ///< of which it was made: fields may show less than there is
};

}  // namespace kel::records
