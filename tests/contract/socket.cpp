#include "platform/socket.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

namespace {

using contract::ServerAnswer;
using platform::Socket;
using End = ServerAnswer::End;

struct SocketFixture {
    contract::TestMachine machine;
    Socket& socket = machine.Services().socket;
    // One letter an event: c connected, d data, x closed, e error.
    std::string events;
    std::string data;
    int error = 0;

    SocketFixture() {
        socket.onConnect = [this] { events += 'c'; };
        socket.onDataArrival = [this] {
            // How many pieces arrive together is the network's affair.
            if (!events.ends_with('d')) events += 'd';
            data += socket.GetData();
        };
        socket.onClose = [this] { events += 'x'; };
        socket.onError = [this](int number) {
            events += 'e';
            error = number;
        };
    }
    ~SocketFixture() {
        // What is kept here is gone before the machine is.
        socket.onConnect = socket.onDataArrival = socket.onClose = nullptr;
        socket.onError = nullptr;
    }

    void ConnectTo(std::uint16_t port, const char* host = "127.0.0.1") {
        socket.remoteHost = host;
        socket.remotePort = port;
        socket.Connect();
    }
    bool Comes(char event) {
        return machine.PassTime(20000, [&] { return events.find(event) != std::string::npos; });
    }
    void Pass(int milliseconds) {
        machine.PassTime(milliseconds, [] { return false; });
    }
};

}  // namespace

TEST_CASE_FIXTURE(SocketFixture,
                  "a connection's events come in their order and none before Connect is over") {
    const std::string bytes("\0\x01 \xFF\r\n\x80", 7);
    ConnectTo(machine.Serve({{{bytes}}}));
    CHECK(events == "");
    CHECK(socket.State() != Socket::Closed);
    CHECK(Comes('x'));
    CHECK(events == "cdx");
    CHECK(data == bytes);
    CHECK(socket.State() == Socket::PeerClosing);
    socket.Close();
    CHECK(socket.State() == Socket::Closed);
}

TEST_CASE_FIXTURE(SocketFixture, "a closed socket stays closed and has no data") {
    CHECK(socket.State() == Socket::Closed);
    socket.Close();
    CHECK(socket.State() == Socket::Closed);
    CHECK(socket.GetData() == "");
}

TEST_CASE_FIXTURE(SocketFixture,
                  "pieces arrive as they come and are joined by whoever takes them") {
    ConnectTo(machine.Serve({{{"a", "b", "c"}, End::Closes, 60}}));
    CHECK(Comes('x'));
    CHECK(data == "abc");
}

TEST_CASE_FIXTURE(SocketFixture, "data that nobody takes waits") {
    socket.onDataArrival = [this] { events += 'd'; };
    ConnectTo(machine.Serve({{{"ab", "cd"}, End::Stays, 60}}));
    CHECK(machine.PassTime(20000, [&] { return events == "cdd"; }));
    CHECK(socket.GetData() == "abcd");
    CHECK(socket.GetData() == "");
}

