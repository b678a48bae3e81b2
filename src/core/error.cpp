#include "core/error.h"

namespace qor {

const char* errorDescription(int number)
{
    switch (number) {
    case err::InvalidCall: return "Appel de procédure ou argument incorrect";
    case err::Overflow: return "Dépassement de capacité";
    case err::SubscriptOutOfRange: return "Indice hors des limites";
    case err::TypeMismatch: return "Types incompatibles";
    case err::FileNotFound: return "Fichier introuvable";
    case err::FileAlreadyOpen: return "Fichier déjà ouvert";
    case err::FileExists: return "Ce fichier existe déjà";
    case err::DiskFull: return "Disque plein";
    case err::InputPastEnd: return "Lecture au-delà de la fin du fichier";
    case err::PermissionDenied: return "Permission refusée";
    case err::PathFileAccess: return "Erreur d'accès au chemin ou au fichier";
    case err::PathNotFound: return "Chemin d'accès introuvable";
    case err::FolderNotChosen: return "Erreur dossier !";
    case err::CannotCreateObject: return "Impossible de créer le composant";
    case err::InvalidPicture: return "Image non valide";
    default: return "";
    }
}

Error makeError(int number)
{
    return Error{number, errorDescription(number)};
}

Error makeError(int number, std::string description)
{
    return Error{number, std::move(description)};
}

}  // namespace qor
