#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qor::player {

class SystemPort;

// Pictures (BMP, JPG, GIF, ICO, PNG) decoded once by GDI+ from the file's
// bytes, so long paths work and the CD's files are not held open. Drawing
// keeps the pictures' transparent pixels (a GIF's) transparent.
class Pictures {
public:
    explicit Pictures(const SystemPort& system);
    ~Pictures();
    Pictures(const Pictures&) = delete;
    Pictures& operator=(const Pictures&) = delete;

    struct Size {
        int width = 0;
        int height = 0;
    };
    // Nothing when the file is missing or no picture.
    std::optional<Size> size(const std::string& path);
    // Draws the picture into the rectangle: at its own size a plain copy,
    // otherwise smoothly scaled. False when there is no such picture.
    bool draw(HDC dc, const std::string& path, RECT to);
    // The picture scaled to width x height by the nearest pixel, as
    // 0xAARRGGBB rows from the top. Empty when there is no such picture.
    std::vector<std::uint32_t> pixels(const std::string& path, int width, int height);

private:
    void* load(const std::string& path);

    const SystemPort& system_;
    ULONG_PTR token_ = 0;
    std::map<std::string, void*> cache_;   // GpBitmap*, null for a file that is no picture
};

}  // namespace qor::player
