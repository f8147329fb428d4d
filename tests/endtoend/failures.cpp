#include <doctest/doctest.h>

#include <regex>

#include "endtoend/dialogue.h"
#include "endtoend/optiontable.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

constexpr char OverflowTitle[] = "Fehler 6";
constexpr char OverflowText[] = "Überlauf\r\n\r\nQuelle: Quillmore\r\nProzedur: ReadRegistry";

// A delay that is a number, but none that the start menu's slider can be handed: the read pass
// fails when it puts the text into the box.
void StoreImpossibleDelay() {
    WriteValue({"HKCU", "Control Panel\\Desktop", "MenuShowDelay"}, TerminatedText("99999999999"));
}

// One record of the log, date and time aside; the support line's wording is free.
std::regex Record() {
    return std::regex(
        "Quillmore v2\\.38 Programm Error Log\r\n\r\n"
        "[^\r\n]+\r\n\r\n\r\n"
        "Date / Time: [^\r\n/]+[^\r\n]* / [^\r\n]+\r\n\r\n"
        "Description: \xDC"
        "berlauf\r\n\r\n"
        "Source: Quillmore\r\n\r\n"
        "Number: 6\r\n\r\n"
        "Procedure: ReadRegistry\r\n\r\n\r\n"
        "\\*{51}\r\n\r\n\r\n\r\n");
}

TEST_CASE("a read pass that fails stops there, reports and leaves the hourglass standing") {
    const Workplace workplace;
    StoreImpossibleDelay();
    // One option before the failing one in the order of the pass, and two behind it.
    WriteValue(CheckBoxesOfSystemPage()[1].on[0].place, Dword(1));
    WriteValue(CheckBoxesOfSystemPage()[3].on[0].place, Dword(512));
    const Program program(workplace.Executable());
    const MessageBox box = program.Answer(OverflowTitle, IDOK);
    CHECK(box.text == OverflowText);
    CHECK(box.buttons == std::vector<int>{IDOK});
    program.Wait("frmMain");
    CHECK(program.Text("txtStartmenu") == "99999999999");
    CHECK(program.Checked("chkLargeSystemCache"));
    CHECK_FALSE(program.Checked("chkSecondLevelDataCache"));
    CHECK(program.Text("txtOSVersion") == "");
    CHECK(program.PointerIsChanged("frmMain"));
    // The start itself goes on behind the pass.
    CHECK(program.Text("lblSP") == "Service Pack 3");
    CHECK(std::regex_match(workplace.Log(), Record()));
}

TEST_CASE("a second failure appends a second record") {
    const Workplace workplace;
    StoreImpossibleDelay();
    std::string first;
    for (int start = 1; start <= 2; ++start) {
        const Program program(workplace.Executable());
        program.Answer(OverflowTitle, IDOK);
        program.Wait("frmMain");
        if (start == 1) first = workplace.Log();
    }
    const std::string both = workplace.Log();
    REQUIRE(both.starts_with(first));
    CHECK(std::regex_match(both.substr(first.size()), Record()));
}

TEST_CASE("a log that cannot be opened loses the record but not the message") {
    const Workplace workplace;
    StoreImpossibleDelay();
    const std::wstring path = platform::win32::ToWide(workplace.Folder() + "\\Quillmore.log");
    {
        // Shared with nobody.
        const platform::win32::FileHandle locked(
            CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
        REQUIRE(locked);
        const Program program(workplace.Executable());
        CHECK(program.Answer(OverflowTitle, IDOK).text == OverflowText);
        program.Wait("frmMain");
    }
    CHECK(workplace.Log() == "");
}

}  // namespace
}  // namespace endtoend
