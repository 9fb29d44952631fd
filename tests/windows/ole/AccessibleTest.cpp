// Controls as readers find them: by MSAA and by UI Automation, through the system's own client functions.

#include <algorithm>
#include <cmath>
#include <map>

#include "platform/win32/accessible/AutomationInterfaces.h"
#include "platform/win32/base/Procedure.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
// This stands on the headers before.
#include <oleacc.h>

using namespace kel;
using namespace kel::tests;
using namespace kel::win32;

namespace {

VARIANT self() {
    VARIANT which = plain(VT_I4);
    which.lVal = CHILDID_SELF;
    return which;
}

BOOL CALLBACK seekField(HWND window, LPARAM out) {
    wchar_t name[64];
    GetClassNameW(window, name, 64);
    const std::wstring kind = name;
    for (const wchar_t* const part : {L"Edit", L"CheckBox", L"PictureBox"})
        if (kind.find(part) != kind.npos && IsWindowVisible(window) != FALSE) *reinterpret_cast<HWND*>(out) = window;
    return TRUE;
}

/// A control in a host, and what the system finds in its windows.
struct Read {
    explicit Read(const wchar_t* className, const wchar_t* given = L"")
        : control(inside.place(create((L"KelControls8." + std::wstring(className)).c_str()))) {
        EXPECT_CODE(control.as<IPersistStreamInit>()->InitNew(), S_OK);
        putAll(control.get(), given);
        EXPECT_CODE(inside.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
        settle();
    }

    HWND window() const { return GetWindow(inside.window(), GW_CHILD); }
    /// Of the widget that has the value.
    HWND field() const {
        HWND found = nullptr;
        EnumChildWindows(window(), &seekField, reinterpret_cast<LPARAM>(&found));
        EXPECT(found != nullptr);
        return found;
    }
    static Ref<IAccessible> elementOf(HWND window) {
        Ref<IAccessible> element;
        EXPECT_CODE(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                               element.receiveVoid()),
                    S_OK);
        return element;
    }
    Ref<IAccessible> element() const { return elementOf(field()); }

    Ref<IRawElementProviderSimple> provider() const {
        Ref<IRawElementProviderSimple> provider;
        EXPECT_CODE(
            element().as<IServiceProvider>()->QueryService(__uuidof(IRawElementProviderSimple),
                                                           __uuidof(IRawElementProviderSimple), provider.receiveVoid()),
            S_OK);
        return provider;
    }
    template <class Pattern>
    Ref<Pattern> pattern(PATTERNID id) const {
        Ref<IUnknown> found;
        EXPECT_CODE(provider()->GetPatternProvider(id, found.receive()), S_OK);
        return found.as<Pattern>();
    }

    Host inside;
    Ref<IDispatch> control;
};

using Get = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

/// "-" for none, "refused" for a refusal.
std::wstring said(const Ref<IAccessible>& element, Get get) {
    BSTR text = nullptr;
    const HRESULT told = (element.get()->*get)(self(), &text);
    if (FAILED(told)) return told == E_ACCESSDENIED ? L"refused" : L"-";
    return told == S_FALSE ? L"-" : taken(text);
}

constexpr struct {
    LONG bit;
    const wchar_t* word;
} States[] = {{STATE_SYSTEM_UNAVAILABLE, L"disabled "}, {STATE_SYSTEM_FOCUSABLE, L"focusable "},
              {STATE_SYSTEM_FOCUSED, L"focused "},      {STATE_SYSTEM_READONLY, L"locked "},
              {STATE_SYSTEM_PROTECTED, L"hidden "},     {STATE_SYSTEM_CHECKED, L"checked "},
              {STATE_SYSTEM_EXPANDED, L"open "},        {STATE_SYSTEM_COLLAPSED, L"closed "}};

std::wstring stateOf(const Ref<IAccessible>& element) {
    VARIANT state{};
    EXPECT_CODE(element->get_accState(self(), &state), S_OK);
    std::wstring words;
    for (const auto& each : States)
        if ((state.lVal & each.bit) != 0) words += each.word;
    return words;
}

LONG roleOf(const Ref<IAccessible>& element) {
    VARIANT role{};
    EXPECT_CODE(element->get_accRole(self(), &role), S_OK);
    return role.lVal;
}

template <class I>
bool isSame(const Ref<I>& one, const Ref<I>& other) {
    return one.template as<IUnknown>().get() == other.template as<IUnknown>().get();
}

}  // namespace

