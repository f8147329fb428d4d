#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "registry/registry.h"

// Everything here is constant data: an option is a row of a catalogue page, and its control on the
// form is its whole state.
namespace tweaks {

struct ValuePlace {
    registry::Root root = registry::HKCR;
    const char* key = "";
    const char* value = "";
};

// What the read pass asks of a value. All but Present look at its text.
enum class Question {
    Present,
    // The text is only read when the value is present.
    PresentWithText,
    NotEmpty,
    EqualsText,
    // Folded to lower or upper case first.
    LowerEqualsText,
    UpperEqualsText,
    EqualsNumber,
    // A text that is no number counts as greater than every number, so an absent value passes.
    AtLeastNumber,
    // The empty text passes here too, and is no number greater than every other.
    EmptyOrEqualsNumber,
};

struct Condition {
    Question question = Question::Present;
    std::int32_t number = 0;
    const char* text = nullptr;
    // Another value of the option's key; nullptr means the option's own one.
    const char* value = nullptr;

    // What it asks of, the option's own place being given.
    constexpr ValuePlace At(const ValuePlace& own) const {
        return {own.root, own.key, value ? value : own.value};
    }
    constexpr Condition Of(const char* valueName) const {
        return {question, number, text, valueName};
    }
};

constexpr Condition Present() {
    return {.question = Question::Present};
}
constexpr Condition PresentWith(const char* text) {
    return {.question = Question::PresentWithText, .text = text};
}
constexpr Condition NotEmpty() {
    return {.question = Question::NotEmpty};
}
constexpr Condition Equals(const char* text) {
    return {.question = Question::EqualsText, .text = text};
}
constexpr Condition LowerEquals(const char* text) {
    return {.question = Question::LowerEqualsText, .text = text};
}
constexpr Condition UpperEquals(const char* text) {
    return {.question = Question::UpperEqualsText, .text = text};
}
constexpr Condition Equals(std::int32_t number) {
    return {.question = Question::EqualsNumber, .number = number};
}
constexpr Condition AtLeast(std::int32_t number) {
    return {.question = Question::AtLeastNumber, .number = number};
}
constexpr Condition EmptyOrEquals(std::int32_t number) {
    return {.question = Question::EmptyOrEqualsNumber, .number = number};
}

enum class Action {
    WriteDword,
    WriteText,
    WriteBinary,
    WriteTextOf,
    WriteNumberOf,
    DeleteValue,
    DeleteKey,
};

// One thing that the write pass does, at the option's own place unless another is told.
struct Step {
    Action action = Action::DeleteValue;
    std::int32_t number = 0;
    // The text to write; for WriteTextOf and WriteNumberOf the name of the control whose text it
    // is, nullptr being the option's own.
    const char* text = nullptr;

    std::optional<registry::Root> root = std::nullopt;
    const char* key = nullptr;
    const char* value = nullptr;

    // The step is left out when the text of this control is not numeric, which need not be the
    // control that is written; with a message the user is told.
    const char* numericControl = nullptr;
    const char* message = nullptr;

    constexpr Step Under(registry::Root otherRoot) const {
        Step step = *this;
        step.root = otherRoot;
        return step;
    }
    constexpr Step In(const char* otherKey) const {
        Step step = *this;
        step.key = otherKey;
        return step;
    }
    constexpr Step To(const char* valueName) const {
        Step step = *this;
        step.value = valueName;
        return step;
    }
    // Where the step does it, the option's own place being given.
    constexpr ValuePlace At(const ValuePlace& own) const {
        return {root.value_or(own.root), key ? key : own.key, value ? value : own.value};
    }
    constexpr Step IfNumeric(const char* controlName, const char* elseMessage = nullptr) const {
        Step step = *this;
        step.numericControl = controlName;
        step.message = elseMessage;
        return step;
    }
};

constexpr Step Dword(std::int32_t number) {
    return {.action = Action::WriteDword, .number = number};
}
constexpr Step Text(const char* text) {
    return {.action = Action::WriteText, .text = text};
}
constexpr Step Binary(const char* text) {
    return {.action = Action::WriteBinary, .text = text};
}
constexpr Step TextOf(const char* control) {
    return {.action = Action::WriteTextOf, .text = control};
}
constexpr Step TextOfOwn() {
    return {.action = Action::WriteTextOf};
}
// The text converted to a number. A text that does not convert ends the pass with its Failure.
constexpr Step NumberOf(const char* control) {
    return {.action = Action::WriteNumberOf, .text = control};
}
constexpr Step DeleteValue() {
    return {.action = Action::DeleteValue};
}
// Of no effect on a key that has sub-keys.
constexpr Step DeleteKey() {
    return {.action = Action::DeleteKey};
}

// These lists live as long as the constant row in whose braces they stand.
using Conditions = std::initializer_list<Condition>;
using Steps = std::initializer_list<Step>;

// What must hold of the option's own place for one side's steps to be carried out at all.
enum class Guard { None, ValuePresent, KeyPresent, KeyAbsent };

struct Option;
struct PassContext;

// A step of an option that departs from the ordinary ones.
using NamedStep = void (*)(const PassContext&, const Option&);

// One option; its name is the name of its control, and the name's prefix tells the control's class.
//
// A check box has either `onWhen` or `offWhen`, and the steps of its two sides. Every box named by
// a TextOf step of the on side goes along with it: it takes its value's text when the check box is
// on and is emptied when not.
//
// An edit field (a text box, a combo box, a label) takes the value's text as it is. It is written
// by `always`, or by the sides of the check box `decidedBy`; one without either is a mere display.
struct Option {
    std::string_view control;
    ValuePlace place = {};
    // A later program's key with the same values, or nullptr. Both keys are read and this one's
    // result stands, even when it is not there. Only the first that is there is written, and
    // neither is made.
    const char* laterKey = nullptr;

    // The box goes on, or off, when all of these hold, and to the other state when not. All are
    // asked, also after one that fails.
    Conditions onWhen = {};
    Conditions offWhen = {};
    // The check box that is cleared when `onWhen` does not hold, in place of the option's own,
    // which then stays as it is.
    std::string_view otherwiseClears = {};
    // Takes the place of the ordinary read; nullptr for none.
    NamedStep readStep = nullptr;

    std::string_view decidedBy = {};
    Steps on = {};
    Steps off = {};
    Guard onGuard = Guard::None;
    Guard offGuard = Guard::None;
    Steps always = {};
    // Takes the place of the ordinary write; nullptr for none.
    NamedStep writeStep = nullptr;

    constexpr bool IsCheckBox() const { return control.starts_with("chk"); }
    constexpr bool HasConditions() const { return onWhen.size() + offWhen.size() > 0; }
    constexpr bool HasSides() const { return on.size() + off.size() > 0; }
};

}  // namespace tweaks
