#pragma once

#include <doctest/doctest.h>

#include "endtoend/automation.h"
#include "endtoend/dialogtitles.h"

// The usual course of the dialogue that Apply holds.
namespace endtoend {

// The restart question, answered with No always: Yes would end the session.
inline MessageBox DeclineRestart(const Application& program) {
    return program.Answer(DoneTitle, IDNO);
}

// The baseline holds none of the network's numbers, and the pass complains of each as it comes to
// writing it. Cancel cancels nothing.
inline void CancelNumberComplaints(const Application& program) {
    for (const char* complaint :
         {"MTU falsch eingegeben", "MTU falscher Wert eingegeben", "RWIN falscher Wert eingegeben",
          "TTL falscher Wert eingegeben", "HTTP1.0 Wert falsch eingegeben",
          "HTTP1.1 Wert falsch eingegeben"}) {
        CHECK(program.Answer("Fehler", IDCANCEL).text == complaint);
    }
}

// From the restore point question to the end, without a restore point.
inline void FinishApply(const Application& program) {
    program.Answer(RestorePointTitle, IDNO);
    CancelNumberComplaints(program);
    DeclineRestart(program);
}

inline void Apply(const Application& program) {
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    FinishApply(program);
}

}  // namespace endtoend
