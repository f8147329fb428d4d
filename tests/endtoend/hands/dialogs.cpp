#include <windows.h>

#include <algorithm>

#include "endtoend/hands/walk.h"

namespace endtoend {
namespace {

// The system's runner of library functions starts.
constexpr char Runner[] = "runner";
constexpr char AnyBox[] = "*";
// It needs more than a press, and is pressed by an errand.
constexpr char Errand[] = "errand";

// What comes when the button is pressed, one after the other: a form by its name, a box by its
// title. Where a button is not listed nothing comes.
struct Press {
    const char* button;
    std::vector<const char*> comes;
};

const Press Presses[] = {
    {"Command1", {Errand}},
    {"Command2", {Errand}},
    {"cmdSetAllOptimal", {"AutoTuning"}},
    {"cmdSysInfo", {"frmSystemInformation"}},
    {"cmdHilfe", {Runner}},
    {"cmdAbout", {"frmAbout"}},
    {"cmdApply", {"Einstellungen speichern"}},
    {"cmdEnd", {Errand}},
    {"cmdPath(", {"Verzeichnis auswählen"}},
    {"cmdCleanBinDirect", {AnyBox}},
    {"cmdSearchTempFiles", {Errand}},
    {"cmdCleanTempFiles", {Errand}},
    {"cmdSynchronizeDateTime", {Errand}},
    {"cmdShutdown(0)", {"Computer herunterfahren"}},
    {"cmdShutdown(1)", {"Computer neu starten"}},
    {"cmdShutdown(2)", {"Benutzer abmelden"}},
    {"cmdLockWS", {Runner}},
    // Wine does not tell who is logged on.
    {"cmdShowAllLoggedOnUsers", {"Fehler", "frmShowAllLoggedInUsers"}},
    {"frmShowAllLoggedInUsers.cmdRefresh", {"Fehler"}},
    {"cmdInstalledSoftware", {"frmInstalledSoftware"}},
    {"cmdVirtualDrive", {"frmVirtualDrive"}},
    {"cmdbroswe", {AnyBox}},
    {"cmdUninstall", {Errand}},
    {"cmdDeleteItem", {Errand}},
    {"cmdOK", {Errand}},
    {"cmdCancel", {Errand}},
    {"cmdClose", {Errand}},
    {"cmdexit", {Errand}},
};

constexpr const char* ClosingButtons[] = {"cmdOK", "cmdClose", "cmdexit"};

std::vector<const char*> ComesOf(HWND button) {
    const std::string name = NameOf(button);
    const std::string full = NameOf(GetAncestor(button, GA_ROOT)) + '.' + name;
    for (const Press& press : Presses) {
        if (name.starts_with(press.button) || full == press.button) return press.comes;
    }
    return {};
}

bool IsForm(const std::string& comes) {
    return comes.starts_with("frm");
}

int HarmlessButton(const MessageBox& box) {
    for (const int button : {IDNO, IDCANCEL}) {
        if (std::count(box.buttons.begin(), box.buttons.end(), button)) return button;
    }
    return box.buttons.empty() ? IDCANCEL : box.buttons.front();
}

}  // namespace

void Walk::ExpectBack(HWND form, HWND control) {
    if (Comes([&] { return InFront(form) && Focused() == control; })) return;
    Fault("the focus has not come back to " + NameOf(control));
}

void Walk::WaitFor(const std::string& comes) {
    Step(
        comes + " comes", [] {},
        [&] {
            const HWND front = See().front;
            if (IsForm(comes)) return NameOf(front) == comes;
            const MessageBox box = program_->Box();
            return box.window && box.window == front && (comes == AnyBox || box.title == comes);
        });
}

void Walk::UseButton(HWND button) {
    const std::vector<const char*> comes = ComesOf(button);
    if (!comes.empty() && comes[0] == Errand) return;
    const HWND form = See().front;
    Push(button);
    for (const char* next : comes) {
        if (next == Runner) {
            runner_->WaitStart();
            continue;
        }
        WaitFor(next);
        if (IsForm(next)) {
            UseForm(See().front);
        } else {
            LeaveBox();
        }
    }
    ExpectBack(form, button);
}

// It fades in, and only then has a button that can be reached.
void Walk::WaitForAbout() {
    const HWND button = Named("frmAbout.cmdOK");
    StepOutside("the dialog has come into sight", [] {}, [&] { return IsWindowEnabled(button); });
    if (!byMouse_) PressKey("Tab", VK_TAB, [&] { return Focused() == button; });
}

// By the keyboard it is left by Escape, by the mouse with its button.
void Walk::UseForm(HWND form) {
    const std::string name = NameOf(form);
    const auto gone = [&] { return !IsWindowVisible(form); };
    if (name == "frmAbout") WaitForAbout();
    WalkThrough();
    if (!byMouse_) {
        PressKey("Escape", VK_ESCAPE, gone);
        return;
    }
    for (const char* closing : ClosingButtons) {
        const HWND button = Named(name + '.' + closing);
        if (button) Push(button, gone);
        if (button) return;
    }
    throw Failed(name + " has no button that closes it");
}

void Walk::LeaveBox(int button) {
    const MessageBox box = program_->Box();
    if (!box.window) throw Failed("there is no box to leave");
    if (!button) button = HarmlessButton(box);
    const HWND pressed = GetDlgItem(box.window, button);
    const std::string caption = pressed ? TextOf(pressed) : "";
    const std::string where = WithoutMarks(caption) + " of \"" + box.title + '"';
    const std::size_t mark = caption.find('&');
    const auto gone = [&] { return !IsWindowVisible(box.window); };
    const bool onlyOne = box.buttons.size() < 2;
    if (byMouse_ && pressed) {
        Step("click " + where, [&] { ClickMouse(MiddleOf(pressed)); }, gone);
    } else if (button == IDCANCEL || onlyOne) {
        PressKey("Escape, for " + where, VK_ESCAPE, gone);
    } else if (mark != std::string::npos) {
        const auto key = static_cast<wchar_t>(caption[mark + 1] | 0x20);
        Step("access key of " + where, [&] { TypeCharacter(key, {VK_MENU}); }, gone);
    } else {
        for (std::size_t tabs = 0; tabs < box.buttons.size() && See().focus != pressed; ++tabs) {
            const HWND from = See().focus;
            PressKey("Tab in the box", VK_TAB, [&] { return See().focus != from; });
        }
        PressKey("Space on " + where, VK_SPACE, gone);
    }
}

void Walk::Answer(const std::string& title, int button) {
    WaitFor(title);
    LeaveBox(button);
}

void Walk::LeaveBoxesUntil(const std::string& title) {
    for (int boxes = 0; boxes < 30; ++boxes) {
        WaitFor(AnyBox);
        if (program_->Box().title == title) return;
        LeaveBox();
    }
    throw Failed("the boxes before \"" + title + "\" have no end");
}

}  // namespace endtoend
