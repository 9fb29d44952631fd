#include "platform/qt/home/QtHome.h"

#include <QCoreApplication>

#include "common/basKelControls.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/home/QtServices.h"
#include "platform/qt/home/QtSystem.h"

namespace kel::qt {

namespace {

constexpr std::int32_t UsualTwipsPerPixel = 15;

class QtHome final : public Home {
public:
    explicit QtHome(const HomeOptions& options)
        : System_(options.twipsPerPixel > 0 ? options.twipsPerPixel : UsualTwipsPerPixel), Services_(options) {
        Settings_.makeDefaultRuntime = [this] { return makeRuntime(Services_); };
    }

    SharedSettings& settings() override { return Settings_; }
    System& system() override { return System_; }
    const RegionalSettings& region() const override { return Services_.region(); }

    std::unique_ptr<FormWindow> makeWindow(const WindowSpec& description, System& system) override {
        return std::make_unique<QtFormWindow>(description, ControlServices{Settings_, system, Services_.region()});
    }

private:
    QtSystem System_;
    QtServices Services_;
    SharedSettings Settings_;  ///< last: the run-time object in it works on the services
};

std::unique_ptr<Home>& defaultInstance() {
    static std::unique_ptr<Home> home;
    return home;
}

}  // namespace

std::unique_ptr<Home> makeHome(const HomeOptions& options) { return std::make_unique<QtHome>(options); }

Home& defaultHome() {
    std::unique_ptr<Home>& home = defaultInstance();
    if (!home) {
        home = makeHome({});
        qAddPostRoutine([] { defaultInstance().reset(); });
    }
    return *home;
}

ControlServices defaultSurroundings() {
    Home& home = defaultHome();
    // A control that is newly placed is never loaded, and takes some of the settings as it is made.
    if (!home.settings().Runtime) InitControls(home.settings(), home.system());
    return {home.settings(), home.system(), home.region()};
}

}  // namespace kel::qt
