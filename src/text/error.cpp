#include "text/error.h"

#include <algorithm>
#include <iterator>

namespace qor {
namespace {

struct Description {
    int number;
    const char* text;
};

// One text per number, in number order, whoever raises it: a file error of
// the editor and the same error raised by a script read the same.
constexpr Description kDescriptions[] = {
    {err::InvalidCall, "Appel de procédure ou argument incorrect"},
    {err::Overflow, "Dépassement de capacité"},
    {err::OutOfMemory, "Mémoire insuffisante"},
    {err::SubscriptOutOfRange, "Indice en dehors de la plage"},
    {err::FixedArray, "Ce tableau est de taille fixe ou temporairement verrouillé"},
    {err::DivisionByZero, "Division par zéro"},
    {err::TypeMismatch, "Type incompatible"},
    {err::OutOfStringSpace, "Espace de chaîne insuffisant"},
    {err::Interrupted, "Script interrompu"},
    {err::OutOfStack, "Espace de pile insuffisant"},
    {err::UndefinedProcedure, "Sub ou Function non définie"},
    {err::InternalError, "Erreur interne"},
    {err::FileNotFound, "Fichier introuvable"},
    {err::FileAlreadyOpen, "Fichier déjà ouvert"},
    {err::FileExists, "Ce fichier existe déjà"},
    {err::DiskFull, "Disque plein"},
    {err::InputPastEnd, "Lecture au-delà de la fin du fichier"},
    {err::PermissionDenied, "Permission refusée"},
    {err::PathFileAccess, "Erreur d'accès au chemin ou au fichier"},
    {err::PathNotFound, "Chemin d'accès introuvable"},
    {err::ObjectNotSet, "Variable objet non définie"},
    {92, "Boucle For non initialisée"},
    {err::InvalidUseOfNull, "Utilisation incorrecte de Null"},
    {err::FolderNotChosen, "Erreur dossier !"},
    {err::ObjectRequired, "Objet requis"},
    {err::CannotCreateObject, "Impossible de créer l'objet"},
    {err::NoSuchMember, "Cet objet ne gère pas cette propriété ou cette méthode"},
    {445, "Cet objet ne gère pas cette action"},
    {err::WrongArguments, "Nombre d'arguments incorrect ou affectation de propriété incorrecte"},
    {451, "Cet objet n'est pas une collection"},
    {err::InvalidPicture, "Image incorrecte"},
    {err::UndefinedVariable, "Variable non définie"},
    {err::IllegalAssignment, "Affectation impossible"},
    // The compiler's own "out of memory" has its own number and the same text.
    {1001, "Mémoire insuffisante"},
    {err::SyntaxError, "Erreur de syntaxe"},
    {err::ExpectedColon, "':' attendu"},
    {err::ExpectedOpenParen, "'(' attendu"},
    {err::ExpectedCloseParen, "')' attendu"},
    {err::ExpectedBracket, "']' attendu"},
    {err::ExpectedIdentifier, "Identificateur attendu"},
    {err::ExpectedEquals, "'=' attendu"},
    {err::ExpectedIf, "'If' attendu"},
    {err::ExpectedTo, "'To' attendu"},
    {err::ExpectedEnd, "'End' attendu"},
    {err::ExpectedFunction, "'Function' attendu"},
    {err::ExpectedSub, "'Sub' attendu"},
    {err::ExpectedThen, "'Then' attendu"},
    {err::ExpectedWend, "'Wend' attendu"},
    {err::ExpectedLoop, "'Loop' attendu"},
    {err::ExpectedNext, "'Next' attendu"},
    {err::ExpectedCase, "'Case' attendu"},
    {err::ExpectedSelect, "'Select' attendu"},
    {err::ExpectedExpression, "Expression attendue"},
    {err::ExpectedStatement, "Instruction attendue"},
    {err::ExpectedEndOfStatement, "Fin d'instruction attendue"},
    {err::ExpectedInteger, "Constante entière attendue"},
    {err::ExpectedWhileOrUntil, "'While' ou 'Until' attendu"},
    {err::ExpectedWith, "'With' attendu"},
    {err::IdentifierTooLong, "Identificateur trop long"},
    {err::InvalidNumber, "Nombre incorrect"},
    {err::InvalidCharacter, "Caractère incorrect"},
    {err::UnterminatedString, "Chaîne non terminée"},
    {err::LoopWithoutDo, "'Loop' sans 'Do'"},
    {err::InvalidExit, "Instruction 'Exit' incorrecte"},
    {err::InvalidForVariable, "Variable de contrôle de boucle 'For' incorrecte"},
    {err::NameRedefined, "Nom redéfini"},
    {err::ParenthesesOnSubCall, "Impossible d'utiliser des parenthèses pour appeler une Sub"},
    {err::ExpectedLiteral, "Constante littérale attendue"},
    {err::ExpectedIn, "'In' attendu"},
    {err::UnexpectedNext, "'Next' inattendu"},
};

static_assert(std::adjacent_find(std::begin(kDescriptions), std::end(kDescriptions),
                                 [](const Description& a, const Description& b) { return a.number >= b.number; }) ==
                  std::end(kDescriptions),
              "one entry per number, in number order");

}  // namespace

const char* errorDescription(int number)
{
    const auto* end = std::end(kDescriptions);
    const auto* it = std::lower_bound(std::begin(kDescriptions), end, number,
                                      [](const Description& d, int n) { return d.number < n; });
    return it != end && it->number == number ? it->text : "";
}

Error makeError(int number)
{
    return Error{number, errorDescription(number)};
}

Error makeError(int number, std::string description)
{
    return Error{number, std::move(description)};
}

Error inFrench(const Error& error)
{
    return *errorDescription(error.number) ? makeError(error.number) : error;
}

}  // namespace qor
