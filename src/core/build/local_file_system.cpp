#include "core/build/local_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <vector>

#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

Error lastError(const std::string& path)
{
    Error e = inFrench(fileSystemError(errno));
    if (!path.empty())
        e.description += " : " + path;
    return e;
}

// A file descriptor closed when it goes.
class Fd {
public:
    explicit Fd(int fd = -1) : fd_(fd) {}
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    ~Fd() { close(); }
    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }
    int close()
    {
        const int r = fd_ >= 0 ? ::close(fd_) : 0;
        fd_ = -1;
        return r;
    }

private:
    int fd_;
};

// A link standing where a file is to be written goes first, so that the
// write lands at path and not wherever the link points.
void dropLink(const std::string& path)
{
    struct stat st {};
    if (::lstat(path.c_str(), &st) == 0 && S_ISLNK(st.st_mode))
        ::unlink(path.c_str());
}

Fd openForWriting(const std::string& path, int extraFlags)
{
    dropLink(path);
    return Fd(::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC | extraFlags, 0644));
}

bool writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        bytes.remove_prefix(std::size_t(n));
    }
    return true;
}

// The kernel copies without the bytes passing through us where it can; a
// file system that cannot falls back to reads and writes.
enum class ChunkResult { Copied, End, Unsupported, Failed };

ChunkResult kernelChunk(int in, int out, std::uint64_t& done)
{
    const ssize_t n = ::copy_file_range(in, nullptr, out, nullptr, LocalFileSystem::kCopyChunk, 0);
    if (n > 0) {
        done += std::uint64_t(n);
        return ChunkResult::Copied;
    }
    if (n == 0)
        return ChunkResult::End;
    if (done == 0 && (errno == EXDEV || errno == ENOSYS || errno == EINVAL || errno == EOPNOTSUPP))
        return ChunkResult::Unsupported;
    return ChunkResult::Failed;
}

ChunkResult bufferedChunk(int in, int out, std::vector<char>& buffer, std::uint64_t& done)
{
    for (;;) {
        const ssize_t n = ::read(in, buffer.data(), buffer.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return ChunkResult::Failed;
        if (n == 0)
            return ChunkResult::End;
        if (!writeAll(out, std::string_view(buffer.data(), std::size_t(n))))
            return ChunkResult::Failed;
        done += std::uint64_t(n);
        return ChunkResult::Copied;
    }
}

// Copies every byte of in to out; errno tells why it stopped short.
bool streamCopy(int in, int out, const CopyProgress& progress)
{
    std::uint64_t done = 0;
    bool kernel = true;
    std::vector<char> buffer;
    for (;;) {
        ChunkResult r = kernel ? kernelChunk(in, out, done) : bufferedChunk(in, out, buffer, done);
        if (r == ChunkResult::Unsupported) {
            kernel = false;
            buffer.resize(1u << 20);
            continue;
        }
        if (r == ChunkResult::End)
            return true;
        if (r == ChunkResult::Failed)
            return false;
        if (progress)
            progress(done);
    }
}

std::string tempPattern(const char* suffix)
{
    std::error_code ec;
    std::string folder = std::filesystem::temp_directory_path(ec).string();
    if (ec || folder.empty())
        folder = "/tmp";
    return withTrailingSeparator(folder) + "qor-XXXXXX" + suffix;
}

}  // namespace

PathKind LocalFileSystem::kind(const std::string& path)
{
    struct stat st {};
    if (path.empty() || ::lstat(path.c_str(), &st) != 0)
        return PathKind::None;
    if (S_ISLNK(st.st_mode))
        return PathKind::Link;
    if (S_ISDIR(st.st_mode))
        return PathKind::Folder;
    return S_ISREG(st.st_mode) ? PathKind::File : PathKind::Other;
}

