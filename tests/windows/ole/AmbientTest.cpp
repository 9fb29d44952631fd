// What a container says of the surroundings, at the start and later.

#include <cmath>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
#include "tests/windows/widgets/Picture.h"

using namespace kel;
using namespace kel::tests;

namespace {

Var truth(bool value) {
    Var out;
    out.Value.vt = VT_BOOL;
    out.Value.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return out;
}

/// A control in a host, and a person in front of it.
struct AmbientScene {
    explicit AmbientScene(const wchar_t* programId)
        : control(host.place(create(programId))), sink(false, classOf(control.get())) {
        host.Bounds.right = 310;
        adviseEvents(control.get(), &sink, classOf(control.get()));
    }
    void open() {
        Bag bag;
        bag.Texts[L"UpDown"] = L"True";
        bag.Texts[L"UpDownChange"] = L"1";
        bag.Texts[L"MaxValue"] = std::wstring(control.as<_KelNumber>() ? L"99999" : L"31/12/2099");
        bag.Texts[L"Caption"] = L"&Name";
        bag.Texts[L"CaptionWidth"] = L"1500";
        bag.Texts[L"LimitToList"] = L"False";
        EXPECT_CODE(load(control.get(), bag), S_OK);
        EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
        settle();
    }
    HWND part(const wchar_t* classPart) const { return descendant(host.window(), classPart); }
    std::wstring property(const wchar_t* name) const { return late(control.get(), name); }

    Host host;
    Ref<IDispatch> control;
    EventSink sink;
};

void work(AmbientScene& scene, const wchar_t* classPart, UINT message, WPARAM wide) {
    HWND const part = scene.part(classPart);
    SetFocus(part);
    PostMessageW(part, message, wide, 1);
    settle();
}

void cutAll(AmbientScene& scene) {
    SetFocus(scene.part(L"Edit"));
    SendMessageW(scene.part(L"Edit"), EM_SETSEL, 0, -1);
    work(scene, L"Edit", WM_CUT, 0);
}

void pressMnemonic(AmbientScene& scene) {
    MSG pressed{};
    scene.control.as<IOleControl>()->OnMnemonic(&pressed);
}

/// What a person does, and the property that tells whether it came to anything.
struct AmbientDeed {
    const wchar_t* programId;
    const wchar_t* member;
    NamedDeed<AmbientScene> deed;
};

const AmbientDeed AmbientDeeds[] = {
    {L"KelControls8.KelText", L"Text", {"typing", [](AmbientScene& s) { work(s, L"Edit", WM_CHAR, L'a'); }}},
    {L"KelControls8.KelNumber", L"Value", {"arrow", [](AmbientScene& s) { work(s, L"Edit", WM_KEYDOWN, VK_UP); }}},
    {L"KelControls8.KelNumber",
     L"Value",
     {"wheel", [](AmbientScene& s) { work(s, L"Edit", WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA)); }}},
    {L"KelControls8.KelDate", L"Value", {"spinner", [](AmbientScene& s) { pressSpinner(s.part(L"UpDown"), true); }}},
    {L"KelControls8.KelCombo", L"Text", {"menu", &cutAll}},
    {L"KelControls8.KelCheck",
     L"Value",
     {"click",
      [](AmbientScene& s) {
          click(s.part(L"CheckBox"), {8, 8});
      }}},
    {L"KelControls8.KelCheck", L"Value", {"mnemonic", [](AmbientScene& s) { pressMnemonic(s); }}},
};

}  // namespace

TEST(ambient_design_and_a_dead_form_take_no_input) {
    for (const AmbientDeed& row : AmbientDeeds) {
        for (const DISPID ambient : {DISPID_AMBIENT_USERMODE, DISPID_AMBIENT_UIDEAD}) {
            const bool usual = ambient == DISPID_AMBIENT_USERMODE;
            const auto expect = [&](bool holds, const char* what) {
                if (!holds)
                    fail(__FILE__, __LINE__, row.deed.name + std::string(usual ? ", designed: " : ", dead: ") + what);
            };
            AmbientScene scene(row.programId);
            scene.open();
            if (row.deed.name == std::string("menu")) {
                EXPECT_CODE(put(scene.control.get(), L"Text", Var(L"cut me").Value), S_OK);
            }
            const std::wstring before = scene.property(row.member);
            scene.host.say(ambient, truth(!usual));
            scene.sink.Heard.clear();
            row.deed.act(scene);
            expect(scene.property(row.member) == before, "it changed");
            expect(scene.sink.Heard.empty(), "an event was raised");
            EXPECT_CODE(put(scene.control.get(), L"Caption", Var(L"&Other").Value), S_OK);
            scene.host.say(ambient, truth(usual));
            row.deed.act(scene);
            expect(scene.property(row.member) != before, "it stays so");
            expect(!scene.sink.Heard.empty(), "events stay away");
        }
    }
}

