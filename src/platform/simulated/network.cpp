#include "platform/simulated/network.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"
#include "runtime/text.h"

namespace platform::simulated {

std::optional<TimeOfDay> Network::RemoteTimeOfDay(const std::string& server) const {
    constexpr std::uint32_t NoSuchComputer = 53;
    auto line = journal_.Note([&] { return "NetRemoteTOD " + Quoted(server); });
    const auto answer = [&](std::uint32_t code) {
        journal_.Finish(line, [&] { return std::to_string(code); });
    };
    if (const auto code = faults_.Check("NetRemoteTOD", server)) {
        answer(static_cast<std::uint32_t>(*code));
        return std::nullopt;
    }
    std::optional<TimeOfDay> time;
    if (server.empty()) time = ownTime;
    for (const auto& [name, told] : computers_) {
        if (runtime::EqualsIgnoringCase(name, server)) time = told;
    }
    answer(time ? 0 : NoSuchComputer);
    if (time) journal_.Note([] { return std::string("NetApiBufferFree"); });
    return time;
}

std::uint32_t Network::CountDialUpConnections(std::uint32_t& count) const {
    auto line = journal_.Note([] { return std::string("RasEnumConnectionsA"); });
    PassOrThrow(journal_, faults_, line, "RasEnumConnectionsA", "");
    count = dialUpConnections;
    const std::uint32_t code = count > 1 ? BufferTooSmall : 0;
    journal_.Finish(line, [&] { return std::to_string(code) + ' ' + std::to_string(count); });
    return code;
}

void Network::SetTimeOf(std::string server, TimeOfDay time) {
    computers_.emplace_back(std::move(server), time);
}

}  // namespace platform::simulated
