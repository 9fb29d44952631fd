#include "platform/win32/ole/automation/Apartment.h"

#include "platform/win32/ole/com/SoleInterface.h"
#include "platform/win32/ole/runtime/AutomationRuntime.h"

namespace kel::win32::ole {

namespace {

/// The registered default run-time object; none where `KelRuntime8` is not installed.
std::shared_ptr<Runtime> createRegisteredRuntime() {
    ComPtr<IDispatch> object;
    const HRESULT result = CoCreateInstance(toGuid(identities::Runtime), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                            object.receiveVoid());
    if (FAILED(result)) return nullptr;
    return automationRuntime(std::move(object));
}

/// Told when the component system leaves the thread.
class EndWatch final : public SoleInterface<IInitializeSpy> {
public:
    explicit EndWatch(void (*ends)()) : Ends_(ends) {}

    HRESULT STDMETHODCALLTYPE PreInitialize(DWORD /*kind*/, DWORD /*entered*/) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE PostInitialize(HRESULT result, DWORD /*kind*/, DWORD /*entered*/) noexcept override {
        return result;
    }
    HRESULT STDMETHODCALLTYPE PreUninitialize(DWORD entered) noexcept override {
        if (entered == 1) Ends_();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE PostUninitialize(DWORD /*entered*/) noexcept override { return S_OK; }

private:
    void (*Ends_)();
};

}  // namespace

Apartment::Apartment(void (*ends)()) {
    Settings_.makeDefaultRuntime = [this] { return defaultRuntime(); };
    Settings_.regionalRuntime = [this](const RegionalSettings& region) { return regionalRuntime(region); };
    const auto watch = ComPtr<IInitializeSpy>::adopt(new EndWatch(ends));
    CoRegisterInitializeSpy(watch.get(), &Watch_);
}

/// One for all that ask, until the apartment ends: looking it up takes longer than all that it is asked for.
std::shared_ptr<Runtime> Apartment::defaultRuntime() {
    if (Default_) return Default_;
    auto runtime = createRegisteredRuntime();
    if (!runtime) runtime = makeRuntime(Services_);
    if (!ended()) Default_ = runtime;
    return runtime;
}

std::shared_ptr<Runtime> Apartment::regionalRuntime(const RegionalSettings& region) {
    if (&region == &systemRegion()) return nullptr;
    auto& known = Regional_[&region];
    if (known == nullptr) known = std::make_unique<Regional>(region);
    return known->runtime;
}

void Apartment::end() {
    const std::shared_ptr<Runtime> last = std::move(Settings_.Runtime);
    const std::shared_ptr<Runtime> lastDefault = std::move(Default_);
    if (Watch_.QuadPart != 0) CoRevokeInitializeSpy(std::exchange(Watch_, {}));
}

}  // namespace kel::win32::ole
