#include "core/app/maintenance.h"

#include "core/app/options_file.h"
#include "core/app/plugins.h"
#include "core/app/user_settings.h"
#include "core/ui/appearances_file.h"
#include "text/line_file.h"
#include "text/numbers.h"

namespace qor {

std::optional<std::string> maintenanceMessage(double code, const std::string& newline)
{
    if (code == 1) return "Lien QOR <-> Manuel re-initialisé !";
    if (code == 2) return "Fichier plugins.ini vidé";
    if (code == 3) return "Apparences personnalisées détruitres" + newline + newline + "Apparences par défaut re-créés";
    if (code == 4) return "Fichier qor_options.ini vidé";
    if (code == 6) return "OCXs enregistrés !";
    if (code == 7) return "OCXs désenregistrés !";
    return std::nullopt;
}

void runMaintenance(const AppState& state, Dialogs& dialogs, SettingsStore& settings)
{
    const std::string answer =
        dialogs.inputBox("Code débogage ?" + state.newline + state.newline + "#", kMaintenanceTitle, "0");
    // Codes are compared as read: "1.5" is no code at all.
    const double code = readNumber(answer);
    if (code == 0)
        return;

    Status done;
    if (code == 1) {
        if (!settings.save(kSettingsApplication, settings::Manual, settings::Folder, ""))
            done = Error{err::PermissionDenied, settingsNotSavedMessage().text};
    } else if (code == 2) {
        done = writeFileAtomically(state.programFile(kPluginsFileName), "");
    } else if (code == 3) {
        done = writeDefaultAppearancesFile(state.programFolder);
    } else if (code == 4) {
        done = writeFileAtomically(state.programFile(kOptionsFileName), "");
    }
    // 6 and 7 registered the runtime components elsewhere; nothing here needs them.

    if (!done) {
        const Error error = inFrench(done.error());
        dialogs.message(Message{"Erreur : " + error.description, "Erreur n°" + std::to_string(error.number), MessageIcon::Critical});
        return;
    }
    if (auto message = maintenanceMessage(code, state.newline))
        dialogs.message(Message{*message, kMaintenanceTitle, MessageIcon::Information});
}

}  // namespace qor
