// The program's rows in the words of the golden table.
#include <algorithm>

#include "tweaks/catalogue.h"
#include "tweaks/golden.h"

namespace tweak_tests {
namespace {

using tweaks::Action;
using tweaks::Condition;
using tweaks::Guard;
using tweaks::Option;
using tweaks::Question;
using tweaks::Step;
using tweaks::Steps;
using tweaks::ValuePlace;

std::string InQuotes(const char* text) {
    return '"' + std::string(text) + '"';
}

std::string WordsOf(const Condition& condition) {
    const std::string number = std::to_string(condition.number);
    switch (condition.question) {
        case Question::Present:
            return "present";
        case Question::PresentWithText:
            return "present and = " + InQuotes(condition.text);
        case Question::NotEmpty:
            return "not empty";
        case Question::EqualsText:
            return "= " + InQuotes(condition.text);
        case Question::LowerEqualsText:
            return "lower = " + InQuotes(condition.text);
        case Question::UpperEqualsText:
            return "upper = " + InQuotes(condition.text);
        case Question::EqualsNumber:
            return "= " + number;
        case Question::AtLeastNumber:
            return ">= " + number;
        case Question::EmptyOrEqualsNumber:
            return "\"\" or = " + number;
    }
    return "";
}

std::string NumericTestOf(const Step& step, const Option& option) {
    if (!step.numericControl) return "";
    std::string words = " if ";
    if (step.numericControl != option.control) words += std::string(step.numericControl) + " is ";
    words += "numeric";
    if (step.message) words += ", else " + InQuotes(step.message);
    return words;
}

std::string SourceOf(const Step& step, std::string_view control) {
    return !step.text || step.text == control ? "the box" : step.text;
}

// In the line of the given control.
std::string WordsOf(const Step& step, const Option& option, std::string_view control) {
    switch (step.action) {
        case Action::WriteDword:
            return "dword " + std::to_string(step.number);
        case Action::WriteText:
            return "text " + InQuotes(step.text);
        case Action::WriteBinary:
            return "binary " + InQuotes(step.text);
        case Action::WriteTextOf:
            return "text of " + SourceOf(step, control) + NumericTestOf(step, option);
        case Action::WriteNumberOf:
            return "number of " + SourceOf(step, control) + NumericTestOf(step, option);
        case Action::DeleteValue:
            return "delete value";
        case Action::DeleteKey:
            return "delete key";
    }
    return "";
}

ValuePlace PlaceOf(const Step& step, const ValuePlace& own) {
    return {step.root.value_or(own.root), step.key ? step.key : own.key,
            step.value ? step.value : own.value};
}

bool SameKey(const ValuePlace& left, const ValuePlace& right) {
    return left.root == right.root && std::string_view(left.key) == right.key;
}

bool SamePlace(const ValuePlace& left, const ValuePlace& right) {
    return SameKey(left, right) && std::string_view(left.value) == right.value;
}

bool Touches(const Step& step, const ValuePlace& own, const ValuePlace& place) {
    const ValuePlace target = PlaceOf(step, own);
    return step.action == Action::DeleteKey ? SameKey(target, place) : SamePlace(target, place);
}

void AddOnce(std::vector<ValuePlace>& places, const ValuePlace& place) {
    const auto same = [&](const ValuePlace& other) { return SamePlace(other, place); };
    if (std::none_of(places.begin(), places.end(), same)) places.push_back(place);
}

// What is only read, then what the on side touches, then the rest of the off side.
std::vector<ValuePlace> PlacesOf(const Option& option, const ValuePlace& own) {
    std::vector<ValuePlace> written;
    for (const Steps* steps : {&option.always, &option.on, &option.off}) {
        for (const Step& step : *steps) {
            if (step.action != Action::DeleteKey) AddOnce(written, PlaceOf(step, own));
        }
    }
    std::vector<ValuePlace> read;
    if (!option.IsCheckBox()) read.push_back(own);
    for (const auto& conditions : {option.onWhen, option.offWhen}) {
        for (const Condition& condition : conditions) {
            AddOnce(read, {own.root, own.key, condition.value ? condition.value : own.value});
        }
    }
    std::vector<ValuePlace> all;
    for (const ValuePlace& place : read) {
        const auto same = [&](const ValuePlace& other) { return SamePlace(other, place); };
        if (std::none_of(written.begin(), written.end(), same)) AddOnce(all, place);
    }
    for (const ValuePlace& place : written) AddOnce(all, place);
    return all;
}

// The conditions on one of the option's values, and what they make of an absent one.
std::string ReadWords(const Option& option, const ValuePlace& own, const ValuePlace& place) {
    if (!SameKey(own, place)) return "not read";
    const bool inverted = option.offWhen.size() > 0;
    std::string words;
    bool absentHolds = true;
    for (const Condition& condition : inverted ? option.offWhen : option.onWhen) {
        if (std::string_view(condition.value ? condition.value : own.value) != place.value) {
            continue;
        }
        words += (words.empty() ? "" : " and ") + WordsOf(condition);
        absentHolds = absentHolds && (condition.question == Question::EmptyOrEqualsNumber ||
                                      condition.question == Question::AtLeastNumber);
    }
    if (words.empty()) return "not read";
    if (!option.otherwiseClears.empty()) {
        return words + ", else clears " + std::string(option.otherwiseClears) + "; absent: stays";
    }
    return (inverted ? "off when " : "") + words +
           (absentHolds != inverted ? "; absent: on" : "; absent: off");
}

std::string GuardWords(Guard guard) {
    switch (guard) {
        case Guard::ValuePresent:
            return " if value present";
        case Guard::KeyPresent:
            return " if key present";
        case Guard::KeyAbsent:
            return " if key absent";
        case Guard::None:
            return "";
    }
    return "";
}

std::string SideWords(const Option& option, std::string_view control, const Steps& steps,
                      Guard guard, const ValuePlace& own, const ValuePlace& place) {
    std::string words;
    for (const Step& step : steps) {
        if (Touches(step, own, place)) words += WordsOf(step, option, control);
    }
    if (words.empty()) return "nothing";
    words += GuardWords(guard);
    if (option.laterKey) {
        words += own.key == option.place.key ? " if key present" : " if only this key present";
    }
    return words;
}

bool Has(const Steps& steps, Action action) {
    return std::any_of(steps.begin(), steps.end(),
                       [&](const Step& step) { return step.action == action; });
}

bool WritesOnly(const Steps& steps, Action action) {
    return std::all_of(steps.begin(), steps.end(),
                       [&](const Step& step) { return step.action == action; });
}

std::string KindOf(const Option& option) {
    if (!option.IsCheckBox()) return option.always.size() || option.HasSides() ? "edit" : "display";
    if (option.writeStep) return "command";
    if ((Has(option.on, Action::DeleteKey) && WritesOnly(option.off, Action::WriteText)) ||
        (Has(option.off, Action::DeleteKey) && WritesOnly(option.on, Action::WriteText))) {
        return "key";
    }
    if (option.on.size() > 1 || option.onWhen.size() + option.offWhen.size() > 1 ||
        option.readStep || option.laterKey) {
        return "group";
    }
    const Condition& condition =
        option.offWhen.size() ? *option.offWhen.begin() : *option.onWhen.begin();
    switch (condition.question) {
        case Question::Present:
            return "presence";
        case Question::PresentWithText:
            return "guarded-text";
        case Question::EqualsNumber:
            return Has(option.on, Action::WriteText) ? "number-as-text" : "number";
        case Question::AtLeastNumber:
        case Question::EmptyOrEqualsNumber:
            return "number";
        default:
            return "text";
    }
}

// The box whose text a check box writes to that place, which goes along with it.
const char* BoxAlong(const Option& option, const ValuePlace& own, const ValuePlace& place) {
    for (const Step& step : option.on) {
        if (step.action == Action::WriteTextOf && Touches(step, own, place)) return step.text;
    }
    return nullptr;
}

Fact FactAt(const Option& option, const ValuePlace& own, const ValuePlace& place) {
    constexpr const char* roots[] = {"HKCR", "HKCU", "HKLM"};
    Fact fact;
    fact.control = option.control;
    fact.root = roots[place.root];
    fact.key = place.key;
    fact.value = place.value;
    fact.kind = KindOf(option);
    std::string decider(option.decidedBy);
    if (option.IsCheckBox()) {
        fact.read = ReadWords(option, own, place);
        const char* box = BoxAlong(option, own, place);
        if (box && fact.read == "not read") {
            fact.control = box;
            fact.kind = "edit";
            decider = option.control;
            fact.read = "the text when " + decider;
        } else if (box) {
            fact.read.insert(fact.read.find(';'), ", also into " + std::string(box));
        }
    } else {
        fact.read = SamePlace(own, place) ? "the text" : "not read";
    }
    if (option.laterKey && own.key == option.place.key && fact.read != "not read") {
        fact.read = "overruled";
    }
    const bool always = option.always.size() > 0;
    const auto words = [&](const Steps& steps, Guard guard) {
        return SideWords(option, fact.control, always ? option.always : steps, guard, own, place);
    };
    fact.on = words(option.on, option.onGuard);
    fact.off = words(option.off, option.offGuard);
    if (!decider.empty()) {
        fact.on += " with " + decider;
        fact.off += " with " + decider;
    }
    return fact;
}

std::vector<Fact> FactsOf(const Option& option) {
    std::vector<Fact> facts;
    ValuePlace own = option.place;
    for (const ValuePlace& place : PlacesOf(option, own)) {
        facts.push_back(FactAt(option, own, place));
    }
    if (option.laterKey) {
        own.key = option.laterKey;
        for (const ValuePlace& place : PlacesOf(option, own)) {
            facts.push_back(FactAt(option, own, place));
        }
    }
    return facts;
}

}  // namespace

std::string CaptionOf(const toolkit::Form& form, const std::string& name) {
    std::string above;
    for (const auto& control : form.Controls()) {
        if (control->Name() == name) {
            return dynamic_cast<toolkit::CheckBox*>(control.get()) ? control->Caption() : above;
        }
        const bool names = control->Kind() == toolkit::ControlKind::Label ||
                           control->Kind() == toolkit::ControlKind::Frame;
        if (names) above = control->Caption();
    }
    return "(not on the form)";
}

std::vector<Fact> FactsOfProgram(toolkit::Form& form) {
    std::vector<Fact> facts;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) {
            if (*option.place.key == '\0') continue;
            for (Fact fact : FactsOf(option)) {
                fact.page = page.tab;
                fact.caption = CaptionOf(form, fact.control);
                facts.push_back(fact);
            }
        }
    }
    return facts;
}

}  // namespace tweak_tests
