#pragma once

#include <cstdint>
#include <string>

#include "platform/machine.h"
#include "runtime/number.h"

namespace dialogs {

// What the machine is, for the user to read and to send to somebody: one fact a line, its name and
// its value with a tab between them, line ends CR LF. It invents nothing: what the system does not
// tell reads "nicht verfügbar".
std::string SystemReport(const platform::Machine& machine);

// A number of bytes in the largest unit of which there is at least one, with one decimal, the rest
// cut off: "511,4 MB".
std::string SizeText(std::uint64_t bytes, const runtime::NumberSigns& signs);

}  // namespace dialogs
