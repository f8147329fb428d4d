#include "endtoend/hands/walk.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "endtoend/pages.h"
#include "endtoend/tabs.h"

namespace endtoend {
namespace {

// More than any window has.
constexpr int ManyControls = 80;

bool CanBeUsed(HWND control) {
    return IsWindowVisible(control) && IsWindowEnabled(control) && !NameOf(control).empty();
}

}  // namespace

HWND Focused() {
    const HWND focus = See().focus;
    return focus && ClassOf(focus) == "Edit" && NameOf(focus).empty()
               ? GetAncestor(focus, GA_PARENT)
               : focus;
}

bool InFront(HWND window) {
    return window && See().front == window;
}

bool StopsTabulator(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) && IsWindowEnabled(control) &&
           IsWindowVisible(control);
}

// In a control; in the window itself only where no control could have it.
bool Walk::KeyboardHasPlace() const {
    const Sight sight = See();
    DWORD owner = 0;
    GetWindowThreadProcessId(sight.front, &owner);
    if (!sight.front || owner != program_->Process()) return false;
    if (sight.menu) return true;
    if (!sight.focus || !IsWindowVisible(sight.focus) || !IsWindowEnabled(sight.focus))
        return false;
    if (!IsWindowEnabled(sight.front)) return false;
    if (IsChild(sight.front, sight.focus)) return true;
    const auto windows = WindowsBelow(sight.front);
    return sight.focus == sight.front &&
           std::none_of(windows.begin(), windows.end(), StopsTabulator);
}

bool Walk::Comes(const Come& come) const {
    try {
        Until("", come, Blocked);
        return true;
    } catch (const Failed&) {
        return false;
    }
}

void Walk::Fault(const std::string& text) {
    ++faults_;
    std::printf("FAULT %s\n", text.c_str());
}

bool Walk::Step(const std::string& what, const Act& act, const Come& come) {
    act();
    const bool came = !come || Comes(come);
    const bool alive = Comes([&] { return KeyboardHasPlace(); });
    const Sight sight = See();
    std::printf("%4d %s: %s\n", ++number_, what.c_str(), Describe(sight).c_str());
    if (!came) Fault(what + ": nothing comes of it");
    if (!alive) Fault(what + ": the keyboard goes nowhere");
    if (sight.front && !Answers(sight.front, Blocked)) Fault(what + ": no answer");
    std::fflush(stdout);
    return came && alive;
}

bool Walk::StepOutside(const std::string& what, const Act& act, const Come& come) {
    act();
    const bool came = Comes(come);
    std::printf("%4d %s: %s\n", ++number_, what.c_str(), Describe(See()).c_str());
    if (!came) Fault(what + ": nothing comes of it");
    std::fflush(stdout);
    return came;
}

bool Walk::PressKey(const std::string& what, int key, const Come& come,
                    std::initializer_list<int> held) {
    return Step(what, [&] { Type(key, held); }, come);
}

bool Walk::Push(HWND control, const Come& come) {
    const std::string name = SeenName(control);
    if (!byMouse_) return PressKey("Space on " + name, VK_SPACE, come);
    return Step("click " + name, [&] { ClickMouse(MiddleOf(control)); }, come);
}

void Walk::Start(const std::string& standIn) {
    program_.reset();
    workplace_.reset();
    workplace_ = std::make_unique<Workplace>();
    if (!standIn.empty()) {
        WriteFile(workplace_->Executable(), ReadFile(OwnFolder() + '\\' + standIn));
    }
    program_ = std::make_unique<OpenProgram>(*workplace_);
    Step("start", [] {}, [&] { return InFront(Named("frmMain")); });
}

// After a fault the next section begins with a window of its own.
void Walk::Section(const std::string& title, const Act& body, const std::string& standIn) {
    if (title.find(only_) == std::string::npos) return;
    std::printf("---- %s, by the %s\n", title.c_str(), byMouse_ ? "mouse" : "keyboard");
    const int before = faults_;
    try {
        if (!program_ || !standIn.empty()) Start(standIn);
        body();
    } catch (const Failed& failure) {
        Fault(title + ": " + failure.what());
    }
    if (faults_ != before || !standIn.empty()) program_.reset();
}

// To the control, so that it can be pushed.
HWND Walk::Go(const std::string& name) {
    const HWND control = program_->Wait(name);
    for (int presses = 0; !byMouse_ && Focused() != control; ++presses) {
        const HWND from = Focused();
        Type(VK_TAB);
        if (presses == ManyControls || !Comes([&] { return Focused() != from; })) {
            throw Failed("the tabulator does not come to " + name);
        }
    }
    return control;
}

void Walk::OpenPage(int page) {
    const HWND form = program_->Wait("frmMain");
    const auto open = [&] { return program_->CurrentTab() == page && InFront(form); };
    const std::string to = " to page " + std::to_string(page);
    if (byMouse_) {
        const HWND strip = Named("SSTab1");
        const RECT area = Tabs(strip).Area(page);
        POINT place = {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
        ClientToScreen(strip, &place);
        Step("click" + to, [&] { ClickMouse(place); }, open);
        return;
    }
    while (!open()) {
        const int from = program_->CurrentTab();
        const auto turned = [&] { return program_->CurrentTab() != from; };
        if (!PressKey("Ctrl+Tab" + to, VK_TAB, turned, {VK_CONTROL})) return;
    }
}

void Walk::WalkThrough() {
    if (byMouse_) {
        ClickThrough();
    } else {
        TabThrough();
    }
}

// All round, and back. What the tabulator stops at or the arrows lead to is all that can be used.
void Walk::TabThrough() {
    const HWND form = See().front;
    const auto outside = std::exchange(reached_, {});
    std::vector<HWND> stops;
    const HWND first = Focused();
    for (HWND at = first; stops.size() < ManyControls;) {
        stops.push_back(at);
        reached_.insert(at);
        Use(at);
        const auto windows = WindowsBelow(form);
        if (std::count_if(windows.begin(), windows.end(), StopsTabulator) < 2) break;
        if (!PressKey("Tab", VK_TAB, [&] { return Focused() != at; })) return;
        at = Focused();
        if (at == first) break;
    }
    if (Focused() != first) Fault("the tabulator does not come back to " + SeenName(first));
    for (const HWND control : WindowsBelow(form)) {
        if (CanBeUsed(control) && KindOf(control) != Kind::Other && !reached_.count(control)) {
            Fault("no key leads to " + NameOf(control));
        }
    }
    reached_ = outside;
    if (stops.size() < 2) return;
    for (auto stop = stops.rbegin(); stop != stops.rend(); ++stop) {
        // Meanwhile another one of the group may be the chosen one.
        const bool group = KindOf(*stop) == Kind::Arrows;
        PressKey("Shift+Tab", VK_TAB,
                 [&] { return Focused() == *stop || (group && KindOf(Focused()) == Kind::Arrows); },
                 {VK_SHIFT});
    }
}

void Walk::ClickThrough() {
    for (const HWND control : WindowsBelow(See().front)) {
        if (CanBeUsed(control)) Use(control);
    }
}

}  // namespace endtoend
