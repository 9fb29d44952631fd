#pragma once

#include "library/Runtime.h"
#include "platform/win32/ole/automation/DispatchCaller.h"

namespace kel::win32::ole {

/// An automation object of the host as a run-time object. Each member is looked up when it is needed; one
/// that the object lacks, or that fails, is thrown as AutomationError.
class AutomationRuntime final : public Runtime, public AutomationObject {
public:
    explicit AutomationRuntime(ComPtr<IDispatch> object) : Members_(std::move(object)) {}

    ComPtr<IDispatch> dispatch() override { return Members_.object(); }

    std::int32_t ColorDepth() override;
    std::u16string DecimalSeparator() override;
    std::int16_t DecimalDigits() override;
    std::u16string CaptionFontName() override;
    double CaptionFontSize() override;
    std::u16string FieldFontName() override;
    double FieldFontSize() override;
    void SendKey(std::int16_t keyCode) override;
    std::shared_ptr<kel::RuntimeDates> RuntimeDates() override;
    std::u16string ListAppend(std::u16string list, std::u16string_view item) override;
    std::u16string ReadField(const std::u16string& text, std::int32_t& position, std::int16_t separator) override;

private:
    DispatchCaller Members_;
};

}  // namespace kel::win32::ole
