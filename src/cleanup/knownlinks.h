#pragma once

#include <set>
#include <string>

namespace platform {
class Folders;
}

namespace cleanup {

// The links to folders that a search went through. What was listed behind one of them lies there
// still; behind a link that has come since lies something that nobody has seen, let alone ticked.
class KnownLinks {
  public:
    void Clear() { paths_.clear(); }
    void Add(const std::string& path) { paths_.insert(path); }
    // Those among the folders above the path.
    void AddAbove(const platform::Folders& folders, const std::string& path);

    // Whether all links among the folders above the path are known.
    bool LeadTo(const platform::Folders& folders, const std::string& path) const;

  private:
    std::set<std::string> paths_;
};

}  // namespace cleanup
