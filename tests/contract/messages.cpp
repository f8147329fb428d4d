#include "platform/messages.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace message = platform::message;

TEST_CASE("a box that cannot be shown is answered by 0, whatever its buttons") {
    contract::TestMachine machine;
    machine.WithoutBoxes([&] {
        auto& messages = machine.Services().messages;
        for (const int buttons : {0, message::OkCancel, message::YesNo}) {
            CHECK(messages.Show("text", buttons + message::Exclamation, "title") == 0);
        }
    });
}
