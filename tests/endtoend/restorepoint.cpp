#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

std::string WizardPath() {
    return SystemFolder() + "\\restore\\rstrui.exe";
}

void AskForRestorePoint(const Program& program) {
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    const MessageBox box = program.WaitBox(RestorePointTitle);
    PostMessageW(GetDlgItem(box.window, IDYES), BM_CLICK, 0, 0);
}

TEST_CASE("Apply waits for the restore wizard before it writes") {
    const Workplace workplace;
    const StandIn wizard(WizardPath());
    const Hold open;
    const OpenProgram program(workplace);
    AskForRestorePoint(program);
    CHECK(wizard.WaitStart().commandLine == wizard.Path());
    // Blocked: neither the window answers nor has the next step come.
    CHECK_FALSE(program.Responds("frmMain"));
    CHECK(workplace.Stored("Options", "TrayIcon") == "(absent)");
    open.LetGo();
    CancelNumberComplaints(program);
    DeclineRestart(program);
    CHECK(workplace.Stored("Options", "TrayIcon") == "0");
}

TEST_CASE("a missing restore wizard is passed over in silence") {
    const Workplace workplace;
    const EmptyPlace wizard(WizardPath());
    const OpenProgram program(workplace);
    AskForRestorePoint(program);
    CancelNumberComplaints(program);
    DeclineRestart(program);
    CHECK(workplace.Stored("Options", "TrayIcon") == "0");
    CHECK(workplace.Log() == "");
}

}  // namespace
}  // namespace endtoend
