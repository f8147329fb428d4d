#pragma once

#include <vector>

#include "cmd/change.h"

namespace cmd {

// Every place that the write pass may touch, as it is now: values with their bytes, those that are
// not there as removed, and of a key that is not there the topmost missing one as removed. Of a key
// that the pass may delete all values. What cannot be read is left out and noted.
std::vector<regfile::Key> Backup(WideRegistry& registry, Refusals& refusals);

// What brings the registry to what the file says. Throws BadInput, with the file's line, for a
// place that the write pass never touches. What a key to be removed holds beside such places is
// somebody else's: it stays, with the keys above it, and its place is added to `staying`.
Changes ToRestore(const std::vector<regfile::Key>& file, WideRegistry& registry, Refusals& refusals,
                  std::vector<std::string>& staying);

}  // namespace cmd
