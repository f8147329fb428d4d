#include "platform/simulated/network.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using Lines = std::vector<std::string>;

TEST_CASE("only computers that a test has put there answer, and the machine itself") {
    platform::simulated::Machine machine;
    const platform::Network& network = machine.network;
    machine.network.SetTimeOf("\\\\zeit", {.hours = 5, .year = 2004});
    CHECK(network.RemoteTimeOfDay("\\\\ZEIT")->hours == 5);
    CHECK_FALSE(network.RemoteTimeOfDay("zeit"));
    CHECK(network.RemoteTimeOfDay("")->hours == 13);
    CHECK(machine.journal.Lines() == Lines{"NetRemoteTOD \"\\\\ZEIT\" -> 0", "NetApiBufferFree",
                                           "NetRemoteTOD \"zeit\" -> 53", "NetRemoteTOD \"\" -> 0",
                                           "NetApiBufferFree"});
}

TEST_CASE("a computer that must fail gives nothing, by its name or all of them") {
    platform::simulated::Machine machine;
    machine.network.SetTimeOf("\\\\zeit", {});
    machine.faults.FailOn("\\\\zeit", 5);
    CHECK_FALSE(machine.network.RemoteTimeOfDay("\\\\zeit"));
    CHECK(machine.network.RemoteTimeOfDay(""));
    machine.faults.FailAll("NetRemoteTOD", 50);
    CHECK_FALSE(machine.network.RemoteTimeOfDay(""));
    CHECK(machine.journal.Lines().back() == "NetRemoteTOD \"\" -> 50");
}

TEST_CASE("a clock that is set shows it, and its time zone is an hour east") {
    platform::simulated::Machine machine;
    machine.systemClock.SetSystemTime({2004, 12, 31, 23, 30, 0});
    CHECK(machine.clock.now == platform::LocalTime{2005, 1, 1, 0, 30, 0});
    machine.systemClock.SetLocalDate({2026, 11, 21, 1, 1, 1});
    CHECK(machine.clock.now == platform::LocalTime{2026, 11, 21, 0, 30, 0});
    machine.systemClock.SetLocalTime({1999, 1, 1, 16, 5, 9});
    CHECK(machine.clock.now == platform::LocalTime{2026, 11, 21, 16, 5, 9});
}

TEST_CASE("the socket's events stand still until they are let come") {
    platform::simulated::Machine machine;
    auto& socket = machine.socket;
    int connects = 0;
    socket.onConnect = [&] { ++connects; };
    socket.remoteHost = "zeit";
    socket.remotePort = 37;
    socket.Serve(37, {});
    socket.Connect();
    machine.clock.Advance(60'000);
    CHECK(connects == 0);
    CHECK(socket.RaiseNext());
    CHECK(connects == 1);
    CHECK(socket.RaiseNext());
    CHECK_FALSE(socket.RaiseNext());
    CHECK(socket.State() == platform::Socket::PeerClosing);
}
