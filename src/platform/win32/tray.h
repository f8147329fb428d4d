#pragma once

#include <string>

#include "platform/tray.h"
#include "platform/win32/hiddenwindow.h"

namespace platform {
class Messages;
}

namespace platform::win32 {

class Tray final : public platform::Tray {
  public:
    explicit Tray(platform::Messages& messages);
    ~Tray() override;

    // The icon resource of the executable that its windows bear, in the small size.
    void SetIcon() override;
    void SetTip(std::string_view text) override;
    void SetShown(bool shown) override;

  private:
    void Receive(UINT message, LPARAM lParam);
    void Mouse(UINT message);
    void Put();
    bool Notify(DWORD action);

    platform::Messages& messages_;
    UINT shellStarted_;
    bool wanted_ = false;
    bool shown_ = false;
    // Milliseconds.
    unsigned retryInterval_;
    HICON icon_ = nullptr;
    std::wstring tip_;
    HiddenWindow window_;
};

}  // namespace platform::win32
