#include "timesync/timeclient.h"

#include <doctest/doctest.h>

#include "timesync/frame.h"

using namespace timesync_test;
using platform::Socket;
using End = ServerAnswer::End;

namespace {

// 2004-03-05 13:07:09.
const std::string AnswerBytes = "\xC3\xF2\xF9\xFD";

struct Client {
    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    timesync::TimeClient client{machine.forms, machine.socket, machine.clock, machine.systemClock,
                                timesync::PublicTimeServer()};

    // The clock calls that one whole connection brings.
    Lines Whole(ServerAnswer answer) {
        machine.socket.Serve(37, std::move(answer));
        client.Request();
        machine.socket.RaiseAll();
        return machine.journal.Calls("SetSystemTime");
    }
};

const Lines IsSet{"SetSystemTime 2004-03-05 13:07:09"};

}  // namespace

TEST_CASE_FIXTURE(Client, "the public server is asked at the port of the Time Protocol") {
    client.Request();
    CHECK(machine.journal.Lines() == Lines{"Socket.Close", "Socket.Connect time.nist.gov:37"});
}

TEST_CASE_FIXTURE(Client,
                  "an answer counts when the server has closed the connection, not before") {
    machine.socket.Serve(37, {{AnswerBytes}});
    client.Request();
    CHECK(machine.socket.RaiseNext());
    CHECK(machine.socket.RaiseNext());
    CHECK(machine.journal.Calls("SetSystemTime").empty());
    CHECK(machine.socket.RaiseNext());
    CHECK(machine.journal.Calls("SetSystemTime") == IsSet);
    CHECK(machine.socket.State() == Socket::Closed);
    CHECK_FALSE(machine.socket.RaiseNext());
}

TEST_CASE_FIXTURE(Client, "the socket is closed before the clock is set") {
    Whole({{AnswerBytes}});
    CHECK(machine.journal.Lines() == Lines{"Socket.Close", "Socket.Connect time.nist.gov:37",
                                           "GetLocalTime", "Socket.GetData -> \"Ãòùý\"",
                                           "Socket.Close", "SetSystemTime 2004-03-05 13:07:09"});
}

TEST_CASE("an answer in pieces is joined, however it is cut") {
    for (const auto& pieces :
         {Lines{"\xC3\xF2", "\xF9\xFD"}, Lines{"\xC3", "\xF2\xF9\xFD"},
          Lines{"\xC3\xF2\xF9", "\xFD"}, Lines{"\xC3", "\xF2", "\xF9", "\xFD"}}) {
        CHECK(Client().Whole({pieces}) == IsSet);
    }
}

TEST_CASE("an answer that is not of four bytes does nothing and says nothing") {
    for (const auto& pieces : {Lines{}, Lines{"\xC3"}, Lines{"\xC3\xF2"}, Lines{"\xC3\xF2\xF9"},
                               Lines{"\xC3\xF2\xF9\xFD\x01"}, Lines{AnswerBytes, AnswerBytes}}) {
        Client client;
        CHECK(client.Whole({pieces}).empty());
        CHECK(client.machine.messages.Shown().empty());
        CHECK(client.machine.socket.State() == Socket::Closed);
    }
}

TEST_CASE("an answer whose first or last byte is a blank is dropped, one with a fifth is not") {
    CHECK(Client().Whole({{"\xC3\xF2\xF9 "}}).empty());
    CHECK(Client().Whole({{" \xF2\xF9\xFD"}}).empty());
    CHECK(Client().Whole({{AnswerBytes + ' '}}) == IsSet);
}

TEST_CASE("a blank at the end of a piece stays where it is") {
    CHECK(Client().Whole({{"\xC3 ", " \xFD"}}) == Lines{"SetSystemTime 2003-09-27 14:45:17"});
}

TEST_CASE("an answer of a moment out of reach leaves the clock, in silence") {
    CHECK(Client().Whole({{std::string(4, '\0')}}).empty());
    CHECK(Client().Whole({{std::string("\x29\x49\x1B\xFF", 4)}}).empty());
    CHECK(Client().Whole({{std::string("\x29\x49\x1C\0", 4)}}) ==
          Lines{"SetSystemTime 1921-12-13 20:45:52"});
    CHECK(Client().Whole({{"\xFF\xFF\xFF\xFF"}}) == Lines{"SetSystemTime 2036-02-07 06:28:15"});
}

