#include "apps/kelforms/Homes.h"

#include "platform/headless/HeadlessHome.h"

#ifdef KEL_HAS_QT
#include <QApplication>
#include <QLocale>

#include "platform/qt/home/QtHome.h"
#include "platform/qt/home/QtRegion.h"
#endif
#ifdef KEL_HAS_TERMINAL
#include "platform/terminal/Terminal.h"
#endif
#ifdef KEL_HAS_WIN32
#include "platform/win32/home/Win32Home.h"
#endif

namespace kel::app {

namespace {

class HeadlessSession final : public HomeSession {
public:
    HeadlessSession(const HomeOptions& options, std::unique_ptr<Onlooker> onlooker)
        : Onlooker_(std::move(onlooker)), Home_(headless::makeHome(options, *Onlooker_)) {}
    Home& home() override { return *Home_; }
    void runUntilClosed() override { Onlooker_->runUntilClosed(); }

private:
    std::unique_ptr<Onlooker> Onlooker_;
    std::unique_ptr<Home> Home_;
};

#ifdef KEL_HAS_QT

class QtSession final : public HomeSession {
public:
    explicit QtSession(const Options& options)
        : Words_(options.ofQt),
          Arguments_(pointersTo(Words_)),
          Count_(static_cast<int>(Words_.size())),
          Application_(Count_, Arguments_.data()),
          Home_(qt::makeHome(options.home)) {}
    Home& home() override { return *Home_; }
    void runUntilClosed() override { QApplication::exec(); }

private:
    /// As the system hands them to a program: its name in front, and nothing after the last.
    static std::vector<char*> pointersTo(std::vector<std::string>& words) {
        words.insert(words.begin(), "kelforms");
        std::vector<char*> pointers;
        for (std::string& word : words) pointers.push_back(word.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    // What Qt does not know it leaves, and all of it for as long as the application lives.
    std::vector<std::string> Words_;
    std::vector<char*> Arguments_;
    int Count_;
    QApplication Application_;
    std::unique_ptr<Home> Home_;
};

#endif

#ifdef KEL_HAS_WIN32

class Win32Session final : public HomeSession {
public:
    explicit Win32Session(const HomeOptions& options) : Home_(win32::makeHome(options)) {}
    Home& home() override { return *Home_; }
    void runUntilClosed() override { win32::runUntilClosed(*Home_); }

private:
    std::unique_ptr<Home> Home_;
};

#endif

}  // namespace

#ifdef KEL_HAS_WIN32
const char* const WindowHome = "win32";
#else
const char* const WindowHome = "qt";
#endif

RegionalSettings regionOf(const Options& options) {
    if (options.home.region != nullptr) return *options.home.region;
#ifdef KEL_HAS_QT
    return qt::regionFromLocale(QLocale::system());
#else
    return defaultRegion();
#endif
}

std::unique_ptr<HomeSession> openHome(const std::string& name, const Options& options,
                                      [[maybe_unused]] bool withWindow) {
    if (name != "qt" && !options.ofQt.empty())
        throw UsageError(options.ofQt.front() + ": no window of Qt's is opened here");
    if (name == "headless") return std::make_unique<HeadlessSession>(options.home, std::make_unique<Onlooker>());
#ifdef KEL_HAS_QT
    if (name == "qt") {
        if (!withWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QtSession>(options);
    }
#endif
#ifdef KEL_HAS_TERMINAL
    if (name == "terminal") return std::make_unique<HeadlessSession>(options.home, terminal::makeTerminal(withWindow));
#endif
#ifdef KEL_HAS_WIN32
    if (name == "win32") return std::make_unique<Win32Session>(options.home);
#endif
    throw UsageError("this program has no home \"" + name + "\"");
}

}  // namespace kel::app
