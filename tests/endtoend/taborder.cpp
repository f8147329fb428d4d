#include <windows.h>

#include <algorithm>

#include "endtoend/looks.h"

namespace endtoend {
namespace {

// The control that has the focus; a combo box hands it on to the field in it.
HWND FocusOf(HWND form) {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(form, nullptr), &thread);
    const HWND around = thread.hwndFocus ? GetParent(thread.hwndFocus) : nullptr;
    return around && ClassOf(around) == "ComboBox" ? around : thread.hwndFocus;
}

// The windows that get the focus, in order, until the walk is back where it began. A walk that
// never comes back ends when it is far too long.
std::vector<HWND> WalkOf(HWND form) {
    constexpr std::size_t Endless = 300;
    const HWND begin = FocusOf(form);
    if (!begin) return {};
    std::vector<HWND> walk{begin};
    while (walk.size() < Endless) {
        const HWND before = walk.back();
        PostMessageW(before, WM_KEYDOWN, VK_TAB, 1);
        PostMessageW(before, WM_KEYUP, VK_TAB, static_cast<LPARAM>(0xC0000001));
        HWND now = before;
        const DWORD since = GetTickCount();
        // No change within this time means that the tabulator leads nowhere, if the program has had
        // some turns to serve the key, which its answers show.
        for (int turns = 0; now == before && (turns < 10 || GetTickCount() - since < 500);) {
            Sleep(1);
            now = FocusOf(form);
            Send(form, WM_NULL);
            ++turns;
        }
        if (now == before || now == begin) return walk;
        walk.push_back(now);
    }
    return walk;
}

// One thing that is read at a stroke: a control, or a frame with all that stands in it.
struct Unit {
    std::string name;
    RECT area;
};

// The smallest frame around the control; the control itself when there is none.
Unit FrameAround(const Look& control, const std::vector<Look>& controls) {
    const Look* frame = nullptr;
    for (const Look& candidate : controls) {
        RECT common = {};
        if (!candidate.IsFrame() || candidate.window == control.window ||
            !IntersectRect(&common, &candidate.area, &control.area) ||
            !EqualRect(&common, &control.area)) {
            continue;
        }
        if (!frame ||
            candidate.area.right - candidate.area.left < frame->area.right - frame->area.left) {
            frame = &candidate;
        }
    }
    return frame ? Unit{frame->name, frame->area} : Unit{control.name, control.area};
}

// Reading goes down a column and from left to right in a row.
bool ReadsBefore(const RECT& first, const RECT& second) {
    const bool sameColumn = first.left < second.right && second.left < first.right;
    const bool sameRow = first.top < second.bottom && second.top < first.bottom;
    return (sameColumn && first.bottom <= second.top) || (sameRow && first.right <= second.left);
}

void JudgeOrder(const std::vector<Unit>& order, std::vector<std::string>& crooked) {
    for (std::size_t early = 0; early < order.size(); ++early) {
        for (std::size_t late = early + 1; late < order.size(); ++late) {
            if (!ReadsBefore(order[late].area, order[early].area)) continue;
            crooked.push_back("the tabulator reaches " + order[early].name + " before " +
                              order[late].name);
        }
    }
}

// The walk is a circle, entered anywhere. It is judged from the first control of what stands
// nearest to the upper left corner.
void BeginWhereReadingBegins(std::vector<Look>& walk, const std::vector<Look>& controls) {
    std::vector<Unit> units;
    for (const Look& control : walk) units.push_back(FrameAround(control, controls));
    if (units.empty()) return;
    const auto corner = std::min_element(units.begin(), units.end(), [](auto& a, auto& b) {
        return a.area.left + a.area.top < b.area.left + b.area.top;
    });
    for (std::size_t at = 0; at < units.size(); ++at) {
        const std::size_t before = (at + units.size() - 1) % units.size();
        if (units[at].name != corner->name || units[before].name == corner->name) continue;
        std::rotate(walk.begin(), walk.begin() + static_cast<std::ptrdiff_t>(at), walk.end());
        return;
    }
}

void JudgeWalk(const std::vector<Look>& walk, const std::vector<Look>& controls,
               std::vector<std::string>& crooked) {
    std::vector<Unit> frames;
    std::vector<Unit> inside;
    for (const Look& control : walk) {
        const Unit frame = FrameAround(control, controls);
        if (frames.empty() || frames.back().name != frame.name) {
            JudgeOrder(inside, crooked);
            inside.clear();
            const bool again = std::any_of(frames.begin(), frames.end(), [&](const Unit& unit) {
                return unit.name == frame.name;
            });
            if (again) crooked.push_back("the tabulator comes to " + frame.name + " twice");
            frames.push_back(frame);
        }
        inside.push_back({control.name, control.area});
    }
    JudgeOrder(inside, crooked);
    JudgeOrder(frames, crooked);
}

}  // namespace

std::vector<std::string> CrookedByKeyboard(const Application& application, HWND form) {
    SetForegroundWindow(form);
    Until("the focus in " + NameOf(form), [&] {
        const HWND focus = FocusOf(form);
        return focus && (focus == form || IsChild(form, focus));
    });
    // From outside any control the first press leads to the first one.
    if (FocusOf(form) == form) {
        application.PressKey(NameOf(form), VK_TAB);
        Until("the first control", [&] { return FocusOf(form) != form; });
    }

    const std::vector<Look> controls = VisibleControls(form);
    const std::vector<HWND> windows = WalkOf(form);
    std::vector<std::string> crooked;
    std::vector<Look> walk;
    for (HWND window : windows) {
        const auto found = std::find_if(controls.begin(), controls.end(), [&](const Look& control) {
            return control.window == window;
        });
        if (found == controls.end()) {
            crooked.push_back("the focus gets lost in a window of class " + ClassOf(window));
        } else {
            walk.push_back(*found);
        }
    }
    for (const Look& control : controls) {
        const bool stop = (control.style & WS_TABSTOP) && control.enabled;
        const bool reached =
            std::find(windows.begin(), windows.end(), control.window) != windows.end();
        if (stop && !reached) {
            crooked.push_back("the tabulator does not reach " + control.name);
        }
    }
    BeginWhereReadingBegins(walk, controls);
    JudgeWalk(walk, controls, crooked);
    return crooked;
}

}  // namespace endtoend
