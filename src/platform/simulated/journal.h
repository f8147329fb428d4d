#pragma once

#include <string>
#include <vector>

namespace platform::simulated {

// Every call that reached the simulated machine, in order, one line a call: the platform's name of
// the call, then its arguments and its result, e.g.
//   RegOpenKeyExA HKLM "SYSTEM\Select" 0x3F -> 0 #1
// Handles are numbered from 1 in the order of their opening, so that two runs read alike.
class Journal {
  public:
    void Add(std::string line) {
        if (recording_) lines_.push_back(std::move(line));
        ++calls_;
    }
    const std::vector<std::string>& Lines() const { return lines_; }
    // The lines that start with the given word.
    std::vector<std::string> Calls(const std::string& name) const;
    // All lines, each with a line end.
    std::string Text() const;
    void Clear() {
        lines_.clear();
        calls_ = 0;
    }
    // With recording off only the calls are counted; measuring programs want that.
    void Record(bool on) { recording_ = on; }
    std::size_t Count() const { return calls_; }

  private:
    std::vector<std::string> lines_;
    std::size_t calls_ = 0;
    bool recording_ = true;
};

}  // namespace platform::simulated
