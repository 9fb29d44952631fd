#pragma once

#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

class OleControl;

/// The control as a picture.
class ViewPart final : public Part<IViewObject2> {
public:
    explicit ViewPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device,
                                   HDC deviceContext, HDC context, LPCRECTL bounds, LPCRECTL metafileBounds,
                                   BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR), ULONG_PTR token) noexcept override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device,
                                          HDC deviceContext, LOGPALETTE** colors) noexcept override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* token) noexcept override;
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD token) noexcept override;
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device,
                                        LPSIZEL size) noexcept override;

    /// The picture that the host has is not what the control looks like any more.
    void outOfDate();

private:
    OleControl& Control_;
    ComPtr<IAdviseSink> Sink_;
    DWORD Aspects_ = 0;
    DWORD Flags_ = 0;
};

/// The picture as data, for hosts that keep one: as a metafile, classic or enhanced.
class DataPart final : public Part<IDataObject> {
public:
    explicit DataPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) noexcept override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) noexcept override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                      DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** out) noexcept override;

private:
    HENHMETAFILE drawEnhanced();
    HGLOBAL drawClassic();

    OleControl& Control_;
};

}  // namespace kel::win32::ole
