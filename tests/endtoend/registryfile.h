#pragma once

#include <optional>
#include <string>
#include <vector>

#include "endtoend/registrystate.h"

namespace endtoend {

struct RegistryFileEntry {
    ValuePlace place;
    // Without a value the entry is the key alone.
    std::optional<RegistryValue> value;
};

// The keys and values that a registry file (version 5, UTF-8) puts there, in its order. What is not
// understood or takes something away throws std::runtime_error.
std::vector<RegistryFileEntry> ParseRegistryFile(const std::string& text);

// The registry that each test starts from: everything that the program may have written is gone,
// then the file's values are there.
void PutBaseline(const std::string& registryFileText, const std::string& catalogueText);

}  // namespace endtoend
