#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "player/core/stage.h"
#include "script/module.h"

namespace qor::player {

// Gives a module the menu's run-time objects: Fenetre, Ecran, Bordure,
// ImageFond, Minuteur, Action, and Bouton<n> / Texte<n> for each button
// and text box of the scene, by its number. Every property a script sets
// changes the scene at once and reads back what was set.
void addRuntimeObjects(script::Module& module, Stage& stage);

// The names of the properties each object answers, for the tests that walk them.
struct RuntimeObjectInfo {
    std::string name;                   // "Fenetre", "Bouton" (numbered)...
    std::vector<std::string_view> properties;
};
std::vector<RuntimeObjectInfo> runtimeObjectInfo();

}  // namespace qor::player
