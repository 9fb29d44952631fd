#include "tests/combo/ComboForm.h"

#include <utility>

#include "values/Text.h"

namespace kel::test {

namespace {

void append(std::string& list, const char* separator, std::u16string_view word) {
    if (!list.empty()) list += separator;
    list += toUtf8(word);
}

/// Finds names as they are written, case and all.
class ExactBag final : public PropertyBag {
public:
    explicit ExactBag(const std::map<std::u16string, Variant>& values) : Values_(values) {}

    Variant readProperty(const PersistedRow& row) override {
        const auto found = Values_.find(std::u16string(row.readName));
        return found == Values_.end() ? toVariant(row.readDefault) : found->second;
    }
    void writeProperty(const PersistedRow&, const Variant&) override {}

private:
    const std::map<std::u16string, Variant>& Values_;
};

}  // namespace

ComboForm::ComboForm() {
    Settings_.makeDefaultRuntime = [this] { return makeRuntime(*this); };
    ControlHost host{*this, *this, *this, Settings_, defaultRegion()};
    Combo_ = std::make_unique<KelCombo>(host);
}

std::unique_ptr<ComboBox> ComboForm::makeComboBox(ComboBoxListener& listener) {
    auto box = std::make_unique<FakeBox>(listener);
    Box_ = box.get();
    return box;
}

void ComboForm::load(const std::map<std::u16string, Variant>& values) {
    ExactBag bag(values);
    Combo_->ReadProperties(bag);
    resize({4000, 300});
    Reports_.clear();
}

void ComboForm::enter(bool byTab) {
    TabDown_ = byTab;
    Combo_->EnterFocus();
    Box_->gotFocus();
    TabDown_ = false;
}

void ComboForm::leave() {
    Box_->lostFocus();
    Combo_->ExitFocus();
}

void ComboForm::resize(Size size) {
    Sized_ = true;
    Size_ = size;
    Combo_->Resize();
}

void ComboForm::setSize(Size size) {
    if (size != Size_) resize(size);
}

void ComboForm::propertyChanged(std::u16string_view bagName) { append(Reports_, ",", bagName); }

void ComboForm::raiseEvent(const EventRow& event, std::span<Variant> arguments) {
    append(Events_, " ", event.name);
    if (!arguments.empty()) arguments[0] = handled;
    if (onEvent) onEvent(event);
}

}  // namespace kel::test
