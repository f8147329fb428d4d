#pragma once

#include <optional>
#include <string>
#include <vector>

#include "endtoend/registrystate.h"

// What page " System" must show and write on the machine of the baseline, stated by hand and apart
// from the program's own table.
namespace endtoend {

struct Effect {
    ValuePlace place;
    // Nothing: the value must be absent.
    std::optional<RegistryValue> value;
};

struct CheckBoxFacts {
    const char* control;
    const char* caption;
    // What the baseline makes of it.
    bool checked;
    std::vector<Effect> on;
    std::vector<Effect> off;
};

// The key that makes the one box of a graphics driver usable.
inline constexpr char GraphicsDriverKey[] = "SYSTEM\\CurrentControlSet\\Services\\nv4\\Device0";

const std::vector<CheckBoxFacts>& CheckBoxesOfSystemPage();

struct TextBoxFacts {
    const char* control;
    // What the baseline makes of it, and what a test types into it.
    const char* shown;
    const char* typed;
    ValuePlace place;
};

// Those that are written in every pass.
const std::vector<TextBoxFacts>& TextBoxesOfSystemPage();

// Those that are written with chkAutoLogin and deleted without it.
const std::vector<TextBoxFacts>& TextBoxesOfAutoLogin();

}  // namespace endtoend
