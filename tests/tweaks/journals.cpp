#include <doctest/doctest.h>

#include <cstdlib>
#include <fstream>

#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

// With QUILLMORE_UPDATE_GOLDEN=1 in the environment the journal is written instead of compared;
// tests/golden/README.md says when.
void CheckAgainst(const std::string& pathInRepository, const std::string& journal) {
    const char* update = std::getenv("QUILLMORE_UPDATE_GOLDEN");
    if (update && std::string(update) == "1") {
        std::ofstream(QUILLMORE_SOURCE_DIR "/" + pathInRepository, std::ios::binary) << journal;
        FAIL("written anew, nothing compared: " << pathInRepository);
    }
    CHECK(journal == FileText(pathInRepository));
}

struct BaselineOptions : Options {
    BaselineOptions() {
        machine.registry.Load(FileText("resources/xp-baseline.reg"));
        machine.journal.Clear();
        passes.Read();
    }
};

}  // namespace

TEST_CASE_FIXTURE(BaselineOptions,
                  "one read pass on the baseline makes the golden journal's calls") {
    CheckAgainst("tests/golden/readpass.journal", machine.journal.Text());
}

TEST_CASE_FIXTURE(BaselineOptions,
                  "one write pass on the baseline makes the golden journal's calls") {
    machine.journal.Clear();
    passes.Write();
    CheckAgainst("tests/golden/writepass.journal", machine.journal.Text());
}
