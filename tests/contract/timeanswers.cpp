// Time servers of every kind, asked through the machine's own socket.
#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/socket.h"
#include "timesync/timeclient.h"
#include "toolkit/form.h"

namespace {

using contract::ServerAnswer;
using platform::LocalTime;
using platform::Socket;
using End = ServerAnswer::End;
using Settings = std::vector<contract::ClockSetting>;

struct TimeAnswersFixture {
    contract::TestMachine machine;
    Socket& socket = machine.Services().socket;

    // What the clock is set to by the client's requests, one pressed behind the other, when all is
    // over.
    Settings Ask(std::uint16_t port, int requests = 1, const char* host = "127.0.0.1") {
        timesync::TimeClient client(machine.Services().forms, socket, machine.Services().clock,
                                    machine.NotingClock(), {host, port});
        connections = 0;
        bytesCame = false;
        closes = 0;
        Watch(socket.onConnect, [this] { ++connections; });
        Watch(socket.onDataArrival, [this] { bytesCame = true; });
        Watch(socket.onClose, [this] { ++closes; });
        for (int request = 0; request < requests; ++request) {
            client.Request();
            // The first is pending when the second comes.
            machine.PassTime(requests > 1 ? 60 : 0, [] { return false; });
        }
        machine.PassTime(3000, [&] { return socket.State() == Socket::Closed; });
        // Whatever else may come.
        machine.PassTime(50, [] { return false; });
        const bool open = socket.State() != Socket::Closed;
        CHECK(open == staysOpen);
        socket.Close();
        return machine.ClockSettings();
    }
    bool staysOpen = false;
    // What came of the requests, so that a clock left alone is not one that nobody was asked about.
    int connections = 0;
    bool bytesCame = false;
    int closes = 0;

  private:
    template <typename Handler, typename Note>
    static void Watch(Handler& handler, Note note) {
        handler = [inner = handler, note] {
            note();
            inner();
        };
    }
};

std::string Nul(std::size_t count) {
    return std::string(count, '\0');
}

constexpr LocalTime Friday{2004, 3, 5, 13, 7, 9};

// `set` counts only where `sets` is true.
struct Kind {
    std::string name;
    ServerAnswer answer;
    bool sets = false;
    LocalTime set = {};
};

const Kind Kinds[] = {
    {"nothing, closed at once", {{}}},
    {"one byte", {{"\xC3"}}},
    {"two bytes", {{"\xC3\xF2"}}},
    {"three bytes", {{"\xC3\xF2\xF9"}}},
    {"four bytes in one piece", {{"\xC3\xF2\xF9\xFD"}}, true, Friday},
    {"four bytes in two pieces", {{"\xC3\xF2", "\xF9\xFD"}, End::Closes, 40}, true, Friday},
    {"one byte and three", {{"\xC3", "\xF2\xF9\xFD"}, End::Closes, 40}, true, Friday},
    {"four bytes in four pieces",
     {{"\xC3", "\xF2", "\xF9", "\xFD"}, End::Closes, 40},
     true,
     Friday},
    {"five bytes", {{"\xC3\xF2\xF9\xFD\x01"}}},
    {"five bytes in two pieces", {{"\xC3\xF2\xF9\xFD", "\x01"}, End::Closes, 40}},
    {"eight bytes", {{"\xC3\xF2\xF9\xFD\xC3\xF2\xF9\xFD"}}},
    {"a blank as first byte", {{" \xF2\xF9\xFD"}}},
    {"a blank as last byte", {{"\xC3\xF2\xF9 "}}},
    {"blanks inside", {{"\xC3  \xFD"}}, true, {2003, 9, 27, 14, 45, 17}},
    {"a blank behind four bytes", {{"\xC3\xF2\xF9\xFD "}}, true, Friday},
    {"four blanks", {{"    "}}},
    {"slow", {{"\xC3\xF2\xF9\xFD"}, End::Closes, 700}, true, Friday},
    {"slow in pieces", {{"\xC3", "\xF2\xF9\xFD"}, End::Closes, 400}, true, Friday},
    {"broken off without a byte", {{}, End::Resets, 40}},
    {"the count 0", {{Nul(4)}}},
    {"the count FFFFFFFF", {{"\xFF\xFF\xFF\xFF"}}, true, {2036, 2, 7, 6, 28, 15}},
    {"the first second of 1990", {{"\xA9\x49\x1C" + Nul(1)}}, true, {1990, 1, 1, 0, 0, 0}},
    {"the earliest second that fits",
     {{"\x29\x49\x1C" + Nul(1)}},
     true,
     {1921, 12, 13, 20, 45, 52}},
    {"the second before it", {{"\x29\x49\x1B\xFF"}}},
    {"a web server", {{"HTTP/1.1 400 Bad Request\r\n\r\n"}}},
};

}  // namespace

TEST_CASE("of all kinds of answers only those of four bytes set the clock") {
    for (const Kind& kind : Kinds) {
        CAPTURE(kind.name);
        TimeAnswersFixture fixture;
        const Settings settings = fixture.Ask(fixture.machine.Serve({kind.answer}));
        CHECK(settings == (kind.sets ? Settings{{true, kind.set}} : Settings{}));
        CHECK(fixture.connections == 1);
        CHECK(fixture.bytesCame == !kind.answer.pieces.empty());
        const bool breaks = kind.answer.end == End::Resets && !fixture.machine.HidesBreaks();
        CHECK(fixture.closes == (breaks ? 0 : 1));
    }
}

TEST_CASE_FIXTURE(TimeAnswersFixture, "four bytes of a connection that breaks off set nothing") {
    const auto port = machine.Serve({{{"\xC3\xF2\xF9\xFD"}, End::Resets, 100}});
    CHECK(Ask(port) == (machine.HidesBreaks() ? Settings{{true, Friday}} : Settings{}));
}

TEST_CASE_FIXTURE(TimeAnswersFixture, "a server that refuses sets nothing") {
    CHECK(Ask(machine.RefusingPort()).empty());
    CHECK(connections == 0);
}

TEST_CASE_FIXTURE(TimeAnswersFixture, "a server that stays silent sets nothing and is not closed") {
    staysOpen = true;
    CHECK(Ask(machine.Serve({{{}, End::Stays}})).empty());
    CHECK(connections == 1);
    CHECK_FALSE(bytesCame);
}

TEST_CASE_FIXTURE(TimeAnswersFixture, "four bytes without an end set nothing") {
    staysOpen = true;
    CHECK(Ask(machine.Serve({{{"\xC3\xF2\xF9\xFD"}, End::Stays}})).empty());
    CHECK(bytesCame);
    CHECK(closes == 0);
}

TEST_CASE_FIXTURE(TimeAnswersFixture, "a host that nobody knows sets nothing") {
    CHECK(Ask(37, 1, std::string(70, 'x').c_str()).empty());
}

TEST_CASE_FIXTURE(TimeAnswersFixture,
                  "a second request drops the first, whose half answer plays no part") {
    const auto port =
        machine.Serve({{{"\xC3\xF2"}, End::Stays}, {{"\xC3\xF2\xF9\xFD"}, End::Closes, 100}});
    CHECK(Ask(port, 2) == Settings{{true, Friday}});
    CHECK(connections == 2);
    CHECK(closes == 1);
}
