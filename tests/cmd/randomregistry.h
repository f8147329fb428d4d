#pragma once

#include <random>

#include "platform/simulated/registry.h"

namespace cmd_test {

// Puts something or nothing at every place that the catalogue knows: keys that lack, at some level
// or as a whole, keys without the value, values of the right type and of any other, texts with
// their end and without, among them what an option takes for on or for off.
void FillAtRandom(platform::simulated::Registry& registry, std::mt19937& dice);

// A profile that sets every option to something that it can be set to, or leaves it out.
std::string RandomProfile(std::mt19937& dice);

}  // namespace cmd_test
