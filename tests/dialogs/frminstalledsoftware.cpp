#include "dialogs/frminstalledsoftware.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "dialogs/software.h"
#include "runtime/failure.h"
#include "toolkit/keys.h"

using namespace dialogs_test;

TEST_CASE_FIXTURE(Software, "complete entries are listed by name with key and uninstaller") {
    Seed("{123}", "Öffner", "C:\\o.exe");
    Seed("KB1", "Anwendung", "MsiExec.exe /X{1}");
    form.Show();
    CHECK(form.Caption() == "Installierte Software");
    CHECK(list.Columns() == Lines{"Name", "Interner Name", "Uninstaller"});
    CHECK(list.Style().multiSelect);
    CHECK(Names() == Lines{"Anwendung", "Öffner"});
    CHECK(list.Text(1, 1) == "{123}");
    CHECK(list.Text(1, 2) == "C:\\o.exe");
    CHECK(Found() == "Gefunden: 2 Anwendungen");
    CHECK(machine.forms.ScreenPointer() == 0);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Software, "entries without one of the two values are not listed") {
    Put("OhneUninstaller", "DisplayName", TextValue("x"));
    Put("OhneName", "UninstallString", TextValue("x"));
    Seed("LeererName", "", "x");
    Seed("LeererUninstaller", "x", "");
    machine.registry.MakeKey(Registry::LocalMachine, UninstallKey + "Leer"s);
    Seed("Ganz", "Ganz", "x");
    form.Show();
    CHECK(Names() == Lines{"Ganz"});
    CHECK(Found() == "Gefunden: 1 Anwendungen");
}

TEST_CASE_FIXTURE(Software, "a text ends at its first NUL, and one that begins with it is none") {
    const auto put = [&](const std::string& key, const std::string& name,
                         const std::string& command) {
        Put(key, "DisplayName", TextValue(name));
        Put(key, "UninstallString", TextValue(command));
    };
    put("Zwei NUL", "\0"s, "x");
    put("Foo", "Foo\0bar"s, "f.exe\0 /u"s);
    put("Ohne Befehl", "Ohne Befehl", "\0x"s);
    put("Mehrere", "", "m.exe");
    Put("Mehrere", "DisplayName", {Registry::MultiString, TextValue("Eins\0Zwei\0"s).bytes});
    form.Show();
    CHECK(Names() == Lines{"Eins", "Foo"});
    CHECK(list.Text(1, 2) == "f.exe");
    Select({1});
    machine.messages.Answer("Foo löschen", 6);
    Press("cmdDeleteItem");
    CHECK_FALSE(HasKey("Foo"));
    CHECK(HasKey("Zwei NUL"));
}

TEST_CASE_FIXTURE(Software, "the uninstaller is read before the name, entry by entry") {
    Seed("a", "a", "x");
    form.Show();
    const Lines calls = machine.journal.Calls("RegQueryValueExA");
    REQUIRE(calls.size() == 4);
    for (const int first : {0, 1}) {
        CHECK(calls[static_cast<std::size_t>(first)].find("UninstallString") != std::string::npos);
        CHECK(calls[static_cast<std::size_t>(first + 2)].find("DisplayName") != std::string::npos);
    }
}

TEST_CASE_FIXTURE(Software, "no uninstall key is an empty list") {
    form.Show();
    CHECK(list.Count() == 0);
    CHECK(Found() == "Gefunden: 0 Anwendungen");
}

