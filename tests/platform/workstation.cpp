#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/text.h"

using Lines = std::vector<std::string>;

namespace {

struct Place {
    platform::simulated::Machine machine;
    platform::Workstation& workstation = machine.services.workstation;
    const Lines& lines = machine.journal.Lines();
};

}  // namespace

TEST_CASE_FIXTURE(Place, "batches come one a call, each with a buffer of its own") {
    machine.workstation.batches =
        platform::simulated::Workstation::Batches{{{"a", "", "", ""}}, {{"b", "", "", ""}, {}}};
    platform::UserEnumeration enumeration;
    CHECK(workstation.EnumerateUsers("\\\\PC", enumeration) == 234);
    CHECK(enumeration.users.size() == 1);
    CHECK(workstation.EnumerateUsers("\\\\PC", enumeration) == 0);
    CHECK(enumeration.users.size() == 2);
    CHECK(enumeration.buffer == 2);
    workstation.FreeBuffer(enumeration.buffer);
    CHECK(machine.workstation.BuffersInUse() == 1);
    CHECK(lines == Lines{"NetWkstaUserEnum \"\\\\PC\" 0 -> 234 1 #1",
                         "NetWkstaUserEnum \"\\\\PC\" 1 -> 0 2 #2", "NetApiBufferFree #2"});
}

TEST_CASE_FIXTURE(Place,
                  "an enumeration that fails gives its code, nobody, and leaves the buffer") {
    machine.faults.FailOn("\\\\PC", 5);
    platform::UserEnumeration enumeration{.buffer = 9, .resume = 0, .users = {{}}};
    CHECK(workstation.EnumerateUsers("\\\\PC", enumeration) == 5);
    CHECK(enumeration.users.empty());
    CHECK(enumeration.buffer == 9);
    CHECK(machine.workstation.BuffersInUse() == 0);
    CHECK(lines == Lines{"NetWkstaUserEnum \"\\\\PC\" 0 -> 5 0 #9"});
}

TEST_CASE_FIXTURE(Place, "a text of the system needs room for its NUL in 256 characters") {
    machine.workstation.systemMessages[1] = std::string(254, 'x') + "ä";
    machine.workstation.systemMessages[2] = std::string(255, 'x') + "ä";
    CHECK(workstation.SystemMessage(1) == std::string(254, 'x') + "ä" + '\0');
    CHECK(workstation.SystemMessage(2) == std::string(256, ' '));
    CHECK(runtime::Length(workstation.SystemMessage(5)) == 256);
    CHECK(lines == Lines{"FormatMessageA 1", "FormatMessageA 2", "FormatMessageA 5"});
}