TEST_CASE_FIXTURE(Client, "a refused clock on this road is not seen at all") {
    machine.faults.FailAll("SetSystemTime", 5);
    CHECK(Whole({{AnswerBytes}}) == Lines{"SetSystemTime 2004-03-05 13:07:09 -> refused"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Client, "a server that stays silent changes nothing") {
    CHECK(Whole({{}, End::Stays}).empty());
    CHECK(machine.socket.State() == Socket::Connected);
}

TEST_CASE_FIXTURE(Client, "an answer that the server does not end is none") {
    CHECK(Whole({{AnswerBytes}, End::Stays}).empty());
}

TEST_CASE_FIXTURE(Client, "a connection that breaks off takes its answer along and closes") {
    CHECK(Whole({{AnswerBytes}, End::Resets}).empty());
    CHECK(machine.socket.State() == Socket::Closed);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Client, "a server that refuses leaves a closed socket and no word") {
    client.Request();
    machine.socket.RaiseAll();
    CHECK(machine.socket.State() == Socket::Closed);
    CHECK(machine.journal.Lines() ==
          Lines{"Socket.Close", "Socket.Connect time.nist.gov:37", "Socket.Close"});
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Client, "an error without a number, or of a closed socket, closes nothing") {
    machine.socket.Serve(37, {{}, End::Stays});
    client.Request();
    machine.socket.RaiseAll();
    machine.journal.Clear();
    machine.socket.onError(0);
    CHECK(machine.journal.Lines().empty());
    machine.socket.onError(1);
    CHECK(machine.journal.Lines() == Lines{"Socket.Close"});
    machine.socket.onError(1);
    CHECK(machine.journal.Lines() == Lines{"Socket.Close"});
}

TEST_CASE_FIXTURE(Client, "a second request drops the first with what has come of it") {
    machine.socket.Serve(37, {{"\xC3\xF2", "\xF9\xFD"}});
    machine.socket.Serve(37, {{"\xFF\xFF\xFF\xFF"}});
    client.Request();
    machine.socket.RaiseNext();
    machine.socket.RaiseNext();
    client.Request();
    machine.socket.RaiseAll();
    CHECK(machine.journal.Calls("SetSystemTime") == Lines{"SetSystemTime 2036-02-07 06:28:15"});
    CHECK(machine.journal.Calls("Socket.Connect").size() == 2);
}

TEST_CASE_FIXTURE(Client, "arriving bytes bring the default pointer back") {
    machine.socket.Serve(37, {{AnswerBytes}});
    client.Request();
    machine.forms.SetScreenPointer(toolkit::Hourglass);
    machine.socket.RaiseNext();
    CHECK(machine.forms.ScreenPointer() == toolkit::Hourglass);
    machine.socket.RaiseNext();
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Client, "the moment of connecting is kept, in seconds since midnight") {
    CHECK_FALSE(client.answerExpected);
    machine.socket.Serve(37, {{AnswerBytes}});
    client.Request();
    CHECK(client.answerExpected);
    CHECK(client.connectTime == 0);
    machine.clock.Advance(500);
    machine.socket.RaiseNext();
    CHECK(client.connectTime == 14 * 3600 + 7 * 60 + 9 + 0.5f);
}

TEST_CASE_FIXTURE(Client, "bytes that cannot be taken are the failure of their arrival") {
    machine.faults.FailAll("Socket.GetData", 10053);
    machine.forms.SetScreenPointer(toolkit::Hourglass);
    machine.socket.Serve(37, {{AnswerBytes}});
    client.Request();
    CHECK(machine.socket.RaiseNext());
    CHECK(FailureOf([&] { machine.socket.RaiseNext(); }) == 10053);
    CHECK(machine.forms.ScreenPointer() == toolkit::Hourglass);
    machine.socket.RaiseAll();
    CHECK(machine.journal.Calls("SetSystemTime").empty());
    CHECK(machine.socket.State() == Socket::Closed);
}

TEST_CASE_FIXTURE(Client, "a system without a network fails the request") {
    machine.faults.FailAll("Socket.Connect", 429);
    CHECK(FailureOf([&] { client.Request(); }) == 429);
    CHECK(client.answerExpected);
}

TEST_CASE("a client that is gone hears nothing more of its socket") {
    platform::simulated::Machine machine;
    {
        timesync::TimeClient client(machine.forms, machine.socket, machine.clock,
                                    machine.systemClock, timesync::PublicTimeServer());
        CHECK(machine.socket.onConnect);
    }
    CHECK_FALSE(machine.socket.onConnect);
    CHECK_FALSE(machine.socket.onDataArrival);
    CHECK_FALSE(machine.socket.onClose);
    CHECK_FALSE(machine.socket.onError);
}
