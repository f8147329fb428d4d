#include "tweaks/steps.h"

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tweaks {
namespace {

const char* NameOr(const char* otherValue, const Option& option) {
    return otherValue ? otherValue : option.place.value;
}

// The text that cannot be read as a number, so an absent value too, equals none.
bool EqualsNumber(const PassContext& pass, const std::string& text, std::int32_t number) {
    return runtime::ParseNumber(text, pass.signs) == number;
}

bool Holds(const PassContext& pass, const Option& option, const Condition& condition) {
    const auto& [root, key, ownValue] = option.place;
    const char* value = NameOr(condition.otherValue, option);
    if (condition.question == Question::Present) {
        return pass.registry.RegValuePresent(root, key, value);
    }
    const std::string text = pass.registry.RegReadValue(root, key, value);
    switch (condition.question) {
        case Question::EqualsText:
            return text == condition.text;
        case Question::EmptyOrEqualsNumber:
            return text.empty() || EqualsNumber(pass, text, condition.number);
        default:
            return EqualsNumber(pass, text, condition.number);
    }
}

bool AllHold(const PassContext& pass, const Option& option, const Conditions& conditions) {
    bool all = true;
    for (const Condition& condition : conditions) all &= Holds(pass, option, condition);
    return all;
}

void Carry(const PassContext& pass, const Option& option, const Step& step) {
    const auto& [root, key, ownValue] = option.place;
    const char* value = NameOr(step.otherValue, option);
    switch (step.action) {
        case Action::WriteDword:
            return pass.registry.RegWriteDword(root, key, value, step.number);
        case Action::WriteText:
            return pass.registry.RegWriteString(root, key, value, step.text);
        case Action::WriteBinary:
            return pass.registry.RegWriteBinary(root, key, value, step.text);
        case Action::WriteControl:
            return pass.registry.RegWriteString(root, key, value,
                                                pass.form.Find<toolkit::TextBox>(step.text).Text());
        case Action::DeleteValue:
            return pass.registry.RegDeleteValueAt(root, key, value);
    }
}

void CarryAll(const PassContext& pass, const Option& option, const Steps& steps) {
    for (const Step& step : steps) Carry(pass, option, step);
}

bool Allows(const PassContext& pass, const Option& option, Guard guard) {
    return guard == Guard::None || pass.registry.RegKeyPresent(option.place.root, option.place.key);
}

}  // namespace

void ReadByRow(const PassContext& pass, const Option& option) {
    if (option.IsCheckBox()) {
        const bool on = !option.onWhen.empty() ? AllHold(pass, option, option.onWhen)
                                               : !AllHold(pass, option, option.offWhen);
        pass.form.Find<toolkit::CheckBox>(option.control).SetValue(on ? 1 : 0);
        return;
    }
    const auto& [root, key, value] = option.place;
    pass.form.Find<toolkit::TextBox>(option.control)
        .SetText(pass.registry.RegReadValue(root, key, value));
}

void ReadOption(const PassContext& pass, const Option& option) {
    if (option.readStep) return option.readStep(pass, option);
    ReadByRow(pass, option);
}

void WriteOption(const PassContext& pass, const Option& option) {
    CarryAll(pass, option, option.always);
    if (!option.IsCheckBox()) return;
    if (pass.form.Find<toolkit::CheckBox>(option.control).Value() == 1) {
        CarryAll(pass, option, option.on);
    } else if (Allows(pass, option, option.offGuard)) {
        CarryAll(pass, option, option.off);
    }
}

}  // namespace tweaks
