#include "tweaks/steps.h"

#include "platform/machine.h"
#include "platform/messages.h"
#include "runtime/text.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"

namespace tweaks {
namespace {

bool Holds(const PassContext& pass, const ValuePlace& place, const Condition& condition) {
    const auto present = [&] {
        return pass.registry.RegValuePresent(place.root, place.key, place.value);
    };
    const auto text = [&] {
        return pass.registry.RegReadValue(place.root, place.key, place.value);
    };
    const auto number = [&](const std::string& of) { return runtime::ParseNumber(of, pass.signs); };
    switch (condition.question) {
        case Question::Present:
            return present();
        case Question::PresentWithText:
            return present() && text() == condition.text;
        case Question::NotEmpty:
            return !text().empty();
        case Question::EqualsText:
            return text() == condition.text;
        case Question::LowerEqualsText:
            return runtime::ToLower(text()) == condition.text;
        case Question::UpperEqualsText:
            return runtime::ToUpper(text()) == condition.text;
        // The text that cannot be read as a number, so an absent value too, equals none and exceeds
        // all.
        case Question::EqualsNumber:
            return number(text()) == condition.number;
        case Question::AtLeastNumber: {
            const auto found = number(text());
            return !found || *found >= condition.number;
        }
        case Question::EmptyOrEqualsNumber: {
            const std::string found = text();
            return found.empty() || number(found) == condition.number;
        }
    }
    return false;
}

bool AllHold(const PassContext& pass, const ValuePlace& own, const Conditions& conditions) {
    bool all = true;
    for (const Condition& condition : conditions) {
        all &= Holds(pass, condition.At(own), condition);
    }
    return all;
}

std::string TextAt(const PassContext& pass, const ValuePlace& place) {
    return pass.registry.RegReadValue(place.root, place.key, place.value);
}

void ReadBoxesAlong(const PassContext& pass, const Option& option, const ValuePlace& own, bool on) {
    for (const Step& step : option.on) {
        if (step.action != Action::WriteTextOf) continue;
        SetTextOfControl(pass.form, step.text, on ? TextAt(pass, step.At(own)) : "");
    }
}

void ReadFrom(const PassContext& pass, const Option& option, const ValuePlace& place) {
    if (!option.IsCheckBox()) {
        SetTextOfControl(pass.form, option.control, TextAt(pass, place));
        return;
    }
    const bool on = option.onWhen.size() > 0 ? AllHold(pass, place, option.onWhen)
                                             : !AllHold(pass, place, option.offWhen);
    if (!on && !option.otherwiseClears.empty()) {
        SetCheckBox(pass, option.otherwiseClears, false);
        return;
    }
    SetCheckBox(pass, option.control, on);
    ReadBoxesAlong(pass, option, place, on);
}

// The answer is not looked at: Cancel cancels nothing.
bool NumericTestPasses(const PassContext& pass, const Step& step) {
    if (!step.numericControl) return true;
    if (runtime::IsNumeric(TextOfControl(pass.form, step.numericControl), pass.signs)) return true;
    if (step.message) {
        pass.machine.messages.Show(
            step.message, platform::message::OkCancel + platform::message::Exclamation, "Fehler");
    }
    return false;
}

void Carry(const PassContext& pass, const Option& option, const ValuePlace& own, const Step& step) {
    const auto [root, key, value] = step.At(own);
    registry::Registry& registry = pass.registry;
    const auto textOfControl = [&] {
        return TextOfControl(pass.form, step.text ? step.text : option.control);
    };
    switch (step.action) {
        case Action::WriteDword:
            return registry.RegWriteDword(root, key, value, step.number);
        case Action::WriteText:
            return registry.RegWriteString(root, key, value, step.text);
        case Action::WriteBinary:
            return registry.RegWriteBinary(root, key, value, step.text);
        case Action::WriteTextOf:
            return registry.RegWriteString(root, key, value, textOfControl());
        case Action::WriteNumberOf:
            return registry.RegWriteDword(root, key, value,
                                          runtime::ToWholeNumber(textOfControl(), pass.signs));
        case Action::DeleteValue:
            return registry.RegDeleteValueAt(root, key, value);
        case Action::DeleteKey:
            return registry.RegDeleteKeyAt(root, key);
    }
}

void CarryAll(const PassContext& pass, const Option& option, const ValuePlace& own,
              const Steps& steps) {
    for (const Step& step : steps) {
        if (NumericTestPasses(pass, step)) Carry(pass, option, own, step);
    }
}

bool Allows(const PassContext& pass, const ValuePlace& own, Guard guard) {
    switch (guard) {
        case Guard::ValuePresent:
            return pass.registry.RegValuePresent(own.root, own.key, own.value);
        case Guard::KeyPresent:
            return pass.registry.RegKeyPresent(own.root, own.key);
        case Guard::KeyAbsent:
            return !pass.registry.RegKeyPresent(own.root, own.key);
        case Guard::None:
            break;
    }
    return true;
}

// Where the option is written; nothing when neither of its two keys is there.
std::optional<ValuePlace> PlaceToWrite(const PassContext& pass, const Option& option) {
    ValuePlace place = option.place;
    if (!option.laterKey || pass.registry.RegKeyPresent(place.root, place.key)) return place;
    place.key = option.laterKey;
    if (!pass.registry.RegKeyPresent(place.root, place.key)) return std::nullopt;
    return place;
}

}  // namespace

bool IsOn(const PassContext& pass, std::string_view name) {
    return pass.form.Find<toolkit::CheckBox>(name).Value() == 1;
}

void SetCheckBox(const PassContext& pass, std::string_view name, bool on) {
    pass.form.Find<toolkit::CheckBox>(name).SetValue(on ? 1 : 0);
}

void ReadByRow(const PassContext& pass, const Option& option) {
    ValuePlace place = option.place;
    ReadFrom(pass, option, place);
    if (!option.laterKey) return;
    place.key = option.laterKey;
    ReadFrom(pass, option, place);
}

void WriteByRow(const PassContext& pass, const Option& option) {
    const auto place = PlaceToWrite(pass, option);
    if (!place) return;
    CarryAll(pass, option, *place, option.always);
    if (!option.HasSides()) return;
    const bool on = IsOn(pass, option.decidedBy.empty() ? option.control : option.decidedBy);
    if (!Allows(pass, *place, on ? option.onGuard : option.offGuard)) return;
    CarryAll(pass, option, *place, on ? option.on : option.off);
}

void ReadOption(const PassContext& pass, const Option& option) {
    const NamedStep read = option.readStep ? option.readStep : ReadByRow;
    read(pass, option);
}

void WriteOption(const PassContext& pass, const Option& option) {
    const NamedStep write = option.writeStep ? option.writeStep : WriteByRow;
    write(pass, option);
}

}  // namespace tweaks
