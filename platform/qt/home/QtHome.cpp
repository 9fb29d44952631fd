#include "platform/qt/home/QtHome.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <utility>
#include <vector>

#include "common/basKelControls.h"
#include "common/FieldLayout.h"
#include "host/LocalClock.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/TwipGrid.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/control/RetiredControls.h"
#include "platform/qt/home/KeySender.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/home/QtRegion.h"
#include "runtime/KelRuntime.h"

namespace kel::qt {

namespace {

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
    explicit QtSystem(const TwipScale& scale) : Scale_(scale) {}

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

double pointsOf(const QFont& font) {
    if (font.pointSizeF() > 0) return font.pointSizeF();
    return static_cast<double>(TwipScale(ClassicTwipsPerPixel).twips(font.pixelSize())) / TwipsPerPoint;
}

/// Of captions and fields alike, so that they look like one line: the application's own font, but for a scale on which
/// a line of it does not fit, its family in a small size.
FontChoice fontFitting(const TwipScale& scale) {
    const QFont font = QApplication::font();
    const int line = QFontMetrics(font).height();
    const bool fits = line <= scale.pixel(FieldHeight) - FieldFrame && line <= scale.pixel(CaptionHeight);
    return {std::u16string(viewOf(font.family())), fits ? pointsOf(font) : SmallSize};
}

/// None: each widget has its own.
FontChoice fontsOfWidgets() { return {{}, 0}; }

/// What the default run-time object takes from the desktop.
class QtServices final : public RuntimeServices {
public:
    QtServices(RegionalSettings region, std::int32_t colorDepth, FontChoice font)
        : Region_(std::move(region)), ColorDepth_(colorDepth), Font_(std::move(font)) {}

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
    FontChoice Font_;
};

class QtHome final : public Home {
public:
    /// Without a font of its own where widgets have theirs.
    QtHome(const HomeOptions& options, const TwipScale& scale, FontChoice font)
        : System_(scale),
          Services_(options.region != nullptr ? *options.region : regionFromLocale(Locale_), options.colorDepth,
                    std::move(font)) {
        Settings_.makeDefaultRuntime = [this] { return makeRuntime(Services_); };
        Settings_.regionalRuntime = [this](const RegionalSettings& region) { return regionalRuntime(region); };
    }

    SharedSettings& settings() override { return Settings_; }
    System& system() override { return System_; }
    const RegionalSettings& region() const override { return Services_.region(); }

    /// Of controls that stand where another locale goes than where the first one stood. There are few of them.
    const RegionalSettings& regionOf(const QLocale& locale) {
        if (locale == Locale_) return region();
        for (const auto& regional : Regional_)
            if (regional->locale == locale) return regional->services.region();
        return Regional_.emplace_back(std::make_unique<Regional>(locale))->services.region();
    }

    std::unique_ptr<FormWindow> makeWindow(const WindowSpec& description, System& system) override {
        return std::make_unique<QtFormWindow>(description, ControlServices{Settings_, system, Services_.region()});
    }

private:
    struct Regional {
        explicit Regional(const QLocale& from)
            : locale(from), services(regionFromLocale(from), 0, fontsOfWidgets()), runtime(makeRuntime(services)) {}
        QLocale locale;
        QtServices services;
        std::shared_ptr<Runtime> runtime;
    };

    std::shared_ptr<Runtime> regionalRuntime(const RegionalSettings& region) const {
        for (const auto& regional : Regional_)
            if (&regional->services.region() == &region) return regional->runtime;
        return nullptr;
    }

    QLocale Locale_;
    QtSystem System_;
    QtServices Services_;
    std::vector<std::unique_ptr<Regional>> Regional_;
    SharedSettings Settings_;  ///< last: the run-time object in it works on the services
};

std::unique_ptr<QtHome>& defaultInstance() {
    static std::unique_ptr<QtHome> home;
    return home;
}

QtHome& defaultQtHome() {
    std::unique_ptr<QtHome>& home = defaultInstance();
    if (!home) {
        home = std::make_unique<QtHome>(HomeOptions{}, TwipScale(ClassicTwipsPerPixel), fontsOfWidgets());
        qAddPostRoutine([] { defaultInstance().reset(); });
    }
    return *home;
}

}  // namespace

std::unique_ptr<Home> makeHome(const HomeOptions& options) {
    const TwipScale scale = options.twipsPerPixel > 0 ? TwipScale(options.twipsPerPixel) : scaleOfForms();
    return std::make_unique<QtHome>(options, scale, fontFitting(scale));
}

Home& defaultHome() { return defaultQtHome(); }

const RegionalSettings& defaultRegion(const QLocale& locale) { return defaultQtHome().regionOf(locale); }

ControlServices defaultSurroundings(const QLocale& locale) {
    QtHome& home = defaultQtHome();
    // A control that is newly placed is never loaded, and takes some of the settings as it is made.
    if (!home.settings().Runtime) InitControls(home.settings(), home.system());
    return {home.settings(), home.system(), home.regionOf(locale), true};
}

}  // namespace kel::qt
