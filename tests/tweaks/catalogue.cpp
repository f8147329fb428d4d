#include <doctest/doctest.h>

#include <algorithm>

#include "tweaks/golden.h"

using namespace tweak_tests;

namespace {

std::vector<std::string> LinesOfFacts(const std::vector<Fact>& facts) {
    std::vector<std::string> lines;
    for (const Fact& fact : facts) lines.push_back(LineOf(fact));
    return lines;
}

// The lines of the one that the other lacks, one below the other.
std::string Lacking(const std::vector<std::string>& all, const std::vector<std::string>& among) {
    std::string lacking;
    for (const std::string& line : all) {
        if (std::find(among.begin(), among.end(), line) == among.end()) lacking += line + '\n';
    }
    return lacking;
}

}  // namespace

TEST_CASE_FIXTURE(Options, "the program's rows and the golden table state the same facts") {
    const auto golden = LinesOfFacts(GoldenFacts());
    const auto program = LinesOfFacts(FactsOfProgram(form));
    // Missing in the program, and extra in it.
    CHECK(Lacking(golden, program) == "");
    CHECK(Lacking(program, golden) == "");
    // Same facts in the same order, so each once.
    CHECK(program == golden);
}
