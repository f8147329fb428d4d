#include "platform/simulated/session.h"

#include "platform/simulated/faults.h"

namespace platform::simulated {

void Session::ExitSession(std::int32_t action, std::int32_t force) {
    auto line = journal_.Note(
        [&] { return "ExitSession " + std::to_string(action) + " " + std::to_string(force); });
    PassOrThrow(journal_, faults_, line, "ExitSession", "");
    requests.push_back({action, force});
}

}  // namespace platform::simulated
