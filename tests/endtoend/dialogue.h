#pragma once

#include "endtoend/automation.h"

// The titles of the dialogue that Apply holds, and its usual course.
namespace endtoend {

inline constexpr char ConfirmTitle[] = "Einstellungen speichern";
inline constexpr char RestorePointTitle[] = "Systemwiederherstellungspunkt";
inline constexpr char DoneTitle[] = "Einstellungen gespeichert";
inline constexpr char WrongPasswordTitle[] = "Passwort falsch";

// The restart question, answered with No always: Yes would end the session.
inline MessageBox DeclineRestart(const Application& program) {
    return program.Answer(DoneTitle, IDNO);
}

// From the restore point question to the end, without a restore point.
inline void FinishApply(const Application& program) {
    program.Answer(RestorePointTitle, IDNO);
    DeclineRestart(program);
}

inline void Apply(const Application& program) {
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    FinishApply(program);
}

}  // namespace endtoend
