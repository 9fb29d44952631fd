#pragma once

// What a provider of UI Automation implements and calls, as far as it is used here: the headers at hand leave most of
// it out. The order of the functions is the system's.

#include <windows.h>

#include <oleauto.h>
// These stand on the headers before.
#include <uiautomationcore.h>

#include <uiautomationclient.h>

namespace kel::win32 {

inline constexpr LONG AutomationObject = -25;  ///< UiaRootObjectId, what a window is asked for

inline constexpr HRESULT NotEnabled = static_cast<HRESULT>(0x80040200);    ///< UIA_E_ELEMENTNOTENABLED
inline constexpr HRESULT NotAvailable = static_cast<HRESULT>(0x80040201);  ///< UIA_E_ELEMENTNOTAVAILABLE
inline constexpr HRESULT NotPossible = static_cast<HRESULT>(0x80131509);   ///< UIA_E_INVALIDOPERATION

inline constexpr PROPERTYID DataValidProperty = 30103;  ///< UIA_IsDataValidForFormPropertyId
inline constexpr PROPERTYID ToggleStateProperty = 30086;
inline constexpr EVENTID FocusChangedEvent = 20005;
inline constexpr EVENTID TextSelectionChangedEvent = 20014;
inline constexpr EVENTID TextChangedEvent = 20015;
inline constexpr CONTROLTYPEID CheckBoxType = 50002;
inline constexpr CONTROLTYPEID ComboBoxType = 50003;
inline constexpr CONTROLTYPEID EditType = 50004;
inline constexpr CONTROLTYPEID ProgressBarType = 50012;
inline constexpr CONTROLTYPEID SpinnerType = 50016;
inline constexpr TEXTATTRIBUTEID ReadOnlyAttribute = 40015;

enum class ExpandState : int { Collapsed, Expanded };
enum class ToggleState : int { Off, On, Indeterminate };
enum class RangeEnd : int { Start, End };
enum class ReadBy : int { Character, Format, Word, Line, Paragraph, Page, Document };
enum class Selectable : int { None, Single };

struct ScreenPoint {
    double x;
    double y;
};

}  // namespace kel::win32

struct IValueProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE SetValue(LPCWSTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Value(BSTR* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsReadOnly(BOOL* readOnly) = 0;
};
__CRT_UUID_DECL(IValueProvider, 0xc7935180, 0x6fb3, 0x4201, 0xb1, 0x74, 0x7d, 0xf7, 0x3a, 0xdb, 0xf6, 0x4a)

struct IRangeValueProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE SetValue(double number) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Value(double* number) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsReadOnly(BOOL* readOnly) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Maximum(double* number) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Minimum(double* number) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LargeChange(double* number) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SmallChange(double* number) = 0;
};
__CRT_UUID_DECL(IRangeValueProvider, 0x36dc7aef, 0x33e6, 0x4691, 0xaf, 0xe1, 0x2b, 0xe7, 0x27, 0x4b, 0x3d, 0x33)

struct IExpandCollapseProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Expand() = 0;
    virtual HRESULT STDMETHODCALLTYPE Collapse() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ExpandCollapseState(kel::win32::ExpandState* state) = 0;
};
__CRT_UUID_DECL(IExpandCollapseProvider, 0xd847d3a5, 0xcab0, 0x4a98, 0x8c, 0x32, 0xec, 0xb4, 0x5c, 0x59, 0xad, 0x24)

struct IToggleProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Toggle() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ToggleState(kel::win32::ToggleState* state) = 0;
};
__CRT_UUID_DECL(IToggleProvider, 0x56d00bd0, 0xc4f4, 0x433c, 0xa8, 0x36, 0x1a, 0x52, 0xa5, 0x7e, 0x08, 0x92)

struct ITextRangeProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Clone(ITextRangeProvider** copy) = 0;
    virtual HRESULT STDMETHODCALLTYPE Compare(ITextRangeProvider* other, BOOL* same) = 0;
    virtual HRESULT STDMETHODCALLTYPE CompareEndpoints(kel::win32::RangeEnd end, ITextRangeProvider* other,
                                                       kel::win32::RangeEnd otherEnd, int* difference) = 0;
    virtual HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(kel::win32::ReadBy unit) = 0;
    virtual HRESULT STDMETHODCALLTYPE FindAttribute(TEXTATTRIBUTEID attribute, VARIANT value, BOOL backward,
                                                    ITextRangeProvider** found) = 0;
    virtual HRESULT STDMETHODCALLTYPE FindText(BSTR text, BOOL backward, BOOL ignoreCase,
                                               ITextRangeProvider** found) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetAttributeValue(TEXTATTRIBUTEID attribute, VARIANT* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** rectangles) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetEnclosingElement(IRawElementProviderSimple** element) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetText(int maximum, BSTR* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE Move(kel::win32::ReadBy unit, int count, int* moved) = 0;
    virtual HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(kel::win32::RangeEnd end, kel::win32::ReadBy unit, int count,
                                                         int* moved) = 0;
    virtual HRESULT STDMETHODCALLTYPE MoveEndpointByRange(kel::win32::RangeEnd end, ITextRangeProvider* other,
                                                          kel::win32::RangeEnd otherEnd) = 0;
    virtual HRESULT STDMETHODCALLTYPE Select() = 0;
    virtual HRESULT STDMETHODCALLTYPE AddToSelection() = 0;
    virtual HRESULT STDMETHODCALLTYPE RemoveFromSelection() = 0;
    virtual HRESULT STDMETHODCALLTYPE ScrollIntoView(BOOL alignToTop) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetChildren(SAFEARRAY** children) = 0;
};
__CRT_UUID_DECL(ITextRangeProvider, 0x5347ad7b, 0xc355, 0x46f8, 0xaf, 0xf5, 0x90, 0x90, 0x33, 0x58, 0x2f, 0x63)

struct ITextProvider : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY** ranges) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetVisibleRanges(SAFEARRAY** ranges) = 0;
    virtual HRESULT STDMETHODCALLTYPE RangeFromChild(IRawElementProviderSimple* child, ITextRangeProvider** range) = 0;
    virtual HRESULT STDMETHODCALLTYPE RangeFromPoint(kel::win32::ScreenPoint point, ITextRangeProvider** range) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DocumentRange(ITextRangeProvider** range) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedTextSelection(kel::win32::Selectable* selectable) = 0;
};
__CRT_UUID_DECL(ITextProvider, 0x3589c92c, 0x63f3, 0x4367, 0x99, 0xbb, 0xad, 0xa6, 0x53, 0xb7, 0x7c, 0xf2)
