#include "platform/win32/base/Picture.h"

#include "platform/win32/base/AtEnd.h"
#include "platform/win32/base/ComPtr.h"
#include "platform/win32/base/Gdi.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#include <wincodec.h>
#pragma GCC diagnostic pop

namespace kel::win32 {

namespace {

/// The caller's to delete.
HBITMAP bitmapOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    const WindowContext screen(window);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen.get(), widthOf(area), heightOf(area));
    HDC const memory = CreateCompatibleDC(screen.get());
    SelectObject(memory, bitmap);
    // As it is seen, also where the window counts from the right.
    SetLayout(screen.get(), 0);
    BitBlt(memory, 0, 0, widthOf(area), heightOf(area), screen.get(), 0, 0, SRCCOPY);
    DeleteDC(memory);
    return bitmap;
}

/// All that was written to a stream in memory.
std::string bytesOf(IStream* stream) {
    HGLOBAL memory = nullptr;
    STATSTG size{};
    if (FAILED(GetHGlobalFromStream(stream, &memory)) || FAILED(stream->Stat(&size, STATFLAG_NONAME))) return {};
    std::string bytes(static_cast<const char*>(GlobalLock(memory)), static_cast<std::size_t>(size.cbSize.QuadPart));
    GlobalUnlock(memory);
    return bytes;
}

std::string toPng(HBITMAP bitmap) {
    const HRESULT begun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const AtEnd end([begun] {
        if (SUCCEEDED(begun)) CoUninitialize();
    });
    ComPtr<IWICImagingFactory> factory;
    if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                factory.receiveVoid())))
        return {};
    ComPtr<IWICBitmap> picture;
    ComPtr<IWICBitmapSource> pixels;
    ComPtr<IStream> stream;
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    const auto done = [](HRESULT result) { return SUCCEEDED(result); };
    const bool written =
        done(factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, picture.receive())) &&
        done(WICConvertBitmapSource(GUID_WICPixelFormat24bppBGR, picture.get(), pixels.receive())) &&
        done(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive())) &&
        done(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.receive())) &&
        done(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
        done(encoder->CreateNewFrame(frame.receive(), nullptr)) && done(frame->Initialize(nullptr)) &&
        done(frame->WriteSource(pixels.get(), nullptr)) && done(frame->Commit()) && done(encoder->Commit());
    return written ? bytesOf(stream.get()) : std::string();
}

}  // namespace

std::string pictureOf(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    GdiFlush();
    HBITMAP const bitmap = bitmapOf(window);
    const AtEnd drop([bitmap] { DeleteObject(bitmap); });
    return toPng(bitmap);
}

}  // namespace kel::win32
