#include "core/designer/element_selector.h"

namespace qor {

std::string buttonEntry(int number, std::string_view kind)
{
    return "Bouton " + std::to_string(number) + " (" + std::string(kind) + ")";
}

std::string textEntry(int number)
{
    return "Texte " + std::to_string(number);
}

}  // namespace qor