TEST(accessible_controls_are_one_thing_each) {
    struct Row {
        const wchar_t* className;
        const wchar_t* given;
        LONG role;
        const wchar_t* name;
        const wchar_t* shortcut;
        const wchar_t* value;
        const wchar_t* state;
        const wchar_t* remarks;
        const wchar_t* action;
    };
    const Row rows[] = {
        {L"KelText", L"Caption=&Name && more|Text=Ann", ROLE_SYSTEM_TEXT, L"Name & more", L"Alt+N", L"Ann",
         L"focusable ", L"required", L"-"},
        {L"KelText", L"Caption=Name|Text=", ROLE_SYSTEM_TEXT, L"Name", L"-", L"", L"focusable ", L"required, not valid",
         L"-"},
        {L"KelText", L"Text=Ann|Mandatory=0|MultiLine=1|Locked=1", ROLE_SYSTEM_TEXT, L"Field1", L"-", L"Ann",
         L"focusable locked ", L"-", L"-"},
        {L"KelText", L"Enabled=0", ROLE_SYSTEM_TEXT, L"Field1", L"-", L"", L"disabled ", L"required, not valid", L"-"},
        {L"KelText", L"PasswordChar=*|Text=secret", ROLE_SYSTEM_TEXT, L"Field1", L"-", L"refused", L"focusable hidden ",
         L"required", L"-"},
        {L"KelNumber", L"Caption=Q&ty|Decimals=0|Value=1234", ROLE_SYSTEM_SPINBUTTON, L"Qty", L"Alt+t", L"1,234",
         L"focusable ", L"required", L"-"},
        {L"KelNumber", L"Caption=Qty|Decimals=0|Value=7|MaxValue=5", ROLE_SYSTEM_SPINBUTTON, L"Qty", L"-", L"7",
         L"focusable ", L"required, not valid", L"-"},
        {L"KelDate", L"Caption=&Day|Format=yyyy/m/d|Value=2013/3/15", ROLE_SYSTEM_SPINBUTTON, L"Day", L"Alt+D",
         L"2013/3/15", L"focusable ", L"required", L"-"},
        {L"KelCombo", L"Caption=To&wn|List=Ulm,Bonn|Text=Bonn", ROLE_SYSTEM_COMBOBOX, L"Town", L"Alt+w", L"Bonn",
         L"focusable closed ", L"required", L"Open"},
        {L"KelCheck", L"Caption=I &agree|Value=1", ROLE_SYSTEM_CHECKBUTTON, L"I agree", L"Alt+a", L"-",
         L"focusable checked ", L"required", L"Uncheck"},
        {L"KelCheck", L"Value=0|Locked=1", ROLE_SYSTEM_CHECKBUTTON, L"Field1", L"-", L"-", L"locked ", L"required",
         L"Check"},
        {L"KelProgressBar", L"Min=0|Max=200|Value=50", ROLE_SYSTEM_PROGRESSBAR, L"-", L"-", L"25%", L"locked ", L"-",
         L"-"},
    };
    for (const Row& row : rows) {
        const Read read(row.className, row.given);
        const auto element = read.element();
        EXPECT_EQ(roleOf(element), row.role);
        EXPECT_EQ(said(element, &IAccessible::get_accName), row.name);
        EXPECT_EQ(said(element, &IAccessible::get_accKeyboardShortcut), row.shortcut);
        EXPECT_EQ(said(element, &IAccessible::get_accValue), row.value);
        EXPECT_EQ(stateOf(element), row.state);
        EXPECT_EQ(said(element, &IAccessible::get_accDescription), row.remarks);
        EXPECT_EQ(said(element, &IAccessible::get_accDefaultAction), row.action);
        EXPECT(isSame(Read::elementOf(read.window()), element));
        HWND owner = nullptr;
        EXPECT_CODE(WindowFromAccessibleObject(element.get(), &owner), S_OK);
        EXPECT(owner == read.window());
    }
}

