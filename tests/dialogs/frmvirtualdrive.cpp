#include "dialogs/frmvirtualdrive.h"

#include <doctest/doctest.h>

#include "dialogs/drives.h"
#include "runtime/failure.h"
#include "toolkit/keys.h"

using namespace dialogs_test;

TEST_CASE_FIXTURE(Drives, "the drives are listed with what they are, one command line for all") {
    Make("E:", "C:\\PROGRA~1");
    Make("F:", "C:\\");
    form.Show();
    CHECK(form.Caption() == "Virtuelle Laufwerke verwalten");
    CHECK(list.Columns() == Lines{"Laufwerk", "Name", "Physikalischer Pfad", "Größe", "Frei",
                                  "Belegt", "Dateisystem"});
    CHECK(Started() == Lines{List});
    REQUIRE(list.Count() == 2);
    CHECK(Row(0) ==
          Lines{"E:", "SYSTEM", "C:\\Programme", "37,2 GB", "12,0 GB", "25,2 GB", "NTFS"});
    CHECK(list.Text(1, 2) == "C:\\");
    CHECK(list.Key(0) == "1A");
    CHECK(list.Key(1) == "2A");
    CHECK_FALSE(machine.files.Content(Output));
    CHECK(machine.folders.current == "C:\\Programme\\Quillmore\\");
    CHECK(machine.processes.OpenHandles() == 0);
    CHECK(machine.forms.ScreenPointer() == 0);
    CHECK_FALSE(Enabled("cmdcreate"));
    CHECK_FALSE(Enabled("cmddelete"));
}

TEST_CASE_FIXTURE(Drives, "buttons and box say what they do") {
    const auto caption = [&](const char* name) {
        return form.Find<controls::chameleonButton>(name).Caption();
    };
    CHECK(caption("cmdcreate") == "Neues Laufwerk erstellen");
    CHECK(caption("cmddelete") == "Entfernt das ausgewählte Laufwerk");
    CHECK(restore.Caption() == "Laufwerke beim Windows Neustart wieder herstellen");
}

TEST_CASE_FIXTURE(Drives, "the folder can be chosen only, and not typed") {
    CHECK(form.Find<toolkit::TextBox>("txtPathName").Style().readOnly);
}

TEST_CASE_FIXTURE(Drives, "no drives are an empty list whose columns are not fitted") {
    form.Show();
    CHECK(list.Count() == 0);
    CHECK_FALSE(machine.files.Content(Output));
    CHECK(machine.folders.current == "C:\\");
    CHECK(machine.journal.Calls("SendMessageA").empty());
    Make("E:", "C:\\");
    form.Unload();
    form.Show();
    Lines fits;
    for (int column = 0; column < 7; ++column) {
        fits.push_back("SendMessageA lstDrives 4126 " + std::to_string(column) + " -2");
    }
    CHECK(machine.journal.Calls("SendMessageA") == fits);
}

TEST_CASE_FIXTURE(Drives,
                  "the short path of a folder, told in the ANSI code page, is shown in full") {
    machine.disk.MakeFolder("C:\\Größere Übungen\\Heft Nr 5");
    Print(
        "E:\\: => C:\\GR\xD6\xDF"
        "ER~1\\HEFTNR~1\r\n");
    form.Show();
    CHECK(list.Text(0, 2) == "C:\\Größere Übungen\\Heft Nr 5");
}

TEST_CASE_FIXTURE(Drives, "a comma cuts a path, and its rest is a row with the path before") {
    Print("E:\\: => C:\\Heute, morgen  \r\nF:\\: =>   C:\\Ein Ort  \r\n");
    form.Show();
    REQUIRE(list.Count() == 3);
    CHECK(list.Text(0) == "E:");
    CHECK(list.Text(0, 2) == "C:\\Heute");
    CHECK(list.Text(1) == " m");
    CHECK(list.Text(1, 2) == "C:\\Heute");
    CHECK(list.Text(2) == "F:");
    CHECK(list.Text(2, 2) == "C:\\Ein Ort");
    CHECK(list.Key(2) == "3A");
}