TEST_CASE_FIXTURE(Software, "an uninstall key that may not be read is an empty list") {
    ShowThree();
    machine.registry.Deny(Registry::LocalMachine,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
    Press("cmdRefresh");
    CHECK(list.Count() == 0);
    CHECK(Found() == "Gefunden: 0 Anwendungen");
}

TEST_CASE_FIXTURE(Software, "values of every type and size are listed or passed over") {
    const auto bytes = [](std::uint32_t type, const std::string& data) {
        return StoredValue{type, {data.begin(), data.end()}};
    };
    for (std::uint32_t type = 0; type < 13; ++type) {
        for (const std::size_t size : {0u, 1u, 2u, 3u, 4u, 5u, 300u}) {
            const std::string key = std::to_string(type) + '-' + std::to_string(size);
            Put(key, "DisplayName", bytes(type, std::string(size, 'n')));
            Put(key, "UninstallString", TextValue("u.exe"));
            Put('u' + key, "DisplayName", TextValue("name"));
            Put('u' + key, "UninstallString", bytes(type, std::string(size, 'n')));
        }
    }
    form.Show();
    // Texts from two bytes on, the last one being taken for the end; numbers up to four bytes.
    const int listed = 3 * 5 + 2 * 5;
    CHECK(list.Count() == 2 * listed);
}

TEST_CASE_FIXTURE(Software, "an uninstall string of 32 KiB is listed and started whole") {
    const std::string command(32 * 1024, 'x');
    Seed("Lang", "Lang", command);
    form.Show();
    CHECK(list.Text(0, 2) == command);
    Select({0});
    Press("cmdUninstall");
    CHECK(Started() == Lines{command});
}

TEST_CASE_FIXTURE(Software, "references to the environment are expanded where the type says so") {
    const std::string text = "%SystemRoot%\\u.exe";
    Put("a", "DisplayName", TextValue("a"));
    Put("a", "UninstallString", {Registry::ExpandString, TextValue(text).bytes});
    Seed("b", "b", text);
    form.Show();
    CHECK(list.Text(0, 2) == "C:\\WINDOWS\\u.exe");
    CHECK(list.Text(1, 2) == text);
}

TEST_CASE_FIXTURE(Software, "the list is locked while it is filled, and its columns are fitted") {
    Seed("a", "a", "x");
    form.Show();
    machine.journal.Clear();
    Press("cmdRefresh");
    Lines lines;
    for (const std::string& line : machine.journal.Lines()) {
        if (!line.starts_with("Reg")) lines.push_back(line);
    }
    CHECK(lines == Lines{"Pointer 11", "LockWindowUpdate lvwSoftware",
                         "SendMessageA lvwSoftware 4126 0 -2", "SendMessageA lvwSoftware 4126 1 -2",
                         "SendMessageA lvwSoftware 4126 2 -2", "LockWindowUpdate 0", "Pointer 0"});
}

TEST_CASE_FIXTURE(Software, "the list is painted again when it is sorted, not before") {
    // Tells whether the list sorts at the time of each call.
    struct Painter final : toolkit::ControlView {
        const ListView& list;
        Lines calls;

        explicit Painter(const ListView& watched) : list(watched) {}
        void Note(const std::string& call) {
            calls.push_back(call + (list.Sorted() ? " sorted" : " unsorted"));
        }
        void LockWindow(bool locked) override { Note(locked ? "lock" : "unlock"); }
        void FitColumn(int, bool) override { Note("fit"); }
        void Refresh(toolkit::Aspect) override {}
        void Repaint() override {}
        bool PointerIsOver() const override { return false; }
        void TakeFocus() override {}
        void CaptureMouse() override {}
        void MoveFocus(bool) override {}
    };
    ShowThree();
    Painter painter(list);
    list.SetView(&painter);
    Press("cmdRefresh");
    list.SetView(nullptr);
    CHECK(painter.calls ==
          Lines{"lock sorted", "fit unsorted", "fit unsorted", "fit unsorted", "unlock sorted"});
}

TEST_CASE_FIXTURE(Software, "the hourglass is shown as long as the list is filled") {
    ShowThree();
    int pointer = -1;
    restless.After(2, [&] { pointer = machine.forms.ScreenPointer(); });
    Press("cmdRefresh");
    CHECK(pointer == toolkit::Hourglass);
    CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Software, "a failure on the way leaves neither a locked list nor the hourglass") {
    ShowThree();
    // Among the names, and among the values.
    for (const int call : {2, 8}) {
        machine.journal.Clear();
        restless.After(call, [] { throw runtime::Failure(runtime::OutOfMemory); });
        CHECK_THROWS_AS(Press("cmdRefresh"), runtime::Failure);
        CHECK(machine.forms.ScreenPointer() == toolkit::DefaultPointer);
        CHECK(machine.journal.Calls("LockWindowUpdate") ==
              Lines{"LockWindowUpdate lvwSoftware", "LockWindowUpdate 0"});
    }
}

TEST_CASE_FIXTURE(Software, "the search for invalid entries empties the list, F5 fills it again") {
    ShowThree();
    Press("cmdFindInvalidLinks");
    CHECK(list.Count() == 0);
    CHECK(Found() == "Gefunden: 0 Anwendungen");
    CHECK(form.KeyPressed(toolkit::key::F5));
    CHECK(Names() == Lines{"Alpha", "Beta", "Gamma"});
    CHECK(Found() == "Gefunden: 3 Anwendungen");
    Press("cmdFindInvalidLinks");
    Press("cmdRefresh");
    CHECK(list.Count() == 3);
}

TEST_CASE_FIXTURE(Software, "the first click on a header sorts descending, a refresh keeps that") {
    ShowThree();
    list.ClickColumn(0);
    CHECK(Names() == Lines{"Gamma", "Beta", "Alpha"});
    Press("cmdRefresh");
    CHECK(Names() == Lines{"Gamma", "Beta", "Alpha"});
    list.ClickColumn(2);
    CHECK(list.SortKey() == 2);
    CHECK(Names() == Lines{"Alpha", "Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "the selected uninstaller is started at once and watched") {
    ShowThree();
    Select({1});
    Press("cmdUninstall");
    CHECK(Started() == Lines{"C:\\Beta.exe /u"});
    CHECK(machine.messages.Shown().empty());
    CHECK(IsWatching());
    machine.registry.EraseKey(Registry::LocalMachine, UninstallKey + "Beta"s);
    Tick();
    Tick();
    CHECK(list.Count() == 3);
    runs[0].questions = 0;
    Tick();
    CHECK_FALSE(IsWatching());
    CHECK(Names() == Lines{"Alpha", "Gamma"});
    CHECK(Selected() == Lines{"Gamma"});
    CHECK(LastSent() == "SendMessageA lvwSoftware 4115 1");
    CHECK(machine.processes.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Software, "the process is asked for with all rights, and each look is closed") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    machine.journal.Clear();
    Tick();
    CHECK(machine.journal.Calls("OpenProcess") == Lines{"OpenProcess 0x1F0FFF 4 -> #65536"});
    CHECK(machine.processes.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Software, "a process that may not be opened counts as ended") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    machine.faults.FailAll("OpenProcess", 5);
    Tick();
    CHECK_FALSE(IsWatching());
}

TEST_CASE_FIXTURE(Software, "the last application gone leaves no selection behind it") {
    ShowThree();
    Select({2});
    Press("cmdUninstall");
    machine.registry.EraseKey(Registry::LocalMachine, UninstallKey + "Gamma"s);
    runs[0].questions = 0;
    Tick();
    CHECK(Names() == Lines{"Alpha", "Beta"});
    CHECK(Selected().empty());
}

TEST_CASE_FIXTURE(Software, "without a selection the first row is selected when it has ended") {
    ShowThree();
    Select({2});
    Press("cmdUninstall");
    Select({});
    runs[0].questions = 0;
    Tick();
    CHECK(Selected() == Lines{"Alpha"});
}

TEST_CASE_FIXTURE(Software, "several uninstallers start in the rows' order, the last is watched") {
    ShowThree();
    Select({2, 0});
    Press("cmdUninstall");
    CHECK(Started() == Lines{"C:\\Alpha.exe /u", "C:\\Gamma.exe /u"});
    runs[0].questions = 0;
    Tick();
    CHECK(IsWatching());
    runs[1].questions = 0;
    Tick();
    CHECK_FALSE(IsWatching());
}

TEST_CASE_FIXTURE(Software, "nothing selected starts nothing and watches nothing") {
    ShowThree();
    Press("cmdUninstall");
    CHECK(Started().empty());
    CHECK_FALSE(IsWatching());
}

TEST_CASE_FIXTURE(Software, "an uninstaller that cannot be started is told, the watch given up") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    machine.faults.FailOn("C:\\Gamma.exe", runtime::FileNotFound);
    Select({1, 2});
    machine.messages.WhileOpen(CannotStart, [&] { CHECK_FALSE(IsWatching()); });
    Press("cmdUninstall");
    CHECK(Started() == Lines{"C:\\Alpha.exe /u", "C:\\Beta.exe /u"});
    CHECK(OneBox() == platform::simulated::ShownMessage{
                          CannotStart,
                          "'Gamma' konnte nicht entfernt werden.\r\n\r\nFehler: " +
                              runtime::DescriptionOf(runtime::FileNotFound),
                          16});
    CHECK(list.Count() == 3);
    CHECK(Selected().empty());
    CHECK_FALSE(IsWatching());
}

TEST_CASE_FIXTURE(Software, "a double click asks before it uninstalls") {
    ShowThree();
    Select({1});
    machine.messages.Answer("Deinstallieren", 7);
    list.DoubleClick();
    CHECK(Started().empty());
    machine.messages.Answer("Deinstallieren", 6);
    list.DoubleClick();
    CHECK(Started() == Lines{"C:\\Beta.exe /u"});
    CHECK(machine.messages.Shown()[1] ==
          platform::simulated::ShownMessage{
              "Deinstallieren", "Soll die Anwendung 'Beta' wirklich deinstalliert werden?", 36});
}

TEST_CASE_FIXTURE(Software,
                  "an uninstaller that ends during a question is seen when it is answered") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    const auto end = [&] {
        EndAlpha();
        CHECK(list.Count() == 3);
        CHECK(Selected() == Lines{"Alpha"});
        CHECK(IsWatching());
    };
    SUBCASE("before deleting") {
        machine.messages.WhileOpen("Alpha löschen", end);
        machine.messages.Answer("Alpha löschen", 6);
        Press("cmdDeleteItem");
        CHECK(machine.messages.Shown().back().title ==
              "Eintrag konnte nicht gelöscht werden [26001]");
    }
    SUBCASE("before uninstalling") {
        machine.messages.WhileOpen("Deinstallieren", end);
        machine.messages.Answer("Deinstallieren", 6);
        list.DoubleClick();
        CHECK(Started() == Lines{"C:\\Alpha.exe /u", "C:\\Alpha.exe /u"});
        runs[1].questions = 0;
    }
    SUBCASE("before nothing") {
        machine.messages.WhileOpen("Alpha löschen", end);
        machine.messages.Answer("Alpha löschen", 7);
        Press("cmdDeleteItem");
    }
    SUBCASE("which could not be shown") {
        machine.faults.FailAll("MessageBox", 5);
        Press("cmdDeleteItem");
        CHECK(HasKey("Alpha"));
        machine.faults.Clear();
        EndAlpha();
    }
    Tick();
    CHECK_FALSE(IsWatching());
    CHECK(HasKey("Beta"));
    CHECK(Names() == Lines{"Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "what is chosen in a menu goes to the row on which it was opened") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    Select({1});
    const auto openMenu = [&](const char* item) {
        machine.menus.WhileOpen([&] { EndAlpha(); });
        machine.menus.Pick(item);
        list.PressRightButton();
    };
    SUBCASE("an item") {
        openMenu("Deinstallieren");
        CHECK(Started() == Lines{"C:\\Alpha.exe /u", "C:\\Beta.exe /u"});
        runs[1].questions = 0;
    }
    SUBCASE("none") {
        openMenu("");
        CHECK(IsWatching());
    }
    Tick();
    CHECK_FALSE(IsWatching());
    CHECK(Names() == Lines{"Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "a failure is told without a name when no row is selected any more") {
    ShowThree();
    Select({0});
    machine.faults.FailOn("C:\\Alpha.exe", runtime::FileNotFound);
    machine.messages.WhileOpen("Deinstallieren", [&] { Select({}); });
    machine.messages.Answer("Deinstallieren", 6);
    list.DoubleClick();
    CHECK(machine.messages.Shown().back() ==
          platform::simulated::ShownMessage{CannotStart,
                                            "'' konnte nicht entfernt werden.\r\n\r\nFehler: " +
                                                runtime::DescriptionOf(runtime::FileNotFound),
                                            16});
    CHECK(list.Count() == 3);
}

TEST_CASE_FIXTURE(Software, "an answer is about the rows of the question and no others") {
    ShowThree();
    Select({0});
    machine.messages.WhileOpen("Deinstallieren", [&] { Select({1, 2}); });
    machine.messages.Answer("Deinstallieren", 6);
    list.DoubleClick();
    CHECK(Started() == Lines{"C:\\Alpha.exe /u"});
    Select({0});
    machine.messages.WhileOpen("Alpha löschen", [&] { Select({1, 2}); });
    machine.messages.Answer("Alpha löschen", 6);
    Press("cmdDeleteItem");
    CHECK(Names() == Lines{"Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "the right button offers both on a list with rows") {
    list.PressRightButton();
    CHECK(machine.journal.Calls("TrackPopupMenu").empty());
    ShowThree();
    Select({0});
    machine.menus.Pick("Deinstallieren");
    list.PressRightButton(toolkit::Point{30, 40});
    CHECK(machine.journal.Calls("TrackPopupMenu").back().find(" at 30,40 ") != std::string::npos);
    CHECK(Started() == Lines{"C:\\Alpha.exe /u"});
    machine.menus.Pick("Eintrag löschen");
    machine.messages.Answer("Alpha löschen", 6);
    list.PressRightButton();
    CHECK(Names() == Lines{"Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "entries are deleted after a question, and the row above is selected") {
    ShowThree();
    Select({1, 2});
    machine.messages.Answer("Gamma löschen", 7);
    Press("cmdDeleteItem");
    CHECK(list.Count() == 3);
    CHECK(OneBox() == platform::simulated::ShownMessage{
                          "Gamma löschen",
                          "Sollen die Einträge wirklich aus der Softwareliste gelöscht werden?",
                          36});
    machine.messages.Answer("Gamma löschen", 6);
    list.PressKey(toolkit::key::Delete);
    CHECK(Names() == Lines{"Alpha"});
    CHECK(Selected().empty());
    Seed("Beta", "Beta", "x");
    Press("cmdRefresh");
    Select({1});
    machine.messages.Answer("Beta löschen", 6);
    Press("cmdDeleteItem");
    CHECK(Selected() == Lines{"Alpha"});
    CHECK(LastSent() == "SendMessageA lvwSoftware 4115 0");
    CHECK(machine.messages.Shown().size() == 3);
}

TEST_CASE_FIXTURE(Software, "an entry whose key has another name stays, and that is told") {
    Seed("{1}", "Eine Anwendung", "x");
    form.Show();
    Select({0});
    machine.messages.Answer("Eine Anwendung löschen", 6);
    Press("cmdDeleteItem");
    CHECK(HasKey("{1}"));
    REQUIRE(machine.messages.Shown().size() == 2);
    CHECK(machine.messages.Shown()[1] ==
          platform::simulated::ShownMessage{
              "Eintrag konnte nicht gelöscht werden [26001]",
              "'Eine Anwendung' konnte nicht gelöscht werden!\r\n\r\nFehler: Failed to delete "
              "registry Key: '-2147483646',Section: 'SOFTWARE\\Microsoft\\Windows\\"
              "CurrentVersion\\Uninstall\\Eine Anwendung",
              16});
    CHECK(list.Count() == 1);
}

TEST_CASE_FIXTURE(Software, "the first entry that does not go keeps those behind it") {
    ShowThree();
    Seed("{2}", "Anders", "x");
    Press("cmdRefresh");
    CHECK(Names() == Lines{"Alpha", "Anders", "Beta", "Gamma"});
    Select({0, 1, 2});
    machine.messages.Answer("Beta löschen", 6);
    Press("cmdDeleteItem");
    CHECK(Names() == Lines{"Anders", "Beta", "Gamma"});
}

TEST_CASE_FIXTURE(Software, "a name that holds a backslash reaches the key below and no other") {
    Seed("Eins", "Eins\\Zwei", "x");
    machine.registry.MakeKey(Registry::LocalMachine, UninstallKey + "Eins\\Zwei"s);
    Seed("Andere", "\\", "x");
    form.Show();
    REQUIRE(Names() == Lines{"Eins\\Zwei", "\\"});
    Select({0});
    machine.messages.Answer("Eins\\Zwei löschen", 6);
    Press("cmdDeleteItem");
    CHECK_FALSE(HasKey("Eins\\Zwei"));
    CHECK(HasKey("Eins"));
    CHECK(machine.messages.Shown().size() == 1);
    Select({1});
    machine.messages.Answer("\\ löschen", 6);
    Press("cmdDeleteItem");
    CHECK(machine.messages.Shown().size() == 3);
    CHECK(HasKey("Andere"));
    CHECK(list.Count() == 2);
}

TEST_CASE_FIXTURE(Software, "a name that backslashes lead to another key's is not found") {
    ShowThree();
    machine.registry.MakeKey(Registry::LocalMachine, UninstallKey + "Beta\\Tief"s);
    for (const char* name : {"Gamma\\", "\\Gamma", "Beta\\\\Tief"}) {
        CAPTURE(name);
        Put("Andere", "DisplayName", TextValue(name));
        Put("Andere", "UninstallString", TextValue("x"));
        Press("cmdRefresh");
        const Lines names = Names();
        const auto row = std::find(names.begin(), names.end(), name) - names.begin();
        Select({static_cast<int>(row)});
        machine.messages.Answer(name + " löschen"s, 6);
        Press("cmdDeleteItem");
        CHECK(machine.messages.Shown().back().title ==
              "Eintrag konnte nicht gelöscht werden [26001]");
        CHECK(HasKey("Gamma"));
        CHECK(HasKey("Beta\\Tief"));
        CHECK(HasKey("Andere"));
    }
}

TEST_CASE_FIXTURE(Software, "deleting without a selection is told as the failure that it is") {
    ShowThree();
    Press("cmdDeleteItem");
    CHECK(OneBox() ==
          platform::simulated::ShownMessage{"Eintrag konnte nicht gelöscht werden [91]",
                                            "'' konnte nicht gelöscht werden!\r\n\r\nFehler: " +
                                                runtime::DescriptionOf(runtime::ObjectNotSet),
                                            16});
    CHECK(list.Count() == 3);
}

TEST_CASE_FIXTURE(Software, "OK and Escape close the dialog while an uninstaller runs on") {
    ShowThree();
    Select({0});
    Press("cmdUninstall");
    SUBCASE("OK") {
        Press("cmdOK");
    }
    SUBCASE("Escape") {
        CHECK(form.KeyPressed(toolkit::key::Escape));
    }
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(IsWatching());
    Tick();
    form.Show();
    CHECK(list.Count() == 3);
    CHECK_FALSE(IsWatching());
}
