// The program's rows in the words of the golden table.
#include <algorithm>

#include "tweaks/catalogue.h"
#include "tweaks/golden.h"

namespace tweak_tests {
namespace {

using tweaks::Action;
using tweaks::Condition;
using tweaks::Option;
using tweaks::Question;
using tweaks::Step;

std::string InQuotes(const char* text) {
    return '"' + std::string(text) + '"';
}

std::string NameOf(const char* otherValue, const Option& option) {
    return otherValue ? otherValue : option.place.value;
}

std::string WordsOf(const Condition& condition) {
    const std::string number = std::to_string(condition.number);
    switch (condition.question) {
        case Question::Present:
            return "present";
        case Question::EqualsNumber:
            return "= " + number;
        case Question::EqualsText:
            return "= " + InQuotes(condition.text);
        case Question::EmptyOrEqualsNumber:
            return "\"\" or = " + number;
    }
    return "";
}

std::string WordsOf(const Step& step) {
    switch (step.action) {
        case Action::WriteDword:
            return "dword " + std::to_string(step.number);
        case Action::WriteText:
            return "text " + InQuotes(step.text);
        case Action::WriteBinary:
            return "binary " + InQuotes(step.text);
        case Action::WriteControl:
            return "text of the box";
        case Action::DeleteValue:
            return "delete value";
    }
    return "";
}

// The conditions on one of the option's values, and what they make of an absent one.
std::string ReadWords(const Option& option, const std::string& value) {
    const bool inverted = option.onWhen.empty();
    std::string words;
    bool absentHolds = true;
    for (const Condition& condition : inverted ? option.offWhen : option.onWhen) {
        if (NameOf(condition.otherValue, option) != value) continue;
        words += (words.empty() ? "" : " and ") + WordsOf(condition);
        absentHolds = absentHolds && condition.question == Question::EmptyOrEqualsNumber;
    }
    if (words.empty()) return "not read";
    return (inverted ? "off when " : "") + words +
           (absentHolds != inverted ? "; absent: on" : "; absent: off");
}

std::string KindOf(const Option& option) {
    const tweaks::Conditions& conditions = option.onWhen.empty() ? option.offWhen : option.onWhen;
    if (option.on.size() > 1 || conditions.size() > 1 || option.readStep) return "group";
    switch (conditions.begin()->question) {
        case Question::Present:
            return "presence";
        case Question::EqualsText:
            return "text";
        default:
            return "number";
    }
}

std::string CaptionOf(toolkit::Form& form, const std::string& name) {
    std::string above;
    for (const auto& control : form.Controls()) {
        if (control->Name() == name) {
            return control->Kind() == toolkit::ControlKind::TextBox ? above : control->Caption();
        }
        const bool names = control->Kind() == toolkit::ControlKind::Label ||
                           control->Kind() == toolkit::ControlKind::Frame;
        if (names) above = control->Caption();
    }
    return "(not on the form)";
}

// The steps of the off side on the same value.
std::string OffWords(const Option& option, const std::string& value) {
    std::string words;
    for (const Step& step : option.off) {
        if (NameOf(step.otherValue, option) == value) words += WordsOf(step);
    }
    return option.offGuard == tweaks::Guard::KeyPresent ? words + " if key present" : words;
}

Fact PlaceOf(const Option& option) {
    constexpr const char* roots[] = {"HKCR", "HKCU", "HKLM"};
    Fact fact;
    fact.control = option.control;
    fact.root = roots[option.place.root];
    fact.key = option.place.key;
    fact.value = option.place.value;
    return fact;
}

std::vector<Fact> FactsOfCheckBox(const Option& option) {
    std::vector<Fact> facts;
    for (const Step& step : option.on) {
        Fact fact = PlaceOf(option);
        fact.value = NameOf(step.otherValue, option);
        fact.on = WordsOf(step);
        fact.off = OffWords(option, fact.value);
        if (step.action == Action::WriteControl) {
            const std::string decider = " with " + fact.control;
            fact.read = "the text when " + fact.control;
            fact.control = step.text;
            fact.kind = "edit";
            fact.on += decider;
            fact.off += decider;
        } else {
            fact.kind = KindOf(option);
            fact.read = ReadWords(option, fact.value);
        }
        facts.push_back(fact);
    }
    for (const Step& step : option.off) {
        Fact fact = PlaceOf(option);
        fact.value = NameOf(step.otherValue, option);
        const auto same = [&](const Fact& other) { return other.value == fact.value; };
        if (std::any_of(facts.begin(), facts.end(), same)) continue;
        fact.on = "nothing";
        fact.off = OffWords(option, fact.value);
        fact.kind = KindOf(option);
        fact.read = ReadWords(option, fact.value);
        facts.push_back(fact);
    }
    return facts;
}

Fact FactOfBox(const Option& option) {
    Fact fact = PlaceOf(option);
    fact.read = "the text";
    fact.kind = option.always.empty() ? "display" : "edit";
    fact.on = fact.off = option.always.empty() ? "nothing" : "";
    for (const Step& step : option.always) {
        fact.on += step.text == option.control ? WordsOf(step) : "text of another box";
    }
    fact.off = fact.on;
    return fact;
}

}  // namespace

std::vector<Fact> FactsOfProgram(toolkit::Form& form) {
    std::vector<Fact> facts;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) {
            for (Fact fact : option.IsCheckBox() ? FactsOfCheckBox(option)
                                                 : std::vector<Fact>{FactOfBox(option)}) {
                fact.page = page.tab;
                fact.caption = CaptionOf(form, fact.control);
                facts.push_back(fact);
            }
        }
    }
    return facts;
}

}  // namespace tweak_tests