bool LocalFileSystem::isFolder(const std::string& path)
{
    struct stat st {};
    return !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

std::optional<std::uint64_t> LocalFileSystem::fileSize(const std::string& path)
{
    struct stat st {};
    if (path.empty() || ::stat(path.c_str(), &st) != 0 || S_ISDIR(st.st_mode))
        return std::nullopt;
    return std::uint64_t(st.st_size);
}

Status LocalFileSystem::createFolder(const std::string& path)
{
    if (::mkdir(path.c_str(), 0755) != 0)
        return lastError(path);
    return {};
}

std::vector<std::string> LocalFileSystem::entryNames(const std::string& folder)
{
    std::vector<std::string> names;
    DIR* listing = ::opendir(folder.c_str());
    if (!listing)
        return names;
    while (dirent* e = ::readdir(listing))
        if (std::string_view(e->d_name) != "." && std::string_view(e->d_name) != "..")
            names.emplace_back(e->d_name);
    ::closedir(listing);
    return names;
}

void LocalFileSystem::removeFilesIn(const std::string& folder)
{
    // A trailing "/" would make the system follow a link at the end.
    std::string path = folder;
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    Fd dir(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!dir)
        return;
    DIR* listing = ::fdopendir(::dup(dir.get()));
    if (!listing)
        return;
    std::vector<std::string> names;
    while (dirent* e = ::readdir(listing)) {
        const std::string name = e->d_name;
        struct stat st {};
        if (name == "." || name == ".." || ::fstatat(dir.get(), e->d_name, &st, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (!S_ISDIR(st.st_mode))
            names.push_back(name);
    }
    ::closedir(listing);
    for (const auto& name : names)
        ::unlinkat(dir.get(), name.c_str(), 0);
}

Status LocalFileSystem::removeFolder(const std::string& path)
{
    if (::rmdir(path.c_str()) != 0)
        return lastError(path);
    return {};
}

Status LocalFileSystem::removeFile(const std::string& path)
{
    if (::unlink(path.c_str()) != 0)
        return lastError(path);
    return {};
}

Status LocalFileSystem::rename(const std::string& from, const std::string& to)
{
    if (::rename(from.c_str(), to.c_str()) != 0)
        return lastError(to);
    return {};
}

Status LocalFileSystem::copyFile(const std::string& from, const std::string& to, const CopyProgress& progress)
{
    if (from.empty()) {
        errno = ENOENT;
        return lastError(from);
    }
    Fd in(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat src {};
    if (!in || ::fstat(in.get(), &src) != 0)
        return lastError(from);
    if (S_ISDIR(src.st_mode)) {
        errno = EISDIR;
        return lastError(from);
    }
    struct stat dst {};
    // Copying a file onto itself would empty it before reading it.
    if (::stat(to.c_str(), &dst) == 0 && dst.st_dev == src.st_dev && dst.st_ino == src.st_ino)
        return {};
    Fd out = openForWriting(to, O_CREAT | O_TRUNC);
    if (!out)
        return lastError(to);
    if (!streamCopy(in.get(), out.get(), progress) || out.close() != 0) {
        Error e = lastError(to);
        ::unlink(to.c_str());
        return e;
    }
    return {};
}

Status LocalFileSystem::writeFile(const std::string& path, std::string_view bytes)
{
    Fd out = openForWriting(path, O_CREAT | O_TRUNC);
    if (!out)
        return lastError(path);
    if (!writeAll(out.get(), bytes) || out.close() != 0) {
        Error e = lastError(path);
        ::unlink(path.c_str());
        return e;
    }
    return {};
}

Status LocalFileSystem::appendToFile(const std::string& path, std::string_view bytes)
{
    Fd out = openForWriting(path, O_APPEND);
    if (!out)
        return lastError(path);
    if (!writeAll(out.get(), bytes) || out.close() != 0)
        return lastError(path);
    return {};
}

Result<std::string> LocalFileSystem::readFile(const std::string& path)
{
    auto bytes = readFileBytes(path);
    if (!bytes) {
        Error e = inFrench(bytes.error());
        e.description += " : " + path;
        return e;
    }
    return std::move(bytes).value();
}

Result<std::string> LocalFileSystem::readRange(const std::string& path, std::uint64_t offset, std::size_t count)
{
    Fd file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file)
        return lastError(path);
    std::string bytes(count, '\0');
    std::size_t got = 0;
    while (got < count) {
        const ssize_t n = ::pread(file.get(), bytes.data() + got, count - got, off_t(offset + got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return lastError(path);
        if (n == 0)
            break;
        got += std::size_t(n);
    }
    bytes.resize(got);
    return bytes;
}

Result<std::string> LocalFileSystem::createTempFile()
{
    std::string path = tempPattern(".dat");
    const int fd = ::mkstemps(path.data(), 4);
    if (fd < 0)
        return lastError(path);
    ::close(fd);
    return path;
}

Result<std::string> LocalFileSystem::createTempFolder()
{
    std::string path = tempPattern("");
    if (!::mkdtemp(path.data()))
        return lastError(path);
    return withTrailingSeparator(path);
}

std::string LocalFileSystem::homeFolder()
{
    const char* home = std::getenv("HOME");
    return withTrailingSeparator(home && *home ? home : "/");
}

std::string LocalFileSystem::desktopFolder()
{
    const std::string home = homeFolder();
    const char* config = std::getenv("XDG_CONFIG_HOME");
    const std::string folder = config && *config ? withTrailingSeparator(config) : home + ".config/";
    auto text = readFileBytes(folder + "user-dirs.dirs");
    return desktopFolderOf(text ? std::string_view(*text) : std::string_view(), home);
}

std::string desktopFolderOf(std::string_view userDirs, const std::string& home)
{
    std::string found;
    forEachLine(userDirs, [&](std::string_view line) {
        constexpr std::string_view key = "XDG_DESKTOP_DIR=";
        if (line.substr(0, key.size()) != key)
            return;
        std::string value(line.substr(key.size()));
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        if (value.rfind("$HOME", 0) == 0)
            value = home + std::string(dropChars(value, value.size() > 5 && value[5] == '/' ? 6 : 5));
        found = value;
    });
    if (found.empty() || found.front() != '/')
        found = home + "Desktop";
    return withTrailingSeparator(found);
}

}  // namespace qor
