// The help texts against tests/golden/helptexts.tsv.
#include "tweaks/helptexts.h"

#include <doctest/doctest.h>

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

int Sentences(std::string text) {
    // Not the end of a sentence.
    for (const char* inside : {"Thumbs.db", "Dr. Watson", " .exe", " .vbs", "bzw.", "z.B."}) {
        for (std::size_t at; (at = text.find(inside)) != std::string::npos;) text.erase(at, 5);
    }
    int ends = 0;
    for (const char letter : text) ends += letter == '.' || letter == '!';
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

TEST_CASE("each free text has two to four sentences of German and no address") {
    for (const Row& row : GoldenRows()) {
        if (row.text != "*") continue;
        CAPTURE(row.control);
        const std::string text = TextOf(row.control);
        CHECK(Sentences(text) >= 2);
        CHECK(Sentences(text) <= 4);
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
