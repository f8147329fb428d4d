#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace platform {

// A TCP client. Its events arrive on the user-interface thread, also while a message box is open,
// and never from inside a call. A connection's events come in this order: Connect; DataArrival for
// what the server sends; Close when the server has ended. An Error takes the place of whatever is
// still to come.
class Socket {
  public:
    // What State may be.
    static constexpr int Closed = 0;
    static constexpr int Resolving = 4;
    static constexpr int Connecting = 6;
    static constexpr int Connected = 7;
    static constexpr int PeerClosing = 8;
    static constexpr int Failed = 9;

    virtual ~Socket() = default;

    virtual int State() const = 0;

    // Asks for a connection to remoteHost and remotePort and returns at once. Throws Failure
    // InvalidProcedureCall unless the socket is closed, and CannotCreateObject on a system without
    // a network of this kind. All that goes wrong later is an Error.
    virtual void Connect() = 0;

    // Drops the connection, or the request for one, with everything that has arrived. Events under
    // way do not come any more. A closed socket stays closed.
    virtual void Close() = 0;

    // The bytes that have arrived since the last time. Throws the Failure of a system that does not
    // hand them out.
    virtual std::string GetData() = 0;

    std::string remoteHost;
    std::uint16_t remotePort = 0;

    std::function<void()> onConnect;
    std::function<void()> onDataArrival;
    std::function<void()> onClose;
    // With the system's number, above 0.
    std::function<void(int number)> onError;
};

}  // namespace platform
