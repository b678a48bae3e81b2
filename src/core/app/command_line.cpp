#include "core/app/command_line.h"

#include <filesystem>
#include <system_error>

namespace qor {

CommandLineRequest readCommandLine(std::string_view rawArguments,
                                   const std::function<bool(const std::string&)>& fileExists)
{
    std::string value;
    for (char c : rawArguments)
        if (c != '"')
            value += c;

    CommandLineRequest request;
    if (value == kMaintenanceWord) {
        request.maintenance = true;
        return request;
    }
    if (value.size() < 4 || value.compare(value.size() - 4, 4, ".qor") != 0 || !fileExists(value))
        return request;
    // Remembered as the startup project and among the recent files, the
    // path must still lead to the file from another working folder.
    std::error_code failed;
    const std::filesystem::path full = std::filesystem::absolute(value, failed);
    request.startupProject = failed ? value : full.lexically_normal().string();
    return request;
}

std::string joinArguments(int argc, const char* const* argv)
{
    std::string out;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            out += ' ';
        out += argv[i];
    }
    return out;
}

}  // namespace qor
