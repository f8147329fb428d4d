#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/machine.h"
#include "toolkit/form.h"

namespace dialogs {

// What the program is and its version. The dialog fades in and, after OK, out again; Escape and the
// close box end it at once.
class frmAbout final : public toolkit::Form {
  public:
    // `strVersion` lives as long as the form, which shows what it holds when it is loaded.
    frmAbout(const platform::Machine& machine, const std::string& strVersion);
    ~frmAbout() override;

  protected:
    void OnLoad() override;
    bool OnKeyDown(int virtualKey) override;
    void OnUnload() override;

  private:
    using Timer = platform::Clock::Timer;

    void tmrBlend_Timer();
    void tmrOut_Timer();
    void Label1_Click();

    void FadeOut();
    void ShowAlpha();
    void Enable(Timer& timer, void (frmAbout::*tick)());
    void Disable(Timer& timer);

    platform::Machine machine_;
    const std::string& version_;
    // 0 to 255. The fade-in goes through the odd numbers from 1 to 255, in 127 ticks; the fade-out
    // ends at 4 or less, with its 126th.
    int alpha_ = 0;
    // 0 while disabled.
    Timer tmrBlend_ = 0;
    Timer tmrOut_ = 0;
};

}  // namespace dialogs
