#include "platform/win32/accessible/AutomationRange.h"

#include <algorithm>
#include <vector>

#include "host/Widgets.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/widgets/EditView.h"
#include "values/CaseFolding.h"

namespace kel::win32 {

namespace {

/// Asked for it, an object that is one of ours says so; what another one gives is none of ours.
constexpr GUID OwnRange{0x5d0e7d51, 0x6a0c, 0x4c53, {0x9b, 0x0e, 0x41, 0x6b, 0xd2, 0x7f, 0x3c, 0x11}};

ReadingUnit unitOf(ReadBy unit) {
    switch (unit) {
        case ReadBy::Character: return ReadingUnit::Character;
        case ReadBy::Word: return ReadingUnit::Word;
        case ReadBy::Line: return ReadingUnit::Line;
        case ReadBy::Paragraph: return ReadingUnit::Paragraph;
        // All of the text looks alike and is on one page.
        default: return ReadingUnit::Document;
    }
}

std::u16string folded(std::u16string_view text) {
    std::u16string out(text);
    for (char16_t& unit : out) {
        const char32_t other = foldCase(unit);
        if (other <= 0xFFFF) unit = static_cast<char16_t>(other);
    }
    return out;
}

/// Where a character stands in an edit window, line by line.
class CharacterPlaces {
public:
    CharacterPlaces(HWND window, const ReadText& read)
        : Window_(window), Read_(read), Context_(window), Saved_(Context_.get()) {
        const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
        SelectObject(Context_.get(), font != nullptr ? font : GetStockObject(SYSTEM_FONT));
        TEXTMETRICW metrics{};
        GetTextMetricsW(Context_.get(), &metrics);
        Height_ = metrics.tmHeight;
    }

    /// Of a part of one line, in screen coordinates; empty where nothing of it is seen.
    RECT place(const ReadRange& part) const {
        const POINT first = cornerOf(part.start);
        const std::size_t last = part.end - 1;
        const POINT end = cornerOf(last);
        SIZE width{};
        const wchar_t unit = static_cast<wchar_t>(Read_.text[last]);
        GetTextExtentPoint32W(Context_.get(), &unit, 1, &width);
        const RECT whole{first.x, first.y, end.x + width.cx, first.y + Height_};
        RECT client{};
        GetClientRect(Window_, &client);
        RECT seen{};
        if (IntersectRect(&seen, &whole, &client) != FALSE)
            MapWindowPoints(Window_, nullptr, reinterpret_cast<POINT*>(&seen), 2);
        return seen;
    }

private:
    POINT cornerOf(std::size_t position) const {
        const LRESULT found = SendMessageW(Window_, EM_POSFROMCHAR, position, 0);
        return {static_cast<std::int16_t>(LOWORD(found)), static_cast<std::int16_t>(HIWORD(found))};
    }

