// What must hold for every row of the catalogue; all violations come in one report.
#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <set>

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
           text(left.text) == text(right.text) && text(left.otherValue) == text(right.otherValue);
}

bool SameSteps(const Steps& left, const Steps& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), SameStep);
}

bool StandsIn(std::span<const std::string_view> order, const Option& option) {
    return std::count(order.begin(), order.end(), option.control) == 1;
}

bool IsWritten(const Option& option) {
    return option.IsCheckBox() || !option.always.empty();
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

TEST_CASE("every option has its place in the order of the read pass") {
    CHECK(Violations([](const Option& option) { return StandsIn(tweaks::ReadOrder(), option); }) ==
          "");
}

TEST_CASE("exactly the options that are written stand in the order of the write pass") {
    CHECK(Violations([](const Option& option) {
              return StandsIn(tweaks::WriteOrder(), option) == IsWritten(option);
          }) == "");
}

TEST_CASE("a check box has one condition side and two sides of steps that differ") {
    CHECK(Violations([](const Option& option) {
              if (!option.IsCheckBox()) return option.on.empty() && option.off.empty();
              return option.onWhen.empty() != option.offWhen.empty() && !option.on.empty() &&
                     !option.off.empty() && !SameSteps(option.on, option.off) &&
                     option.always.empty();
          }) == "");
}

TEST_CASE("every step has what its action needs") {
    CHECK(Violations([](const Option& option) {
              for (const Steps* steps : {&option.on, &option.off, &option.always}) {
                  for (const Step& step : *steps) {
                      const bool needsText = step.action == Action::WriteText ||
                                             step.action == Action::WriteBinary ||
                                             step.action == Action::WriteControl;
                      if (needsText != (step.text != nullptr) || step.number < 0) return false;
                  }
              }
              return true;
          }) == "");
}

TEST_CASE_FIXTURE(Options, "every option and every box named by a step is on the form") {
    CHECK(Violations([&](const Option& option) {
              for (const Steps* steps : {&option.on, &option.always}) {
                  for (const Step& step : *steps) {
                      if (step.action == Action::WriteControl &&
                          !dynamic_cast<toolkit::TextBox*>(form.FindControl(step.text))) {
                          return false;
                      }
                  }
              }
              const auto* control = form.FindControl(option.control);
              return option.IsCheckBox()
                         ? dynamic_cast<const toolkit::CheckBox*>(control) != nullptr
                         : dynamic_cast<const toolkit::TextBox*>(control) != nullptr;
          }) == "");
}

// Where an absent value reads otherwise, a first Apply changes what Windows did so far.
TEST_CASE_FIXTURE(Options, "an absent value reads as what Windows does but for three options") {
    passes.Read();
    CHECK(Violations([&](const Option& option) {
              return !option.IsCheckBox() ||
                     (State(option.control) == 1) == (option.windowsDefault == tweaks::State::On);
          }) == "chkmemorymanagement\nchkSecondLevelDataCache\nchkMFTTuning\n");
}
