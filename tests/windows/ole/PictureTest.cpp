// The picture of a control: on paper, in a zoomed view, in a metafile, as on the screen.
//
// With a folder in KEL_PICTURES the pictures are kept there, to be looked at.

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
#include "tests/windows/widgets/Picture.h"

using namespace kel::tests;

namespace {

constexpr DWORD Paper = 0xABCDEF;
constexpr DWORD Ground = 0xFFF0F0;  ///< of a locked field

/// Ink, also where the edge of a letter only half covers a pixel.
bool isDark(DWORD color) { return (color & 0xFFU) < 0x90; }

/// The control's own size: 240 by 20 pixels.
constexpr SIZEL FieldSize{6350, 529};

void paint(Picture& picture, const RECT& area, DWORD color) {
    HBRUSH const brush = CreateSolidBrush(RGB(color >> 16, (color >> 8) & 0xFF, color & 0xFF));
    FillRect(picture.context(), &area, brush);
    DeleteObject(brush);
}

void keep(Picture& picture, const std::string& name) {
    const char* const folder = std::getenv("KEL_PICTURES");
    if (folder == nullptr) return;
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = picture.width();
    info.biHeight = -picture.height();
    info.biPlanes = 1;
    info.biBitCount = 32;
    std::vector<DWORD> pixels = picture.all(picture.width(), picture.height());
    for (DWORD& pixel : pixels) pixel |= 0xFF000000U;  // windows leave anything there
    const auto bytes = static_cast<DWORD>(pixels.size() * sizeof(DWORD));
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    file.bfSize = file.bfOffBits + bytes;
    std::ofstream out(std::string(folder) + "\\" + name + ".bmp", std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    out.write(reinterpret_cast<const char*>(pixels.data()), bytes);
}

HRESULT draw(IUnknown* control, HDC context, const RECTL& bounds, const RECTL* metafile = nullptr) {
    Ref<IViewObjectEx> view;
    EXPECT_CODE(control->QueryInterface(__uuidof(IViewObjectEx), view.receiveVoid()), S_OK);
    return view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds, metafile, nullptr, 0);
}

STGMEDIUM dataOf(IUnknown* control, CLIPFORMAT kind, DWORD medium) {
    Ref<IDataObject> data;
    EXPECT_CODE(control->QueryInterface(IID_IDataObject, data.receiveVoid()), S_OK);
    FORMATETC format{kind, nullptr, DVASPECT_CONTENT, -1, medium};
    STGMEDIUM given{};
    EXPECT_CODE(data->GetData(&format, &given), S_OK);
    return given;
}

/// As a page shows a picture that it keeps.
void play(HDC context, const RECT& area, HENHMETAFILE picture) { PlayEnhMetaFile(context, picture, &area); }

void play(HDC context, const RECT& area, HMETAFILE picture) {
    const int saved = SaveDC(context);
    SetMapMode(context, MM_ANISOTROPIC);
    SetViewportOrgEx(context, area.left, area.top, nullptr);
    SetViewportExtEx(context, area.right - area.left, area.bottom - area.top, nullptr);
    PlayMetaFile(context, picture);
    RestoreDC(context, saved);
}

void playEnhanced(IUnknown* control, HDC context, const RECT& area) {
    STGMEDIUM medium = dataOf(control, CF_ENHMETAFILE, TYMED_ENHMF);
    play(context, area, medium.hEnhMetaFile);
    ReleaseStgMedium(&medium);
}

void playClassic(IUnknown* control, HDC context, const RECT& area) {
    STGMEDIUM medium = dataOf(control, CF_METAFILEPICT, TYMED_MFPICT);
    const auto* const described = static_cast<METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
    EXPECT_EQ(described->mm, LONG{MM_ANISOTROPIC});
    EXPECT_EQ(described->xExt, FieldSize.cx);
    play(context, area, described->hMF);
    GlobalUnlock(medium.hMetaFilePict);
    ReleaseStgMedium(&medium);
}

/// Everything that a host may have set and find again.
struct ContextState {
    explicit ContextState(HDC context) {
        GetWindowOrgEx(context, &points[0]);
        GetViewportOrgEx(context, &points[1]);
        GetWindowExtEx(context, &sizes[0]);
        GetViewportExtEx(context, &sizes[1]);
        GetWorldTransform(context, &world);
        GetClipBox(context, &clip);
        numbers[0] = GetMapMode(context);
        numbers[1] = GetGraphicsMode(context);
        numbers[2] = static_cast<int>(GetTextColor(context));
        numbers[3] = static_cast<int>(GetBkColor(context));
        numbers[4] = GetBkMode(context);
        numbers[5] = static_cast<int>(GetTextAlign(context));
        objects[0] = GetCurrentObject(context, OBJ_FONT);
        objects[1] = GetCurrentObject(context, OBJ_BRUSH);
        objects[2] = GetCurrentObject(context, OBJ_PEN);
    }
    bool operator==(const ContextState& other) const { return std::memcmp(this, &other, sizeof other) == 0; }

