#pragma once

#include <string>
#include <vector>

namespace contract {

// What a server does with one connection: sends its pieces with a pause before each and before the
// end, and then ends the connection, breaks it off, or keeps it as long as the test lasts.
struct ServerAnswer {
    enum class End { Closes, Resets, Stays };

    std::vector<std::string> pieces;
    End end = End::Closes;
    // Milliseconds. The simulated machine's time does not pass by itself, and its pieces come one
    // by one anyway.
    unsigned pause = 0;
};

}  // namespace contract
