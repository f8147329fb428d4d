#pragma once

#include <string>

#include "endtoend/optiontablepasses.h"
#include "endtoend/randommachine.h"

namespace endtoend {

// A profile that says this, in one of the encodings in which it may be written.
std::string ProfileOf(const ControlStates& states, Dice& dice);

// Some of the controls in states of chance, all of them right: 0 or 1, numbers where numbers are
// wanted, texts that the boxes take.
ControlStates RandomSettings(Dice& dice);

}  // namespace endtoend
