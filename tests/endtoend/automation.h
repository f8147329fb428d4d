#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "endtoend/waiting.h"

// Drives a program from outside, by the names that its windows carry. Texts are UTF-8. Whatever
// does not come within the time of Until throws Failed.
namespace endtoend {

// The name that a form or control carries; empty for any other window.
std::string NameOf(HWND window);

std::string ClassOf(HWND window);

// Caption or text, asked from the window itself.
std::string TextOf(HWND window);

// A caption as the user reads it: without the marks of access keys.
std::string WithoutMarks(const std::string& caption);

// The windows below this one, from the top of the stack down, each followed by those below itself.
std::vector<HWND> WindowsBelow(HWND window);

struct MessageBox {
    HWND window = nullptr;
    std::string title;
    // As shown; line ends are CR LF.
    std::string text;
    // IDYES, IDOK, ... in the order of the buttons.
    std::vector<int> buttons;
};

// The windows of one process, or of all when the number is 0.
class Application {
  public:
    explicit Application(DWORD process) : process_(process) {}

    DWORD Process() const { return process_; }

    // Top-level windows, the frontmost first.
    std::vector<HWND> TopLevel() const;

    // Those of them that carry a name and are to be seen.
    std::vector<HWND> Forms() const;

    // The form or control of that name, or nullptr. Of several the one in the frontmost visible
    // form; "frmPassword.cmdOK" names the form too. What begins with "frm" is a form.
    HWND Find(const std::string& name) const;

    // Waits until it is to be seen.
    HWND Wait(const std::string& name) const;
    void WaitGone(const std::string& name) const;

    // Presses a button or check box. Does not wait for what comes of it, which may be a dialog that
    // blocks the program. Pressing what is disabled throws Failed.
    void Click(const std::string& name) const;

    bool Checked(const std::string& name) const;
    // By a click when the box differs; waits until it shows the state.
    void SetChecked(const std::string& name, bool checked) const;

    std::string Text(const std::string& name) const;
    // Puts the text in as a program does; no limit of the box stops it.
    void SetText(const std::string& name, const std::string& text) const;
    // Replaces the text by typing, character after character, as far as the box takes them.
    void Type(const std::string& name, const std::string& text) const;

    int SliderPosition(const std::string& name) const;

    // Presses the key in the window that has the focus in front, or in the form itself.
    void PressKey(const std::string& form, int virtualKey) const;

    std::vector<std::string> TabCaptions(const std::string& tabs = "SSTab1") const;
    int CurrentTab(const std::string& tabs = "SSTab1") const;
    // Clicks the tab with the mouse and waits until it is the current one.
    void OpenTab(int page, const std::string& tabs = "SSTab1") const;

    // The frontmost message box, without waiting; its window is nullptr when there is none.
    MessageBox Box() const;
    // Waits for the box with that title.
    MessageBox WaitBox(const std::string& title) const;
    // The same, presses the button and waits until the box is gone; what the box said.
    MessageBox Answer(const std::string& title, int button) const;

    // Asks the main window to close; does not wait.
    void Close() const;

    // Whether the form answers messages at this moment.
    bool Responds(const std::string& form) const;

    // Whether the mouse pointer over the form has another shape than over its caption, where it is
    // the arrow. Pointers of two processes cannot be compared, so that the shape stays unnamed.
    bool PointerIsChanged(const std::string& form) const;

  private:
    HWND FindBelow(HWND form, ATOM name) const;

    DWORD process_;
    // Where each name was last found below a form.
    mutable std::map<std::pair<HWND, ATOM>, HWND> known_;
};

// Sends the message, waiting a bounded time. Throws Failed when the window does not answer.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
             unsigned patience = Patience);

}  // namespace endtoend
