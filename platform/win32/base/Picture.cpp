#include "platform/win32/base/Picture.h"

// The system's component interfaces have no destructors; nothing is destroyed through them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#include <objbase.h>
#include <wincodec.h>
#pragma GCC diagnostic pop

#include <vector>

#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/WideText.h"
#include "values/Text.h"

namespace kel::win32 {

namespace {

/// Holds an object of the system's and lets it go.
template <class Interface>
class Held {
public:
    Held() = default;
    ~Held() {
        if (Object_ != nullptr) Object_->Release();
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    Interface* get() const { return Object_; }
    Interface* operator->() const { return Object_; }
    Interface** receive() { return &Object_; }

private:
    Interface* Object_ = nullptr;
};

class Components {
public:
    Components() : Result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Components() {
        if (SUCCEEDED(Result_)) CoUninitialize();
    }
    Components(const Components&) = delete;
    Components& operator=(const Components&) = delete;

private:
    HRESULT Result_;
};

/// 24 bits a pixel, rows padded to four bytes.
struct Pixels {
    UINT width = 0;
    UINT height = 0;
    UINT stride = 0;
    std::vector<BYTE> bytes;
};

class MemoryContext {
public:
    explicit MemoryContext(HDC like) : Context_(CreateCompatibleDC(like)) {}
    ~MemoryContext() { DeleteDC(Context_); }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;
    HDC get() const { return Context_; }

private:
    HDC Context_;
};

class Bitmap {
public:
    Bitmap(HDC like, int width, int height) : Handle_(CreateCompatibleBitmap(like, width, height)) {}
    ~Bitmap() { DeleteObject(Handle_); }
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    HBITMAP get() const { return Handle_; }

private:
    HBITMAP Handle_;
};

Pixels pixelsOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    Pixels pixels;
    pixels.width = static_cast<UINT>(widthOf(area));
    pixels.height = static_cast<UINT>(heightOf(area));
    pixels.stride = (pixels.width * 3 + 3) & ~3U;
    pixels.bytes.resize(std::size_t{pixels.stride} * pixels.height);

    const WindowContext screen(window);
    const MemoryContext memory(screen.get());
    const Bitmap bitmap(screen.get(), widthOf(area), heightOf(area));
    {
        const Selected selected(memory.get(), bitmap.get());
        // As it is seen, also where the window counts from the right.
        SetLayout(screen.get(), 0);
        BitBlt(memory.get(), 0, 0, widthOf(area), heightOf(area), screen.get(), 0, 0, SRCCOPY);
    }
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = widthOf(area);
    format.bmiHeader.biHeight = -heightOf(area);  // the upper row first
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 24;
    format.bmiHeader.biCompression = BI_RGB;
    GetDIBits(memory.get(), bitmap.get(), 0, pixels.height, pixels.bytes.data(), &format, DIB_RGB_COLORS);
    return pixels;
}

bool writePng(Pixels& pixels, const wchar_t* path) {
    const Components components;
    Held<IWICImagingFactory> factory;
    if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                reinterpret_cast<void**>(factory.receive()))))
        return false;
    Held<IWICStream> stream;
    Held<IWICBitmapEncoder> encoder;
    Held<IWICBitmapFrameEncode> frame;
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    const auto done = [](HRESULT result) { return SUCCEEDED(result); };
    return done(factory->CreateStream(stream.receive())) && done(stream->InitializeFromFilename(path, GENERIC_WRITE)) &&
           done(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.receive())) &&
           done(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
           done(encoder->CreateNewFrame(frame.receive(), nullptr)) && done(frame->Initialize(nullptr)) &&
           done(frame->SetSize(pixels.width, pixels.height)) && done(frame->SetPixelFormat(&format)) &&
           IsEqualGUID(format, GUID_WICPixelFormat24bppBGR) != FALSE &&
           done(frame->WritePixels(pixels.height, pixels.stride, static_cast<UINT>(pixels.bytes.size()),
                                   pixels.bytes.data())) &&
           done(frame->Commit()) && done(encoder->Commit());
}

}  // namespace

bool savePictureOf(HWND window, const std::string& utf8Path) {
    const auto path = fromUtf8(utf8Path);
    if (!path) return false;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    GdiFlush();
    Pixels pixels = pixelsOf(window);
    return writePng(pixels, wide(*path).c_str());
}

}  // namespace kel::win32
