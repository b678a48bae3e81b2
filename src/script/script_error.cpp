#include "script/script_error.h"

#include <utility>

namespace qor::script {

std::string errorDescription(int number)
{
    const char* text = ::qor::errorDescription(number);
    return *text ? text : "Erreur d'exécution inconnue";
}

ScriptError makeScriptError(int number, std::string_view name)
{
    ScriptError e;
    e.number = number;
    e.description = errorDescription(number);
    if (!name.empty()) {
        e.description += " : '";
        e.description += name;
        e.description += "'";
    }
    return e;
}

void raise(int number, std::string_view name)
{
    throw makeScriptError(number, name);
}

void raise(ScriptError error)
{
    throw std::move(error);
}

}  // namespace qor::script
