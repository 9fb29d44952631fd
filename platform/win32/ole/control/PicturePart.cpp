#include <algorithm>
#include <cstdlib>

#include "platform/win32/drawing/Canvas.h"
#include "platform/win32/ole/com/Enumerator.h"
#include "platform/win32/ole/control/ControlParts.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

FORMATETC copyFormat(const FORMATETC& format) { return format; }

FORMATETC pictureFormat(CLIPFORMAT format, DWORD medium) { return {format, nullptr, DVASPECT_CONTENT, -1, medium}; }

HRESULT checkFormat(const FORMATETC& format) {
    if (format.dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (format.lindex != -1) return DV_E_LINDEX;
    const bool enhanced = format.cfFormat == CF_ENHMETAFILE && (format.tymed & TYMED_ENHMF) != 0;
    const bool classic = format.cfFormat == CF_METAFILEPICT && (format.tymed & TYMED_MFPICT) != 0;
    return enhanced || classic ? S_OK : DV_E_FORMATETC;
}

void draw(OleControl& control, HDC context, const RECT& bounds, const RECT* metafile) {
    if (bounds.left == bounds.right || bounds.top == bounds.bottom) return;
    const ControlWindow& window = control.window();
    window.draw(PictureCanvas(context, bounds, metafile, control.extent().twips(), window.ground(), window.grid(),
                              window.mirrored()));
}

/// A host says its corner and its size.
RECT metafileArea(const RECTL& bounds) {
    return {bounds.left, bounds.top, bounds.left + bounds.right, bounds.top + bounds.bottom};
}

/// The whole picture in twips.
RECT pictureOf(const OleControl& control) {
    const Size size = control.extent().twips();
    return {0, 0, std::max(size.width, 1), std::max(size.height, 1)};
}

/// The frame is measured on the glass of the screen, whose inches are seldom those that it counts its dots by.
SIZE frameOf(HDC context, const SIZEL& himetric) {
    constexpr int HimetricPerMillimetre = 100;
    const auto pixels = [&](LONG length, int dots, int millimetres) {
        return MulDiv(static_cast<int>(length), GetDeviceCaps(context, dots),
                      std::max(GetDeviceCaps(context, millimetres), 1) * HimetricPerMillimetre);
    };
    return {pixels(himetric.cx, HORZRES, HORZSIZE), pixels(himetric.cy, VERTRES, VERTSIZE)};
}

/// The file of what is drawn into its context, which ends here in any case.
template <class File, class Paint>
File recorded(HDC context, File(WINAPI* close)(HDC), BOOL(WINAPI* remove)(File), Paint paint) {
    if (context == nullptr) throw std::bad_alloc();
    try {
        paint();
    } catch (...) {
        remove(close(context));
        throw;
    }
    File const file = close(context);
    if (file == nullptr) throw std::bad_alloc();
    return file;
}

HENHMETAFILE drawEnhanced(OleControl& control) {
    const SIZEL size = control.himetricExtent();
    const RECT frame{0, 0, size.cx, size.cy};
    HDC const context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    return recorded(context, &CloseEnhMetaFile, &DeleteEnhMetaFile, [&] {
        const RECT picture = pictureOf(control);
        const SIZE pixels = frameOf(context, size);
        SetMapMode(context, MM_ANISOTROPIC);
        SetWindowExtEx(context, picture.right, picture.bottom, nullptr);
        SetViewportExtEx(context, pixels.cx, pixels.cy, nullptr);
        draw(control, context, picture, nullptr);
    });
}

HGLOBAL drawClassic(OleControl& control) {
    HDC const context = CreateMetaFileW(nullptr);
    HMETAFILE const picture = recorded(context, &CloseMetaFile, &DeleteMetaFile, [&] {
        const RECT area = pictureOf(control);
        SetMapMode(context, MM_ANISOTROPIC);
        // Readers look for these in front of all else.
        SetWindowOrgEx(context, 0, 0, nullptr);
        SetWindowExtEx(context, area.right, area.bottom, nullptr);
        draw(control, context, area, nullptr);
    });
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
    auto* const described = static_cast<METAFILEPICT*>(memory != nullptr ? GlobalLock(memory) : nullptr);
    if (described == nullptr) {
        GlobalFree(memory);
        DeleteMetaFile(picture);
        throw std::bad_alloc();
    }
    const SIZEL size = control.himetricExtent();
    *described = {MM_ANISOTROPIC, size.cx, size.cy, picture};
    GlobalUnlock(memory);
    return memory;
}

class PicturePart final : public ControlPart<IViewObjectEx, IDataObject> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override {
        return asOneOf<IViewObject, IViewObject2, IViewObjectEx, IDataObject>(iid, *this);
    }

    // ---- IViewObject2

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* /*aspectInfo*/, DVTARGETDEVICE* /*device*/,
                                   HDC /*deviceContext*/, HDC context, LPCRECTL bounds, LPCRECTL metafileBounds,
                                   BOOL(STDMETHODCALLTYPE* /*goOn*/)(ULONG_PTR),
                                   ULONG_PTR /*token*/) noexcept override {
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        if (index != -1) return DV_E_LINDEX;
        if (context == nullptr || bounds == nullptr) return E_INVALIDARG;
        return guarded([&] {
            const RECT whole = metafileBounds != nullptr ? metafileArea(*metafileBounds) : RECT{};
            draw(Control_, context, {bounds->left, bounds->top, bounds->right, bounds->bottom},
                 metafileBounds != nullptr ? &whole : nullptr);
        });
    }
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/,
                                          DVTARGETDEVICE* /*device*/, HDC /*deviceContext*/,
                                          LOGPALETTE** colors) noexcept override {
        if (colors != nullptr) *colors = nullptr;
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/,
                                     DWORD* /*token*/) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD /*token*/) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override {
        return guarded([&] { Control_.viewer().set(sink, aspects, flags); });
    }
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override {
        Control_.viewer().get(sink, aspects, flags);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* /*device*/,
                                        LPSIZEL size) noexcept override {
        if (size == nullptr) return E_POINTER;
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        if (index != -1) return DV_E_LINDEX;
        *size = Control_.himetricExtent();
        return S_OK;
    }

    // ---- IViewObjectEx: the whole rectangle is painted, nothing shows through, and it is one colour around the
    // widgets

    HRESULT STDMETHODCALLTYPE GetRect(DWORD aspect, LPRECTL area) noexcept override {
        if (area == nullptr) return E_POINTER;
        *area = {};
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        const SIZEL size = Control_.himetricExtent();
        *area = {0, 0, size.cx, size.cy};
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetViewStatus(DWORD* status) noexcept override {
        if (status == nullptr) return E_POINTER;
        *status = ViewStatus;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT place, LONG /*closeHint*/,
                                            DWORD* hit) noexcept override {
        const RECT point{place.x, place.y, place.x + 1, place.y + 1};
        return QueryHitRect(aspect, bounds, &point, 0, hit);
    }
    HRESULT STDMETHODCALLTYPE QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT area, LONG /*closeHint*/,
                                           DWORD* hit) noexcept override {
        if (bounds == nullptr || area == nullptr || hit == nullptr) return E_POINTER;
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        RECT both{};
        *hit = IntersectRect(&both, bounds, area) != FALSE ? HITRESULT_HIT : HITRESULT_OUTSIDE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, HDC /*deviceContext*/,
                                               DVEXTENTINFO* wanted, LPSIZEL size) noexcept override {
        if (wanted == nullptr || size == nullptr) return E_POINTER;
        *size = {};
        // Any size can be had: there is none to snap to.
        if (wanted->dwExtentMode != DVEXTENT_CONTENT) return E_NOTIMPL;
        return GetExtent(aspect, index, device, size);
    }

    // ---- IDataObject, for hosts that keep the picture: as a metafile, classic or enhanced

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override {
        if (format == nullptr || medium == nullptr) return E_POINTER;
        *medium = {};
        const HRESULT known = checkFormat(*format);
        if (FAILED(known)) return known;
        return guarded([&] {
            if (format->cfFormat == CF_ENHMETAFILE) {
                medium->hEnhMetaFile = drawEnhanced(Control_);
                medium->tymed = TYMED_ENHMF;
            } else {
                medium->hMetaFilePict = drawClassic(Control_);
                medium->tymed = TYMED_MFPICT;
            }
        });
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) noexcept override {
        return format != nullptr ? checkFormat(*format) : E_POINTER;
    }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) noexcept override {
        if (in == nullptr || out == nullptr) return E_POINTER;
        *out = *in;
        out->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* /*format*/, STGMEDIUM* /*medium*/,
                                      BOOL /*release*/) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) noexcept override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        if (direction != DATADIR_GET) return E_NOTIMPL;
        return guarded([&] {
            *out = new Enumerator<IEnumFORMATETC, FORMATETC, FORMATETC, &copyFormat>(
                module(),
                std::make_shared<std::vector<FORMATETC>>(std::vector<FORMATETC>{
                    pictureFormat(CF_ENHMETAFILE, TYMED_ENHMF), pictureFormat(CF_METAFILEPICT, TYMED_MFPICT)}));
        });
    }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* /*format*/, DWORD /*flags*/, IAdviseSink* /*sink*/,
                                      DWORD* cookie) noexcept override {
        if (cookie != nullptr) *cookie = 0;
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD /*cookie*/) noexcept override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** out) noexcept override {
        if (out != nullptr) *out = nullptr;
        return OLE_E_ADVISENOTSUPPORTED;
    }
};

}  // namespace

std::unique_ptr<ControlInterfaces> makePicturePart(OleControl& control) {
    return std::make_unique<PicturePart>(control);
}

}  // namespace kel::win32::ole
