#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "kit/cases.h"

namespace kit {

enum class Verdict { NotTried, Passed, Failed, Crashed, Hung };

struct Tried {
    Case is;
    Verdict verdict = Verdict::NotTried;
    // Of one that did not pass: what did not hold. Of one that was not tried: why.
    std::vector<std::string> notes;
    double milliseconds = 0;
};

struct Runs {
    // Where the suites' programs lie, and a folder that is the cases' own.
    std::wstring programs;
    std::wstring folder;
    // How long one case may take, and all together.
    DWORD oneCase = 120000;
    DWORD all = 9 * 60000;
    // Told after each case, of how many it is the how many-th.
    std::function<void(std::size_t, std::size_t)> progress;
    // Whether the user has enough.
    std::function<bool()> stops;
};

// Runs the cases, several of a suite in one process. When that ends or hangs, the case at which it
// was has done so, and the next one begins another process. The verdicts come in the cases' order;
// one of a case that was not reached says so.
void RunAll(const Runs& runs, std::vector<Tried*> cases);

}  // namespace kit
