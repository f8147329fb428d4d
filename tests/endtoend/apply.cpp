#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/registrystate.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

const ValuePlace LargeSystemCache = {
    "HKLM", "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management",
    "LargeSystemCache"};

constexpr char Password[] = "Geheim";

bool CacheIsWritten() {
    return ReadValue(LargeSystemCache) == Dword(1);
}

// Waits until the program is done with the press of the button, then tells whether it went through
// to the end without writing.
void CheckNothingHappened(const Program& program, const Workplace& workplace) {
    Until("the main window to be free", [&] {
        return !program.Box().window && IsWindowEnabled(program.Find("frmMain")) &&
               program.Responds("frmMain");
    });
    CHECK_FALSE(CacheIsWritten());
    CHECK(workplace.Stored("Options", "TrayIcon") == "(absent)");
}

// Presses Apply with one option set and Auto-Login as given, and confirms.
void PressApply(const Program& program, bool autoLogin, const std::string& password) {
    program.SetChecked("chkLargeSystemCache", true);
    program.SetChecked("chkAutoLogin", autoLogin);
    program.SetText("txtALPassword", password);
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
}

TEST_CASE("the dialogue of Apply asks in its own words and writes between the questions") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.SetChecked("chkLargeSystemCache", true);
    program.Click("cmdApply");

    const MessageBox confirm = program.WaitBox(ConfirmTitle);
    CHECK(confirm.text == "Sollen die Einstellungen übernommen werden?");
    CHECK(confirm.buttons == std::vector<int>{IDYES, IDNO});
    program.Answer(ConfirmTitle, IDYES);

    const MessageBox restorePoint = program.WaitBox(RestorePointTitle);
    CHECK(restorePoint.text ==
          "Sollen ein Systemwiederherstellungspunkt gesetzt werden?\r\n\r\n"
          "(Sie können damit das System wieder herstellen wenn es nach den\r\n"
          "Änderungen nicht mehr Ordnungsgemäß funktioniert!)");
    CHECK(restorePoint.buttons == std::vector<int>{IDYES, IDNO});
    CHECK_FALSE(CacheIsWritten());
    program.Answer(RestorePointTitle, IDNO);
    CancelNumberComplaints(program);

    const MessageBox done = program.WaitBox(DoneTitle);
    CHECK(done.text ==
          "Einstellungen erfolgreich übernommen!\r\n\r\n"
          "Zum initialisieren einiger Einstellungen ist ein Neustart erforderlich.\r\n\r\n"
          "Soll der Neustart von Windows nun durchgeführt werden?");
    CHECK(done.buttons == std::vector<int>{IDYES, IDNO});
    CHECK(CacheIsWritten());
    CHECK(workplace.Stored("Options", "TrayIcon") == "0");
    DeclineRestart(program);
    const auto isFree = [&] { return program.Responds("frmMain"); };
    Until("the window to be free", isFree, Blocked);
    CHECK(program.Running());
}

TEST_CASE("No to the first question stops everything") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.SetChecked("chkLargeSystemCache", true);
    program.SetChecked("chkAutoLogin", true);
    program.SetText("txtALPassword", Password);
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDNO);
    CheckNothingHappened(program, workplace);
    CHECK_FALSE(IsWindowVisible(program.Find("frmPassword")));
}

TEST_CASE("a wrong password, one in other letter case and a cancelled dialog stop Apply") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    struct Attempt {
        const char* typed;
        const char* button;
    };
    for (const Attempt& attempt :
         {Attempt{"falsch", "frmPassword.cmdOK"}, Attempt{"geheim", "frmPassword.cmdOK"},
          Attempt{"Geheim ", "frmPassword.cmdOK"}, Attempt{Password, "frmPassword.cmdCancel"}}) {
        CAPTURE(attempt.typed);
        CAPTURE(attempt.button);
        PressApply(program, true, Password);
        program.Wait("frmPassword");
        CHECK(program.Text("frmPassword.txtPasswort") == "");
        program.SetText("frmPassword.txtPasswort", attempt.typed);
        program.Click(attempt.button);
        const MessageBox wrong = program.Answer(WrongPasswordTitle, IDOK);
        CHECK(wrong.text ==
              "Das Passwort ist falsch.\r\nBitte Passworteingabe beim Auto-Login überprüfen!");
        CHECK(wrong.buttons == std::vector<int>{IDOK});
        CheckNothingHappened(program, workplace);
    }
}

TEST_CASE("closing the password dialog counts as a wrong password") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    PressApply(program, true, Password);
    PostMessageW(program.Wait("frmPassword"), WM_SYSCOMMAND, SC_CLOSE, 0);
    program.Answer(WrongPasswordTitle, IDOK);
    CheckNothingHappened(program, workplace);
}

TEST_CASE("the right password leads on, and a second press asks everything again") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    for (int press = 1; press <= 2; ++press) {
        CAPTURE(press);
        PressApply(program, true, Password);
        program.Wait("frmPassword");
        program.SetText("frmPassword.txtPasswort", Password);
        program.Click("frmPassword.cmdOK");
        FinishApply(program);
        CHECK(CacheIsWritten());
        DeleteValue(LargeSystemCache);
    }
}

TEST_CASE("without a password, or without Auto-Login, no password is asked for") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    PressApply(program, true, "");
    FinishApply(program);
    CHECK(CacheIsWritten());
    DeleteValue(LargeSystemCache);
    PressApply(program, false, Password);
    FinishApply(program);
    CHECK(CacheIsWritten());
}

}  // namespace
}  // namespace endtoend
