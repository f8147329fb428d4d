#pragma once

#include <string>

#include "cmd/change.h"

namespace cmd {

class OptionsWindow;

// One line an option: page, control, caption, what the window shows, and each of its places with
// type and data, or "nicht vorhanden". With `csv` each field between quotes and a semicolon between
// them, as a German spreadsheet takes it, and a line of headings first; a place is four fields.
// What cannot be read says so, and is noted.
std::string StateList(const OptionsWindow& window, WideRegistry& registry, bool csv,
                      Refusals& refusals);

}  // namespace cmd
