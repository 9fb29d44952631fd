// Every member, event and saved property of every class, late-bound, with the values of the right types.

#include <algorithm>
#include <span>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

constexpr DISPID ChangeId = 1;
constexpr DISPID ClickId = 2;

/// A property that can be put: its value in a newly placed control, and another one.
struct Property {
    const wchar_t* name;
    const wchar_t* fresh;
    const wchar_t* other;
    const wchar_t* stored;  ///< `other` as a property bag keeps it; null when it is not saved
};

constexpr Property saved(const wchar_t* name, const wchar_t* fresh, const wchar_t* other,
                         const wchar_t* stored = nullptr) {
    return {name, fresh, other, stored != nullptr ? stored : other};
}
constexpr Property unsaved(const wchar_t* name, const wchar_t* fresh, const wchar_t* other) {
    return {name, fresh, other, nullptr};
}

// In an order in which none heeds one behind it: bounds before values, lists before texts.

constexpr Property ProgressBarProperties[] = {
    saved(L"Max", L"long 100", L"long 200"),          saved(L"Min", L"long 1", L"long 5"),
    saved(L"ShowTime", L"bool True", L"bool False"),  unsaved(L"Value", L"long 1", L"long 42"),
    unsaved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property NumberProperties[] = {
    saved(L"Caption", L"text Field1", L"text Amount"),
    saved(L"CaptionWidth", L"short 1200", L"short 700"),
    saved(L"Decimals", L"short -1", L"short 3"),
    saved(L"FontBold", L"bool False", L"bool True"),
    saved(L"GroupDigits", L"bool True", L"bool False"),
    saved(L"InsertMode", L"bool False", L"bool True"),
    saved(L"Mandatory", L"bool True", L"bool False"),
    saved(L"MaxValue", L"double 9999999999", L"double 99.125"),
    saved(L"MinValue", L"double -9999999999", L"double 2.5"),
    saved(L"SelectOnFocus", L"bool False", L"bool True"),
    saved(L"UpDown", L"bool False", L"bool True"),
    saved(L"UpDownChange", L"double 1", L"double 0.25"),
    saved(L"Value", L"double 0", L"double 12.375"),
    unsaved(L"ValueOriginal", L"double 12.375", L"double 11"),
    unsaved(L"ValueSaved", L"double 0", L"double 10.5"),
    saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property CheckProperties[] = {
    saved(L"Caption", L"text Field1", L"text I agree"),  saved(L"FontBold", L"bool False", L"bool True"),
    saved(L"Mandatory", L"bool True", L"bool False"),    unsaved(L"Value", L"bool False", L"bool True"),
    saved(L"Value", L"bool True", L"bool False"),        unsaved(L"ValueOriginal", L"bool False", L"bool True"),
    unsaved(L"ValueSaved", L"bool False", L"bool True"), saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property ComboProperties[] = {
    saved(L"Caption", L"text Field1", L"text Fruit"),
    saved(L"CaptionWidth", L"short 1200", L"short 700"),
    saved(L"DropDownWidth", L"long 0", L"long 4000", L"short 4000"),
    saved(L"List", L"text ", L"text Apple,\"Pear, ripe\",Plum"),
    saved(L"ListTag", L"text ", L"text a,b,c"),
    saved(L"Mandatory", L"bool True", L"bool False"),
    saved(L"MaxLength", L"short 0", L"short 30"),
    saved(L"SelectOnFocus", L"bool False", L"bool True"),
    unsaved(L"ListIndex", L"short -1", L"short 3"),
    saved(L"Text", L"text Plum", L"text Pear, ripe"),
    unsaved(L"TextOriginal", L"text Pear, ripe", L"text Quince"),
    unsaved(L"TextSaved", L"text ", L"text Medlar"),
    saved(L"LimitToList", L"bool True", L"bool False"),
    saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property DateProperties[] = {
    saved(L"Caption", L"text Field1", L"text Due"),
    saved(L"CaptionWidth", L"short 1200", L"short 700"),
    saved(L"DaysFlag", L"long 0", L"long 2", L"short 2"),
    saved(L"Format", L"text dd/mm/yyyy", L"text yyyy-mm-dd"),
    saved(L"InsertMode", L"bool False", L"bool True"),
    saved(L"Mandatory", L"bool True", L"bool False"),
    saved(L"MaxValue", L"date 2958465", L"date 41639"),
    saved(L"MinValue", L"date -657434", L"date 41275"),
    saved(L"SelectOnFocus", L"bool False", L"bool True"),
    saved(L"UpDown", L"bool True", L"bool False"),
    saved(L"Value", L"empty", L"date 41364", L"text 31032013"),
    unsaved(L"ValueOriginal", L"date 41364", L"date 41300"),
    unsaved(L"ValueSaved", L"empty", L"date 41301"),
    saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property TimeProperties[] = {
    saved(L"Caption", L"text Field1", L"text Begins"),
    saved(L"CaptionWidth", L"short 1200", L"short 700"),
    saved(L"Format", L"text hh:nn am/pm", L"text hh:nn:ss"),
    saved(L"InsertMode", L"bool False", L"bool True"),
    saved(L"Mandatory", L"bool True", L"bool False"),
    saved(L"MaxValue", L"date 0.999988425925926", L"date 0.875"),
    saved(L"MinValue", L"date 0", L"date 0.25"),
    saved(L"SelectOnFocus", L"bool False", L"bool True"),
    saved(L"UpDown", L"bool True", L"bool False"),
    saved(L"Value", L"empty", L"date 0.75", L"text 18:00:00"),
    unsaved(L"ValueOriginal", L"date 0.75", L"date 0.5"),
    unsaved(L"ValueSaved", L"empty", L"date 0.625"),
    saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

constexpr Property TextProperties[] = {
    saved(L"Caption", L"text Field1", L"text Name"),   saved(L"CaptionWidth", L"short 1200", L"short 700"),
    saved(L"InsertMode", L"bool True", L"bool False"), saved(L"Mandatory", L"bool True", L"bool False"),
    saved(L"MaxLength", L"short 0", L"short 30"),      saved(L"MultiLine", L"bool False", L"bool True"),
    saved(L"PasswordChar", L"text ", L"text *"),       saved(L"SelectOnFocus", L"bool False", L"bool True"),
    saved(L"Text", L"text ", L"text one\r\ntwo"),      unsaved(L"TextOriginal", L"text one\r\ntwo", L"text three"),
    unsaved(L"TextSaved", L"text ", L"text four"),     saved(L"Locked", L"bool False", L"bool True"),
    saved(L"Enabled", L"bool True", L"bool False"),
};

struct ControlClass {
    const wchar_t* name;
    std::span<const Property> properties;
};

const ControlClass Controls[] = {
    {L"KelProgressBar", ProgressBarProperties},
    {L"KelNumber", NumberProperties},
    {L"KelCheck", CheckProperties},
    {L"KelCombo", ComboProperties},
    {L"KelDate", DateProperties},
    {L"KelTime", TimeProperties},
    {L"KelText", TextProperties},
};

Ref<IDispatch> makeControl(const wchar_t* className) {
    return create((std::wstring(L"KelControls8.") + className).c_str());
}

/// A new control in a host, on the screen when it is shown.
class Placed {
public:
    explicit Placed(const wchar_t* className)
        : Control(Inside.place(makeControl(className))), Sink(false, classOf(Control.get())) {
        EXPECT_CODE(Control.as<IPersistStreamInit>()->InitNew(), S_OK);
    }

    void show(LONG verb = OLEIVERB_INPLACEACTIVATE) {
        EXPECT_CODE(Inside.verb(verb), S_OK);
        SetActiveWindow(Inside.window());
        pump();
    }
    void hearEvents() { adviseEvents(Control.get(), &Sink, classOf(Control.get())); }

    void put(const wchar_t* name, const wchar_t* value) const {
        const Var given = variantOf(value);
        EXPECT_CODE(kel::tests::put(Control.get(), name, given.Value), S_OK);
    }
    std::wstring get(const wchar_t* name) const { return late(Control.get(), name); }
    /// With one argument.
    std::wstring get(const wchar_t* name, const wchar_t* argument) const {
        const Var given = variantOf(argument);
        Var value;
        EXPECT_CODE(invoke(Control.get(), name, DISPATCH_PROPERTYGET, {given.Value}, &value.Value), S_OK);
        return described(value.Value);
    }
    void call(const wchar_t* name) const { EXPECT_CODE(invoke(Control.get(), name, DISPATCH_METHOD, {}), S_OK); }
    void call(const wchar_t* name, const VARIANT& argument) const {
        EXPECT_CODE(invoke(Control.get(), name, DISPATCH_METHOD, {argument}), S_OK);
    }

    Host Inside;
    Ref<IDispatch> Control;
    EventSink Sink;
};

/// With the class and the member, for whoever reads why it failed.
std::wstring line(const ControlClass& control, const Property& property, const std::wstring& value) {
    return std::wstring(control.name) + L"." + property.name + L" = " + value;
}

void expectProperty(IDispatch* object, const ControlClass& control, const Property& property,
                    const std::wstring& value) {
    EXPECT_EQ(line(control, property, late(object, property.name)), line(control, property, value));
}

void expectSaved(IDispatch* object, const ControlClass& control) {
    for (const Property& property : control.properties)
        if (property.stored != nullptr) expectProperty(object, control, property, property.other);
}

/// What a bag holds, described and sorted.
std::vector<std::wstring> contentOf(const Bag& bag) {
    std::vector<std::wstring> content;
    for (const auto& [name, value] : bag.Values) content.push_back(name + L" = " + described(value.Value));
    std::sort(content.begin(), content.end());
    return content;
}

std::wstring joined(const std::vector<std::wstring>& lines) {
    std::wstring all;
    for (const std::wstring& text : lines) all += text + L"; ";
    return all;
}

/// A bag such as a host makes of a form on which every saved property was set.
void fill(Bag& bag, const ControlClass& control) {
    for (const Property& property : control.properties)
        if (property.stored != nullptr) bag.Values.emplace(property.name, variantOf(property.stored));
}

/// Covers what a host shows, to see what of it is painted again.
class Scrawl {
public:
    explicit Scrawl(const Host& host) : Host_(host), Paper_(GetDC(host.window())) {
        HBRUSH const brush = CreateSolidBrush(Ink);
        FillRect(Paper_, &host.Bounds, brush);
        DeleteObject(brush);
    }
    ~Scrawl() { ReleaseDC(Host_.window(), Paper_); }
    Scrawl(const Scrawl&) = delete;
    Scrawl& operator=(const Scrawl&) = delete;

    /// How many of some places are still covered.
    int left() const {
        const RECT& area = Host_.Bounds;
        int count = 0;
        for (LONG y = area.top; y < area.bottom; y += 3)
            for (LONG x = area.left; x < area.right; x += 5) count += GetPixel(Paper_, x, y) == Ink ? 1 : 0;
        return count;
    }

private:
    static constexpr COLORREF Ink = RGB(1, 200, 77);

    const Host& Host_;
    HDC Paper_;
};

/// A run-time object of the host's, which is the server's own but for the usual count of decimals.
class HostRuntime final : public StackObject<IDispatch> {
public:
    explicit HostRuntime(Ref<IDispatch> own) : Own_(std::move(own)) {
        wchar_t name[] = L"DecimalDigits";
        wchar_t* names = name;
        EXPECT_CODE(Own_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &Digits_), S_OK);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return Own_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* which) override {
        if (id != Digits_) return Own_->Invoke(id, iid, locale, flags, arguments, result, exception, which);
        result->vt = VT_I2;
        result->iVal = 3;
        return S_OK;
    }

private:
    Ref<IDispatch> Own_;
    DISPID Digits_ = DISPID_UNKNOWN;
};

Ref<IStream> streamOf(const Ref<IDispatch>& control) {
    Ref<IStream> stream;
    EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
    EXPECT_CODE(control.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    EXPECT_CODE(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
    return stream;
}

}  // namespace

TEST(members_properties_take_other_values) {
    for (const ControlClass& control : Controls) {
        const Placed placed(control.name);
        for (const Property& property : control.properties) {
            EXPECT(std::wstring(property.fresh) != property.other);
            expectProperty(placed.Control.get(), control, property, property.fresh);
            placed.put(property.name, property.other);
            expectProperty(placed.Control.get(), control, property, property.other);
        }
        // Nothing that came later has changed it again.
        expectSaved(placed.Control.get(), control);
    }
}

TEST(members_are_loaded_and_saved) {
    for (const ControlClass& control : Controls) {
        Bag form;
        fill(form, control);
        const auto wanted = contentOf(form);
        const auto fromBag = makeControl(control.name);
        EXPECT_CODE(load(fromBag.get(), form), S_OK);
        expectSaved(fromBag.get(), control);
        Bag again;
        EXPECT_CODE(save(fromBag.get(), again), S_OK);
        EXPECT_EQ(control.name + (L": " + joined(contentOf(again))), control.name + (L": " + joined(wanted)));

        const auto fromStream = makeControl(control.name);
        EXPECT_CODE(fromStream.as<IPersistStreamInit>()->Load(streamOf(fromBag).get()), S_OK);
        for (const Property& property : control.properties) {
            if (property.stored != nullptr) expectProperty(fromStream.get(), control, property, property.other);
        }
    }
}

TEST(members_changes_are_tracked) {
    struct Row {
        const wchar_t* className;
        const wchar_t* value;
        const wchar_t* first;
        const wchar_t* second;
        const wchar_t* validWhenNew;  ///< while it is mandatory and has no value
    };
    const Row rows[] = {
        {L"KelNumber", L"Value", L"double 5", L"double 6", L"bool False"},
        {L"KelCheck", L"Value", L"bool True", L"bool False", L"bool True"},
        {L"KelCombo", L"Text", L"text Apple", L"text Plum", L"bool False"},
        {L"KelDate", L"Value", L"date 41348", L"date 41349", L"bool False"},
        {L"KelTime", L"Value", L"date 0.5", L"date 0.75", L"bool False"},
        {L"KelText", L"Text", L"text one", L"text two", L"bool False"},
    };
    for (const Row& row : rows) {
        const Placed field(row.className);
        if (row.className == std::wstring(L"KelCombo")) field.put(L"List", L"text Apple,Plum");
        const std::wstring original = std::wstring(row.value) + L"Original";
        const std::wstring savedValue = std::wstring(row.value) + L"Saved";
        const auto states = [&] {
            std::wstring all = row.className;
            for (const wchar_t* name : {L"Changed", L"ChangedSaved", L"Valid"}) all += L", " + field.get(name);
            return all;
        };
        const auto wanted = [&](const wchar_t* changed, const wchar_t* changedSaved, const std::wstring& valid) {
            return std::wstring(row.className) + L", bool " + changed + L", bool " + changedSaved + L", " + valid;
        };
        EXPECT_EQ(field.get(L"Valid"), row.validWhenNew);
        field.put(row.value, row.first);
        EXPECT_EQ(states(), wanted(L"False", L"True", L"bool True"));
        field.put(original.c_str(), row.second);
        EXPECT_EQ(states(), wanted(L"True", L"True", L"bool True"));
        field.put(savedValue.c_str(), row.first);
        EXPECT_EQ(states(), wanted(L"True", L"False", L"bool True"));
        field.put(row.value, row.second);
        EXPECT_EQ(states(), wanted(L"False", L"True", L"bool True"));
    }
}

TEST(members_that_are_only_read) {
    Placed text(L"KelText");
    text.put(L"MultiLine", L"bool True");
    text.put(L"Text", L"text one\r\n\r\n");
    EXPECT_EQ(text.get(L"TextRaw"), L"text one\r\n\r\n");
    EXPECT_EQ(text.get(L"Text"), L"text one");
    EXPECT_EQ(text.get(L"TextRaw"), L"text one");
    text.show();
    const Var handle = variantOf(text.get(L"hWnd"));
    EXPECT_EQ(handle.Value.vt, VT_I4);
    EXPECT(GetParent(reinterpret_cast<HWND>(static_cast<INT_PTR>(handle.Value.lVal))) == text.Inside.window());

    const Placed number(L"KelNumber");
    number.put(L"Caption", L"text Amount");
    Str caption(L"before");
    VARIANT place = plain(VT_BYREF | VT_BSTR);
    place.pbstrVal = caption.address();
    Var changed;
    EXPECT_CODE(invoke(number.Control.get(), L"ChangedCaption", DISPATCH_PROPERTYGET, {place}, &changed.Value), S_OK);
    EXPECT_EQ(described(changed.Value), L"bool False");
    EXPECT_EQ(std::wstring(caption), L"Amount");

    const Placed combo(L"KelCombo");
    combo.put(L"List", L"text Apple,\"Pear, ripe\",Plum");
    combo.put(L"ListTag", L"text a,\"b,c\",d");
    EXPECT_EQ(combo.get(L"ListCount"), L"long 3");
    EXPECT_EQ(combo.get(L"ListItem", L"short 2"), L"text Pear, ripe");
    EXPECT_EQ(combo.get(L"ListItem", L"short 4"), L"text ");
    EXPECT_EQ(combo.get(L"ListTagItem", L"short 2"), L"text b,c");
    combo.put(L"Text", L"text Plum");
    EXPECT_EQ(combo.get(L"ListTagItem"), L"text d");
}

TEST(members_tooltip_goes_to_the_host_too) {
    for (const ControlClass& control : Controls) {
        if (control.name == std::wstring(L"KelProgressBar")) continue;
        const Placed field(control.name);
        const Var tip(control.name);
        field.call(L"TooltipSet", tip.Value);
        EXPECT_EQ(field.Inside.Extended.ToolTipText, control.name);
    }
}

TEST(members_refresh_repaints) {
    for (const ControlClass& control : Controls) {
        Placed field(control.name);
        field.show();
        const Scrawl scrawl(field.Inside);
        pump();
        const int before = scrawl.left();
        EXPECT(before > 0);
        field.call(L"Refresh");
        pump();
        if (scrawl.left() >= before) fail(__FILE__, __LINE__, shown(std::wstring(control.name)) + " is not repainted");
    }
}

TEST(members_progress_starts_and_clears) {
    Placed bar(L"KelProgressBar");
    bar.put(L"ShowTime", L"bool False");
    bar.show();
    HWND const surface = GetWindow(GetWindow(bar.Inside.window(), GW_CHILD), GW_CHILD);
    bar.put(L"Min", L"long 20");
    bar.put(L"Value", L"long 60");
    EXPECT_EQ(SendMessageW(surface, WM_GETTEXTLENGTH, 0, 0), LRESULT{3});
    bar.call(L"Start");
    EXPECT_EQ(bar.get(L"Value"), L"long 20");
    bar.call(L"Clear");
    EXPECT_EQ(SendMessageW(surface, WM_GETTEXTLENGTH, 0, 0), LRESULT{0});
}

TEST(members_combo_takes_its_list_from_an_array) {
    const Placed combo(L"KelCombo");
    SAFEARRAY* items = SafeArrayCreateVector(VT_BSTR, 0, 2);
    for (LONG i = 0; i < 2; ++i) SafeArrayPutElement(items, &i, Str(i == 0 ? L"Bath" : L"Ely, Cambs"));
    VARIANT array = plain(VT_BYREF | VT_ARRAY | VT_BSTR);
    array.pparray = &items;
    combo.call(L"ListFromArray", array);
    SafeArrayDestroy(items);
    EXPECT_EQ(combo.get(L"List"), L"text Bath,\"Ely, Cambs\"");
}

TEST(members_events_follow_what_a_user_does) {
    struct Row {
        const wchar_t* className;
        const wchar_t* before;
        const wchar_t* after;
    };
    const Row rows[] = {{L"KelNumber", L"double 7", L"double 8"},
                        {L"KelDate", L"date 41348", L"date 41349"},
                        {L"KelTime", L"date 0.5", L"date 0.541666666666667"}};
    for (const Row& row : rows) {
        Placed field(row.className);
        field.hearEvents();
        field.put(L"UpDown", L"bool True");
        field.put(L"Value", row.before);
        field.show();
        pressSpinner(spinnerIn(field.Inside.window()), true);
        EXPECT_EQ(field.get(L"Value"), row.after);
        EXPECT(field.Sink.Heard == std::vector<DISPID>{ChangeId});
    }
}

TEST(members_text_events_follow_what_a_user_does) {
    Placed field(L"KelText");
    field.hearEvents();
    field.show(OLEIVERB_UIACTIVATE);
    HWND const box = GetFocus();
    click(box, 5, 5);
    EXPECT(field.Sink.Heard == std::vector<DISPID>{ClickId});
    SendMessageW(box, WM_CHAR, L'a', 0);
    EXPECT_EQ(field.get(L"Text"), L"text a");
    EXPECT(field.Sink.Heard == (std::vector<DISPID>{ClickId, ChangeId}));
}

TEST(members_handler_takes_the_hosts_object) {
    const auto handler = create(L"KelControls8.KelControlHandler");
    const auto setRuntime = [&](IDispatch* runtime) {
        VARIANT object = plain(VT_DISPATCH);
        object.pdispVal = runtime;
        EXPECT_CODE(invoke(handler.get(), L"SetRuntime", DISPATCH_METHOD, {object}), S_OK);
    };
    const auto decimalsInUse = [] {
        const Placed number(L"KelNumber");
        number.put(L"Value", L"double 1.23456");
        return number.get(L"Value");
    };
    const auto own = create(L"KelRuntime8.Runtime");
    HostRuntime runtime(own);
    setRuntime(&runtime);
    EXPECT_EQ(decimalsInUse(), L"double 1.235");
    setRuntime(own.get());
    EXPECT_EQ(runtime.References, 1L);
    EXPECT_EQ(decimalsInUse(), L"double 1.23");
}