    POINT points[2]{};
    SIZE sizes[2]{};
    XFORM world{};
    RECT clip{};
    int numbers[6]{};
    HGDIOBJ objects[3]{};
};

/// A place where the control is drawn, as tall and wide there as it is.
struct Place {
    const char* name;
    RECT area;  ///< pixels of the device
    void (*show)(IUnknown* control, HDC context, const RECT& area);
};

RECTL logical(HDC context, const RECT& area) {
    POINT corners[] = {{area.left, area.top}, {area.right, area.bottom}};
    DPtoLP(context, corners, 2);
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

/// Draws by coordinates of the context as it is set.
void drawHere(IUnknown* control, HDC context, const RECT& area) {
    const ContextState before(context);
    EXPECT_CODE(draw(control, context, logical(context, area)), S_OK);
    EXPECT(ContextState(context) == before);
}

constexpr Place Places[] = {
    {"screen",
     {10, 10, 250, 30},
     [](IUnknown* control, HDC context, const RECT& area) { drawHere(control, context, area); }},
    {"page",
     {62, 62, 1562, 187},
     [](IUnknown* control, HDC context, const RECT& area) { drawHere(control, context, area); }},
    {"upwards",
     {40, 40, 280, 60},
     [](IUnknown* control, HDC context, const RECT& area) {
         SetMapMode(context, MM_HIMETRIC);
         drawHere(control, context, area);
     }},
    {"zoomed",
     {20, 20, 620, 70},
     [](IUnknown* control, HDC context, const RECT& area) {
         SetMapMode(context, MM_ANISOTROPIC);
         SetWindowExtEx(context, 100, 100, nullptr);
         SetViewportExtEx(context, 250, 250, nullptr);
         SetTextAlign(context, TA_RIGHT | TA_BASELINE);
         drawHere(control, context, area);
     }},
    {"transformed",
     {30, 30, 510, 70},
     [](IUnknown* control, HDC context, const RECT& area) {
         SetGraphicsMode(context, GM_ADVANCED);
         const XFORM twice{2, 0, 0, 2, 10, 10};
         SetWorldTransform(context, &twice);
         drawHere(control, context, area);
     }},
    {"stretched",
     {10, 10, 730, 30},
     [](IUnknown* control, HDC context, const RECT& area) { drawHere(control, context, area); }},
    {"enhanced", {62, 62, 1562, 187}, &playEnhanced},
    {"classic", {62, 62, 1562, 187}, &playClassic},
    {"enhanced on the screen", {10, 10, 250, 30}, &playEnhanced},
    {"classic on the screen", {10, 10, 250, 30}, &playClassic},
    {"in the host's enhanced",
     {100, 50, 340, 70},
     [](IUnknown* control, HDC context, const RECT& area) {
         // The page's frame, in hundredths of a millimetre.
         const RECT frame{0, 0, MulDiv(400 * 100, GetDeviceCaps(context, HORZSIZE), GetDeviceCaps(context, HORZRES)),
                          MulDiv(100 * 100, GetDeviceCaps(context, VERTSIZE), GetDeviceCaps(context, VERTRES))};
         HDC const metafile = CreateEnhMetaFileW(context, nullptr, &frame, nullptr);
         EXPECT_CODE(draw(control, metafile, {area.left, area.top, area.right, area.bottom}), S_OK);
         HENHMETAFILE const picture = CloseEnhMetaFile(metafile);
         play(context, {0, 0, 400, 100}, picture);
         DeleteEnhMetaFile(picture);
     }},
    {"in the host's classic",
     {200, 100, 680, 140},
     [](IUnknown* control, HDC context, const RECT& area) {
         HDC const metafile = CreateMetaFileW(nullptr);
         SetMapMode(metafile, MM_ANISOTROPIC);
         SetWindowOrgEx(metafile, -5, 0, nullptr);
         SetWindowExtEx(metafile, 400, -100, nullptr);
         const RECTL whole{-5, 0, 400, -100};
         EXPECT_CODE(draw(control, metafile, {95, -50, 335, -70}, &whole), S_OK);
         HMETAFILE const picture = CloseMetaFile(metafile);
         EXPECT_EQ(area.left, 200L);
         play(context, {0, 0, 800, 200}, picture);
         DeleteMetaFile(picture);
     }},
};

Ref<_KelText> lockedField() {
    const auto field = makeText();
    SIZEL size = FieldSize;
    EXPECT_CODE(field.as<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    Bag bag;
    bag.Texts = {{L"Caption", L"&Name"}, {L"CaptionWidth", L"1200"}, {L"Locked", L"True"}};
    EXPECT_CODE(load(field.get(), bag), S_OK);
    EXPECT_CODE(field->put_Text(Str(L"Hamburgefonts 123")), S_OK);
    return field;
}

/// What is where in the picture, as parts of its width and height.
struct Parts {
    Parts(Picture& picture, const RECT& area) {
        const double width = area.right - area.left;
        const double height = area.bottom - area.top;
        const RECT ground = picture.around(area, [](DWORD color) { return color == Ground; });
        const RECT text = picture.around(ground, &isDark);
        left = (ground.left - area.left) / width;
        right = (ground.right - area.left) / width;
        top = (ground.top - area.top) / height;
        bottom = (ground.bottom - area.top) / height;
        textLeft = (text.left - area.left) / width;
        textRight = (text.right - area.left) / width;
        textTop = (text.top - area.top) / height;
        textBottom = (text.bottom - area.top) / height;
    }

    /// A pixel of the screen makes none, nor do letters that are another shape in another size.
    std::string differenceFrom(const Parts& wanted) const {
        const struct {
            const char* what;
            double is, wanted, by;
        } rows[] = {{"left", left, wanted.left, 0.006},
                    {"right", right, wanted.right, 0.006},
                    {"top", top, wanted.top, 0.06},
                    {"bottom", bottom, wanted.bottom, 0.06},
                    {"text from", textLeft, wanted.textLeft, 0.01},
                    {"text to", textRight, wanted.textRight, 0.05},
                    {"text top", textTop, wanted.textTop, 0.08},
                    {"text foot", textBottom, wanted.textBottom, 0.08}};
        std::string found;
        for (const auto& row : rows)
            if (std::abs(row.is - row.wanted) > row.by)
                found +=
                    std::string(row.what) + " " + std::to_string(row.is) + " for " + std::to_string(row.wanted) + "; ";
        return found;
    }

    double left, right, top, bottom, textLeft, textRight, textTop, textBottom;
};

std::string outside(Picture& picture, const RECT& area) {
    GdiFlush();
    for (int row = 0; row < picture.height(); ++row)
        for (int column = 0; column < picture.width(); ++column) {
            const bool inside = PtInRect(&area, {column, row}) != FALSE;
            if (inside == (picture.at(column, row) == Paper))
                return std::string(inside ? "left out " : "painted ") + std::to_string(column) + "," +
                       std::to_string(row) + "; ";
        }
    return {};
}

/// Colours that are no letter's edge: more of them than a letter has.
std::set<DWORD> fillsOf(Picture& picture, const RECT& area) {
    std::map<DWORD, int> counts;
    picture.around(area, [&counts](DWORD color) { return ++counts[color] < 0; });
    std::set<DWORD> fills;
    for (const auto& [color, count] : counts)
        if (count > 30) fills.insert(color);
    return fills;
}

}  // namespace

TEST(picture_fills_its_rectangle_wherever_it_is_drawn) {
    const auto field = lockedField();
    std::optional<Parts> wanted;
    std::string wrong;
    for (const Place& place : Places) {
        Picture picture(static_cast<int>(place.area.right + 60), static_cast<int>(place.area.bottom + 40));
        paint(picture, {0, 0, picture.width(), picture.height()}, Paper);
        const int saved = SaveDC(picture.context());
        place.show(field.get(), picture.context(), place.area);
        RestoreDC(picture.context(), saved);
        keep(picture, place.name);
        const Parts parts(picture, place.area);
        if (!wanted) wanted = parts;
        const std::string found = outside(picture, place.area) + parts.differenceFrom(*wanted);
        if (!found.empty()) wrong += std::string(place.name) + ": " + found;
    }
    if (!wrong.empty()) fail(__FILE__, __LINE__, wrong);
    EXPECT(wanted->left > 0.33 && wanted->right > 0.98 && wanted->textRight > wanted->textLeft + 0.2);
}

TEST(picture_is_what_the_window_shows) {
    // Of buttons the system has its own pictures.
    const struct {
        const wchar_t* program;
        std::map<std::wstring, std::wstring, NameOrder> texts;
        int height, from, to;
    } rows[] = {{L"KelControls8.KelText", {{L"Text", L"Hamburgefonts 123"}}, 20, 10, 250},
                {L"KelControls8.KelText",
                 {{L"MultiLine", L"True"}, {L"Text", L"As many lines\r\nas there are in\r\nthe field\r\nand more"}},
                 50,
                 10,
                 230},
                {L"KelControls8.KelNumber", {{L"Value", L"-1234.5"}, {L"UpDown", L"True"}}, 20, 10, 232},
                {L"KelControls8.KelCombo", {{L"List", L"Hamburg,Aachen"}, {L"Text", L"Hamburg"}}, 20, 10, 230},
                {L"KelControls8.KelCheck", {{L"Value", L"1"}}, 20, 24, 250}};
    int number = 0;
    std::string wrong;
    for (int i = 0; i < 2 * static_cast<int>(std::size(rows)); ++i) {
        const auto& row = rows[i / 2];
        const bool mirrored = i % 2 != 0;
        Host host;
        host.Bounds = {10, 10, 250, 10 + row.height};
        const auto control = host.place(create(row.program));
        Var fromRight;
        fromRight.Value.vt = VT_BOOL;
        fromRight.Value.boolVal = mirrored ? VARIANT_TRUE : VARIANT_FALSE;
        host.say(DISPID_AMBIENT_RIGHTTOLEFT, std::move(fromRight));
        SIZEL size{FieldSize.cx, MulDiv(row.height, 2540, 96)};
        EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
        Bag bag;
        bag.Texts = row.texts;
        bag.Texts[L"Caption"] = L"&Caption";
        bag.Texts[L"CaptionWidth"] = L"1200";
        EXPECT_CODE(load(control.get(), bag), S_OK);
        EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
        settle();
        RedrawWindow(host.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        GdiFlush();
        Picture shown, drawn, page(1700, 450);
        HDC const window = GetDC(host.window());
        BitBlt(shown.context(), 0, 0, Picture::Width, Picture::Height, window, 0, 0, SRCCOPY);
        ReleaseDC(host.window(), window);
        BitBlt(drawn.context(), 0, 0, Picture::Width, Picture::Height, shown.context(), 0, 0, SRCCOPY);
        PatBlt(drawn.context(), 10, 10, 240, row.height, BLACKNESS);
        EXPECT_CODE(draw(control.get(), drawn.context(), {10, 10, 250, 10 + row.height}), S_OK);
        EXPECT_CODE(draw(control.get(), page.context(), {62, 62, 1562, 62 + row.height * 25 / 4}), S_OK);
        const std::string title = "beside " + std::to_string(number++);
        keep(shown, title + " window");
        keep(drawn, title + " picture");
        keep(page, title + " page");
        // Systems differ in how fields in a mirrored window order their texts.
        const int from = mirrored ? 170 : row.from;
        const int to = mirrored ? 260 - row.from : row.to;
        int differ = 0;
        for (int y = 10; y < 10 + row.height; ++y)
            for (int x = from; x < to; ++x) differ += shown.at(x, y) != drawn.at(x, y) ? 1 : 0;
        if (differ != 0) wrong += title + ": " + std::to_string(differ) + " pixels differ; ";
    }
    if (!wrong.empty()) fail(__FILE__, __LINE__, wrong);
}

/// The letter that stands first in a line that begins at the right is the last of a Latin word, and the first of a
/// Hebrew one.
TEST(picture_underlines_the_letter_of_the_mnemonic) {
    constexpr RECT Area{10, 10, 250, 30};
    const struct {
        const wchar_t* caption;
        bool mirrored;
        double from, to;  // of the width of the caption
    } rows[] = {{L"&Wiiiii", false, 0, 0.5},
                {L"&Wiiiii", true, 0, 0.5},
                {L"iiiii&W", true, 0.5, 1},
                {L"&\u05E9\u05D5\u05D5\u05D5\u05D5", true, 0.5, 1},
                {L"&\u05E9\u05D5\u05D5\u05D5\u05D5", false, 0.5, 1},
                {L"\u05D5\u05D5\u05D5\u05D5&\u05E9", true, 0, 0.5}};
    std::string wrong;
    for (const auto& row : rows) {
        Picture unmarked, marked;
        for (Picture* const each : {&unmarked, &marked}) {
            std::wstring caption = row.caption;
            if (each == &unmarked) std::erase(caption, L'&');
            Host host;
            const auto control = host.place(create(L"KelControls8.KelText"));
            Var fromRight;
            fromRight.Value.vt = VT_BOOL;
            fromRight.Value.boolVal = row.mirrored ? VARIANT_TRUE : VARIANT_FALSE;
            host.say(DISPID_AMBIENT_RIGHTTOLEFT, std::move(fromRight));
            SIZEL size = FieldSize;
            EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
            Bag bag;
            bag.Texts = {{L"Caption", caption}, {L"CaptionWidth", L"1200"}};
            EXPECT_CODE(load(control.get(), bag), S_OK);
            EXPECT_CODE(draw(control.get(), each->context(), {Area.left, Area.top, Area.right, Area.bottom}), S_OK);
        }
        const int from = row.mirrored ? 172 : 10;
        const int to = from + 78;
        const DWORD ground = unmarked.at(row.mirrored ? from : to, Area.top);
        int left = to, right = from, lineFrom = to, lineTo = from;
        for (int y = Area.top; y < Area.bottom; ++y)
            for (int x = from; x < to; ++x) {
                if (unmarked.at(x, y) != ground) left = std::min(left, x), right = std::max(right, x + 1);
                if (marked.at(x, y) != unmarked.at(x, y))
                    lineFrom = std::min(lineFrom, x), lineTo = std::max(lineTo, x + 1);
            }
        const int title = static_cast<int>(&row - rows);
        keep(marked, "mnemonic " + std::to_string(title));
        const double width = right - left;
        if (lineFrom >= lineTo || lineFrom < left + width * row.from - 2 || lineTo > left + width * row.to + 2)
            wrong += std::to_string(title) + ": text " + std::to_string(left) + " to " + std::to_string(right) +
                     ", line " + std::to_string(lineFrom) + " to " + std::to_string(lineTo) + "; ";
    }
    if (!wrong.empty()) fail(__FILE__, __LINE__, wrong);
}

/// The changeable brush of a context has no colour in a metafile: all its fills came out white there.
TEST(picture_keeps_every_colour_in_a_metafile) {
    constexpr RECT Area{10, 10, 250, 30};
    for (const wchar_t* const name :
         {L"KelText", L"KelNumber", L"KelDate", L"KelTime", L"KelCombo", L"KelCheck", L"KelProgressBar"}) {
        for (const bool enabled : {true, false}) {
            const auto control = create((std::wstring(L"KelControls8.") + name).c_str());
            SIZEL size = FieldSize;
            EXPECT_CODE(control.as<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
            Bag bag;
            bag.Texts = {{L"Caption", L"&Caption"},
                         {L"CaptionWidth", L"1200"},
                         {L"UpDown", L"True"},
                         {L"Value", L"1"},
                         {L"Locked", L"False"}};
            EXPECT_CODE(load(control.get(), bag), S_OK);
            if (invoke(control.get(), L"Start", DISPATCH_METHOD, {}) == S_OK)
                EXPECT_CODE(put(control.get(), L"Value", number(40)), S_OK);
            VARIANT yes = plain(VT_BOOL);
            yes.boolVal = enabled ? VARIANT_TRUE : VARIANT_FALSE;
            EXPECT_CODE(put(control.get(), L"Enabled", yes), S_OK);
            Picture screen, enhanced, classic, page(1700, 300);
            EXPECT_CODE(draw(control.get(), screen.context(), {Area.left, Area.top, Area.right, Area.bottom}), S_OK);
            EXPECT_CODE(draw(control.get(), page.context(), {62, 62, 1562, 187}), S_OK);
            playEnhanced(control.get(), enhanced.context(), Area);
            playClassic(control.get(), classic.context(), Area);
            std::string title(name, name + std::wcslen(name));
            if (!enabled) title += " disabled";
            Picture* const all[] = {&screen, &page, &enhanced, &classic};
            const char* const kinds[] = {" screen", " page", " enhanced", " classic"};
            for (int i = 0; i < 4; ++i) keep(*all[i], title + kinds[i]);
            for (const DWORD color : fillsOf(screen, Area))
                for (Picture* const other : {&enhanced, &classic, &page})
                    if (other->count(color, 0, other->width()) < 8)
                        fail(__FILE__, __LINE__, title + " lacks colour " + std::to_string(color));
        }
    }
}

TEST(picture_says_what_there_is_of_it) {
    const auto field = lockedField();
    const auto view = field.as<IViewObjectEx>();
    Picture picture;
    const RECTL bounds{0, 0, 200, 40};
    EXPECT_CODE(
        view->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, picture.context(), &bounds, nullptr, nullptr, 0),
        DV_E_DVASPECT);
    EXPECT_CODE(draw(field.get(), picture.context(), {5, 5, 5, 25}), S_OK);
    EXPECT_EQ(picture.count(0xFFFFFF, 0, Picture::Width), Picture::Width * Picture::Height);
    FORMATETC format{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    EXPECT_CODE(field.as<IDataObject>()->QueryGetData(&format), DV_E_FORMATETC);

    DWORD found = 0;
    EXPECT_CODE(view->GetViewStatus(&found), S_OK);
    EXPECT_EQ(found, DWORD{VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND});
    RECTL whole{};
    EXPECT_CODE(view->GetRect(DVASPECT_CONTENT, &whole), S_OK);
    EXPECT_EQ(whole.right, FieldSize.cx);
    EXPECT_EQ(whole.bottom, FieldSize.cy);
    EXPECT_CODE(view->GetRect(DVASPECT_TRANSPARENT, &whole), DV_E_DVASPECT);
    const RECT shown{10, 10, 250, 30};
    const struct {
        RECT area;
        DWORD hit;
    } hits[] = {{{10, 10, 11, 11}, HITRESULT_HIT},
                {{249, 29, 250, 30}, HITRESULT_HIT},
                {{250, 20, 251, 21}, HITRESULT_OUTSIDE},
                {{0, 0, 300, 11}, HITRESULT_HIT}};
    for (const auto& row : hits) {
        EXPECT_CODE(view->QueryHitRect(DVASPECT_CONTENT, &shown, &row.area, 0, &found), S_OK);
        EXPECT_EQ(found, row.hit);
        if (row.area.right - row.area.left > 1) continue;
        EXPECT_CODE(view->QueryHitPoint(DVASPECT_CONTENT, &shown, {row.area.left, row.area.top}, 0, &found), S_OK);
        EXPECT_EQ(found, row.hit);
    }
    DVEXTENTINFO wanted{sizeof wanted, DVEXTENT_CONTENT, {1, 1}};
    SIZEL natural{};
    EXPECT_CODE(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &wanted, &natural), S_OK);
    EXPECT_EQ(natural.cx, FieldSize.cx);
    wanted.dwExtentMode = DVEXTENT_INTEGRAL;
    EXPECT_CODE(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &wanted, &natural), E_NOTIMPL);
}
