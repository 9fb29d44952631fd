#include "platform/win32/ole/com/Edge.h"

#include "library/ClassRegistry.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

void leaveErrorInfo(std::u16string_view description) {
    ComPtr<ICreateErrorInfo> maker;
    if (FAILED(CreateErrorInfo(maker.receive()))) return;
    maker->SetSource(wide(LibraryName).data());
    maker->SetDescription(wide(description).data());
    if (const auto info = ComPtr<IErrorInfo>::of(maker.get())) SetErrorInfo(0, info.get());
}

}  // namespace

HRESULT reportError(HRESULT code, std::u16string_view description) noexcept {
    try {
        leaveErrorInfo(description);
    } catch (...) {  // the code alone has to do
    }
    return FAILED(code) ? code : E_FAIL;
}

HRESULT reportError(const AutomationError& error) noexcept {
    try {
        return reportError(error.code(), fromUtf8(error.what()).value_or(u""));
    } catch (...) {
        return FAILED(error.code()) ? error.code() : E_FAIL;
    }
}

}  // namespace kel::win32::ole
