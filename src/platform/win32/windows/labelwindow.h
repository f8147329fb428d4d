#pragma once

#include "platform/win32/windows/listeningwindow.h"
#include "toolkit/controls.h"

namespace platform::win32 {

// The standard window class STATIC.
class LabelWindow final : public ListeningWindow {
  public:
    LabelWindow(toolkit::Label& control, const Surroundings& surroundings)
        : ListeningWindow(control, surroundings), control_(control) {}

    void Notified(UINT code) override;
    void SetColours(HDC dc) const override;

  protected:
    Recipe Describe() const override;
    HFONT Font() const override;
    std::string TipText() const override;
    bool IsHeard() const override { return control_.onClick || control_.onMouseMove; }
    LRESULT Hear(const HookedMessage& hooked) override;

  private:
    LRESULT HearAsLink(const HookedMessage& hooked);
    LRESULT PaintLink(const HookedMessage& hooked);
    void Click();

    toolkit::Label& control_;
};

}  // namespace platform::win32
