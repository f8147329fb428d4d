#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace platform::simulated {

// One line of a registration file: a key, or a value of the key before it.
struct RegistrationLine {
    platform::Registry::Key root = 0;
    std::string key;
    // Nothing: the line is the key itself.
    std::optional<std::string> name;
    // Key or value goes, instead of being put there.
    bool removes = false;
    std::uint32_t type = 0;
    // A text that stands there in quotation marks, in UTF-8. All other data is bytes as the file
    // has them, that of a text two a character.
    std::optional<std::string> text;
    std::vector<std::uint8_t> data;
};

// Takes a registration file (text "Windows Registry Editor Version 5.00", as UTF-8) apart. Such
// files are test data here, so a line that is not understood throws std::runtime_error that names
// it.
std::vector<RegistrationLine> ReadRegistrationFile(std::string_view registrationText);

}  // namespace platform::simulated
