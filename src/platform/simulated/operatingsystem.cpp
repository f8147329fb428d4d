#include "platform/simulated/operatingsystem.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

OperatingSystemFacts OperatingSystem::Facts() const {
    auto line = journal_.Note([] { return std::string("GetVersionExA"); });
    PassOrThrow(journal_, faults_, line, "GetVersionExA", "");
    journal_.Finish(line, [&] {
        return std::to_string(facts.major) + "." + std::to_string(facts.minor) + "." +
               std::to_string(facts.build);
    });
    return facts;
}

}  // namespace platform::simulated
