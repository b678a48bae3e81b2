#include "core/scripting/assistant_prompts.h"

#include "text/numbers.h"

namespace qor {

std::optional<std::string> ask(Dialogs& dialogs, const Question& q)
{
    for (;;) {
        std::string answer = dialogs.inputBox(std::string(q.prompt), q.title, std::string(q.defaultText));
        if (answer.empty())
            return std::nullopt;
        if (q.check == NumberCheck::None || isNumeric(answer))
            return answer;
        const bool again = q.check == NumberCheck::AskAgain;
        dialogs.message({again ? "Nombre incorrect !" : "Valeur incorrect !", std::string(q.refusalTitle),
                         MessageIcon::Exclamation});
        if (!again)
            return std::nullopt;
    }
}

std::optional<std::string> askElement(Dialogs& dialogs, ElementKind kind)
{
    const std::string_view prompt = kind == ElementKind::TextBox ? "Numéro de la boîte de texte concernée :"
                                                                 : "Numéro du bouton concerné :";
    return ask(dialogs, {prompt, {}, "1"});
}

std::optional<std::string> askColour(Dialogs& dialogs)
{
    const auto colour = dialogs.pickColour(0);
    if (!colour)
        return std::nullopt;
    return std::to_string(*colour);
}

}  // namespace qor
