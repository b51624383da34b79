#include "PngFile.h"

#include <objbase.h>
#include <wincodec.h>

namespace {

// COM for the length of one call; a thread that has it in another mode keeps it so.
class ComScope {
public:
    ComScope() noexcept : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    HRESULT m_result;
};

template <class Interface>
class ComPointer {
public:
    ComPointer() noexcept = default;
    ~ComPointer()
    {
        if (m_object)
            m_object->Release();
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    Interface** Receive() noexcept { return &m_object; }
    Interface* operator->() const noexcept { return m_object; }
    [[nodiscard]] Interface* Get() const noexcept { return m_object; }

private:
    Interface* m_object = nullptr;
};

bool OpenFirstFrame(IWICImagingFactory& factory, const KZBasicString& path,
                    ComPointer<IWICBitmapFrameDecode>& frame) noexcept
{
    ComPointer<IWICBitmapDecoder> decoder;
    return SUCCEEDED(factory.CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                       WICDecodeMetadataCacheOnDemand, decoder.Receive())) &&
           SUCCEEDED(decoder->GetFrame(0, frame.Receive()));
}

bool CopyPixels(IWICBitmapSource& source, PixelImage& image)
{
    UINT width = 0;
    UINT height = 0;
    if (FAILED(source.GetSize(&width, &height)) || width == 0 || height == 0 || width > LargestPictureSide ||
        height > LargestPictureSide)
        return false;
    std::vector<Pixel> pixels(std::size_t{width} * height);
    const UINT stride = width * UINT{sizeof(Pixel)};
    if (FAILED(source.CopyPixels(nullptr, stride, stride * height, reinterpret_cast<BYTE*>(pixels.data()))))
        return false;
    image = {static_cast<int>(width), static_cast<int>(height), std::move(pixels)};
    return true;
}

}  // namespace

PixelImage ReadPicture(const KZBasicString& path)
{
    const ComScope com;
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICBitmapFrameDecode> frame;
    ComPointer<IWICFormatConverter> converter;
    PixelImage image;
    const bool opened =
        SUCCEEDED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                     reinterpret_cast<void**>(factory.Receive()))) &&
        OpenFirstFrame(*factory.Get(), path, frame) && SUCCEEDED(factory->CreateFormatConverter(converter.Receive())) &&
        SUCCEEDED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone, nullptr,
                                        0.0, WICBitmapPaletteTypeCustom));
    if (!opened || !CopyPixels(*converter.Get(), image))
        return {};
    return image;
}
