#include "platform/headless/HeadlessHome.h"

#include "host/LocalClock.h"
#include "platform/headless/HeadlessWindow.h"
#include "platform/headless/Input.h"
#include "runtime/KelRuntime.h"

namespace kel::headless {

namespace {

constexpr std::int32_t UsualColorDepth = 24;
constexpr std::u16string_view FontName = u"Sans";
constexpr double FontSize = 8;  // points

class HeadlessSystem final : public System {
public:
    HeadlessSystem(const HomeOptions& options, const Input& input, Onlooker& onlooker)
        : Input_(input),
          Onlooker_(onlooker),
          Scale_(options.twipsPerPixel > 0 ? options.twipsPerPixel : ClassicTwipsPerPixel) {}

    Date today() const override { return Clock_.today(); }
    double timer() const override { return Clock_.secondsSinceMidnight(); }
    void messageBox(std::u16string_view prompt, std::int32_t /*style*/, std::u16string_view title) override {
        Onlooker_.messageBox(prompt, title);
    }
    void beep() override { Onlooker_.beep(); }
    bool tabKeyDown() const override { return Input_.Tab.isHeld(); }
    TwipScale scale() const override { return Scale_; }

private:
    const Input& Input_;
    Onlooker& Onlooker_;
    TwipScale Scale_;
    mutable LocalClock Clock_;
};

class HeadlessServices final : public RuntimeServices {
public:
    HeadlessServices(const HomeOptions& options, Input& input)
        : Input_(input),
          Region_(options.region != nullptr ? *options.region : defaultRegion()),
          ColorDepth_(options.colorDepth > 0 ? options.colorDepth : UsualColorDepth) {}

    std::int32_t colorDepth() const override { return ColorDepth_; }
    const RegionalSettings& region() const override { return Region_; }
    FontChoice captionFont() const override { return {std::u16string(FontName), FontSize}; }
    FontChoice fieldFont() const override { return captionFont(); }
    void sendKey(std::int16_t keyCode) override { Input_.send(keyCode); }

private:
    Input& Input_;
    const RegionalSettings& Region_;
    std::int32_t ColorDepth_;
};

class HeadlessHome final : public Home {
public:
    HeadlessHome(const HomeOptions& options, Onlooker& onlooker)
        : Onlooker_(onlooker), System_(options, Input_, onlooker), Services_(options, Input_) {
        Settings_.makeDefaultRuntime = [this] { return makeRuntime(Services_); };
    }

    SharedSettings& settings() override { return Settings_; }
    System& system() override { return System_; }
    const RegionalSettings& region() const override { return Services_.region(); }

    std::unique_ptr<FormWindow> makeWindow(const WindowSpec& window, System& system) override {
        return std::make_unique<HeadlessWindow>(window, system, Settings_, region(), Input_, Onlooker_);
    }

private:
    Onlooker& Onlooker_;
    Input Input_;
    HeadlessSystem System_;
    HeadlessServices Services_;
    SharedSettings Settings_;  ///< last: the run-time object in it works on the services
};

Onlooker nobody;

}  // namespace

std::unique_ptr<Home> makeHome(const HomeOptions& options) { return makeHome(options, nobody); }

std::unique_ptr<Home> makeHome(const HomeOptions& options, Onlooker& onlooker) {
    return std::make_unique<HeadlessHome>(options, onlooker);
}

}  // namespace kel::headless
