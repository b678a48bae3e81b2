#include "core/project/qmb_import.h"

#include <cerrno>
#include <filesystem>

#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor {
Message qmbNotInstalledMessage()
{
    return Message{"La prise en charge du format QMB n'est pas installée !\r\n"
                   "Rendez-vous sur le site officiel, rubrique téléchargements.",
                   "", MessageIcon::Information};
}

Message qmbConvertedMessage()
{
    return Message{"Il faudra redéfinir les actions des boutons car elles ne sont pas récupérables d'un fichier QMB.",
                   "Conversion terminée", MessageIcon::Information};
}

void QmbImport::run(const std::string& qmbPath)
{
    if (Status created = converter_.create(); !created) {
        if (created.error().number == err::CannotCreateObject)
            dialogs_.message(qmbNotInstalledMessage());
        else
            dialogs_.message(Message{created.error().description,
                                     "Erreur n°" + std::to_string(created.error().number), MessageIcon::Critical});
        return;
    }
    Status done = convertAndLoad(qmbPath);
    if (!done)
        dialogs_.message(Message{done.error().description, "Erreur n°" + std::to_string(done.error().number),
                                 MessageIcon::Critical});
}

Status QmbImport::convertAndLoad(const std::string& qmbPath)
{
    struct Release {
        QmbConverter& c;
        bool released = false;
        void now() { if (!released) { c.release(); released = true; } }
        ~Release() { now(); }
    } release{converter_};

    const auto chosen = dialogs_.pickFolder(kQmbFolderPrompt);
    if (!chosen || chosen->empty())
        return makeError(err::FolderNotChosen);

    const std::string target =
        withTrailingSeparator(*chosen) + replaceNoCase(fileNameOf(qmbPath), ".qmb", "") + "/";
    std::error_code ec;
    if (!std::filesystem::create_directory(target, ec))
        return inFrench(fileSystemError(ec ? ec.value() : EEXIST));

    auto project = converter_.qmbToQor(qmbPath, target);
    if (!project)
        return project.error();
    release.now();

    dialogs_.message(qmbConvertedMessage());
    load_(*project);
    return {};
}

}  // namespace qor