    HWND Window_;
    const ReadText& Read_;
    WindowContext Context_;
    SavedContext Saved_;
    LONG Height_;
};

/// Of what is seen alone: the window says places in sixteen bits, which begin again in a long text.
std::vector<double> rectanglesOf(HWND window, const TextEntry& entry, const ReadText& read, ReadRange range) {
    RECT client{};
    GetClientRect(window, &client);
    range.start = std::max(range.start, positionAt(window, {0, 0}, entry));
    range.end = std::min(range.end, positionAt(window, {client.right - 1, client.bottom - 1}, entry) + 1);
    std::vector<double> sides;
    const CharacterPlaces places(window, read);
    for (std::size_t at = range.start; at < range.end;) {
        const TextLine line = read.lines.lineAt(at);
        const std::size_t end = std::min(range.end, line.end);
        if (end > at) {
            const RECT seen = places.place({at, end});
            if (IsRectEmpty(&seen) == FALSE)
                for (const LONG side : {seen.left, seen.top, seen.right - seen.left, seen.bottom - seen.top})
                    sides.push_back(side);
        }
        if (line.isLast || line.next <= at) break;
        at = line.next;
    }
    return sides;
}

}  // namespace

ReadText readTextOf(const TextEntry& entry, std::u16string& seen) {
    const TextLines* const lines = entry.view() != nullptr ? entry.view()->lines() : nullptr;
    seen = entry.shownText();
    return {seen, lines != nullptr ? *lines : entry.buffer(), entry.multiLine(), entry.isPassword()};
}

HRESULT TextSource::give(const ReadRange& range, ITextRangeProvider** out) const {
    return ole::giveNew(new AutomationRange(*this, range), __uuidof(ITextRangeProvider), reinterpret_cast<void**>(out));
}

AutomationRange::AutomationRange(const TextSource& source, const ReadRange& range)
    : ComObject(source.module, nullptr), Part(static_cast<ComObject&>(*this)), Source_(source), Range_(range) {}

void* AutomationRange::find(REFIID iid) {
    if (IsEqualGUID(iid, OwnRange)) return static_cast<ITextRangeProvider*>(this);
    return ole::asOneOf<ITextRangeProvider>(iid, *this);
}

HRESULT AutomationRange::about(Deed<HRESULT(TextEntry&, const ReadText&, HWND)> act) noexcept {
    return guarded([&] {
        return Source_.link->with(NotAvailable, [&](AccessibleSource& source, Control& control) -> HRESULT {
            TextEntry* const entry = control.widgets().entry;
            if (entry == nullptr) return NotAvailable;
            std::u16string seen;
            const ReadText read = readTextOf(*entry, seen);
            Range_.end = std::min(Range_.end, seen.size());
            Range_.start = std::min(Range_.start, Range_.end);
            return act(*entry, read, source.speakingWindow());
        });
    });
}

/// Another range of the same field's; E_INVALIDARG for any other.
HRESULT AutomationRange::with(ITextRangeProvider* other, Deed<void(AutomationRange&)> act) noexcept {
    if (other == nullptr) return E_INVALIDARG;
    ComPtr<ITextRangeProvider> own;
    if (FAILED(other->QueryInterface(OwnRange, own.receiveVoid()))) return E_INVALIDARG;
    auto& range = *static_cast<AutomationRange*>(own.get());
    if (range.Source_.link != Source_.link) return E_INVALIDARG;
    return about([&](TextEntry&, const ReadText&, HWND) {
        act(range);
        return S_OK;
    });
}

HRESULT AutomationRange::Clone(ITextRangeProvider** copy) noexcept {
    if (copy == nullptr) return E_POINTER;
    *copy = nullptr;
    return about([&](TextEntry&, const ReadText&, HWND) { return Source_.give(Range_, copy); });
}

// ---- Beside others

HRESULT AutomationRange::Compare(ITextRangeProvider* other, BOOL* same) noexcept {
    if (same == nullptr) return E_POINTER;
    *same = FALSE;
    return with(other, [&](AutomationRange& range) { *same = range.Range_ == Range_; });
}

HRESULT AutomationRange::CompareEndpoints(RangeEnd end, ITextRangeProvider* other, RangeEnd otherEnd,
                                          int* difference) noexcept {
    if (difference == nullptr) return E_POINTER;
    *difference = 0;
    return with(other, [&](AutomationRange& range) {
        *difference = static_cast<int>(placeOf(end)) - static_cast<int>(range.placeOf(otherEnd));
    });
}

HRESULT AutomationRange::MoveEndpointByRange(RangeEnd end, ITextRangeProvider* other, RangeEnd otherEnd) noexcept {
    return with(other, [&](AutomationRange& range) { putEnd(end, range.placeOf(otherEnd)); });
}

/// The ends never cross: the other one comes along.
void AutomationRange::putEnd(RangeEnd end, std::size_t place) {
    placeOf(end) = place;
    if (end == RangeEnd::Start)
        Range_.end = std::max(Range_.end, place);
    else
        Range_.start = std::min(Range_.start, place);
}

// ---- By units

HRESULT AutomationRange::ExpandToEnclosingUnit(ReadBy unit) noexcept {
    return about([&](TextEntry&, const ReadText& read, HWND) {
        Range_ = unitAt(read, unitOf(unit), Range_.start);
        return S_OK;
    });
}

HRESULT AutomationRange::Move(ReadBy unit, int count, int* moved) noexcept {
    if (moved == nullptr) return E_POINTER;
    *moved = 0;
    return about([&](TextEntry&, const ReadText& read, HWND) {
        if (count != 0) *moved = moveByUnits(read, unitOf(unit), count, Range_);
        return S_OK;
    });
}

HRESULT AutomationRange::MoveEndpointByUnit(RangeEnd end, ReadBy unit, int count, int* moved) noexcept {
    if (moved == nullptr) return E_POINTER;
    *moved = 0;
    return about([&](TextEntry&, const ReadText& read, HWND) {
        std::size_t place = placeOf(end);
        *moved = moveByUnits(read, unitOf(unit), count, place);
        putEnd(end, place);
        return S_OK;
    });
}

// ---- What it holds

HRESULT AutomationRange::FindAttribute(TEXTATTRIBUTEID attribute, VARIANT value, BOOL,
                                       ITextRangeProvider** found) noexcept {
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    return about([&](TextEntry& entry, const ReadText&, HWND) -> HRESULT {
        const bool isLocked = value.vt == VT_BOOL && (value.boolVal != VARIANT_FALSE) == entry.locked();
        return attribute == ReadOnlyAttribute && isLocked ? Source_.give(Range_, found) : S_OK;
    });
}

HRESULT AutomationRange::FindText(BSTR text, BOOL backward, BOOL ignoreCase, ITextRangeProvider** found) noexcept {
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    if (text == nullptr) return E_INVALIDARG;
    return about([&](TextEntry&, const ReadText& read, HWND) -> HRESULT {
        std::u16string where(read.text.substr(Range_.start, Range_.end - Range_.start));
        std::u16string what = ole::textOf(text);
        if (ignoreCase != FALSE) {
            where = folded(where);
            what = folded(what);
        }
        const std::size_t at = backward != FALSE ? where.rfind(what) : where.find(what);
        if (what.empty() || at == std::u16string::npos) return S_OK;
        return Source_.give({Range_.start + at, Range_.start + at + what.size()}, found);
    });
}

HRESULT AutomationRange::GetAttributeValue(TEXTATTRIBUTEID attribute, VARIANT* value) noexcept {
    if (value == nullptr) return E_POINTER;
    *value = VARIANT{};
    return about([&](TextEntry& entry, const ReadText&, HWND) -> HRESULT {
        if (attribute == ReadOnlyAttribute) {
            value->vt = VT_BOOL;
            value->boolVal = entry.locked() ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        }
        const HRESULT given = SystemAccess::instance().notSupported(&value->punkVal);
        if (SUCCEEDED(given)) value->vt = VT_UNKNOWN;
        return given;
    });
}

HRESULT AutomationRange::GetBoundingRectangles(SAFEARRAY** rectangles) noexcept {
    if (rectangles == nullptr) return E_POINTER;
    *rectangles = nullptr;
    return about([&](TextEntry& entry, const ReadText& read, HWND window) -> HRESULT {
        const std::vector<double> sides = rectanglesOf(window, entry, read, Range_);
        *rectangles = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(sides.size()));
        if (*rectangles == nullptr) return E_OUTOFMEMORY;
        std::copy(sides.begin(), sides.end(), static_cast<double*>((*rectangles)->pvData));
        return S_OK;
    });
}

