#include "core/build/value_check.h"

#include <string_view>

#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

using R = DataValueFault::Record;

struct PlaceName {
    R record;
    std::string_view field;
    std::string_view text;   // for an element, followed by its number
};

// Every text row of the data's tables; a row missing here is named by its
// field, which a test forbids.
constexpr PlaceName kPlaces[] = {
    {R::Project, "backgroundImage", "l'image de fond"},
    {R::Project, "backgroundMusic", "la musique de fond"},
    {R::Project, "startupAction", "l'action au démarrage"},
    {R::Project, "timerInterval", "l'intervalle du minuteur"},
    {R::Project, "timerScript", "le code du minuteur"},
    {R::Project, "globalScript", "le code global"},
    {R::Project, "clickSound", "le son du clic"},
    {R::Project, "hoverSound", "le son du survol"},
    {R::Project, "transparencyImage", "l'image pour la transparence"},
    {R::Project, "windowHoverScript", "les actions au survol de la feuille"},
    {R::Info, "projectName", "le nom du projet"},
    {R::Info, "author", "l'auteur du projet"},
    {R::Info, "subMenuName", "le nom du sous menu"},
    {R::Button, "normalImage", "l'image normale du bouton n°"},
    {R::Button, "hoverImage", "l'image de survol du bouton n°"},
    {R::Button, "pressedImage", "l'image du clic du bouton n°"},
    {R::Button, "kind", "le type du bouton n°"},
    {R::Button, "action", "l'action du bouton n°"},
    {R::Button, "hoverScript", "les actions au survol du bouton n°"},
    {R::Text, "content", "le texte n°"},
    {R::Text, "fontName", "la police du texte n°"},
    {R::Text, "settings", "les réglages du texte n°"},
};

std::string_view problemText(DataValueProblem p)
{
    switch (p) {
    case DataValueProblem::Separator: return "contient le caractère « ¬ », qui sépare les lignes du menu compilé";
    case DataValueProblem::LineBreakMark:
        return "contient le caractère « ¤ », qui marque les retours à la ligne du menu compilé";
    case DataValueProblem::LineBreak: return "contient un retour à la ligne, impossible à cet endroit";
    case DataValueProblem::NulByte: return "contient un caractère nul";
    case DataValueProblem::NotWestern:
        return "contient des caractères que le menu compilé ne peut pas écrire (lettres d'Europe de l'Ouest "
               "seulement)";
    case DataValueProblem::NameTooLong: return "dépasse 255 caractères";
    case DataValueProblem::NoFileName: return "ne nomme aucun fichier";
    }
    return "";
}

// The value as a message can show it: on one line, and not 10 000 characters long.
std::string shown(std::string_view value)
{
    constexpr std::size_t kLongest = 60;
    std::string out = replaceAll(replaceAll(replaceAll(value, "\r\n", "↵"), "\r", "↵"), "\n", "↵");
    out = replaceAll(out, std::string_view("\0", 1), "\\0");
    if (utf8Length(out) > kLongest)
        out = leftChars(out, kLongest) + "…";
    return out;
}

}  // namespace

std::string valuePlace(const DataValueFault& fault)
{
    for (const auto& p : kPlaces)
        if (p.record == fault.record && p.field == fault.field) {
            std::string text(p.text);
            if (fault.record == R::Button || fault.record == R::Text)
                text += std::to_string(fault.number);
            return text;
        }
    return "la valeur '" + std::string(fault.field) + "'";
}

Message unwritableValueMessage(const DataValueFault& fault)
{
    const bool isFile = fault.kind == DataValueKind::FileName;
    std::string place = valuePlace(fault);
    if (!place.empty())
        place[0] = static_cast<char>(toupper(static_cast<unsigned char>(place[0])));
    return Message{"Compilation impossible : " + place + " (« " + shown(fault.value) + " ») " +
                       std::string(problemText(fault.problem)) + ". " +
                       (isFile && fault.record != R::Info ? "Renommez ce fichier" : "Corrigez cette valeur") + " puis compilez à nouveau.",
                   "Compilation", MessageIcon::Exclamation};
}

namespace {

// A button the data leaves out (one of its images missing, no kind) still
// has its images copied: their names must make files of qor/ too.
std::optional<DataValueFault> unwritableCopiedImage(const MenuProject& project)
{
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project.button(n);
        if (b.kind == button_kind::deleted || b.normalImage.empty() || b.isSavable())
            continue;
        for (auto [field, stored] : {std::pair{"normalImage", &b.normalImage}, std::pair{"hoverImage", &b.hoverImage},
                                     std::pair{"pressedImage", &b.pressedImage}}) {
            const std::string name = fileNameOf(*stored);
            if (stored->empty())
                continue;   // the copy of nothing fails as it always has
            if (auto problem = dataValueProblem(name, DataValueKind::FileName))
                return DataValueFault{R::Button, n, field, name, *problem, DataValueKind::FileName};
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<DataValueFault> firstUnwritableValue(const MenuProject& project, const CompileRequest& request)
{
    if (auto fault = findDataValueFault(project, MenuDataInfo{request.projectName, request.author}))
        return fault;
    if (auto fault = unwritableCopiedImage(project))
        return fault;
    if (!request.subMenu)
        return std::nullopt;
    const std::string file = request.subMenuName + ".exe";
    if (auto problem = dataValueProblem(file, DataValueKind::FileName))
        return DataValueFault{R::Info, 0, "subMenuName", request.subMenuName, *problem, DataValueKind::FileName};
    return std::nullopt;
}

}  // namespace qor
