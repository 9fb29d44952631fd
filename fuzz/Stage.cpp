#include "fuzz/Stage.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "controls/combo/KelCombo.h"
#include "forms/ScriptValue.h"
#include "fuzz/Fuzz.h"
#include "platform/headless/HeadlessHome.h"
#include "values/Text.h"

namespace kel::fuzz {

namespace {

constexpr Date Today{41348};
constexpr double Now = 36930;

struct Folder {
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "kel-fuzz-XXXXXX").string();
        require(mkdtemp(name.data()) != nullptr, "there is a folder for temporary files");
        path = name;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path path;
};

void checkText(const TextEntry& box) {
    const std::u16string& text = box.text();
    for (const std::size_t place : {box.selection().anchor, box.selection().caret})
        require(place <= text.size() && !splitsPair(text, place), "the caret stands in the text, and in no pair",
                {text});
}

void checkCombo(const KelCombo& combo, const ComboBox& box) {
    const std::u16string& text = box.text();
    require(!combo.get_LimitToList() || text.empty() || box.items().findExact(text) != ListItems::NotFound,
            "a limited combo holds an item or nothing", {text});
}

}  // namespace

Stage::Stage(const RegionalSettings& region)
    : Home_(headless::makeHome({.region = &region})),
      System_(Home_->system(), [this](const std::u16string&) { ++Said_; }) {
    System_.setToday(Today);
    System_.setTimer(Now);
}

std::u16string Bag::lowered(std::u16string_view name) {
    std::u16string small(name);
    std::transform(small.begin(), small.end(), small.begin(), toLowerAscii);
    return small;
}

Variant Bag::readProperty(const PersistedRow& row) {
    const auto found = Values_.find(lowered(row.readName));
    return found == Values_.end() ? toVariant(row.readDefault) : found->second;
}

void Bag::writeProperty(const PersistedRow& row, const Variant& value) {
    if (!equalsDefault(value, row.writeDefault)) Values_.insert_or_assign(lowered(row.name), value);
}

std::u16string Bag::differenceFrom(const Bag& other) const {
    for (const auto& [name, value] : Values_) {
        const auto found = other.Values_.find(name);
        const Variant held = found == other.Values_.end() ? Variant(Missing{}) : found->second;
        if (held != value) return name + u": " + writeScriptValue(value) + u", " + writeScriptValue(held);
    }
    return other.Values_.size() > Values_.size() ? other.differenceFrom(*this) : std::u16string();
}

const std::filesystem::path& folder() {
    static const Folder made;
    return made.path;
}

void writeInFolder(const std::string& name, std::string_view bytes) {
    std::ofstream(folder() / name, std::ios::binary) << bytes;
}

void checkControl(PlacedControl& placed) {
    const WidgetSet widgets = placed.control().widgets();
    if (widgets.entry != nullptr) checkText(*widgets.entry);
    if (widgets.comboBox != nullptr) checkCombo(static_cast<KelCombo&>(placed.control()), *widgets.comboBox);
}

}  // namespace kel::fuzz
