#include "platform/simulated/program.h"

#include "platform/simulated/journal.h"

namespace platform::simulated {

void Program::End() {
    journal_.Note([] { return std::string("End"); });
    ended = true;
    throw ProgramEnded{};
}

}  // namespace platform::simulated
