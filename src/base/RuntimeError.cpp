// French descriptions of the run-time errors, in the platform's wording.
#include "base/RuntimeError.h"

#include <utility>

#include "base/Strings.h"

namespace lumenote {
namespace {

const char16_t* DescriptionOf(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidArgument:
      return u"Argument ou appel de procédure incorrect";
    case ErrorNumber::Overflow:
      return u"Dépassement de capacité";
    case ErrorNumber::OutOfMemory:
      return u"Mémoire insuffisante";
    case ErrorNumber::TypeMismatch:
      return u"Incompatibilité de type";
    case ErrorNumber::Internal:
      return u"Erreur interne";
    case ErrorNumber::FileNotFound:
      return u"Fichier introuvable";
    case ErrorNumber::DiskFull:
      return u"Disque plein";
    case ErrorNumber::PermissionDenied:
      return u"Permission refusée";
    case ErrorNumber::PathAccess:
      return u"Erreur d'accès au chemin/fichier";
    case ErrorNumber::PathNotFound:
      return u"Chemin d'accès introuvable";
    case ErrorNumber::NoSuchElement:
      return u"Élément de tableau de contrôles inexistant";
    case ErrorNumber::InvalidPropertyValue:
      return u"Valeur de propriété incorrecte";
    case ErrorNumber::Printer:
      return u"Erreur d'imprimante";
  }
  return u"Erreur définie par l'application ou par l'objet";
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, DescriptionOf(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, std::u16string description)
    : std::runtime_error(ToUtf8(description)),
      number_(number),
      description_(std::move(description)) {}

}  // namespace lumenote
