#include "tweaks/systempage.h"

#include <doctest/doctest.h>

#include "tweaks/pagefixture.h"
#include "tweaks/pagelook.h"

using namespace tweak_tests;

namespace {

struct SystemPage : OnePage {
    SystemPage() : OnePage(tweaks::AddSystemPage) {}
};

}  // namespace

TEST_CASE_FIXTURE(SystemPage,
                  "the page System has all controls in the order in which one reads them") {
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

TEST_CASE_FIXTURE(SystemPage, "the headings, groups, labels and buttons carry their captions") {
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

TEST_CASE_FIXTURE(SystemPage, "the sliders have their ranges and steps") {
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

TEST_CASE_FIXTURE(SystemPage,
                  "the opacity starts at 255 in slider and box, the menu delay unsaid") {
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 255);
    CHECK(Box("txtLevelValue").Text() == "255");
    CHECK(Box("txtStartmenu").Text() == "");
}

TEST_CASE_FIXTURE(SystemPage, "each slider follows its own box and none the other's") {
    Box("txtStartmenu").SetText("60");
    Box("txtLevelValue").SetText("100");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 60);
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 100);
    form.Find<toolkit::Slider>("Level").SetValue(200);
    CHECK(Box("txtLevelValue").Text() == "200");
    CHECK(Box("txtStartmenu").Text() == "60");
    Box("txtLevelValue").SetText("");
    CHECK(form.Find<toolkit::Slider>("Level").Value() == 200);
}

TEST_CASE_FIXTURE(SystemPage, "the password is masked and the version boxes have limits") {
    CHECK(Box("txtALPassword").Style().password);
    CHECK_FALSE(Box("txtALUserName").Style().password);
    CHECK(Box("txtWindowsVersion").Style().maxLength == 3);
    CHECK(Box("txtOSBuild").Style().maxLength == 4);
    for (const char* name : {"txtOSVersion", "txtUserName", "txtCompanyName", "txtStartmenu"}) {
        CHECK(Box(name).Style().maxLength == 0);
    }
}

TEST_CASE_FIXTURE(SystemPage, "each control of the page System stands in its own group") {
    CHECK(GroupsOf(form) ==
          "- lblTuning Line3D(lblTuning) chkLastAccessTimestamp cmdFreeMemory cmdNormal "
          "cmdOptimal\n"
          "fraMemory: chkmemorymanagement chkLargeSystemCache chkBootOptimizeFunction "
          "chkSecondLevelDataCache chkBoostLoading chkCDFSTune chkFastServices "
          "chkUltraDMA66 chkMFTTuning\n"
          "fraSystemFixes: chkEnableAGP4x chkFixAthlonPCIAGP\n"
          "fraTaskBar: Level txtLevelValue chkIcons\n"
          "fraAutoLogin: chkAutoLogin lblALName txtALUserName lblALPassword txtALPassword "
          "lblALDomain txtALDomain\n"
          "Frame7: sldStartmenu txtStartmenu\n"
          "fraOSVersion: lblOSName txtOSVersion Label3 txtProductId Label4 txtUserName "
          "Label5 txtCompanyName lblOSVersion txtWindowsVersion lblBuild txtOSBuild "
          "lblSPLabel lblSP\n");
}

TEST_CASE_FIXTURE(SystemPage, "of the boxes of system facts the product's number alone is shut") {
    for (const char* name : {"txtOSVersion", "txtProductId", "txtUserName", "txtCompanyName",
                             "txtWindowsVersion", "txtOSBuild"}) {
        CAPTURE(name);
        CHECK(Box(name).Style().readOnly == (name == std::string("txtProductId")));
    }
}

TEST_CASE_FIXTURE(SystemPage, "the frame of the graphics box tells why that may be shut") {
    CHECK(form.FindControl("fraSystemFixes")->ToolTip() ==
          "AGP 4x ist nur wählbar, wenn ein NVIDIA-Treiber (nv4) installiert ist.");
}

TEST_CASE_FIXTURE(SystemPage, "the page System fits its area and no two controls overlap") {
    CheckFits(form);
}

TEST_CASE_FIXTURE(SystemPage, "every caption of the page System has room for its text") {
    CheckCaptionsHaveRoom(form);
}

TEST_CASE_FIXTURE(SystemPage, "the page System's own buttons stand at its bottom right") {
    CheckAtBottomRight(form, "cmdOptimal");
}
