#include "platform/qt/home/QtHome.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>

#include "common/basKelControls.h"
#include "common/FieldLayout.h"
#include "host/LocalClock.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/control/RetiredControls.h"
#include "platform/qt/home/KeySender.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/home/QtRegion.h"
#include "runtime/KelRuntime.h"

namespace kel::qt {

namespace {

constexpr std::int32_t UsualTwipsPerPixel = 15;
constexpr std::int32_t TwipsPerPoint = 20;
constexpr double SmallSize = 8;    ///< points
constexpr int FieldFrame = 2 * 2;  ///< pixels above and below a field's text

QMessageBox::Icon iconOf(std::int32_t style) {
    constexpr std::int32_t IconBits = 0x70;
    switch (style & IconBits) {
        case 16: return QMessageBox::Critical;
        case 32: return QMessageBox::Question;
        case 48: return QMessageBox::Warning;
        case 64: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

/// Some platforms leave the window behind a closed box inactive, and its field without the focus.
void bringBack(QWidget& window) {
    if (window.isVisible() && !window.isActiveWindow()) window.activateWindow();
}

/// The desktop's own clock, message boxes and keyboard.
class QtSystem final : public System {
public:
    explicit QtSystem(const HomeOptions& options)
        : Scale_(options.twipsPerPixel > 0 ? options.twipsPerPixel : UsualTwipsPerPixel) {}

    Date today() const override { return Clock_.today(); }
    double timer() const override { return Clock_.secondsSinceMidnight(); }
    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override {
        const ForeignCode running;
        const QPointer<QWidget> window = QApplication::activeWindow();
        // Not on the stack: should its window be destroyed, it goes with it.
        const QPointer<QMessageBox> box =
            new QMessageBox(iconOf(style), toQString(title), toQString(prompt), QMessageBox::Ok, window);
        box->setTextFormat(Qt::PlainText);
        box->exec();
        delete box;
        if (!window.isNull()) bringBack(*window);
    }
    void beep() override { QApplication::beep(); }
    bool tabKeyDown() const override { return focus::movesByTab(); }
    TwipScale scale() const override { return Scale_; }

private:
    TwipScale Scale_;
    mutable LocalClock Clock_;
};

/// The application's own font where a line of it fits a field and a caption, else its family in a small size.
FontChoice fittingFont() {
    const QFont font = QApplication::font();
    const QFontMetrics metrics(font);
    const TwipGrid grid(UsualTwipsPerPixel);
    const bool fits =
        metrics.height() <= grid.pixel(FieldHeight) - FieldFrame && metrics.height() <= grid.pixel(CaptionHeight);
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : static_cast<double>(grid.twips(font.pixelSize())) / TwipsPerPoint;
    return {std::u16string(viewOf(font.family())), fits ? points : SmallSize};
}

/// What the default run-time object takes from the desktop.
class QtServices final : public RuntimeServices {
public:
    explicit QtServices(const HomeOptions& options)
        : Region_(options.region != nullptr ? *options.region : regionFromLocale(QLocale())),
          ColorDepth_(options.colorDepth),
          Font_(fittingFont()) {}

    std::int32_t colorDepth() const override {
        return ColorDepth_ > 0 ? ColorDepth_ : QGuiApplication::primaryScreen()->depth();
    }
    const RegionalSettings& region() const override { return Region_; }
    FontChoice captionFont() const override { return Font_; }
    FontChoice fieldFont() const override { return Font_; }
    void sendKey(std::int16_t keyCode) override { sendKeyLater({keyCode, 0, NoModifier}); }

private:
    RegionalSettings Region_;
    std::int32_t ColorDepth_;  ///< 0: the display's
    FontChoice Font_;          ///< of captions and fields, so that they look like one line
};

class QtHome final : public Home {
public:
    explicit QtHome(const HomeOptions& options) : System_(options), Services_(options) {
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
