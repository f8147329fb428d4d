#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "platform/win32/windows/controlwindow.h"
#include "platform/win32/windows/messagehook.h"
#include "toolkit/listview.h"

namespace platform::win32 {

// The common control SysListView32. It knows how many rows there are and which of them are
// selected, and asks for the rest row by row when it paints. Changes cost next to nothing, however
// many there are: they are only noted, and the native window catches up before its next message.
class ListViewWindow final : public ControlWindow {
  public:
    ListViewWindow(toolkit::ListView& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

    void Detach() override;
    LRESULT Noticed(const NMHDR& notice) override;

    void FitColumn(int column, bool includingHeader) override;
    void EnsureVisible(int row) override;
    void LockWindow(bool locked) override;

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowItems() override;
    void ShowValue() override;

  private:
    LRESULT Answer(HookedMessage& hooked);
    LRESULT Pass(const HookedMessage& hooked);
    LRESULT Hear(const NMHDR& notice);
    LRESULT KeyDown(HookedMessage& hooked);
    void RightButton(POINT at);
    toolkit::Point MenuPlace() const;
    void CatchUp();
    void ShowSelection();
    void SetState(int row, UINT state, UINT mask) const;
    void Tell(LVITEMW& item);
    int Find(const NMLVFINDITEMW& search) const;
    void Selected(const NMLISTVIEW& change);
    void AskForSelection();
    void Clicked(const NMITEMACTIVATE& click);
    void Toggle(int row);
    void TickAsTold(int row, const LVITEMW& item);
    LRESULT WidthOf(const std::wstring& text) const;
    // That shows the whole header.
    LRESULT HeaderWidth(const std::wstring& header) const;
    std::wstring WidestText(int column) const;
    int Focused() const;

    toolkit::ListView& control_;
    MessageHook hook_;
    int columns_ = 0;
    bool stale_ = false;
    bool selectionStale_ = false;
    bool locked_ = false;
    // The native window is being given what the control holds, which is no doing of the user's.
    bool showing_ = false;
    // The class has a message of the user's.
    bool user_ = false;
    // All rows were said to be deselected, and nobody has looked yet whether one is not.
    bool selectionDoubtful_ = false;
    // While a column is being fitted each of its rows has the widest text: the control itself looks
    // at the rows in sight only.
    const std::wstring* widest_ = nullptr;
    // A text must outlive the two that are asked for after it.
    std::wstring told_[3];
    unsigned turn_ = 0;
};

}  // namespace platform::win32
