#include "platform/program.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

TEST_CASE("the program knows its directory and its name without extension") {
    contract::TestMachine machine;
    const auto& program = machine.Services().program;
    CHECK(program.Directory() == machine.ExpectedDirectory());
    CHECK(program.Directory().back() != '\\');
    CHECK(program.ExecutableName() == machine.ExpectedName());
}
