#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "endtoend/optiontablepasses.h"

// Machines and users made by chance, the same ones for the same seed everywhere.
namespace endtoend {

class Dice {
  public:
    explicit Dice(std::uint32_t seed) : numbers_(seed) {}

    // 0 to below - 1. The generator's sequence is the standard's own; the library's distributions
    // are not, so none of them is used.
    std::size_t Below(std::size_t below) { return numbers_() % below; }
    bool Percent(unsigned chance) { return Below(100) < chance; }

    template <typename T>
    const T& OneOf(const std::vector<T>& all) {
        return all[Below(all.size())];
    }

  private:
    std::mt19937 numbers_;
};

// Puts the places and keys of the catalogue into a state of chance: absent, what the options write,
// other numbers and texts, other types, too short, too long.
void PutRandomMachine(Dice& dice);

// Takes away what PutRandomMachine made beside the catalogue's values.
void RemoveRandomKeys();

// The controls as a user might leave them who finds them like this.
ControlStates RandomUser(Dice& dice, ControlStates found);

}  // namespace endtoend
