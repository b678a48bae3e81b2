#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qor {

// True when path names an existing file (not a folder).
bool fileExistsOnDisk(const std::string& path);

// How a file path is written into a project file being saved at target: a
// file that lies beside the target is stored by its bare name, any other by
// its full path. A bare name read earlier refers to the folder of the file
// the project came from (previousFilePath), so it is made full against that
// folder first.
class RelativePathRule {
public:
    using FileExists = std::function<bool(const std::string& path)>;

    RelativePathRule(std::string target, std::string previousFilePath,
                     FileExists fileExists = fileExistsOnDisk);

    std::string apply(std::string_view path) const;

private:
    std::string targetFolder_;
    std::string previousFolder_;
    FileExists fileExists_;
};

}  // namespace qor