TEST_CASE_FIXTURE(Drives, "rows are counted in 16 bits") {
    std::string output;
    for (int line = 0; line < 32770; ++line) output += "E:\\: => C:\\\r\n";
    Print(output);
    machine.journal.Record(false);
    form.Show();
    CHECK(list.Count() == 32767);
    CHECK(list.Key(32766) == "32767A");
}

TEST_CASE_FIXTURE(Drives, "a reading that another one overtakes adds no more rows") {
    for (const char* drive : {"E:", "F:", "G:"}) Make(drive, "C:\\");
    form.Show();
    Browse("C:\\Programme");
    int rows = 0;
    SUBCASE("while the command runs") {
        rows = 0;
    }
    SUBCASE("between two rows") {
        rows = 1;
    }
    bool isOvertaken = false;
    machine.forms.onEvents = [&] {
        if (isOvertaken || list.Count() != rows) return;
        isOvertaken = true;
        Press("cmdcreate");
        CHECK(list.Count() == 3);
        // What the overtaken command has to tell comes late.
        machine.files.Put(Output, "E:\\: => C:\\\r\n");
    };
    Select(2);
    machine.messages.Answer(DeleteQuestion, 6);
    Press("cmddelete");
    CHECK(isOvertaken);
    Lines drives;
    for (int row = 0; row < list.Count(); ++row) drives.push_back(list.Text(row));
    CHECK(drives == Lines{"B:", "E:", "F:"});
    CHECK_FALSE(machine.files.Content(Output));
    CHECK(machine.folders.current == "C:\\Programme\\Quillmore\\");
}

TEST_CASE_FIXTURE(Drives, "output of any kind ends in rows and never in a box") {
    for (const std::string& output :
         {"\r\n"s, ","s, "\n\n\n"s, "=>"s, "=>=>=>"s, "E:"s, "\0\0\r\n"s, std::string(70000, 'x'),
          "E:\\: => C:\\\rF:\\: => D:\\"s, "\xFF\xFE=>\x81\x8D"s}) {
        CAPTURE(output.substr(0, 20));
        Print(output);
        form.Show();
        CHECK(list.Count() >= 1);
        CHECK(machine.messages.Shown().empty());
        form.Unload();
    }
    Print("E:\\: => C:\\\rF:\\: => D:\\");
    form.Show();
    CHECK(list.Text(1) == "F:");
}

TEST_CASE_FIXTURE(Drives, "output that is missing or cannot be read leaves the list empty") {
    Make("E:", "C:\\");
    SUBCASE("it was not written") {
        machine.processes.whenStarted = nullptr;
    }
    SUBCASE("another program holds it") {
        machine.faults.FailAll("ReadFile", runtime::PermissionDenied);
    }
    SUBCASE("the command could not be started") {
        machine.faults.FailOn("command.com", runtime::FileNotFound);
    }
    SUBCASE("the command failed") {
        machine.processes.whenStarted = [this](const std::string& line) {
            Subst(line);
            return Run{1, 2};
        };
    }
    form.Show();
    CHECK(list.Count() == 0);
    CHECK(machine.messages.Shown().empty());
    CHECK_FALSE(machine.files.Content(Output));
    CHECK(machine.folders.current == "C:\\Programme\\Quillmore\\");
    CHECK(letters.Items().size() > 0);
}

TEST_CASE_FIXTURE(Drives, "free letters are offered, those of floppies too, the first selected") {
    form.Show();
    CHECK(letters.Items().size() == 23);
    CHECK(letters.Items()[0] == "B:");
    CHECK(letters.Items()[1] == "E:");
    CHECK(letters.Text() == "B:");
    form.Unload();
    machine.faults.FailAll("GetLogicalDrives", 5);
    form.Show();
    CHECK(letters.Items().size() == 26);
}

