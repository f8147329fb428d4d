#pragma once

#include <map>
#include <string>
#include <vector>

#include "endtoend/automation.h"
#include "endtoend/optiontablepasses.h"

// All option controls of the running program at once.
namespace endtoend {

class OptionControls {
  public:
    // The program's main window must be there.
    explicit OptionControls(const Application& program);

    HWND Window(const std::string& name) const;

    // What each of the controls shows now.
    ControlStates Shown() const;

    bool Enabled(const std::string& name) const { return IsWindowEnabled(Window(name)) != FALSE; }

    // Clicks the check boxes that differ and sets the texts that differ, page after page as a user
    // comes by them, but for the pages on which nothing differs. Labels and disabled boxes stay.
    // The window size, which follows the packet size, is set behind it.
    void Set(const ControlStates& wanted) const;

  private:
    bool IsToChange(const std::string& name, const std::string& wanted) const;
    void SetOne(const std::string& name, const std::string& wanted) const;

    const Application& program_;
    std::map<std::string, HWND> windows_;
};

// Puts a text in as a program does, visible or not. Wine may take seconds of the processor's time
// for tens of thousands of characters.
void ReplaceText(HWND window, const std::string& text);

// One line for each control that is not as it should be.
std::vector<std::string> WrongStates(const ControlStates& expected, const ControlStates& shown);

// A message box that must come, and the button that answers it.
struct ExpectedBox {
    std::string title;
    // The whole text, or its end behind "…"; empty for any.
    std::string text;
    int button;
};

// Answers these boxes in this order. Throws Failed when another one comes.
void AnswerBoxes(const Application& program, const std::vector<ExpectedBox>& boxes);

// The boxes from the restore point question to the end, as the pass's outcome brings them.
std::vector<ExpectedBox> BoxesOfPass(const PassOutcome& outcome);

// The box of a failure that one of the passes reports.
ExpectedBox FailureBox(int failure, const std::string& procedure);

// The whole dialogue of Apply without a restore point and a restart. The password dialog, if it is
// to come, gets `password`.
void ApplyOptions(const Application& program, const ControlStates& controls,
                  const std::string& password, const PassOutcome& outcome);

}  // namespace endtoend
