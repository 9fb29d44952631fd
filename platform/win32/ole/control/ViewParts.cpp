#include "platform/win32/ole/control/ViewParts.h"

#include "platform/win32/ole/com/Enumerator.h"
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

}  // namespace

// ---- ViewPart

ViewPart::ViewPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT ViewPart::Draw(DWORD aspect, LONG index, void* /*aspectInfo*/, DVTARGETDEVICE* /*device*/,
                       HDC /*deviceContext*/, HDC context, LPCRECTL bounds, LPCRECTL /*metafileBounds*/,
                       BOOL(STDMETHODCALLTYPE* /*goOn*/)(ULONG_PTR), ULONG_PTR /*token*/) noexcept {
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (index != -1) return DV_E_LINDEX;
    if (context == nullptr || bounds == nullptr) return E_INVALIDARG;
    return guarded([&] {
        Control_.window().draw(context, {bounds->left, bounds->top, bounds->right, bounds->bottom});
        return S_OK;
    });
}

HRESULT ViewPart::GetColorSet(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/, DVTARGETDEVICE* /*device*/,
                              HDC /*deviceContext*/, LOGPALETTE** colors) noexcept {
    if (colors != nullptr) *colors = nullptr;
    return S_FALSE;
}

HRESULT ViewPart::Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/, DWORD* /*token*/) noexcept {
    return E_NOTIMPL;
}

HRESULT ViewPart::Unfreeze(DWORD /*token*/) noexcept { return E_NOTIMPL; }

HRESULT ViewPart::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept {
    return guarded([&] {
        Sink_ = ComPtr<IAdviseSink>(sink);
        Aspects_ = aspects;
        Flags_ = flags;
        if (sink != nullptr && (flags & ADVF_PRIMEFIRST) != 0) outOfDate();
        return S_OK;
    });
}

HRESULT ViewPart::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept {
    if (aspects != nullptr) *aspects = Aspects_;
    if (flags != nullptr) *flags = Flags_;
    if (sink != nullptr) *sink = ComPtr<IAdviseSink>(Sink_).detach();
    return S_OK;
}

HRESULT ViewPart::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* /*device*/, LPSIZEL size) noexcept {
    if (size == nullptr) return E_POINTER;
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (index != -1) return DV_E_LINDEX;
    *size = Control_.himetricExtent();
    return S_OK;
}

void ViewPart::outOfDate() {
    const ComPtr<IAdviseSink> sink = Sink_;
    if (!sink) return;
    if ((Flags_ & ADVF_ONLYONCE) != 0) Sink_ = {};
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

// ---- DataPart

DataPart::DataPart(OleControl& control) : Part(control), Control_(control) {}

HENHMETAFILE DataPart::drawEnhanced() {
    const SIZEL size = Control_.himetricExtent();
    const RECT frame{0, 0, size.cx, size.cy};
    HDC context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    if (context == nullptr) throw std::bad_alloc();
    const SIZE pixels = toPixels(Control_.extent(), TwipScale(Control_.library().system().twipsPerPixel()));
    Control_.window().draw(context, {0, 0, pixels.cx, pixels.cy});
    return CloseEnhMetaFile(context);
}

HGLOBAL DataPart::drawClassic() {
    HDC context = CreateMetaFileW(nullptr);
    if (context == nullptr) throw std::bad_alloc();
    const SIZE pixels = toPixels(Control_.extent(), TwipScale(Control_.library().system().twipsPerPixel()));
    SetMapMode(context, MM_ANISOTROPIC);
    SetWindowOrgEx(context, 0, 0, nullptr);
    SetWindowExtEx(context, pixels.cx, pixels.cy, nullptr);
    Control_.window().draw(context, {0, 0, pixels.cx, pixels.cy});
    HMETAFILE picture = CloseMetaFile(context);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
    auto* const described = static_cast<METAFILEPICT*>(memory != nullptr ? GlobalLock(memory) : nullptr);
    if (described == nullptr) {
        DeleteMetaFile(picture);
        throw std::bad_alloc();
    }
    const SIZEL size = Control_.himetricExtent();
    *described = {MM_ANISOTROPIC, size.cx, size.cy, picture};
    GlobalUnlock(memory);
    return memory;
}

HRESULT DataPart::GetData(FORMATETC* format, STGMEDIUM* medium) noexcept {
    if (format == nullptr || medium == nullptr) return E_POINTER;
    *medium = {};
    const HRESULT known = checkFormat(*format);
    if (FAILED(known)) return known;
    return guarded([&] {
        if (format->cfFormat == CF_ENHMETAFILE) {
            medium->hEnhMetaFile = drawEnhanced();
            medium->tymed = TYMED_ENHMF;
        } else {
            medium->hMetaFilePict = drawClassic();
            medium->tymed = TYMED_MFPICT;
        }
        return S_OK;
    });
}

HRESULT DataPart::GetDataHere(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) noexcept { return E_NOTIMPL; }

HRESULT DataPart::QueryGetData(FORMATETC* format) noexcept {
    return format != nullptr ? checkFormat(*format) : E_POINTER;
}

HRESULT DataPart::GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) noexcept {
    if (in == nullptr || out == nullptr) return E_POINTER;
    *out = *in;
    out->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

HRESULT DataPart::SetData(FORMATETC* /*format*/, STGMEDIUM* /*medium*/, BOOL /*release*/) noexcept { return E_NOTIMPL; }

HRESULT DataPart::EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (direction != DATADIR_GET) return E_NOTIMPL;
    return guarded([&] {
        *out = new Enumerator<IEnumFORMATETC, FORMATETC, FORMATETC, &copyFormat>(
            std::make_shared<std::vector<FORMATETC>>(std::vector<FORMATETC>{
                pictureFormat(CF_ENHMETAFILE, TYMED_ENHMF), pictureFormat(CF_METAFILEPICT, TYMED_MFPICT)}));
        return S_OK;
    });
}

HRESULT DataPart::DAdvise(FORMATETC* /*format*/, DWORD /*flags*/, IAdviseSink* /*sink*/, DWORD* cookie) noexcept {
    if (cookie != nullptr) *cookie = 0;
    return OLE_E_ADVISENOTSUPPORTED;
}

HRESULT DataPart::DUnadvise(DWORD /*cookie*/) noexcept { return OLE_E_ADVISENOTSUPPORTED; }

HRESULT DataPart::EnumDAdvise(IEnumSTATDATA** out) noexcept {
    if (out != nullptr) *out = nullptr;
    return OLE_E_ADVISENOTSUPPORTED;
}

}  // namespace kel::win32::ole
