#include "script/script_error.h"

#include <utility>

namespace qor::script {

namespace {

struct Entry {
    int number;
    const char* text;
};

constexpr Entry kDescriptions[] = {
    {5, "Appel de procédure ou argument incorrect"},
    {6, "Dépassement de capacité"},
    {7, "Mémoire insuffisante"},
    {9, "Indice en dehors de la plage"},
    {10, "Ce tableau est de taille fixe ou temporairement verrouillé"},
    {11, "Division par zéro"},
    {13, "Type incompatible"},
    {14, "Espace de chaîne insuffisant"},
    {18, "Script interrompu"},
    {28, "Espace de pile insuffisant"},
    {35, "Sub ou Function non définie"},
    {51, "Erreur interne"},
    {91, "Variable objet non définie"},
    {92, "Boucle For non initialisée"},
    {94, "Utilisation incorrecte de Null"},
    {424, "Objet requis"},
    {429, "Impossible de créer l'objet"},
    {438, "Cet objet ne gère pas cette propriété ou cette méthode"},
    {445, "Cet objet ne gère pas cette action"},
    {450, "Nombre d'arguments incorrect ou affectation de propriété incorrecte"},
    {451, "Cet objet n'est pas une collection"},
    {481, "Image incorrecte"},
    {500, "Variable non définie"},
    {501, "Affectation impossible"},
    {1001, "Mémoire insuffisante"},
    {1002, "Erreur de syntaxe"},
    {1003, "':' attendu"},
    {1005, "'(' attendu"},
    {1006, "')' attendu"},
    {1007, "']' attendu"},
    {1010, "Identificateur attendu"},
    {1011, "'=' attendu"},
    {1012, "'If' attendu"},
    {1013, "'To' attendu"},
    {1014, "'End' attendu"},
    {1015, "'Function' attendu"},
    {1016, "'Sub' attendu"},
    {1017, "'Then' attendu"},
    {1018, "'Wend' attendu"},
    {1019, "'Loop' attendu"},
    {1020, "'Next' attendu"},
    {1021, "'Case' attendu"},
    {1022, "'Select' attendu"},
    {1023, "Expression attendue"},
    {1024, "Instruction attendue"},
    {1025, "Fin d'instruction attendue"},
    {1026, "Constante entière attendue"},
    {1027, "'While' ou 'Until' attendu"},
    {1029, "'With' attendu"},
    {1030, "Identificateur trop long"},
    {1031, "Nombre incorrect"},
    {1032, "Caractère incorrect"},
    {1033, "Chaîne non terminée"},
    {1038, "'Loop' sans 'Do'"},
    {1039, "Instruction 'Exit' incorrecte"},
    {1040, "Variable de contrôle de boucle 'For' incorrecte"},
    {1041, "Nom redéfini"},
    {1044, "Impossible d'utiliser des parenthèses pour appeler une Sub"},
    {1045, "Constante littérale attendue"},
    {1046, "'In' attendu"},
    {1055, "'Next' inattendu"},
};

}  // namespace

bool knownError(int number)
{
    for (const auto& e : kDescriptions)
        if (e.number == number)
            return true;
    return false;
}

std::string errorDescription(int number)
{
    for (const auto& e : kDescriptions)
        if (e.number == number)
            return e.text;
    return "Erreur d'exécution inconnue";
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
