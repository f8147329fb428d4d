#include <doctest/doctest.h>

#include "endtoend/lines.h"
#include "endtoend/registrydump.h"
#include "endtoend/registrystate.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

// Refuses the warning in the given way; all that the refusal left behind.
template <typename Refusal>
std::string TraceOf(Refusal refuse) {
    const Workplace workplace(Workplace::Warning::Fresh);
    const RegistryState before = SnapshotOfMachine();
    const Program program(workplace.Executable());
    refuse(program);
    CHECK(program.WaitForEnd() == 0);
    CHECK(workplace.Log() == "");
    return Joined(Differences(before, SnapshotOfMachine()));
}

TEST_CASE("the first start shows the warning and no main window") {
    const Workplace workplace(Workplace::Warning::Fresh);
    const Program program(workplace.Executable());
    const HWND warning = program.Wait("frmFirstInfo");
    CHECK(TextOf(warning) == "Warnung");
    CHECK(program.Forms() == std::vector<HWND>{warning});
    // Its owner is not to be seen, so it would have no taskbar entry otherwise.
    CHECK((GetWindowLongW(warning, GWL_EXSTYLE) & WS_EX_APPWINDOW) != 0);
}

TEST_CASE("refusing the warning by its button ends the program without a trace") {
    CHECK(TraceOf([](const Program& program) { program.Click("Command1"); }) == "");
}

TEST_CASE("refusing the warning by the close box ends the program without a trace") {
    const auto closeBox = [](const Program& program) {
        PostMessageW(program.Wait("frmFirstInfo"), WM_SYSCOMMAND, SC_CLOSE, 0);
    };
    CHECK(TraceOf(closeBox) == "");
}

TEST_CASE("any stored text but Yes brings the warning up again") {
    const Workplace workplace(Workplace::Warning::Fresh);
    for (const char* text : {"yes", "No", "Yes "}) {
        CAPTURE(text);
        workplace.Store("Options", "Accepted", text);
        const Program program(workplace.Executable());
        program.Click("frmFirstInfo.Command1");
        CHECK(program.WaitForEnd() == 0);
        CHECK(workplace.Stored("Options", "Accepted") == text);
    }
}

TEST_CASE("accepting the warning is remembered, and the program goes on") {
    const Workplace workplace(Workplace::Warning::Fresh);
    {
        const Program program(workplace.Executable());
        program.Click("frmFirstInfo.Command2");
        program.Wait("frmMain");
        CHECK(workplace.Stored("Options", "Accepted") == "Yes");
        program.CloseAndWait();
    }
    const OpenProgram again(workplace);
    CHECK(again.Find("frmFirstInfo") == nullptr);
}

}  // namespace
}  // namespace endtoend
