// What must hold for every row of the catalogue; all violations come in one report.
#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <set>

#include "toolkit/combobox.h"
#include "tweaks/catalogue.h"
#include "tweaks/order.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;
using tweaks::Action;
using tweaks::Condition;
using tweaks::Option;
using tweaks::Step;
using tweaks::Steps;

namespace {

std::vector<const Option*> AllOptions() {
    std::vector<const Option*> all;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) all.push_back(&option);
    }
    return all;
}

// The options for which the rule does not hold, one a line.
template <typename Rule>
std::string Violations(Rule&& holds) {
    std::string violations;
    for (const Option* option : AllOptions()) {
        if (!holds(*option)) violations += std::string(option->control) + '\n';
    }
    return violations;
}

bool SameStep(const Step& left, const Step& right) {
    const auto text = [](const char* words) { return std::string_view(words ? words : ""); };
    return left.action == right.action && left.number == right.number &&
           text(left.text) == text(right.text) && left.root == right.root &&
           text(left.key) == text(right.key) && text(left.value) == text(right.value);
}

bool SameSteps(const Steps& left, const Steps& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), SameStep);
}

bool StandsIn(std::span<const std::string_view> order, const Option& option) {
    return std::count(order.begin(), order.end(), option.control) == 1;
}

bool IsRead(const Option& option) {
    return !option.IsCheckBox() || option.HasConditions() || option.readStep;
}

// chkWinLogOn has its place although the two boxes that it decides about do the writing.
bool IsWritten(const Option& option) {
    return option.HasSides() || option.always.size() > 0 || option.control == "chkWinLogOn";
}

}  // namespace

TEST_CASE("no name stands in the order of a pass twice") {
    for (auto order : {tweaks::ReadOrder(), tweaks::WriteOrder()}) {
        CHECK(std::set<std::string_view>(order.begin(), order.end()).size() == order.size());
    }
}

TEST_CASE("every option has one row on one page") {
    std::map<std::string_view, int> rows;
    for (const Option* option : AllOptions()) ++rows[option->control];
    CHECK(Violations([&](const Option& option) { return rows[option.control] == 1; }) == "");
}

TEST_CASE("every option is found by its name") {
    CHECK(Violations([](const Option& option) {
              return tweaks::FindOption(option.control) == &option;
          }) == "");
    CHECK(tweaks::FindOption("chkNothing") == nullptr);
}

TEST_CASE("exactly the options that are read stand in the order of the read pass") {
    CHECK(Violations([](const Option& option) {
              return StandsIn(tweaks::ReadOrder(), option) == IsRead(option);
          }) == "");
}

TEST_CASE("exactly the options that are written stand in the order of the write pass") {
    CHECK(Violations([](const Option& option) {
              return StandsIn(tweaks::WriteOrder(), option) == IsWritten(option);
          }) == "");
}

TEST_CASE("a check box asks for on or for off, not for both, and an edit field for nothing") {
    CHECK(Violations([](const Option& option) {
              const bool one = (option.onWhen.size() > 0) != (option.offWhen.size() > 0);
              return option.IsCheckBox() ? one || !option.HasConditions() : !option.HasConditions();
          }) == "");
}

TEST_CASE("an option has two sides of steps that differ, or steps for always") {
    CHECK(Violations([](const Option& option) {
              if (!option.HasSides()) return !option.IsCheckBox() || option.always.size() == 0;
              return option.on.size() > 0 && option.off.size() > 0 &&
                     !SameSteps(option.on, option.off) && option.always.size() == 0 &&
                     option.IsCheckBox() == option.decidedBy.empty();
          }) == "");
}

TEST_CASE("every step has what its action needs") {
    CHECK(Violations([](const Option& option) {
              for (const Steps* steps : {&option.on, &option.off, &option.always}) {
                  for (const Step& step : *steps) {
                      const bool ofControl = step.action == Action::WriteTextOf ||
                                             step.action == Action::WriteNumberOf;
                      const bool needsText = step.action == Action::WriteText ||
                                             step.action == Action::WriteBinary ||
                                             (ofControl && option.IsCheckBox());
                      const bool mayHaveText = needsText || ofControl;
                      if (step.text ? !mayHaveText : needsText) return false;
                      if (step.number < 0) return false;
                      if (step.message && !step.numericControl) return false;
                  }
              }
              return true;
          }) == "");
}

TEST_CASE_FIXTURE(Options, "every control named by a row is on the form, of the right class") {
    const auto holdsText = [&](std::string_view name) {
        const auto* control = form.FindControl(name);
        return dynamic_cast<const toolkit::TextBox*>(control) ||
               dynamic_cast<const toolkit::ComboBox*>(control) ||
               dynamic_cast<const toolkit::Label*>(control);
    };
    const auto isCheckBox = [&](std::string_view name) {
        return dynamic_cast<const toolkit::CheckBox*>(form.FindControl(name)) != nullptr;
    };
    CHECK(Violations([&](const Option& option) {
              for (const Steps* steps : {&option.on, &option.off, &option.always}) {
                  for (const Step& step : *steps) {
                      const bool named = step.action == Action::WriteTextOf ||
                                         step.action == Action::WriteNumberOf;
                      if (named && step.text && !holdsText(step.text)) return false;
                      if (step.numericControl && !holdsText(step.numericControl)) return false;
                  }
              }
              for (std::string_view box : {option.decidedBy, option.otherwiseClears}) {
                  if (!box.empty() && !isCheckBox(box)) return false;
              }
              return option.IsCheckBox() ? isCheckBox(option.control) : holdsText(option.control);
          }) == "");
}

TEST_CASE("an option that two keys of a program hold is read and written by its row alone") {
    CHECK(Violations([](const Option& option) {
              return !option.laterKey || (!option.readStep && !option.writeStep &&
                                          option.onGuard == tweaks::Guard::None &&
                                          option.offGuard == tweaks::Guard::None);
          }) == "");
}
