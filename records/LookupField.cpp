#include "records/LookupField.h"

#include <array>

#include "host/Widgets.h"
#include "library/Dispatch.h"
#include "runtime/ListString.h"

namespace kel::records {

namespace {

Variant get(Control& combo, std::u16string_view name, const RegionalSettings& region) {
    Variant value;
    getMember(combo, *findMember(combo.model(), name), {}, value, region);
    return value;
}

void put(Control& combo, std::u16string_view name, const Variant& value, const RegionalSettings& region) {
    putMember(combo, *findMember(combo.model(), name), value, region);
}

}  // namespace

LookupField::LookupField(PlacedControl& combo, Lookup lookup, const RegionalSettings& region)
    : Combo_(combo), Region_(region), Lookup_(std::move(lookup)) {
    fill();
    ComboBox& box = *Combo_.control().widgets().comboBox;
    box.beforeDrop([this] { refresh(); });
    box.whenMissing([this](std::u16string_view typed) { return addBeginningWith(typed); });
}

LookupField::~LookupField() {
    ComboBox& box = *Combo_.control().widgets().comboBox;
    box.beforeDrop({});
    box.whenMissing({});
}

void LookupField::fill() {
    std::u16string tags;
    for (const std::u16string& key : Lookup_.keys()) appendListItem(tags, key);
    std::array<Variant, 1> texts{Lookup_.texts()};
    Variant nothing;
    Control& combo = Combo_.control();
    callMember(combo, *findMember(combo.model(), u"ListFromArray"), texts, nothing, Region_);
    put(combo, u"ListTag", tags, Region_);
}

/// What was chosen stays chosen, also where its text is another one now.
void LookupField::refresh() {
    const std::u16string shown = key();
    try {
        if (!Lookup_.refresh(shown)) return;
        fill();
        show(shown);
        put(Combo_.control(), u"TextSaved", Lookup_.textOf(StoredKey_), Region_);
    } catch (const StoreError&) {
        // The list stays as it is; what is wrong is said where the person saves.
    }
}

/// What the field falls back to stays what it was.
bool LookupField::addBeginningWith(std::u16string_view typed) {
    const Variant original = get(Combo_.control(), u"TextOriginal", Region_);
    try {
        if (!Lookup_.addBeginningWith(std::u16string(typed))) return false;
    } catch (const StoreError&) {
        return false;  // what is wrong is said where the person saves
    }
    fill();
    put(Combo_.control(), u"TextOriginal", original, Region_);
    return true;
}

void LookupField::show(const std::u16string& key) {
    if (!key.empty() && !Lookup_.find(key)) {
        Lookup_.add(key);
        fill();
    }
    put(Combo_.control(), u"Text", Lookup_.textOf(key), Region_);
}

bool LookupField::take(const std::u16string& text) {
    if (text.empty()) return false;
    // The database is asked last: a text is no key that it could look for.
    const ComboBox& box = *Combo_.control().widgets().comboBox;
    const bool isText = !Lookup_.find(text) && box.items().findExact(text) != ListItems::NotFound;
    if (isText)
        put(Combo_.control(), u"Text", text, Region_);
    else if (Lookup_.isThere(text))
        show(text);
    else if (const auto key = Lookup_.keyOfText(text))
        show(*key);
    else
        return false;
    return true;
}

std::u16string LookupField::key() const {
    static_cast<void>(get(Combo_.control(), u"Text", Region_));  // settles what is half typed
    const ComboBox& box = *Combo_.control().widgets().comboBox;
    const std::int32_t item = box.items().findExact(box.text());
    return item == ListItems::NotFound ? std::u16string() : Lookup_.keys()[static_cast<std::size_t>(item)];
}

}  // namespace kel::records
