// What designers ask of a control, and its property pages, worked as a frame and a person work them.

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "controls/Classes.h"
#include "controls/combo/ListText.h"
#include "platform/win32/base/WideText.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
#include "tests/windows/ole/MessageBoxHand.h"

/// The system's headers leave it out.
MIDL_INTERFACE("4D07FC10-F931-11CE-B001-00AA006884E5")
IHeadings : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID id, int* category) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(int category, LCID locale, BSTR* name) = 0;
};
__CRT_UUID_DECL(IHeadings, 0x4D07FC10, 0xF931, 0x11CE, 0xB0, 0x01, 0x00, 0xAA, 0x00, 0x68, 0x84, 0xE5)

using namespace kel;
using namespace kel::tests;

namespace {

using win32::wide;

DISPID idOf(IDispatch* object, const wchar_t* name) {
    std::wstring copy = name;
    wchar_t* names = copy.data();
    DISPID id = DISPID_UNKNOWN;
    EXPECT_CODE(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    return id;
}

CLSID pageId(DesignPage page) {
    for (const PageIdentity& identity : identities::Pages)
        if (identity.page == page) return systemGuid(identity.coclass);
    return CLSID_NULL;
}

class PageSite final : public StackObject<IPropertyPageSite> {
public:
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
        Status.push_back(flags);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override {
        *locale = LOCALE_USER_DEFAULT;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override {
        *container = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override {
        ++Keys;
        return TakesKeys;
    }

    std::vector<DWORD> Status;
    int Keys = 0;
    HRESULT TakesKeys = S_OK;
};

Ref<IPropertyPage2> makePage(DesignPage kind) {
    Ref<IPropertyPage2> page;
    EXPECT_CODE(
        CoCreateInstance(pageId(kind), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertyPage2), page.receiveVoid()),
        S_OK);
    return page;
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// A page in a frame's window, for some objects.
class Shown {
public:
    Shown(DesignPage kind, std::vector<IDispatch*> objects, bool withSite = true) : Page(makePage(kind)) {
        Frame_ = CreateWindowExW(0, L"STATIC", L"Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 700, 500, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
        if (withSite) EXPECT_CODE(Page->SetPageSite(&Site), S_OK);
        std::vector<IUnknown*> selected(objects.begin(), objects.end());
        EXPECT_CODE(Page->SetObjects(static_cast<ULONG>(selected.size()), selected.data()), S_OK);
        open();
    }
    ~Shown() {
        Page->Deactivate();
        Page->SetObjects(0, nullptr);
        Page->SetPageSite(nullptr);
        Page.reset();
        DestroyWindow(Frame_);
    }

    void open() {
        PROPPAGEINFO info{};  // as the system's own frame hands it over, without its size
        EXPECT_CODE(Page->GetPageInfo(&info), S_OK);
        CoTaskMemFree(info.pszTitle);
        EXPECT(info.size.cx > 100 && info.size.cy > 60);
        const RECT area{10, 10, 10 + info.size.cx, 10 + info.size.cy};
        EXPECT_CODE(Page->Activate(Frame_, &area, FALSE), S_OK);
        EXPECT_CODE(Page->Show(SW_SHOW), S_OK);
        expectRoom();
    }

    /// All editors stand above the line of help, and within the page.
    void expectRoom() const {
        RECT page{}, line{};
        GetWindowRect(window(), &page);
        GetWindowRect(GetDlgItem(window(), 901), &line);
        for (HWND child = GetWindow(window(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            RECT place{};
            GetWindowRect(child, &place);
            EXPECT(place.right <= page.right && place.bottom <= page.bottom);
            EXPECT(place.bottom <= line.top || GetDlgCtrlID(child) >= 900);
        }
    }

    HWND window() const { return GetWindow(Frame_, GW_CHILD); }

    /// The check box of this name, or what stands after the label of this name.
    HWND editor(const std::wstring& name) const {
        for (HWND child = GetWindow(window(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            std::wstring text = textOf(child);
            std::erase(text, L'&');
            if (text != name) continue;
            return (GetWindowLongW(child, GWL_STYLE) & WS_TABSTOP) != 0 ? child : GetWindow(child, GW_HWNDNEXT);
        }
        return nullptr;
    }
    HWND need(const std::wstring& name) const {
        HWND const found = editor(name);
        if (found == nullptr) fail(__FILE__, __LINE__, "no editor for " + shown(name));
        return found;
    }

    void type(const std::wstring& name, const wchar_t* text) const {
        HWND edit = need(name);
        if (HWND const inner = FindWindowExW(edit, nullptr, L"Edit", nullptr)) edit = inner;
        SetFocus(edit);
        SendMessageW(edit, EM_SETSEL, 0, -1);
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }

    /// What the page says below its editors.
    std::wstring says() const { return textOf(GetDlgItem(window(), 900)); }

    bool press(WPARAM key) {
        MSG message{};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        return Page->TranslateAccelerator(&message) == S_OK;
    }
    void pressButton(const wchar_t* name) const { SendMessageW(need(name), BM_CLICK, 0, 0); }

    PageSite Site;
    Ref<IPropertyPage2> Page;

private:
    HWND Frame_ = nullptr;
};

struct Edit {
    const wchar_t* typed;
    std::wstring reads;
};

/// Another value of this type, and how it reads back.
Edit anotherOf(const ClassModel& model, const MemberRow& row) {
    const std::wstring day = model.datesAreTimes ? L"date 0.5" : L"date 42067";
    switch (row.type) {
        case TypeTag::Integer16: return {L"7", L"short 7"};
        case TypeTag::Integer32: return {L"7", L"long 7"};
        case TypeTag::Double: return {L"7", L"double 7"};
        case TypeTag::Date: return {model.datesAreTimes ? L"12:00 PM" : L"3/4/2015", day};
        case TypeTag::Any:
            if (model.name == u"KelNumber") return {L"7", L"double 7"};
            return {model.datesAreTimes ? L"12:00 PM" : L"3/4/2015", day};
        default: return {row.name == u"Format" ? L"ss" : L"#", row.name == u"Format" ? L"text ss" : L"text #"};
    }
}

void editRow(const Shown& page, const ClassModel& model, const MemberRow& row, std::wstring& wanted,
             const std::wstring& before) {
    HWND const editor = page.need(wide(row.name));
    if (row.type == TypeTag::Boolean) {
        SendMessageW(editor, BM_CLICK, 0, 0);
        wanted = before == L"bool True" ? L"bool False" : L"bool True";
    } else if (row.type == TypeTag::DaysFlag) {
        SendMessageW(editor, CB_SETCURSEL, 2, 0);
        SendMessageW(page.window(), WM_COMMAND, MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(editor)), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(editor));
        wanted = L"long 2";
    } else {
        const Edit edit = anotherOf(model, row);
        page.type(wide(row.name), edit.typed);
        wanted = edit.reads;
    }
}

std::wstring choicesOf(IPerPropertyBrowsing* browsing, DISPID id) {
    CALPOLESTR texts{};
    CADWORD cookies{};
    if (browsing->GetPredefinedStrings(id, &texts, &cookies) != S_OK) return L"-";
    EXPECT_EQ(texts.cElems, cookies.cElems);
    std::wstring all;
    for (ULONG i = 0; i < texts.cElems; ++i) {
        Var value;
        EXPECT_CODE(browsing->GetPredefinedValue(id, cookies.pElems[i], &value.Value), S_OK);
        if (i < 4) all += std::wstring(texts.pElems[i]) + L"=" + described(value.Value) + L";";
        CoTaskMemFree(texts.pElems[i]);
    }
    CoTaskMemFree(texts.pElems);
    CoTaskMemFree(cookies.pElems);
    return all;
}

}  // namespace

// ---- What designers ask

TEST(design_pages_and_headings_of_each_class) {
    struct Case {
        const wchar_t* name;
        std::vector<DesignPage> pages;
    };
    const Case cases[] = {
        {L"KelText", {DesignPage::General}},
        {L"KelCombo", {DesignPage::General, DesignPage::List}},
        {L"KelDate", {DesignPage::General, DesignPage::Format}},
        {L"KelTime", {DesignPage::General, DesignPage::Format}},
        {L"KelNumber", {DesignPage::General, DesignPage::Numbers}},
        {L"KelCheck", {DesignPage::General}},
        {L"KelProgressBar", {DesignPage::General}},
    };
    for (const Case& c : cases) {
        const auto control = makeControl(c.name);
        CAUUID pages{};
        EXPECT_CODE(control.as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
        EXPECT_EQ(static_cast<std::size_t>(pages.cElems), c.pages.size());
        for (ULONG i = 0; i < pages.cElems; ++i) EXPECT(IsEqualGUID(pages.pElems[i], pageId(c.pages[i])));
        CoTaskMemFree(pages.pElems);
        const auto headings = control.as<IHeadings>();
        EXPECT(headings);
        for (const MemberRow& row : libraryClasses().find(std::u16string(c.name, c.name + wcslen(c.name)))->members) {
            if (row.isMethod) continue;
            int category = 0;
            EXPECT_CODE(headings->MapPropertyToCategory(row.id, &category), S_OK);
            EXPECT(!row.isDesigned() || category != -2);
            BSTR name = nullptr;
            EXPECT_CODE(headings->GetCategoryName(category, LOCALE_USER_DEFAULT, &name), S_OK);
            EXPECT(!taken(name).empty());
        }
        int none = 0;
        EXPECT_CODE(headings->MapPropertyToCategory(4711, &none), DISP_E_MEMBERNOTFOUND);
    }
}

TEST(design_names_of_values_and_pages_of_properties) {
    const auto date = makeControl(L"KelDate");
    const auto browsing = date.as<IPerPropertyBrowsing>();
    const DISPID days = idOf(date.get(), L"DaysFlag");
    const DISPID format = idOf(date.get(), L"Format");
    EXPECT_EQ(choicesOf(browsing.get(), days),
              std::wstring(L"Allow=long 0;FirstDay=long 1;LastDay=long 2;BirthDay=long 3;"));
    EXPECT_EQ(choicesOf(browsing.get(), format).substr(0, 27), std::wstring(L"dd/mm/yyyy=text dd/mm/yyyy;"));
    EXPECT_EQ(choicesOf(browsing.get(), idOf(date.get(), L"Locked")), std::wstring(L"-"));
    EXPECT_CODE(put(date.get(), L"DaysFlag", Var(3L).Value), S_OK);
    BSTR text = nullptr;
    EXPECT_CODE(browsing->GetDisplayString(days, &text), S_OK);
    EXPECT_EQ(taken(text), std::wstring(L"BirthDay"));
    EXPECT_CODE(browsing->GetDisplayString(format, &text), S_FALSE);
    CLSID page{};
    EXPECT_CODE(browsing->MapPropertyToPage(format, &page), S_OK);
    EXPECT(IsEqualGUID(page, pageId(DesignPage::Format)));
    EXPECT_CODE(browsing->MapPropertyToPage(idOf(date.get(), L"Locked"), &page), PERPROP_E_NOPAGEAVAILABLE);
    Var value;
    EXPECT_CODE(browsing->GetPredefinedValue(days, 4, &value.Value), E_INVALIDARG);
    EXPECT_CODE(browsing->GetDisplayString(days, nullptr), E_POINTER);
}

// ---- The pages

TEST(pages_edit_every_property_that_is_designed) {
    for (const ClassModel* model : libraryClasses().all()) {
        if (!model->isControl()) continue;
        for (const MemberRow& row : model->members) {
            if (!row.isDesigned() || row.design.page == DesignPage::List) continue;
            const std::wstring name = wide(row.name);
            const auto control = makeControl(wide(model->name));
            if (model->name == u"KelCombo") EXPECT_CODE(put(control.get(), L"LimitToList", Var(0L).Value), S_OK);
            Shown page(row.design.page, {control.get()});
            EXPECT_CODE(page.Page->IsPageDirty(), S_FALSE);
            std::wstring wanted;
            editRow(page, *model, row, wanted, late(control.get(), name.c_str()));
            if (page.Page->IsPageDirty() != S_OK) fail(__FILE__, __LINE__, "nothing was edited in " + shown(name));
            EXPECT_EQ(page.Site.Status.size(), std::size_t{1});
            EXPECT_EQ(page.says().substr(0, name.size()), name);
            EXPECT_CODE(page.Page->Apply(), S_OK);
            EXPECT_EQ(wide(model->name) + L"." + name + L" " + late(control.get(), name.c_str()),
                      wide(model->name) + L"." + name + L" " + wanted);
            EXPECT_CODE(page.Page->IsPageDirty(), S_FALSE);
        }
    }
}

TEST(pages_say_what_is_wrong_and_keep_what_was_typed) {
    struct Case {
        const wchar_t* className;
        DesignPage page;
        const wchar_t* property;
        const wchar_t* typed;
        const wchar_t* says;
    };
    const Case cases[] = {
        {L"KelText", DesignPage::General, L"CaptionWidth", L"abc", L"16-bit integer is wanted, not \"abc\""},
        {L"KelText", DesignPage::General, L"CaptionWidth", L"99999", L"out of the range"},
        {L"KelText", DesignPage::General, L"MaxLength", L"-1", L"0 for no limit"},
        {L"KelNumber", DesignPage::Numbers, L"Decimals", L"17", L"0 to 16"},
        {L"KelNumber", DesignPage::Numbers, L"MaxValue", L"many", L"double is wanted"},
        {L"KelNumber", DesignPage::General, L"Value", L"many", L"is wanted"},
        {L"KelDate", DesignPage::General, L"Value", L"nonsense", L"\"nonsense\" is not taken"},
        {L"KelDate", DesignPage::General, L"MinValue", L"nonsense", L"date is wanted"},
        {L"KelDate", DesignPage::Format, L"Format", L"", L"Format stays as it is"},
        {L"KelCombo", DesignPage::General, L"Text", L"no item", L"an item or empty"},
    };
    for (const Case& c : cases) {
        const auto control = makeControl(c.className);
        if (c.className == std::wstring(L"KelDate")) EXPECT_CODE(put(control.get(), L"Value", date(42067)), S_OK);
        const std::wstring before = late(control.get(), c.property);
        Shown page(c.page, {control.get()});
        page.type(c.property, c.typed);
        if (SUCCEEDED(page.Page->Apply()))
            fail(__FILE__, __LINE__, shown(std::wstring(c.property)) + " takes " + shown(std::wstring(c.typed)));
        if (page.says().find(c.says) == std::wstring::npos) fail(__FILE__, __LINE__, "it says " + shown(page.says()));
        EXPECT_EQ(textOf(page.need(c.property)), std::wstring(c.typed));
        EXPECT_CODE(page.Page->IsPageDirty(), S_OK);
        EXPECT_EQ(late(control.get(), c.property), before);
    }
}

TEST(pages_leave_alone_what_differs_and_was_not_edited) {
    const auto first = makeControl(L"KelText");
    const auto second = makeControl(L"KelText");
    EXPECT_CODE(put(first.get(), L"Caption", Var(L"First").Value), S_OK);
    EXPECT_CODE(put(second.get(), L"Caption", Var(L"Second").Value), S_OK);
    EXPECT_CODE(put(second.get(), L"Locked", Var(1L).Value), S_OK);
    {
        Shown page(DesignPage::General, {first.get(), second.get()});
        EXPECT_EQ(textOf(page.need(L"Caption")), std::wstring());
        EXPECT_EQ(SendMessageW(page.need(L"Locked"), BM_GETCHECK, 0, 0), static_cast<LRESULT>(BST_INDETERMINATE));
        page.type(L"MaxLength", L"9");
        EXPECT_CODE(page.Page->Apply(), S_OK);
        page.pressButton(L"Locked");
        EXPECT_CODE(page.Page->Apply(), S_OK);
    }
    for (const auto& control : {first, second}) {
        EXPECT_EQ(late(control.get(), L"MaxLength"), std::wstring(L"short 9"));
        EXPECT_EQ(late(control.get(), L"Locked"), std::wstring(L"bool True"));
    }
    EXPECT_EQ(late(first.get(), L"Caption") + late(second.get(), L"Caption"), std::wstring(L"text Firsttext Second"));
    // Of two classes there is what both have.
    const auto number = makeControl(L"KelNumber");
    Shown page(DesignPage::General, {first.get(), number.get()});
    EXPECT(page.editor(L"CaptionWidth") != nullptr);
    EXPECT(page.editor(L"FontBold") == nullptr && page.editor(L"MultiLine") == nullptr);
}

TEST(pages_show_a_sample_before_anything_is_applied) {
    struct Case {
        const wchar_t* className;
        DesignPage page;
        const wchar_t* property;
        const wchar_t* typed;
        const wchar_t* sample;
    };
    const Case cases[] = {
        {L"KelNumber", DesignPage::Numbers, L"Decimals", L"3", L"(1,234.500)"},
        {L"KelNumber", DesignPage::Numbers, L"MaxValue", L"99", L"MaxValue 99"},
        {L"KelNumber", DesignPage::Numbers, L"Decimals", L"3x", L"?"},
        {L"KelDate", DesignPage::Format, L"Format", L"\"day\" yyyy", L"day 20"},
        {L"KelTime", DesignPage::Format, L"Format", L"\"at\" am/pm", L"at "},
    };
    for (const Case& c : cases) {
        const auto control = makeControl(c.className);
        const std::wstring before = late(control.get(), c.property);
        Shown page(c.page, {control.get()});
        page.type(c.property, c.typed);
        const std::wstring sample = textOf(GetDlgItem(page.window(), 800));
        if (sample.find(c.sample) == std::wstring::npos) fail(__FILE__, __LINE__, "the sample is " + shown(sample));
        EXPECT_EQ(late(control.get(), c.property), before);
    }
}

TEST(pages_show_several_lines_where_there_are_some) {
    const auto field = makeControl(L"KelText");
    Shown page(DesignPage::General, {field.get()});
    EXPECT((GetWindowLongW(page.need(L"Text"), GWL_STYLE) & ES_MULTILINE) == 0);
    SetFocus(page.need(L"MultiLine"));
    page.pressButton(L"MultiLine");
    EXPECT_CODE(page.Page->Apply(), S_OK);
    EXPECT(GetFocus() == page.need(L"MultiLine"));
    EXPECT((GetWindowLongW(page.need(L"Text"), GWL_STYLE) & ES_MULTILINE) != 0);
    page.type(L"Text", L"one\r\ntwo");
    EXPECT_CODE(page.Page->Apply(), S_OK);
    EXPECT_EQ(late(field.get(), L"Text"), std::wstring(L"text one\r\ntwo"));
}

TEST(pages_keep_what_was_typed_while_they_are_closed) {
    for (const bool withSite : {true, false}) {
        const auto field = makeControl(L"KelText");
        Shown page(DesignPage::General, {field.get()}, withSite);
        page.type(L"Caption", L"Name");
        EXPECT_CODE(page.Page->Deactivate(), S_OK);
        EXPECT_CODE(page.Page->Deactivate(), E_UNEXPECTED);
        page.open();
        EXPECT_EQ(textOf(page.need(L"Caption")), std::wstring(L"Name"));
        EXPECT_CODE(page.Page->Deactivate(), S_OK);
        EXPECT_CODE(page.Page->Apply(), S_OK);
        EXPECT_EQ(late(field.get(), L"Caption"), std::wstring(L"text Name"));
        page.open();
        const RECT other{20, 20, 100, 100};
        EXPECT_CODE(page.Page->Move(&other), S_OK);
        EXPECT_CODE(page.Page->EditProperty(idOf(field.get(), L"MaxLength")), S_OK);
        EXPECT(GetFocus() == page.need(L"MaxLength"));
        EXPECT_CODE(page.Page->EditProperty(4711), DISP_E_MEMBERNOTFOUND);
    }
}

TEST(pages_refuse_calls_out_of_order) {
    const auto page = makePage(DesignPage::General);
    const RECT area{0, 0, 100, 100};
    EXPECT_CODE(page->Activate(GetDesktopWindow(), &area, FALSE), E_UNEXPECTED);
    EXPECT_CODE(page->Activate(GetDesktopWindow(), nullptr, FALSE), E_POINTER);
    EXPECT_CODE(page->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_CODE(page->Apply(), E_UNEXPECTED);
    EXPECT_CODE(page->GetPageInfo(nullptr), E_POINTER);
    EXPECT_CODE(page->SetObjects(1, nullptr), E_POINTER);
    PageSite site;
    IUnknown* foreign = &site;
    EXPECT(FAILED(page->SetObjects(1, &foreign)));
    EXPECT_CODE(page->SetPageSite(&site), S_OK);
    EXPECT_CODE(page->SetPageSite(&site), E_UNEXPECTED);
    EXPECT_CODE(page->SetPageSite(nullptr), S_OK);
    EXPECT_EQ(site.References, 1L);
}

TEST(pages_leave_tab_at_their_ends_and_enter_to_the_frame) {
    const auto field = makeControl(L"KelCheck");
    Shown page(DesignPage::General, {field.get()});
    SetFocus(page.need(L"Caption"));
    EXPECT(page.press(VK_TAB));
    EXPECT(GetFocus() == page.need(L"Enabled"));
    EXPECT_EQ(page.Site.Keys, 0);
    SetFocus(page.need(L"Value"));
    EXPECT(page.press(VK_TAB));
    EXPECT_EQ(page.Site.Keys, 1);
    EXPECT(GetFocus() == page.need(L"Value"));
    page.Site.TakesKeys = S_FALSE;
    EXPECT(page.press(VK_TAB));
    EXPECT(GetFocus() == page.need(L"Caption"));
    EXPECT(!page.press(VK_RETURN));
    EXPECT(!page.press(VK_ESCAPE));
    EXPECT_EQ(page.Site.Keys, 4);
}

TEST(pages_stand_in_the_systems_own_dialog) {
    Host host;
    const auto field = host.place(makeControl(L"KelText"));
    EXPECT_CODE(put(field.get(), L"Caption", Var(L"Name").Value), S_OK);
    std::wstring title, shown;
    {
        MessageBoxHand hand([&](HWND dialog) {
            title = textOf(dialog);
            shown = textOf(descendant(dialog, L"Edit"));
        });
        EXPECT_CODE(host.verb(OLEIVERB_PROPERTIES), S_OK);
        EXPECT_EQ(hand.seen(), 1);
    }
    EXPECT(title.find(L"KelText") != std::wstring::npos);
    EXPECT_EQ(shown, std::wstring(L"Name"));
}

TEST(pages_list_imports_files_of_every_encoding) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    const std::wstring file = std::wstring(folder) + L"pages_import.txt";
    const struct {
        std::string bytes;
        const wchar_t* items;
    } cases[] = {
        {"Gr\xC3\xB6\xC3\x9F"
         "e\t9\nb",
         L"text Größe,b"},
        {"\xEF\xBB\xBF\xC3\xB6", L"text ö"},
        {std::string("\xFF\xFE\xF6\0\t\0x\0", 8), L"text ö"},
        {"\xF6,\t1", L"text \"ö,\""},
    };
    for (const auto& c : cases) {
        HANDLE const made = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        WriteFile(made, c.bytes.data(), static_cast<DWORD>(c.bytes.size()), &written, nullptr);
        CloseHandle(made);
        const auto combo = makeControl(L"KelCombo");
        Shown page(DesignPage::List, {combo.get()});
        {
            constexpr int FileName = 0x47C;  // the box with the names used before
            MessageBoxHand hand([&](HWND dialog) { SetDlgItemTextW(dialog, FileName, file.c_str()); });
            page.pressButton(L"Import...");
            EXPECT_EQ(hand.seen(), 1);
        }
        EXPECT_CODE(page.Page->Apply(), S_OK);
        EXPECT_EQ(late(combo.get(), L"List"), std::wstring(c.items));
    }
    DeleteFileW(file.c_str());
}

TEST(pages_list_takes_no_more_items_than_a_combo_counts) {
    const auto combo = makeControl(L"KelCombo");
    const std::wstring full(static_cast<std::size_t>(MostListItems) - 1, L',');
    EXPECT_CODE(put(combo.get(), L"List", Var(full.c_str()).Value), S_OK);
    Shown page(DesignPage::List, {combo.get()});
    HWND const list = descendant(page.window(), L"SysListView32");
    SetFocus(list);
    EXPECT(page.press(VK_INSERT));
    EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), static_cast<LRESULT>(MostListItems));
    EXPECT_EQ(page.says(), std::wstring(L"The list is full."));
}

TEST(pages_list_edits_items_and_tags_side_by_side) {
    const auto combo = makeControl(L"KelCombo");
    EXPECT_CODE(put(combo.get(), L"List", Var(L"Apple,\"Pear, ripe\"").Value), S_OK);
    EXPECT_CODE(put(combo.get(), L"ListTag", Var(L"1").Value), S_OK);
    Shown page(DesignPage::List, {combo.get()});
    HWND const list = descendant(page.window(), L"SysListView32");
    const auto cell = [list](int row, int column) {
        wchar_t text[64] = {};
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 64;
        SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return std::wstring(text);
    };
    EXPECT_EQ(cell(0, 0) + L"/" + cell(0, 1) + L"|" + cell(1, 0) + L"/" + cell(1, 1),
              std::wstring(L"Apple/1|Pear, ripe/"));
    const auto typeOver = [](const wchar_t* text) {
        SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
        SendMessageW(GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    };
    // F2, the item, Tab, its tag, Enter; a new one after it; the first one goes; the last goes up.
    SetFocus(list);
    EXPECT(page.press(VK_F2));
    typeOver(L"Apples");
    EXPECT(page.press(VK_TAB));
    typeOver(L"one");
    EXPECT(page.press(VK_RETURN));
    EXPECT(GetFocus() == list);
    page.pressButton(L"Add");
    typeOver(L"Say \"hi\"");
    EXPECT(page.press(VK_RETURN));
    page.pressButton(L"Move down");
    EXPECT(OpenClipboard(page.window()) != FALSE);
    const wchar_t pasted[] = L"Plum\t7\r\nFig\r\n";
    HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE, sizeof pasted);
    memcpy(GlobalLock(memory), pasted, sizeof pasted);
    GlobalUnlock(memory);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
    page.pressButton(L"Paste");
    EXPECT_EQ(page.says(), std::wstring(L"2 items were added."));
    // What is being edited and not finished counts.
    SendMessageW(list, WM_KEYDOWN, VK_END, 0);
    SetFocus(list);
    EXPECT(page.press(VK_F2));
    typeOver(L"Figs");
    EXPECT_CODE(page.Page->Apply(), S_OK);
    EXPECT_EQ(late(combo.get(), L"List"), std::wstring(L"text Apples,\"Pear, ripe\",\"Say \"\"hi\"\"\",Plum,Figs"));
    EXPECT_EQ(late(combo.get(), L"ListTag"), std::wstring(L"text one,,,7"));
    // Escape keeps the old text; Delete takes the item away.
    SetFocus(list);
    EXPECT(page.press(VK_F2));
    typeOver(L"nothing");
    EXPECT(page.press(VK_ESCAPE));
    EXPECT(page.press(VK_DELETE));
    EXPECT_CODE(page.Page->Apply(), S_OK);
    EXPECT_EQ(late(combo.get(), L"ListCount"), std::wstring(L"long 4"));
    EXPECT(page.press(VK_ESCAPE) && page.Site.Keys == 1);
}
