#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "registry/registry.h"

// Everything here is constant data: an option is a row of a catalogue page, and its control on the
// form is its whole state.
namespace tweaks {

// A short list that lies inside its row, so that a whole page is one constant of the program.
template <typename Item, std::size_t Capacity>
class ShortList {
  public:
    constexpr ShortList() = default;
    // More items than fit do not compile.
    constexpr ShortList(std::initializer_list<Item> items) {
        for (const Item& item : items) items_.at(size_++) = item;
    }
    constexpr const Item* begin() const { return items_.data(); }
    constexpr const Item* end() const { return items_.data() + size_; }
    constexpr std::size_t size() const { return size_; }
    constexpr bool empty() const { return size_ == 0; }

  private:
    std::array<Item, Capacity> items_{};
    std::size_t size_ = 0;
};

struct ValuePlace {
    registry::Root root = registry::HKCR;
    const char* key = "";
    const char* value = "";
};

// What the read pass asks of a value. All but Present look at its text.
enum class Question {
    Present,
    EqualsNumber,
    EqualsText,
    // The empty text passes here, which otherwise counts as greater than every number.
    EmptyOrEqualsNumber,
};

struct Condition {
    Question question = Question::Present;
    std::int32_t number = 0;
    const char* text = nullptr;
    // Another value of the option's key; nullptr means the option's own one.
    const char* otherValue = nullptr;

    constexpr Condition Of(const char* valueName) const {
        return {question, number, text, valueName};
    }
};

constexpr Condition Present() {
    return {Question::Present, 0, nullptr, nullptr};
}
constexpr Condition Equals(std::int32_t number) {
    return {Question::EqualsNumber, number, nullptr, nullptr};
}
constexpr Condition Equals(const char* text) {
    return {Question::EqualsText, 0, text, nullptr};
}
constexpr Condition EmptyOrEquals(std::int32_t number) {
    return {Question::EmptyOrEqualsNumber, number, nullptr, nullptr};
}

enum class Action { WriteDword, WriteText, WriteBinary, WriteControl, DeleteValue };

// One thing that the write pass does.
struct Step {
    Action action = Action::DeleteValue;
    std::int32_t number = 0;
    // The text to write; for WriteControl the name of the control whose text it is.
    const char* text = nullptr;
    // Another value of the option's key; nullptr means the option's own one.
    const char* otherValue = nullptr;

    constexpr Step To(const char* valueName) const { return {action, number, text, valueName}; }
};

constexpr Step Dword(std::int32_t number) {
    return {Action::WriteDword, number, nullptr, nullptr};
}
constexpr Step Text(const char* text) {
    return {Action::WriteText, 0, text, nullptr};
}
constexpr Step Binary(const char* text) {
    return {Action::WriteBinary, 0, text, nullptr};
}
constexpr Step TextOf(const char* control) {
    return {Action::WriteControl, 0, control, nullptr};
}
constexpr Step DeleteValue() {
    return {Action::DeleteValue, 0, nullptr, nullptr};
}

using Conditions = ShortList<Condition, 2>;
using Steps = ShortList<Step, 4>;

// What must hold for one side's steps to be carried out at all.
enum class Guard { None, KeyPresent };

enum class State { Off, On };

struct Option;
struct PassContext;

// A read step of an option that departs from the ordinary ones.
using ReadStep = void (*)(const PassContext&, const Option&);

// One option. A check box has either `onWhen` or `offWhen`, and both `on` and `off`. An edit field
// has neither condition, takes the value's text as it is, and is written by `always`; one without
// `always` is a mere display.
struct Option {
    // Also the option's name.
    std::string_view control;
    ValuePlace place;

    // The box goes on, or off, when all of these hold, and to the other state when not. All are
    // asked, also after one that fails.
    Conditions onWhen = {};
    Conditions offWhen = {};
    // Takes the place of the ordinary read; nullptr for none.
    ReadStep readStep = nullptr;

    Steps on = {};
    Steps off = {};
    Guard offGuard = Guard::None;
    Steps always = {};

    // What a check box would have to show for what Windows itself does where the value is absent,
    // which is not always what the conditions make of an absent value.
    State windowsDefault = State::Off;

    constexpr bool IsCheckBox() const { return !onWhen.empty() || !offWhen.empty(); }
};

}  // namespace tweaks
