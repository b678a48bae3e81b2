#include "core/app/association.h"

#include "text/text_helpers.h"

namespace qor {

std::vector<AssociationEntry> associationEntries(const std::string& programFolder,
                                                 const std::string& executableFile)
{
    const std::string executable = programFolder + executableFile;
    return {
        {"Software\\QOR", executable},
        {"QOR", kProjectFileTypeDescription},
        {".qor", "QOR"},
        {"QOR\\shell\\open\\command", "\"" + toLowerText(executable) + "\" \"%1\""},
        {"QOR\\DefaultIcon", toLowerText(programFolder) + executableFile + ",0"},
    };
}

void associateProjectFiles(const AppState& state, SettingsStore& store, FileTypeRegistry& registry)
{
    for (const auto& e : associationEntries(state.programFolder, state.executableFile))
        store.save(kSettingsApplication, e.section, kAssociationValueKey, e.value);
    registry.registerProjectFiles(state.programFolder + state.executableFile, kProjectFileTypeDescription);
}

Message filesAssociatedMessage()
{
    return Message{"Fichiers associés !", "", MessageIcon::Information};
}

}  // namespace qor
