#pragma once

#include <QString>

#include "core/ports/settings_store.h"

class QSettings;

namespace qor {

// The per-user settings store: one INI file per application name, in the
// user's configuration folder (~/.config/QOR/QOR.ini for "QOR"). Section
// "General" is the file's own [General] section; every other section is a
// section of that name. Sections and keys are found regardless of letter
// case, as the store of the original platform does, so a value written under
// "Langue" reads back under "langue".
class QtSettingsStore : public SettingsStore {
public:
    // folder empty: the user's configuration folder; otherwise the files go
    // there (tests use a temporary folder).
    explicit QtSettingsStore(QString folder = {});

    std::string get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& defaultValue) override;
    bool save(const std::string& application, const std::string& section,
              const std::string& key, const std::string& value) override;

    // The file that holds an application's settings.
    QString fileName(const std::string& application) const;

private:
    QString folder_;
};

}  // namespace qor
