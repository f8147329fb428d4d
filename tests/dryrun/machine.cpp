#include "platform/dryrun/machine.h"

#include <doctest/doctest.h>

#include "dryrun/overmachine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using namespace dryrun_test;
namespace message = platform::message;

namespace {

constexpr char Path[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

struct OverFiles : OverMachine {
    OverFiles() { inner.files.Put(Path, "old"); }
    ~OverFiles() {
        for (const char* call : {"OpenForAppend", "WriteFile", "DeleteFile", "OpenTextFile"}) {
            CHECK(inner.journal.Calls(call).empty());
        }
        CHECK(inner.files.Content(Path) == "old");
    }
    platform::Files& files = dry.services.files;
};

}  // namespace

TEST_CASE_FIXTURE(OverFiles, "a file that is rewritten reads as written, and stays below") {
    CHECK(files.Read(Path) == "old");
    files.Remove(Path, true);
    CHECK(FailureOf([&] { files.Read(Path); }) == runtime::FileNotFound);
    CHECK(FailureOf([&] { files.Remove(Path, true); }) == runtime::FileNotFound);
    files.WriteText(Path, "new");
    CHECK(files.Read("c:\\windows\\INF\\sysoc.inf") == "new");
    const auto changes = dry.files.Changes();
    REQUIRE(changes.size() == 1);
    CHECK(changes[0].path == Path);
    CHECK(changes[0].content == "new");
}

TEST_CASE_FIXTURE(OverFiles, "a file that is written as it was is no change, a removed one is") {
    files.WriteText(Path, "old");
    CHECK(dry.files.Changes().empty());
    files.Remove(Path, false);
    REQUIRE(dry.files.Changes().size() == 1);
    CHECK(dry.files.Changes()[0].content == std::nullopt);
}

TEST_CASE_FIXTURE(OverFiles, "a file as it was is opened for reading below, a changed one is not") {
    files.Close(files.OpenForReading(Path));
    CHECK(inner.journal.Calls("OpenForReading").size() == 1);
    files.WriteText(Path, "new");
    files.Close(files.OpenForReading(Path));
    CHECK(inner.journal.Calls("OpenForReading").size() == 1);
}

TEST_CASE_FIXTURE(OverFiles, "what is appended stands behind what is there") {
    const auto file = files.OpenForAppend(Path);
    files.Write(file, " and new");
    CHECK(FailureOf([&] { files.OpenForAppend(Path); }) == runtime::PermissionDenied);
    files.Close(file);
    CHECK(files.Read(Path) == "old and new");
    CHECK(FailureOf([&] { files.Write(file, "x"); }) == runtime::BadFileNumber);
}

TEST_CASE_FIXTURE(OverFiles, "files that would refuse refuse") {
    inner.files.Protect(Path);
    CHECK(FailureOf([&] { files.Remove(Path, false); }) == runtime::PermissionDenied);
    CHECK(FailureOf([&] { files.WriteText(Path, "x"); }) == runtime::PermissionDenied);
    CHECK(FailureOf([&] { files.WriteText("C:\\Nowhere\\x", "x"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { files.WriteText("", "x"); }) == runtime::PathNotFound);
    inner.files.Hold(Path);
    CHECK(FailureOf([&] { files.Remove(Path, true); }) == runtime::PermissionDenied);
    CHECK(dry.files.Changes().empty());
}

TEST_CASE_FIXTURE(OverMachine, "processes are noted, not started, and end at once") {
    auto& processes = dry.services.processes;
    const auto process = processes.Create("regsvr32 /s a.dll", 0, {});
    CHECK(process != 0);
    processes.WaitForEnd(process);
    CHECK(processes.ExitCode(process) == 0);
    CHECK(processes.Close(process));
    CHECK_FALSE(processes.Close(process));
    CHECK(processes.Open(platform::Processes::AllAccess, processes.Start("b.exe", 1)) == 0);
    CHECK(dry.processes.started == std::vector<std::string>{"regsvr32 /s a.dll", "b.exe"});
    CHECK(inner.journal.Count() == 0);
}

TEST_CASE_FIXTURE(OverMachine, "messages are collected and get the answer of the Enter key") {
    auto& messages = dry.services.messages;
    CHECK(messages.Show("a", message::YesNo + message::Question, "t") == message::Yes);
    CHECK(messages.Show("b", message::OkCancel + message::Exclamation, "t") == message::Ok);
    CHECK(messages.Show("c", message::Information, "u") == message::Ok);
    REQUIRE(dry.messages.shown.size() == 3);
    CHECK(dry.messages.shown[2] == platform::dryrun::Message{"c", message::Information, "u"});
    CHECK(inner.journal.Count() == 0);
}

TEST_CASE("messages get another answer where one is given") {
    platform::simulated::Machine inner;
    platform::dryrun::Machine dry(inner.services,
                                  [](const platform::dryrun::Message&) { return message::No; });
    CHECK(dry.services.messages.Show("a", message::YesNo, "t") == message::No);
}

TEST_CASE_FIXTURE(OverMachine, "settings are read back as saved, and stay below") {
    inner.settingsStore.Put("Options", "a", "old");
    auto& store = dry.services.settingsStore;
    const auto get = [&](const char* key) {
        return store.Get("Quillmore", "Options", key, "none");
    };
    store.Save("Quillmore", "OPTIONS", "B", "new");
    CHECK(get("a") == "old");
    CHECK(get("b") == "new");
    store.DeleteSection("Quillmore", "Options");
    CHECK(get("a") == "none");
    CHECK(get("b") == "none");
    store.Save("Quillmore", "Options", "a", "again");
    CHECK(get("a") == "again");
    CHECK(inner.settingsStore.Stored("Options", "a") == "old");
    CHECK(inner.journal.Calls("SaveSetting").empty());
    CHECK(inner.journal.Calls("DeleteSetting").empty());
}

TEST_CASE_FIXTURE(OverMachine, "the autostart entry comes and goes here alone") {
    auto& autostart = dry.services.autostart;
    CHECK_FALSE(autostart.AutoStartRemove("Quillmore"));
    CHECK(autostart.AutoStartAdd("C:\\x", "Quillmore", "Quillmore"));
    CHECK(autostart.AutoStartExists("QUILLMORE"));
    CHECK_FALSE(inner.autostart.AutoStartExists("Quillmore"));
    CHECK(autostart.AutoStartRemove("Quillmore"));
    CHECK_FALSE(autostart.AutoStartExists("Quillmore"));
}

TEST_CASE_FIXTURE(OverMachine, "everything that acts does nothing to the machine below") {
    const platform::Machine& services = dry.services;
    services.session.ExitSession(platform::Session::ShutDown, 1);
    services.systemClock.SetSystemTime({});
    services.systemClock.SetLocalDate({});
    services.systemClock.SetLocalTime({});
    services.shell.Execute("open", "a", "", "", 1);
    services.shell.ObjectProperties(1);
    CHECK(services.shell.OperateOnFiles(platform::Shell::DeleteFiles, "C:\\*", 0) == 0);
    services.shell.EmptyRecycleBin(0);
    services.folders.MakeCurrent("C:\\");
    services.folders.Remove("C:\\WINDOWS", true);
    services.internetCache.Remove("http://a/");
    services.otherWindows.SetExtendedStyle(1, 2);
    services.otherWindows.SetLayeredAttributes(1, 2, 3, 4);
    CHECK(services.otherWindows.Send(1, 2, 3, 4) == 0);
    services.otherWindows.SetPosition(1, 2, {}, 3);
    services.otherWindows.Redraw(1);
    CHECK(services.memory.Blanks(1000000) != nullptr);
    CHECK(services.clipboard.SetText("x"));
    services.beeper.Beep();
    const auto window = services.browser.CreateInternetExplorer();
    window->SetVisible(true);
    window->Navigate("x");
    window->SetWidth(1);
    window->SetHeight(1);
    services.socket.remoteHost = "127.0.0.1";
    services.socket.Connect();
    CHECK(services.socket.State() == platform::Socket::Closed);
    CHECK(services.socket.GetData().empty());
    services.socket.Close();
    services.toolTips.InitControls();
    CHECK(services.toolTips.Create(0, 0) == 0);
    services.tray.SetIcon();
    services.tray.SetTip("x");
    services.tray.SetShown(true);
    CHECK(inner.journal.Text() == "");
    CHECK(inner.journal.Count() == 0);
}

TEST_CASE_FIXTURE(OverMachine, "what only tells is passed through") {
    const platform::Machine& services = dry.services;
    CHECK(services.systemFacts.WindowsDirectory() == inner.systemFacts.WindowsDirectory());
    CHECK(services.program.Directory() == inner.program.Directory());
    CHECK(services.shell.SpecialFolder(0) == inner.shell.SpecialFolder(0));
    CHECK(services.memory.PhysicalBytes() == inner.memory.PhysicalBytes());
    CHECK(&services.clock == &inner.services.clock);
    CHECK(&services.locale == &inner.services.locale);
}
