#include "runtime/failure.h"

#include "runtime/programtitle.h"

namespace runtime {

Failure::Failure(int failureNumber)
    : Failure(failureNumber, DescriptionOf(failureNumber), std::string(ProgramTitle)) {}

Failure::Failure(int failureNumber, std::string failureDescription, std::string failureSource)
    : number(failureNumber),
      description(std::move(failureDescription)),
      source(std::move(failureSource)) {}

std::string DescriptionOf(int failureNumber) {
    switch (failureNumber) {
        case InvalidProcedureCall:
            return "Ungültiger Prozeduraufruf oder ungültiges Argument";
        case Overflow:
            return "Überlauf";
        case OutOfMemory:
            return "Nicht genügend Speicher";
        case TypeMismatch:
            return "Typen unverträglich";
        case UserInterrupt:
            return "Benutzerunterbrechung";
        case BadFileNumber:
            return "Dateiname oder -nummer falsch";
        case FileNotFound:
            return "Datei nicht gefunden";
        case DeviceUnavailable:
            return "Gerät nicht verfügbar";
        case PermissionDenied:
            return "Zugriff verweigert";
        case PathFileAccess:
            return "Fehler beim Zugriff auf Pfad/Datei";
        case PathNotFound:
            return "Pfad nicht gefunden";
        case ObjectNotSet:
            return "Objektvariable oder With-Blockvariable nicht festgelegt";
        case InvalidPropertyValue:
            return "Ungültiger Eigenschaftswert";
        case CannotCreateObject:
            return "Objekterstellung durch ActiveX-Komponente nicht möglich";
        case AutomationError:
            return "Automatisierungsfehler";
        case DllFunctionNotFound:
            return "Angegebene DLL-Funktion nicht gefunden";
        case IndexOutOfBounds:
            return "Index außerhalb des gültigen Bereichs";
        default:
            return "Anwendungs- oder objektdefinierter Fehler";
    }
}

}  // namespace runtime
