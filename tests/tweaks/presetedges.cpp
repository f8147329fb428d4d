// Presets one by one: what each of them leaves alone.
#include <doctest/doctest.h>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

struct Edges : Presets {
    void Choose(int type) { Press("optOptimalDFUESets(" + std::to_string(type) + ")"); }

    // Packet and window size, time to live, the two numbers of connections.
    Lines Numbers() {
        return {Text("txtRWIN"), Text("txtTTL"), tweaks::TextOfControl(form, "cboMTU"),
                tweaks::TextOfControl(form, "cboHTTP10"), tweaks::TextOfControl(form, "cboHTTP11")};
    }
};

const Lines NumbersOfIsdn{"11680", "64", "1472", "8", "6"};
const Lines NumbersOfDsl{"32767", "64", "1492", "20", "8"};

}  // namespace

TEST_CASE_FIXTURE(Edges, "the recommendation of the page Tweaks leaves the short names checked") {
    for (const char* state : {"1", "0"}) {
        Put("chkDOSComp", state);
        Press("cmdOptimalWindows2");
        CHECK(Shown("chkDOSComp") == state);
    }
    Press("cmdNormalWindows2");
    CHECK(Shown("chkDOSComp") == "1");
}

TEST_CASE_FIXTURE(Edges, "the recommendation of the page DFÜ leaves the connection type Netzwerk") {
    Choose(3);
    CHECK(tweaks::TextOfControl(form, "cboMTU") == "3000");
    Press("cmdOptimalDfue");
    CHECK(Shown("optOptimalDFUESets(3)") == "selected");
    CHECK(Numbers() == NumbersOfIsdn);
}

TEST_CASE_FIXTURE(Edges, "the recommendation of the page DFÜ leaves the search page") {
    Put("txtIETitel", "\"http://suche.example/\"");
    Press("cmdOptimalDfue");
    CHECK(Text("txtIETitel") == "http://suche.example/");
    Press("cmdStandardDfue");
    CHECK(Text("txtIETitel") == "http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch");
}

TEST_CASE_FIXTURE(Edges, "Manuell behind DSL keeps all numbers") {
    Choose(4);
    CHECK(Numbers() == NumbersOfDsl);
    ChangeNotes changes(form);
    Choose(0);
    CHECK(Numbers() == NumbersOfDsl);
    CHECK(changes.lines ==
          Lines{"optOptimalDFUESets(0) = selected", "optOptimalDFUESets(4) = not selected"});
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(Edges, "a connection type chosen again loads nothing") {
    Choose(4);
    Put("cboMTU", "\"1500\"");
    Choose(4);
    CHECK(tweaks::TextOfControl(form, "cboMTU") == "1500");
    CHECK(Text("txtRWIN") == "5840");
}

TEST_CASE_FIXTURE(Edges, "a connection type chosen again behind Manuell loads its numbers") {
    Choose(4);
    Choose(0);
    Put("cboMTU", "\"1500\"");
    Choose(4);
    CHECK(Numbers() == NumbersOfDsl);
}

TEST_CASE_FIXTURE(Edges, "a window size of the user's own is overwritten by his connection type") {
    Put("cboMTU", "\"1492\"");
    Put("txtRWIN", "\"64240\"");
    ChangeNotes changes(form);
    Choose(4);
    // The packet size is the type's already, so nothing is derived from it.
    REQUIRE(changes.lines.size() > 1);
    CHECK(changes.lines[1] == "txtRWIN = \"32767\"");
    CHECK(Numbers() == NumbersOfDsl);
}

TEST_CASE_FIXTURE(Edges, "the standard sets the numbers itself where Analog is selected already") {
    Choose(1);
    for (const char* box : {"cboMTU", "cboHTTP10", "cboHTTP11", "txtRWIN", "txtTTL"}) {
        Put(box, "\"99\"");
    }
    Press("cmdStandardDfue");
    CHECK(Numbers() == Lines{"2144", "128", "576", "4", "2"});
}

TEST_CASE_FIXTURE(Edges, "the small standard fills the extensions and leaves their box") {
    Put("chkIEExtensions", "1");
    Put("txtExtensions", "\"bat\"");
    Press("cmdOptimalDfue");
    CHECK(Text("txtExtensions").empty());
    Press("cmdExtensionDefault");
    CHECK(Text("txtExtensions") == "exe;zip");
    CHECK(State("chkIEExtensions") == 0);
}

TEST_CASE_FIXTURE(Edges, "both presets of the page DFÜ empty the extensions") {
    for (const char* preset : {"cmdStandardDfue", "cmdOptimalDfue"}) {
        Press("cmdExtensionDefault");
        Press(preset);
        CHECK(Text("txtExtensions").empty());
    }
}

TEST_CASE_FIXTURE(Edges, "the presets of the page Tweaks take the slider of the start menu along") {
    Press("cmdOptimalWindows2");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 150);
    Press("cmdNormalWindows2");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 400);
}

TEST_CASE_FIXTURE(Edges, "only the recommendation brings an emptied box of the opacity back") {
    Put("txtLevelValue", "\"\"");
    CHECK(Shown("Level") == "255");
    Press("cmdNormal");
    // The slider stands at its end already, so it moves nothing along.
    CHECK(Text("txtLevelValue").empty());
    Press("cmdOptimal");
    CHECK(Text("txtLevelValue") == "255");
}

TEST_CASE_FIXTURE(Edges, "both presets of the page System clear the automatic logon") {
    for (const char* preset : {"cmdNormal", "cmdOptimal"}) {
        AllOn();
        Press(preset);
        CHECK(State("chkAutoLogin") == 0);
        for (const char* box : {"txtALUserName", "txtALPassword", "txtALDomain"}) {
            CHECK(Text(box).empty());
        }
    }
}

TEST_CASE_FIXTURE(Edges, "the presets of the page System state the version without asking for it") {
    for (const char* preset : {"cmdNormal", "cmdOptimal"}) {
        Put("txtOSVersion", "\"Windows 2000\"");
        Put("txtWindowsVersion", "\"5.0\"");
        machine.journal.Clear();
        Press(preset);
        CHECK(Text("txtOSVersion") == "Microsoft Windows XP");
        CHECK(Text("txtWindowsVersion") == "5.1");
        for (const std::string& line : machine.journal.Lines()) {
            CAPTURE(line);
            const bool known = line.starts_with("GlobalMemoryStatus") ||
                               line.starts_with("SaveSetting") || line.starts_with("FindWindowA");
            CHECK(known);
        }
    }
}
