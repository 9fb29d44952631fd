// Every member, event and saved property of every class, late-bound. The rows say what there is.

#include <set>

#include "controls/Classes.h"
#include "platform/win32/base/WideText.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

constexpr DISPID ClickId = 2;
constexpr DISPID ChangeExId = 3;

using win32::wide;

std::vector<const ClassModel*> controls() {
    std::vector<const ClassModel*> found;
    for (const ClassModel* model : libraryClasses().all())
        if (model->isControl()) found.push_back(model);
    return found;
}

/// Another value of the same type; a date where there is none, with a time of day for the class that keeps that.
Var another(const VARIANT& value) {
    if (value.vt == VT_BSTR) return Var((std::wstring(value.bstrVal, SysStringLen(value.bstrVal)) + L"x").c_str());
    Var other;
    VARIANT& changed = other.Value;
    changed = value;
    switch (value.vt) {
        case VT_BOOL: changed.boolVal = value.boolVal == VARIANT_FALSE ? VARIANT_TRUE : VARIANT_FALSE; break;
        case VT_I2: ++changed.iVal; break;
        case VT_I4: ++changed.lVal; break;
        case VT_R8: changed.dblVal += 1; break;
        default: changed = date(41334.75); break;
    }
    return other;
}

/// A new control in a host, on the screen when it is shown.
class Placed {
public:
    explicit Placed(const std::wstring& className)
        : Control(Inside.place(makeControl(className))), Sink(false, classOf(Control.get())) {
        EXPECT_CODE(Control.as<IPersistStreamInit>()->InitNew(), S_OK);
    }

    void show() {
        EXPECT_CODE(Inside.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
        SetActiveWindow(Inside.window());
        settle();
    }
    void hearEvents() { adviseEvents(Control.get(), &Sink, classOf(Control.get())); }

    void put(const wchar_t* name, const Var& value) const {
        EXPECT_CODE(kel::tests::put(Control.get(), name, value.Value), S_OK);
    }
    std::wstring get(const wchar_t* name) const { return late(Control.get(), name); }
    void call(const wchar_t* name, std::vector<VARIANT> arguments = {}) const {
        EXPECT_CODE(invoke(Control.get(), name, DISPATCH_METHOD, std::move(arguments)), S_OK);
    }

    Host Inside;
    Ref<IDispatch> Control;
    EventSink Sink;
};

/// Puts another value, which reads back as it was put. Dates are kept as each class keeps them; no list has a second
/// item here.
void putAnother(IDispatch* object, const MemberRow& row, bool readsBack) {
    const std::wstring name = wide(row.name);
    Var value;
    EXPECT_CODE(invoke(object, name.c_str(), DISPATCH_PROPERTYGET, {}, &value.Value), S_OK);
    const Var other = another(value.Value);
    EXPECT_CODE(put(object, name.c_str(), other.Value), S_OK);
    if (!readsBack || other.Value.vt == VT_DATE || name == L"ListIndex") return;
    EXPECT_EQ(name + L" " + late(object, name.c_str()), name + L" " + described(other.Value));
}

/// What the saved properties are, a line each.
std::wstring savedOf(IDispatch* object, const ClassModel& model) {
    std::wstring values;
    for (const MemberRow& row : model.members)
        if (row.isPersisted())
            values += wide(model.name) + L"." + wide(row.name) + L" = " + late(object, wide(row.name).c_str()) + L"\n";
    return values;
}

/// What a person does in a control, and what the host hears of it.
struct Deed {
    const wchar_t* className;
    void (*act)(const Host& host);
    std::vector<DISPID> events;
};

void spinUp(const Host& host) { pressSpinner(descendant(host.window(), L"UpDown"), true); }

void pickLast(const Host& host) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    EXPECT(GetComboBoxInfo(descendant(host.window(), L"ComboBox"), &parts));
    SendMessageW(parts.hwndCombo, CB_SHOWDROPDOWN, TRUE, 0);
    RECT row{};
    SendMessageW(parts.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    click(parts.hwndList, {row.left + 2, row.top + 2});
}

const Deed Deeds[] = {
    {L"KelNumber", &spinUp, {ChangeId}},
    {L"KelDate", &spinUp, {ChangeId}},
    {L"KelTime", &spinUp, {ChangeId}},
    {L"KelCheck",
     [](const Host& host) {
         click(widgetIn(host.window()), {100, 8});
     },
     {ChangeId}},
    {L"KelCheck", [](const Host& host) { SendMessageW(widgetIn(host.window()), BM_CLICK, 0, 0); }, {ChangeId}},
    {L"KelCombo", &pickLast, {ChangeExId, ClickId, ChangeId}},
    {L"KelText",
     [](const Host& host) {
         click(descendant(host.window(), L"Edit"), {5, 5});
     },
     {ClickId}},
    {L"KelText",
     [](const Host& host) {
         SetFocus(descendant(host.window(), L"Edit"));
         SendMessageW(GetFocus(), WM_CHAR, L'a', 0);
     },
     {ChangeId}},
};

/// Types, and leaves the field.
void type(const Host& host, const wchar_t* text) {
    SetFocus(descendant(host.window(), L"Edit"));
    for (; *text != 0; ++text) SendMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(*text), 0);
    SetFocus(host.window());
    settle();
}

