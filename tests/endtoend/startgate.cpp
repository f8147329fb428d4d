#include <doctest/doctest.h>

#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr char RawTitle[] = "RAW MODE";
constexpr char GateTitle[] = "Quillmore - Falsches Betriebssystem";

// Opens without a word on the right system.
void CheckOpensSilently(const Workplace& workplace, const std::string& arguments) {
    CAPTURE(arguments);
    const OpenProgram program(workplace, arguments);
    CHECK(program.Box().title == "");
}

TEST_CASE("the whole command line -RAW brings up the notice, then the window") {
    const Workplace workplace;
    const Program program(workplace.Executable(), "-RAW");
    const MessageBox box = program.Answer(RawTitle, IDOK);
    CHECK(box.text == "Sie benutzen den 'RAW MODE'. Für Schäden sind sie selbst verantwortlich!");
    CHECK(box.buttons == std::vector<int>{IDOK});
    program.Wait("frmMain");
}

TEST_CASE("a command line that only resembles -RAW is not the switch") {
    const Workplace workplace;
    CheckOpensSilently(workplace, "-raw");
    CheckOpensSilently(workplace, "-RAW ");
    CheckOpensSilently(workplace, "-RAW -RAW");
    CheckOpensSilently(workplace, "\"-RAW\"");
}

TEST_CASE("another build of Windows is told so and shut out") {
    const Workplace workplace(Workplace::Warning::Accepted, "Quillmore-gate.exe");
    workplace.PretendWindows("win2k");
    const Program program(workplace.Executable());
    const MessageBox box = program.Answer(GateTitle, IDOK);
    CHECK(box.text ==
          "Dieses Programm ist NUR unter Windows XP (Build 2600) lauffähig!\r\n\r\n"
          "Ihr Betriebssystem: Microsoft Windows 2000 (5.0)\r\n\r\n"
          "Zum beenden OK drücken");
    CHECK(box.buttons == std::vector<int>{IDOK});
    CHECK(program.WaitForEnd() == 0);
}

TEST_CASE("the lower-case switch does not pass the gate") {
    const Workplace workplace(Workplace::Warning::Accepted, "Quillmore-gate.exe");
    workplace.PretendWindows("win2k");
    const Program program(workplace.Executable(), "-raw");
    program.Answer(GateTitle, IDOK);
    CHECK(program.WaitForEnd() == 0);
}

TEST_CASE("-RAW passes the gate on another build") {
    const Workplace workplace(Workplace::Warning::Accepted, "Quillmore-gate.exe");
    workplace.PretendWindows("win2k");
    const Program program(workplace.Executable(), "-RAW");
    program.Answer(RawTitle, IDOK);
    program.Wait("frmMain");
    CHECK(program.Box().title == "");
}

}  // namespace
}  // namespace endtoend
