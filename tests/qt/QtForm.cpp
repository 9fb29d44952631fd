#include "tests/qt/QtForm.h"

#include "common/basKelControls.h"
#include "library/Dispatch.h"
#include "values/Text.h"

namespace kel::test {

namespace {

constexpr Size ClientSize{15000, 7500};
constexpr std::int32_t FieldWidth = 14000;  ///< so that nothing the tests type needs a second line
constexpr std::int32_t Gap = 75;

}  // namespace

TextForm::TextForm(std::unique_ptr<Home> home) : Home_(std::move(home)) {
    InitControls(Home_->settings(), Home_->system());
    Window_ = Home_->makeWindow({u"Form", ClientSize, false}, Home_->system());
    Window_->setClipboard(u"");
}

PlacedControl& TextForm::place(std::u16string_view name, std::int32_t heightTwips, const ClassModel& model) {
    const Rect bounds{120, NextTop_, FieldWidth, heightTwips};
    NextTop_ += heightTwips + Gap;
    return placeAt({.name = std::u16string(name), .bounds = bounds, .tabIndex = NextTab_++}, model);
}

PlacedControl& TextForm::placeAt(const Placement& placement, const ClassModel& model) {
    PlacedControl& placed = Window_->place(model, placement, *this);
    placed.control().InitProperties();
    placed.setBounds(placement.bounds);
    if (const MemberRow* const enabled = findMember(model, u"Enabled"))
        putMember(placed.control(), *enabled, true, Home_->region());
    Log_.clear();
    return placed;
}

std::string TextForm::focused() const {
    const PlacedControl* const holder = Window_->focused();
    return holder == nullptr ? "nowhere" : toUtf8(holder->name());
}

void TextForm::controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> /*arguments*/) {
    const TextEntry* const entry = control.control().widgets().entry;
    const std::string text = entry != nullptr ? toUtf8(entry->text()) : "";
    Log_ += toUtf8(control.name()) + "." + toUtf8(event.name) + "(" + text + ") ";
    if (onEvent) onEvent(control, event);
}

void TextForm::propertyReported(PlacedControl& control, std::u16string_view bagName) {
    Log_ += toUtf8(control.name()) + ":" + toUtf8(bagName) + " ";
}

KelText& textOf(PlacedControl& control) { return static_cast<KelText&>(control.control()); }

TextEntry& boxOf(PlacedControl& control) { return *control.control().widgets().entry; }

QWidget& widgetOf(TextEntry& box) { return dynamic_cast<QWidget&>(*box.view()); }

}  // namespace kel::test
