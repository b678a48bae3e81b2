#pragma once

#include <string>

#include "core/ports/dialogs.h"
#include "core/ui/phrases.h"
#include "text/error.h"

namespace qor {

// Every message of the shape panel.
enum class ShapeMessage {
    ClearShape,        // "Pas de forme"
    AbandonShape,      // "Annuler"
    FinishBeforeLoad,  // "Charger" while drawing
    FinishBeforeValidate,
    FinishBeforeSave,
};

// The title of the panel's messages.
inline constexpr const char* kShapeEditorTitle = "Editeur de forme";

Message shapeMessage(ShapeMessage which);

// "Recommencer": the French question, or phrase 3 titled with the toolbox
// command's caption when another language is active.
Message restartQuestion(const Phrases& phrases, const std::string& editorCaption);

// A failed load or save: "Erreur : " and the description, titled
// "Erreur n°" and the number.
Message shapeFileErrorMessage(const Error& error);

}  // namespace qor
