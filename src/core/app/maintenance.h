#pragma once

#include <optional>
#include <string>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ports/settings_store.h"

namespace qor {

inline constexpr const char* kMaintenanceTitle = "QOR - Mode débogage";

// The hidden maintenance mode ("maintien" on the command line): asks for a
// code, repairs one thing of the installation and reports it. The editor's
// windows are never shown and the editor quits afterwards.
//  1 forgets the manual's folder, 2 empties "plugins.ini", 3 rewrites the
//  default "apparences.ini", 4 empties "qor_options.ini"; 6 and 7 (component
//  registration, which this platform does not need) only show their
//  messages. 0, an empty answer, "abc" or any other code shows nothing.
// A repair that fails shows its error instead of the message.
void runMaintenance(const AppState& state, Dialogs& dialogs, SettingsStore& settings);

// The message a code reports after its action, or nothing for a code not in the table.
std::optional<std::string> maintenanceMessage(double code, const std::string& newline);

}  // namespace qor
