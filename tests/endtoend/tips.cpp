// The help texts under a mouse that really moves over the screen and rests there.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include <functional>

#include "endtoend/pages.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr DWORD Balloon = 0x40;
// A tip comes after a second. One that must not come has had half as long again.
constexpr DWORD Soon = 3000;
constexpr DWORD Never = 1500;

bool Within(DWORD milliseconds, const std::function<bool()>& come) {
    const DWORD start = GetTickCount();
    while (!come()) {
        if (GetTickCount() - start > milliseconds) return false;
        Sleep(20);
    }
    return true;
}

struct TipMouse {
    Workplace workplace;
    OpenProgram program{workplace};

    // The tip on the screen, or nullptr.
    HWND Shown() const {
        for (const HWND window : program.TopLevel()) {
            if (ClassOf(window) == "tooltips_class32" && IsWindowVisible(window)) return window;
        }
        return nullptr;
    }

    // Into the middle of the control, and a bit to and fro there.
    void MoveTo(const std::string& name) const {
        const HWND window = program.Find(name);
        REQUIRE(window);
        RECT area = {};
        GetWindowRect(window, &area);
        const POINT middle = {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
        for (const LONG aside : {2, 1, 0}) {
            SetCursorPos(middle.x + aside, middle.y);
            Sleep(30);
        }
    }

    // What is told to a mouse that rests on the control.
    std::string TipOf(const std::string& name) const {
        for (int tries = 0; tries < 4; ++tries) {
            MoveTo(name);
            if (Within(Soon, [&] { return Shown() != nullptr; })) return TextOf(Shown());
        }
        return "nothing";
    }

    void ExpectNone(const std::string& name) const {
        MoveTo(name);
        REQUIRE(Within(Soon, [&] { return Shown() == nullptr; }));
        MoveTo(name);
        CHECK_FALSE(Within(Never, [&] { return Shown() != nullptr; }));
    }
};

TEST_CASE_FIXTURE(TipMouse, "a check box, a slider and a button tell what they do") {
    CHECK(TipOf("chkFastServices") ==
          "Windows XP reserviert 'nur' 512 KB für Serverdienste was die Ein-/Ausgabeleistung "
          "mindert. Ist diese Option aktiviert haben die Serverdienste 12 MB zur Verfügung.");
    MoveTo("SSTab1");
    CHECK(TipOf("Level").starts_with("Stellt ein, wie durchsichtig die Taskleiste ist"));
    MoveTo("SSTab1");
    CHECK(TipOf("cmdFreeMemory").starts_with("Windows gibt teilweise Speicher nicht mehr frei"));
}

TEST_CASE_FIXTURE(TipMouse, "a combo box tells what it does over its field, too") {
    program.OpenTab(NetworkPage);
    CHECK(TipOf("cboMTU").starts_with("Die MTU ist die größte Länge eines Datenpakets"));
    MoveTo("SSTab1");
    CHECK(TipOf("cboHTTP11").starts_with("Hier können Sie festlegen wie viele simultane http"));
}

// Of the 3320000 that it is told; 43200 are 43 seconds here, and no time at all to a system that
// counts 16 bits with a sign.
TEST_CASE_FIXTURE(TipMouse,
                  "the tips' window keeps the lower 16 bits of the time that it is told") {
    REQUIRE(TipOf("chkFastServices") != "nothing");
    CHECK(Send(Shown(), TTM_GETDELAYTIME, TTDT_AUTOPOP) == 3320000 % 65536);
    CHECK(Send(Shown(), TTM_GETDELAYTIME, TTDT_INITIAL) == 1000);
}

TEST_CASE_FIXTURE(TipMouse, "a text of several hundred characters stays one plain tip, in lines") {
    REQUIRE(TipOf("chkLargeSystemCache").size() > 450);
    const HWND tip = Shown();
    REQUIRE(tip);
    RECT area = {};
    GetWindowRect(tip, &area);
    CHECK(area.right - area.left <= 320);
    CHECK(area.bottom - area.top > 60);
    CHECK((static_cast<DWORD>(GetWindowLongW(tip, GWL_STYLE)) & Balloon) == 0);
}

TEST_CASE_FIXTURE(TipMouse, "the level's box tells nothing, though its slider does") {
    REQUIRE(TipOf("Level") != "nothing");
    ExpectNone("txtLevelValue");
}

TEST_CASE_FIXTURE(TipMouse, "the drive list tells nothing while it is disabled") {
    program.OpenTab(CleanUpPage);
    program.SetChecked("chkScanAll", true);
    REQUIRE_FALSE(IsWindowEnabled(program.Find("drvSelect")));
    REQUIRE(TipOf("chkScanAll") != "nothing");
    ExpectNone("drvSelect");
}

TEST_CASE_FIXTURE(TipMouse, "the button AutoTuning says its one line") {
    CHECK(TipOf("cmdSetAllOptimal") == "Alle Einstellungen auf 'Empfohlen' setzen.");
}

}  // namespace
}  // namespace endtoend
