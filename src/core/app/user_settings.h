#pragma once

#include <string>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ports/settings_store.h"

namespace qor {

// Sections and keys of the per-user settings store (application "QOR").
namespace settings {
inline constexpr const char* General = "General";
inline constexpr const char* Manual = "Manuel";
inline constexpr const char* RecentFiles = "FichiersRecents";

inline constexpr const char* Language = "langue";      // General
inline constexpr const char* Folder = "Chemin";        // General: program folder; Manuel: manual folder
inline constexpr const char* ExeName = "NomExe";       // General
inline constexpr const char* Version = "Version";      // General
inline constexpr const char* LastTime = "DernHeure";   // General
inline constexpr const char* LastDate = "DernDate";    // General
inline constexpr const char* TimesOpened = "FoisDem";  // Manuel
}  // namespace settings

// The per-user settings of the editor. A store that refuses a write the user
// cares about (recent files, manual, language) is reported once per run, so
// the user learns why they are forgotten without being told at every step.
class UserSettings {
public:
    UserSettings(AppState& state, SettingsStore& store, Dialogs& dialogs)
        : state_(state), store_(store), dialogs_(dialogs) {}

    std::string get(const std::string& section, const std::string& key,
                    const std::string& defaultValue = "");

    // Saves a value; on failure shows settingsNotSavedMessage() the first time.
    bool save(const std::string& section, const std::string& key, const std::string& value);

    // Saves a value that the editor never reads back; failures stay silent.
    bool saveQuietly(const std::string& section, const std::string& key, const std::string& value);

    SettingsStore& store() { return store_; }

private:
    AppState& state_;
    SettingsStore& store_;
    Dialogs& dialogs_;
};

Message settingsNotSavedMessage();

}  // namespace qor
