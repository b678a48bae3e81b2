#pragma once

#include <string>
#include <vector>

#include "core/ports/file_type_registry.h"

namespace qor::test {

// Records each registration the core asked for.
class FakeFileTypeRegistry : public FileTypeRegistry {
public:
    struct Registration {
        std::string executablePath, description;
        friend bool operator==(const Registration&, const Registration&) = default;
    };
    std::vector<Registration> registrations;

    void registerProjectFiles(const std::string& executablePath, const std::string& description) override
    {
        registrations.push_back({executablePath, description});
    }
};

}  // namespace qor::test