/// What a person does to the value that data is bound to.
const Deed BoundDeeds[] = {
    {L"KelNumber", &spinUp, {}},
    {L"KelNumber", [](const Host& host) { type(host, L"12"); }, {}},
    {L"KelDate", &spinUp, {}},
    {L"KelDate", [](const Host& host) { type(host, L"5"); }, {}},
    {L"KelTime", &spinUp, {}},
    {L"KelTime", [](const Host& host) { type(host, L"9"); }, {}},
    {L"KelCheck", [](const Host& host) { SendMessageW(widgetIn(host.window()), BM_CLICK, 0, 0); }, {}},
    {L"KelCombo", &pickLast, {}},
    {L"KelText", [](const Host& host) { type(host, L"a"); }, {}},
};

/// A control on the screen in which a deed can be done.
class Ready : public Placed {
public:
    explicit Ready(const Deed& deed) : Placed(deed.className) {
        if (deed.act == &spinUp) put(L"UpDown", Var(1L));
        if (deed.act == &pickLast) put(L"List", Var(L"Apple,Plum"));
        hearEvents();
        show();
    }
};

}  // namespace

/// Twice, so that each switch is saved on and off, and one of it is not the default.
TEST(members_take_other_values_and_are_saved) {
    for (const ClassModel* model : controls()) {
        const std::wstring name = wide(model->name);
        const Placed placed(name);
        std::set<std::wstring> written;
        for (const bool first : {true, false}) {
            for (const MemberRow& row : model->members)
                if (row.get != nullptr && row.put != nullptr) putAnother(placed.Control.get(), row, first);
            const std::wstring wanted = savedOf(placed.Control.get(), *model);
            Bag bag;
            EXPECT_CODE(save(placed.Control.get(), bag), S_OK);
            for (const auto& [property, value] : bag.Values) written.insert(property);
            const auto fromBag = makeControl(name);
            EXPECT_CODE(load(fromBag.get(), bag), S_OK);
            EXPECT_EQ(savedOf(fromBag.get(), *model), wanted);

            Ref<IStream> stream;
            EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
            EXPECT_CODE(fromBag.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
            EXPECT_CODE(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
            const auto fromStream = makeControl(name);
            EXPECT_CODE(fromStream.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
            EXPECT_EQ(savedOf(fromStream.get(), *model), wanted);
        }
        for (const PersistedRow& row : model->saved) EXPECT_EQ(written.count(wide(row.name)), std::size_t{1});
    }
}

TEST(members_that_are_only_read_or_called) {
    for (const ClassModel* model : controls()) {
        const Placed placed(wide(model->name));
        for (const MemberRow& row : model->members) {
            const bool alone = row.parameterCount == 0 || row.parameters().front().optional;
            if (row.get != nullptr && row.put == nullptr && alone) placed.get(wide(row.name).c_str());
            if (row.call != nullptr && alone) placed.call(wide(row.name).c_str());
        }
    }
}

TEST(members_tooltip_goes_to_the_host_too) {
    for (const ClassModel* model : controls()) {
        if (!model->takesFocus) continue;
        const Placed field(wide(model->name));
        const Var tip(wide(model->name).c_str());
        field.call(L"TooltipSet", {tip.Value});
        EXPECT_EQ(field.Inside.Extended.ToolTipText, wide(model->name));
    }
}

TEST(members_events_follow_what_a_user_does) {
    for (const Deed& deed : Deeds) {
        const Ready field(deed);
        deed.act(field.Inside);
        EXPECT_EQ(field.Sink.Heard.size(), deed.events.size());
        EXPECT(field.Sink.Heard == deed.events);
        EXPECT(field.Inside.called("OnUIActivate"));
    }
}

TEST(members_bound_values_ask_first_and_tell_after) {
    for (const bool may : {true, false}) {
        for (const Deed& deed : BoundDeeds) {
            Ready field(deed);
            const wchar_t* const bound =
                classOf(field.Control.get()) == u"KelText" || deed.act == &pickLast ? L"Text" : L"Value";
            const std::wstring before = field.get(bound);
            field.Inside.Changed.clear();
            field.Inside.MayEdit = may ? S_OK : S_FALSE;
            deed.act(field.Inside);
            EXPECT_EQ(field.get(bound) != before, may);
            EXPECT((field.Inside.Changed == std::vector<DISPID>(may ? 1 : 0, DISPID_VALUE)));
            if (!may) EXPECT(field.Sink.Heard.empty());
        }
    }
}

TEST(members_event_may_be_refused_by_its_host) {
    Ready combo(Deeds[5]);
    combo.Sink.Handler = [&combo] {
        EXPECT_EQ(combo.Sink.Passed->cArgs, 1U);
        const VARIANT& handled = combo.Sink.Passed->rgvarg[0];
        EXPECT_EQ(handled.vt, VT_BYREF | VT_BOOL);
        EXPECT_EQ(*handled.pboolVal, VARIANT_TRUE);
        *handled.pboolVal = VARIANT_FALSE;
    };
    pickLast(combo.Inside);
    EXPECT_EQ(combo.get(L"Text"), L"text Plum");
    EXPECT(combo.Sink.Heard == std::vector<DISPID>{ChangeExId});
}

TEST(members_survive_a_host_that_unloads_in_their_event) {
    for (const Deed& deed : Deeds) {
        Ready field(deed);
        HWND const window = GetWindow(field.Inside.window(), GW_CHILD);
        field.Sink.Handler = [&] {
            field.Inside.unload();
            field.Control.reset();
        };
        deed.act(field.Inside);
        EXPECT(!field.Sink.Heard.empty());
        EXPECT(!IsWindow(window));
        EXPECT(GetCapture() == nullptr);
    }
}
