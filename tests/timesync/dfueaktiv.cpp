#include "timesync/dfueaktiv.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;
using timesync::DFUEAktiv;

TEST_CASE("only exactly one dial-up connection counts, as more do not fit into the record") {
    platform::simulated::Machine machine;
    CHECK_FALSE(DFUEAktiv(machine.network));
    machine.network.dialUpConnections = 1;
    CHECK(DFUEAktiv(machine.network));
    machine.network.dialUpConnections = 2;
    CHECK_FALSE(DFUEAktiv(machine.network));
    CHECK(machine.journal.Lines() == Lines{"RasEnumConnectionsA -> 0 0",
                                           "RasEnumConnectionsA -> 0 1",
                                           "RasEnumConnectionsA -> 603 2"});
}

TEST_CASE("a system that cannot be asked has no dial-up connection") {
    platform::simulated::Machine machine;
    machine.network.dialUpConnections = 1;
    machine.faults.FailAll("RasEnumConnectionsA", 53);
    CHECK_FALSE(DFUEAktiv(machine.network));
}
