#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>

#include "endtoend/dialogtitles.h"
#include "endtoend/hands/walk.h"
#include "endtoend/launchedtools.h"
#include "endtoend/lists.h"
#include "endtoend/pages.h"
#include "endtoend/trayuser.h"

namespace endtoend {
namespace {

// Boxes are counted from the right: the cross, the one that maximises, the one that minimises.
enum CaptionBox { Cross, Maximise, Minimise };

struct NotTaken {
    const char* way;
    const char* reason;
};

constexpr NotTaken NotTakenWays[] = {
    {"Alt+Tab, the Windows key, Win+B to the tray", "Wine's desktop knows none of them"},
    {"the tray's menu by the menu key", "no key leads to Wine's notification area"},
    {"Escape in an open list of a dialog", "the dialog takes it for itself and closes, on purpose"},
    {"Yes to AutoTuning and to emptying a bin", "the walk only leaves these questions"},
    {"Yes to a restore point", "its tool is started from its label"},
    {"Yes to the restart behind Apply, to logging off and restarting",
     "one end of the session is walked, with a stand-in"},
    {"a folder chosen for a path or a drive", "the chooser is the system's, and is left"},
    {"an entry really uninstalled, a drive made or removed", "other suites do it by messages"},
    {"a time server that answers", "another suite does it by messages"},
    {"the wheel, a column dragged wider, a tip that comes", "no step of the walk needs them"},
    {"a user in the list of those logged on", "Wine does not tell who is logged on"},
    {"an item of a field's menu, such as Paste", "the menu is the system's, and is left"},
    {"the web address of the about dialog", "a browser would start"},
};

RECT TitleBarOf(HWND form) {
    TITLEBARINFO bar = {};
    bar.cbSize = sizeof bar;
    GetTitleBarInfo(form, &bar);
    return bar.rcTitleBar;
}

POINT CaptionOf(HWND form) {
    const RECT bar = TitleBarOf(form);
    return {(bar.left + bar.right) / 2, (bar.top + bar.bottom) / 2};
}

POINT CaptionOf(HWND form, CaptionBox box) {
    const RECT bar = TitleBarOf(form);
    const int size = GetSystemMetrics(SM_CXSIZE);
    return {bar.right - size * box - size / 2, (bar.top + bar.bottom) / 2};
}

// The first button behind that of the start menu; they carry no titles.
HWND FirstTask() {
    HWND first = nullptr;
    for (const HWND window : WindowsBelow(FindWindowW(L"Shell_TrayWnd", nullptr))) {
        const LONG left = MiddleOf(window).x;
        const bool task = IsWindowVisible(window) && ClassOf(window) == "Button" && left > 50;
        if (task && (!first || left < MiddleOf(first).x)) first = window;
    }
    return first;
}

}  // namespace

// Refused, and accepted.
void Walk::Warning() {
    for (const char* button : {"Command1", "Command2"}) {
        program_.reset();
        workplace_.reset();
        workplace_ = std::make_unique<Workplace>(Workplace::Warning::Fresh);
        program_ = std::make_unique<Program>(workplace_->Executable());
        const HWND warning = program_->Wait("frmFirstInfo");
        Step("start", [] {}, [&] { return InFront(warning); });
        WalkThrough();
        const HWND answer = Go(button);
        if (button == std::string("Command2")) {
            Push(answer, [&] { return InFront(Named("frmMain")); });
        } else {
            Leave(button, [&] {
                if (byMouse_) {
                    ClickMouse(MiddleOf(answer));
                } else {
                    Type(VK_SPACE);
                }
            });
        }
    }
}

void Walk::TurnPages() {
    if (byMouse_) {
        for (int page = UtilitiesPage; page >= 0; --page) OpenPage(page);
        return;
    }
    for (const bool back : {false, true}) {
        for (int turns = 0; turns <= UtilitiesPage; ++turns) {
            const int page =
                (program_->CurrentTab() + (back ? UtilitiesPage : 1)) % (UtilitiesPage + 1);
            Step(
                back ? "Ctrl+Shift+Tab" : "Ctrl+Tab",
                [&] {
                    if (back) {
                        Type(VK_TAB, {VK_CONTROL, VK_SHIFT});
                    } else {
                        Type(VK_TAB, {VK_CONTROL});
                    }
                },
                [&] { return program_->CurrentTab() == page; });
        }
    }
}

void Walk::MoveWindow() {
    const HWND form = Named("frmMain");
    RECT before = {};
    GetWindowRect(form, &before);
    const auto moved = [&] {
        RECT now = {};
        GetWindowRect(form, &now);
        return now.left != before.left && !See().menu;
    };
    if (byMouse_) {
        const POINT caption = CaptionOf(form);
        Step(
            "drag the caption", [&] { DragMouse(caption, {caption.x + 40, caption.y + 30}); },
            moved);
        for (const bool maximised : {true, false}) {
            Step(
                "double click on the caption",
                [&] { ClickMouse(CaptionOf(form), Button::Left, 2); },
                [&] { return (IsZoomed(form) != FALSE) == maximised; });
        }
        StepOutside(
            "minimise", [&] { ClickMouse(CaptionOf(form, Minimise)); },
            [&] { return IsIconic(form) && FirstTask(); });
        Step(
            "click in the taskbar", [&] { ClickMouse(MiddleOf(FirstTask())); },
            [&] { return !IsIconic(form) && InFront(form); });
        return;
    }
    const HWND focus = Focused();
    PressKey("Alt+Space", VK_SPACE, [] { return See().menu; }, {VK_MENU});
    // In Wine the first one leaves the menu's mark in the caption.
    PressKey("Escape", VK_ESCAPE);
    if (See().menu) PressKey("Escape", VK_ESCAPE, [] { return !See().menu; });
    ExpectBack(form, focus);
}

void Walk::SearchFiles() {
    const Menu menu = {2, {}};
    OpenPage(CleanUpPage);
    const HWND files = Named("lvwFiles");
    const HWND search = Go("cmdSearchTempFiles");
    const auto rows = [&] { return Send(files, LVM_GETITEMCOUNT); };
    const auto done = [&] {
        return program_->Text("lblScannedFiles") == "Suchvorgang abgeschlossen!";
    };
    Push(search, done);
    // The system remembers the last Escape, which the first search takes for a wish to stop.
    if (!rows()) Push(search, [&] { return rows() > 0 && done(); });
    const Rows list(files);
    const auto all = [&](bool ticked) {
        for (int row = 0; row < list.Count(); ++row) {
            if (list.Ticked(row) != ticked) return false;
        }
        return true;
    };
    Go("lvwFiles");
    UseRows(files);
    if (byMouse_) {
        RECT area = {};
        GetWindowRect(files, &area);
        Step("click the header", [&] { ClickMouse({area.left + 30, area.top + 10}); });
    }
    ChooseFromMenu(files, menu, 2, [&] { return all(false); });
    const HWND clean = Go("cmdCleanTempFiles");
    Push(clean);
    Answer("Tempdateien löschen", IDOK);
    ExpectBack(Named("frmMain"), clean);
    Go("lvwFiles");
    ChooseFromMenu(files, menu, 1, [&] { return all(true); });
    for (const int answer : {IDNO, IDYES}) {
        Go("cmdCleanTempFiles");
        Push(clean);
        Answer("Tempdateien löschen", answer);
    }
    Step("the files are gone", [] {}, [&] { return rows() == 0; });
    if (byMouse_) return;
    Step(
        "Alt+A", [] { TypeCharacter(L'a', {VK_MENU}); },
        [&] { return Focused() == Named("cmdUpdateIECache"); });
}

void Walk::InstalledSoftware() {
    OpenPage(UtilitiesPage);
    const HWND form = Named("frmMain");
    const HWND opens = Go("cmdInstalledSoftware");
    Push(opens);
    WaitFor("frmInstalledSoftware");
    const HWND dialog = See().front;
    const HWND rows = Named("lvwSoftware");
    Step("F5", [] { Type(VK_F5); }, [&] { return Send(rows, LVM_GETITEMCOUNT) > 0; });
    for (const char* name : {"cmdUninstall", "cmdDeleteItem"}) {
        Go("lvwSoftware");
        UseRows(rows);
        const HWND button = Go(name);
        Push(button);
        WaitFor("*");
        LeaveBox();
        ExpectBack(dialog, button);
    }
    Go("lvwSoftware");
    UseRows(rows);
    ChooseFromMenu(rows, {2, {}}, 2, [&] { return InFront(program_->Box().window); });
    LeaveBox();
    ExpectBack(dialog, rows);
    PressKey("Escape", VK_ESCAPE, [&] { return !IsWindowVisible(dialog); });
    ExpectBack(form, opens);
}

void Walk::StartTools() {
    const auto programs = At<StandIn>(Programs);
    const ConsoleHost host;
    const auto consoles = At<Document>(Consoles);
    const auto others = At<StandIn>(Checks);
    OpenPage(UtilitiesPage);
    const HWND form = Named("frmMain");
    const auto start = [&](const std::string& label, const StandIn* standIn) {
        const HWND control = Named(label);
        for (int presses = 0; !byMouse_ && presses < 24 && Focused() != control; ++presses) {
            const HWND from = Focused();
            Type(VK_DOWN);
            Comes([&] { return Focused() != from; });
        }
        Push(control);
        if (label == "lblSFC") Answer("Überprüfung der Windows XP Systemdateien", IDYES);
        if (!standIn) return;
        std::printf("     starts %s\n", standIn->WaitStart().commandLine.c_str());
        Step("it has ended", [] {}, [&] { return InFront(form); });
    };
    Go("lblCMD");
    for (std::size_t at = 0; at < std::size(Programs); ++at)
        start(Programs[at].label, programs[at].get());
    for (const Tool& console : Consoles) start(console.label, host.operator->());
    for (std::size_t at = 0; at < others.size(); ++at) start(Checks[at].label, others[at].get());
    start("lblSystem", nullptr);
}

void Walk::Tray() {
    const Menu menu = {6, {1, 2, 5}};
    OpenPage(UtilitiesPage);
    const HWND form = Named("frmMain");
    const HWND box = Go("chkTrayIcon");
    if (Send(box, BM_GETCHECK) != BST_CHECKED) {
        Push(box, [&] { return Send(box, BM_GETCHECK) == BST_CHECKED; });
    }
    const auto hide = [&] {
        StepOutside(
            "minimise",
            [&] {
                if (byMouse_) {
                    ClickMouse(CaptionOf(form, Minimise));
                } else {
                    Type(VK_SPACE, {VK_MENU});
                    Comes([] { return See().menu; });
                    TypeCharacter(L'n');
                }
            },
            [&] { return !IsWindowVisible(form) && TrayUser(*program_).HasIcon(); });
    };
    const auto open = [&] {
        StepOutside(
            "right button on the icon", [] { ClickMouse(TrayIcon(), Button::Right); },
            [] { return See().menu && FindWindowW(L"#32768", nullptr); });
    };
    hide();
    open();
    StepOutside("Escape", [] { Type(VK_ESCAPE); }, [] { return !See().menu; });
    open();
    StepOutside("the menu's lock", [&] { Choose(menu, 2); }, [&] { return runner_->WasStarted(); });
    runner_->WaitStart();
    for (const int item : {3, 4, 5}) {
        open();
        Step(
            "item " + std::to_string(item), [&] { Choose(menu, item); },
            [&] { return InFront(program_->Box().window); });
        const HWND question = program_->Box().window;
        StepOutside(
            "No",
            [&] {
                if (byMouse_) {
                    ClickMouse(MiddleOf(GetDlgItem(question, IDNO)));
                } else {
                    TypeCharacter(L'n', {VK_MENU});
                }
            },
            [&] { return !IsWindowVisible(question); });
    }
    const auto back = [&] { return IsWindowVisible(form) && InFront(form); };
    Step("double click on the icon", [] { ClickMouse(TrayIcon(), Button::Left, 2); }, back);
    ExpectBack(form, box);
    hide();
    open();
    Step("the menu's first item", [&] { Choose(menu, 1); }, back);
    ExpectBack(form, box);
    hide();
    open();
    Leave("the menu's end", [&] { Choose(menu, 6); });
}

// Asked for by Apply where the automatic logon has one.
void Walk::Password() {
    const HWND form = Named("frmMain");
    OpenPage(SystemPage);
    const HWND logon = Go("chkAutoLogin");
    Push(logon, [&] { return Send(logon, BM_GETCHECK) == BST_CHECKED; });
    const HWND field = Go("txtALPassword");
    if (byMouse_) Push(field, [&] { return Focused() == field; });
    Step("a character", [] { TypeCharacter(L'a'); }, [&] { return TextOf(field) == "a"; });
    const HWND apply = Go("cmdApply");
    Push(apply);
    Answer(ConfirmTitle, IDYES);
    WaitFor("frmPassword");
    const HWND dialog = See().front;
    WalkThrough();
    const auto gone = [&] { return !IsWindowVisible(dialog); };
    if (byMouse_) {
        Push(Named("frmPassword.cmdCancel"), gone);
    } else {
        PressKey("Escape", VK_ESCAPE, gone);
    }
    Answer(WrongPasswordTitle, IDOK);
    ExpectBack(form, apply);
    Push(apply);
    Answer(ConfirmTitle, IDYES);
    WaitFor("frmPassword");
    const HWND typed = Go("frmPassword.txtPasswort");
    if (byMouse_) Push(typed, [&] { return Focused() == typed; });
    Step("a character", [] { TypeCharacter(L'a'); }, [&] { return TextOf(typed) == "a"; });
    if (byMouse_) {
        Push(Named("frmPassword.cmdOK"), gone);
    } else {
        PressKey("Return", VK_RETURN, gone);
    }
    Apply();
}

void Walk::Apply() {
    const HWND form = Named("frmMain");
    Answer(RestorePointTitle, IDNO);
    LeaveBoxesUntil(DoneTitle);
    LeaveBox(IDNO);
    ExpectBack(form, Named("cmdApply"));
}

void Walk::Leave(const std::string& way, const Act& act) {
    StepOutside(way, act, [&] { return !program_->Running(); });
    if (program_->WaitForEnd() != 0) Fault(way + ": the program ends with a failure");
    program_.reset();
}

void Walk::LeaveInEachWay() {
    if (byMouse_) {
        Leave("click cmdEnd", [&] { ClickMouse(MiddleOf(Named("cmdEnd"))); });
        Start();
        Leave("click the cross", [&] { ClickMouse(CaptionOf(Named("frmMain"), Cross)); });
        return;
    }
    Go("cmdEnd");
    Leave("Space on cmdEnd", [] { Type(VK_SPACE); });
    Start();
    Leave("F4", [] { Type(VK_F4); });
    Start();
    Leave("Alt+F4", [] { Type(VK_F4, {VK_MENU}); });
}

// By a build of the program that can neither set a clock nor reach another computer.
void Walk::SynchronizeClock() {
    OpenPage(UtilitiesPage);
    const HWND form = Named("frmMain");
    const HWND button = Go("cmdSynchronizeDateTime");
    Push(button);
    WaitFor("*");
    LeaveBox();
    ExpectBack(form, button);
}

// By a build of the program that cannot end a session.
void Walk::EndSession() {
    OpenPage(UtilitiesPage);
    const HWND button = Go("cmdShutdown(0)");
    Push(button);
    WaitFor("Computer herunterfahren");
    const HWND yes = GetDlgItem(program_->Box().window, IDYES);
    Leave("Yes", [&] {
        if (byMouse_) {
            ClickMouse(MiddleOf(yes));
        } else {
            TypeCharacter(L'j', {VK_MENU});
        }
    });
}

int Walk::Run() {
    const OnlyMouse mouse;
    constexpr char Entry[] =
        "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Quillmore Probe";
    WriteValue({"HKLM", Entry, "DisplayName"}, TerminatedText("Probe"));
    WriteValue({"HKLM", Entry, "UninstallString"}, TerminatedText("C:\\probe\\none.exe"));
    WriteFile(WindowsFolder() + "\\Temp\\probe.tmp", "");
    const EmptyPlace shell(SystemFolder() + "\\command.com");
    WriteFile(shell.Path(), ReadFile(OwnFolder() + "\\substshell.exe"));
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    runner_ = std::make_unique<StandIn>(SystemFolder() + "\\rundll32.exe");
    Section("the warning", [&] { Warning(); });
    Section("turning the pages", [&] { TurnPages(); });
    Section("moving the window", [&] { MoveWindow(); });
    const char* const pages[] = {"System",     "Tweaks", "Pfade",     "CleanUp",
                                 "Sicherheit", "DFÜ",    "Shortcuts", "Utilities"};
    for (int page = 0; page <= UtilitiesPage; ++page) {
        Section(std::string("page ") + pages[page], [&] {
            OpenPage(page);
            WalkThrough();
        });
    }
    Section("the search", [&] { SearchFiles(); });
    Section("the installed software", [&] { InstalledSoftware(); });
    Section("the tools", [&] { StartTools(); });
    Section("Apply and the password", [&] { Password(); });
    Section("the tray", [&] { Tray(); });
    Section("the end", [&] { LeaveInEachWay(); });
    Section("the clock", [&] { SynchronizeClock(); }, "clockless.exe");
    Section("the end of the session", [&] { EndSession(); }, "sessionless.exe");
    program_.reset();
    workplace_.reset();
    runner_.reset();
    DeleteTree("HKLM", Entry);
    for (const NotTaken& way : NotTakenWays) {
        std::printf("not taken: %s: %s\n", way.way, way.reason);
    }
    std::printf("%d steps, %d faults\n", number_, faults_);
    return faults_;
}

}  // namespace endtoend
