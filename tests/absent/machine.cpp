#include "platform/absent/machine.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "support/failureof.h"

namespace {

struct AbsentFixture {
    platform::simulated::Machine there;
    platform::absent::Machine absent{{there.registry, there.settingsStore, there.operatingSystem,
                                      there.systemFacts, there.memory, there.locale}};
    const platform::Machine& machine = absent.services;
};

class Loading final : public toolkit::Form {
  public:
    using Form::Form;
    int loads = 0;

  private:
    void OnLoad() override { ++loads; }
};

}  // namespace

TEST_CASE_FIXTURE(AbsentFixture, "what there is stays what it is") {
    CHECK(&machine.registry == &there.registry);
    CHECK(&machine.settingsStore == &there.settingsStore);
    CHECK(&machine.operatingSystem == &there.operatingSystem);
    CHECK(&machine.systemFacts == &there.systemFacts);
    CHECK(&machine.memory == &there.memory);
    CHECK(&machine.locale == &there.locale);
}

TEST_CASE_FIXTURE(AbsentFixture, "a form is loaded and shown without a window, never modal") {
    Loading form(machine.forms, "frm", "", {});
    form.Show();
    CHECK(form.Loaded());
    CHECK(form.loads == 1);
    CHECK(form.View() == nullptr);
    form.Unload();
    CHECK_FALSE(form.Loaded());
    CHECK_THROWS_AS(form.ShowModal(), runtime::Mistake);
    CHECK(machine.forms.OpenForms().empty());
}

TEST_CASE_FIXTURE(AbsentFixture, "files, folders and programs that are not there are not found") {
    CHECK(FailureOf([&] { machine.files.Read("C:\\a"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.OpenForReading("C:\\a"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.OpenForAppend("C:\\a"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.WriteText("C:\\a", "b"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.Remove("C:\\a", true); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.files.Write(1, "b"); }) == runtime::BadFileNumber);
    CHECK(FailureOf([&] { machine.folders.List("C:\\"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.folders.MakeCurrent("C:\\"); }) == runtime::PathNotFound);
    CHECK(FailureOf([&] { machine.folders.Remove("C:\\a", true); }) == runtime::PathNotFound);
    CHECK(machine.folders.Find("C:\\") == std::nullopt);
    CHECK(FailureOf([&] { machine.processes.Start("a.exe", 0); }) == runtime::FileNotFound);
    CHECK(machine.processes.Create("a.exe", 0, {}) == 0);
    CHECK(machine.processes.Open(0, 1) == 0);
    CHECK(machine.processes.ExitCode(1) == std::nullopt);
    CHECK(machine.shell.OperateOnFiles(platform::Shell::DeleteFiles, "C:\\a", 0) != 0);
    CHECK(machine.shell.SpecialFolder(0).empty());
    CHECK(FailureOf([&] { machine.shell.ObjectProperties(1); }) == runtime::DllFunctionNotFound);
}

TEST_CASE_FIXTURE(AbsentFixture, "nobody is there who would see, hear or answer anything") {
    CHECK(machine.messages.Show("?", platform::message::YesNo, "") == 0);
    CHECK(machine.otherWindows.Find("Shell_TrayWnd", nullptr) == 0);
    CHECK(machine.otherWindows.FindChild(1, "BaseBar") == 0);
    CHECK(machine.toolTips.Create(0, 0) == 0);
    CHECK_FALSE(machine.clipboard.SetText("a"));
    CHECK(machine.keyboard.AsyncState(27) == 0);
    CHECK(machine.clock.StartTimer(1, [] { FAIL("a tick"); }) != 0);
    CHECK(machine.socket.State() == platform::Socket::Closed);
    CHECK(FailureOf([&] { machine.socket.Connect(); }) == runtime::CannotCreateObject);
    CHECK(FailureOf([&] { machine.browser.CreateInternetExplorer(); }) ==
          runtime::CannotCreateObject);
    CHECK_FALSE(machine.autostart.AutoStartExists("Quillmore"));
    CHECK_FALSE(machine.autostart.AutoStartAdd("C:\\", "Quillmore", "Quillmore"));
    CHECK(machine.network.RemoteTimeOfDay("") == std::nullopt);
    std::uint32_t count = 9;
    CHECK(machine.network.CountDialUpConnections(count) == 0);
    CHECK(count == 0);
    platform::UserEnumeration users;
    users.users.emplace_back();
    const auto code = machine.workstation.EnumerateUsers("", users);
    CHECK(code != platform::Workstation::Success);
    CHECK(code != platform::Workstation::MoreData);
    CHECK(users.users.empty());
    std::uint32_t size = 0;
    platform::InternetCache::Handle search = 9;
    CHECK(machine.internetCache.FindFirst(nullptr, 0, size, search) != 0);
    CHECK(search == 0);
    CHECK(FailureOf([&] { machine.systemClock.SetLocalDate({}); }) == runtime::PermissionDenied);
    CHECK(machine.systemInformation.Drives().empty());
    CHECK_THROWS_AS(machine.program.End(), runtime::Mistake);
}
