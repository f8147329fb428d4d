#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kit {

// One case of one suite, and under which condition it may be run here.
struct Case {
    std::string suite;
    std::string sentence;
    // Its class.
    std::string kind;
    // "runs", "never", or the name of a condition.
    std::string condition;
    // Why it is not, where the condition does not hold.
    std::string reason;
};

// What cases.txt says, in its order.
std::vector<Case> CasesOf(std::string_view text);

}  // namespace kit
