#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "endtoend/registrystate.h"

// The golden catalogue's words taken apart. Nothing here knows the program's own table.
namespace endtoend {

// What the read pass asks of one value.
struct ReadWords {
    enum class Asked {
        Nothing,
        // For check boxes.
        Present,
        NotEmpty,
        EqualsText,
        LowerEqualsText,
        UpperEqualsText,
        EqualsNumber,
        AtLeastNumber,
        // For edit fields.
        TheText,
    };
    Asked asked = Asked::Nothing;
    // The check box goes off, not on, when the value is as asked.
    bool offWhen = false;
    // Asked besides: whether the value is there, and whether the empty text passes too.
    bool alsoPresent = false;
    bool alsoEmpty = false;
    std::string text;
    std::int32_t number = 0;
    // What a check box is when the value is absent: "on", "off" or "stays".
    std::string absent;
    // The text box that takes the value's text along.
    std::string alsoInto;
    // The check box that is cleared in place of the own one.
    std::string elseClears;
    // The check box without which the field stays empty.
    std::string onlyWith;
};

// What the write pass does at one place.
struct WriteWords {
    enum class Action { Nothing, Dword, Text, Binary, TextOf, NumberOf, DeleteValue, DeleteKey };
    enum class Guard { None, KeyPresent, KeyAbsent, ValuePresent, OnlyThisKeyPresent };
    Action action = Action::Nothing;
    Guard guard = Guard::None;
    std::int32_t number = 0;
    // The text to write, or the control whose text it is.
    std::string text;
    // The control whose text must be numeric, and what the user is told when it is not.
    std::string numericControl;
    std::string complaint;
    // The check box that decides about an edit field.
    std::string decidedBy;
};

// One line of the catalogue: one place that one control reads or writes.
struct Fact {
    // The caption of the page's tab.
    std::string page;
    std::string control;
    std::string caption;
    ValuePlace place;
    ReadWords read;
    WriteWords on;
    WriteWords off;

    bool IsCheckBox() const { return control.starts_with("chk"); }
};

// All lines, in order. Words that nobody knows throw Failed.
const std::vector<Fact>& Facts();

std::vector<Fact> FactsOf(const std::string& control);

// The controls in the order of each pass.
const std::vector<std::string>& ReadOrder();
const std::vector<std::string>& WriteOrder();

}  // namespace endtoend
