#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "core/build/local_file_system.h"
#include "temp_dir.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

TEST(LocalFileSystem, EmptyingAFolderNeverReachesThroughLinks)
{
    TempDir dir;
    TempDir outside;
    outside.write("precious.txt", "precious");
    fs::create_directories(dir.path() / "qor" / "sub");
    dir.write("qor/a.png", "a");
    dir.write("qor/sub/inner.txt", "inner");
    fs::create_symlink(outside.file("precious.txt"), dir.path() / "qor" / "link.txt");
    fs::create_directory_symlink(outside.path(), dir.path() / "qor" / "linkdir");
    fs::create_directory_symlink(outside.path(), dir.path() / "qorlink");

    LocalFileSystem files;
    files.removeFilesIn(dir.file("qorlink") + "/");
    EXPECT_EQ(outside.read("precious.txt"), "precious");
    files.removeFilesIn(dir.file("qor") + "/");
    EXPECT_FALSE(fs::exists(dir.path() / "qor" / "a.png"));
    EXPECT_FALSE(fs::is_symlink(dir.path() / "qor" / "link.txt"));
    EXPECT_FALSE(fs::is_symlink(dir.path() / "qor" / "linkdir"));
    EXPECT_EQ(dir.read("qor/sub/inner.txt"), "inner");
    EXPECT_EQ(outside.read("precious.txt"), "precious");
    EXPECT_FALSE(files.removeFolder(dir.file("qor")));  // the sub-folder keeps it
    EXPECT_EQ(files.kind(dir.file("qorlink")), PathKind::Link);
    EXPECT_TRUE(files.isFolder(dir.file("qorlink")));
}

TEST(LocalFileSystem, CopiesStreamAndNeverWriteThroughALink)
{
    TempDir dir;
    TempDir outside;
    const std::string big(3 * LocalFileSystem::kCopyChunk / 2 + 7, 'x');
    dir.write("big.bin", big);
    outside.write("target.txt", "keep me");
    fs::create_symlink(outside.file("target.txt"), dir.path() / "copy.bin");

    LocalFileSystem files;
    std::vector<std::uint64_t> reports;
    ASSERT_TRUE(files.copyFile(dir.file("big.bin"), dir.file("copy.bin"), [&](std::uint64_t n) {
        reports.push_back(n);
    }));
    EXPECT_EQ(dir.read("copy.bin"), big);
    EXPECT_FALSE(fs::is_symlink(dir.path() / "copy.bin"));
    EXPECT_EQ(outside.read("target.txt"), "keep me");
    ASSERT_GE(reports.size(), 2u);
    EXPECT_EQ(reports.back(), big.size());

    // Onto itself: left whole.
    ASSERT_TRUE(files.copyFile(dir.file("big.bin"), dir.file("big.bin"), nullptr));
    EXPECT_EQ(dir.read("big.bin"), big);

    // What cannot be copied leaves nothing behind.
    for (const std::string& source : {dir.file("missing"), dir.folder(), std::string()}) {
        auto s = files.copyFile(source, dir.file("out.bin"), nullptr);
        ASSERT_FALSE(s) << source;
        EXPECT_FALSE(fs::exists(dir.path() / "out.bin")) << source;
    }
    EXPECT_EQ(files.copyFile(dir.file("missing"), dir.file("o"), nullptr).error().number, err::FileNotFound);
    EXPECT_FALSE(files.appendToFile(dir.file("missing"), "x"));
}

// A file-size limit stands for a disk that fills up: the copy fails with
// "Disque plein" and leaves no partial file. Run in a child process, whose
// limit cannot reach the rest of the tests.
TEST(LocalFileSystem, AFullDiskFailsTheCopyCleanly)
{
    TempDir dir;
    dir.write("big.bin", std::string(1 << 20, 'x'));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{64 * 1024, 64 * 1024};
        setrlimit(RLIMIT_FSIZE, &limit);
        LocalFileSystem files;
        auto s = files.copyFile(dir.file("big.bin"), dir.file("copy.bin"), nullptr);
        const bool clean = !s && s.error().number == err::DiskFull && !fs::exists(dir.path() / "copy.bin");
        _exit(clean ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(LocalFileSystem, TemporaryFilesAreUniqueAndNewFoldersEndWithASlash)
{
    LocalFileSystem files;
    auto a = files.createTempFile();
    auto b = files.createTempFile();
    ASSERT_TRUE(a && b);
    EXPECT_NE(*a, *b);
    EXPECT_EQ(fs::path(*a).parent_path(), fs::temp_directory_path());
    EXPECT_TRUE(files.removeFile(*a) && files.removeFile(*b));
    auto folder = files.createTempFolder();
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->back(), '/');
    EXPECT_TRUE(files.removeFolder(*folder));
}

TEST(LocalFileSystem, DesktopFolderFromTheUserDirs)
{
    const std::pair<const char*, const char*> rows[] = {
        {"# comment\nXDG_DESKTOP_DIR=\"$HOME/Bureau\"\n", "/home/u/Bureau/"},
        {"XDG_DESKTOP_DIR=\"/data/desk/\"\n", "/data/desk/"},
        {"XDG_DOWNLOAD_DIR=\"$HOME/T\"\n", "/home/u/Desktop/"},
        {"", "/home/u/Desktop/"},
    };
    for (const auto& [text, folder] : rows)
        EXPECT_EQ(desktopFolderOf(text, "/home/u/"), folder) << text;
}

}  // namespace
}  // namespace qor::test
