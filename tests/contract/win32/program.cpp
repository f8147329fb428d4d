#include "platform/win32/program.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "contract/win32/child.h"
#include "platform/processes.h"

using platform::win32::ArgumentsOf;

namespace {

constexpr platform::Processes::StartupInfo HiddenChild{66, 1, 0};

void RunChild(contract::TestMachine& machine, const std::string& arguments) {
    auto& processes = machine.Services().processes;
    const auto process = processes.Create(contract::ChildCommand(arguments), 32, HiddenChild);
    REQUIRE(process != 0);
    processes.WaitForEnd(process);
    processes.Close(process);
}

}  // namespace

TEST_CASE("what stands behind the program's name is the command line, to its very end") {
    struct Case {
        const wchar_t* whole;
        const wchar_t* arguments;
    };
    const Case cases[] = {
        {L"", L""},
        {L"Quillmore.exe", L""},
        {L"Quillmore.exe ", L""},
        {L"Quillmore.exe -RAW", L"-RAW"},
        {L"Quillmore.exe   \t -RAW", L"-RAW"},
        {L"Quillmore.exe -RAW ", L"-RAW "},
        {L"Quillmore.exe -RAW \"x\"  ", L"-RAW \"x\"  "},
        {L"\"C:\\a b\\Quillmore.exe\" -RAW", L"-RAW"},
        {L"\"C:\\a b\\Quillmore.exe\"", L""},
        {L"C:\\\"a b\"\\Quillmore.exe -RAW", L"-RAW"},
        {L"\"C:\\a b\\Quillmore.exe -RAW", L""},
    };
    for (const Case& each : cases) {
        CAPTURE(each.whole);
        CHECK((ArgumentsOf(each.whole) == each.arguments));
    }
}

TEST_CASE("a started program is told its command line with blanks and umlauts at the end") {
    contract::TestMachine machine;
    const std::string path = machine.FilePath("line.txt");
    RunChild(machine, "  line " + path + " -RAW Öl  ");
    CHECK(machine.FileContent(path) == "line " + path + " -RAW Öl  ");
}

TEST_CASE("ending the program ends it at once") {
    contract::TestMachine machine;
    const std::string path = machine.FilePath("end.txt");
    RunChild(machine, "end " + path);
    CHECK(machine.FileContent(path) == std::nullopt);
}