TEST_CASE_FIXTURE(Drives, "a folder is chosen by its short path, and the drive is made") {
    machine.disk.MakeFolder("C:\\Eigene Dateien");
    form.Show();
    Browse("C:\\Eigene Dateien");
    CHECK(path.Text() == "C:\\EIGENE~1");
    CHECK(Enabled("cmdcreate"));
    letters.SetListIndex(1);
    Started();
    bool isTold = false;
    machine.messages.WhileOpen("Virtuelles Laufwerk erstellt", [&] {
        isTold = true;
        CHECK(path.Text() == "C:\\EIGENE~1");
        CHECK(list.Count() == 0);
    });
    Press("cmdcreate");
    CHECK(isTold);
    CHECK(Enabled("cmdcreate"));
    CHECK(Started() == Lines{"command.com /csubst E: C:\\EIGENE~1", List});
    CHECK(LastBox() == ShownMessage{"Virtuelles Laufwerk erstellt",
                                    "Das virtuelle Laufwerk 'E:' wurde erfolgreich erstellt.", 64});
    CHECK(path.Text() == "");
    CHECK(list.Text(0) == "E:");
    CHECK(list.Text(0, 2) == "C:\\Eigene Dateien");
    CHECK(letters.Items()[1] == "F:");
}

TEST_CASE_FIXTURE(Drives, "a failing subst shows no box and keeps the path") {
    Make("E:", "C:\\");
    form.Show();
    Browse("C:\\Programme");
    exitCode = 1;
    Started();
    Press("cmdcreate");
    CHECK(machine.messages.Shown().empty());
    CHECK(path.Text() == "C:\\PROGRA~1");
    CHECK(Started().size() == 2);
    REQUIRE(list.Count() == 1);
    CHECK(list.Text(0) == "E:");
}

TEST_CASE_FIXTURE(Drives, "without a folder nothing is made") {
    form.Show();
    Started();
    form.Find<controls::chameleonButton>("cmdcreate").SetEnabled(true);
    Press("cmdcreate");
    CHECK(LastBox() == ShownMessage{Impossible,
                                    "Um ein virtuelles Laufwerk zu erstellen müssen Sie noch den "
                                    "physikalischen Pfad auswählen.",
                                    48});
    CHECK(Started().empty());
}

TEST_CASE_FIXTURE(Drives, "without a free letter nothing is made") {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (letter != 'A' && letter != 'C' && letter != 'D') Make(std::string{letter, ':'}, "C:\\");
    }
    form.Show();
    CHECK(letters.Items().empty());
    CHECK(list.Count() == 23);
    Browse("C:\\Programme");
    Started();
    Press("cmdcreate");
    CHECK(LastBox() ==
          ShownMessage{Impossible,
                       "Es gibt keine freien Laufwerksbuchstaben mehr um ein virtuelles Laufwerk "
                       "zu erstellen. Wenn Sie weitere virtuelle Laufwerke erstellen möchten, "
                       "müssen Sie vorher mindestens ein Laufwerk aus der unteren Liste entfernen.",
                       48});
    CHECK(Started().empty());
}

TEST_CASE_FIXTURE(Drives, "a failure while a drive is made is told with its number") {
    form.Show();
    Browse("C:\\Programme");
    int number = 0;
    SUBCASE("no command shell") {
        machine.faults.FailOn("command.com", number = runtime::FileNotFound);
    }
    SUBCASE("no root") {
        machine.faults.FailOn("C:\\", number = runtime::PathNotFound);
    }
    Press("cmdcreate");
    CHECK(LastBox() ==
          ShownMessage{"Virtuelles Laufwerk konnte nicht erstellt werden",
                       "Ein Fehler ist während des erstellens aufgetreten:\r\n" +
                           std::to_string(number) + ": " + runtime::DescriptionOf(number),
                       16});
    CHECK(path.Text() == "C:\\PROGRA~1");
}

TEST_CASE_FIXTURE(Drives, "the root of a drive is refused, and the folder dialog opens again") {
    form.Show();
    machine.shell.WhenBrowsing([](platform::simulated::FolderDialog& dialog) {
        CHECK(dialog.title ==
              "Bitte Verzeichnis auswählen zu dem das virtuelle Laufwerk angelegt werden soll:");
        dialog.Select("D:\\");
        return true;
    });
    Browse("C:\\Programme");
    CHECK(LastBox() ==
          ShownMessage{"Verzeichnis auswählen",
                       "Bitte Verzeichnis auswählen, Laufwerke alleine können nicht gewählt "
                       "werden.",
                       48});
    CHECK(machine.messages.Shown().size() == 1);
    CHECK(machine.journal.Calls("SHBrowseForFolderA").size() == 2);
    CHECK(path.Text() == "C:\\PROGRA~1");
}