TEST(accessible_parts_are_places_of_their_own) {
    const Read read(L"KelNumber", L"UpDown=1");
    const auto element = read.element();
    LONG parts = 0;
    EXPECT_CODE(element->get_accChildCount(&parts), S_OK);
    EXPECT_EQ(parts, 1L);
    VARIANT first = self();
    first.lVal = 1;
    Ref<IDispatch> part;
    EXPECT_CODE(element->get_accChild(first, part.receive()), S_OK);
    HWND spinner = nullptr;
    EXPECT_CODE(WindowFromAccessibleObject(part.as<IAccessible>().get(), &spinner), S_OK);
    EXPECT(spinner == descendant(read.window(), L"UpDown"));
    Ref<IDispatch> parent;
    EXPECT_CODE(element->get_accParent(parent.receive()), S_OK);
    RECT area{};
    GetWindowRect(read.window(), &area);
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_CODE(element->accLocation(&left, &top, &width, &height, self()), S_OK);
    EXPECT(left == area.left && top == area.top && width == area.right - area.left);
    Var hit;
    EXPECT_CODE(element->accHitTest(area.left + 1, area.top + 1, &hit.Value), S_OK);
    EXPECT_EQ(described(hit.Value), L"long 0");
    Var over;
    EXPECT_CODE(element->accHitTest(area.right - 2, area.top + 2, &over.Value), S_OK);
    EXPECT_EQ(over.Value.vt, VT_DISPATCH);
    Var outside;
    EXPECT_CODE(element->accHitTest(area.right + 50, area.top, &outside.Value), S_FALSE);
    EXPECT_CODE(element->get_accName(first, nullptr), E_POINTER);
    BSTR name = nullptr;
    EXPECT_CODE(element->get_accName(first, &name), E_INVALIDARG);
    for (const auto get : {&IAccessible::get_accRole, &IAccessible::get_accState}) {
        VARIANT kept = self();
        EXPECT_CODE((element.get()->*get)(first, &kept), E_INVALIDARG);
        EXPECT_EQ(kept.vt, VT_EMPTY);
    }
    EXPECT_CODE(element->accLocation(&left, &top, &width, &height, first), E_INVALIDARG);
    EXPECT_EQ(width, 0L);
}

TEST(accessible_writing_counts_as_typing) {
    struct Row {
        const wchar_t* className;
        const wchar_t* given;
        const wchar_t* written;
        HRESULT code;
        const wchar_t* property;
        const wchar_t* becomes;
    };
    const wchar_t* const five = L"Value=5";
    const Row rows[] = {
        {L"KelText", L"MaxLength=3", L"abcdef", S_OK, L"Text", L"text abc"},
        {L"KelText", L"Locked=1", L"abc", E_ACCESSDENIED, L"Text", L"text "},
        {L"KelText", L"Enabled=0", L"abc", E_ACCESSDENIED, L"Text", L"text "},
        {L"KelNumber", five, L"12", S_OK, L"Value", L"double 12"},
        {L"KelNumber", five, L"12 apples", S_OK, L"Value", L"double 5"},
        {L"KelNumber", five, L"", S_OK, L"Value", L"double 0"},
        {L"KelDate", L"Value=2013/3/15", L"", S_OK, L"Value", L"null"},
        {L"KelCombo", L"List=Ulm,Bonn", L"bo", S_OK, L"Text", L"text Bonn"},
        {L"KelCheck", five, L"1", E_ACCESSDENIED, L"Value", L"bool True"},
    };
    for (const Row& row : rows) {
        const Read read(row.className, row.given);
        EXPECT_CODE(read.element()->put_accValue(self(), Str(row.written)), row.code);
        EXPECT_EQ(late(read.control.get(), row.property), row.becomes);
    }
}

TEST(accessible_presses_and_focus) {
    const Read box(L"KelCheck", L"Value=0");
    EXPECT_CODE(box.element()->accDoDefaultAction(self()), S_OK);
    EXPECT_EQ(late(box.control.get(), L"Value"), L"bool True");
    const Read combo(L"KelCombo", L"List=Ulm,Bonn");
    const auto element = combo.element();
    EXPECT_CODE(element->accSelect(SELFLAG_TAKEFOCUS, self()), S_OK);
    EXPECT(GetFocus() == combo.field());
    EXPECT_CODE(element->accDoDefaultAction(self()), S_OK);
    EXPECT_EQ(stateOf(element), L"focusable focused open ");
    EXPECT_EQ(said(element, &IAccessible::get_accDefaultAction), L"Close");
    EXPECT_CODE(combo.pattern<IExpandCollapseProvider>(UIA_ExpandCollapsePatternId)->Collapse(), S_OK);
    EXPECT_EQ(stateOf(element), L"focusable focused closed ");
    const Read text(L"KelText");
    EXPECT_CODE(text.element()->accDoDefaultAction(self()), DISP_E_MEMBERNOTFOUND);
}

