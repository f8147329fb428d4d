#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::simulated {

// Makes chosen calls fail. A registry call that fails returns the code; every other call throws
// runtime::Failure with the code as number.
class Faults {
  public:
    // The n-th call of all from now on, counted from 1.
    void FailNth(int n, int code);
    // Every call of that name.
    void FailAll(std::string call, int code);
    // Every call whose subject (key path, file path, command line) starts with that text, whatever
    // the letters' case.
    void FailOn(std::string subject, int code);
    void Clear();

    // Called by each simulated call with its name and subject: the code with which it must fail.
    std::optional<int> Check(std::string_view call, std::string_view subject);

  private:
    int countdown_ = 0;
    int nthCode_ = 0;
    std::map<std::string, int, std::less<>> calls_;
    std::vector<std::pair<std::string, int>> subjects_;
};

}  // namespace platform::simulated
