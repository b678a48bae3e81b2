#pragma once

#include "core/ports/file_system.h"

namespace qor {

// The FileSystem port on the machine's own disks (POSIX calls, no Qt), used
// by the editor and by the command-line builder alike.
class LocalFileSystem final : public FileSystem {
public:
    // Bytes per chunk of a copy: the interface is told after each one.
    static constexpr std::uint64_t kCopyChunk = 4u << 20;

    PathKind kind(const std::string& path) override;
    bool isFolder(const std::string& path) override;
    std::optional<std::uint64_t> fileSize(const std::string& path) override;
    std::vector<std::string> entryNames(const std::string& folder) override;
    Status createFolder(const std::string& path) override;
    void removeFilesIn(const std::string& folder) override;
    Status removeFolder(const std::string& path) override;
    Status removeFile(const std::string& path) override;
    Status rename(const std::string& from, const std::string& to) override;
    Status copyFile(const std::string& from, const std::string& to, const CopyProgress& progress) override;
    Status writeFile(const std::string& path, std::string_view bytes) override;
    Status appendToFile(const std::string& path, std::string_view bytes) override;
    Result<std::string> readFile(const std::string& path) override;
    Result<std::string> readRange(const std::string& path, std::uint64_t offset, std::size_t count) override;
    Result<std::string> createTempFile() override;
    Result<std::string> createTempFolder() override;
    std::string homeFolder() override;
    std::string desktopFolder() override;
};

// The desktop folder named by the XDG_DESKTOP_DIR line of a user-dirs.dirs
// text ("$HOME/Bureau" with $HOME replaced), or home + "Desktop"; with a
// trailing "/". home ends with "/".
std::string desktopFolderOf(std::string_view userDirs, const std::string& home);

}  // namespace qor
