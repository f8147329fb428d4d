#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/socket.h"

namespace platform::simulated {

class Faults;
class Journal;

// What a server does with one connection: sends its pieces, each of which arrives by itself, and
// then ends the connection, breaks it off, or keeps it open.
struct ServerAnswer {
    enum class End { Closes, Resets, Stays };

    std::vector<std::string> pieces;
    End end = End::Closes;
};

// A network of servers that a test has put there. Its events stand still until the test lets them
// come. A host name with a part of more than 63 characters is unknown; every other one is known.
class Socket final : public platform::Socket {
  public:
    static constexpr int ConnectionReset = 10054;
    static constexpr int ConnectionRefused = 10061;
    static constexpr int HostNotFound = 11001;

    Socket(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    int State() const override { return state_; }
    void Connect() override;
    void Close() override;
    std::string GetData() override;

    // The next connection to that port of any host meets this server; several queue up. A port
    // without one refuses.
    void Serve(std::uint16_t port, ServerAnswer answer);

    // Raises the next event that is under way; false when there is none.
    bool RaiseNext();
    void RaiseAll();

  private:
    struct Event {
        int state = Connected;
        std::string bytes;
        int error = 0;
    };

    Journal& journal_;
    Faults& faults_;
    int state_ = Closed;
    std::string arrived_;
    std::deque<Event> underWay_;
    std::map<std::uint16_t, std::deque<ServerAnswer>> servers_;
};

}  // namespace platform::simulated
