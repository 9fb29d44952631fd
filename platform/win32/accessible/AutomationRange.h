#pragma once

#include "host/editing/ReadingUnit.h"
#include "host/widgets/TextEntry.h"
#include "platform/win32/accessible/AutomationProvider.h"

namespace kel::win32 {

/// The field whose text is read, as all objects know it that read it.
struct TextSource {
    ole::Module& module;
    std::shared_ptr<AccessibleLink> link;
    ComPtr<IRawElementProviderSimple> element;

    /// Hands over a new range of its text.
    HRESULT give(const ReadRange& range, ITextRangeProvider** out) const;
};

/// A part of a field's text as UI Automation goes through it. The text may change while it is held: it stays where it
/// is, as far as there is text.
class AutomationRange final : public ole::ComObject, public ole::Part<ITextRangeProvider> {
public:
    AutomationRange(const TextSource& source, const ReadRange& range);

    HRESULT STDMETHODCALLTYPE Clone(ITextRangeProvider** copy) noexcept override;
    HRESULT STDMETHODCALLTYPE Compare(ITextRangeProvider* other, BOOL* same) noexcept override;
    HRESULT STDMETHODCALLTYPE CompareEndpoints(RangeEnd end, ITextRangeProvider* other, RangeEnd otherEnd,
                                               int* difference) noexcept override;
    HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(ReadBy unit) noexcept override;
    HRESULT STDMETHODCALLTYPE FindAttribute(TEXTATTRIBUTEID attribute, VARIANT value, BOOL backward,
                                            ITextRangeProvider** found) noexcept override;
    HRESULT STDMETHODCALLTYPE FindText(BSTR text, BOOL backward, BOOL ignoreCase,
                                       ITextRangeProvider** found) noexcept override;
    HRESULT STDMETHODCALLTYPE GetAttributeValue(TEXTATTRIBUTEID attribute, VARIANT* value) noexcept override;
    HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** rectangles) noexcept override;
    HRESULT STDMETHODCALLTYPE GetEnclosingElement(IRawElementProviderSimple** element) noexcept override;
    HRESULT STDMETHODCALLTYPE GetText(int maximum, BSTR* text) noexcept override;
    HRESULT STDMETHODCALLTYPE Move(ReadBy unit, int count, int* moved) noexcept override;
    HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(RangeEnd end, ReadBy unit, int count, int* moved) noexcept override;
    HRESULT STDMETHODCALLTYPE MoveEndpointByRange(RangeEnd end, ITextRangeProvider* other,
                                                  RangeEnd otherEnd) noexcept override;
    HRESULT STDMETHODCALLTYPE Select() noexcept override;
    HRESULT STDMETHODCALLTYPE AddToSelection() noexcept override;
    HRESULT STDMETHODCALLTYPE RemoveFromSelection() noexcept override;
    HRESULT STDMETHODCALLTYPE ScrollIntoView(BOOL alignToTop) noexcept override;
    HRESULT STDMETHODCALLTYPE GetChildren(SAFEARRAY** children) noexcept override;

protected:
    void* find(REFIID iid) override;

private:
    /// Runs `act` with the text, in which the range stands.
    HRESULT about(Deed<HRESULT(TextEntry& entry, const ReadText& read, HWND window)> act) noexcept;
    HRESULT with(ITextRangeProvider* other, Deed<void(AutomationRange& other)> act) noexcept;
    std::size_t& placeOf(RangeEnd end) { return end == RangeEnd::Start ? Range_.start : Range_.end; }
    void putEnd(RangeEnd end, std::size_t place);

    TextSource Source_;
    ReadRange Range_;
};

/// The text of a field as it is read; `seen` keeps what is shown of it.
ReadText readTextOf(const TextEntry& entry, std::u16string& seen);

}  // namespace kel::win32
