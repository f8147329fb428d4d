#include "platform/win32/eventguard.h"

#include <doctest/doctest.h>

#include <stdexcept>
#include <vector>

#include "contract/machine.h"
#include "contract/win32/boxes.h"
#include "platform/clock.h"
#include "platform/messages.h"
#include "runtime/failure.h"

namespace {

struct WindowsEventGuardFixture {
    contract::TestMachine machine;
    contract::BoxAnswerer user{platform::message::Ok};

    void Run(const std::function<void()>& event) {
        platform::win32::GuardEvent(machine.Services().messages, event);
    }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsEventGuardFixture, "an event that goes well shows nothing") {
    bool ran = false;
    Run([&] { ran = true; });
    CHECK(ran);
    CHECK(user.boxes == 0);
}

TEST_CASE_FIXTURE(WindowsEventGuardFixture,
                  "a failure that nobody caught becomes the platform's message") {
    Run([] { throw runtime::Failure(9, "Beschreibung", "Quelle"); });
    CHECK(user.boxes == 1);
    CHECK(user.title == "Quillmore");
    CHECK(user.text == "Laufzeitfehler '9':\r\n\r\nBeschreibung");
}

TEST_CASE_FIXTURE(WindowsEventGuardFixture,
                  "a lack of memory is failure 7, any other mistake failure 5") {
    Run([] { throw std::bad_alloc(); });
    CHECK(user.text == "Laufzeitfehler '7':\r\n\r\n" + runtime::DescriptionOf(7));
    Run([] { throw std::logic_error("no such control"); });
    CHECK(user.text == "Laufzeitfehler '5':\r\n\r\nno such control");
    CHECK(user.boxes == 2);
}

TEST_CASE_FIXTURE(WindowsEventGuardFixture,
                  "a tick that fails shows its message and the timer goes on") {
    auto& clock = machine.Services().clock;
    int ticks = 0;
    const auto timer = clock.StartTimer(20, [&] {
        ++ticks;
        throw runtime::Failure(6);
    });
    CHECK(machine.PassTime(5000, [&] { return ticks >= 2 && user.boxes >= 2; }));
    clock.StopTimer(timer);
    CHECK(user.text == "Laufzeitfehler '6':\r\n\r\n" + runtime::DescriptionOf(6));
}
