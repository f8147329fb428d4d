#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/machine.h"
#include "runtime/failure.h"
#include "timesync/timeclient.h"

namespace toolkit {
class Form;
}

namespace timesync {

// What the frame "Uhrzeit und Kalender synchronisieren" does: the running date and time, and the
// setting of the computer's clock from one of two sources.
class Synchronization {
  public:
    // The form has the frame's controls when the first of the procedures below runs.
    Synchronization(toolkit::Form& form, const platform::Machine& machine,
                    TimeServer server = PublicTimeServer());
    ~Synchronization();
    Synchronization(const Synchronization&) = delete;
    Synchronization& operator=(const Synchronization&) = delete;

    // Lets the date and time run, once a second, or lets them stand. Start throws what
    // Clock::StartTimer throws.
    void Start_tmrUhrzeit();
    void Stop_tmrUhrzeit();

    // What the button does. Failures end in a message of its own and not in the error log.
    void cmdSynchronizeDateTime_Click();

    // A second form of ApplyTimeAnswer, which wants a dial-up connection and tells of what failed.
    // Nothing calls it: the first form serves every kind of connection.
    void ApplyTimeAnswerChecked(std::string_view answer);

  private:
    void tmrUhrzeit_Timer();

    void Synchronize();
    // Sets the clock by the computer in the text box; false when it did not answer.
    bool SetByServer();
    void Succeeded();
    void TellSuccess();
    void TellFailure(const runtime::Failure& failure);
    void ShowInLabel(const std::string& text);

    toolkit::Form& form_;
    platform::Machine machine_;
    TimeClient client_;
    // 0 while it stands still.
    platform::Clock::Timer tmrUhrzeit_ = 0;
};

}  // namespace timesync
