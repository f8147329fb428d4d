#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "endtoend/hands/hand.h"
#include "endtoend/program.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {

// One way through the whole program, by the keyboard or by the mouse. Each step is done, what is to
// come of it is waited for, and then it is looked which window is in front, whether it answers and
// which control has the focus. Windows are asked for what they show; nothing else is sent to them.
class Walk {
  public:
    // All sections, or those with this in their titles.
    Walk(bool byMouse, const std::string& only) : byMouse_(byMouse), only_(only) {}

    // Prints the steps; the number of faults.
    int Run();

  private:
    using Act = std::function<void()>;
    using Come = std::function<bool()>;

    // walk.cpp: steps, and the way to a control.
    bool Step(const std::string& what, const Act& act, const Come& come = nullptr);
    // The same while the program is not to be in front.
    bool StepOutside(const std::string& what, const Act& act, const Come& come);
    bool PressKey(const std::string& what, int key, const Come& come = nullptr,
                  std::initializer_list<int> held = {});
    // Space, on the control that has the focus, or a click on it.
    bool Push(HWND control, const Come& come = nullptr);
    bool Comes(const Come& come) const;
    void Fault(const std::string& text);
    bool KeyboardHasPlace() const;
    void Start(const std::string& standIn = "");
    void Section(const std::string& title, const Act& body, const std::string& standIn = "");
    HWND Named(const std::string& name) const { return program_->Find(name); }
    HWND Go(const std::string& name);
    void OpenPage(int page);
    // Every control of the window in front, each used once in a walk.
    void WalkThrough();
    void TabThrough();
    void ClickThrough();

    // controls.cpp: what a person does with a control, by its kind.
    void Use(HWND control);
    void UseTabs(HWND strip);
    void UseCheck(HWND box);
    void UseArrows(HWND control);
    void UseField(HWND field);
    void UseSlider(HWND slider);
    void UseChoice(HWND combo);
    void UseRows(HWND list);
    // Opens the control's menu in each way and leaves it.
    void OpenMenus(HWND control);
    void OpenMenu(HWND control, const std::string& way);
    // Items and separators are counted from the top.
    struct Menu {
        int items;
        std::vector<int> separatorsAfter;
    };
    void Choose(const Menu& menu, int item) const;
    void ChooseFromMenu(HWND control, const Menu& menu, int item, const Come& come);

    // dialogs.cpp: what comes when a button is pressed.
    void UseButton(HWND button);
    void UseForm(HWND form);
    void WaitForAbout();
    void WaitFor(const std::string& comes);
    // By the button, or by whatever changes nothing.
    void LeaveBox(int button = 0);
    void Answer(const std::string& title, int button);
    // Boxes with other titles before it are left.
    void LeaveBoxesUntil(const std::string& title);
    void ExpectBack(HWND form, HWND control);

    // errands.cpp: what takes more than a press.
    void Warning();
    void TurnPages();
    void MoveWindow();
    void SearchFiles();
    void InstalledSoftware();
    void StartTools();
    void Tray();
    void Password();
    void Apply();
    void Leave(const std::string& way, const Act& act);
    void LeaveInEachWay();
    void SynchronizeClock();
    void EndSession();

    bool byMouse_;
    std::string only_;
    int number_ = 0;
    int faults_ = 0;
    std::set<std::string> used_;
    std::set<HWND> reached_;
    std::unique_ptr<Workplace> workplace_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<StandIn> runner_;
};

// The control that has the focus, also where it is its field that has it.
HWND Focused();
bool InFront(HWND window);

enum class Kind { Tabs, Check, Arrows, Field, Slider, Choice, Rows, Press, Other };
Kind KindOf(HWND control);
bool StopsTabulator(HWND control);

}  // namespace endtoend
