#pragma once

#include <span>

// Which value each preset gives to which control, as data and nothing else.
namespace tweaks {

// In place of a value: the control stays as it is.
inline constexpr const char* Leave = nullptr;

// In place of a value: 1 on a machine that passes the memory test, else 0.
inline constexpr const char* ByMemory = "by memory";

// A control, and what the buttons "Standard" and "Empfohlen" make of it: "0" or "1" of a check box,
// "1" of an option button to be selected, decimal text of a slider, and the text of all others.
struct PresetRow {
    const char* control;
    const char* standard = Leave;
    const char* recommended = Leave;
};

using PresetRows = std::span<const PresetRow>;
using PresetColumn = const char* PresetRow::*;

struct PresetButton {
    const char* name;
    // In the order in which they are set, which matters: a packet size takes the window size along,
    // so the window size stands behind it in every list.
    PresetRows rows;
    PresetColumn column;
};

// All buttons that set controls of their page.
std::span<const PresetButton> PresetButtons();

// The lists of the four buttons "Empfohlen", in the order of the pages.
std::span<const PresetRows> RecommendedLists();

}  // namespace tweaks
