#include "tools/launchers.h"

#include <doctest/doctest.h>

#include "platform/messages.h"
#include "tools/launcherfixture.h"

using namespace tools_test;
using Launched = std::vector<platform::simulated::Processes::Launched>;
using Executed = std::vector<platform::simulated::Shell::Executed>;

namespace {

constexpr char CheckQuestion[] = "Überprüfung der Windows XP Systemdateien";
constexpr int FileNotFound = 53;

}  // namespace

TEST_CASE("a program below the Windows directory starts in a normal window and is not awaited") {
    LauncherFixture f;
    f.launchers.LoadExtern("\\System32\\cmd.exe");
    CHECK(f.machine.processes.launched == Launched{{"C:\\WINDOWS\\System32\\cmd.exe", 1}});
    CHECK(f.machine.journal.Calls("WaitForSingleObject").empty());
    CHECK(f.reports.empty());
}

TEST_CASE("a Windows directory with blanks is passed on as it is, without quotes") {
    LauncherFixture f;
    f.machine.systemFacts.windowsDirectory = "D:\\Mein Windows XP";
    f.launchers.LoadExtern("\\System32\\sfc.exe /scannow");
    CHECK(f.machine.processes.launched ==
          Launched{{"D:\\Mein Windows XP\\System32\\sfc.exe /scannow", 1}});
    f.launchers.LoadExternMSC("gpedit.msc", "");
    CHECK(f.machine.shell.executed ==
          Executed{{"Open", "gpedit.msc", "", "D:\\Mein Windows XP\\System32", 1}});
}

TEST_CASE("a Windows directory that the system does not tell leaves the rest of the path") {
    LauncherFixture f;
    f.machine.faults.FailAll("GetWindowsDirectoryA", 5);
    f.launchers.LoadExtern("\\System32\\cmd.exe");
    f.launchers.LoadExternMSC2("comexp.msc");
    CHECK(f.machine.processes.launched == Launched{{"\\System32\\cmd.exe", 1}});
    CHECK(f.machine.shell.executed == Executed{{"Open", "comexp.msc", "", "\\System32\\com", 1}});
    CHECK(f.reports.empty());
}

TEST_CASE("a console is opened by the shell, with its parameter, in System32") {
    LauncherFixture f;
    f.launchers.LoadExternMSC("rundll32.exe", "user32.dll,LockWorkStation");
    CHECK(f.machine.shell.executed ==
          Executed{
              {"Open", "rundll32.exe", "user32.dll,LockWorkStation", "C:\\WINDOWS\\System32", 1}});
    CHECK(f.machine.processes.launched.empty());
}

TEST_CASE("the console of the component services is opened in System32\\com") {
    LauncherFixture f;
    f.launchers.LoadExternMSC2("comexp.msc");
    CHECK(f.machine.shell.executed ==
          Executed{{"Open", "comexp.msc", "", "C:\\WINDOWS\\System32\\com", 1}});
}

TEST_CASE("a program that is not there is reported under LoadExtern") {
    LauncherFixture f;
    f.machine.faults.FailOn("C:\\WINDOWS\\System32\\dxdiag.exe", FileNotFound);
    f.launchers.LoadExtern("\\System32\\dxdiag.exe");
    CHECK(f.reports == std::vector<std::string>{"LoadExtern 53"});
}

TEST_CASE("what both ways to a console do would be reported under LoadExternMSC if it failed") {
    std::vector<std::string> reported;
    platform::simulated::Machine machine;
    const auto& lines = machine.journal.Lines();
    const tools::Launchers launchers(
        machine.services, [&](std::string_view name, const std::function<void()>& body) {
            CHECK(lines.empty());
            body();
            reported.push_back(std::string(name) + ' ' + std::to_string(lines.size()));
        });
    launchers.LoadExternMSC("perfmon.msc", "");
    CHECK(lines.size() == 2);
    machine.journal.Clear();
    launchers.LoadExternMSC2("comexp.msc");
    CHECK(lines.size() == 2);
    CHECK(reported == std::vector<std::string>{"LoadExternMSC 2", "LoadExternMSC 2"});
}

TEST_CASE("the check of the system's files asks for the CD first") {
    LauncherFixture f;
    SUBCASE("and starts nothing after No") {
        f.machine.messages.Answer(CheckQuestion, platform::message::No);
        f.launchers.CheckSystemFiles();
        CHECK(f.machine.processes.launched.empty());
        CHECK(f.machine.journal.Calls("GetWindowsDirectoryA").empty());
    }
    SUBCASE("and starts after Yes") {
        f.machine.messages.Answer(CheckQuestion, platform::message::Yes);
        f.launchers.CheckSystemFiles();
        CHECK(f.machine.processes.launched ==
              Launched{{"C:\\WINDOWS\\System32\\sfc.exe /scannow", 1}});
    }
    REQUIRE(f.machine.messages.Shown().size() == 1);
    CHECK(f.machine.messages.Shown().front() ==
          platform::simulated::ShownMessage{
              CheckQuestion,
              "Für diesen Vorgang benötigen Sie die Windows XP Installations CD\r\n\r\n"
              "Möchten Sie fortfahren?",
              36});
}

TEST_CASE("a check of the system's files that cannot be asked about does not start") {
    LauncherFixture f;
    f.machine.faults.FailOn(CheckQuestion, 5);
    f.launchers.CheckSystemFiles();
    CHECK(f.machine.processes.launched.empty());
}

TEST_CASE("the properties of the system are the shell's sheet number 2") {
    LauncherFixture f;
    f.launchers.OpenSystemProperties();
    CHECK(f.machine.shell.propertySheets == std::vector<std::int32_t>{2});
    CHECK(f.reports.empty());
}

TEST_CASE("a shell without that sheet is reported under lblSystem_Click") {
    LauncherFixture f;
    f.machine.faults.FailAll("shell32#178", 453);
    f.launchers.OpenSystemProperties();
    CHECK(f.reports == std::vector<std::string>{"lblSystem_Click 453"});
}

TEST_CASE("the restore tool is awaited, and one that is not there goes unnoticed") {
    LauncherFixture f;
    SUBCASE("there") {
        f.launchers.OpenRestorePoint();
        REQUIRE(f.machine.processes.All().size() == 1);
        const auto& started = f.machine.processes.All().front();
        CHECK(started.commandLine == "C:\\WINDOWS\\system32\\restore\\rstrui.exe");
        CHECK(started.startup.wShowWindow == 1);
        CHECK(started.waitedFor);
    }
    SUBCASE("not there") {
        f.machine.faults.FailAll("CreateProcessA", 2);
        f.launchers.OpenRestorePoint();
        CHECK(f.machine.journal.Calls("CreateProcessA").size() == 1);
    }
    CHECK(f.reports.empty());
}

TEST_CASE("the second way to the configuration tool does the same under a name of its own") {
    LauncherFixture f;
    f.launchers.cmdMSConfig_Click();
    CHECK(f.machine.processes.launched ==
          Launched{{"C:\\WINDOWS\\PCHEALTH\\HELPCTR\\Binaries\\msconfig", 1}});
    f.machine.faults.FailOn("C:\\WINDOWS\\PCHEALTH\\HELPCTR\\Binaries\\msconfig", FileNotFound);
    f.launchers.cmdMSConfig_Click();
    CHECK(f.reports == std::vector<std::string>{"cmdMSConfig_Click 53"});
}
