#include <windows.h>
// The header of the system's typesetter stands on the system's.
#include <usp10.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "host/focus/Mnemonic.h"
#include "platform/win32/base/Procedure.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/drawing/CanvasText.h"
#include "values/Text.h"

namespace kel::win32 {

namespace {

constexpr std::wstring_view LineBreak = L"\r\n";

/// Text reads as the window goes, or the picture; a metafile knows of no layout.
UINT readingOptions(const Canvas& canvas) {
    const DWORD layout = GetLayout(canvas.context());
    const bool isTurned = layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
    return isTurned || canvas.isMirrored() ? ETO_RTLREADING : 0U;
}

/// Whether anything in it may be read from right to left.
bool mayTurnBack(std::wstring_view line) {
    constexpr wchar_t FirstHebrew = 0x590;
    return std::any_of(line.begin(), line.end(), [](wchar_t unit) { return unit >= FirstHebrew; });
}

struct Stretch {
    int from = 0;
    int to = 0;
};

/// Where the system's typesetter puts a character, from the left end of its line. None without it.
std::optional<Stretch> placed(HDC context, std::wstring_view line, std::size_t at, bool fromRight) {
    static HMODULE const Library = systemLibrary(L"usp10.dll");
    static auto* const Analyse = procedureOf<decltype(ScriptStringAnalyse)>(Library, "ScriptStringAnalyse");
    static auto* const PlaceOf = procedureOf<decltype(ScriptStringCPtoX)>(Library, "ScriptStringCPtoX");
    static auto* const Free = procedureOf<decltype(ScriptStringFree)>(Library, "ScriptStringFree");
    if (Analyse == nullptr || PlaceOf == nullptr || Free == nullptr) return std::nullopt;
    const auto length = static_cast<int>(line.size());
    const int glyphs = length * 3 / 2 + 16;  // as many as it asks for at least
    SCRIPT_STRING_ANALYSIS analysis = nullptr;
    if (FAILED(Analyse(context, line.data(), length, glyphs, -1, SSA_GLYPHS | (fromRight ? SSA_RTL : 0U), 0, nullptr,
                       nullptr, nullptr, nullptr, nullptr, &analysis)))
        return std::nullopt;
    Stretch found;
    PlaceOf(analysis, static_cast<int>(at), FALSE, &found.from);
    PlaceOf(analysis, static_cast<int>(at), TRUE, &found.to);
    Free(&analysis);
    if (found.from > found.to) std::swap(found.from, found.to);
    return found;
}

}  // namespace

CanvasText::CanvasText(const Canvas& canvas, const Font& font)
    : Canvas_(canvas), Measure_(canvas.isWindow() ? canvas.context() : CreateCompatibleDC(nullptr)) {
    if (!canvas.isWindow()) Made_ = font.makeScaled(canvas.down(), canvas.screen());
    HFONT const used = Made_ != nullptr ? Made_ : font.handle();
    Before_ = SelectObject(canvas.context(), used);
    if (Measure_ != canvas.context()) MeasuredBefore_ = SelectObject(Measure_, used);
    SetBkMode(canvas.context(), TRANSPARENT);
    GetTextMetricsW(Measure_, &Metrics_);
}

CanvasText::~CanvasText() {
    SelectObject(Canvas_.context(), Before_);
    if (Measure_ != Canvas_.context()) {
        SelectObject(Measure_, MeasuredBefore_);
        DeleteDC(Measure_);
    }
    if (Made_ != nullptr) DeleteObject(Made_);
}

int CanvasText::width(std::wstring_view text) const {
    SIZE size{};
    GetTextExtentPoint32W(Measure_, text.data(), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

void CanvasText::line(POINT place, std::wstring_view text, COLORREF ink, const RECT* clip) const {
    SetTextColor(Canvas_.context(), ink);
    const POINT start = Canvas_.seen(place);
    const RECT kept = clip != nullptr ? Canvas_.seen(*clip) : RECT{};
    ExtTextOutW(Canvas_.context(), static_cast<int>(start.x), static_cast<int>(start.y),
                readingOptions(Canvas_) | (clip != nullptr ? ETO_CLIPPED : 0U), clip != nullptr ? &kept : nullptr,
                text.data(), static_cast<UINT>(text.size()), nullptr);
}

void CanvasText::caption(const RECT& area, std::u16string_view caption, COLORREF ink, bool severalLines,
                         bool marks) const {
    const ReadCaption read = readCaption(caption);
    const std::wstring text = wide(read.text);
    std::size_t start = 0;
    POINT place{area.left, area.top};
    const auto show = [&](std::wstring_view part) {
        line(place, part, ink);
        if (marks && read.mnemonic >= start && read.mnemonic < start + part.size())
            underline(place, part, read.mnemonic - start, ink);
        place.y += height();
    };
    if (!severalLines) {
        show(text);
        return;
    }
    breakInto(widthOf(area), text, [&](std::wstring_view part) {
        start = static_cast<std::size_t>(part.data() - text.data());
        show(part);
    });
}

/// Where the system puts it. A Latin word stands as ever in a line that begins at the right, and its first letter is
/// the last from there.
void CanvasText::underline(POINT place, std::wstring_view line, std::size_t at, COLORREF ink) const {
    Stretch letter{width(line.substr(0, at)), width(line.substr(0, at + 1))};
    const bool fromRight = readingOptions(Canvas_) != 0;
    if (fromRight || mayTurnBack(line)) {
        letter = placed(Measure_, line, at, fromRight).value_or(letter);
        const int whole = width(line);
        if (fromRight) letter = {whole - letter.to, whole - letter.from};
    }
    const int left = static_cast<int>(place.x);
    const int top = static_cast<int>(place.y) + ascent() + Canvas_.down(1);
    Canvas_.fill({left + letter.from, top, left + letter.to, top + Canvas_.down(1)}, ink);
}

void CanvasText::lines(const RECT& area, std::wstring_view text, COLORREF ink) const {
    POINT place{area.left, area.top};
    breakInto(widthOf(area), text, [&](std::wstring_view part) {
        if (place.y == area.top || place.y + height() <= area.bottom) line(place, part, ink);
        place.y += height();
    });
}

template <class Line>
void CanvasText::breakInto(int width, std::wstring_view text, Line line) const {
    for (bool more = true; more;) {
        const std::size_t end = text.find(LineBreak);
        std::wstring_view paragraph = text.substr(0, end);
        do {
            const std::size_t count = fitting(width, paragraph);
            line(paragraph.substr(0, count));
            paragraph.remove_prefix(count);
        } while (!paragraph.empty());
        more = end != text.npos;
        if (more) text.remove_prefix(end + LineBreak.size());
    }
}

/// Blanks at the end of a line need no room.
std::size_t CanvasText::fitting(int width, std::wstring_view paragraph) const {
    int fit = 0;
    SIZE size{};
    GetTextExtentExPointW(Measure_, paragraph.data(), static_cast<int>(paragraph.size()), width, &fit, nullptr, &size);
    const auto count = static_cast<std::size_t>(fit);
    if (count >= paragraph.size()) return paragraph.size();
    const std::size_t after = paragraph.find_first_not_of(L' ', count);
    if (after != count) return std::min(after, paragraph.size());
    const std::size_t blank = paragraph.rfind(L' ', count);
    if (blank != paragraph.npos) return blank + 1;
    const bool splits = count > 0 && isLowSurrogate(static_cast<char16_t>(paragraph[count]));
    const std::size_t whole = count - (splits ? 1 : 0);
    // A column too narrow for any.
    return whole > 0 ? whole : std::min<std::size_t>(splits ? 2 : 1, paragraph.size());
}

}  // namespace kel::win32