TEST_CASE_FIXTURE(SocketFixture,
                  "a great lot of data arrives to its last byte before the end is told") {
    std::string lot(200'000, 'x');
    for (std::size_t i = 0; i < lot.size(); ++i) lot[i] = static_cast<char>(i * 7 % 251);
    ConnectTo(machine.Serve({{{lot}}}));
    CHECK(Comes('x'));
    CHECK((data == lot));
}

TEST_CASE_FIXTURE(SocketFixture, "a server that sends nothing closes all the same") {
    ConnectTo(machine.Serve({{}}));
    CHECK(Comes('x'));
    CHECK(events == "cx");
}

TEST_CASE_FIXTURE(SocketFixture, "a server that stays silent leaves the connection as it is") {
    ConnectTo(machine.Serve({{{}, End::Stays}}));
    CHECK(Comes('c'));
    Pass(300);
    CHECK(events == "c");
    CHECK(socket.State() == Socket::Connected);
}

TEST_CASE_FIXTURE(SocketFixture, "a connection that breaks off is an error and no close") {
    const bool hidden = machine.HidesBreaks();
    ConnectTo(machine.Serve({{{"ab"}, End::Resets, 100}}));
    CHECK(Comes(hidden ? 'x' : 'e'));
    Pass(200);
    CHECK(events == (hidden ? "cdx" : "cde"));
    CHECK(error == machine.NumberOfBreak());
    CHECK(socket.State() == (hidden ? Socket::PeerClosing : Socket::Failed));
    socket.Close();
    CHECK(socket.State() == Socket::Closed);
}

TEST_CASE_FIXTURE(SocketFixture, "a server that is not there refuses, which is an error") {
    ConnectTo(machine.RefusingPort());
    CHECK(events == "");
    CHECK(Comes('e'));
    Pass(200);
    CHECK(events == "e");
    CHECK(error == 10061);
    CHECK(socket.State() == Socket::Failed);
}

TEST_CASE_FIXTURE(SocketFixture, "a name is looked up") {
    ConnectTo(machine.Serve({{{"ab"}}}), "localhost");
    CHECK(events == "");
    CHECK(socket.State() != Socket::Closed);
    CHECK(Comes('x'));
    CHECK(data == "ab");
}

TEST_CASE_FIXTURE(SocketFixture, "a name that no computer can have is an error") {
    ConnectTo(37, std::string(70, 'x').c_str());
    CHECK(socket.State() == Socket::Resolving);
    CHECK(events == "");
    CHECK(Comes('e'));
    CHECK(events == "e");
    CHECK(error > 0);
    CHECK(socket.State() == Socket::Failed);
    socket.Close();
    ConnectTo(machine.Serve({{{"ab"}}}));
    CHECK(Comes('x'));
    CHECK(data == "ab");
}

TEST_CASE_FIXTURE(SocketFixture, "closing while a name is looked up drops the look-up") {
    const std::string unknown(70, 'x');
    ConnectTo(37, unknown.c_str());
    socket.Close();
    CHECK(socket.State() == Socket::Closed);
    ConnectTo(37, unknown.c_str());
    socket.Close();
    ConnectTo(machine.Serve({{{"ab"}}}), "localhost");
    CHECK(Comes('x'));
    Pass(300);
    CHECK(events == "cdx");
    CHECK(data == "ab");
}

TEST_CASE_FIXTURE(SocketFixture, "closing drops what is under way, also bytes that have arrived") {
    const std::uint16_t port = machine.Serve({{{"ab"}}, {{"cd"}}});
    socket.onDataArrival = [this] { events += 'd'; };
    ConnectTo(port);
    CHECK(Comes('d'));
    socket.Close();
    CHECK(socket.GetData() == "");
    Pass(200);
    CHECK(events == "cd");
    ConnectTo(port);
    socket.Close();
    Pass(200);
    CHECK(events == "cd");
}

TEST_CASE_FIXTURE(SocketFixture,
                  "a connection made at once after closing hears nothing of the one before") {
    const std::uint16_t port = machine.Serve({{{"alt"}}, {{"neu"}}});
    ConnectTo(port);
    CHECK(Comes('c'));
    socket.Close();
    events.clear();
    ConnectTo(port);
    CHECK(Comes('x'));
    CHECK(events == "cdx");
    CHECK(data == "neu");
}

TEST_CASE_FIXTURE(SocketFixture, "an event may close the socket, and none comes after it") {
    socket.onDataArrival = [this] {
        events += 'd';
        socket.Close();
    };
    ConnectTo(machine.Serve({{{"ab"}}}));
    CHECK(Comes('d'));
    Pass(200);
    CHECK(events == "cd");
    CHECK(socket.State() == Socket::Closed);
}

TEST_CASE_FIXTURE(SocketFixture, "only a closed socket connects") {
    ConnectTo(machine.Serve({{{}, End::Stays}}));
    CHECK(FailureOf([&] { socket.Connect(); }) == 5);
    CHECK(Comes('c'));
}

TEST_CASE_FIXTURE(SocketFixture, "events without a listener are passed over") {
    socket.onConnect = socket.onDataArrival = nullptr;
    ConnectTo(machine.Serve({{{"ab"}}}));
    CHECK(Comes('x'));
    CHECK(events == "x");
    CHECK(socket.GetData() == "ab");
}
