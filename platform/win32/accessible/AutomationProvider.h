#pragma once

#include "platform/win32/accessible/AccessibleSource.h"
#include "platform/win32/accessible/SystemAccess.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32 {

/// A control as UI Automation sees it, asked by one of its windows. By its speaking window it is the thing that people
/// are told of; the others are around that one and stay out of their way.
class AutomationProvider final : public ole::ComObject,
                                 public ole::Part<IRawElementProviderSimple, IValueProvider, IRangeValueProvider,
                                                  IExpandCollapseProvider, IToggleProvider> {
public:
    AutomationProvider(ole::Module& module, std::shared_ptr<AccessibleLink> link, HWND window);

    // IRawElementProviderSimple
    HRESULT STDMETHODCALLTYPE get_ProviderOptions(ProviderOptions* options) noexcept override;
    HRESULT STDMETHODCALLTYPE GetPatternProvider(PATTERNID pattern, IUnknown** provider) noexcept override;
    HRESULT STDMETHODCALLTYPE GetPropertyValue(PROPERTYID property, VARIANT* value) noexcept override;
    HRESULT STDMETHODCALLTYPE get_HostRawElementProvider(IRawElementProviderSimple** host) noexcept override;

    // IValueProvider
    HRESULT STDMETHODCALLTYPE SetValue(LPCWSTR text) noexcept override;
    HRESULT STDMETHODCALLTYPE get_Value(BSTR* text) noexcept override;
    HRESULT STDMETHODCALLTYPE get_IsReadOnly(BOOL* readOnly) noexcept override;

    // IRangeValueProvider
    HRESULT STDMETHODCALLTYPE SetValue(double number) noexcept override;
    HRESULT STDMETHODCALLTYPE get_Value(double* number) noexcept override;
    HRESULT STDMETHODCALLTYPE get_Maximum(double* number) noexcept override;
    HRESULT STDMETHODCALLTYPE get_Minimum(double* number) noexcept override;
    HRESULT STDMETHODCALLTYPE get_LargeChange(double* number) noexcept override;
    HRESULT STDMETHODCALLTYPE get_SmallChange(double* number) noexcept override;

    // IExpandCollapseProvider
    HRESULT STDMETHODCALLTYPE Expand() noexcept override { return open(true); }
    HRESULT STDMETHODCALLTYPE Collapse() noexcept override { return open(false); }
    HRESULT STDMETHODCALLTYPE get_ExpandCollapseState(ExpandState* state) noexcept override;

    // IToggleProvider
    HRESULT STDMETHODCALLTYPE Toggle() noexcept override;
    HRESULT STDMETHODCALLTYPE get_ToggleState(ToggleState* state) noexcept override;

protected:
    void* find(REFIID iid) override;

private:
    HRESULT about(AboutControl act) noexcept;
    /// Gives what `say` makes of the control's description.
    template <class Value, class Say>
    HRESULT tell(Value* out, Say say) noexcept;
    HRESULT tellRange(double* out, double NumberRange::*part) noexcept;
    HRESULT open(bool wanted) noexcept;

    std::shared_ptr<AccessibleLink> Link_;
    HWND Window_;
};

/// What a property of UI Automation is for a control so described; VT_EMPTY where the system knows better.
void putProperty(const Accessible& described, PROPERTYID property, VARIANT& value);

}  // namespace kel::win32
