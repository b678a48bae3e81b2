#include "core/designer/designer_context.h"

#include <filesystem>

namespace qor {

bool fileExists(const std::string& path)
{
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

std::optional<std::string> askFile(Dialogs& dialogs, const std::string& title, const std::string& filter)
{
    return dialogs.openFile(FileDialogRequest{title, filter, "", ""});
}

std::optional<std::string> askImage(Dialogs& dialogs, const std::string& title)
{
    auto chosen = askFile(dialogs, title, std::string(kImageFilter));
    if (!chosen)
        return std::nullopt;
    return fileExists(*chosen) ? *chosen : std::string();
}

}  // namespace qor
