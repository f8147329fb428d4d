#pragma once

#include <string>
#include <vector>

#include "kit/runs.h"

namespace kit {

// What stands in Ergebnis.txt, in UTF-8 with ends of lines as Windows has them. `head` is what was
// found out about the machine.
std::string Report(const std::vector<std::string>& head, const std::vector<Tried>& cases);

}  // namespace kit
