#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "text/error.h"

namespace qor {

inline constexpr std::string_view kCrLf = "\r\n";

// Splits text into lines at CR LF, LF or CR. A line end at the very end of
// the text does not start one more (empty) line; an empty text has no lines.
std::vector<std::string> splitLines(std::string_view text);

// Calls f(line) for every line of text, with the same rule as splitLines,
// without building a vector.
template <class F>
void forEachLine(std::string_view text, F&& f)
{
    std::size_t start = 0;
    const std::size_t n = text.size();
    const char* data = text.data();
    while (start < n) {
        std::size_t i = start;
        while (i < n && data[i] != '\r' && data[i] != '\n')
            ++i;
        f(text.substr(start, i - start));
        if (i < n && data[i] == '\r' && i + 1 < n && data[i + 1] == '\n')
            ++i;
        start = i + 1;
    }
}

// Lines joined with CR LF, every line (the last one too) ending with CR LF.
std::string joinLinesCrLf(const std::vector<std::string>& lines);

// The whole content of a file, as bytes.
Result<std::string> readFileBytes(const std::filesystem::path& path);

// A Windows-1252 text file, decoded to UTF-8 and split into lines.
Result<std::vector<std::string>> readLineFile(const std::filesystem::path& path);

// Writes bytes to path so that the old file is never lost: the bytes go to a
// new file in the same folder, which then replaces path. On any failure the
// old file (if any) stays whole and the new one is removed.
Status writeFileAtomically(const std::filesystem::path& path, std::string_view bytes);

// Writes lines as a Windows-1252 file with CR LF line ends, atomically.
Status writeLineFile(const std::filesystem::path& path, const std::vector<std::string>& lines);

// The Error for a failed system call on a file (errno value).
Error fileSystemError(int errnoValue);

}  // namespace qor
