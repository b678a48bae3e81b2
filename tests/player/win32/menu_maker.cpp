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

namespace {

std::string chunk(std::string_view id, const std::string& body)
{
    std::string out(id);
    putLe(out, std::uint32_t(body.size()), 4);
    return out + body + (body.size() % 2 ? std::string(1, '\0') : std::string());
}

std::string list(std::string_view type, const std::string& body) { return chunk("LIST", std::string(type) + body); }

}  // namespace

std::string solidVideo(int width, int height, int frames, std::uint32_t rgb)
{
    const std::string bitmap = solidBitmap(width, height, rgb);
    const std::string pixels = bitmap.substr(54);
    const auto frameBytes = std::uint32_t(pixels.size());
    std::string avih;
    for (const std::uint32_t v : {100000u, frameBytes * 10, 0u, 0x10u, std::uint32_t(frames), 0u, 1u, frameBytes,
                                  std::uint32_t(width), std::uint32_t(height), 0u, 0u, 0u, 0u})
        putLe(avih, v, 4);
    std::string strh = "vidsDIB ";
    for (const std::uint32_t v : {0u, 0u, 0u, 1u, 10u, 0u, std::uint32_t(frames), frameBytes, 0xFFFFFFFFu, 0u})
        putLe(strh, v, 4);
    putLe(strh, 0, 4);   // the frame rectangle: all of it
    putLe(strh, 0, 4);
    std::string movi;
    std::string index;
    for (int i = 0; i < frames; ++i) {
        index += "00db";
        putLe(index, 0x10, 4);
        putLe(index, std::uint32_t(4 + movi.size()), 4);
        putLe(index, frameBytes, 4);
        movi += chunk("00db", pixels);
    }
    const std::string hdrl = list("hdrl", chunk("avih", avih) + list("strl", chunk("strh", strh) +
                                                                          chunk("strf", bitmap.substr(14, 40))));
    return chunk("RIFF", "AVI " + hdrl + list("movi", movi) + chunk("idx1", index));
}

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
