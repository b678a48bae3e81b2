#include "core/wizard/wizard_dialogues.h"

#include "text/text_helpers.h"

namespace qor {
namespace {

Message openQuestion(std::string text, std::string_view caption, MessageButtons buttons)
{
    return Message{std::move(text), std::string(caption), MessageIcon::Question, buttons};
}

std::optional<OpenTarget> answered(std::string kind, std::string target)
{
    if (target.empty())
        return std::nullopt;
    return OpenTarget{std::move(kind), std::move(target)};
}

}  // namespace

std::optional<OpenTarget> askOpenTarget(Dialogs& dialogs, std::string_view caption)
{
    const std::string title(caption);
    const Answer web = dialogs.message(openQuestion(
        "Voulez-vous ouvrir une page internet ? (cliquez sur non si vous voulez ouvrir un document ou un programme).",
        caption, MessageButtons::YesNoCancel));
    if (web == Answer::Yes)
        return answered("SITE", dialogs.inputBox("Entrez l'adresse de la page :", title, std::string(kExampleAddresses)));
    if (web != Answer::No)
        return std::nullopt;
    const Answer onCd =
        dialogs.message(openQuestion("Le fichier à ouvrir sera t'il sur le CD ?", caption, MessageButtons::YesNo));
    if (onCd == Answer::Yes)
        return answered("CD", dialogs.inputBox("Entrez le nom de ce fichier (ex: [LECT]:\\mon_prog.exe, "
                                               "[LECT]:\\mon_doc.doc , [LECT] sera alors automatiquement remplacé "
                                               "par la lettre du lecteur CD) :",
                                               title, "[LECT]:\\..."));
    return answered("DISQUE", dialogs.inputBox("Entrez le chemin de ce fichier (ex: notepad.exe, c:\\prog.exe, "
                                               "c:\\document.doc ...) :",
                                               title, ""));
}

std::optional<MenuMessage> askMenuMessage(Dialogs& dialogs, std::string_view caption, const MenuMessage& previous)
{
    const std::string title(caption);
    const std::string typedTitle = dialogs.inputBox("Titre de message :", title, previous.title);
    if (typedTitle.empty())
        return std::nullopt;
    const std::string typedText = dialogs.inputBox("Message (tapez [R] pour aller à la ligne) :", title,
                                                   messageTextAsTyped(previous.text));
    if (typedText.empty())
        return std::nullopt;
    return MenuMessage{replaceAll(typedTitle, "\"", "'"), typedMessageText(typedText)};
}

std::string typedMessageText(std::string_view typed)
{
    return replaceAll(replaceNoCase(typed, "[R]", "\r\n"), "\"", "'");
}

std::string messageTextAsTyped(std::string_view text)
{
    return replaceAll(text, "\r\n", "[R]");
}

}  // namespace qor
