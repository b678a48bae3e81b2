#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/error.h"

namespace qor {

// What stands at a path, the link itself when the path names a symbolic link.
enum class PathKind { None, File, Folder, Link, Other };

// Told after each chunk of a copy: the bytes of this file written so far.
using CopyProgress = std::function<void(std::uint64_t bytesSoFar)>;

// The files and folders the build reads and writes. Nothing here ever writes
// through a symbolic link or deletes outside the folder it is given: a link
// in a target's place is replaced, never followed.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual PathKind kind(const std::string& path) = 0;
    // A folder, or a link that leads to one.
    virtual bool isFolder(const std::string& path) = 0;
    // The size of a file (links followed), or nothing when it cannot be read.
    virtual std::optional<std::uint64_t> fileSize(const std::string& path) = 0;

    // The names of everything that stands directly in folder, in no order;
    // nothing when it cannot be read.
    virtual std::vector<std::string> entryNames(const std::string& folder) = 0;

    virtual Status createFolder(const std::string& path) = 0;
    // Deletes the files and links that stand directly in folder; its
    // sub-folders stay whole. Nothing when folder is itself a link.
    virtual void removeFilesIn(const std::string& folder) = 0;
    // Removes an empty folder.
    virtual Status removeFolder(const std::string& path) = 0;
    virtual Status removeFile(const std::string& path) = 0;
    virtual Status rename(const std::string& from, const std::string& to) = 0;

    // Streams from into to (created or replaced), a chunk at a time. A copy
    // that fails leaves no part of to behind; a file copied onto itself is
    // left as it is.
    virtual Status copyFile(const std::string& from, const std::string& to, const CopyProgress& progress) = 0;
    virtual Status writeFile(const std::string& path, std::string_view bytes) = 0;
    // Adds bytes at the end of an existing file.
    virtual Status appendToFile(const std::string& path, std::string_view bytes) = 0;
    virtual Result<std::string> readFile(const std::string& path) = 0;
    // Up to count bytes of a file from offset: fewer at its end.
    virtual Result<std::string> readRange(const std::string& path, std::uint64_t offset, std::size_t count) = 0;

    // A new empty file, or folder, of a unique name in the system's
    // temporary folder.
    virtual Result<std::string> createTempFile() = 0;
    virtual Result<std::string> createTempFolder() = 0;

    // The user's folders, each ending with "/".
    virtual std::string homeFolder() = 0;
    virtual std::string desktopFolder() = 0;
};

}  // namespace qor
