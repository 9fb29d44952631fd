#pragma once

#include "platform/win32/accessible/AutomationRange.h"

namespace kel::win32 {

/// The text of a field as UI Automation reads it, character by character and line by line.
class AutomationText final : public ole::ComObject, public ole::Part<ITextProvider> {
public:
    explicit AutomationText(TextSource source);

    HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY** ranges) noexcept override;
    HRESULT STDMETHODCALLTYPE GetVisibleRanges(SAFEARRAY** ranges) noexcept override;
    HRESULT STDMETHODCALLTYPE RangeFromChild(IRawElementProviderSimple* child,
                                             ITextRangeProvider** range) noexcept override;
    HRESULT STDMETHODCALLTYPE RangeFromPoint(ScreenPoint point, ITextRangeProvider** range) noexcept override;
    HRESULT STDMETHODCALLTYPE get_DocumentRange(ITextRangeProvider** range) noexcept override;
    HRESULT STDMETHODCALLTYPE get_SupportedTextSelection(Selectable* selectable) noexcept override;

protected:
    void* find(REFIID iid) override { return ole::asOneOf<ITextProvider>(iid, *this); }

private:
    HRESULT about(Deed<HRESULT(TextEntry& entry, HWND window)> act) noexcept;
    HRESULT giveOne(const ReadRange& range, SAFEARRAY** out) const;

    TextSource Source_;
};

}  // namespace kel::win32