TEST_CASE_FIXTURE(Drives, "cancelling changes nothing, the folder chosen before is preselected") {
    form.Show();
    Browse("C:\\Programme");
    machine.shell.WhenBrowsing([](platform::simulated::FolderDialog& dialog) {
        CHECK(dialog.SelectedPath() == "C:\\PROGRA~1");
        return false;
    });
    Press("cmdbroswe");
    CHECK(path.Text() == "C:\\PROGRA~1");
    CHECK(Enabled("cmdcreate"));
}

TEST_CASE_FIXTURE(Drives, "a single character is no folder") {
    form.Show();
    Browse("C:\\Programme");
    Browse("x");
    CHECK(path.Text() == "");
    CHECK_FALSE(Enabled("cmdcreate"));
}

TEST_CASE_FIXTURE(Drives, "a short path of 164 characters is none") {
    // 155 characters.
    std::string start = "C:";
    for (int depth = 0; depth < 17; ++depth) start += '\\' + std::string(8, 'd');
    const std::string fits = start + "\\1234567";
    const std::string longer = start + "\\12345678";
    REQUIRE(fits.size() == 163);
    REQUIRE(longer.size() == 164);
    machine.disk.MakeFolder(fits);
    machine.disk.MakeFolder(longer);
    form.Show();
    Browse(fits);
    CHECK(path.Text() == fits);
    Browse(longer);
    CHECK(path.Text() == "");
}

TEST_CASE_FIXTURE(Drives, "a failing choice is told by its number, an interrupt is not") {
    form.Show();
    const auto fail = [&](int number) {
        machine.shell.WhenBrowsing([number](platform::simulated::FolderDialog&) -> bool {
            throw runtime::Failure(number);
        });
        Press("cmdbroswe");
    };
    fail(runtime::UserInterrupt);
    CHECK(machine.messages.Shown().empty());
    fail(runtime::OutOfMemory);
    CHECK(LastBox() == ShownMessage{"Fehler 7", runtime::DescriptionOf(7), 16});
}

TEST_CASE_FIXTURE(Drives, "the selected drive is removed after a question, by all three ways") {
    for (const char* drive : {"E:", "F:", "G:"}) Make(drive, "C:\\");
    form.Show();
    Started();
    Select(1);
    CHECK(Enabled("cmddelete"));
    machine.messages.Answer(DeleteQuestion, 7);
    Press("cmddelete");
    CHECK(LastBox() ==
          ShownMessage{DeleteQuestion,
                       "Sind Sie sicher das Sie das virtuelle Laufwerk 'F:' löschen wollen?", 36});
    CHECK(Started().empty());
    machine.messages.AnswerAll(DeleteQuestion, 6);
    Press("cmddelete");
    CHECK(Started() == Lines{"command.com /csubst F: /d", List});
    CHECK(list.Count() == 2);
    Select(1);
    list.PressKey(toolkit::key::Delete);
    CHECK(list.Count() == 1);
    Select(0);
    machine.menus.Pick("Laufwerk entfernen");
    list.PressRightButton();
    CHECK(list.Count() == 0);
    CHECK(made.empty());
    // They stay enabled: the list had a row when it was counted.
    CHECK(Enabled("cmddelete"));
    CHECK(restore.Enabled());
}

TEST_CASE_FIXTURE(Drives, "the right button enables what acts on the row that it selects") {
    for (const char* drive : {"E:", "F:"}) Make(drive, "C:\\");
    form.Show();
    machine.menus.Pick("Laufwerk entfernen");
    list.PressRightButton();
    CHECK_FALSE(Enabled("cmddelete"));
    CHECK(machine.messages.Shown().empty());
    list.SetSelected(1, true);
    machine.menus.Pick("Laufwerk entfernen");
    machine.messages.Answer(DeleteQuestion, 6);
    list.PressRightButton(toolkit::Point{30, 40});
    CHECK(machine.journal.Calls("TrackPopupMenu").back().find(" at 30,40 ") != std::string::npos);
    CHECK(Enabled("cmddelete"));
    REQUIRE(list.Count() == 1);
    CHECK(list.Text(0) == "E:");
}

