#include "tweaks/tweakspage.h"

#include <doctest/doctest.h>

#include <string>

#include "tweaks/pagefixture.h"
#include "tweaks/pagelook.h"

using namespace tweak_tests;

namespace {

// In the order of reading.
const std::string InTheFrame =
    "chkSHMediaDLL chkUnloadDll chkWinAnimate chkNeroBurnSpeed Label9 txtTimeOut "
    "chkEncryptionContext chkOSVersionOnDesktop chkOldSearchAssistent chkBalloonTipps "
    "chkCDAutoPlay chkDescriptionPopups chkDisableThumbnails chkBSODAutostart chkImagePreview "
    "chkShortCutInk chkSystemRestore chkNoSpaceCheck chkTaskBarGlooming chkSystemSpeaker "
    "chkMP3BitRate chkHideWinComponents chkAutoEndTasks chkShowAdminToolsInStartMenue "
    "chkWindowsTour chkCascadeExplorer chkDOSComp chkIconCache";

struct TweaksPage : OnePage {
    TweaksPage() : OnePage(tweaks::AddTweaksPage) {}
};

}  // namespace

TEST_CASE_FIXTURE(TweaksPage, "the page Tweaks has all controls in the order of the form") {
    std::string names;
    for (const auto& control : form.Controls()) names += control->Name() + ' ';
    CHECK(names == "lblWindows2 Line3D(lblWindows2) Frame1 " + InTheFrame +
                       " cmdNormalWindows2 cmdOptimalWindows2 ");
}

TEST_CASE_FIXTURE(TweaksPage, "the page Tweaks carries its captions") {
    const std::pair<const char*, const char*> captions[] = {
        {"lblWindows2", "Windows Tuning #2"},
        {"Frame1", "Verschiedenes"},
        {"Label9", "Timeout für \"hängende\" Programme"},
        {"chkHideWinComponents",
         "Windows Komponenten zur Deinstallation unter \"Software\" anzeigen"},
        {"cmdNormalWindows2", "Standard"},
        {"cmdOptimalWindows2", "Empfohlen"},
    };
    for (const auto& [name, caption] : captions) {
        CAPTURE(name);
        REQUIRE(form.FindControl(name));
        CHECK(form.FindControl(name)->Caption() == caption);
    }
}

TEST_CASE_FIXTURE(TweaksPage, "each control of the page Tweaks stands in its own group") {
    CHECK(GroupsOf(form) ==
          "- lblWindows2 Line3D(lblWindows2) cmdNormalWindows2 cmdOptimalWindows2\n"
          "Frame1: " +
              InTheFrame + '\n');
}

TEST_CASE_FIXTURE(TweaksPage, "the page Tweaks fits its area and no two controls overlap") {
    CheckFits(form);
}

TEST_CASE_FIXTURE(TweaksPage, "every caption of the page Tweaks has room for its text") {
    CheckCaptionsHaveRoom(form);
}

TEST_CASE_FIXTURE(TweaksPage, "the page Tweaks' own buttons stand where those of System do") {
    CheckAtBottomRight(form, "cmdOptimalWindows2");
}

TEST_CASE_FIXTURE(TweaksPage, "the box for hanging programs takes no more than five characters") {
    CHECK(Box("txtTimeOut").Style().maxLength == 5);
    Box("txtTimeOut").SetText("123456");
    CHECK(Box("txtTimeOut").Text() == "12345");
}
