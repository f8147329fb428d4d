#include "dialogs/frmshowallloggedinusers.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "toolkit/listbox.h"

using Lines = std::vector<std::string>;

namespace {

struct Users {
    platform::simulated::Machine machine;
    dialogs::frmShowAllLoggedInUsers form{machine.services};
    toolkit::ListBox& lstUsers = form.Find<toolkit::ListBox>("lstUsers");
    toolkit::Label& lblWait = form.Find<toolkit::Label>("lblWait");
    using Batches = platform::simulated::Workstation::Batches;
    std::optional<Batches>& batches = machine.workstation.batches;

    void Press(const char* name) { form.Find<controls::chameleonButton>(name).Press(); }

    // One box, and everything as it is when no list is being read.
    void CheckOneBox(const std::string& text) {
        REQUIRE(machine.messages.Shown().size() == 1);
        CHECK(machine.messages.Shown()[0] == platform::simulated::ShownMessage{"Fehler", text, 16});
        CHECK_FALSE(lblWait.Visible());
        CHECK(machine.forms.ScreenPointer() == 0);
        CHECK(form.Loaded());
    }
};

}  // namespace

TEST_CASE_FIXTURE(Users, "each logon is a line of domain and name, in the order of the service") {
    batches = Batches{{{"Besitzer", "PC-1", "ARBEIT", "SERVER"},
                       {"Jürgen", "BÜRO", "", ""},
                       {"Besitzer", "PC-1", "", ""},
                       {"LOKALER DIENST", "NT-AUTORITÄT", "", ""},
                       {"PC-1$", "ARBEITSGRUPPE", "", ""}}};
    form.Show();
    CHECK(lstUsers.Items() == Lines{"PC-1\\Besitzer", "BÜRO\\Jürgen", "PC-1\\Besitzer",
                                    "NT-AUTORITÄT\\LOKALER DIENST", "ARBEITSGRUPPE\\PC-1$"});
    CHECK(machine.messages.Shown().empty());
    CHECK_FALSE(lblWait.Visible());
    CHECK(machine.forms.ScreenPointer() == 0);
}

TEST_CASE_FIXTURE(Users, "what a record does not tell is empty beside the backslash") {
    batches = Batches{{{"", "PC-1", "", ""}, {"Gast", "", "", ""}, {}}};
    form.Show();
    CHECK(lstUsers.Items() == Lines{"PC-1\\", "\\Gast", "\\"});
}

TEST_CASE_FIXTURE(Users, "the service is asked for this computer, and its buffer is given back") {
    form.Show();
    CHECK(machine.journal.Calls("GetComputerNameA").size() == 1);
    CHECK(machine.journal.Calls("NetWkstaUserEnum") ==
          Lines{"NetWkstaUserEnum \"\\\\QUILLMORE-PC\" 0 -> 0 1 #1"});
    CHECK(machine.journal.Calls("NetApiBufferFree") == Lines{"NetApiBufferFree #1"});
    CHECK(machine.workstation.BuffersInUse() == 0);
}

TEST_CASE_FIXTURE(Users, "a computer without a name is asked for all the same") {
    machine.faults.FailAll("GetComputerNameA", 5);
    form.Show();
    CHECK(machine.journal.Calls("NetWkstaUserEnum") ==
          Lines{"NetWkstaUserEnum \"\\\\\" 0 -> 0 1 #1"});
    CHECK(lstUsers.Items() == Lines{"QUILLMORE-PC\\Besitzer"});
}

TEST_CASE_FIXTURE(Users,
                  "no logons are an empty list without a box and with nothing to give back") {
    batches = Batches{};
    form.Show();
    CHECK(lstUsers.Items().empty());
    CHECK(machine.messages.Shown().empty());
    CHECK_FALSE(lblWait.Visible());
    CHECK(machine.journal.Calls("NetApiBufferFree").empty());
}

TEST_CASE_FIXTURE(Users, "of several batches the last one is listed and given back") {
    batches = Batches{
        {{"a", "D", "", ""}, {"b", "D", "", ""}}, {{"c", "D", "", ""}}, {{"d", "D", "", ""}}};
    form.Show();
    CHECK(lstUsers.Items() == Lines{"D\\d"});
    CHECK(machine.journal.Calls("NetWkstaUserEnum") ==
          Lines{"NetWkstaUserEnum \"\\\\QUILLMORE-PC\" 0 -> 234 2 #1",
                "NetWkstaUserEnum \"\\\\QUILLMORE-PC\" 1 -> 234 1 #2",
                "NetWkstaUserEnum \"\\\\QUILLMORE-PC\" 2 -> 0 1 #3"});
    CHECK(machine.journal.Calls("NetApiBufferFree") == Lines{"NetApiBufferFree #3"});
    CHECK(machine.workstation.BuffersInUse() == 2);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Users, "an empty last batch leaves an empty list") {
    batches = Batches{{{"a", "D", "", ""}}, {}};
    form.Show();
    CHECK(lstUsers.Items().empty());
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Users, "a later batch that fails empties the list and tells why") {
    batches = Batches{{{"a", "D", "", ""}}, {{"b", "D", "", ""}}};
    // The name, the first batch, the second.
    machine.faults.FailNth(3, 53);
    form.Show();
    CHECK(lstUsers.Items().empty());
    CheckOneBox("Fehler:\r\nDer Netzwerkpfad wurde nicht gefunden. \r\n");
    CHECK(machine.journal.Calls("NetWkstaUserEnum").size() == 2);
}

