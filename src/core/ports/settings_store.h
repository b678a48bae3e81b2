#pragma once

#include <string>

namespace qor {

// The per-user application settings: string values by application, section
// and key. A value never written reads as the caller's default.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::string get(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& defaultValue) = 0;

    // False when the value could not be stored (a read-only store, say).
    virtual bool save(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& value) = 0;
};

}  // namespace qor
