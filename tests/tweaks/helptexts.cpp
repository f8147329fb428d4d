// The help texts against tests/golden/helptexts.tsv.
#include "tweaks/helptexts.h"

#include <doctest/doctest.h>

#include <cctype>
#include <map>
#include <set>
#include <sstream>

#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

struct Row {
    std::string control;
    std::string text;
};

std::vector<Row> GoldenRows() {
    std::vector<Row> rows;
    std::istringstream file(FileText("tests/golden/helptexts.tsv"));
    for (std::string line; std::getline(file, line);) {
        const auto tab = line.find('\t');
        REQUIRE(tab != std::string::npos);
        rows.push_back({line.substr(0, tab), line.substr(tab + 1)});
    }
    return rows;
}

std::string TextOf(const std::string& control) {
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

}  // namespace

TEST_CASE("the help texts belong to the golden list's controls, in its order") {
    const auto golden = GoldenRows();
    REQUIRE(golden.size() == 105);
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
        CHECK(TextOf(row.control) == row.text);
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
    CHECK(texts.size() == 103);
}

TEST_CASE("no control has two help texts, and some have none") {
    std::set<std::string> names;
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) names.insert(row.control);
    CHECK(names.size() == 105);
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
        const std::string text = TextOf(row.control);
        CHECK(Sentences(text) >= 2);
        CHECK(Sentences(text) <= 3);
        CHECK(text.size() >= 120);
        CHECK(text.size() <= 340);
        for (const char* nothing : {"  ", "http", "www", "\t", "\n", "\""}) {
            CHECK(text.find(nothing) == std::string::npos);
        }
    }
}

TEST_CASE("the text on switching off UPnP speaks of nothing else, that on Nero names no address") {
    const std::string upnp = TextOf("chkSecureWindows");
    CHECK(upnp.find("UPnP") != std::string::npos);
    for (const char* other : {"Messenger", "Nachrichtendienst", "Update", "Firewall", "Registry"}) {
        CHECK(upnp.find(other) == std::string::npos);
    }
    CHECK(TextOf("chkNeroBurnSpeed").find(".de") == std::string::npos);
}

TEST_CASE("a text warns where an option that nobody touched is switched off by an Apply") {
    for (const char* control : {"chkDisableThumbnails", "chkBalloonTipps", "chkTaskBarGlooming",
                                "chkWatsonIE", "chkWatsonXP", "chkImagePreview"}) {
        CAPTURE(control);
        const std::string text = TextOf(control);
        CHECK(text.find("als ausgeschaltet") != std::string::npos);
        CHECK(text.find("beim Übernehmen") != std::string::npos);
    }
    for (const char* control :
         {"chkDelegateFolders", "chkNetworkTasks", "chkSecondLevelDataCache"}) {
        CAPTURE(control);
        const std::string text = TextOf(control);
        CHECK(text.find("als eingeschaltet") != std::string::npos);
        CHECK(text.find("Übernehmen") != std::string::npos);
    }
}
