#include "core/picture/window_transparency.h"

namespace qor {

void WindowTransparencyFlows::popUp()
{
    if (!view_)
        return;
    if (const auto chosen = view_->popUpOutlineMenu())
        run(*chosen);
}

void WindowTransparencyFlows::run(OutlineCommand command)
{
    switch (command) {
    case OutlineCommand::ChooseImage: chooseImage(); break;
    case OutlineCommand::ShowImage: showImage(); break;
    case OutlineCommand::DontUse: project_.transparencyImage.clear(); break;
    case OutlineCommand::Information: dialogs_.message(outlineInformationMessage()); break;
    case OutlineCommand::Cancel: break;
    }
}

void WindowTransparencyFlows::chooseImage()
{
    // The dialog starts in the current folder and leaves it as it was.
    const auto chosen = dialogs_.openFile(
        {"Image pour la transparence...", "Fichier BMP ou GIF avec transparence | *.bmp;*.gif", "", ""});
    if (chosen && !chosen->empty())
        project_.transparencyImage = *chosen;
}

void WindowTransparencyFlows::showImage()
{
    if (project_.transparencyImage.empty()) {
        dialogs_.message(noOutlineImageMessage());
        return;
    }
    const std::string path = project_.resolve(project_.transparencyImage);
    if (!view_ || !view_->showOutlineImage(path)) {
        dialogs_.message(outlineUnreadableMessage(path));
        return;
    }
    dialogs_.message(outlineClickBackMessage());
}

Message outlineInformationMessage()
{
    return {"La 'transparence' est une alternative à l'éditeur de forme (qui lui, permet de donner une forme "
            "particulière au menu en traçant un polygone), elle permet de rendre certaines zones de votre menu "
            "transparentes, pour cela vous devez utiliser une image (faite avec Paint par exemple). Tous les "
            "pixels blancs deviendront alors transparents (fonctionne aussi avec les images GIF). L'avantage de "
            "cette technique est la précision et la possibilité de créer des formes 'souples' (cercles, "
            "arrondis...).",
            "Informations sur la transparence", MessageIcon::Information};
}

Message noOutlineImageMessage()
{
    return {"Aucune image définie !", "", MessageIcon::Exclamation};
}

Message outlineClickBackMessage()
{
    return {"Cliquez sur l'image pour revenir", "", MessageIcon::Information};
}

Message outlineUnreadableMessage(const std::string& path)
{
    return {"Impossible de lire l'image '" + path + "'.", "Erreur !", MessageIcon::Critical};
}

}  // namespace qor
