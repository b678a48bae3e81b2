#include "core/shape/shape_messages.h"

#include <iterator>

namespace qor {
namespace {

struct Row {
    ShapeMessage which;
    const char* text;
    MessageIcon icon;
    MessageButtons buttons;
};

constexpr const char* kAbandon = "Abandonner la forme en cours ?";

constexpr Row kMessages[] = {
    {ShapeMessage::ClearShape, "Effacer la forme du menu en cours ?", MessageIcon::Question, MessageButtons::YesNo},
    {ShapeMessage::AbandonShape, kAbandon, MessageIcon::Question, MessageButtons::YesNo},
    {ShapeMessage::FinishBeforeLoad, "Veuillez terminer la forme en cours avant de Charger(clique droit) !",
     MessageIcon::Exclamation, MessageButtons::Ok},
    {ShapeMessage::FinishBeforeValidate, "Veuillez terminer la forme en cours avant de Valider (clique droit) !",
     MessageIcon::Exclamation, MessageButtons::Ok},
    {ShapeMessage::FinishBeforeSave, "Veuillez terminer la forme en cours avant de la Sauver (clique droit) !",
     MessageIcon::Exclamation, MessageButtons::Ok},
};

}  // namespace

Message shapeMessage(ShapeMessage which)
{
    for (const Row& r : kMessages)
        if (r.which == which)
            return {r.text, kShapeEditorTitle, r.icon, r.buttons};
    return {};
}

Message restartQuestion(const Phrases& phrases, const std::string& editorCaption)
{
    Message m = shapeMessage(ShapeMessage::AbandonShape);
    if (phrases.languageActive()) {
        m.text = phrases.text(3, kAbandon);
        m.title = editorCaption;
    }
    return m;
}

Message shapeFileErrorMessage(const Error& error)
{
    return {"Erreur : " + error.description, "Erreur n°" + std::to_string(error.number), MessageIcon::Critical,
            MessageButtons::Ok};
}

}  // namespace qor
