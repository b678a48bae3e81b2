#pragma once

#include <map>
#include <string>
#include <tuple>

#include "core/ports/settings_store.h"

namespace qor::test {

// An in-memory settings store. With writable false every save fails, as a
// store on a read-only disk would.
class FakeSettings : public SettingsStore {
public:
    using Key = std::tuple<std::string, std::string, std::string>;
    std::map<Key, std::string> values;
    bool writable = true;
    int saveCount = 0;

    std::string get(const std::string& app, const std::string& section, const std::string& key,
                    const std::string& defaultValue) override
    {
        auto it = values.find({app, section, key});
        return it == values.end() ? defaultValue : it->second;
    }

    bool save(const std::string& app, const std::string& section, const std::string& key,
              const std::string& value) override
    {
        ++saveCount;
        if (!writable)
            return false;
        values[{app, section, key}] = value;
        return true;
    }

    // The stored value of the editor's own application "QOR", or "<unset>".
    std::string qor(const std::string& section, const std::string& key) const
    {
        auto it = values.find({"QOR", section, key});
        return it == values.end() ? "<unset>" : it->second;
    }
};

}  // namespace qor::test
