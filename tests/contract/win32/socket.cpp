#include "platform/win32/socket.h"

#include <doctest/doctest.h>
#include <winsock2.h>

#include "contract/machine.h"
#include "timesync/timeclient.h"
#include "toolkit/form.h"

namespace {

using contract::ServerAnswer;
using platform::Socket;

// A connection with four bytes arrived, whose messages the test sends itself.
struct WindowsSocketFixture {
    contract::TestMachine machine;
    Socket& socket = machine.Services().socket;
    std::string events;

    WindowsSocketFixture() {
        socket.onConnect = [this] { events += 'c'; };
        socket.onDataArrival = [this] { events += 'd'; };
        socket.onClose = [this] { events += 'x'; };
        socket.onError = [this](int number) { events += 'e' + std::to_string(number); };
        socket.remoteHost = "127.0.0.1";
        socket.remotePort = machine.Serve({{{"abcd"}, ServerAnswer::End::Stays}});
        socket.Connect();
        REQUIRE(machine.PassTime(20000, [&] { return events == "cd"; }));
    }

    // To the hidden windows, of which one is the socket's.
    void Send(UINT message, WORD event, WORD error) {
        for (HWND window = nullptr;
             (window = FindWindowExW(nullptr, window, L"QuillmoreHidden", nullptr)) != nullptr;) {
            SendMessageW(window, message, 0, MAKELPARAM(event, error));
        }
    }
    // The message of the first connection of a socket.
    static constexpr UINT First = WM_APP + 0x100;
};

}  // namespace

TEST_CASE_FIXTURE(WindowsSocketFixture,
                  "a close that carries an error is the error, and nothing comes behind it") {
    Send(First, FD_CLOSE, WSAECONNRESET);
    CHECK(events == "cde10054");
    CHECK(socket.State() == Socket::Failed);
    Send(First, FD_CLOSE, 0);
    Send(First, FD_READ, 0);
    CHECK(events == "cde10054");
}

TEST_CASE_FIXTURE(WindowsSocketFixture,
                  "four bytes of a connection that then breaks off set no clock") {
    socket.Close();
    timesync::TimeClient client(
        machine.Services().forms, socket, machine.Services().clock, machine.NotingClock(),
        {"127.0.0.1", machine.Serve({{{"\xC3\xF2\xF9\xFD"}, ServerAnswer::End::Stays}})});
    bool arrived = false;
    const auto take = socket.onDataArrival;
    socket.onDataArrival = [&] {
        take();
        arrived = true;
    };
    client.Request();
    REQUIRE(machine.PassTime(20000, [&] { return arrived; }));
    Send(First + 1, FD_CLOSE, WSAECONNRESET);
    CHECK(socket.State() == Socket::Closed);
    CHECK(machine.ClockSettings().empty());
}

TEST_CASE_FIXTURE(WindowsSocketFixture,
                  "what was under way for the connection before is passed over") {
    socket.Close();
    Send(First, FD_CLOSE, 0);
    socket.remotePort = machine.Serve({{{}, ServerAnswer::End::Stays}});
    socket.Connect();
    Send(First, FD_CLOSE, 0);
    Send(First, FD_CONNECT, WSAECONNREFUSED);
    CHECK(events == "cd");
    CHECK(machine.PassTime(20000, [&] { return events == "cdc"; }));
    Send(First + 1, FD_CLOSE, 0);
    CHECK(events == "cdcx");
}
