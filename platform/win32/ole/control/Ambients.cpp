#include "platform/win32/ole/control/Ambients.h"

namespace kel::win32::ole {

namespace {

bool isTrue(const ClientSite& site, DISPID id, bool otherwise) {
    OwnedVariant value;
    return site.ambient(id, VT_BOOL, value) ? value->boolVal != VARIANT_FALSE : otherwise;
}

/// Container's colours are the library's but for those of a palette.
Color colorFrom(std::uint32_t given) {
    COLORREF plain = given;
    const bool isPlain = (given & 0xFF000000U) == 0 || (given & 0xFF000000U) == 0x80000000U;
    return isPlain || FAILED(OleTranslateColor(given, nullptr, &plain)) ? given : plain & 0xFFFFFFU;
}

FontFace fontFrom(IUnknown* object) {
    FontFace face;
    const auto font = ComPtr<IFont>::of(object);
    OwnedVariant name;
    CY size{};
    if (!font || FAILED(font->get_Name(&name->bstrVal)) || FAILED(font->get_Size(&size))) return face;
    name->vt = VT_BSTR;
    constexpr double UnitsPerPoint = 10000;
    face.name = textOf(name->bstrVal);
    face.size = static_cast<double>(size.int64) / UnitsPerPoint;
    return face;
}

}  // namespace

Ambients readAmbients(const ClientSite& site) {
    Ambients found;
    found.userMode = isTrue(site, DISPID_AMBIENT_USERMODE, found.userMode);
    found.uiDead = isTrue(site, DISPID_AMBIENT_UIDEAD, found.uiDead);
    found.rightToLeft = isTrue(site, DISPID_AMBIENT_RIGHTTOLEFT, found.rightToLeft);
    OwnedVariant locale;
    if (site.ambient(DISPID_AMBIENT_LOCALEID, VT_I4, locale)) found.locale = static_cast<LCID>(locale->lVal);
    OwnedVariant ground;
    if (site.ambient(DISPID_AMBIENT_BACKCOLOR, VT_I4, ground))
        found.ground = colorFrom(static_cast<std::uint32_t>(ground->lVal));
    OwnedVariant font;
    if (site.ambient(DISPID_AMBIENT_FONT, VT_UNKNOWN, font)) found.font = fontFrom(font->punkVal);
    return found;
}

}  // namespace kel::win32::ole
