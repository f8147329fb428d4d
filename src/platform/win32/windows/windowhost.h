#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/formhandles.h"
#include "platform/win32/hiddenwindow.h"
#include "platform/win32/windows/screen.h"
#include "toolkit/form.h"

namespace platform {
class Messages;
}

namespace platform::win32 {

class FormWindow;

// The native windows behind the toolkit's forms, and the loop that serves them. Failures that an
// event lets through are shown by `messages`.
class WindowHost final : public FormHandles {
  public:
    explicit WindowHost(platform::Messages& messages);
    ~WindowHost() override;

    void Open(toolkit::Form& form) override;
    void RunModal(toolkit::Form& form) override;
    void Close(toolkit::Form& form) override;
    toolkit::Bounds WorkArea() const override;
    std::vector<toolkit::Form*> OpenForms() const override;
    void DoEvents() override;
    std::string SortKey(std::string_view text) const override;
    std::uintptr_t HandleOf(const toolkit::Control& control) const override;

    // Serves the windows until the last form is unloaded.
    void Run();

    HWND WindowOf(const toolkit::Form& form) const override;

  private:
    void ScreenPointerChanged() override;
    std::shared_ptr<FormWindow> Find(const toolkit::Form& form) const;
    HWND OwnerFor(const toolkit::Form& form);
    bool ServeOne();

    platform::Messages& messages_;
    Screen screen_;
    // Never seen. It owns the main window while that has no taskbar entry, and gets the messages
    // that wake a loop whose form has gone.
    HiddenWindow root_{[](UINT, WPARAM, LPARAM) {}};
    // In the order of their loading.
    std::vector<std::shared_ptr<FormWindow>> windows_;
};

}  // namespace platform::win32
