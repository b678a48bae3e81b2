#include "core/app/user_settings.h"

namespace qor {

std::string UserSettings::get(const std::string& section, const std::string& key,
                              const std::string& defaultValue)
{
    return store_.get(kSettingsApplication, section, key, defaultValue);
}

bool UserSettings::save(const std::string& section, const std::string& key, const std::string& value)
{
    if (store_.save(kSettingsApplication, section, key, value))
        return true;
    if (!state_.settingsFailureReported) {
        state_.settingsFailureReported = true;
        dialogs_.message(settingsNotSavedMessage());
    }
    return false;
}

bool UserSettings::saveQuietly(const std::string& section, const std::string& key,
                               const std::string& value)
{
    return store_.save(kSettingsApplication, section, key, value);
}

Message settingsNotSavedMessage()
{
    return Message{"Les réglages de QOR ne peuvent pas être enregistrés : la liste des fichiers récents, "
                   "la langue et l'emplacement du manuel ne seront pas conservés.",
                   "Erreur", MessageIcon::Exclamation};
}

}  // namespace qor
