// The boxes of the page Tweaks that start-up sets from the settings store.
#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;

namespace {

std::string Components(const Program& program) {
    return program.machine.settingsStore.Stored("WinComponents", "Show").value_or("absent");
}

}  // namespace

TEST_CASE("a store without the preview's setting shows the preview as off") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.Check("chkSHMediaDLL").Value() == 1);
    CHECK_FALSE(program.machine.settingsStore.Stored("VideoPrv", "Regged"));
}

TEST_CASE("only a registered preview of exactly true clears its box") {
    const std::pair<const char*, int> stored[] = {{"true", 0}, {"True", 1}, {"false", 1},
                                                  {"", 1},     {"1", 1},    {" true", 1}};
    for (const auto& [text, state] : stored) {
        CAPTURE(text);
        Program program;
        program.machine.settingsStore.Put("VideoPrv", "Regged", text);
        REQUIRE(program.Start());
        CHECK(program.Check("chkSHMediaDLL").Value() == state);
    }
}

TEST_CASE("starting runs no command for the preview") {
    Program program;
    program.machine.settingsStore.Put("VideoPrv", "Regged", "true");
    REQUIRE(program.Start());
    CHECK(program.machine.processes.launched.empty());
}

TEST_CASE("a first Apply that leaves the preview's box alone unregisters the library") {
    Program program;
    REQUIRE(program.Start());
    program.form->WriteRegistry();
    REQUIRE(program.machine.processes.launched.size() == 1);
    CHECK(program.machine.processes.launched[0].commandLine ==
          "regsvr32.exe %windir%\\system32\\shmedia.dll /u /s");
    CHECK(program.machine.settingsStore.Stored("VideoPrv", "Regged") == "false");
}

TEST_CASE("a preview command that does not start is reported as WriteRegistry") {
    Program program;
    REQUIRE(program.Start());
    program.machine.faults.FailOn("regsvr32", runtime::FileNotFound);
    program.form->WriteRegistry();
    CHECK(program.machine.files.Content(LogPath).value_or("").find("WriteRegistry") !=
          std::string::npos);
    CHECK(program.form->Pointer() == toolkit::Hourglass);
}

TEST_CASE("an absent setting leaves the box of the Windows components as it is") {
    Program program;
    REQUIRE(program.Start());
    CHECK(program.Check("chkHideWinComponents").Value() == 0);
    CHECK(Components(program) == "absent");
}

TEST_CASE("true in any case sets the box of the Windows components, any other text clears it") {
    const std::pair<const char*, int> stored[] = {{"true", 1},  {"TRUE", 1}, {"True", 1},
                                                  {"false", 0}, {"1", 0},    {"ja", 0}};
    for (const auto& [text, state] : stored) {
        CAPTURE(text);
        Program program;
        program.machine.settingsStore.Put("WinComponents", "Show", text);
        REQUIRE(program.Start());
        CHECK(program.Check("chkHideWinComponents").Value() == state);
    }
}

TEST_CASE("the boxes come back in their order among the program's own options") {
    Program program;
    REQUIRE(program.Start());
    std::vector<std::string> asked;
    for (const std::string& line : program.machine.journal.Calls("GetSetting")) {
        for (const char* words : {"WinComponents", "TransparentIcons", "Luminance", "TrayIcon",
                                  "VideoPrv", "MinimizeAfterStart"}) {
            if (line.find('"' + std::string(words) + '"') != std::string::npos) {
                asked.push_back(words);
            }
        }
    }
    CHECK(asked == std::vector<std::string>{"WinComponents", "TransparentIcons", "Luminance",
                                            "TrayIcon", "VideoPrv", "MinimizeAfterStart"});
}
