#include "system/folderdialog.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "toolkit/form.h"

using platform::simulated::FolderDialog;
using sys::BrowseForFolderPath;
using Lines = std::vector<std::string>;

namespace {

struct DirDialogFixture {
    platform::simulated::Machine machine;
    toolkit::Form owner{machine.forms, "frmOwner", "Fenster", {}};

    std::string Browse(std::string_view start) {
        return BrowseForFolderPath(machine.shell, owner, "Ordner wählen", start);
    }
};

}  // namespace

TEST_CASE_FIXTURE(DirDialogFixture, "the dialog belongs to its owner and has title and flags") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        CHECK(dialog.title == "Ordner wählen");
        return false;
    });
    Browse("");
    CHECK(machine.journal.Lines().front() ==
          "SHBrowseForFolderA frmOwner \"Ordner wählen\" 0x07 -> \"\"");
}

TEST_CASE_FIXTURE(DirDialogFixture,
                  "a cancelled dialog gives the empty text, whatever was selected") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select("D:\\Daten");
        return false;
    });
    CHECK(Browse("C:\\Programme").empty());
}

TEST_CASE_FIXTURE(DirDialogFixture,
                  "a dialog closed with OK at once gives the preselected folder") {
    machine.shell.WhenBrowsing([](FolderDialog&) { return true; });
    CHECK(Browse("C:\\Programme") == "C:\\Programme");
}

TEST_CASE_FIXTURE(DirDialogFixture, "a dialog closed with OK gives the folder selected last") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select("D:\\Daten");
        dialog.Select("D:\\Größe");
        return true;
    });
    CHECK(Browse("C:\\Programme") == "D:\\Größe");
}

TEST_CASE_FIXTURE(DirDialogFixture,
                  "the preselected folder is told when the dialog is there, and only then") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select("D:\\Daten");
        return true;
    });
    Browse("C:\\Programme");
    CHECK(machine.journal.Calls("SendMessageA") == Lines{"SendMessageA 0x466 \"C:\\Programme\"",
                                                         "SendMessageA 0x464 \"C:\\Programme\"",
                                                         "SendMessageA 0x464 \"D:\\Daten\""});
}

TEST_CASE_FIXTURE(DirDialogFixture, "the path of each selected folder is shown below the title") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        CHECK(dialog.status == "C:\\Programme");
        dialog.Select("D:\\Daten");
        CHECK(dialog.status == "D:\\Daten");
        return true;
    });
    Browse("C:\\Programme");
}

TEST_CASE_FIXTURE(DirDialogFixture, "a place without a path leaves the status as it is") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        dialog.Select("D:\\Daten");
        dialog.Select(std::nullopt);
        CHECK(dialog.status == "D:\\Daten");
        return true;
    });
    CHECK(Browse("").empty());
}

TEST_CASE_FIXTURE(DirDialogFixture, "without a folder to preselect nothing is selected") {
    machine.shell.WhenBrowsing([](FolderDialog& dialog) {
        CHECK(dialog.SelectedPath() == std::nullopt);
        CHECK(dialog.status.empty());
        return true;
    });
    CHECK(Browse("").empty());
}

TEST_CASE_FIXTURE(DirDialogFixture, "two dialogs one after the other know nothing of each other") {
    machine.shell.WhenBrowsing([](FolderDialog&) { return true; });
    machine.shell.WhenBrowsing([](FolderDialog&) { return true; });
    CHECK(Browse("C:\\Programme") == "C:\\Programme");
    CHECK(Browse("").empty());
}

TEST_CASE_FIXTURE(DirDialogFixture, "a dialog that the system cannot show counts as cancelled") {
    machine.faults.FailAll("SHBrowseForFolderA", 5);
    CHECK(Browse("C:\\Programme").empty());
}
