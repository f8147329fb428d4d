#include "platform/autostart.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

namespace {

using contract::Title;

struct AutoStartFixture {
    contract::TestMachine machine;
    platform::AutoStart& autostart = machine.Services().autostart;
};

}  // namespace

TEST_CASE_FIXTURE(AutoStartFixture, "an entry exists from its adding to its removal") {
    CHECK_FALSE(autostart.AutoStartExists(Title));
    CHECK(autostart.AutoStartAdd("C:\\Programme\\Quillmore", Title, "Quillmore"));
    CHECK(autostart.AutoStartExists(Title));
    CHECK(autostart.AutoStartRemove(Title));
    CHECK_FALSE(autostart.AutoStartExists(Title));
}

TEST_CASE_FIXTURE(AutoStartFixture,
                  "adding twice is one entry, removing what is not there says so") {
    CHECK(autostart.AutoStartAdd("C:\\Programme", Title, "Quillmore"));
    CHECK(autostart.AutoStartAdd("C:\\Programme", Title, "Quillmore"));
    CHECK(autostart.AutoStartRemove(Title));
    CHECK_FALSE(autostart.AutoStartRemove(Title));
}