TEST(accessible_automation_has_the_same_properties) {
    struct Row {
        const wchar_t* className;
        const wchar_t* given;
        std::map<PROPERTYID, const wchar_t*> properties;
    };
    const Row rows[] = {
        {L"KelNumber",
         L"Caption=Q&ty|Decimals=0|Value=7|MaxValue=5",
         {{UIA_ControlTypePropertyId, L"long 50016"},
          {UIA_NamePropertyId, L"text Qty"},
          {UIA_AccessKeyPropertyId, L"text Alt+t"},
          {UIA_IsEnabledPropertyId, L"bool True"},
          {UIA_IsKeyboardFocusablePropertyId, L"bool True"},
          {UIA_HasKeyboardFocusPropertyId, L"bool False"},
          {UIA_IsPasswordPropertyId, L"bool False"},
          {UIA_IsRequiredForFormPropertyId, L"bool True"},
          {DataValidProperty, L"bool False"},
          {UIA_IsControlElementPropertyId, L"bool True"}}},
        {L"KelText",
         L"PasswordChar=*|Mandatory=0|Enabled=0",
         {{UIA_ControlTypePropertyId, L"long 50004"},
          {UIA_IsEnabledPropertyId, L"bool False"},
          {UIA_IsKeyboardFocusablePropertyId, L"bool False"},
          {UIA_IsPasswordPropertyId, L"bool True"},
          {UIA_IsRequiredForFormPropertyId, L"bool False"},
          {DataValidProperty, L"bool True"}}},
        {L"KelCheck", L"", {{UIA_ControlTypePropertyId, L"long 50002"}}},
        {L"KelCombo", L"", {{UIA_ControlTypePropertyId, L"long 50003"}}},
        {L"KelProgressBar", L"", {{UIA_ControlTypePropertyId, L"long 50012"}}},
    };
    HMODULE const system = LoadLibraryW(L"uiautomationcore.dll");
    auto* const nodeFrom = procedureOf<HRESULT WINAPI(HWND, void**)>(system, "UiaNodeFromHandle");
    auto* const propertyOf = procedureOf<HRESULT WINAPI(void*, PROPERTYID, VARIANT*)>(system, "UiaGetPropertyValue");
    auto* const release = procedureOf<BOOL WINAPI(void*)>(system, "UiaNodeRelease");
    for (const Row& row : rows) {
        const Read read(row.className, row.given);
        const auto asked = [&](HWND window, PROPERTYID property) {
            Var value;
            inAnotherApartment([&] {
                void* node = nullptr;
                if (FAILED(nodeFrom(window, &node))) return;
                propertyOf(node, property, &value.Value);
                release(node);
            });
            return described(value.Value);
        };
        for (const auto& [property, wanted] : row.properties) EXPECT_EQ(asked(read.field(), property), wanted);
        // The control's own window says the same, and that it is around the one that is read.
        EXPECT_EQ(asked(read.window(), UIA_ControlTypePropertyId), asked(read.field(), UIA_ControlTypePropertyId));
        EXPECT_EQ(asked(read.window(), UIA_IsControlElementPropertyId), L"bool False");
    }
}

TEST(accessible_automation_sets_numbers_within_their_range) {
    Read read(L"KelNumber", L"Decimals=2|MinValue=-1|MaxValue=10|UpDownChange=0.5|Value=5");
    const auto range = read.pattern<IRangeValueProvider>(UIA_RangeValuePatternId);
    const auto got = [&](HRESULT (STDMETHODCALLTYPE IRangeValueProvider::*get)(double*)) {
        double value = 99;
        EXPECT_CODE((range.get()->*get)(&value), S_OK);
        return value;
    };
    EXPECT_EQ(got(&IRangeValueProvider::get_Minimum), -1.0);
    EXPECT_EQ(got(&IRangeValueProvider::get_Maximum), 10.0);
    EXPECT_EQ(got(&IRangeValueProvider::get_SmallChange), 0.5);
    EventSink sink(false, u"KelNumber");
    adviseEvents(read.control.get(), &sink, u"KelNumber");
    EXPECT_CODE(range->SetValue(7.25), S_OK);
    EXPECT_EQ(sink.Heard.size(), std::size_t{1});
    EXPECT_EQ(late(read.control.get(), L"Value"), L"double 7.25");
    for (const double wrong : {10.5, -2.0, static_cast<double>(NAN)}) EXPECT_CODE(range->SetValue(wrong), E_INVALIDARG);
    EXPECT_EQ(got(&IRangeValueProvider::get_Value), 7.25);
    read.inside.MayEdit = S_FALSE;
    EXPECT_CODE(range->SetValue(3), NotPossible);
    EXPECT_EQ(got(&IRangeValueProvider::get_Value), 7.25);
    read.inside.MayEdit = S_OK;
    putAll(read.control.get(), L"Locked=1");
    EXPECT_CODE(range->SetValue(1), NotEnabled);
    BOOL locked = FALSE;
    EXPECT_CODE(range->get_IsReadOnly(&locked), S_OK);
    EXPECT_EQ(locked, TRUE);
    EXPECT(!read.pattern<IUnknown>(UIA_TogglePatternId));
}

