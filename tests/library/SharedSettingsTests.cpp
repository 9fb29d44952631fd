#include "library/SharedSettings.h"

#include <gtest/gtest.h>

#include "controls/Classes.h"
#include "host/PropertyBag.h"
#include "library/AutomationError.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"
#include "tests/runtime/RegionalServices.h"

namespace kel {
namespace {

/// A host whose region no other has.
struct Host {
    RegionalSettings region{.DecimalSeparator = u";!", .DecimalDigits = 3};
    RegionalServices services;

    std::shared_ptr<Runtime> runtime() {
        services.Region = &region;
        return makeRuntime(services);
    }
};

class NoRuntime final : public Object {};

class SetRuntime : public testing::Test {
protected:
    void hand(const ObjectPtr& runtime) {
        const ClassModel& model = *libraryClasses().find(u"KelControlHandler");
        const ObjectPtr handler = model.makeObject(settings);
        std::vector<Variant> arguments{runtime};
        Variant result;
        const DispatchFault fault = callMember(static_cast<LibraryObject&>(*handler), *findMember(model, u"setruntime"),
                                               arguments, result, defaultRegion());
        EXPECT_TRUE(fault.ok());
    }
    SharedSettings settings;
};

TEST_F(SetRuntime, TakesOverEachTime) {
    Host host;
    const auto first = host.runtime();
    hand(first);
    EXPECT_EQ(settings.Runtime, first);
    EXPECT_EQ(settings.DecimalSeparatorCode, u';');
    EXPECT_EQ(settings.DefaultDecimals, 3);
    EXPECT_EQ(settings.FieldBackFocus, 0x00C0FFC0U);
    host.services.Depth = 8;
    host.region.DecimalSeparator = u",";
    const auto second = host.runtime();
    hand(second);
    EXPECT_EQ(settings.Runtime, second);
    EXPECT_EQ(settings.DecimalSeparatorCode, u',');
    EXPECT_EQ(settings.FieldBackFocus, 0x0080FF80U);
    EXPECT_EQ(settings.ButtonWidthPixels, 0) << "only loading a control computes it";
}

TEST_F(SetRuntime, FailsWithTheObjectsOwnError) { EXPECT_THROW(hand(std::make_shared<NoRuntime>()), AutomationError); }

class DefaultsBag final : public PropertyBag {
    Variant readProperty(const PersistedRow& row) override { return toVariant(row.readDefault); }
    void writeProperty(const PersistedRow&, const Variant&) override {}
};

TEST(LoadingAControl, MakesADefaultRuntimeUnlessTheHostGaveOne) {
    for (const bool handedOver : {false, true}) {
        const auto home = headless::makeHome({.region = findRegion(u"de-DE"), .colorDepth = 24, .twipsPerPixel = 12});
        Host host;
        const auto given = host.runtime();
        if (handedOver) adoptRuntime(home->settings(), given);
        const auto window = home->makeWindow({}, home->system());
        SilentObserver observer;
        PlacedControl& placed = window->place(*libraryClasses().find(u"KelText"), {.name = u"t"}, observer);
        EXPECT_EQ(home->settings().Runtime != nullptr, handedOver) << "a control not loaded yet makes none";
        DefaultsBag bag;
        placed.control().ReadProperties(bag);
        ASSERT_NE(home->settings().Runtime, nullptr);
        EXPECT_EQ(home->settings().Runtime == given, handedOver);
        EXPECT_EQ(home->settings().ButtonWidthPixels, handedOver ? 0 : 20);
        EXPECT_EQ(home->settings().DecimalSeparatorCode, handedOver ? u';' : u',');
    }
}

}  // namespace
}  // namespace kel
