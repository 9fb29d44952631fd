#include "controls/number/KelNumber.h"

#include <algorithm>
#include <utility>

#include "common/FieldFrame.h"
#include "values/NumberFormat.h"
#include "values/NumberReader.h"

namespace kel {

namespace {

constexpr std::int16_t RegionalDecimals = -1;
constexpr EntryKind NumberKind{.hasCaptionFont = false, .captionWithinControl = true};

std::int32_t unitsOf(std::size_t count) { return static_cast<std::int32_t>(count); }

}  // namespace

KelNumber::KelNumber(ControlHost& host) : Field_(host, *this, NumberKind), Text1_(host.widgets, *this) {
    Field_.add(Text1_);
    Field_.addSpinner();
    takeDecimals();
}

// ---- Properties

bool KelNumber::get_ChangedCaption(std::u16string& CaptionToSave) const {
    // A caption differs from the one its label was bound with, which is none: nothing here binds labels to data.
    CaptionToSave = Field_.get_Caption();
    return false;
}

void KelNumber::put_GroupDigits(bool group) {
    GroupDigits_ = group;
    Field_.report<&KelNumber::put_GroupDigits>();
}

void KelNumber::put_UpDownChange(double step) {
    UpDownChange_ = step;
    Field_.report<&KelNumber::put_UpDownChange>();
}

void KelNumber::put_Decimals(std::int16_t count) {
    if (count < RegionalDecimals || count > MostDecimals) return;
    const EntryField::Deed deed(Field_);
    Decimals_ = count;
    Field_.report<&KelNumber::put_Decimals>();
    takeDecimals();
    put_Value(number());
}

void KelNumber::takeDecimals() {
    const SharedSettings& settings = Field_.host().settings;
    std::int16_t regional = settings.DefaultDecimals;
    DecimalCharacter_ = settings.DecimalSeparatorCode;
    if (const std::shared_ptr<Runtime> own = settings.runtimeOf(Field_.region())) {
        regional = own->DecimalDigits();
        DecimalCharacter_ = separatorCodeOf(*own);
    }
    DecimalsInUse_ = Decimals_ == RegionalDecimals ? regional : Decimals_;
}

void KelNumber::RegionChanged(const RegionalSettings& region) {
    const EntryField::Deed deed(Field_);
    if (TextDirty_) CommitText();
    const bool stands = Text1_.text() == valueText();
    Field_.takeRegion(region);
    takeDecimals();
    if (stands) showValue();
}

void KelNumber::put_MaxValue(double maximum) {
    const EntryField::Deed deed(Field_);
    MaxValue_ = roundNumber(maximum);
    Field_.report<&KelNumber::put_MaxValue>();
    MinValue_ = std::min(MinValue_, MaxValue_);
}

void KelNumber::put_MinValue(double minimum) {
    const EntryField::Deed deed(Field_);
    MinValue_ = roundNumber(minimum);
    Field_.report<&KelNumber::put_MinValue>();
    MaxValue_ = std::max(MaxValue_, MinValue_);
}

// ---- The value and its text

double KelNumber::numberFromValue(const Variant& value) const {
    return runtimeDates(Field_.host())->NumberFromValue(value, DecimalsInUse_);
}

double KelNumber::roundNumber(double number) const {
    return runtimeDates(Field_.host())->RoundNumber(number, DecimalsInUse_);
}

/// A bound that has more decimals than are in use gives a value like any other.
double KelNumber::bounded(double value) const {
    const double clamped = clampNumber(value, MinValue_, MaxValue_);
    return clamped == value ? value : roundNumber(clamped);
}

double KelNumber::number() {
    if (TextDirty_) CommitText();
    return Value_;
}

double KelNumber::storedValue() const {
    if (!TextDirty_ || Field_.get_Locked()) return Value_;
    return bounded(parseField());
}

void KelNumber::put_Value(const Variant& value) {
    if (!isNumeric(value, Field_.region())) return;
    const EntryField::Deed deed(Field_);
    Value_ = numberFromValue(value);
    ValueOriginal_ = Value_;
    showValue();
    Text1_.setForeColor(numberColor(Value_));
    TextDirty_ = false;
    Field_.report<&KelNumber::put_Value>();
}

std::u16string KelNumber::valueText() const {
    return displayText(Value_, DecimalsInUse_, GroupDigits_, Field_.region());
}

void KelNumber::showValue() { Text1_.setText(valueText()); }

void KelNumber::CommitText() {
    const EntryField::Deed deed(Field_);
    TextDirty_ = false;
    if (Field_.get_Locked()) return;
    takeValue(bounded(parseField()));
    showValue();
}

/// What the user has made of the value, unless the host wants to keep it.
void KelNumber::takeValue(double value) {
    if (value == Value_ || !Field_.mayChange<&KelNumber::put_Value>()) return;
    Value_ = value;
    Field_.tellChanged<&KelNumber::put_Value>();
}

void KelNumber::step(int direction) {
    if (Field_.get_Locked()) return;
    CommitText();
    moveTo(roundNumber(steppedNumber(Value_, direction * UpDownChange_)));
}

bool KelNumber::enterNumber(double number) {
    if (Field_.get_Locked() || !Text1_.takesInput() || !(number >= MinValue_ && number <= MaxValue_)) return false;
    CommitText();
    return moveTo(roundNumber(number));
}

std::optional<NumberRange> KelNumber::range() const {
    return NumberRange{storedValue(), MinValue_, MaxValue_, UpDownChange_};
}

bool KelNumber::moveTo(double number) {
    const EntryField::Deed deed(Field_);
    Text1_.setText(generalNumber(number, Field_.region()));
    CommitText();
    const bool isTaken = Value_ == number;
    if (Value_ != ValueOriginal_) {
        Field_.host().container.raiseEvent(Change, {});
        ValueOriginal_ = Value_;
    }
    return isTaken;
}

bool KelNumber::get_Valid(bool ShowMessage) {
    const double value = TextDirty_ ? parseField() : Value_;
    if (Field_.get_Locked()) return true;
    if (Field_.get_Mandatory() && value == 0) {
        if (ShowMessage) Field_.complain(ValueMissing, worded(ValueMissing));
        return false;
    }
    if (bounded(value) == value) return true;
    if (ShowMessage)
        Field_.complain(ValueOutOfRange,
                        rangeMessage(MinValue_, MaxValue_, DecimalsInUse_, GroupDigits_, Field_.region()));
    return false;
}

// ---- Design-time properties

void KelNumber::InitProperties() {
    Field_.initUpDown(false);
    Field_.initNew();
    Text1_.setText(u"0");
}

// ---- Focus

void KelNumber::EnterFocus() {
    put_ValueOriginal(Value_);
    Text1_.setForeColor(PlainNumberColor);
}

void KelNumber::Text1_GotFocus() {
    const EntryField::Deed deed(Field_);
    TextBox& box = Text1_;
    if (!Field_.get_Locked()) {
        // The spinner keeps the display form.
        if (!Field_.comesFromSpinner()) box.setText(editText(Value_, DecimalsInUse_, Field_.region()));
        Field_.forgetSpinner();
        box.setSelStart(0);
        if (Field_.get_SelectOnFocus()) box.setSelLength(box.textLength());
        if (bounded(Value_) != Value_) TextDirty_ = true;
    }
    Field_.colorOnGotFocus();
}

void KelNumber::ExitFocus() {
    const EntryField::Deed deed(Field_);
    CommitText();
    Text1_.setForeColor(numberColor(Value_));
    Field_.colorOnExit();
    Field_.forgetSpinner();
}

// ---- Keys and mouse

void KelNumber::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    KeypadDecimal_ = KeyCode == keys::Decimal && (Shift & (ControlKey | AltKey)) == 0;
    const bool isArrow = KeyCode == keys::Up || KeyCode == keys::Down;
    const KeyAnswer answer = EntryField::answerToKey(KeyCode, Shift, Field_.get_UpDown());
    if (answer == KeyAnswer::Passes && !isArrow) TextDirty_ = true;
    Field_.carryOut(answer, KeyCode);
}

