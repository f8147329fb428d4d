#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform::simulated {

// Every call that reached the simulated machine, in order, one line a call: the platform's name of
// the call, then its arguments and its result, e.g.
//   RegOpenKeyExA HKLM "SYSTEM\Select" 0x3F -> 0 #1
// Handles are numbered from 1 in the order of their opening, so that two runs read alike. A call
// that throws ends in "-> failure" and the failure's number.
class Journal {
  public:
    // A line's place, good until it is finished.
    using Place = std::size_t;

    // Counts a call and notes the line that `makeLine` returns, which is asked only when it is
    // wanted, so that a measured run pays next to nothing.
    template <typename MakeLine>
    Place Note(MakeLine&& makeLine) {
        ++calls_;
        if (!recording_) return 0;
        lines_.push_back(std::forward<MakeLine>(makeLine)());
        return cleared_ + lines_.size();
    }

    // Adds the result to a line noted when its call began, behind which other calls may stand by
    // now. A line that has been cleared meanwhile is passed over.
    template <typename MakeResult>
    void Finish(Place place, MakeResult&& makeResult) {
        if (recording_ && place > cleared_) {
            lines_[place - cleared_ - 1] += " -> " + std::forward<MakeResult>(makeResult)();
        }
    }

    const std::vector<std::string>& Lines() const { return lines_; }
    // The lines of the calls of that name.
    std::vector<std::string> Calls(std::string_view name) const;
    // All lines, each with a line end.
    std::string Text() const;
    void Clear();

    // With recording off only the calls are counted; measuring programs want that.
    void Record(bool on) { recording_ = on; }
    std::size_t Count() const { return calls_; }

  private:
    std::vector<std::string> lines_;
    std::size_t cleared_ = 0;
    std::size_t calls_ = 0;
    bool recording_ = true;
};

}  // namespace platform::simulated
