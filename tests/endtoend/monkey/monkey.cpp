// Somebody without a plan: real clicks and keys at random on the program's windows, and a look
// after each whether all is well. monkey.exe SECONDS SEED
#include <windows.h>

#include <objbase.h>

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "endtoend/files.h"
#include "endtoend/hands/hand.h"
#include "endtoend/monkey/event.h"
#include "endtoend/monkey/watch.h"
#include "endtoend/program.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"

namespace {

using namespace endtoend;

constexpr char Executable[] = "C:\\Programme\\Quillmore\\Quillmore.exe";
constexpr char LogFile[] = "C:\\Programme\\Quillmore\\Quillmore.log";
constexpr DWORD Pause = 60;
constexpr std::uint32_t EventsBetweenPictures = 7;
// What has been clicked may take effect later, behind a pass or a search.
constexpr std::uint32_t EventsUntilTheEnd = 40;
constexpr std::size_t Remembered = 50;

// Whatever the program starts does nothing and ends.
const char* const Tools[] = {
    "\\System32\\cleanmgr.exe",
    "\\System32\\cmd.exe",
    "\\System32\\command.com",
    "\\System32\\dxdiag.exe",
    "\\System32\\mmc.exe",
    "\\System32\\regedt32.exe",
    "\\System32\\regsvr32.exe",
    "\\System32\\rundll32.exe",
    "\\System32\\sfc.exe",
    "\\System32\\taskmgr.exe",
    "\\system32\\restore\\rstrui.exe",
    "\\PCHEALTH\\HELPCTR\\Binaries\\msconfig.exe",
};

struct Finding {
    std::string what;
};

bool IsMenu(HWND window) {
    return ClassOf(window) == "#32768";
}

bool IsTip(HWND window) {
    return ClassOf(window) == "tooltips_class32";
}

class Monkey {
  public:
    Monkey(unsigned seconds, std::uint32_t seed) : seconds_(seconds), seed_(seed) {
        for (const char* tool : Tools) {
            tools_.push_back(std::make_unique<StandIn>(WindowsFolder() + tool));
        }
        CLSID browser = {};
        if (SUCCEEDED(CLSIDFromProgID(L"InternetExplorer.Application", &browser))) {
            throw Failed("there is a browser");
        }
        WriteValue({"HKCU", "Software\\Wine\\WineDbg", "ShowCrashDialog"}, Dword(0));
        // Fields of the version are options, and nothing else is to hang on them.
        WriteValue({"HKCU", "Software\\Wine\\AppDefaults\\Quillmore.exe", "Version"},
                   TerminatedText("winxp"));
        WriteValue(
            {"HKCU", "Software\\VB and VBA Program Settings\\Quillmore\\Options", "Accepted"},
            TerminatedText("Yes"));
    }

    void Play() {
        const DWORD begin = GetTickCount();
        Start();
        for (number_ = 1; GetTickCount() - begin < seconds_ * 1000; ++number_) {
            if (!program_->Running()) Ended();
            const Event event = EventOf(seed_, number_);
            try {
                Do(event);
                if (event.hurried) continue;
                Sleep(Pause);
                Look();
            } catch (const Failed&) {
                // A window that goes while it is looked at. One that hangs does not answer now
                // either.
                if (const HWND main = program_->Find("frmMain")) CheckAnswer(main);
            }
        }
        if (!program_->Running()) Ended();
        CheckLog();
    }

    void Report(const std::string& what) {
        std::printf("\nFINDING of seed %u at event %u: %s\n", seed_, number_, what.c_str());
        std::printf("The last events:\n");
        for (const std::string& line : last_) std::printf("%s\n", line.c_str());
        const HWND main = program_->Find("frmMain");
        std::printf("Now: %s\n", Describe(See()).c_str());
        for (const HWND window : program_->TopLevel()) {
            if (IsWindowVisible(window)) std::printf("  window %s\n", SeenWindow(window).c_str());
        }
        std::fflush(stdout);
        if (!hasPictures_ && main) Shown(GetDesktopWindow()).Write("finding.bmp");
    }

