#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tweaks/golden.h"

// What each option does, told twice: for a reader of the project and, in German, for one of the
// manual. Both pages come from the program's own rows and from what an Apply does on a machine.
namespace tweak_tests {

// One line of tests/golden/oddities.tsv.
struct Oddity {
    std::string name;
    std::string english;
    std::string german;
};
std::vector<Oddity> Oddities();

// A control of a page that is an option: the rows know it, or it acts at once.
struct ReferenceEntry {
    std::string control;
    std::string caption;
    std::string group;
    std::vector<Fact> facts;
};

struct ReferencePage {
    std::string name;
    std::vector<ReferenceEntry> entries;
};

// The option pages, each in the order of the window.
std::vector<ReferencePage> ReferencePages();

// What an Apply does for one option that has just been read, where its values are absent.
struct AbsentEffect {
    bool on = false;
    // The entry's own facts whose value it writes, or whose key it deletes.
    std::vector<const Fact*> writes;
    std::vector<const Fact*> deletes;
    // The complaints that it shows.
    std::vector<std::string> complaints;

    bool SameAs(const AbsentEffect& other) const {
        return writes == other.writes && deletes == other.deletes;
    }
};
AbsentEffect EffectOf(const ReferenceEntry& entry, bool keysThere);

// A caption as the window shows it, and a text with each `old` replaced.
std::string AsShown(const std::string& caption);
std::string Replaced(std::string text, std::string_view old, std::string_view by);

// docs/catalogue.md, or in German docs/anleitung/anhang.html.
std::string WrittenReference(bool german);

}  // namespace tweak_tests
