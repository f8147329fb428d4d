#pragma once

#include <string>
#include <vector>

namespace endtoend {

// All of the machine's and of the user's registry at one moment, fast enough to be taken after
// every single step: two saved files, of which only those keys are looked into that differ.
class WholeRegistry {
  public:
    static WholeRegistry Now();

    // One line a difference, as Differences has them; none when both are the same to the byte. A
    // key's date is no part of it.
    std::vector<std::string> DifferencesTo(const WholeRegistry& later) const;

    // The same, but for texts (types 1, 2 and 7) that lack their end: these count as if they had
    // one, on both sides. Wine's regedit adds it whatever a file says; that of Windows XP does not.
    std::vector<std::string> DifferencesButForEnds(const WholeRegistry& later) const;

  private:
    std::string machine_;
    std::string user_;
};

}  // namespace endtoend
