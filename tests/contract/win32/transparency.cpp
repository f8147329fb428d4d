#include "tweaks/transparency.h"

#include <doctest/doctest.h>
#include <shlwapi.h>

#include "contract/machine.h"

// The shell's windows, stood for by windows of its classes.

namespace {

constexpr std::uint32_t LayeredStyle = 0x80000;

// The two are stored under the program's own title, and nothing may stay there.
void RemoveSettings() {
    const std::wstring program = L"Software\\VB and VBA Program Settings\\Quillmore\\";
    for (const wchar_t* section : {L"TaskBar", L"Desktop"}) {
        SHDeleteKeyW(HKEY_CURRENT_USER, (program + section).c_str());
    }
}

struct Shell {
    Shell() { RemoveSettings(); }
    ~Shell() { RemoveSettings(); }
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    contract::TestMachine machine;
    const platform::Machine& services = machine.Services();
};

}  // namespace

TEST_CASE_FIXTURE(Shell, "the taskbar and the topmost other bar take the level") {
    const auto taskbar = machine.OpenWindow("Shell_TrayWnd", "");
    const auto below = machine.OpenWindow("BaseBar", "");
    const auto above = machine.OpenWindow("BaseBar", "");
    tweaks::SetTaskbarOpacity(services, 100);
    for (const auto window : {taskbar, above}) {
        CHECK(machine.LookAt(window).alpha == 100);
        CHECK((machine.LookAt(window).extendedStyle & LayeredStyle) != 0);
    }
    CHECK((machine.LookAt(below).extendedStyle & LayeredStyle) == 0);
    tweaks::SetTaskbarOpacity(services, 255);
    CHECK(machine.LookAt(taskbar).alpha == 255);
    CHECK((machine.LookAt(taskbar).extendedStyle & LayeredStyle) != 0);
    CHECK(machine
              .StoredAt(platform::Registry::CurrentUser,
                        "Software\\VB and VBA Program Settings\\Quillmore\\TaskBar", "Luminance")
              ->bytes == std::string("255\0", 4));
}

TEST_CASE_FIXTURE(Shell, "the icon list is found, cleared, spread over the screen, and blackened") {
    const auto desktop = machine.OpenWindow("Progman", "Program Manager");
    const auto view = machine.OpenWindow("SHELLDLL_DefView", "", desktop);
    const auto list = machine.OpenWindow("SysListView32", "FolderView", view);
    CHECK(tweaks::FindDesktopListView(services.otherWindows) == list);
    tweaks::IconsChosen(services, 1);
    CHECK(machine.LookAt(list).textBackground == 0xFFFFFFFF);
    CHECK(machine.LookAt(list).visible);
    CHECK(machine.LookAt(list).place ==
          toolkit::Rect{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    tweaks::IconsChosen(services, 0);
    CHECK(machine.LookAt(list).textBackground == 1);
}

TEST_CASE_FIXTURE(Shell, "without the desktop there is no icon list") {
    CHECK(tweaks::FindDesktopListView(services.otherWindows) == 0);
    const auto desktop = machine.OpenWindow("Progman", "Programm-Manager");
    machine.OpenWindow("SHELLDLL_DefView", "", desktop);
    CHECK(tweaks::FindDesktopListView(services.otherWindows) == 0);
}
