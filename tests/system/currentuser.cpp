#include "system/currentuser.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using platform::simulated::Machine;
using namespace sys;

TEST_CASE("a user's name of five letters has five characters and no NUL") {
    Machine machine;
    machine.systemFacts.userName = "Paula";
    const std::string name = GetCurrentUserName(machine.systemFacts);
    CHECK(name == "Paula");
    CHECK(name.size() == 5);
}

TEST_CASE("a user's name keeps its umlauts and blanks") {
    Machine machine;
    machine.systemFacts.userName = "Jörg von Übel";
    CHECK(GetCurrentUserName(machine.systemFacts) == "Jörg von Übel");
}

TEST_CASE("a user's name that fills the buffer up to the NUL is told, a longer one is not") {
    Machine machine;
    machine.systemFacts.userName = std::string(254, 'a');
    CHECK(GetCurrentUserName(machine.systemFacts) == std::string(254, 'a'));
    machine.systemFacts.userName = std::string(255, 'a');
    CHECK(GetCurrentUserName(machine.systemFacts).empty());
}

TEST_CASE("a user's name that the system does not tell is empty") {
    Machine machine;
    machine.faults.FailAll("GetUserNameA", 5);
    CHECK(GetCurrentUserName(machine.systemFacts).empty());
}
