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

/// The area of the picture: the control in its own size.
RECT areaOf(const OleControl& control) {
    const Size size = control.extent();
    return control.grid().pixels({0, 0, size.width, size.height});
}

HENHMETAFILE drawEnhanced(OleControl& control) {
    const SIZEL size = control.himetricExtent();
    const RECT frame{0, 0, size.cx, size.cy};
    HDC context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    if (context == nullptr) throw std::bad_alloc();
    control.window().draw(context, areaOf(control));
    return CloseEnhMetaFile(context);
}

HGLOBAL drawClassic(OleControl& control) {
    HDC context = CreateMetaFileW(nullptr);
    if (context == nullptr) throw std::bad_alloc();
    const RECT area = areaOf(control);
    SetMapMode(context, MM_ANISOTROPIC);
    SetWindowOrgEx(context, 0, 0, nullptr);
    SetWindowExtEx(context, area.right, area.bottom, nullptr);
    control.window().draw(context, area);
    HMETAFILE picture = CloseMetaFile(context);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
    auto* const described = static_cast<METAFILEPICT*>(memory != nullptr ? GlobalLock(memory) : nullptr);
    if (described == nullptr) {
        DeleteMetaFile(picture);
        throw std::bad_alloc();
    }
    const SIZEL size = control.himetricExtent();
    *described = {MM_ANISOTROPIC, size.cx, size.cy, picture};
    GlobalUnlock(memory);
    return memory;
}

class PicturePart final : public ControlPart<IViewObject2, IDataObject> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override { return asOneOf<IViewObject, IViewObject2, IDataObject>(iid, *this); }

    // ---- IViewObject2

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* /*aspectInfo*/, DVTARGETDEVICE* /*device*/,
                                   HDC /*deviceContext*/, HDC context, LPCRECTL bounds, LPCRECTL /*metafileBounds*/,
                                   BOOL(STDMETHODCALLTYPE* /*goOn*/)(ULONG_PTR),
                                   ULONG_PTR /*token*/) noexcept override {
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        if (index != -1) return DV_E_LINDEX;
        if (context == nullptr || bounds == nullptr) return E_INVALIDARG;
        return guarded([&] {
            Control_.window().draw(context, {bounds->left, bounds->top, bounds->right, bounds->bottom});
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
