#pragma once

#include <map>
#include <string>

#include "platform/folders.h"

namespace cleanup {

// The links to folders that a search went through. What was listed behind one of them lies there
// still; behind a link that has come or changed since lies something that nobody has seen, let
// alone ticked.
class KnownLinks {
  public:
    void Clear() { links_.clear(); }
    // The path itself and the folders above it, those of them that are links.
    void Add(const platform::Folders& folders, const std::string& path);

    // Whether the path still names what the search found there, so that it may be removed.
    bool AllowRemoval(const platform::Folders& folders, const std::string& path) const;

  private:
    // Whether all folders above the path can be looked at, and each link among them is known.
    bool LeadTo(const platform::Folders& folders, const std::string& path) const;

    // As they were seen, by attributes and time in whole seconds; a link that is led elsewhere gets
    // another time. Where it leads is not compared, nor where a drive's letter leads.
    std::map<std::string, platform::FolderEntry> links_;
};

}  // namespace cleanup