TextSpan KelNumber::selection() const {
    const TextBox& box = Text1_;
    return {static_cast<std::size_t>(box.selStart()), static_cast<std::size_t>(box.selLength())};
}

void KelNumber::select(TextSpan span) {
    if (span == selection()) return;
    Text1_.setSelStart(unitsOf(span.start));
    Text1_.setSelLength(unitsOf(span.length));
}

void KelNumber::Text1_KeyPress(char32_t& KeyAscii) {
    TextDirty_ = true;  // an input method types without a key going down
    // Whatever the keyboard's layout makes of it, the keypad's key is the one for decimals; what an input method types
    // after it is what it is.
    if (std::exchange(KeypadDecimal_, false)) KeyAscii = DecimalCharacter_;
    const KeyEffect effect = filterKey(KeyAscii, Text1_.text(), selection(),
                                       {.decimals = DecimalsInUse_,
                                        .decimalCharacter = DecimalCharacter_,
                                        .zeroDigit = Field_.region().ZeroDigit,
                                        .insertMode = Field_.get_InsertMode(),
                                        .locked = Field_.get_Locked()});
    apply(effect);
    Field_.carryOut(effect.answer, KeyAscii);
}

void KelNumber::apply(const KeyEffect& effect) {
    if (effect.replaced) {
        select(*effect.replaced);
        Text1_.setSelText(std::u16string_view(&effect.inserted, 1));
    }
    if (effect.selection) select(*effect.selection);
}

bool KelNumber::Text1_Paste(std::u16string& Text) {
    TextDirty_ = true;
    auto plain = filterPaste(Text, Text1_.text(), selection(), DecimalsInUse_, Field_.region());
    if (!plain) {
        Field_.host().system.beep();
        return false;
    }
    Text = std::move(*plain);
    return true;
}

void KelNumber::Text1_MouseDown(MouseButton /*Button*/) { TextDirty_ = true; }

}  // namespace kel
