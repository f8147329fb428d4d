#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "platform/win32/windows/controlwindow.h"
#include "platform/win32/windows/tabstripwindow.h"
#include "toolkit/form.h"

namespace platform::win32 {

// The native windows of one form's controls.
class ControlWindows {
  public:
    explicit ControlWindows(const Surroundings& surroundings) : surroundings_(surroundings) {}

    // Makes them all in the form's order, which is the order of the tabulator; the pages' controls
    // as children of their page.
    void Create(const toolkit::Form& form, HWND formWindow);
    // Puts each control where the form's layout wants it.
    void Place(const toolkit::Form& form, HWND formWindow);
    // The controls get no views and no events any more.
    void Detach();

    // nullptr when the native window, or the control, is none of the form's.
    std::shared_ptr<ControlWindow> Find(HWND window) const;
    std::shared_ptr<ControlWindow> Find(const toolkit::Control* control) const;
    // Where the focus goes when nothing else is said.
    std::shared_ptr<ControlWindow> FirstToFocus() const;
    // False for a form without pages.
    bool TurnPage(bool forward) const;

    void Broadcast(UINT message, WPARAM wParam, LPARAM lParam) const;

  private:
    void CreateTabs(toolkit::TabStrip& strip, HWND formWindow, const toolkit::Rect& area);
    void CreateOne(toolkit::Control& control, HWND formWindow, int page, const toolkit::Rect& area);
    std::vector<toolkit::Placement> Arranged(const toolkit::Form& form, HWND formWindow) const;
    void PutBehind(toolkit::ControlKind kind) const;

    const Surroundings surroundings_;
    std::vector<std::shared_ptr<ControlWindow>> windows_;
    std::shared_ptr<TabStripWindow> tabs_;
};

}  // namespace platform::win32
