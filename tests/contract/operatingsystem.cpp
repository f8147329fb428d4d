#include "platform/operatingsystem.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

TEST_CASE("the operating system is XP, build 2600") {
    contract::TestMachine machine;
    const auto facts = machine.Services().operatingSystem.Facts();
    CHECK(facts.name == "Microsoft Windows XP");
    CHECK(facts.major == 5);
    CHECK(facts.minor == 1);
    CHECK(facts.build == 2600);
}
