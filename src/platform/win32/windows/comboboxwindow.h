#pragma once

#include "platform/win32/windows/typingwindow.h"
#include "toolkit/combobox.h"

namespace platform::win32 {

// The standard window class COMBOBOX. Its list is a window of its own, and so is the field in which
// one types beside the list.
class ComboBoxWindow : public TypingWindow {
  public:
    ComboBoxWindow(toolkit::ComboBox& control, const Surroundings& surroundings)
        : TypingWindow(control, surroundings), control_(control) {}

    void Detach() override;
    bool PlaceAt(const toolkit::Rect& area) override;
    void Notified(UINT code) override;

  protected:
    Recipe Describe() const override;
    bool IsCommand(WPARAM character) const override;
    void Prepare() override;
    void ShowItems() override;
    void ShowValue() override;

    // The list that drops down.
    HWND List() const { return list_; }

  private:
    void WatchText();
    void SetFieldHeight(int height) const;
    void Picked();
    void Typed();

    toolkit::ComboBox& control_;
    HWND list_ = nullptr;
    // nullptr when only the list can be chosen from.
    HWND field_ = nullptr;
    MessageHook text_;
    // The native window is being given what the control holds, which is no doing of the user's.
    bool showing_ = false;
};

}  // namespace platform::win32
