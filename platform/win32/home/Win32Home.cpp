#include "platform/win32/home/Win32Home.h"

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include "platform/win32/base/MessageBox.h"
#include "platform/win32/base/Session.h"
#include "platform/win32/home/Win32FormWindow.h"
#include "platform/win32/home/Win32Services.h"
#include "runtime/KelRuntime.h"

namespace kel::win32 {

namespace {

/// The machine's, but for the Tab key, which counts as down while it moves the focus and no longer.
class HomeSystem final : public Win32System {
public:
    HomeSystem(const HomeOptions& options, const Session& session)
        : Session_(session),
          Scale_(options.twipsPerPixel > 0 ? TwipScale(options.twipsPerPixel) : Win32System::scale()) {}

    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override {
        showMessageBox(Session_.activeWindow(), prompt, style, title);
    }
    bool tabKeyDown() const override { return Session_.tabHeld(); }
    TwipScale scale() const override { return Scale_; }

private:
    const Session& Session_;
    TwipScale Scale_;
};

class HomeServices final : public RuntimeServices {
public:
    HomeServices(const HomeOptions& options, Session& session)
        : Session_(session), Region_(options.region), ColorDepth_(options.colorDepth) {}

    std::int32_t colorDepth() const override { return ColorDepth_ > 0 ? ColorDepth_ : Machine_.colorDepth(); }
    const RegionalSettings& region() const override { return Region_ != nullptr ? *Region_ : Machine_.region(); }
    FontChoice captionFont() const override { return Machine_.captionFont(); }
    FontChoice fieldFont() const override { return Machine_.fieldFont(); }
    void sendKey(std::int16_t keyCode) override { Session_.send(keyCode); }

private:
    Win32RuntimeServices Machine_;
    Session& Session_;
    const RegionalSettings* Region_;
    std::int32_t ColorDepth_;
};

/// Readers ask the windows by way of components.
class Components {
public:
    Components() : Begun_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Components() {
        if (SUCCEEDED(Begun_)) CoUninitialize();
    }
    Components(const Components&) = delete;
    Components& operator=(const Components&) = delete;

private:
    HRESULT Begun_;
};

class Win32Home final : public Home {
public:
    explicit Win32Home(const HomeOptions& options) : System_(options, Session_), Services_(options, Session_) {
        const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
        InitCommonControlsEx(&wanted);
        Settings_.makeDefaultRuntime = [this] { return makeRuntime(Services_); };
    }

    SharedSettings& settings() override { return Settings_; }
    System& system() override { return System_; }
    const RegionalSettings& region() const override { return Services_.region(); }

    std::unique_ptr<FormWindow> makeWindow(const WindowSpec& description, System& system) override {
        return std::make_unique<Win32FormWindow>(description, system, Settings_, region(), Session_);
    }

    Session& session() { return Session_; }

private:
    Components Components_;
    Session Session_;
    HomeSystem System_;
    HomeServices Services_;
    SharedSettings Settings_;  ///< last: the run-time object in it works on the services
};

}  // namespace

std::unique_ptr<Home> makeHome(const HomeOptions& options) { return std::make_unique<Win32Home>(options); }

void runUntilClosed(Home& home) { static_cast<Win32Home&>(home).session().run(); }

}  // namespace kel::win32
