#include "tweaks/systempage.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;
using toolkit::ControlKind;

namespace {

// Tahoma 8 at 96 dots per inch, a little wider than it is.
struct WideText : toolkit::TextMeasure {
    toolkit::Size SizeOf(std::string_view text, bool bold) const override {
        const int perTen = bold ? 75 : 58;
        return {static_cast<int>(text.size()) * perTen / 10, bold ? 16 : 13};
    }
    int Scale(int pixels) const override { return pixels; }
};

constexpr toolkit::Rect PageArea{0, 0, 630, 390};

bool Overlap(toolkit::Rect a, toolkit::Rect b) {
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

bool IsFrame(const toolkit::Placement& placement) {
    return placement.control->Kind() == ControlKind::Frame;
}

}  // namespace

TEST_CASE_FIXTURE(Options, "the page has all controls in the order in which one reads them") {
    std::string names;
    for (const auto& control : form.Controls()) names += control->Name() + ' ';
    CHECK(names ==
          "lblTuning Line3D(lblTuning) "
          "fraMemory chkmemorymanagement chkLargeSystemCache chkBootOptimizeFunction "
          "chkSecondLevelDataCache chkBoostLoading chkCDFSTune chkFastServices chkUltraDMA66 "
          "chkMFTTuning chkLastAccessTimestamp fraSystemFixes chkEnableAGP4x chkFixAthlonPCIAGP "
          "fraTaskBar Level txtLevelValue chkIcons "
          "fraAutoLogin chkAutoLogin lblALName txtALUserName lblALPassword txtALPassword "
          "lblALDomain txtALDomain Frame7 sldStartmenu txtStartmenu "
          "fraOSVersion lblOSName txtOSVersion Label3 txtProductId Label4 txtUserName Label5 "
          "txtCompanyName lblOSVersion txtWindowsVersion lblBuild txtOSBuild lblSPLabel lblSP "
          "cmdFreeMemory cmdNormal cmdOptimal ");
}

TEST_CASE_FIXTURE(Options, "the headings, groups, labels and buttons carry their captions") {
    const std::pair<const char*, const char*> captions[] = {
        {"lblTuning", "Windows Tuning #1"},
        {"fraMemory", "System Boosts"},
        {"fraSystemFixes", "System Fixes"},
        {"fraTaskBar", "Windows Taskbar Transparenz"},
        {"fraAutoLogin", " "},
        {"Frame7", "Anzeigetempo Startmenü  (Default = 400)"},
        {"fraOSVersion", "OS Information"},
        {"chkIcons", "Transparente Icons"},
        {"lblSPLabel", "SP"},
        {"lblSP", "n/A"},
        {"cmdFreeMemory", "Speicher aufräumen"},
        {"cmdNormal", "Standard"},
        {"cmdOptimal", "Empfohlen"},
    };
    for (const auto& [name, caption] : captions) {
        CAPTURE(name);
        REQUIRE(form.FindControl(name));
        CHECK(form.FindControl(name)->Caption() == caption);
    }
    CHECK(form.Find<toolkit::Label>("lblTuning").Style() == toolkit::LabelStyle::Heading);
}

TEST_CASE_FIXTURE(Options, "the buttons whose tools are not there are disabled") {
    for (const char* name : {"cmdFreeMemory", "cmdNormal", "cmdOptimal"}) {
        CHECK_FALSE(form.Find<controls::chameleonButton>(name).Enabled());
    }
}

TEST_CASE_FIXTURE(Options, "the sliders have their ranges and steps") {
    const auto& menu = form.Find<toolkit::Slider>("sldStartmenu").Range();
    CHECK(menu.minimum == 1);
    CHECK(menu.maximum == 400);
    CHECK(menu.smallStep == 1);
    CHECK(menu.largeStep == 5);
    CHECK(menu.tick == 5);
    const auto& level = form.Find<toolkit::Slider>("Level").Range();
    CHECK(level.minimum == 55);
    CHECK(level.maximum == 255);
    CHECK(level.smallStep == 3);
    CHECK(level.largeStep == 51);
    CHECK(level.tick == 25);
}

TEST_CASE_FIXTURE(Options, "the opacity starts at 255 in slider and box, the menu delay unsaid") {
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 255);
    CHECK(Text("txtLevelValue") == "255");
    CHECK(Text("txtStartmenu") == "");
}

TEST_CASE_FIXTURE(Options, "each slider follows its own box and none the other's") {
    form.Box("txtStartmenu").SetText("60");
    form.Box("txtLevelValue").SetText("100");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 60);
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 100);
    form.Find<toolkit::Slider>("Level").SetValue(200);
    CHECK(Text("txtLevelValue") == "200");
    CHECK(Text("txtStartmenu") == "60");
    form.Box("txtLevelValue").SetText("");
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 200);
}

TEST_CASE_FIXTURE(Options, "the password is masked and the version boxes have limits") {
    CHECK(form.Box("txtALPassword").Style().password);
    CHECK_FALSE(form.Box("txtALUserName").Style().password);
    CHECK(form.Box("txtWindowsVersion").Style().maxLength == 3);
    CHECK(form.Box("txtOSBuild").Style().maxLength == 4);
    for (const char* name : {"txtOSVersion", "txtUserName", "txtCompanyName", "txtStartmenu"}) {
        CHECK(form.Box(name).Style().maxLength == 0);
    }
}

TEST_CASE_FIXTURE(Options, "the page fits its area and no two controls overlap") {
    const auto placed = toolkit::Arrange(form.Layout(), PageArea, WideText());
    CHECK(placed.size() == form.Controls().size());
    for (const toolkit::Placement& one : placed) {
        CAPTURE(one.control->Name());
        CHECK(one.area.left >= 0);
        CHECK(one.area.top >= 0);
        CHECK(one.area.Right() <= PageArea.width);
        CHECK(one.area.Bottom() <= PageArea.height);
        CHECK(one.area.width > 0);
        CHECK(one.area.height > 0);
        for (const toolkit::Placement& other : placed) {
            // A frame lies around its own controls.
            if (one.control == other.control || IsFrame(one) || IsFrame(other)) continue;
            CAPTURE(other.control->Name());
            CHECK_FALSE(Overlap(one.area, other.area));
        }
    }
}

TEST_CASE_FIXTURE(Options, "every caption of the page has room for its text") {
    const WideText measure;
    for (const toolkit::Placement& one : toolkit::Arrange(form.Layout(), PageArea, measure)) {
        if (one.control->Caption().empty()) continue;
        CAPTURE(one.control->Name());
        const bool isBox = one.control->Kind() == ControlKind::CheckBox;
        CHECK(one.area.width >=
              measure.SizeOf(one.control->Caption(), false).width + (isBox ? 16 : 0));
    }
}

TEST_CASE_FIXTURE(Options, "the page's own buttons stand at its bottom right") {
    for (const toolkit::Placement& one : toolkit::Arrange(form.Layout(), PageArea, WideText())) {
        if (one.control->Name() == "cmdOptimal") {
            CHECK(one.area.Right() == PageArea.width);
            CHECK(one.area.Bottom() == PageArea.height);
        }
    }
}