TEST_CASE_FIXTURE(Drives, "removing without a selection is told as the failure that it is") {
    Make("E:", "C:\\");
    form.Show();
    list.PressKey(toolkit::key::Delete);
    CHECK(LastBox() == ShownMessage{"Löschen fehlgeschlagen",
                                    "Das virtuelle Laufwerk konnte nicht gelöscht werden:\r\n91: " +
                                        runtime::DescriptionOf(91),
                                    16});
}

TEST_CASE_FIXTURE(Drives, "a list that has emptied during the question disables what acts on it") {
    Make("E:", "C:\\");
    form.Show();
    Select(0);
    machine.messages.Answer(DeleteQuestion, 6);
    machine.messages.WhileOpen(DeleteQuestion, [&] {
        list.Clear();
        made["F:"] = "C:\\";
    });
    Press("cmddelete");
    CHECK_FALSE(Enabled("cmddelete"));
    CHECK_FALSE(restore.Enabled());
    REQUIRE(list.Count() == 1);
    machine.menus.Pick("Laufwerk entfernen");
    list.PressRightButton();
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(Drives, "over an empty list no menu opens") {
    form.Show();
    list.PressRightButton();
    CHECK(machine.journal.Calls("TrackPopupMenu").empty());
}

TEST_CASE_FIXTURE(Drives, "closing asks only for a path that has not become a drive") {
    form.Show();
    SUBCASE("none") {
        Press("cmdexit");
        CHECK(machine.messages.Shown().empty());
    }
    SUBCASE("one") {
        Browse("C:\\Programme");
        machine.messages.Answer("Einstellungen verwerfen", 7);
        Press("cmdexit");
        CHECK(form.Loaded());
        CHECK(LastBox() == ShownMessage{"Einstellungen verwerfen",
                                        "Wollen Sie die Einstellungen zum neuen virtuellen "
                                        "Laufwerk 'B:' wirklich verwerfen?",
                                        36});
        machine.messages.Answer("Einstellungen verwerfen", 6);
        Press("cmdexit");
    }
    SUBCASE("Escape") {
        Browse("C:\\Programme");
        CHECK(form.KeyPressed(toolkit::key::Escape));
        CHECK(machine.messages.Shown().empty());
    }
    CHECK_FALSE(form.Loaded());
}

TEST_CASE_FIXTURE(Drives, "a question that cannot be shown removes nothing and closes nothing") {
    Make("E:", "C:\\");
    form.Show();
    Browse("C:\\Programme");
    Select(0);
    Started();
    machine.faults.FailAll("MessageBox", 5);
    Press("cmddelete");
    CHECK(Started().empty());
    Press("cmdexit");
    CHECK(form.Loaded());
    CHECK(path.Text() == "C:\\PROGRA~1");
}

TEST_CASE_FIXTURE(Drives, "while a command runs the dialog lives, and may even be closed") {
    form.Show();
    Browse("C:\\Programme");
    int events = 0;
    SUBCASE("a second click") {
        machine.forms.onEvents = [&] {
            if (++events == 1) Press("cmdcreate");
        };
        Press("cmdcreate");
        CHECK(form.Loaded());
    }
    SUBCASE("Escape") {
        machine.forms.onEvents = [&] {
            if (++events == 1) form.KeyPressed(toolkit::key::Escape);
        };
        Press("cmdcreate");
        CHECK_FALSE(form.Loaded());
    }
    CHECK(events > 1);
    CHECK(machine.processes.OpenHandles() == 0);
    CHECK(machine.forms.ScreenPointer() == 0);
}

TEST_CASE_FIXTURE(Drives, "a header sorts, and a new time starts unsorted") {
    for (const char* drive : {"E:", "F:"}) Make(drive, "C:\\");
    form.Show();
    list.ClickColumn(0);
    CHECK(list.Text(0) == "F:");
    CHECK(list.SortOrder() == ListView::Descending);
    form.Unload();
    form.Show();
    CHECK(list.Text(0) == "E:");
    CHECK_FALSE(list.Sorted());
}
