#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/network.h"

namespace platform::simulated {

class Faults;
class Journal;

// A network in which only the computers answer that a test has put there, and this one.
class Network final : public platform::Network {
  public:
    // RasEnumConnectionsA's code when the records do not fit.
    static constexpr std::uint32_t BufferTooSmall = 603;

    Network(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    std::optional<TimeOfDay> RemoteTimeOfDay(const std::string& server) const override;
    std::uint32_t CountDialUpConnections(std::uint32_t& count) const override;

    // What the computer of that name ("\\name") tells from now on; letters' case plays no part.
    void SetTimeOf(std::string server, TimeOfDay time);

    // What this computer tells of itself.
    TimeOfDay ownTime{.hours = 13,
                      .minutes = 7,
                      .seconds = 9,
                      .timezone = -60,
                      .day = 5,
                      .month = 3,
                      .year = 2004};
    std::uint32_t dialUpConnections = 0;

  private:
    Journal& journal_;
    Faults& faults_;
    std::vector<std::pair<std::string, TimeOfDay>> computers_;
};

}  // namespace platform::simulated
