#include "tweaks/transparency.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"

using Lines = std::vector<std::string>;

namespace {

constexpr std::uint32_t Layered = 0x80000;

// A machine whose shell runs as far as a case opens its windows.
struct Shell {
    platform::simulated::Machine machine;
    const Lines& lines = machine.journal.Lines();

    // The desktop with its icon list, which is returned.
    platform::OtherWindows::Handle OpenDesktop() {
        const auto desktop = machine.otherWindows.Open("Progman", "Program Manager");
        return machine.otherWindows.Open(
            "SysListView32", "FolderView",
            machine.otherWindows.Open("SHELLDLL_DefView", "", desktop));
    }
    void SetLevel(int level) {
        tweaks::SetTaskbarOpacity(machine.services, static_cast<std::uint8_t>(level));
    }
    const platform::simulated::OtherWindows::Window& At(platform::OtherWindows::Handle window) {
        return machine.otherWindows.At(window);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Shell, "the icon list is found below the desktop and its view") {
    const auto list = OpenDesktop();
    CHECK(tweaks::FindDesktopListView(machine.otherWindows) == list);
    CHECK(lines == Lines{"FindWindowA \"Progman\" \"Program Manager\" -> #1",
                         "FindWindowExA #1 \"SHELLDLL_DefView\" -> #2",
                         "FindWindowExA #2 \"SysListView32\" -> #3"});
}

TEST_CASE_FIXTURE(Shell, "the search for the icon list ends at the first step that finds nothing") {
    CHECK(tweaks::FindDesktopListView(machine.otherWindows) == 0);
    CHECK(lines.size() == 1);

    const auto desktop = machine.otherWindows.Open("Progman", "Program Manager");
    machine.otherWindows.Open("SysListView32", "", desktop);
    machine.journal.Clear();
    CHECK(tweaks::FindDesktopListView(machine.otherWindows) == 0);
    CHECK(lines.size() == 2);

    machine.otherWindows.Open("SHELLDLL_DefView", "", desktop);
    machine.journal.Clear();
    CHECK(tweaks::FindDesktopListView(machine.otherWindows) == 0);
    CHECK(lines.size() == 3);
}

TEST_CASE_FIXTURE(Shell, "a window of the desktop's class with another title is not the desktop") {
    machine.otherWindows.Open("Progman", "Programm-Manager");
    CHECK(tweaks::FindDesktopListView(machine.otherWindows) == 0);
}

TEST_CASE_FIXTURE(Shell, "transparent icons lose their background and fill the screen anew") {
    const auto list = OpenDesktop();
    machine.display.size = {800, 600};
    machine.journal.Clear();
    tweaks::SetIconsTransparent(machine.services, 1);
    CHECK(At(list).textBackground == 0xFFFFFFFF);
    CHECK(At(list).place == toolkit::Rect{0, 0, 800, 600});
    CHECK(At(list).visible);
    CHECK(Lines(lines.begin() + 3, lines.end()) ==
          Lines{"SendMessageA #3 0x1026 0x00 0xFFFFFFFF",
                "SetWindowPos #3 after 1 at 0,0 size 0x0 flags 0x80", "GetSystemMetrics -> 800x600",
                "SetWindowPos #3 after 0 at 0,0 size 800x600 flags 0x40"});
}

TEST_CASE_FIXTURE(Shell,
                  "icons that are no longer transparent stand on a nearly black background") {
    const auto list = OpenDesktop();
    tweaks::SetIconsTransparent(machine.services, 1);
    machine.journal.Clear();
    tweaks::SetIconsTransparent(machine.services, 0);
    CHECK(At(list).textBackground == 1);
    CHECK(At(list).redraws == 1);
    CHECK(Lines(lines.begin() + 3, lines.end()) ==
          Lines{"SendMessageA #3 0x1026 0x00 0x01", "InvalidateRect #3 erase"});
}

TEST_CASE_FIXTURE(Shell, "any value but 0 makes the icons transparent") {
    const auto list = OpenDesktop();
    for (int on : {2, -1, 32767}) {
        CAPTURE(on);
        tweaks::SetIconsTransparent(machine.services, 0);
        tweaks::SetIconsTransparent(machine.services, static_cast<std::int16_t>(on));
        CHECK(At(list).textBackground == 0xFFFFFFFF);
    }
}

TEST_CASE_FIXTURE(Shell, "without a shell nothing is asked of the icons") {
    tweaks::SetIconsTransparent(machine.services, 1);
    tweaks::SetIconsTransparent(machine.services, 0);
    CHECK(machine.journal.Calls("SendMessageA").empty());
    CHECK(machine.journal.Calls("SetWindowPos").empty());
    CHECK(machine.journal.Calls("InvalidateRect").empty());
}

TEST_CASE_FIXTURE(Shell, "the choice of the icons is stored before it takes effect") {
    const auto list = OpenDesktop();
    tweaks::IconsChosen(machine.services, 1);
    CHECK(machine.settingsStore.Stored("Desktop", "TransparentIcons") == "1");
    CHECK(lines.front().starts_with("SaveSetting"));
    tweaks::IconsChosen(machine.services, 0);
    CHECK(machine.settingsStore.Stored("Desktop", "TransparentIcons") == "0");
    CHECK(At(list).textBackground == 1);
}

TEST_CASE_FIXTURE(Shell, "the grey state of the icons is stored like off and acts like on") {
    const auto list = OpenDesktop();
    tweaks::IconsChosen(machine.services, 2);
    CHECK(machine.settingsStore.Stored("Desktop", "TransparentIcons") == "0");
    CHECK(At(list).textBackground == 0xFFFFFFFF);
}

TEST_CASE_FIXTURE(Shell, "a choice of the icons that cannot be stored has no effect and fails") {
    const auto list = OpenDesktop();
    machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    CHECK_THROWS_AS(tweaks::IconsChosen(machine.services, 1), runtime::Failure);
    CHECK(At(list).textBackground == 0xFFFFFF);
}

TEST_CASE_FIXTURE(Shell, "the level is stored, then given to the taskbar and the other bar") {
    const auto taskbar = machine.otherWindows.Open("Shell_TrayWnd");
    const auto bar = machine.otherWindows.Open("BaseBar", "Adresse");
    machine.otherWindows.SetExtendedStyle(taskbar, 0x88);
    machine.journal.Clear();
    SetLevel(100);
    CHECK(machine.settingsStore.Stored("TaskBar", "Luminance") == "100");
    CHECK(At(taskbar).alpha == 100);
    CHECK(At(taskbar).extendedStyle == (0x88 | Layered));
    CHECK(At(bar).alpha == 100);
    CHECK(lines == Lines{"SaveSetting \"Quillmore\" \"TaskBar\" \"Luminance\" \"100\"",
                         "FindWindowA \"Shell_TrayWnd\" -> #1",
                         "GetWindowLongA #1 GWL_EXSTYLE -> 0x88",
                         "SetWindowLongA #1 GWL_EXSTYLE 0x80088",
                         "SetLayeredWindowAttributes #1 key 0x00 alpha 100 flags 0x02",
                         "FindWindowA \"BaseBar\" -> #2", "GetWindowLongA #2 GWL_EXSTYLE -> 0x00",
                         "SetWindowLongA #2 GWL_EXSTYLE 0x80000",
                         "SetLayeredWindowAttributes #2 key 0x00 alpha 100 flags 0x02"});
}

TEST_CASE_FIXTURE(Shell, "level 255 is opaque and keeps the layered style") {
    const auto taskbar = machine.otherWindows.Open("Shell_TrayWnd");
    SetLevel(55);
    SetLevel(255);
    CHECK(At(taskbar).alpha == 255);
    CHECK(At(taskbar).extendedStyle == Layered);
}

TEST_CASE_FIXTURE(Shell, "of several bars only the topmost gets the level") {
    const auto below = machine.otherWindows.Open("BaseBar");
    const auto above = machine.otherWindows.Open("BaseBar");
    SetLevel(70);
    CHECK(At(above).alpha == 70);
    CHECK(At(below).alpha == 255);
    CHECK(At(below).extendedStyle == 0);
}

TEST_CASE_FIXTURE(Shell, "a bar that opens later stays as it is") {
    SetLevel(70);
    const auto bar = machine.otherWindows.Open("BaseBar");
    CHECK(At(bar).alpha == 255);
}

TEST_CASE_FIXTURE(Shell, "the bar gets the level also where there is no taskbar") {
    const auto bar = machine.otherWindows.Open("BaseBar");
    SetLevel(60);
    CHECK(At(bar).alpha == 60);
}

TEST_CASE_FIXTURE(Shell, "without a shell the level is stored all the same") {
    SetLevel(80);
    CHECK(machine.settingsStore.Stored("TaskBar", "Luminance") == "80");
    CHECK(machine.journal.Calls("SetWindowLongA").empty());
}

TEST_CASE_FIXTURE(Shell, "a level that cannot be stored touches no window and fails") {
    const auto taskbar = machine.otherWindows.Open("Shell_TrayWnd");
    machine.faults.FailAll("SaveSetting", runtime::InvalidProcedureCall);
    CHECK_THROWS_AS(SetLevel(80), runtime::Failure);
    CHECK(At(taskbar).alpha == 255);
}

TEST_CASE_FIXTURE(Shell, "windows that refuse are left, and nothing is reported") {
    const auto taskbar = machine.otherWindows.Open("Shell_TrayWnd");
    const auto list = OpenDesktop();
    for (const char* call : {"GetWindowLongA", "SetWindowLongA", "SetLayeredWindowAttributes",
                             "SendMessageA", "SetWindowPos", "InvalidateRect"}) {
        machine.faults.FailAll(call, 5);
    }
    SetLevel(80);
    tweaks::SetIconsTransparent(machine.services, 1);
    tweaks::SetIconsTransparent(machine.services, 0);
    CHECK(At(taskbar).alpha == 255);
    CHECK(At(list).textBackground == 0xFFFFFF);
    CHECK(machine.messages.Shown().empty());
}
