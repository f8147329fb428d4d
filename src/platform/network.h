#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// What a computer tells of its time: date and time in UTC, and its distance from there.
struct TimeOfDay {
    std::uint32_t hours = 0;
    std::uint32_t minutes = 0;
    std::uint32_t seconds = 0;
    // Minutes west of Greenwich, so east is below 0.
    std::int32_t timezone = 0;
    std::uint32_t day = 0;
    std::uint32_t month = 0;
    std::uint32_t year = 0;

    bool operator==(const TimeOfDay&) const = default;
};

// Other computers, and the ways to them.
class Network {
  public:
    virtual ~Network() = default;

    // NetRemoteTOD. `server` is a name behind two backslashes, or "" for this computer. Nothing
    // when the call does not return 0.
    virtual std::optional<TimeOfDay> RemoteTimeOfDay(const std::string& server) const = 0;

    // RasEnumConnectionsA with one record of 412 bytes: returns the call's code and fills in how
    // many dial-up connections there are. More than one do not fit, which is a code of its own.
    virtual std::uint32_t CountDialUpConnections(std::uint32_t& count) const = 0;
};

}  // namespace platform
