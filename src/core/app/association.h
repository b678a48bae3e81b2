#pragma once

#include <string>
#include <vector>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ports/file_type_registry.h"
#include "core/ports/settings_store.h"

namespace qor {

// One value of the file-type association: a registry key (kept as the
// section name of the per-user store) and its default value.
struct AssociationEntry {
    std::string section;
    std::string value;

    friend bool operator==(const AssociationEntry&, const AssociationEntry&) = default;
};

// The key under which each section keeps its default value.
inline constexpr const char* kAssociationValueKey = "Default";
inline constexpr const char* kProjectFileTypeDescription = "Source d'un menu QOR";

// The five values, in writing order: the program's key, the "QOR" class and
// its description, the ".qor" extension, the open command (the executable
// lower-cased and quoted, then "%1" quoted) and the default icon.
std::vector<AssociationEntry> associationEntries(const std::string& programFolder,
                                                 const std::string& executableFile);

// Writes the five values into the per-user store and registers the type with
// the desktop. Failures are not reported: the association is a convenience.
void associateProjectFiles(const AppState& state, SettingsStore& store, FileTypeRegistry& registry);

// "Fichiers associés !", shown after the Options command.
Message filesAssociatedMessage();

}  // namespace qor
