#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qor::test {

// A fresh folder for one test, removed with everything in it at the end.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // The folder as text, ending with "/".
    std::string folder() const { return path_.string() + "/"; }
    std::string file(std::string_view name) const { return (path_ / name).string(); }

    // Writes bytes to a file of the folder and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const;
    // The bytes of a file of the folder ("" when missing).
    std::string read(std::string_view name) const;

private:
    std::filesystem::path path_;
};

// The bytes of a file, or "<missing>".
std::string readBytes(const std::filesystem::path& path);

}  // namespace qor::test
