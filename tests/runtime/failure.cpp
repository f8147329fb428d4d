#include "runtime/failure.h"

#include <doctest/doctest.h>

#include <set>
#include <stdexcept>

using runtime::DescriptionOf;
using runtime::Failure;
using runtime::Skip;

TEST_CASE("a failure of the platform carries its number, its German text and the program's name") {
    const Failure failure(runtime::Overflow);
    CHECK(failure.number == 6);
    CHECK(failure.description == "Überlauf");
    CHECK(failure.source == "Quillmore");
    CHECK(std::string(failure.what()) == "Überlauf");
}

TEST_CASE("a failure of the program's own keeps the text and source it was given") {
    const Failure failure(26001, "Kein Schlüssel", "cRegistry");
    CHECK(failure.number == 26001);
    CHECK(failure.description == "Kein Schlüssel");
    CHECK(failure.source == "cRegistry");
}

TEST_CASE("each number of the platform has its own German text") {
    CHECK(DescriptionOf(5) == "Ungültiger Prozeduraufruf oder ungültiges Argument");
    CHECK(DescriptionOf(6) == "Überlauf");
    CHECK(DescriptionOf(7) == "Nicht genügend Speicher");
    CHECK(DescriptionOf(13) == "Typen unverträglich");
    CHECK(DescriptionOf(18) == "Benutzerunterbrechung");
    CHECK(DescriptionOf(52) == "Dateiname oder -nummer falsch");
    CHECK(DescriptionOf(53) == "Datei nicht gefunden");
    CHECK(DescriptionOf(68) == "Gerät nicht verfügbar");
    CHECK(DescriptionOf(70) == "Zugriff verweigert");
    CHECK(DescriptionOf(75) == "Fehler beim Zugriff auf Pfad/Datei");
    CHECK(DescriptionOf(76) == "Pfad nicht gefunden");
    CHECK(DescriptionOf(91) == "Objektvariable oder With-Blockvariable nicht festgelegt");
    CHECK(DescriptionOf(380) == "Ungültiger Eigenschaftswert");
    CHECK(DescriptionOf(429) == "Objekterstellung durch ActiveX-Komponente nicht möglich");
    CHECK(DescriptionOf(440) == "Automatisierungsfehler");
    CHECK(DescriptionOf(453) == "Angegebene DLL-Funktion nicht gefunden");
    CHECK(DescriptionOf(35600) == "Index außerhalb des gültigen Bereichs");
}

TEST_CASE("an unknown number has the platform's general text") {
    for (int number : {-1, 0, 1, 26001}) {
        CHECK(DescriptionOf(number) == "Anwendungs- oder objektdefinierter Fehler");
    }
}

TEST_CASE("a skipped statement that fails does not keep the next one from running") {
    bool reached = false;
    CHECK_FALSE(Skip([&] {
        throw Failure(runtime::TypeMismatch);
        reached = true;
    }));
    CHECK_FALSE(reached);
    CHECK(Skip([&] { reached = true; }));
    CHECK(reached);
}

TEST_CASE("a mistake in the program is no failure and is not skipped") {
    CHECK_THROWS_AS(Skip([] { throw std::logic_error("no such control"); }), std::logic_error);
}