    void Tell() const {
        std::printf(
            "seed %u: %u events, %d of them nowhere, %d starts, %d pictures compared, "
            "%d not for something moved\n",
            seed_, number_ - 1, nowhere_, starts_, compared_, moving_);
        for (const auto& [title, times] : boxes_) {
            std::printf("  %4d times seen: %s\n", times, title.c_str());
        }
    }

  private:
    void Start();
    void Ended();
    void Do(const Event& event);
    void GetBack(const Event& event);
    HWND Top(bool menus = true) const;
    POINT PlaceIn(HWND top, const Event& event, std::string& name) const;
    bool IsOurs(POINT place) const;
    bool MayEnd(HWND top, const std::string& control, const Event& event) const;
    void Say(const std::string& text);
    void Look();
    void CheckAnswer(HWND main);
    void CheckFocus();
    void CheckPicture(HWND main);
    void CheckBox();
    void CheckLog();

    unsigned seconds_;
    std::uint32_t seed_;
    std::uint32_t number_ = 0;
    std::uint32_t lastEnding_ = 0;
    std::uint32_t lastPicture_ = 0;
    HWND lastTop_ = nullptr;
    int starts_ = 0;
    int nowhere_ = 0;
    int compared_ = 0;
    int moving_ = 0;
    bool hasPictures_ = false;
    std::map<std::string, int> boxes_;
    std::deque<std::string> last_;
    std::vector<std::unique_ptr<StandIn>> tools_;
    std::unique_ptr<Program> program_;
};

void Monkey::Say(const std::string& text) {
    last_.push_back(std::to_string(number_) + ' ' + text);
    if (last_.size() > Remembered) last_.pop_front();
    std::printf("%s\n", last_.back().c_str());
    std::fflush(stdout);
}

void Monkey::Start() {
    program_ = std::make_unique<Program>(Executable);
    program_->WaitIdle();
    Until("a window of the program", [&] { return program_->Find("frmMain") != nullptr; });
    ++starts_;
    lastEnding_ = 0;
    Say("the program starts");
}

void Monkey::Ended() {
    const DWORD code = program_->WaitForEnd();
    if (code != 0) throw Finding{"the program ended with code " + std::to_string(code)};
    if (lastEnding_ == 0 || number_ - lastEnding_ > EventsUntilTheEnd) {
        throw Finding{"the program ended, and nobody asked for it"};
    }
    Say("the program has ended");
    CheckLog();
    Start();
}

// What takes clicks: a menu, else the window that is before all others of the program.
HWND Monkey::Top(bool menus) const {
    HWND top = nullptr;
    for (const HWND window : program_->TopLevel()) {
        RECT area = {};
        GetWindowRect(window, &area);
        if (!IsWindowVisible(window) || IsIconic(window) || IsRectEmpty(&area)) continue;
        if (IsMenu(window)) {
            if (menus) return window;
            continue;
        }
        if (!top && IsWindowEnabled(window) && !IsTip(window)) top = window;
    }
    return top;
}

bool Monkey::IsOurs(POINT place) const {
    DWORD owner = 0;
    GetWindowThreadProcessId(WindowFromPoint(place), &owner);
    return owner == program_->Process();
}

POINT Monkey::PlaceIn(HWND top, const Event& event, std::string& name) const {
    std::vector<HWND> controls;
    for (const HWND window : WindowsBelow(top)) {
        if (IsWindowVisible(window) && IsWindowEnabled(window)) controls.push_back(window);
    }
    std::vector<HWND> favoured = controls;
    std::erase_if(favoured, [&](HWND window) { return ClassOf(window) != event.favoured; });
    if (!favoured.empty()) controls = favoured;
    const HWND target =
        event.onControl && !controls.empty() ? controls[event.control % controls.size()] : top;
    RECT area = {};
    GetWindowRect(target, &area);
    const auto at = [](LONG from, LONG to, std::uint32_t share) {
        return from + (to - from) * static_cast<LONG>(share) / 1000;
    };
    const POINT place = {at(area.left, area.right, event.x), at(area.top, area.bottom, event.y)};
    name = SeenName(WindowFromPoint(place));
    return place;
}

// Whether the program may end for this.
bool Monkey::MayEnd(HWND top, const std::string& control, const Event& event) const {
    static const char* const Ending[] = {"cmdApply", "cmdEnd", "cmdShutdown(0)", "cmdShutdown(1)",
                                         "cmdShutdown(2)"};
    for (const char* name : Ending) {
        if (control == name) return true;
    }
    if (IsMenu(top) || See().menu) return true;
    // A box may be the question whether the session is to end.
    if (ClassOf(top) == "#32770") return true;
    if (event.deed == Deed::Key) return event.key == VK_F4 || !event.held.empty();
    // The caption of the main window.
    return control == "frmMain";
}

// A window that is away comes back by the taskbar.
void Monkey::GetBack(const Event& event) {
    const HWND main = program_->Find("frmMain");
    const HWND taskbar = FindWindowW(L"Shell_TrayWnd", nullptr);
    if (!main || !taskbar) return Say("nothing is there");
    // Wine's taskbar brings a form to the front of the dialog that it is just opening, which a
    // person then cannot reach; that of Windows brings the dialog.
    if (IsWindowVisible(main) && !IsIconic(main)) return Say("nothing takes clicks");
    if (IsWindowVisible(main)) {
        for (HWND button = GetWindow(taskbar, GW_CHILD); button;
             button = GetWindow(button, GW_HWNDNEXT)) {
            // Wine's taskbar numbers its buttons by the windows.
            if (GetDlgCtrlID(button) != static_cast<int>(reinterpret_cast<LONG_PTR>(main))) {
                continue;
            }
            Say("click on the taskbar's button");
            return ClickMouse(MiddleOf(button));
        }
        return Say("no button in the taskbar");
    }
    constexpr LONG HalfAnIcon = 8;
    RECT area = {};
    GetWindowRect(taskbar, &area);
    const POINT icon = {area.right - HalfAnIcon, (area.top + area.bottom) / 2};
    if (event.deed == Deed::RightClick) {
        Say("right click on the icon");
        ClickMouse(icon, Button::Right);
    } else {
        Say("double click on the icon");
        ClickMouse(icon, Button::Left, 2);
    }
}

void Monkey::Do(const Event& event) {
    const HWND top = Top();
    if (!top) return GetBack(event);
    if (event.deed == Deed::Key) {
        DWORD owner = 0;
        const Sight sight = See();
        GetWindowThreadProcessId(sight.front, &owner);
        if (owner != program_->Process()) {
            ++nowhere_;
            return Say("no key, for in front is " + SeenWindow(sight.front));
        }
        const std::string focus = SeenName(sight.focus);
        if (MayEnd(top, focus, event)) lastEnding_ = number_;
        Say(NameOfKey(event) + " on " + focus + (sight.menu ? ", a menu open" : "") + " in " +
            SeenWindow(sight.front));
        switch (event.held.size()) {
            case 0:
                return Type(event.key);
            case 1:
                return Type(event.key, {event.held[0]});
            default:
                return Type(event.key, {event.held[0], event.held[1]});
        }
    }
    std::string name;
    // A menu is left by clicks beside it.
    const HWND other = IsMenu(top) && !event.onControl ? Top(false) : top;
    const POINT place = PlaceIn(other ? other : top, event, name);
    if (!IsOurs(place)) {
        ++nowhere_;
        return Say("no click, for there is " + name);
    }
    if (MayEnd(top, name, event)) lastEnding_ = number_;
    const std::string where = name + " in " + SeenWindow(top) + " at " + std::to_string(place.x) +
                              ',' + std::to_string(place.y);
    switch (event.deed) {
        case Deed::DoubleClick:
            Say("double click on " + where);
            return ClickMouse(place, Button::Left, 2);
        case Deed::RightClick:
            Say("right click on " + where);
            return ClickMouse(place, Button::Right);
        case Deed::Drag: {
            RECT area = {};
            GetWindowRect(top, &area);
            const POINT to = {
                area.left + (area.right - area.left) * static_cast<LONG>(event.toX) / 1000,
                area.top + (area.bottom - area.top) * static_cast<LONG>(event.toY) / 1000};
            Say("drag from " + where + " to " + std::to_string(to.x) + ',' + std::to_string(to.y));
            MoveMouse(place);
            mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
            MoveMouse(to);
            mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
            return;
        }
        default:
            Say("click on " + where);
            return ClickMouse(place);
    }
}

void Monkey::CheckAnswer(HWND main) {
    const bool answered = AnswersInTwoSeconds(main) || !program_->Running();
    if (!answered) throw Finding{"no answer for two seconds"};
}

void Monkey::CheckFocus() {
    Sight sight;
    const bool fine = ComesInTwoSeconds([&] {
        sight = See();
        DWORD owner = 0;
        GetWindowThreadProcessId(sight.front, &owner);
        if (owner != program_->Process() || sight.menu) return true;
        if (!NameOf(sight.front).starts_with("frm") || !IsWindowVisible(sight.front) ||
            IsIconic(sight.front)) {
            return true;
        }
        // A form that waits for a dialog is not before it.
        if (!IsWindowEnabled(sight.front)) return Top() == nullptr;
        return sight.focus && IsWindowVisible(sight.focus) && IsWindowEnabled(sight.focus) &&
               GetAncestor(sight.focus, GA_ROOT) == sight.front;
    });
    if (!fine) throw Finding{"the keyboard goes nowhere: " + Describe(sight)};
}

void Monkey::CheckPicture(HWND main) {
    const auto searches = [&] {
        const HWND button = program_->Find("cmdSearchTempFiles");
        return button && TextOf(button) == "Stop";
    };
    if (searches()) return;
    const Unpainted look = LookForUnpainted(main);
    ++(look.told ? compared_ : moving_);
    if (!look.told || look.controls.empty() || searches()) return;
    std::string text = "not painted:";
    for (const std::string& control : look.controls) text += ' ' + control + ',';
    look.before.Write("before.bmp");
    look.after.Write("after.bmp");
    hasPictures_ = true;
    throw Finding{text};
}

void Monkey::CheckLog() {
    const std::string log = endtoend::ReadFile(LogFile);
    if (!log.empty()) throw Finding{"a record in the log:\n" + log};
}

// The program's last resort: no step expected that.
void Monkey::CheckBox() {
    const endtoend::MessageBox box = program_->Box();
    if (!box.window) return;
    Say("a box: " + box.text);
    if (box.text.starts_with("Laufzeitfehler")) throw Finding{box.text};
}

void Monkey::Look() {
    const HWND main = program_->Find("frmMain");
    if (!main) return;
    CheckAnswer(main);
    if (!program_->Running()) return;
    CheckFocus();
    const HWND top = Top();
    const bool isNew = top != lastTop_;
    lastTop_ = top;
    if (isNew && top) {
        ++boxes_[IsMenu(top) ? "a menu" : SeenWindow(top)];
        CheckBox();
    }
    if (!top || IsMenu(top) || !IsWindowVisible(main) || IsIconic(main)) return;
    if (!isNew && number_ - lastPicture_ < EventsBetweenPictures) return;
    lastPicture_ = number_;
    CheckPicture(main);
}

}  // namespace

int main(int count, char** words) {
    if (count != 3) {
        std::fprintf(stderr, "usage: monkey SECONDS SEED\n");
        return 2;
    }
    try {
        Monkey monkey(static_cast<unsigned>(std::atoi(words[1])),
                      static_cast<std::uint32_t>(std::strtoul(words[2], nullptr, 10)));
        try {
            monkey.Play();
            monkey.Tell();
            return 0;
        } catch (const Finding& finding) {
            monkey.Report(finding.what);
        } catch (const Failed& failed) {
            monkey.Report(failed.what());
        }
        monkey.Tell();
        return 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "monkey: %s\n", failure.what());
        return 1;
    }
}
