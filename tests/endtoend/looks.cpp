#include "endtoend/looks.h"

#include <windows.h>

#include <commctrl.h>

#include <map>

#include "endtoend/captionfit.h"
#include "endtoend/tabs.h"

namespace endtoend {
namespace {

std::string Rectangle(const RECT& area) {
    return std::to_string(area.left) + ',' + std::to_string(area.top) + ".." +
           std::to_string(area.right) + ',' + std::to_string(area.bottom);
}

bool Inside(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

RECT ClientAreaOnScreen(HWND window) {
    RECT area = {};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// Where a container has room for others: below the tabs or the caption, inside the lines.
RECT InsideOf(const Look& container) {
    RECT area = container.area;
    if (container.IsFrame()) {
        // A caption without ink takes no room; the line above runs through.
        const bool captioned = container.text.find_first_not_of(' ') != std::string::npos;
        const RECT room = {area.left + 2, area.top + (captioned ? 12 : 7), area.right - 2,
                           area.bottom - 2};
        return room;
    }
    area.top += Tabs(container.window).Area(0).bottom;
    return area;
}

bool Collide(const Look& one, const Look& other) {
    RECT common = {};
    if (!IntersectRect(&common, &one.area, &other.area)) return false;
    if (one.IsContainer() && Inside(other.area, InsideOf(one))) return false;
    if (other.IsContainer() && Inside(one.area, InsideOf(other))) return false;
    return true;
}

// The letter behind the mark, as the keyboard gives it; 0 when there is none.
wchar_t AccessKey(const Look& control) {
    if (control.Is("Edit") || (control.Is("Static") && (control.style & SS_NOPREFIX))) return 0;
    for (std::size_t at = 0; at + 1 < control.text.size(); ++at) {
        if (control.text[at] != '&') continue;
        const auto letter = static_cast<unsigned char>(control.text[++at]);
        if (letter == '&') continue;
        return static_cast<wchar_t>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
    }
    return 0;
}

}  // namespace

std::vector<Look> VisibleControls(HWND form) {
    std::vector<Look> looks;
    for (HWND window : WindowsBelow(form)) {
        const std::string name = NameOf(window);
        if (name.empty() || !IsWindowVisible(window)) continue;
        Look look{window,
                  name,
                  ClassOf(window),
                  TextOf(window),
                  GetWindowLongW(window, GWL_STYLE),
                  IsWindowEnabled(window) != FALSE,
                  {}};
        GetWindowRect(window, &look.area);
        looks.push_back(look);
    }
    return looks;
}

std::vector<std::string> CutCaptions(HWND form) {
    std::vector<std::string> crooked;
    for (const Look& control : VisibleControls(form)) {
        const std::string why = WhyCut(control);
        if (!why.empty()) crooked.push_back(control.name + " is cut: " + why);
    }
    return crooked;
}

std::vector<std::string> Overlaps(HWND form) {
    std::vector<std::string> crooked;
    const std::vector<Look> controls = VisibleControls(form);
    for (std::size_t one = 0; one < controls.size(); ++one) {
        for (std::size_t other = one + 1; other < controls.size(); ++other) {
            if (!Collide(controls[one], controls[other])) continue;
            crooked.push_back(controls[one].name + " (" + Rectangle(controls[one].area) +
                              ") overlaps " + controls[other].name + " (" +
                              Rectangle(controls[other].area) + ')');
        }
    }
    return crooked;
}

std::vector<std::string> OutsideOfForm(HWND form) {
    std::vector<std::string> crooked;
    const RECT formArea = ClientAreaOnScreen(form);
    for (const Look& control : VisibleControls(form)) {
        const RECT parentArea = ClientAreaOnScreen(GetParent(control.window));
        if (Inside(control.area, formArea) && Inside(control.area, parentArea)) continue;
        crooked.push_back(control.name + " (" + Rectangle(control.area) + ") stands out of " +
                          Rectangle(parentArea) + " in " + Rectangle(formArea));
    }
    return crooked;
}

std::vector<std::string> DoubleAccessKeys(HWND form) {
    std::vector<std::string> crooked;
    std::map<wchar_t, std::string> taken;
    for (const Look& control : VisibleControls(form)) {
        const wchar_t key = AccessKey(control);
        if (!key) continue;
        const auto [owner, isNew] = taken.emplace(key, control.name);
        if (isNew) continue;
        crooked.push_back(owner->second + " and " + control.name + " share the access key " +
                          static_cast<char>(key));
    }
    return crooked;
}

std::vector<std::string> Crooked(const Application& application, HWND form) {
    std::vector<std::string> crooked = CutCaptions(form);
    for (const auto& more : {Overlaps(form), OutsideOfForm(form), DoubleAccessKeys(form),
                             CrookedByKeyboard(application, form)}) {
        crooked.insert(crooked.end(), more.begin(), more.end());
    }
    return crooked;
}

}  // namespace endtoend
