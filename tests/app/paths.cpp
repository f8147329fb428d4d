// The page Pfade in the whole program: start, reset, Apply.
#include <doctest/doctest.h>

#include "app/program.h"
#include "runtime/encoding.h"

using namespace app_test;
using platform::Registry;
using platform::simulated::BareTextValue;
using platform::simulated::TextValue;

namespace {

constexpr char FoldersKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr char WindowsKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

struct Paths : Program {
    Paths() {
        machine.registry.Put(Registry::LocalMachine, FoldersKey, "Common Desktop",
                             TextValue("D:\\Schreibtisch"));
        REQUIRE(Start());
    }

    toolkit::Label& Path(int index) {
        return form->Find<toolkit::Label>("lblVerwaltung(" + std::to_string(index) + ")");
    }
    std::string Log() { return runtime::FromWestern(machine.files.Content(LogPath).value_or("")); }
    auto StoredDesktop() {
        return machine.registry.Value(Registry::LocalMachine, FoldersKey, "Common Desktop");
    }
    void Apply() {
        FillNumbers();
        machine.messages.Answer("Einstellungen speichern", platform::message::Yes);
        machine.messages.Answer("Systemwiederherstellungspunkt", platform::message::No);
        machine.messages.Answer("Einstellungen gespeichert", platform::message::No);
        Press("cmdApply");
    }
};

// Fails whenever the control shows a new caption.
struct FailingView : toolkit::ControlView {
    void Refresh(toolkit::Aspect) override { throw runtime::Failure(runtime::OutOfMemory); }
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}
};

}  // namespace

TEST_CASE_FIXTURE(Paths, "the start shows the system's paths") {
    CHECK(Path(2).Caption() == "D:\\Schreibtisch");
    CHECK(Path(0).Caption().empty());
}

TEST_CASE_FIXTURE(Paths, "Standard without Apply leaves the system unchanged and asks nothing") {
    const auto before = machine.registry.Dump();
    machine.journal.Clear();
    Press("cmdPathDefault");
    CHECK(Path(2).Caption() == "C:\\Dokumente und Einstellungen\\All Users\\Desktop");
    CHECK(Path(13).Caption() == "C:\\Programme");
    CHECK(machine.registry.Dump() == before);
    CHECK(machine.messages.Shown().empty());
    CHECK(Log().empty());
    CHECK(Close());
    CHECK(StoredDesktop() == TextValue("D:\\Schreibtisch"));
}

TEST_CASE_FIXTURE(Paths, "Standard reaches the system with Apply") {
    Press("cmdPathDefault");
    Apply();
    CHECK(StoredDesktop() == BareTextValue("C:\\Dokumente und Einstellungen\\All Users\\Desktop"));
    CHECK(machine.registry.Value(Registry::CurrentUser, FoldersKey, "Personal") ==
          BareTextValue("C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien"));
    CHECK(machine.registry.Value(Registry::LocalMachine, WindowsKey, "ProgramFilesDir") ==
          BareTextValue("C:\\Programme"));
}

TEST_CASE_FIXTURE(Paths, "a chosen folder reaches the system with Apply and not before") {
    machine.shell.WhenBrowsing([](platform::simulated::FolderDialog& dialog) {
        CHECK(dialog.SelectedPath() == "D:\\Schreibtisch");
        dialog.Select("E:\\Tisch");
        return true;
    });
    Press("cmdPath(2)");
    CHECK(StoredDesktop() == TextValue("D:\\Schreibtisch"));
    Apply();
    CHECK(StoredDesktop() == BareTextValue("E:\\Tisch"));
}

TEST_CASE_FIXTURE(Paths, "a failure of the reset is logged under cmdPathDefault and ends it") {
    FailingView view;
    toolkit::ControlView* const own = Path(5).View();
    Path(5).SetView(&view);
    CHECK_NOTHROW(Press("cmdPathDefault"));
    Path(5).SetView(own);
    CHECK(Log().find("Number: 7\r\n\r\nProcedure: cmdPathDefault\r\n") != std::string::npos);
    REQUIRE(machine.messages.Shown().size() == 1);
    CHECK(machine.messages.Shown()[0].title == "Fehler 7");
    CHECK_FALSE(Path(4).Caption().empty());
    CHECK(Path(6).Caption().empty());
}

TEST_CASE_FIXTURE(Paths, "a failure of the folder dialog is told without a record in the log") {
    machine.shell.WhenBrowsing([](platform::simulated::FolderDialog&) -> bool {
        throw runtime::Failure(runtime::PathNotFound);
    });
    CHECK_NOTHROW(Press("cmdPath(2)"));
    CHECK(Log().empty());
    CHECK(machine.messages.Shown().size() == 1);
}
