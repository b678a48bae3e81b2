#include "temp_dir.h"

#include <fstream>
#include <random>
#include <sstream>

namespace qor::test {

TempDir::TempDir()
{
    std::random_device rd;
    auto base = std::filesystem::temp_directory_path();
    for (;;) {
        path_ = base / ("qor-test-" + std::to_string(rd()));
        if (std::filesystem::create_directory(path_))
            break;
    }
}

TempDir::~TempDir()
{
    std::error_code ec;
    // Make every folder writable again first, in case a test took rights away.
    for (auto it = std::filesystem::recursive_directory_iterator(path_, ec);
         !ec && it != std::filesystem::recursive_directory_iterator(); it.increment(ec))
        std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ec);
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
}

std::string TempDir::write(std::string_view name, std::string_view bytes) const
{
    auto p = path_ / name;
    std::filesystem::create_directories(p.parent_path());
    std::ofstream out(p, std::ios::binary);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    return p.string();
}

std::string TempDir::read(std::string_view name) const
{
    auto bytes = readBytes(path_ / name);
    return bytes == "<missing>" ? "" : bytes;
}

std::string readBytes(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return "<missing>";
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

}  // namespace qor::test
