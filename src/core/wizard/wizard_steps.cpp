#include "core/wizard/wizard_steps.h"

#include <array>

namespace qor {
namespace {

constexpr std::array<std::string_view, kWizardSteps> kHeaders = {
    "Bienvenue dans l'assistant création de projet QOR !",
    "Au démarrage...",
    "Création des boutons...",
    "A quoi servent ces boutons ?",
    "La fin approche...",
};

}  // namespace

std::string_view stepHeader(int step)
{
    return step >= 0 && step < kWizardSteps ? kHeaders[std::size_t(step)] : std::string_view();
}

WizardNavigation navigationOf(int step)
{
    if (step <= 0)
        return {false, true, false};
    if (step >= kWizardSteps - 1)
        return {true, false, true};
    return {true, true, false};
}

StartupControls startupControlsOf(WizardStartup choice)
{
    return {choice == WizardStartup::MediaFile, choice == WizardStartup::Open, choice == WizardStartup::Message};
}

FunctionControls functionControlsOf(bool lineSelected, std::string_view function)
{
    if (!lineSelected)
        return {};
    FunctionControls c;
    c.choices = true;
    if (function.size() == 1 && function[0] >= '0' && function[0] <= '3')
        c.chosen = function[0] - '0';
    c.mediaFile = c.chosen == 0;
    c.preview = c.chosen == 2;
    return c;
}

}  // namespace qor
