#include "player/win32/pictures.h"

#include <objidl.h>
#include <gdiplus.h>

#include <cstring>

#include "model/picture_rule.h"
#include "player/core/system_port.h"

namespace qor::player {
namespace {

namespace gp = Gdiplus::DllExports;
using Gdiplus::GpBitmap;
using Gdiplus::GpGraphics;
using Gdiplus::GpImage;

// A GDI+ bitmap made from bytes in memory; the stream goes with it.
GpBitmap* decode(const std::string& bytes)
{
    // The pictures' rule, as in the editor and the Linux player: a picture
    // it refuses is shown as none on every player alike.
    if (!examinePicture(bytes).readable())
        return nullptr;
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (!memory)
        return nullptr;
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK) {
        GlobalFree(memory);
        return nullptr;
    }
    GpBitmap* source = nullptr;
    GpBitmap* copy = nullptr;
    if (gp::GdipCreateBitmapFromStream(stream, &source) == Gdiplus::Ok) {
        UINT w = 0, h = 0;
        gp::GdipGetImageWidth(source, &w);
        gp::GdipGetImageHeight(source, &h);
        // Decoded once, in the format drawing is quickest from, and free of the stream.
        if (w == 0 || h == 0 ||
            gp::GdipCloneBitmapAreaI(0, 0, INT(w), INT(h), PixelFormat32bppPARGB, source, &copy) != Gdiplus::Ok)
            copy = nullptr;
        gp::GdipDisposeImage(source);
    }
    stream->Release();
    return copy;
}

}  // namespace

Pictures::Pictures(const SystemPort& system) : system_(system)
{
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
}

Pictures::~Pictures()
{
    for (auto& [path, bitmap] : cache_)
        if (bitmap)
            gp::GdipDisposeImage(static_cast<GpImage*>(bitmap));
    if (token_)
        Gdiplus::GdiplusShutdown(token_);
}

void* Pictures::load(const std::string& path)
{
    if (path.empty() || !token_)
        return nullptr;
    auto found = cache_.find(path);
    if (found != cache_.end())
        return found->second;
    const std::optional<std::string> bytes = system_.readFile(path);
    GpBitmap* bitmap = bytes && !bytes->empty() ? decode(*bytes) : nullptr;
    cache_.emplace(path, bitmap);
    return bitmap;
}

std::optional<Pictures::Size> Pictures::size(const std::string& path)
{
    auto* bitmap = static_cast<GpImage*>(load(path));
    if (!bitmap)
        return std::nullopt;
    UINT w = 0, h = 0;
    gp::GdipGetImageWidth(bitmap, &w);
    gp::GdipGetImageHeight(bitmap, &h);
    return Size{int(w), int(h)};
}

bool Pictures::draw(HDC dc, const std::string& path, RECT to)
{
    const std::optional<Size> own = size(path);
    if (!own)
        return false;
    GpGraphics* graphics = nullptr;
    if (gp::GdipCreateFromHDC(dc, &graphics) != Gdiplus::Ok)
        return false;
    const int w = to.right - to.left;
    const int h = to.bottom - to.top;
    const bool scaled = w != own->width || h != own->height;
    gp::GdipSetInterpolationMode(graphics, scaled ? Gdiplus::InterpolationModeHighQualityBilinear
                                                  : Gdiplus::InterpolationModeNearestNeighbor);
    gp::GdipSetPixelOffsetMode(graphics, Gdiplus::PixelOffsetModeHalf);
    // Scaled, the edge pixels are blended with their mirror rather than with
    // nothing: a picture keeps its full size and colour to its border.
    Gdiplus::GpImageAttributes* attributes = nullptr;
    if (scaled && gp::GdipCreateImageAttributes(&attributes) == Gdiplus::Ok)
        gp::GdipSetImageAttributesWrapMode(attributes, Gdiplus::WrapModeTileFlipXY, 0, FALSE);
    gp::GdipDrawImageRectRectI(graphics, static_cast<GpImage*>(load(path)), to.left, to.top, w, h, 0, 0, own->width,
                               own->height, Gdiplus::UnitPixel, attributes, nullptr, nullptr);
    if (attributes)
        gp::GdipDisposeImageAttributes(attributes);
    gp::GdipDeleteGraphics(graphics);
    return true;
}

std::vector<std::uint32_t> Pictures::pixels(const std::string& path, int width, int height)
{
    auto* bitmap = static_cast<GpBitmap*>(load(path));
    const std::optional<Size> own = size(path);
    if (!bitmap || !own || width <= 0 || height <= 0)
        return {};
    Gdiplus::BitmapData data{};
    Gdiplus::GpRect all(0, 0, own->width, own->height);
    if (gp::GdipBitmapLockBits(bitmap, &all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB, &data) != Gdiplus::Ok)
        return {};
    std::vector<std::uint32_t> out(std::size_t(width) * std::size_t(height));
    for (int y = 0; y < height; ++y) {
        const int sy = int(std::int64_t(y) * own->height / height);
        const auto* row = reinterpret_cast<const std::uint32_t*>(static_cast<const char*>(data.Scan0) +
                                                                 std::ptrdiff_t(sy) * data.Stride);
        for (int x = 0; x < width; ++x)
            out[std::size_t(y) * std::size_t(width) + std::size_t(x)] = row[std::int64_t(x) * own->width / width];
    }
    gp::GdipBitmapUnlockBits(bitmap, &data);
    return out;
}

}  // namespace qor::player
