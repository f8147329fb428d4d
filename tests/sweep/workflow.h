#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/program.h"

namespace sweep_test {

// What a user does, from a machine made for it to its end, and what may become of it when something
// fails on the way.
struct Workflow {
    using Step = std::function<void(app_test::Program&)>;

    std::string name;
    // The machine before the program starts.
    Step seed;
    // What the user does first; nothing fails yet. Without it, and without a start, `act` starts.
    Step prepare;
    Step act;
};

// Each is on its own; none changes what another one finds.
std::vector<Workflow> Workflows();

}  // namespace sweep_test