TEST(accessible_automation_reads_texts) {
    const Read read(L"KelText", L"MultiLine=1|Text=one two\r\nthree");
    const auto pattern = read.pattern<ITextProvider>(UIA_TextPatternId);
    Ref<ITextRangeProvider> range;
    EXPECT_CODE(pattern->get_DocumentRange(range.receive()), S_OK);
    const auto text = [&](const Ref<ITextRangeProvider>& of) {
        BSTR out = nullptr;
        EXPECT_CODE(of->GetText(-1, &out), S_OK);
        return taken(out);
    };
    EXPECT_EQ(text(range), L"one two\r\nthree");
    struct Step {
        ReadBy unit;
        int count;
        int moved;
        const wchar_t* becomes;
    };
    const Step steps[] = {{ReadBy::Word, 1, 1, L"two"},
                          {ReadBy::Word, 1, 1, L"\r\n"},
                          {ReadBy::Word, 1, 1, L"three"},
                          {ReadBy::Word, 1, 0, L"three"},
                          {ReadBy::Line, -5, -1, L"one two\r\n"},
                          {ReadBy::Character, 2, 2, L"e"},
                          {ReadBy::Character, -1, -1, L"n"},
                          {ReadBy::Paragraph, 9, 1, L"three"},
                          {ReadBy::Document, 1, 0, L"one two\r\nthree"}};
    for (const Step& step : steps) {
        int moved = 99;
        EXPECT_CODE(range->Move(step.unit, step.count, &moved), S_OK);
        EXPECT_EQ(text(range), step.becomes);
        EXPECT_EQ(moved, step.moved);
    }
    Ref<ITextRangeProvider> other;
    EXPECT_CODE(range->FindText(Str(L"TWO"), FALSE, TRUE, other.receive()), S_OK);
    EXPECT_EQ(text(other), L"two");
    int difference = 0;
    EXPECT_CODE(other->CompareEndpoints(RangeEnd::Start, range.get(), RangeEnd::Start, &difference), S_OK);
    EXPECT_EQ(difference, 4);
    EXPECT_CODE(other->Select(), S_OK);
    DWORD from = 0, to = 0;
    SendMessageW(read.field(), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT(from == 4 && to == 7);
    SAFEARRAY* rectangles = nullptr;
    EXPECT_CODE(other->GetBoundingRectangles(&rectangles), S_OK);
    EXPECT_EQ(rectangles->rgsabound[0].cElements, 4UL);
    SafeArrayDestroy(rectangles);
    putAll(read.control.get(), L"Text=x");
    EXPECT_EQ(text(other), L"");
}

TEST(accessible_long_texts_are_read_where_they_are_seen) {
    const Read read(L"KelText", L"MultiLine=1");
    std::wstring lines = L"Text=";
    while (lines.size() < 70'000) lines += L"some words\r\n";
    putAll(read.control.get(), lines + L"the end");
    SendMessageW(read.field(), EM_SETSEL, lines.size(), static_cast<LPARAM>(lines.size()));
    SendMessageW(read.field(), EM_SCROLLCARET, 0, 0);
    SAFEARRAY* ranges = nullptr;
    EXPECT_CODE(read.pattern<ITextProvider>(UIA_TextPatternId)->GetVisibleRanges(&ranges), S_OK);
    Ref<IUnknown> seen;
    LONG first = 0;
    EXPECT_CODE(SafeArrayGetElement(ranges, &first, seen.receive()), S_OK);
    SafeArrayDestroy(ranges);
    BSTR text = nullptr;
    EXPECT_CODE(seen.as<ITextRangeProvider>()->GetText(-1, &text), S_OK);
    EXPECT_EQ(taken(text), L"the end");
    const auto heightsOf = [](const Ref<ITextRangeProvider>& range) {
        SAFEARRAY* sides = nullptr;
        EXPECT_CODE(range->GetBoundingRectangles(&sides), S_OK);
        double heights = 0;
        for (ULONG at = 3; at < sides->rgsabound[0].cElements; at += 4)
            heights += static_cast<double*>(sides->pvData)[at];
        SafeArrayDestroy(sides);
        return std::lround(heights);
    };
    Ref<ITextRangeProvider> whole;
    EXPECT_CODE(read.pattern<ITextProvider>(UIA_TextPatternId)->get_DocumentRange(whole.receive()), S_OK);
    EXPECT_EQ(heightsOf(whole), heightsOf(seen.as<ITextRangeProvider>()));
}

namespace {

std::vector<DWORD> Heard;

void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND, LONG object, LONG, DWORD, DWORD) {
    if (object == OBJID_CLIENT) Heard.push_back(event);
}

}  // namespace

TEST(accessible_changes_are_told_to_those_who_have_asked) {
    HWINEVENTHOOK const hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_TEXTSELECTIONCHANGED, nullptr, &hear,
                                               GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
    const Read read(L"KelCombo", L"List=Ulm,Bonn|Text=Ulm");
    const auto element = read.element();
    struct Row {
        const wchar_t* put;
        DWORD event;
    };
    const Row rows[] = {
        {L"Caption=To&wn", EVENT_OBJECT_NAMECHANGE},      {L"Caption=T&own", EVENT_OBJECT_ACCELERATORCHANGE},
        {L"Locked=1", EVENT_OBJECT_STATECHANGE},          {L"Locked=0", EVENT_OBJECT_STATECHANGE},
        {L"Text=Bonn", EVENT_OBJECT_VALUECHANGE},         {L"Text=", EVENT_OBJECT_DESCRIPTIONCHANGE},
        {L"Mandatory=0", EVENT_OBJECT_DESCRIPTIONCHANGE}, {L"Enabled=0", EVENT_OBJECT_STATECHANGE},
    };
    for (const Row& row : rows) {
        settle();
        Heard.clear();
        putAll(read.control.get(), row.put);
        settle();
        settle();
        EXPECT_EQ(std::count(Heard.begin(), Heard.end(), row.event), std::ptrdiff_t{1});
    }
    UnhookWinEvent(hook);
}

TEST(accessible_writing_may_be_the_end_of_the_control) {
    auto read = std::make_unique<Read>(L"KelText");
    const auto element = read->element();
    const auto value = read->pattern<IValueProvider>(UIA_ValuePatternId);
    EventSink sink;
    adviseEvents(read->control.get(), &sink);
    sink.Handler = [&] { read.reset(); };
    EXPECT_CODE(value->SetValue(L"x"), S_OK);
    EXPECT(read == nullptr);
    EXPECT_CODE(element->put_accValue(self(), Str(L"y")), CO_E_OBJNOTCONNECTED);
}

TEST(accessible_objects_outlive_their_control) {
    auto read = std::make_unique<Read>(L"KelNumber");
    auto element = read->element();
    auto provider = read->provider();
    auto range = read->pattern<IRangeValueProvider>(UIA_RangeValuePatternId);
    Ref<ITextRangeProvider> text;
    EXPECT_CODE(read->pattern<ITextProvider>(UIA_TextPatternId)->get_DocumentRange(text.receive()), S_OK);
    read.reset();
    BSTR name = nullptr;
    EXPECT_CODE(element->get_accName(self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_CODE(element->put_accValue(self(), Str(L"1")), CO_E_OBJNOTCONNECTED);
    VARIANT value{};
    EXPECT_CODE(provider->GetPropertyValue(UIA_NamePropertyId, &value), NotAvailable);
    EXPECT_CODE(range->SetValue(1), NotAvailable);
    EXPECT_CODE(text->GetText(-1, &name), NotAvailable);
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_FALSE);
    element.reset();
    provider.reset();
    range.reset();
    text.reset();
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_OK);
}
