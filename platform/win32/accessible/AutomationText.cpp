#include "platform/win32/accessible/AutomationText.h"

#include <windows.h>

#include <algorithm>

#include "host/Widgets.h"
#include "platform/win32/widgets/EditView.h"

namespace kel::win32 {

AutomationText::AutomationText(TextSource source)
    : ComObject(source.module, nullptr), Part(static_cast<ComObject&>(*this)), Source_(std::move(source)) {}

HRESULT AutomationText::about(Deed<HRESULT(TextEntry&, HWND)> act) noexcept {
    return guarded([&] {
        return Source_.link->with(NotAvailable, [&](AccessibleSource& source, Control& control) -> HRESULT {
            TextEntry* const entry = control.widgets().entry;
            return entry != nullptr ? act(*entry, source.speakingWindow()) : NotAvailable;
        });
    });
}

HRESULT AutomationText::giveOne(const ReadRange& range, SAFEARRAY** out) const {
    ComPtr<ITextRangeProvider> made;
    const HRESULT given = Source_.give(range, made.receive());
    if (FAILED(given)) return given;
    *out = SafeArrayCreateVector(VT_UNKNOWN, 0, 1);
    if (*out == nullptr) return E_OUTOFMEMORY;
    LONG first = 0;
    return SafeArrayPutElement(*out, &first, made.get());
}

HRESULT AutomationText::GetSelection(SAFEARRAY** ranges) noexcept {
    if (ranges == nullptr) return E_POINTER;
    *ranges = nullptr;
    return about([&](TextEntry& entry, HWND) {
        return giveOne({entry.selection().start(), entry.selection().end()}, ranges);
    });
}

HRESULT AutomationText::GetVisibleRanges(SAFEARRAY** ranges) noexcept {
    if (ranges == nullptr) return E_POINTER;
    *ranges = nullptr;
    return about([&](TextEntry& entry, HWND window) {
        RECT area{};
        GetClientRect(window, &area);
        const std::size_t first = positionAt(window, {area.left, area.top}, entry);
        const std::size_t last = positionAt(window, {area.right - 1, area.bottom - 1}, entry);
        return giveOne({first, std::max(first, last)}, ranges);
    });
}

/// Nothing stands in the text.
HRESULT AutomationText::RangeFromChild(IRawElementProviderSimple*, ITextRangeProvider** range) noexcept {
    if (range == nullptr) return E_POINTER;
    *range = nullptr;
    return E_INVALIDARG;
}

HRESULT AutomationText::RangeFromPoint(ScreenPoint point, ITextRangeProvider** range) noexcept {
    if (range == nullptr) return E_POINTER;
    *range = nullptr;
    return about([&](TextEntry& entry, HWND window) {
        POINT place{static_cast<LONG>(point.x), static_cast<LONG>(point.y)};
        ScreenToClient(window, &place);
        const std::size_t position = positionAt(window, place, entry);
        return Source_.give({position, position}, range);
    });
}

HRESULT AutomationText::get_DocumentRange(ITextRangeProvider** range) noexcept {
    if (range == nullptr) return E_POINTER;
    *range = nullptr;
    return about([&](TextEntry& entry, HWND) { return Source_.give({0, entry.text().size()}, range); });
}

HRESULT AutomationText::get_SupportedTextSelection(Selectable* selectable) noexcept {
    if (selectable == nullptr) return E_POINTER;
    return about([&](TextEntry&, HWND) {
        *selectable = Selectable::Single;
        return S_OK;
    });
}

}  // namespace kel::win32
