// Each option stands in many lists. What it lacks is told all at once, a line for each control.
#include <doctest/doctest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "tweaks/catalogue.h"
#include "tweaks/golden.h"
#include "tweaks/helptexts.h"
#include "tweaks/order.h"
#include "tweaks/pagefixture.h"
#include "tweaks/presetlists.h"

using namespace tweak_tests;

namespace {

using NameSet = std::set<std::string>;

// Controls that a list goes without on purpose.
struct Excused {
    const char* reason;
    NameSet controls;
};

const Excused ActingAtOnce{
    "it acts when it changes, and no pass looks at it",
    {"chk1RecycleBinDelete", "chkHideWinComponents", "chkIcons", "chkSecureWindows"}};
const Excused BesideSlider{"its slider acts, and no pass looks at it", {"txtLevelValue"}};
const Excused AlongWithBox{"the row of its check box reads and writes it",
                           {"txtALDomain", "txtALPassword", "txtALUserName", "txtExtensions"}};
const Excused InAnothersLine{"the line of chkIEExtensions names it", {"txtExtensions"}};
const Excused BehindItsTexts{"the lines of the two texts of the message name it", {"chkWinLogOn"}};
const Excused Remembered{"start-up sets it from the settings store", {"chkSHMediaDLL"}};
const Excused LabelSaysAll{
    "its label says all",
    {"txtALDomain", "txtALPassword", "txtALUserName", "txtCompanyName", "txtExtensions",
     "txtLevelValue", "txtOSBuild", "txtOSVersion", "txtProductId", "txtUserName", "txtWinLogOnC",
     "txtWinLogOnT", "txtWindowsVersion"}};
const Excused ForThisHardware{
    "no preset knows the hardware",
    {"chkEnableAGP4x", "chkEnableNetworkProcessor", "chkFixAthlonPCIAGP"}};
const Excused UsersOwnMatter{"it is the user's own matter, which no preset touches",
                             {"chkHideComputer", "chkPWEntrys", "chkRemoveLastDocsFolder",
                              "chkSHMediaDLL", "chkShowALLFiles"}};
const Excused OfThisWindows{"it differs from one Windows to the next",
                            {"txtCompanyName", "txtOSBuild", "txtProductId", "txtUserName"}};
const Excused OfPathsPage{
    "it is a path: its label says all, and its page has its own way to the standard",
    {"lblVerwaltung(0)", "lblVerwaltung(1)", "lblVerwaltung(2)", "lblVerwaltung(3)",
     "lblVerwaltung(4)", "lblVerwaltung(5)", "lblVerwaltung(6)", "lblVerwaltung(7)",
     "lblVerwaltung(8)", "lblVerwaltung(9)", "lblVerwaltung(10)", "lblVerwaltung(11)",
     "lblVerwaltung(12)", "lblVerwaltung(13)"}};
const Excused OfCleanUp{
    "it is no option, but of the page Clean-up, and only has a help text",
    {"chkCleanRecycleBin", "chkCleanUserTempFolder", "chkDeleteThumbs", "chkMoveToRecycleBin",
     "chkNullByteFiles", "chkRecentDocFolder", "chkScanAll"}};

// One of the lists in which a control must stand.
struct NameList {
    const char* lack;
    NameSet names;
    std::vector<Excused> without;
    bool onlyCheckBoxes = false;

    const char* ReasonToLack(const std::string& control) const {
        if (onlyCheckBoxes && !control.starts_with("chk")) return "it is no check box";
        for (const Excused& excused : without) {
            if (excused.controls.contains(control)) return excused.reason;
        }
        return nullptr;
    }
};

NameSet NamesOfRows() {
    NameSet names;
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const tweaks::Option& option : page.options) names.emplace(option.control);
    }
    return names;
}

NameSet NamesOfOrders() {
    NameSet names;
    for (auto order : {tweaks::ReadOrder(), tweaks::WriteOrder()}) {
        names.insert(order.begin(), order.end());
    }
    return names;
}

NameSet NamesOfHelpTexts() {
    NameSet names;
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) names.insert(row.control);
    return names;
}

NameSet NamesOfPresets() {
    NameSet names;
    for (const tweaks::PresetButton& button : tweaks::PresetButtons()) {
        for (const tweaks::PresetRow& row : button.rows) names.insert(row.control);
    }
    return names;
}

std::string GoldenText(const char* name) {
    return FileText(std::string("tests/golden/") + name);
}

NameSet NamesInCatalogueFile() {
    NameSet names;
    for (const Fact& fact : GoldenFacts()) names.insert(fact.control);
    return names;
}

NameSet NamesInOrderFile() {
    NameSet names;
    for (const char* pass : {"read", "write"}) {
        const auto order = golden::PassOrder(GoldenText("passorder.txt"), pass);
        names.insert(order.begin(), order.end());
    }
    return names;
}

NameSet NamesInHelpFile() {
    NameSet names;
    for (const auto& row : golden::RowsOf(GoldenText("helptexts.tsv"), 2)) names.insert(row[0]);
    return names;
}

