#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "endtoend/registrystate.h"

// Texts and numbers as the program is to mean them, stated apart from its own functions.
namespace endtoend {

// The number that a text stands for: a whole decimal number with blanks around and one sign ahead,
// or one of a few odd forms that the tests use. Nothing for any other text.
std::optional<double> NumberIn(const std::string& text);

// What becomes of a text that is to be stored as a whole number of 32 bits.
struct Whole {
    std::int32_t number = 0;
    // The failure's number; 0 when there is none.
    int failure = 0;
};

// 13 for no number, 6 for one beyond 32 bits; halves go to the even neighbour.
Whole WholeNumberIn(const std::string& text);

// The number at the front of a text, 0 when none stands there; only plain digits count.
double LeadingNumberIn(const std::string& text);

// The first `count` characters; the whole text for 0.
std::string FirstCharacters(const std::string& text, std::size_t count);

// A text after its way through the system's code page, where it has one byte a character.
std::string ThroughCodePage(const std::string& text);

// The text that a stored value reads as; "" for an absent one.
std::string TextForm(const std::optional<RegistryValue>& stored);

}  // namespace endtoend
