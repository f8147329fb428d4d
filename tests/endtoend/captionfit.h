#pragma once

#include <string>

#include "endtoend/looks.h"

namespace endtoend {

// Why the control's caption cannot be read in full; empty when it can.
std::string WhyCut(const Look& control);

}  // namespace endtoend
