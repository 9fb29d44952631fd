#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/PropertyBag.h"
#include "platform/headless/HeadlessWindow.h"

/// One control on a headless window, for tests of what scripts cannot see.
namespace kel::test {

/// A machine whose clock a test sets, and which counts how often it is asked.
class TestSystem final : public System {
public:
    Date today() const override { return {41348}; }
    double timer() const override {
        ++Asked;
        return Clock;
    }
    void messageBox(std::u16string_view, std::int32_t, std::u16string_view) override {}
    void beep() override {}
    bool tabKeyDown() const override { return false; }
    TwipScale scale() const override { return TwipScale(15); }

    double Clock = 36000;
    mutable int Asked = 0;
};

/// Keeps what a control saves, to load it again.
class TestBag final : public PropertyBag {
public:
    Variant readProperty(const PersistedRow& row) override {
        const auto found = Stored.find(row.readName);
        return found == Stored.end() ? toVariant(row.readDefault) : found->second;
    }
    void writeProperty(const PersistedRow& row, const Variant& value) override {
        if (!equalsDefault(value, row.writeDefault)) Stored[std::u16string(row.name)] = value;
    }

    std::map<std::u16string, Variant, std::less<>> Stored;
};

class OneControl final : private ControlObserver {
public:
    /// Named "it", sized, neither loaded nor shown.
    explicit OneControl(const ClassModel& model, Size size = {4000, 300});

    template <class Kind>
    Kind& as() {
        return static_cast<Kind&>(It_->control());
    }
    PlacedControl& placed() { return *It_; }
    FormWindow& window() { return *Window_; }
    Home& home() { return *Home_; }

    /// What the container was told since the last call, in order: a property's name, an event's name with a "!".
    std::vector<std::string> told();

    TestSystem System;
    std::function<void()> onEvent = [] {};

private:
    void controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) override;
    void propertyReported(PlacedControl& control, std::u16string_view bagName) override;

    std::vector<std::string> Told_;
    std::unique_ptr<Home> Home_;
    std::unique_ptr<FormWindow> Window_;
    PlacedControl* It_;
};

using Lines = std::vector<std::string>;

}  // namespace kel::test
