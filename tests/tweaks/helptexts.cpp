// The help texts against tests/golden/helptexts.tsv.
#include "tweaks/helptexts.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "tweaks/catalogue.h"
#include "tweaks/golden.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

struct Row {
    std::string control;
    std::string text;
};

std::vector<Row> GoldenRows() {
    std::vector<Row> rows;
    for (const auto& row : golden::RowsOf(FileText("tests/golden/helptexts.tsv"), 2)) {
        rows.push_back({row[0], row[1]});
    }
    return rows;
}

std::string HelpOf(const std::string& control) {
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) {
        if (row.control == control) return row.text;
    }
    return "";
}

// A point or exclamation mark ends a sentence where a capital or nothing follows, unless it belongs
// to an abbreviation.
int Sentences(const std::string& text) {
    int ends = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '.' && text[at] != '!') continue;
        const std::string before = text.substr(0, at);
        if (before.ends_with("Dr") || before.ends_with("z.B")) continue;
        const std::string rest = text.substr(at + 1);
        const bool capital =
            rest.size() > 1 && rest[0] == ' ' &&
            (std::isupper(static_cast<unsigned char>(rest[1])) || rest.starts_with(" Ä") ||
             rest.starts_with(" Ö") || rest.starts_with(" Ü"));
        ends += rest.empty() || capital;
    }
    return ends;
}

// A point inside a word, but for that of the one file that is named and of an abbreviation.
bool NamesAddress(std::string text) {
    for (const std::string_view known : {"Thumbs.db", "z.B."}) {
        const std::size_t at = text.find(known);
        if (at != std::string::npos) text.erase(at, known.size());
    }
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (text[at] == '.' && std::isalpha(static_cast<unsigned char>(text[at + 1]))) return true;
    }
    return text.find("www") != std::string::npos || text.find("http") != std::string::npos;
}

bool IsFree(const std::string& control) {
    for (const Row& row : GoldenRows()) {
        if (row.control == control) return row.text == "*";
    }
    return false;
}

// Whether the pass writes something for a box that nobody has touched. Where a value is missing, to
// delete it is nothing.
bool Writes(const std::string& control, bool on) {
    const tweaks::Option* option = tweaks::FindOption(control);
    REQUIRE(option);
    const tweaks::Steps& steps = on ? option->on : option->off;
    return std::any_of(steps.begin(), steps.end(), [](const tweaks::Step& step) {
        return step.action != tweaks::Action::DeleteValue;
    });
}

}  // namespace

TEST_CASE("the help texts belong to the golden list's controls, in its order") {
    const auto golden = GoldenRows();
    REQUIRE_FALSE(golden.empty());
    REQUIRE(tweaks::HelpTexts().size() == golden.size());
    for (std::size_t i = 0; i < golden.size(); ++i) {
        CHECK(tweaks::HelpTexts()[i].control == golden[i].control);
    }
}

TEST_CASE("a help text that the golden list tells is that one, byte for byte") {
    int told = 0;
    for (const Row& row : GoldenRows()) {
        if (row.text == "*" || row.text.starts_with("= ")) continue;
        CAPTURE(row.control);
        CHECK(HelpOf(row.control) == row.text);
        ++told;
    }
    CHECK(told == 19);
}

TEST_CASE("two pairs of controls share one text, and no other two") {
    std::map<const void*, std::string> owners;
    std::set<std::string> shared;
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) {
        const auto [owner, isFirst] = owners.try_emplace(row.text, row.control);
        if (!isFirst) shared.insert(std::string(row.control) + " = " + owner->second);
    }
    CHECK(shared == std::set<std::string>{"txtStartmenu = sldStartmenu", "cboHTTP11 = cboHTTP10"});
    std::set<std::string> texts;
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) texts.insert(row.text);
    CHECK(texts.size() + shared.size() == tweaks::HelpTexts().size());
}

