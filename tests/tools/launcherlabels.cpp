#include "tools/launcherlabels.h"

#include <doctest/doctest.h>

#include <optional>

#include "platform/messages.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tools/launcherfixture.h"

using namespace tools_test;
using toolkit::Label;

namespace {

struct Expected {
    const char* name;
    const char* caption;
    // The calls of a click, as the journal has them.
    std::vector<std::string> calls;
};

std::string Started(const std::string& commandLine) {
    return "Start \"C:\\WINDOWS\\" + commandLine + "\" 1";
}

std::string Opened(const std::string& file, const std::string& folder = "System32") {
    return "ShellExecuteA \"Open\" \"" + file + "\" \"\" \"C:\\WINDOWS\\" + folder + "\" 1";
}

const std::vector<Expected> Labels = {
    {"lblCMD", "Eingabeaufforderung", {Started("System32\\cmd.exe")}},
    {"lblComputerverwaltung", "Computerverwaltung", {Opened("compmgmt.msc")}},
    {"lblDatenträgerbereinigung", "Datenträgerbereinigung", {Started("System32\\cleanmgr.exe")}},
    {"lblDatenträgerverwaltung", "Datenträgerverwaltung", {Opened("diskmgmt.msc")}},
    {"lblDefragmentierung", "Defragmentierung", {Opened("dfrg.msc")}},
    {"lblDiensteverwaltung", "Diensteverwaltung", {Opened("services.msc")}},
    {"lblDirectXDiag", "DirectX Diagnose", {Started("System32\\dxdiag.exe")}},
    {"lblEreignisanzeige", "Ereignisanzeige", {Opened("eventvwr.msc")}},
    {"lblFreigegebeneOrdner", "Freigegebene Ordner", {Opened("fsmgmt.msc")}},
    {"lblGeräteManager", "Geräte-Manager", {Opened("devmgmt.msc")}},
    {"lblGruppenrichtlinienEditor", "Gruppenrichtlinien-Editor", {Opened("gpedit.msc")}},
    {"lblIndexdienst", "Indexdienst", {Opened("ciadv.msc")}},
    {"lblKomponentendienste", "Komponentendienste ", {Opened("comexp.msc", "System32\\com")}},
    {"lblLeistungsmonitor", "Leistungsmonitor", {Opened("perfmon.msc")}},
    {"lblLokaleBenutzerundGruppen", "Lokale Benutzer und Gruppen", {Opened("lusrmgr.msc")}},
    {"lblMSConfig", "MS Config", {Started("PCHEALTH\\HELPCTR\\Binaries\\msconfig")}},
    {"lblRegEdit32", "Registrierungs Editor", {Started("System32\\regedt32.exe")}},
    {"lblRestorePoint",
     "Systemwiederherstellungspunkt",
     {"CreateProcessA \"C:\\WINDOWS\\system32\\restore\\rstrui.exe\" flags 0x20 cb 66 "
      "dwFlags 1 wShowWindow 1 -> #1",
      "WaitForSingleObject #1", "CloseHandle #1 -> 1"}},
    {"lblSFC", "Systemdatei-Überprüfung", {Started("System32\\sfc.exe /scannow")}},
    {"lblSicherheitseinstellungen", "Sicherheitseinstellungen", {Opened("secpol.msc")}},
    {"lblSystem", "System", {"shell32#178 2"}},
    {"lblTaskManager", "TaskManager", {Started("System32\\taskmgr.exe")}},
    {"lblWechselmedienverwaltung", "Wechselmedienverwaltung", {Opened("ntmsmgr.msc")}},
    {"lblZertifikatManager", "Zertifikat-Manager", {Opened("certmgr.msc")}},
};

struct LauncherLabelsFixture : LauncherFixture {
    toolkit::Form form{machine.forms, "frmMain", "", {}};
    toolkit::Box box = tools::AddLauncherLabels(form, launchers);

    Label& Find(const char* name) { return form.Find<Label>(name); }

    std::vector<std::string> RedOnes() {
        std::vector<std::string> red;
        for (const Expected& label : Labels) {
            if (Find(label.name).TextColour() == 255u) red.emplace_back(label.name);
        }
        return red;
    }

    bool AllBlack() {
        for (const Expected& label : Labels) {
            if (Find(label.name).TextColour() != 0u) return false;
        }
        return true;
    }
};

}  // namespace

TEST_CASE("each of the 24 labels has its caption and starts its tool, and nothing else") {
    LauncherLabelsFixture f;
    REQUIRE(Labels.size() == 24);
    for (const Expected& label : Labels) {
        CAPTURE(label.name);
        CHECK(f.Find(label.name).Caption() == label.caption);
        f.machine.messages.Answer("Überprüfung der Windows XP Systemdateien",
                                  platform::message::Yes);
        f.machine.journal.Clear();
        f.Find(label.name).Click();
        std::vector<std::string> calls;
        for (const std::string& line : f.machine.journal.Lines()) {
            const bool isQuestion = line.starts_with("MessageBox") || line.starts_with("Get");
            if (!isQuestion) calls.push_back(line);
        }
        CHECK(calls == label.calls);
    }
    CHECK(f.reports.empty());
}

TEST_CASE("the keyboard reaches each of the labels") {
    LauncherLabelsFixture f;
    for (const Expected& label : Labels) {
        CAPTURE(label.name);
        CHECK(f.Find(label.name).IsTabStop());
    }
}

TEST_CASE("the frame holds the 24 labels and nothing else") {
    LauncherLabelsFixture f;
    CHECK(f.form.Controls().size() == Labels.size() + 1);
    CHECK(f.form.Find<toolkit::Frame>("fraPrograms").Caption() == "Programme");
}

TEST_CASE("each label turns red under the mouse and leaves all others black") {
    LauncherLabelsFixture f;
    for (const Expected& label : Labels) {
        CAPTURE(label.name);
        f.Find(label.name).MouseMoved();
        CHECK(f.RedOnes() == std::vector<std::string>{label.name});
    }
}

TEST_CASE("the first move makes the other labels black, not of the system's colour") {
    LauncherLabelsFixture f;
    CHECK(f.Find("lblSystem").TextColour() == std::nullopt);
    f.Find("lblCMD").MouseMoved();
    CHECK(f.Find("lblSystem").TextColour() == 0u);
}

TEST_CASE("a move over the frame takes the red away") {
    LauncherLabelsFixture f;
    f.Find("lblTaskManager").MouseMoved();
    f.form.Find<toolkit::Frame>("fraPrograms").MouseMoved();
    CHECK(f.AllBlack());
}

TEST_CASE("resetting the colours makes all labels black") {
    LauncherLabelsFixture f;
    f.Find("lblZertifikatManager").MouseMoved();
    tools::ResetLabelColors(f.form);
    CHECK(f.AllBlack());
}

TEST_CASE("a click does not change the colours") {
    LauncherLabelsFixture f;
    f.Find("lblCMD").MouseMoved();
    f.Find("lblIndexdienst").Click();
    CHECK(f.RedOnes() == std::vector<std::string>{"lblCMD"});
}
