#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/golden.h"
#include "tweaks/option.h"
#include "tweaks/pagefixture.h"

namespace tweak_tests {

// One line of tests/golden/catalogue.tsv.
struct Fact : golden::CatalogueLine {
    Service::Key Root() const;
    // Whether a check box looks at the value.
    bool Decides() const { return read.find("; absent: o") != std::string::npos; }
};

using FactSide = std::string Fact::*;

const std::vector<Fact>& GoldenFacts();

// The names of the check boxes with facts of their own, each once; those that every read sets; and
// the facts of one of them with its boxes' facts.
std::vector<std::string> GoldenCheckBoxes();
std::vector<std::string> ReadCheckBoxes();
std::vector<Fact> FactsDecidedBy(const std::string& checkBox);

// Carries one side of an option's facts out on the registry of `options`, by this function's own
// understanding of their words, not the program's. Texts are those of the form's boxes.
void Apply(const std::vector<Fact>& facts, FactSide side, Options& options);

// What the box shows where its values are absent: "on", "off", "stays" (as the form has it, which
// is off), or "" for a box that no value decides.
std::string AbsentState(const std::string& checkBox);

// The boxes that look at a value, each with what it would have to show for what Windows does while
// that value is absent and all else is as it was installed.
const std::vector<std::pair<std::string, bool>>& WindowsDefaults();

// Those of them that show something else then, and what they show.
std::vector<std::pair<std::string, bool>> ReadingOtherwiseThanWindows();

// Whether the fact, by its own words, lets a check box read as on; a fact that does not decide says
// yes. The stored value's text is taken by this function's own understanding, not the program's.
bool ReadsAsOn(const Fact& fact, const std::optional<StoredValue>& stored);

// The caption that the user sees: a check box's own, of all others that of the label or frame in
// front.
std::string CaptionOf(const toolkit::Form& form, const std::string& name);

// The program's own rows in the words of the file.
std::vector<Fact> FactsOfProgram(toolkit::Form& form);

// A fact as one line, for comparing and for reports.
std::string LineOf(const Fact& fact);

}  // namespace tweak_tests
