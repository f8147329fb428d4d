#include "tweaks/securitypage.h"

#include <doctest/doctest.h>

#include <string>

#include "tweaks/pagefixture.h"
#include "tweaks/pagelook.h"
#include "tweaks/sideeffects.h"

using namespace tweak_tests;

namespace {

// In the order of the form.
const std::string AllControls =
    "lblMisc Line3D(lblMisc) fraMisc chkRemoveLastDocsFolder chkShowALLFiles chkHideComputer "
    "chkWatsonIE chkWatsonXP chkWindowsDesktop chkErrorReporting chkClearRecentDocs "
    "chkWindowsUpdate chkSecureWindows chkLogOnAdmin chkDisableTM chk1RecycleBinDelete "
    "chkNTLogin chkPageFileDelete chkDelegateFolders fraWinLogOn chkWinLogOn lblWinLogOn "
    "txtWinLogOnT lblWinLogoOnC txtWinLogOnC fraDatensicherheit chkDatensicherheit(1) "
    "chkDatensicherheit(2) cmdDefaultMisc cmdOptimalMisc ";

struct SecurityPage : OnePage {
    SecurityPage() : OnePage(tweaks::AddSecurityPage) {}
};

// As the program has it, with what acts on click.
struct ActingPage : SecurityPage {
    ActingPage() { tweaks::ConnectSideEffects(form, machine.services); }
    void Set(const char* name, int state) { form.Find<toolkit::CheckBox>(name).SetValue(state); }
    bool HasBin() {
        return machine.registry.HasKey(
            Service::LocalMachine,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace"
            "\\{645FF040-5081-101B-9F08-00AA002F954E}");
    }
};

}  // namespace

TEST_CASE_FIXTURE(SecurityPage, "the page Sicherheit has all controls in the order of the form") {
    std::string names;
    for (const auto& control : form.Controls()) names += control->Name() + ' ';
    CHECK(names == AllControls);
}

TEST_CASE_FIXTURE(SecurityPage, "the page Sicherheit carries its captions") {
    const std::pair<const char*, const char*> captions[] = {
        {"lblMisc", "Sicherheit && Administratives"},
        {"fraMisc", "Verschiedenes"},
        {"fraWinLogOn", "Benutzerdefinierte Meldung beim Logon"},
        {"fraDatensicherheit", "Datensicherheit"},
        {"chkWinLogOn", "Meldung beim Systemstart anzeigen"},
        {"chkSecureWindows", "Universal Plug'n'Play abschalten"},
        {"chk1RecycleBinDelete", "Papierkorb von Desktop entfernen"},
        {"cmdDefaultMisc", "Standard"},
        {"cmdOptimalMisc", "Empfohlen"},
    };
    for (const auto& [name, caption] : captions) {
        CAPTURE(name);
        REQUIRE(form.FindControl(name));
        CHECK(form.FindControl(name)->Caption() == caption);
    }
}

TEST_CASE_FIXTURE(SecurityPage, "each control of the page Sicherheit stands in its own group") {
    CHECK(GroupsOf(form) ==
          "- lblMisc Line3D(lblMisc) cmdDefaultMisc cmdOptimalMisc\n"
          "fraMisc: chkRemoveLastDocsFolder chkShowALLFiles chkHideComputer chkWatsonIE "
          "chkWatsonXP chkWindowsDesktop chkErrorReporting chkClearRecentDocs "
          "chkWindowsUpdate chkSecureWindows chkLogOnAdmin chkDisableTM "
          "chk1RecycleBinDelete chkNTLogin chkPageFileDelete chkDelegateFolders\n"
          "fraWinLogOn: chkWinLogOn lblWinLogOn txtWinLogOnT lblWinLogoOnC txtWinLogOnC\n"
          "fraDatensicherheit: chkDatensicherheit(1) chkDatensicherheit(2)\n");
}

TEST_CASE_FIXTURE(SecurityPage, "the page Sicherheit fits its area and no two controls overlap") {
    CheckFits(form);
}

TEST_CASE_FIXTURE(SecurityPage, "every caption of the page Sicherheit has room for its text") {
    CheckCaptionsHaveRoom(form);
}

TEST_CASE_FIXTURE(SecurityPage, "the page Sicherheit's own buttons stand where System's do") {
    CheckAtBottomRight(form, "cmdOptimalMisc");
}

TEST_CASE_FIXTURE(SecurityPage, "the logon message takes several lines, its title one") {
    CHECK(Box("txtWinLogOnT").Style().multiLine);
    CHECK_FALSE(Box("txtWinLogOnC").Style().multiLine);
    for (const char* name : {"txtWinLogOnT", "txtWinLogOnC"}) {
        CHECK(Box(name).Style().maxLength == 0);
    }
}

TEST_CASE_FIXTURE(SecurityPage, "every box of the page Sicherheit starts as off and empty") {
    int boxes = 0;
    for (const auto& control : form.Controls()) {
        const auto* box = dynamic_cast<const toolkit::CheckBox*>(control.get());
        if (!box) continue;
        ++boxes;
        CAPTURE(box->Name());
        CHECK(box->Value() == 0);
    }
    int expected = 0;
    for (std::size_t at = 0; (at = AllControls.find(" chk", at)) != std::string::npos; ++at) {
        ++expected;
    }
    CHECK(boxes == expected);
    CHECK(Box("txtWinLogOnT").Text() == "");
    CHECK(Box("txtWinLogOnC").Text() == "");
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(ActingPage, "the UPnP box acts when it changes, without waiting for Apply") {
    Set("chkSecureWindows", 1);
    REQUIRE(machine.processes.launched.size() == 1);
    CHECK(machine.processes.launched[0].commandLine ==
          "regsvr32.exe %windir%\\system32\\upnp.dll /u /s");
    CHECK(machine.settingsStore.Stored("SecureWindows", "Regged") == "true");
}

TEST_CASE_FIXTURE(ActingPage, "the recycle bin's box acts when it changes") {
    Set("chk1RecycleBinDelete", 1);
    CHECK_FALSE(HasBin());
    Set("chk1RecycleBinDelete", 0);
    CHECK(HasBin());
    Set("chk1RecycleBinDelete", 1);
    CHECK_FALSE(HasBin());
}

TEST_CASE_FIXTURE(ActingPage, "no other box of the page Sicherheit acts before Apply") {
    for (const auto& control : form.Controls()) {
        const std::string& name = control->Name();
        if (name == "chkSecureWindows" || name == "chk1RecycleBinDelete") continue;
        if (auto* box = dynamic_cast<toolkit::CheckBox*>(control.get())) box->SetValue(1);
    }
    Box("txtWinLogOnT").SetText("Text");
    Box("txtWinLogOnC").SetText("Titel");
    CHECK(machine.journal.Count() == 0);
}
