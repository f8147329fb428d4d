#pragma once

#include <cstdint>
#include <string>

namespace timesync {

// A server of the Time Protocol: to each connection it sends the seconds since 1900 in four bytes
// and closes it.
struct TimeServer {
    std::string host;
    std::uint16_t port = 0;
};

// The one on the Internet that the program asks.
TimeServer PublicTimeServer();

}  // namespace timesync
