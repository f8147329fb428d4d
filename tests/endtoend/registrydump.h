#pragma once

#include <string>
#include <string_view>

#include "endtoend/registrystate.h"

// A whole branch of the registry in one call. Asking Wine's server key by key takes fifteen seconds
// for the machine's software; its server writes the same to a file in one.
namespace endtoend {

// The file that Wine saves the branch to; what lives until the next start only is not in it. Throws
// Failed when it cannot be saved.
std::string SavedTree(const std::string& root, const std::string& key);

// Adds everything below the key to the state, as Snapshot does. Throws Failed when the branch
// cannot be saved or its file is not understood.
void DumpTree(const std::string& root, const std::string& key, RegistryState& state);

// What a program like ours could touch: the machine's software and system, the user's whole tree.
RegistryState SnapshotOfMachine();

// Adds the entries of such a file, whose keys lie below the path.
void ParseDump(std::string_view text, const std::string& path, RegistryState& state);

}  // namespace endtoend
