#include "tests/check/OneControl.h"

#include <utility>

#include "platform/headless/HeadlessHome.h"
#include "values/Text.h"

namespace kel::test {

OneControl::OneControl(const ClassModel& model, Size size)
    : Home_(headless::makeHome({})), Window_(Home_->makeWindow({}, System)) {
    It_ = &Window_->place(model, {.name = u"it"}, *this);
    It_->setBounds({0, 0, size.width, size.height});
}

std::vector<std::string> OneControl::told() { return std::exchange(Told_, {}); }

void OneControl::controlEvent(PlacedControl&, const EventRow& event, std::span<Variant>) {
    Told_.push_back(toUtf8(event.name) + "!");
    onEvent();
}

void OneControl::propertyReported(PlacedControl&, std::u16string_view bagName) { Told_.push_back(toUtf8(bagName)); }

}  // namespace kel::test