NameSet NamesInPresetFile() {
    NameSet names;
    for (const auto& line : golden::PresetLines(GoldenText("presets.tsv"))) {
        names.insert(line.control);
    }
    return names;
}

NameSet NamesInDefaultsFile() {
    NameSet names;
    for (const auto& [name, shown] : WindowsDefaults()) names.insert(name);
    return names;
}

NameSet NamesOnPages(const toolkit::Form& form) {
    NameSet names;
    for (const auto& control : form.Controls()) names.insert(control->Name());
    return names;
}

// As the reader of the manual sees it: blanks and line ends are one blank.
std::string InOneLine(const std::string& text) {
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
    return line;
}

std::string WithEach(std::string text, std::string_view old, std::string_view sign) {
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += sign.size()) {
        text.replace(at, old.size(), sign);
    }
    return text;
}

std::string TextOfManual() {
    std::string text;
    for (const auto& file :
         std::filesystem::directory_iterator(QUILLMORE_SOURCE_DIR "/docs/anleitung")) {
        // The appendix is made of the rows and has them all.
        if (file.path().extension() != ".html" || file.path().stem() == "anhang") continue;
        text += FileText("docs/anleitung/" + file.path().filename().string());
    }
    return InOneLine(WithEach(WithEach(std::move(text), "&gt;", ">"), "&amp;", "&"));
}

NameSet NamesInManual(const toolkit::Form& form, const NameSet& controls) {
    const std::string manual = TextOfManual();
    NameSet names;
    for (const std::string& name : controls) {
        // An ampersand that shows is written twice.
        const std::string caption = InOneLine(WithEach(CaptionOf(form, name), "&&", "&"));
        if (manual.find("„" + caption + "“") != std::string::npos) names.insert(name);
    }
    return names;
}

// What an option is set by; buttons, sliders and connection types are none.
bool HoldsOption(const std::string& name) {
    return name.starts_with("chk") || name.starts_with("txt") || name.starts_with("cbo") ||
           name.starts_with("lblVerwaltung(");
}

std::vector<NameList> ListsOf(const toolkit::Form& form) {
    const std::vector<Excused> noPass{ActingAtOnce, BesideSlider, AlongWithBox, OfCleanUp};
    const std::vector<Excused> noTip{LabelSaysAll, OfPathsPage};
    const std::vector<Excused> noPreset{ForThisHardware, UsersOwnMatter, OfThisWindows, OfPathsPage,
                                        OfCleanUp};
    return {
        {"not on a page", NamesOnPages(form), {OfCleanUp}},
        {"no row in catalogue*.cpp", NamesOfRows(), noPass},
        {"not in order.cpp", NamesOfOrders(), noPass},
        {"no text in helptexts.cpp", NamesOfHelpTexts(), noTip},
        {"no row in presetlists.cpp", NamesOfPresets(), noPreset},
        {"no line in catalogue.tsv",
         NamesInCatalogueFile(),
         {ActingAtOnce, BesideSlider, InAnothersLine, BehindItsTexts, OfCleanUp}},
        {"not in passorder.txt", NamesInOrderFile(), noPass},
        {"no line in helptexts.tsv", NamesInHelpFile(), noTip},
        {"no line in presets.tsv", NamesInPresetFile(), noPreset},
        {"no line in windowsdefaults.tsv",
         NamesInDefaultsFile(),
         {ActingAtOnce, BehindItsTexts, Remembered, OfCleanUp},
         true},
    };
}

}  // namespace

TEST_CASE_FIXTURE(Options,
                  "each control of an option stands in every list, or lacks it on purpose") {
    std::vector<NameList> lists = ListsOf(form);
    NameSet controls;
    for (const NameList& list : lists) {
        CHECK_FALSE(list.names.empty());
        std::copy_if(list.names.begin(), list.names.end(), std::inserter(controls, controls.end()),
                     HoldsOption);
    }
    lists.push_back({"no caption in docs/anleitung", NamesInManual(form, controls), {OfCleanUp}});

    std::string report;
    for (const std::string& control : controls) {
        std::string lacks;
        for (const NameList& list : lists) {
            const bool stands = list.names.contains(control);
            const char* reason = list.ReasonToLack(control);
            if (!stands && !reason) lacks += std::string(", ") + list.lack;
            if (stands && reason)
                lacks += std::string(", not \"") + list.lack + "\" though " + reason;
        }
        if (!lacks.empty()) report += control + ": " + lacks.substr(2) + '\n';
    }
    CHECK(report == "");
}

TEST_CASE_FIXTURE(Options, "whatever is excused from a list is a control") {
    NameSet known = NamesOfHelpTexts();
    known.merge(NamesOnPages(form));
    for (const NameList& list : ListsOf(form)) {
        for (const Excused& excused : list.without) {
            for (const std::string& control : excused.controls) {
                CAPTURE(control);
                CHECK(known.contains(control));
            }
        }
    }
}
