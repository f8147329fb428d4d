#include "tweaks/reference.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <set>

#include "tweaks/catalogue.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

// With QUILLMORE_UPDATE_GOLDEN=1 in the environment the page is written instead of compared.
void CheckReference(const std::string& pathInRepository, bool german) {
    const std::string page = WrittenReference(german);
    const char* update = std::getenv("QUILLMORE_UPDATE_GOLDEN");
    if (update && std::string(update) == "1") {
        std::ofstream(QUILLMORE_SOURCE_DIR "/" + pathInRepository, std::ios::binary) << page;
        FAIL("written anew, nothing compared: " << pathInRepository);
    }
    const std::string stored = FileText(pathInRepository);
    const auto [made, kept] = std::mismatch(page.begin(), page.end(), stored.begin(), stored.end());
    if (page == stored) return;
    const auto line = [](const std::string& text, auto at) {
        const auto offset = static_cast<std::size_t>(at - text.begin());
        const std::size_t begin = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
        return text.substr(begin, text.find('\n', offset) - begin);
    };
    FAIL_CHECK(
        pathInRepository << " is not what the program does. It has\n  " << line(stored, kept)
                         << "\nfor\n  " << line(page, made)
                         << "\nThis writes it anew: QUILLMORE_UPDATE_GOLDEN=1 "
                            "build/native/tests/tweaks/test_tweaks -tc=\"*page of all options*\"");
}

}  // namespace

TEST_CASE("the project's page of all options is what the program does") {
    CheckReference("docs/catalogue.md", false);
}

TEST_CASE("the manual's page of all options is what the program does") {
    CheckReference("docs/anleitung/anhang.html", true);
}

TEST_CASE("each option of the program stands on the page of all options") {
    std::set<std::string> told;
    for (const ReferencePage& page : ReferencePages()) {
        for (const ReferenceEntry& entry : page.entries) told.insert(entry.control);
    }
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const tweaks::Option& option : page.options) {
            CAPTURE(option.control);
            CHECK(told.contains(std::string(option.control)));
        }
    }
    CHECK(told.size() > 100);
}

TEST_CASE("whatever is told as odd is an option or a page, and told once") {
    std::set<std::string> names;
    for (const ReferencePage& page : ReferencePages()) {
        names.insert(page.name);
        for (const ReferenceEntry& entry : page.entries) names.insert(entry.control);
    }
    CHECK_FALSE(Oddities().empty());
    for (const Oddity& oddity : Oddities()) {
        CAPTURE(oddity.name);
        CHECK(names.erase(oddity.name) == 1);
        CHECK(oddity.english.ends_with('.'));
        CHECK(oddity.german.ends_with('.'));
    }
}

TEST_CASE(
    "a check box that departs from its row, or reads what it does not write, is told as odd") {
    std::set<std::string> odd;
    for (const Oddity& oddity : Oddities()) odd.insert(oddity.name);
    std::string untold;
    for (const ReferencePage& page : ReferencePages()) {
        for (const ReferenceEntry& entry : page.entries) {
            const tweaks::Option* option = tweaks::FindOption(entry.control);
            if (!entry.control.starts_with("chk") || odd.contains(entry.control)) continue;
            const bool departs = !option || option->readStep || option->writeStep ||
                                 option->laterKey || !option->otherwiseClears.empty();
            const bool readsOnly =
                std::any_of(entry.facts.begin(), entry.facts.end(), [](const Fact& fact) {
                    return fact.Decides() && fact.on == "nothing" && fact.off == "nothing";
                });
            if (departs || readsOnly) untold += entry.control + '\n';
        }
    }
    CHECK(untold == "");
}
