#include "controls/combo/KelCombo.h"

#include <utility>

#include "common/FieldFrame.h"
#include "common/Persistence.h"
#include "controls/combo/ListText.h"
#include "host/editing/EditAction.h"
#include "host/TwipScale.h"
#include "values/Coercion.h"
#include "values/TextBoundaries.h"

namespace kel {

namespace {

constexpr std::int32_t WidestDropDown = 8000;
constexpr std::int16_t NoListIndex = -1;
constexpr std::int16_t TagSeparator = u',';
constexpr EntryKind ComboKind{.disablesContainer = false};

std::int32_t wordStart(std::u16string_view text, std::int32_t position) {
    return static_cast<std::int32_t>(previousWord(text, static_cast<std::size_t>(position), false));
}

/// Whatever the screen's own resolution.
std::int32_t listPixels(std::int32_t twips) { return TwipScale(ClassicTwipsPerPixel).pixel(twips); }

}  // namespace

KelCombo::KelCombo(ControlHost& host) : Field_(host, *this, ComboKind), Combo1_(host.widgets, *this) {
    Field_.add(Combo1_);
}

void KelCombo::Initialize() { Combo1_.installFrame(Field_.host().settings.ButtonWidthPixels); }

WidgetSet KelCombo::widgets() {
    WidgetSet widgets = Field_.widgets();
    widgets.comboBox = &Combo1_;
    return widgets;
}

// ---- List

void KelCombo::put_List(const std::u16string& list) { loadItems(listItemsOf(list)); }

void KelCombo::ListFromArray(const StringArray& strArray) { loadItems(listItemsOf(strArray)); }

void KelCombo::loadItems(ListItems items) {
    const EntryField::Deed deed(Field_);
    const std::u16string text = Combo1_.text();
    Combo1_.setItems(std::move(items));
    put_Text(text);
    Field_.report<&KelCombo::put_List>();
}

std::u16string KelCombo::get_List() const {
    const auto runtime = runtimeFor(Field_.host());
    std::u16string list;
    for (std::int32_t i = 0; i < get_ListCount(); ++i)
        list = runtime->ListAppend(std::move(list), Combo1_.items().item(i));
    return list;
}

std::int16_t KelCombo::get_ListIndex() const {
    if (!LimitToList_) return NoListIndex;
    const std::int32_t index = Combo1_.items().findExact(Combo1_.text());
    return index == ListItems::NotFound ? NoListIndex : static_cast<std::int16_t>(index + 1);
}

void KelCombo::put_ListIndex(std::int16_t item) {
    if (item < 1 || item > get_ListCount() || !Field_.mayChange<&KelCombo::put_Text>()) return;
    const EntryField::Deed deed(Field_);
    {
        const DepthGuard guard(SelectionDepth_);
        Combo1_.setListIndex(item - 1);
    }
    TextOriginal_ = Combo1_.text();
    tellText();
}

std::u16string KelCombo::get_ListItem(std::int16_t Item) const {
    const std::int32_t item = Item == 0 ? Combo1_.listIndex() : Item;
    return item < 1 || item > get_ListCount() ? std::u16string() : std::u16string(Combo1_.items().item(item - 1));
}

void KelCombo::put_ListTag(const std::u16string& tags) {
    ListTag_ = tags;
    TagPlace_ = {};
    Field_.report<&KelCombo::put_ListTag>();
}

std::u16string KelCombo::get_ListTagItem(std::int16_t Item) const {
    const std::int32_t item = Item == 0 ? Combo1_.listIndex() + 1 : Item;
    if (item < 1 || item > get_ListCount()) return {};
    const auto runtime = runtimeFor(Field_.host());
    const std::shared_ptr<Runtime>& held = Field_.host().settings.Runtime;
    if (item <= TagPlace_.passed || TagPlace_.reader.lock() != held) TagPlace_ = {.reader = held};
    std::int32_t position = TagPlace_.position;
    std::u16string tag;
    for (std::int32_t read = TagPlace_.passed; read < item; ++read) {
        TagPlace_.passed = read;
        TagPlace_.position = position;
        tag = runtime->ReadField(ListTag_, position, TagSeparator);
        if (position < 0) return {};
    }
    return tag;
}

void KelCombo::put_DropDownWidth(std::int32_t twips) {
    const std::int32_t fieldWidth = Combo1_.bounds().width;
    const bool inRange = twips >= 1 && twips <= WidestDropDown;
    const std::int32_t stored = inRange && twips != fieldWidth ? twips : 0;
    if (stored != DropDownWidth_) {
        DropDownWidth_ = stored;
        Field_.report<&KelCombo::put_DropDownWidth>();
    }
    Combo1_.setDroppedWidth(listPixels(inRange ? twips : fieldWidth));
}

// ---- Text

const std::u16string& KelCombo::get_Text() const {
    if (Typing_) settleText();
    return Combo1_.text();
}

void KelCombo::put_Text(const std::u16string& text) {
    const EntryField::Deed deed(Field_);
    {
        const DepthGuard guard(SelectionDepth_);
        Typing_ = false;
        showText(text);
    }
    TextOriginal_ = TextTold_ = Combo1_.text();
    Field_.report<&KelCombo::put_Text>();
}

/// However another text has come about.
void KelCombo::tellText() const {
    if (Combo1_.text() == TextTold_) return;
    TextTold_ = Combo1_.text();
    Field_.tellChanged<&KelCombo::put_Text>();
}

bool KelCombo::selectEqual(const std::u16string& text) const {
    const std::int32_t item = Combo1_.items().findExact(text);
    if (item != ListItems::NotFound) Combo1_.setListIndex(item);
    return item != ListItems::NotFound;
}

/// As far as the list allows it.
void KelCombo::showText(const std::u16string& text) const {
    if (text.empty() || !selectEqual(text)) Combo1_.setText(LimitToList_ ? std::u16string_view() : text);
}

/// What the user leaves behind: an item where there is one, no text that is none where only items may stand, and no
/// mandatory field without a text, as long as there is one that may stand.
void KelCombo::settleText() const {
    const EntryField::Deed deed(Field_);
    {
        const DepthGuard guard(SelectionDepth_);
        Typing_ = false;
        if (Combo1_.textLength() != 0)
            showText(Combo1_.text());
        else if (Field_.get_Mandatory())
            bringBackOriginal();
        Combo1_.setSelStart(0);
    }
    tellText();
}

/// The reference may be a text from before only items could stand; such a one stays away.
std::u16string KelCombo::originalThatMayStand() const {
    const bool mayStand = !LimitToList_ || Combo1_.items().findExact(TextOriginal_) != ListItems::NotFound;
    return mayStand ? TextOriginal_ : std::u16string();
}

void KelCombo::bringBackOriginal() const { Combo1_.setText(originalThatMayStand()); }

/// The text that settling would leave.
std::u16string KelCombo::settledText() const {
    const std::u16string& text = Combo1_.text();
    if (!Typing_) return text;
    if (text.empty()) return Field_.get_Mandatory() ? originalThatMayStand() : std::u16string();
    const std::int32_t item = Combo1_.items().findExact(text);
    if (item != ListItems::NotFound) return std::u16string(Combo1_.items().item(item));
    return LimitToList_ ? std::u16string() : text;
}

void KelCombo::put_LimitToList(bool limit) {
    const EntryField::Deed deed(Field_);
    LimitToList_ = limit;
    Field_.report<&KelCombo::put_LimitToList>();
    if (!limit) return;
    {
        const DepthGuard guard(SelectionDepth_);
        if (!selectEqual(Combo1_.text())) Combo1_.setText({});
    }
    tellText();
}

bool KelCombo::get_Valid() const {
    if (Combo1_.locked() || !Field_.get_Mandatory()) return true;
    return Combo1_.text().find_last_not_of(u' ') != std::u16string::npos;
}

// ---- Typing and picking

void KelCombo::Combo1_Change() {
    if (SelectionDepth_ > 0) return;
    const EntryField::Deed deed(Field_);
    if (Typing_) {
        completeTyping();
    } else if (LimitToList_ && Combo1_.listIndex() == ListItems::NotFound && Combo1_.textLength() != 0) {
        const DepthGuard guard(SelectionDepth_);
        Combo1_.setText({});
    }
    tellText();
    if (!get_Changed() || !hostWantsChange()) return;
    Field_.host().container.raiseEvent(Change, {});
    if (LimitToList_) TextOriginal_ = Combo1_.text();
}

void KelCombo::Combo1_Click() {
    const EntryField::Deed deed(Field_);
    tellText();
    if (SelectionDepth_ > 0 || !get_Changed() || !hostWantsChange()) return;
    Field_.host().container.raiseEvent(Click, {});
    Field_.host().container.raiseEvent(Change, {});
    TextOriginal_ = Combo1_.text();
}

bool KelCombo::hostWantsChange() {
    Typing_ = false;
    Variant handled = true;
    Field_.host().container.raiseEvent(ChangeEx, {&handled, 1});
    bool wants = true;
    static_cast<void>(coerce(handled, Field_.region(), wants));
    return wants;
}

/// The first item that begins with what was typed comes in its place, the rest of it selected, so that the next
/// character replaces it. Where only items may stand, the text after the caret was such a rest, and a character that
/// leads to no item is taken back.
void KelCombo::completeTyping() {
    Combo1_.showDropDown(false);
    const DepthGuard guard(SelectionDepth_);
    Typing_ = false;
    const std::int32_t caret = Combo1_.selStart();
    const std::u16string_view text = Combo1_.text();
    const std::u16string_view typed = LimitToList_ ? text.substr(0, static_cast<std::size_t>(caret)) : text;
    const std::int32_t item = Combo1_.itemFor(typed);
    if (item != ListItems::NotFound) {
        Combo1_.setListIndex(item);
        selectFrom(caret);
    } else if (LimitToList_) {
        bringBackOriginal();
        selectFrom(caret > 0 ? caret - 1 : 0);
    }
}

void KelCombo::selectFrom(std::int32_t caret) {
    Combo1_.setSelStart(caret);
    Combo1_.setSelLength(Combo1_.textLength());
}

void KelCombo::Combo1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    const EntryField::Deed deed(Field_);
    Typing_ = true;
    const bool deletes = KeyCode == keys::Delete && Shift == NoModifier;
    if (!deletes || Combo1_.selLength() == 0 || Combo1_.locked()) return;
    if (Field_.mayChange<&KelCombo::put_Text>()) Combo1_.setSelText({});
}

