#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "platform/win32/handle.h"
#include "platform/win32/windows/controlwindow.h"
#include "toolkit/controls.h"

namespace platform::win32 {

struct ImageListTraits {
    using Type = HIMAGELIST;
    static Type None() { return nullptr; }
    static bool Close(Type list) { return ImageList_Destroy(list) != FALSE; }
};

// The common control SysTabControl32, and one container window a page in front of it. All pages
// exist from the start; only the current one is visible.
class TabStripWindow final : public ControlWindow {
  public:
    TabStripWindow(toolkit::TabStrip& control, const Surroundings& surroundings)
        : ControlWindow(control, surroundings), control_(control) {}

    // The parent of a page's controls, a child of the form's window `parent`.
    HWND Page(HWND parent, int page);
    // Puts the pages where they lie when the strip takes `strip` of the form; those to come too.
    void PlacePages(const toolkit::Rect& strip);

    // To the next page, or the one before; after the last one the first comes. Who was on the old
    // page goes on on the new one.
    void Turn(bool forward);

    void Notified(UINT code) override;

  protected:
    Recipe Describe() const override;
    void Prepare() override;
    void ShowValue() override;

  private:
    toolkit::TabStrip& control_;
    Owned<ImageListTraits> pictures_;
    RECT pageArea_{};
    std::vector<HWND> pages_;
};

}  // namespace platform::win32
