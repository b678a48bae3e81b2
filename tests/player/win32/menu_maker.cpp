#include "menu_maker.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "model/menu_data_writer.h"
#include "temp_dir.h"

namespace qor::test {
namespace {

void putLe(std::string& out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out += char((value >> (8 * i)) & 0xFF);
}

std::string playerBytes()
{
    const char* path = std::getenv("QOR_COMPIL_EXE");
    if (!path)
        throw std::runtime_error("QOR_COMPIL_EXE names no player");
    const std::string bytes = readBytes(path);
    if (bytes == "<missing>")
        throw std::runtime_error(std::string("no player at ") + path);
    return bytes;
}

std::string writeInQor(const std::string& folder, const std::string& name, const std::string& bytes)
{
    const std::filesystem::path qor = std::filesystem::path(folder) / "qor";
    std::filesystem::create_directories(qor);
    std::ofstream(qor / name, std::ios::binary) << bytes;
    return (qor / name).string();
}

}  // namespace

std::string solidBitmap(int width, int height, std::uint32_t rgb)
{
    const int rowBytes = (width * 3 + 3) / 4 * 4;
    const auto pixelBytes = std::uint32_t(rowBytes * height);
    std::string out = "BM";
    putLe(out, 54 + pixelBytes, 4);
    putLe(out, 0, 4);
    putLe(out, 54, 4);
    putLe(out, 40, 4);
    putLe(out, std::uint32_t(width), 4);
    putLe(out, std::uint32_t(height), 4);
    putLe(out, 1, 2);
    putLe(out, 24, 2);
    putLe(out, 0, 4);
    putLe(out, pixelBytes, 4);
    putLe(out, 2835, 4);
    putLe(out, 2835, 4);
    putLe(out, 0, 8);
    std::string row;
    for (int x = 0; x < width; ++x) {
        row += char(rgb & 0xFF);
        row += char((rgb >> 8) & 0xFF);
        row += char((rgb >> 16) & 0xFF);
    }
    row.resize(std::size_t(rowBytes), '\0');
    for (int y = 0; y < height; ++y)
        out += row;
    return out;
}

std::string makeMenu(const std::string& folder, const MenuProject& project, const std::string& caption,
                     const std::map<std::string, std::string>& files, const std::string& name)
{
    for (const auto& [file, bytes] : files)
        writeInQor(folder, file, bytes);
    return writeInQor(folder, name, playerBytes() + menuDataBytes(project, {caption, "Tests"}));
}

std::string copyBarePlayer(const std::string& folder, const std::string& name)
{
    return writeInQor(folder, name, playerBytes());
}

}  // namespace qor::test