HRESULT AutomationRange::GetEnclosingElement(IRawElementProviderSimple** element) noexcept {
    if (element == nullptr) return E_POINTER;
    *element = ComPtr<IRawElementProviderSimple>(Source_.element).detach();
    return S_OK;
}

HRESULT AutomationRange::GetText(int maximum, BSTR* text) noexcept {
    if (text == nullptr) return E_POINTER;
    *text = nullptr;
    if (maximum < -1) return E_INVALIDARG;
    return about([&](TextEntry&, const ReadText& read, HWND) {
        const std::size_t all = Range_.end - Range_.start;
        const std::size_t units = maximum < 0 ? all : std::min(all, static_cast<std::size_t>(maximum));
        *text = ole::makeBstr(read.text.substr(Range_.start, units));
        return S_OK;
    });
}

HRESULT AutomationRange::GetChildren(SAFEARRAY** children) noexcept {
    if (children == nullptr) return E_POINTER;
    *children = SafeArrayCreateVector(VT_UNKNOWN, 0, 0);
    return *children != nullptr ? S_OK : E_OUTOFMEMORY;
}

// ---- What is done with it

HRESULT AutomationRange::Select() noexcept {
    return about([&](TextEntry& entry, const ReadText&, HWND) {
        entry.select({Range_.start, Range_.end});
        return S_OK;
    });
}

/// There is one selection.
HRESULT AutomationRange::AddToSelection() noexcept { return NotPossible; }

HRESULT AutomationRange::RemoveFromSelection() noexcept { return NotPossible; }

HRESULT AutomationRange::ScrollIntoView(BOOL alignToTop) noexcept {
    return about([&](TextEntry& entry, const ReadText&, HWND window) {
        if (!entry.multiLine()) return S_OK;
        const std::size_t place = alignToTop != FALSE ? Range_.start : Range_.end;
        const LRESULT wanted = SendMessageW(window, EM_LINEFROMCHAR, place, 0);
        const LRESULT top = SendMessageW(window, EM_GETFIRSTVISIBLELINE, 0, 0);
        const std::ptrdiff_t below = alignToTop != FALSE ? 0 : entry.view()->linesOfPage() - 1;
        SendMessageW(window, EM_LINESCROLL, 0, static_cast<LPARAM>(wanted - below - top));
        return S_OK;
    });
}

}  // namespace kel::win32
