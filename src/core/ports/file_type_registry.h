#pragma once

#include <string>

namespace qor {

// The desktop's own registration of project files (on a Linux desktop: a
// shared-mime-info type for *.qor and an application entry that opens it).
// Registration is best effort: failures are not reported to the user.
class FileTypeRegistry {
public:
    virtual ~FileTypeRegistry() = default;

    // Makes the desktop open "*.qor" files with the program at executablePath.
    // description names the file type ("Source d'un menu QOR").
    virtual void registerProjectFiles(const std::string& executablePath,
                                      const std::string& description) = 0;
};

}  // namespace qor