TEST_CASE_FIXTURE(Users, "access denied is told in the system's words, over an empty list") {
    machine.faults.FailAll("NetWkstaUserEnum", 5);
    machine.messages.WhileOpen("Fehler", [&] {
        CHECK(lblWait.Visible());
        CHECK(machine.forms.ScreenPointer() == 11);
    });
    form.Show();
    CHECK(lstUsers.Items().empty());
    CheckOneBox("Fehler:\r\nZugriff verweigert \r\n");
    CHECK(machine.journal.Calls("NetWkstaUserEnum").size() == 1);
    CHECK(machine.journal.Calls("NetApiBufferFree").empty());
}

TEST_CASE_FIXTURE(Users, "a code for which the system has no text is told by 256 blanks") {
    const std::string blanks(256, ' ');
    SUBCASE("as there is none") {
        machine.faults.FailAll("NetWkstaUserEnum", 2138);
    }
    SUBCASE("as it does not fit") {
        machine.faults.FailAll("NetWkstaUserEnum", 5);
        machine.workstation.systemMessages[5] = std::string(256, 'x');
    }
    SUBCASE("as the system does not tell") {
        machine.faults.FailAll("NetWkstaUserEnum", 5);
        machine.faults.FailAll("FormatMessageA", 8);
    }
    form.Show();
    CheckOneBox("Fehler:\r\n" + blanks);
}

TEST_CASE_FIXTURE(Users, "the longest text that fits is told whole") {
    machine.faults.FailAll("NetWkstaUserEnum", 5);
    const std::string text = std::string(253, 'x') + "ü\n";
    machine.workstation.systemMessages[5] = text;
    form.Show();
    CheckOneBox("Fehler:\r\n" + text);
}

TEST_CASE_FIXTURE(Users, "a box that cannot be shown leaves an empty list and a usable dialog") {
    form.Show();
    machine.faults.FailAll("NetWkstaUserEnum", 5);
    machine.faults.FailOn("Fehler", 5);
    Press("cmdRefresh");
    CHECK(machine.messages.Shown().empty());
    CHECK(lstUsers.Items().empty());
    CHECK_FALSE(lblWait.Visible());
    CHECK(machine.forms.ScreenPointer() == 0);
}

TEST_CASE_FIXTURE(Users, "Aktualisieren reads the list anew, which does not grow by it") {
    form.Show();
    Press("cmdRefresh");
    Press("cmdRefresh");
    CHECK(lstUsers.Items() == Lines{"QUILLMORE-PC\\Besitzer"});
    batches = Batches{{{"Gast", "PC-1", "", ""}, {"Besitzer", "PC-1", "", ""}}};
    Press("cmdRefresh");
    CHECK(lstUsers.Items() == Lines{"PC-1\\Gast", "PC-1\\Besitzer"});
    machine.faults.FailAll("NetWkstaUserEnum", 5);
    Press("cmdRefresh");
    CHECK(lstUsers.Items().empty());
    machine.faults.Clear();
    Press("cmdRefresh");
    CHECK(lstUsers.Items() == Lines{"PC-1\\Gast", "PC-1\\Besitzer"});
    CHECK(machine.messages.Shown().size() == 1);
    CHECK(machine.workstation.BuffersInUse() == 0);
}

TEST_CASE_FIXTURE(Users, "each opening reads the list anew") {
    form.Show();
    Press("cmdOK");
    batches = Batches{{{"Gast", "PC-1", "", ""}}};
    form.Show();
    CHECK(lstUsers.Items() == Lines{"PC-1\\Gast"});
}

TEST_CASE_FIXTURE(Users, "OK and Escape unload the dialog, other keys do not") {
    form.Show();
    SUBCASE("OK") {
        CHECK(form.defaultButton == form.FindControl("cmdOK"));
        Press("cmdOK");
    }
    SUBCASE("Escape") {
        CHECK_FALSE(form.KeyPressed(toolkit::key::F5));
        CHECK(form.Loaded());
        CHECK(form.KeyPressed(toolkit::key::Escape));
    }
    CHECK_FALSE(form.Loaded());
    CHECK(machine.forms.OpenForms().empty());
}

TEST_CASE_FIXTURE(Users, "the dialog says what it lists") {
    CHECK(form.Find<toolkit::Label>("Label1").Caption() == "Alle am System angemeldeten Benutzer:");
    CHECK(form.Find<controls::chameleonButton>("cmdRefresh").Caption() == "Aktualisieren");
    CHECK(form.Find<controls::chameleonButton>("cmdOK").Caption() == "OK");
    CHECK(form.isDialog);
}
