#include "text/line_file.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#include "text/cp1252.h"

namespace qor {

std::vector<std::string> splitLines(std::string_view text)
{
    std::vector<std::string> lines;
    forEachLine(text, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

std::string joinLinesCrLf(const std::vector<std::string>& lines)
{
    std::size_t size = 0;
    for (const auto& l : lines)
        size += l.size() + 2;
    std::string out;
    out.reserve(size);
    for (const auto& l : lines) {
        out += l;
        out += kCrLf;
    }
    return out;
}

Error fileSystemError(int e)
{
    std::string text = std::strerror(e);
    switch (std::errc(e)) {
    case std::errc::no_such_file_or_directory: return makeError(err::FileNotFound, text);
    case std::errc::not_a_directory: return makeError(err::PathNotFound, text);
    case std::errc::no_space_on_device:
    case std::errc::file_too_large: return makeError(err::DiskFull, text);
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
    case std::errc::read_only_file_system: return makeError(err::PermissionDenied, text);
    case std::errc::file_exists: return makeError(err::FileExists, text);
    default: return makeError(err::PathFileAccess, text);
    }
}

namespace {

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

std::FILE* openFile(const std::filesystem::path& path, const char* mode)
{
#ifdef _WIN32
    // Windows paths are wide: the narrow call would lose every accent.
    const std::string m(mode);
    return _wfopen(path.c_str(), std::wstring(m.begin(), m.end()).c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

}  // namespace

Result<std::string> readFileBytes(const std::filesystem::path& path)
{
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec))
        return makeError(err::PathFileAccess);
    errno = 0;
    FilePtr file(openFile(path, "rb"));
    if (!file) {
        int e = errno ? errno : ENOENT;
        // A missing folder is "path not found", a missing file in an existing folder "file not found".
        if (e == ENOENT && path.has_parent_path() && !std::filesystem::is_directory(path.parent_path(), ec))
            return makeError(err::PathNotFound, std::strerror(e));
        return fileSystemError(e);
    }
    std::string data;
    char buffer[65536];
    for (;;) {
        std::size_t got = std::fread(buffer, 1, sizeof buffer, file.get());
        data.append(buffer, got);
        if (got < sizeof buffer) {
            if (std::ferror(file.get()))
                return fileSystemError(errno ? errno : EIO);
            break;
        }
    }
    return data;
}

Result<std::vector<std::string>> readLineFile(const std::filesystem::path& path)
{
    auto bytes = readFileBytes(path);
    if (!bytes)
        return bytes.error();
    return splitLines(decodeCp1252(*bytes));
}

Status writeFileAtomically(const std::filesystem::path& path, std::string_view bytes)
{
    namespace fs = std::filesystem;
    static std::atomic<unsigned> counter{0};
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();

    // The new content goes to a fresh file beside the target, so that the
    // rename at the end stays on one file system and the old file is whole
    // until the new one is complete.
    FilePtr file;
    fs::path tmp;
    for (int attempt = 0; attempt < 100 && !file; ++attempt) {
        tmp = path;
        tmp += "." + std::to_string(stamp % 1000000007) + "-" + std::to_string(counter++) + ".tmp";
        errno = 0;
        file.reset(openFile(tmp, "wbx"));
        if (!file && errno == ENOENT)   // the new file cannot be made: its folder is missing
            return makeError(err::PathNotFound, std::strerror(ENOENT));
        if (!file && errno != EEXIST)
            return fileSystemError(errno ? errno : EACCES);
    }
    if (!file)
        return fileSystemError(EEXIST);

    auto fail = [&](int e) {
        file.reset();
        std::error_code ignored;
        fs::remove(tmp, ignored);
        return fileSystemError(e);
    };
    errno = 0;
    if (!bytes.empty() && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
        return fail(errno ? errno : EIO);
    errno = 0;
    if (std::fflush(file.get()) != 0)
        return fail(errno ? errno : EIO);
    errno = 0;
    if (std::fclose(file.release()) != 0)
        return fail(errno ? errno : EIO);

    std::error_code ec;
    auto old = fs::status(path, ec);
    if (!ec && fs::exists(old))
        fs::permissions(tmp, old.permissions(), ec);
    errno = 0;
    fs::rename(tmp, path, ec);
    if (ec) {
        const int e = ec.value() ? ec.value() : EACCES;
        fs::remove(tmp, ec);
        return fileSystemError(e);
    }
    return {};
}

Status writeLineFile(const std::filesystem::path& path, const std::vector<std::string>& lines)
{
    return writeFileAtomically(path, encodeCp1252(joinLinesCrLf(lines)));
}

}  // namespace qor