TEST(ambient_focus_checks_nothing_in_a_design) {
    AmbientScene scene(L"KelControls8.KelNumber");
    scene.host.Ambients[DISPID_AMBIENT_USERMODE] = truth(false);
    EXPECT_CODE(scene.control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    scene.open();
    EXPECT_CODE(put(scene.control.get(), L"Value", Var(L"1234.5").Value), S_OK);
    const auto shown = [&] {
        wchar_t text[40] = {};
        GetWindowTextW(scene.part(L"Edit"), text, 40);
        return std::wstring(text);
    };
    const std::wstring display = shown();
    SetFocus(scene.part(L"Edit"));
    EXPECT_EQ(shown(), display);
    SetFocus(scene.host.window());
    EXPECT(!scene.host.called("OnFocus"));
    EXPECT(scene.sink.Heard.empty());
    // From where the focus is, the person goes on when the form runs.
    SetFocus(scene.part(L"Edit"));
    scene.host.say(DISPID_AMBIENT_USERMODE, truth(true));
    EXPECT(scene.host.called("OnFocus"));
    EXPECT(shown() != display);
}

TEST(ambient_locale_is_how_numbers_and_dates_are_written_and_read) {
    constexpr long German = 0x407, American = 0x409;
    struct Row {
        const wchar_t* programId;
        long locale;
        const wchar_t* value;  ///< as it is put
        const wchar_t* stored;
        const wchar_t* german;  ///< as it is shown
        const wchar_t* american;
    };
    const Row rows[] = {
        {L"KelControls8.KelNumber", German, L"1.234,5", L"double 1234.5", L"1.234,50", L"1,234.50"},
        {L"KelControls8.KelNumber", American, L"1,234.5", L"double 1234.5", L"1.234,50", L"1,234.50"},
        {L"KelControls8.KelDate", German, L"5. März 2013", L"date 41338", L"5 März 2013", L"5 March 2013"},
        {L"KelControls8.KelDate", American, L"March 5 2013", L"date 41338", L"5 März 2013", L"5 March 2013"},
    };
    for (const Row& row : rows) {
        for (const bool atStart : {true, false}) {
            AmbientScene scene(row.programId);
            const Ref<IOleObject> object = scene.control.as<IOleObject>();
            if (atStart) {
                scene.host.Ambients[DISPID_AMBIENT_LOCALEID] = Var(row.locale);
                EXPECT_CODE(object->SetClientSite(nullptr), S_OK);
                EXPECT_CODE(object->SetClientSite(&scene.host), S_OK);
            }
            scene.open();
            if (!atStart) scene.host.say(DISPID_AMBIENT_LOCALEID, Var(row.locale));
            if (std::wstring(row.programId) == L"KelControls8.KelDate")
                EXPECT_CODE(put(scene.control.get(), L"Format", Var(L"d mmmm yyyy").Value), S_OK);
            EXPECT_CODE(put(scene.control.get(), L"Value", Var(row.value).Value), S_OK);
            SetFocus(scene.host.window());
            const auto shown = [&] {
                wchar_t text[40] = {};
                GetWindowTextW(scene.part(L"Edit"), text, 40);
                return std::wstring(text);
            };
            EXPECT_EQ(scene.property(L"Value"), std::wstring(row.stored));
            EXPECT_EQ(shown(), std::wstring(row.locale == German ? row.german : row.american));
            scene.host.say(DISPID_AMBIENT_LOCALEID, Var(row.locale == German ? American : German));
            EXPECT_EQ(shown(), std::wstring(row.locale == German ? row.american : row.german));
            EXPECT_EQ(scene.property(L"Value"), std::wstring(row.stored));
        }
    }
}

namespace {

Var fontOf(const wchar_t* name, int points) {
    std::wstring copy = name;
    FONTDESC wanted{};
    wanted.cbSizeofstruct = sizeof wanted;
    wanted.lpstrName = copy.data();
    wanted.cySize.int64 = points * 10'000;
    wanted.sWeight = FW_NORMAL;
    Var font;
    font.Value.vt = VT_DISPATCH;
    EXPECT_CODE(OleCreateFontIndirect(&wanted, IID_IFontDisp, reinterpret_cast<void**>(&font.Value.pdispVal)), S_OK);
    return font;
}

std::wstring fontText(const std::wstring& name, double points) {
    return name + L", " + std::to_wstring(std::lround(points)) + L" points";
}

/// The system's font object names what it has found, which may be another font than was asked for.
std::wstring fontText(const Var& font) {
    Ref<IFont> object;
    EXPECT_CODE(font.Value.pdispVal->QueryInterface(IID_IFont, object.receiveVoid()), S_OK);
    BSTR name = nullptr;
    CY size{};
    EXPECT_CODE(object->get_Name(&name), S_OK);
    EXPECT_CODE(object->get_Size(&size), S_OK);
    return fontText(taken(name), static_cast<double>(size.int64) / 1e4);
}

std::wstring fontIn(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    HDC const screen = GetDC(nullptr);
    const double points = std::abs(font.lfHeight) * 72.0 / GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return fontText(font.lfFaceName, points);
}

/// The field's font once the form has said one of so many points, and what was said.
std::pair<std::wstring, std::wstring> fontsAfter(AmbientScene& scene, int points) {
    Var font = fontOf(L"Courier New", points);
    const std::wstring said = fontText(font);
    scene.host.say(DISPID_AMBIENT_FONT, std::move(font));
    return {fontIn(scene.part(L"Edit")), said};
}

}  // namespace

TEST(ambient_font_serves_where_the_run_time_object_has_none) {
    HostRuntime runtime;
    inAnotherApartment([&] {
        runtime.Default = create(L"KelRuntime8.Runtime");
        EXPECT_CODE(runtime.handOver(), S_OK);
        {
            AmbientScene scene(L"KelControls8.KelText");
            scene.open();
            const std::wstring own = fontIn(scene.part(L"Edit"));
            EXPECT_EQ(fontsAfter(scene, 12).first, own);
            for (const auto& [member, nothing] :
                 {std::pair(L"FieldFontName", L""), std::pair(L"FieldFontSize", L"0")}) {
                std::wstring name = member;
                wchar_t* names = name.data();
                DISPID id = DISPID_UNKNOWN;
                EXPECT_CODE(runtime.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
                runtime.Own.emplace(id, Var(nothing));
            }
            for (const int points : {15, 24}) {
                const auto [shown, said] = fontsAfter(scene, points);
                EXPECT_EQ(shown, said);
            }
        }
        runtime.Default.reset();
    });
}

TEST(ambient_looks_of_the_form) {
    AmbientScene scene(L"KelControls8.KelText");
    scene.open();
    constexpr COLORREF Ground = RGB(1, 2, 200);
    scene.host.say(DISPID_AMBIENT_BACKCOLOR, Var(static_cast<long>(Ground)));
    const auto pictured = [&] {
        Picture picture;
        const RECTL bounds{0, 0, 200, 20};
        EXPECT_CODE(scene.control.as<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                           picture.context(), &bounds, nullptr, nullptr, 0),
                    S_OK);
        return GetPixel(picture.context(), 0, 19);
    };
    EXPECT_EQ(pictured(), Ground);

    const auto leftOfField = [&] {
        RECT place{};
        GetWindowRect(scene.part(L"Edit"), &place);
        MapWindowPoints(nullptr, scene.host.window(), reinterpret_cast<POINT*>(&place), 2);
        return std::min(place.left, place.right);
    };
    EXPECT_EQ(leftOfField(), 110L);
    scene.host.say(DISPID_AMBIENT_RIGHTTOLEFT, truth(true));
    EXPECT_EQ(leftOfField(), 10L);
    scene.host.say(DISPID_AMBIENT_RIGHTTOLEFT, truth(false));
    EXPECT_EQ(leftOfField(), 110L);
    // What is left without a form looks as it did in the form.
    EXPECT_CODE(scene.control.as<IOleObject>()->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(pictured(), Ground);
}
