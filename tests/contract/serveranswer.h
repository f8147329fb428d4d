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
    // Milliseconds.
    unsigned pause = 0;
};

}  // namespace contract
