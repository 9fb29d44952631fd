#include "library/SharedSettings.h"

#include <gtest/gtest.h>

#include "controls/Classes.h"
#include "host/PropertyBag.h"
#include "library/AutomationError.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"

namespace kel {
namespace {

class HostRuntime final : public Runtime {
public:
    std::int32_t ColorDepth() override { return Depth; }
    std::u16string DecimalSeparator() override { return Separator; }
    std::int16_t DecimalDigits() override {
        if (Digits < 0) throw AutomationError(UnknownNameCode, "no member DecimalDigits");
        return Digits;
    }
    std::u16string CaptionFontName() override { return u"F"; }
    double CaptionFontSize() override { return 8; }
    std::u16string FieldFontName() override { return u"F"; }
    double FieldFontSize() override { return 8; }
    void SendKey(std::int16_t) override {}
    std::shared_ptr<kel::RuntimeDates> RuntimeDates() override { return nullptr; }
    std::u16string ListAppend(std::u16string list, std::u16string_view) override { return list; }
    std::u16string ReadField(const std::u16string&, std::int32_t& position, std::int16_t) override {
        position = -1;
        return {};
    }
    std::int32_t Depth = 24;
    std::u16string Separator = u";!";
    std::int16_t Digits = 3;
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
    auto first = std::make_shared<HostRuntime>();
    hand(first);
    EXPECT_EQ(settings.Runtime, first);
    EXPECT_EQ(settings.DecimalSeparatorCode, u';');
    EXPECT_EQ(settings.DefaultDecimals, 3);
    EXPECT_EQ(settings.FieldBackFocus, 0x00C0FFC0U);
    auto second = std::make_shared<HostRuntime>();
    second->Depth = 8;
    second->Separator = u",";
    hand(second);
    EXPECT_EQ(settings.Runtime, second);
    EXPECT_EQ(settings.DecimalSeparatorCode, u',');
    EXPECT_EQ(settings.FieldBackFocus, 0x0080FF80U);
    EXPECT_EQ(settings.ButtonWidthPixels, 0) << "only loading a control computes it";
}

TEST_F(SetRuntime, FailsWithTheObjectsOwnError) {
    auto broken = std::make_shared<HostRuntime>();
    broken->Digits = -1;
    EXPECT_THROW(hand(broken), AutomationError);
    EXPECT_THROW(hand(std::make_shared<NoRuntime>()), AutomationError);
}

class DefaultsBag final : public PropertyBag {
    Variant readProperty(const PersistedRow& row) override { return toVariant(row.readDefault); }
    void writeProperty(const PersistedRow&, const Variant&) override {}
};

TEST(LoadingAControl, MakesADefaultRuntimeUnlessTheHostGaveOne) {
    for (const bool handedOver : {false, true}) {
        const auto home = headless::makeHome({.region = findRegion(u"de-DE"), .colorDepth = 24, .twipsPerPixel = 12});
        const auto given = std::make_shared<HostRuntime>();
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
