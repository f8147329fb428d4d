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

// Reads the text of a registry file (version 5, UTF-8): keys, texts, dword, hex with and without a
// type, comments, continued lines. Anything else throws Failed with the line.
std::vector<RegistryFileEntry> ParseRegistryFile(const std::string& text);

// The registry that each test starts from: everything that the program may have written is gone,
// then the file's values are there.
void PutBaseline(const std::string& registryFileText, const std::string& catalogueText);

}  // namespace endtoend