TEST_CASE("no control has two help texts, and some have none") {
    std::set<std::string> names;
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) names.insert(row.control);
    REQUIRE_FALSE(names.empty());
    CHECK(names.size() == GoldenRows().size());
    CHECK(names.size() == tweaks::HelpTexts().size());
    for (const char* none : {"txtLevelValue", "drvSelect", "txtExtensions", "chkDatensicherheit(0)",
                             "cmdApply", "cmdSetAllOptimal", "cmdSearchTempFiles"}) {
        CHECK_FALSE(names.contains(none));
    }
}

TEST_CASE("a point inside a name, a number or an abbreviation ends no sentence") {
    CHECK(Sentences("Die Archive Thumbs.db (8.3) fehlen. Dr. Watson bzw. er geht! Über .exe.") ==
          3);
    CHECK(Sentences("ohne Ende") == 0);
}

TEST_CASE("each free text has two or three sentences of German and no address") {
    for (const Row& row : GoldenRows()) {
        if (row.text != "*") continue;
        CAPTURE(row.control);
        const std::string text = HelpOf(row.control);
        CHECK(Sentences(text) >= 2);
        CHECK(Sentences(text) <= 3);
        CHECK(text.size() >= 120);
        CHECK(text.size() <= 340);
        CHECK_FALSE(NamesAddress(text));
        for (const char* nothing : {"  ", "\t", "\n", "\""}) {
            CHECK(text.find(nothing) == std::string::npos);
        }
    }
}

TEST_CASE("the text on switching off UPnP speaks of nothing else, that on Nero names no address") {
    const std::string upnp = HelpOf("chkSecureWindows");
    CHECK(upnp.find("UPnP") != std::string::npos);
    for (const char* other : {"Messenger", "Nachrichtendienst", "Update", "Firewall", "Registry"}) {
        CHECK(upnp.find(other) == std::string::npos);
    }
    CHECK_FALSE(NamesAddress(HelpOf("chkNeroBurnSpeed")));
}

TEST_CASE("an address is known by a point inside a word, whatever comes behind it") {
    for (const char* text : {"Siehe nero.com.", "Mehr auf ahead.de!", "www", "http:"}) {
        CHECK(NamesAddress(text));
    }
    CHECK_FALSE(NamesAddress("Die Datei Thumbs.db (8.3), z.B. hier. Und Nero."));
}

TEST_CASE("each free text of a check box names the default") {
    for (const Row& row : GoldenRows()) {
        if (row.text != "*" || !row.control.starts_with("chk")) continue;
        CAPTURE(row.control);
        CHECK(HelpOf(row.control).find("tandard") != std::string::npos);
    }
}

TEST_CASE("a text says where an option's value has no effect on Windows XP") {
    for (const char* control : {"chkCascadeExplorer", "chkDisableTM", "chkWindowsUpdate",
                                "chkHideComputer", "chkShowALLFiles", "chkBootOptimizeFunction"}) {
        CAPTURE(std::string(control));
        CHECK(HelpOf(control).find("keine Wirkung") != std::string::npos);
    }
}

TEST_CASE("a text does not promise more than the option's row does") {
    CHECK(HelpOf("chkNeroBurnSpeed").find("auch, wenn Nero nicht") != std::string::npos);
    CHECK(HelpOf("chkCDAutoPlay").find("mit Unterschlüsseln bleibt") != std::string::npos);
    CHECK(HelpOf("chkWinLogOn").find("gelöscht") == std::string::npos);
    const std::string logon = HelpOf("chkAutoLogin");
    CHECK(logon.find("mit dem Wert 0 erscheint als eingeschaltet") != std::string::npos);
    CHECK(logon.find("Übernehmen schaltet ihn dann ein") != std::string::npos);
}

TEST_CASE(
    "a text warns where an Apply changes what Windows does though nobody touched the option") {
    int warned = 0;
    for (const auto& [control, shown] : ReadingOtherwiseThanWindows()) {
        if (!IsFree(control) || !Writes(control, shown)) continue;
        CAPTURE(control);
        const std::string text = HelpOf(control);
        CHECK(text.find(shown ? "als eingeschaltet" : "als ausgeschaltet") != std::string::npos);
        CHECK(text.find("Übernehmen") != std::string::npos);
        if (!shown) CHECK(text.find("abgeschaltet") != std::string::npos);
        ++warned;
    }
    CHECK(warned == 21);
}
