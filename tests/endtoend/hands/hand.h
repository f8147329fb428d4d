#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

#include "platform/win32/handle.h"

// Keyboard and mouse as the system tells of them, and what a person sees of their effect. Windows
// are only looked at: nothing is sent to one but the question whether it answers.
namespace endtoend {

// What a person could tell of the screen at this moment.
struct Sight {
    HWND front = nullptr;
    // What the keyboard goes to, in the window in front.
    HWND focus = nullptr;
    // A menu is open, and has the keyboard.
    bool menu = false;
};

Sight See();

// The name of the control, or of the one that it is a part of, such as the field of a combo box.
std::string SeenName(HWND window);
// "frmMain", or the title where the window has no name.
std::string SeenWindow(HWND window);
// Without a message to the window, which may not answer.
std::string SeenTitle(HWND window);
std::string Describe(const Sight& sight);

void Type(int virtualKey, std::initializer_list<int> held = {});
// The character's key, as the keyboard of the moment has it.
void TypeCharacter(wchar_t character, std::initializer_list<int> held = {});

// While this lives no other mouse counts than the one of this file: a display echoes the moves,
// late when the machine is busy, and with them where the mouse was.
class OnlyMouse {
  public:
    OnlyMouse();
    ~OnlyMouse();
    OnlyMouse(const OnlyMouse&) = delete;
    OnlyMouse& operator=(const OnlyMouse&) = delete;

  private:
    platform::win32::KernelHandle thread_;
    DWORD id_ = 0;
};

POINT MiddleOf(HWND window);
void MoveMouse(POINT place);
enum class Button { Left, Right };
void ClickMouse(POINT place, Button button = Button::Left, int times = 1);
void DragMouse(POINT from, POINT to);
// The last icon of the taskbar.
POINT TrayIcon();

// Whether the window answers within that time.
bool Answers(HWND window, unsigned milliseconds);

}  // namespace endtoend