bool KelCombo::Combo1_Edit(EditAction Action) {
    const bool may = Field_.mayChange<&KelCombo::put_Text>();
    if (may) expectResult(Action);
    return may;
}

/// What is taken away on purpose does not come back as a completion. All else is typing, also without a key; but
/// Delete may have been handled as one already.
void KelCombo::expectResult(EditAction Action) {
    const bool hasSelection = Combo1_.selLength() != 0;
    switch (Action) {
        case EditAction::Cut:
        case EditAction::EraseSelection: Typing_ = false; return;
        case EditAction::EraseWordForward: Typing_ = !hasSelection; return;
        case EditAction::EraseForward: return;
        case EditAction::EraseWordBack:
            if (!LimitToList_ && hasSelection && Combo1_.selStart() + Combo1_.selLength() == Combo1_.textLength())
                selectFrom(wordStart(Combo1_.text(), Combo1_.selStart()));
            break;
        default: break;
    }
    Typing_ = true;
}

void KelCombo::Combo1_KeyPress(char32_t& KeyAscii) {
    Field_.carryOut(answerToControlCharacter(KeyAscii).value_or(KeyAnswer::Passes), KeyAscii);
    // The completed rest goes together with the character in front of it.
    const bool takesRest = KeyAscii == keys::Backspace && !LimitToList_ && !Combo1_.locked();
    if (takesRest && Combo1_.selStart() > 0) selectFrom(Combo1_.selStart() - 1);
}

// ---- The container

void KelCombo::Resize() {
    if (!Field_.layOut()) return;
    if (DropDownWidth_ == 0) put_DropDownWidth(0);
    Combo1_.setSelLength(0);
}

void KelCombo::InitProperties() {
    LimitToList_ = true;
    Combo1_.setLocked(false);
    Combo1_.setListIndex(ListItems::NotFound);
    Field_.initNew();
    Field_.colorCaption();
}

void KelCombo::ReadProperties(PropertyBag& bag) {
    Field_.load(bag);
    Resize();
}

// ---- Focus

void KelCombo::EnterFocus() {
    put_TextOriginal(Combo1_.text());
    Combo1_.setExtendedUi(true);
}

void KelCombo::ExitFocus() {
    settleText();
    Field_.colorOnExit();
}

void KelCombo::Combo1_GotFocus() {
    Field_.selectByTab();
    Field_.colorOnGotFocus();
}

void KelCombo::Combo1_LostFocus() { Combo1_.setSelStart(0); }

}  // namespace kel
