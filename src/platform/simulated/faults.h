#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/simulated/journal.h"

namespace platform::simulated {

// The outcome of a call that must fail: what the registry returns, and the number of the failure
// that any other call throws.
struct FaultCode {
    FaultCode(int code) : FaultCode(code, code) {}
    FaultCode(int ofRegistry, int ofFailure) : registry(ofRegistry), failure(ofFailure) {}

    int registry;
    int failure;
};

// Makes chosen calls fail, by the names that the journal gives them. A registry call that fails
// returns the code. Any other call has the outcome of failure that its contract names (no process,
// no directory, the fallback, false) or, where that names none, throws runtime::Failure with the
// code as number. Calls that cannot fail on Windows (the time of day, stopping a timer,
// conversions, the windows of forms, the program's end) are not asked.
class Faults {
  public:
    // The n-th call of all from now on, counted from 1.
    void FailNth(int n, FaultCode code);
    // The n-th and all behind it.
    void FailFrom(int n, FaultCode code);
    // Every call of that name.
    void FailAll(std::string call, int code);
    // Every call whose subject starts with that text, whatever the letters' case. Subjects are
    // file paths, command lines, titles, and in the registry "HKLM\key" and "HKLM\key|value".
    void FailOn(std::string subject, int code);
    void Clear();

    // Keeps the names of the calls that are asked from now on, until Clear.
    void Watch() { watching_ = true; }
    const std::vector<std::string>& Asked() const { return asked_; }

    // Whether no call can fail now: then the subject need not be made.
    bool Idle() const {
        return countdown_ == 0 && calls_.empty() && subjects_.empty() && !watching_;
    }

    // Called by each simulated call with its name and subject: the code with which it must fail.
    std::optional<int> Check(std::string_view call, std::string_view subject);

  private:
    int countdown_ = 0;
    FaultCode countedCode_ = 0;
    bool andAllBehind_ = false;
    bool watching_ = false;
    std::vector<std::string> asked_;
    std::map<std::string, int, std::less<>> calls_;
    std::vector<std::pair<std::string, int>> subjects_;
};

// Finishes the line of a call that must fail and throws.
[[noreturn]] void ThrowFault(Journal& journal, Journal::Place line, int code);

// Throws when the call whose line has been noted must fail.
void PassOrThrow(Journal& journal, Faults& faults, Journal::Place line, std::string_view call,
                 std::string_view subject);

}  // namespace platform::simulated
