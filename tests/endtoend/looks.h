#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "endtoend/automation.h"

// Judges a form's real windows as they stand on the screen at this moment. Each function names all
// that is crooked, one line each; nothing crooked is an empty list.
namespace endtoend {

// One visible control.
struct Look {
    HWND window = nullptr;
    std::string name;
    std::string windowClass;
    std::string text;
    LONG style = 0;
    bool enabled = false;
    // Screen pixels.
    RECT area = {};

    bool Is(const char* className) const { return windowClass == className; }
    bool IsFrame() const { return Is("Button") && (style & BS_TYPEMASK) == BS_GROUPBOX; }
    // Holds other controls inside its borders.
    bool IsContainer() const { return IsFrame() || Is("SysTabControl32"); }
};

std::vector<Look> VisibleControls(HWND form);

std::vector<std::string> CutCaptions(HWND form);
std::vector<std::string> Overlaps(HWND form);
std::vector<std::string> OutsideOfForm(HWND form);
std::vector<std::string> DoubleAccessKeys(HWND form);

// Walks through the form with the tabulator: every enabled control that is a stop must get the
// focus, and in the order in which one reads.
std::vector<std::string> CrookedByKeyboard(const Application& application, HWND form);

// All of the above.
std::vector<std::string> Crooked(const Application& application, HWND form);

}  // namespace endtoend
