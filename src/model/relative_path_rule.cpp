#include "model/relative_path_rule.h"

#include <filesystem>
#include <system_error>

#include "text/text_helpers.h"

namespace qor {

bool fileExistsOnDisk(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

RelativePathRule::RelativePathRule(std::string target, std::string previousFilePath,
                                   FileExists fileExists)
    : targetFolder_(folderOf(target)),
      previousFolder_(folderOf(previousFilePath)),
      fileExists_(std::move(fileExists))
{
}

std::string RelativePathRule::apply(std::string_view path) const
{
    if (path.empty())
        return {};
    std::string name = fileNameOf(path);
    if (fileExists_(targetFolder_ + name))
        return name;
    if (!hasSeparator(path))
        return previousFolder_ + name;
    return std::string(path);
}

}  // namespace qor
