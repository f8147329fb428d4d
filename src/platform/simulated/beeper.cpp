#include "platform/simulated/beeper.h"

#include "platform/simulated/journal.h"

namespace platform::simulated {

void Beeper::Beep() {
    journal_.Note([] { return "MessageBeep"; });
    ++beeps;
}

}  // namespace platform::simulated
