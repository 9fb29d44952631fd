#include "controls/datetime/DateTimeField.h"

#include <utility>

namespace kel {

namespace {

constexpr EntryKind DateTimeKind{.hasCaptionFont = false};

}  // namespace

DateTimeField::DateTimeField(ControlHost& host, EntryControl& control, const DateTimeRules& rules,
                             const EventRow& change, std::u16string_view format, const DateBounds& bounds)
    : Rules_(rules),
      Change_(change),
      Entry_(host, control, DateTimeKind),
      Text1_(host.widgets, *this),
      Format_(std::u16string(format)),
      Bounds_(bounds) {
    Entry_.add(Text1_);
    Entry_.addSpinner();
}

DateTimeField& DateTimeField::of(Object& control) { return static_cast<DateTimeControl&>(control).field(); }

const DateTimeField& DateTimeField::of(const Object& control) {
    return static_cast<const DateTimeControl&>(control).field();
}

// ---- Members

void DateTimeField::put_Format(const std::u16string& format) {
    std::optional<std::u16string> accepted = Rules_.acceptedFormat(format);
    if (!accepted) return;
    const EntryField::Deed deed(Entry_);
    const bool stands = showsValue();
    Format_ = FieldFormat(std::move(*accepted));
    Entry_.report<&DateTimeField::put_Format>();
    if (!stands) return CommitText();
    TextDirty_ = false;
    const std::optional<Date> date = dateIn(Value_);
    if (date && !Entry_.get_Locked()) takeRead(date);
    show(dateIn(Value_));
}

void DateTimeField::put_MinValue(Date minimum) {
    Bounds_.putMinimum(Rules_.acceptedBound(minimum));
    Entry_.report<&DateTimeField::put_MinValue>();
}

void DateTimeField::put_MaxValue(Date maximum) {
    Bounds_.putMaximum(Rules_.acceptedBound(maximum));
    Entry_.report<&DateTimeField::put_MaxValue>();
}

const Variant& DateTimeField::get_Value() {
    if (TextDirty_) CommitText();
    return Value_;
}

void DateTimeField::put_Value(const Variant& value) {
    const EntryField::Deed deed(Entry_);
    const std::optional<Date> date = parsed(value);
    Value_ = date ? Variant(Rules_.assigned(*date, host())) : Variant(Null{});
    ValueOriginal_ = Value_;
    show(dateIn(Value_));
    TextDirty_ = false;
    Entry_.report<&DateTimeField::put_Value>();
}

std::optional<Date> DateTimeField::valueToStore() const {
    if (!TextDirty_ || Entry_.get_Locked()) return dateIn(Value_);
    const std::optional<Date> date = read();
    return date ? std::optional(Rules_.committed(*date, host(), Bounds_)) : std::nullopt;
}

bool DateTimeField::differsFromOriginal() const {
    const std::optional<Date> date = valueToStore();
    return isChanged(ValueOriginal_, date ? Variant(*date) : Variant(Null{}));
}

bool DateTimeField::get_Valid(bool ShowMessage) {
    const std::optional<Date> candidate = TextDirty_ ? read() : dateIn(Value_);
    if (Entry_.get_Locked()) return true;
    const bool mayBeEmpty = !Entry_.get_Mandatory() && (Rules_.allowsAnyText() || Text1_.textLength() == 0);
    const Validity validity = validityOf(candidate, Bounds_, mayBeEmpty);
    if (validity != Validity::Valid && ShowMessage) {
        const MessageRow& message = Rules_.messages().of(validity);
        Entry_.complain(message, complaint(message, textRules()));
    }
    return validity == Validity::Valid;
}

// ---- The value and its text

std::optional<Date> DateTimeField::parsed(const Variant& text) const {
    return dateIn(Rules_.parse(text, host(), Format_.text()));
}

bool DateTimeField::showsValue() const { return Text1_.text() == Format_.show(dateIn(Value_), Entry_.region()); }

std::optional<Date> DateTimeField::read() const { return showsValue() ? dateIn(Value_) : parsed(Text1_.text()); }

void DateTimeField::CommitText() {
    const EntryField::Deed deed(Entry_);
    TextDirty_ = false;
    if (Entry_.get_Locked()) return;
    takeRead(read());
    show(dateIn(Value_));
}

void DateTimeField::takeRead(std::optional<Date> date) {
    const Variant value = date ? Variant(Rules_.committed(*date, host(), Bounds_)) : Variant(Null{});
    if (mayTake(value)) take(value);
}

/// The host may want to keep a value that the user is about to change.
bool DateTimeField::mayTake(const Variant& value) const {
    return dateIn(value) == dateIn(Value_) || Entry_.mayChange<&DateTimeField::put_Value>();
}

void DateTimeField::take(const Variant& value) {
    const bool differs = dateIn(value) != dateIn(Value_);
    Value_ = value;
    if (differs) Entry_.tellChanged<&DateTimeField::put_Value>();
}

void DateTimeField::step(int direction) {
    if (Entry_.get_Locked()) return;
    const EntryField::Deed deed(Entry_);
    const BoxState before{.text = Text1_.text(), .caret = static_cast<std::size_t>(Text1_.selStart()), .value = read()};
    moveTo(Rules_.step(before, direction, host(), textRules()));
}

bool DateTimeField::moveTo(const FieldStep& step) {
    if (!mayTake(step.value)) return false;
    Text1_.setText(step.text);
    Text1_.setSelStart(static_cast<std::int32_t>(step.caret));
    take(step.value);  // last: whoever is told of it may read it, which reads the text
    if (!step.isFirst && !isChangedByStep(ValueOriginal_, step.value)) return true;
    host().container.raiseEvent(Change_, {});
    ValueOriginal_ = Value_;
    return true;
}

bool DateTimeField::enter(Date value) {
    if (Entry_.get_Locked() || !Text1_.takesInput() || !Bounds_.contain(value)) return false;
    CommitText();
    const Date taken = Rules_.committed(value, host(), Bounds_);
    return moveTo({.value = taken, .text = Format_.show(taken, Entry_.region())});
}

NumberRange DateTimeField::moment() const {
    const Date now = valueToStore().value_or(Date{});
    return {now.Serial, Bounds_.minimum.Serial, Bounds_.maximum.Serial, Entry_.get_UpDown() ? Rules_.usualStep() : 0};
}

// ---- The container

void DateTimeField::initNew() {
    Entry_.initUpDown(true);
    Entry_.initNew();
    Entry_.colorCaption();
}

void DateTimeField::exitFocus() {
    CommitText();
    Entry_.colorOnExit();
}

void DateTimeField::takeRegion(const RegionalSettings& region) {
    const EntryField::Deed deed(Entry_);
    if (TextDirty_) CommitText();
    Entry_.takeRegion(region);
    show(dateIn(Value_));
}

// ---- Focus

/// A value that was never assigned compares as 0, one that is none never does.
bool DateTimeField::isValueOutOfRange() const {
    if (std::holds_alternative<Empty>(Value_)) return !Bounds_.contain(Date{});
    const std::optional<Date> date = dateIn(Value_);
    return date && !Bounds_.contain(*date);
}

void DateTimeField::Text1_GotFocus() {
    const EntryField::Deed deed(Entry_);
    Entry_.selectByTab();
    Entry_.colorOnGotFocus();
    if (!Entry_.get_Locked() && isValueOutOfRange()) TextDirty_ = true;
}

void DateTimeField::Text1_LostFocus() { Text1_.setSelStart(0); }

// ---- Keys and mouse

void DateTimeField::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    const KeyAnswer answer = EntryField::answerToKey(KeyCode, Shift, true);
    if (answer == KeyAnswer::Passes) TextDirty_ = true;
    Entry_.carryOut(answer, KeyCode);
}

void DateTimeField::Text1_KeyPress(char32_t& KeyAscii) {
    TextDirty_ = true;  // an input method types without a key going down
    Entry_.carryOut(Rules_.answerToCharacter(KeyAscii, Entry_.region()), KeyAscii);
}

bool DateTimeField::Text1_Paste(std::u16string& /*Text*/) {
    TextDirty_ = true;
    return true;
}

void DateTimeField::Text1_MouseDown(MouseButton Button) {
    if (Button == MouseButton::Right) TextDirty_ = true;  // the context menu pastes and deletes
}

// ---- The control

Variant DateTimeControl::valueToStore() const {
    const std::optional<Date> date = field().valueToStore();
    return date ? Variant(*date) : Variant(Null{});
}

}  // namespace kel
