#include "platform/qt/control/RetiredControls.h"

#include <QObject>
#include <utility>
#include <vector>

#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

/// Goes when its event loop has its turn: by then whoever was in the controls has left them.
class RestingPlace final : public QObject {
public:
    void take(std::unique_ptr<ControlSite> site) { Sites_.push_back(std::move(site)); }

private:
    std::vector<std::unique_ptr<ControlSite>> Sites_;
};

int Running = 0;
RestingPlace* Place = nullptr;  ///< of those that foreign code may still come back to

}  // namespace

ForeignCode::ForeignCode() { ++Running; }

ForeignCode::~ForeignCode() {
    if (--Running == 0 && Place != nullptr) std::exchange(Place, nullptr)->deleteLater();
}

void retire(std::unique_ptr<ControlSite> site) {
    if (Running == 0) return;
    site->leaveWidget();
    if (Place == nullptr) Place = new RestingPlace;
    Place->take(std::move(site));
}

}  // namespace kel::qt
