#include "apps/kelforms/Homes.h"

#include "platform/headless/HeadlessHome.h"

#ifdef KEL_HAS_QT
#include <QApplication>

#include "platform/qt/QtHome.h"
#endif

namespace kel::app {

namespace {

class HeadlessSession final : public HomeSession {
public:
    explicit HeadlessSession(const HomeOptions& options) : Home_(headless::makeHome(options)) {}
    Home& home() override { return *Home_; }
    void runUntilClosed() override {}

private:
    std::unique_ptr<Home> Home_;
};

#ifdef KEL_HAS_QT

class QtSession final : public HomeSession {
public:
    explicit QtSession(const HomeOptions& options) : Application_(Count_, Arguments_), Home_(qt::makeHome(options)) {}
    Home& home() override { return *Home_; }
    void runUntilClosed() override { QApplication::exec(); }

private:
    char Name_[9] = "kelforms";
    char* Arguments_[2] = {Name_, nullptr};
    int Count_ = 1;
    QApplication Application_;
    std::unique_ptr<Home> Home_;
};

#endif

}  // namespace

const char* const WindowHome = "qt";

std::unique_ptr<HomeSession> openHome(const std::string& name, const HomeOptions& options,
                                      [[maybe_unused]] bool withWindow) {
    if (name == "headless") return std::make_unique<HeadlessSession>(options);
#ifdef KEL_HAS_QT
    if (name == "qt") {
        if (!withWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QtSession>(options);
    }
#endif
    throw UsageError("this program has no home \"" + name + "\"");
}

}  // namespace kel::app
