#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tweaks/option.h"
#include "tweaks/pagefixture.h"

namespace tweak_tests {

// One line of tests/golden/catalogue.tsv.
struct Fact {
    std::string page;
    std::string control;
    std::string caption;
    std::string root;
    std::string key;
    std::string value;
    std::string kind;
    std::string read;
    std::string on;
    std::string off;

    Service::Key Root() const;
    bool IsCheckBox() const { return control.starts_with("chk"); }
};

const std::vector<Fact>& GoldenFacts();

// The names of the check boxes, each once, and the facts of one of them with its boxes' facts.
std::vector<std::string> GoldenCheckBoxes();
std::vector<Fact> FactsDecidedBy(const std::string& checkBox);

// What a side of a fact leaves in the registry; nothing for a deleted value. The text of a box is
// the one given.
std::optional<StoredValue> Outcome(const std::string& side, const std::string& boxText = "");

// Whether the fact, by its own words, lets a check box read as on. The stored value's text is taken
// by this function's own understanding, not the program's.
bool ReadsAsOn(const Fact& fact, const std::optional<StoredValue>& stored);

// The program's own rows in the words of the file.
std::vector<Fact> FactsOfProgram(toolkit::Form& form);

// A fact as one line, for comparing and for reports.
std::string LineOf(const Fact& fact);

}  // namespace tweak_tests
