// The list of the logged-on users, behind its button.
#include <doctest/doctest.h>

#include "endtoend/lines.h"
#include "endtoend/lists.h"
#include "endtoend/looks.h"
#include "endtoend/pages.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using Texts = std::vector<std::string>;

constexpr char UsersForm[] = "frmShowAllLoggedInUsers";
constexpr char Denied[] = "5";

// With `failure`, the code with which the stand-in's service fails.
struct CrowdedPlace : Workplace {
    explicit CrowdedPlace(const std::string& failure) {
        WriteFile(Executable(), ReadFile(OwnFolder() + "\\crowded.exe"));
        Fail(failure);
    }
    void Fail(const std::string& code) const { WriteFile(Executable() + ".users", code); }
};

void OpenUsers(const Program& program) {
    program.OpenTab(UtilitiesPage);
    program.Click("cmdShowAllLoggedOnUsers");
}

Texts Shown(const Program& program) {
    return LinesOf(program.Find("lstUsers"));
}

// Gone with its windows, and the main window takes clicks again.
void CheckClosed(const Program& program) {
    program.WaitGone(UsersForm);
    Until("the main window", [&] { return IsWindowEnabled(program.Find("frmMain")); });
    Until("the end of the dialog's windows", [&] { return !program.Find("lstUsers"); });
}

struct Crowded {
    CrowdedPlace workplace;
    OpenProgram program{workplace};

    explicit Crowded(const std::string& failure = "") : workplace(failure) { OpenUsers(program); }

    static Texts Crowd() {
        wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
        DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
        GetComputerNameW(name, &size);
        return {"PC-1\\Besitzer",
                "\\\\" + platform::win32::FromWide(name) + "\\Besitzer",
                "\\Gäste & Co",
                "PC-1\\",
                "NT-AUTORITÄT\\LOKALER DIENST",
                "PC-1\\Besitzer"};
    }
    void WaitCrowd() const {
        Until("the crowd", [&] { return Shown(program) == Crowd(); });
    }
    void AnswerDenied() const {
        const MessageBox box = program.WaitBox("Fehler");
        // The words are the system's, and Windows has other ones than Wine.
        CHECK(box.text.starts_with("Fehler:\r\nZugriff verweigert"));
        CHECK(box.buttons == std::vector<int>{IDOK});
        program.Answer("Fehler", IDOK);
    }
};

}  // namespace

// Wine has the call, which answers code 87 to whatever it is asked.
TEST_CASE("the button asks the real service, tells its refusal and opens the dialog") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    OpenUsers(program);
    const MessageBox box = program.Answer("Fehler", IDOK);
    CHECK(box.text.starts_with("Fehler:\r\n"));
    CHECK(box.text.find("arameter") != std::string::npos);
    const HWND window = program.Wait(UsersForm);
    Until("the main window to wait", [&] { return !IsWindowEnabled(program.Find("frmMain")); });
    CHECK(Shown(program).empty());
    CHECK(Joined(Crooked(program, window)) == "");

    program.PressKey(UsersForm, VK_ESCAPE);
    CheckClosed(program);
    CHECK(workplace.Log() == "");
    program.CloseAndWait();
}

TEST_CASE("a crowd is listed by its last batch, again and again") {
    const Crowded crowded;
    crowded.program.Wait(UsersForm);
    CHECK(Shown(crowded.program) == Crowded::Crowd());
    CHECK_FALSE(IsWindowVisible(crowded.program.Find("frmShowAllLoggedInUsers.lblWait")));
    crowded.program.Click("cmdRefresh");
    crowded.program.Click("cmdRefresh");
    CHECK(crowded.program.Responds(UsersForm));
    crowded.WaitCrowd();
    CHECK(Joined(Crooked(crowded.program, crowded.program.Find(UsersForm))) == "");

    crowded.program.Click("frmShowAllLoggedInUsers.cmdOK");
    CheckClosed(crowded.program);
    OpenUsers(crowded.program);
    crowded.program.Wait(UsersForm);
    CHECK(Shown(crowded.program) == Crowded::Crowd());
}

TEST_CASE("a refusal is told while the list is being read, and leaves it empty until the next") {
    const Crowded crowded;
    crowded.program.Wait(UsersForm);
    crowded.workplace.Fail(Denied);
    crowded.program.Click("cmdRefresh");
    crowded.program.WaitBox("Fehler");
    CHECK(IsWindowVisible(crowded.program.Find("frmShowAllLoggedInUsers.lblWait")));
    crowded.AnswerDenied();
    Until("the empty list", [&] { return Shown(crowded.program).empty(); });
    Until("the end of reading", [&] {
        return !IsWindowVisible(crowded.program.Find("frmShowAllLoggedInUsers.lblWait"));
    });

    crowded.workplace.Fail("");
    crowded.program.Click("cmdRefresh");
    crowded.WaitCrowd();
    CHECK(crowded.workplace.Log() == "");
}

TEST_CASE("a refusal before the dialog is there is told first, then the dialog opens empty") {
    const Crowded crowded(Denied);
    crowded.AnswerDenied();
    crowded.program.Wait(UsersForm);
    CHECK(Shown(crowded.program).empty());
    crowded.program.PressKey(UsersForm, VK_ESCAPE);
    CheckClosed(crowded.program);
    crowded.program.CloseAndWait();
}

}  // namespace endtoend
