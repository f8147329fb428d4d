// The dialogs behind the window-wide buttons.
#include <doctest/doctest.h>

#include <algorithm>

#include "endtoend/lines.h"
#include "endtoend/looks.h"
#include "endtoend/realkeys.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

constexpr int Opaque = 254;

struct AboutDialog {
    Workplace workplace;
    OpenProgram program{workplace};
    HWND window = nullptr;

    AboutDialog() {
        program.Click("cmdAbout");
        window = program.Wait("frmAbout");
    }

    // -1 when the window is gone; 0 as long as it is not layered yet.
    int Alpha() const {
        BYTE alpha = 0;
        DWORD flags = 0;
        if (!GetLayeredWindowAttributes(window, nullptr, &alpha, &flags)) alpha = 0;
        return IsWindow(window) ? alpha : -1;
    }
    bool OkIsEnabled() const { return IsWindowEnabled(program.Find("frmAbout.cmdOK")); }
    void WaitFadedIn() const {
        Until("the end of the fade", [&] { return OkIsEnabled(); });
    }

    // Until it is gone; all that was seen of it meanwhile.
    std::vector<int> AlphasToTheEnd() const {
        std::vector<int> alphas;
        Until("the dialog's end", [&] {
            const int alpha = Alpha();
            if (alpha >= 0) alphas.push_back(alpha);
            return alpha < 0;
        });
        return alphas;
    }
};

TEST_CASE_FIXTURE(AboutDialog, "the about box fades in, and takes OK only then") {
    CHECK_FALSE(OkIsEnabled());
    CHECK(Alpha() < Opaque);
    CHECK_THROWS_AS(program.Click("frmAbout.cmdOK"), Failed);
    WaitFadedIn();
    CHECK(Alpha() >= Opaque);
    CHECK("Quillmore " + program.Text("frmAbout.lblVersion") == program.Text("frmMain"));
    CHECK_FALSE(IsWindowEnabled(program.Find("frmMain")));
}

TEST_CASE_FIXTURE(AboutDialog, "OK fades the about box out and gives the main window back") {
    WaitFadedIn();
    program.Click("frmAbout.cmdOK");
    const std::vector<int> alphas = AlphasToTheEnd();
    REQUIRE_FALSE(alphas.empty());
    CHECK(std::is_sorted(alphas.rbegin(), alphas.rend()));
    CHECK(alphas.back() < Opaque / 2);
    Until("the main window", [&] { return IsWindowEnabled(program.Find("frmMain")); });
}

TEST_CASE_FIXTURE(AboutDialog, "Escape closes the about box without a fade") {
    SUBCASE("while it fades in") {
        program.PressKey("frmAbout", VK_ESCAPE);
        for (const int alpha : AlphasToTheEnd()) CHECK(alpha < Opaque);
    }
    SUBCASE("when it stands") {
        WaitFadedIn();
        program.PressKey("frmAbout", VK_ESCAPE);
        for (const int alpha : AlphasToTheEnd()) CHECK(alpha >= Opaque);
    }
    Until("the main window", [&] { return IsWindowEnabled(program.Find("frmMain")); });
}

TEST_CASE_FIXTURE(AboutDialog, "Escape skips what is left of the fade-out") {
    WaitFadedIn();
    SetForegroundWindow(window);
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    Until("the about box in front",
          [&] { return GetGUIThreadInfo(thread, &state) && state.hwndActive == window; });
    Send(program.Find("frmAbout.cmdOK"), BM_CLICK);
    CHECK(OkIsEnabled() == false);
    GetGUIThreadInfo(thread, &state);
    CHECK(state.hwndFocus == window);
    // The box may be gone before anybody looks again: then this was the last that was seen.
    const int before = Alpha();
    Press(VK_ESCAPE);
    const std::vector<int> alphas = AlphasToTheEnd();
    CHECK((alphas.empty() ? before : alphas.back()) > Opaque / 4);
}

TEST_CASE_FIXTURE(AboutDialog, "the about box can be read and reached, and opened again") {
    WaitFadedIn();
    CHECK(Joined(Crooked(program, window)) == "");
    program.PressKey("frmAbout", VK_ESCAPE);
    program.WaitGone("frmAbout");
    Until("the main window", [&] { return IsWindowEnabled(program.Find("frmMain")); });
    program.Click("cmdAbout");
    window = program.Wait("frmAbout");
    WaitFadedIn();
}

struct SystemInformation {
    Workplace workplace;
    OpenProgram program{workplace};
    HWND window = nullptr;

    SystemInformation() {
        program.Click("cmdSysInfo");
        window = program.Wait("frmSystemInformation");
    }
};

// "(none)" while the clipboard holds no text or another program has it open.
std::string ClipboardText() {
    if (!OpenClipboard(nullptr)) return "(none)";
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    const auto* text = memory ? static_cast<const wchar_t*>(GlobalLock(memory)) : nullptr;
    const std::string copy = text ? platform::win32::FromWide(text) : "(none)";
    if (text) GlobalUnlock(memory);
    CloseClipboard();
    return copy;
}

TEST_CASE_FIXTURE(SystemInformation, "the system information names this computer and is copied") {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    REQUIRE(GetComputerNameW(name, &size));
    const std::string report = program.Text("txtReport");
    CAPTURE(report);
    CHECK(report.find("\r\nComputer:\t" + platform::win32::FromWide(name) + "\r\n") !=
          std::string::npos);
    CHECK(report.find("Version:\t5.1 (Build 2600)\r\n") != std::string::npos);

    REQUIRE(ClipboardText() != report);
    const DWORD before = GetClipboardSequenceNumber();
    program.Click("cmdCopy");
    // Nobody looks into the clipboard before: that would keep the program out.
    Until("the copy", [&] { return GetClipboardSequenceNumber() != before; });
    Until("the text", [&] { return ClipboardText() == report; });

    program.Click("cmdClose");
    program.WaitGone("frmSystemInformation");
    Until("the main window", [&] { return IsWindowEnabled(program.Find("frmMain")); });
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(SystemInformation, "the system information can be read and reached") {
    CHECK(Joined(Crooked(program, window)) == "");
}

}  // namespace
}  // namespace endtoend
