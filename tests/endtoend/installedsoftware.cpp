// The list of the installed software, over entries in the real registry and with uninstallers of
// the suite's own.
#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include "endtoend/farmemory.h"
#include "endtoend/lines.h"
#include "endtoend/lists.h"
#include "endtoend/looks.h"
#include "endtoend/pages.h"
#include "endtoend/registrystate.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

using Texts = std::vector<std::string>;

constexpr char SoftwareForm[] = "frmInstalledSoftware";
constexpr char UninstallKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

// Entries beside those that the system has; they go with this object.
class Entries {
  public:
    Entries() = default;
    ~Entries() {
        for (const std::string& key : made_) Remove(key);
    }
    Entries(const Entries&) = delete;
    Entries& operator=(const Entries&) = delete;

    void Put(const std::string& key, const char* name, const std::string& text) {
        made_.push_back(key);
        WriteValue({"HKLM", UninstallKey + key, name}, TerminatedText(text));
    }
    void Seed(const std::string& key, const std::string& display, const std::string& command) {
        Put(key, "DisplayName", display);
        Put(key, "UninstallString", command);
    }
    static void Remove(const std::string& key) { DeleteTree("HKLM", UninstallKey + key); }
    static bool Has(const std::string& key) { return KeyExists("HKLM", UninstallKey + key); }

  private:
    Texts made_;
};

struct SoftwareDialogue {
    Entries entries;
    Workplace workplace;
    OpenProgram program{workplace};
    Rows rows{nullptr};

    // Before the dialog is opened, entries can be seeded.
    void Open() {
        program.OpenTab(UtilitiesPage);
        program.Click("cmdInstalledSoftware");
        program.Wait(SoftwareForm);
        rows = Rows(program.Wait("lvwSoftware"));
    }
    int RowOf(const std::string& name) const {
        for (int row = 0; row < rows.Count(); ++row) {
            if (rows.Texts(row)[0] == name) return row;
        }
        return -1;
    }
    void Select(const std::string& name) const {
        const int row = RowOf(name);
        REQUIRE(row >= 0);
        rows.Click(row);
        Until("the selection", [&] { return rows.Selected(row); });
    }
    void AlsoSelect(const std::string& name) const {
        const int row = RowOf(name);
        REQUIRE(row >= 0);
        const HWND list = program.Find("lvwSoftware");
        const FarMemory memory(list);
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_SELECTED;
        memory.Write(item);
        Send(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
             reinterpret_cast<LPARAM>(memory.At(0)));
    }
    void WaitGone(const std::string& name) const {
        Until("the end of " + name, [&] { return RowOf(name) < 0; });
    }
    std::string Found() const { return program.Text("lblFound"); }
};

}  // namespace

TEST_CASE_FIXTURE(SoftwareDialogue, "five hundred entries are listed where they are complete") {
    Open();
    const int own = rows.Count();
    program.PressKey(SoftwareForm, VK_ESCAPE);
    program.WaitGone(SoftwareForm);
    for (int number = 100; number < 600; ++number) {
        const std::string key = "Qm" + std::to_string(number);
        if (number % 5 != 0) entries.Put(key, "DisplayName", "Größe " + key);
        if (number % 7 != 0) entries.Put(key, "UninstallString", key + ".exe");
    }
    int complete = 0;
    for (int number = 100; number < 600; ++number) complete += number % 5 != 0 && number % 7 != 0;
    Open();
    CHECK(rows.Count() == own + complete);
    CHECK(Found() == "Gefunden: " + std::to_string(own + complete) + " Anwendungen");
    CHECK(rows.Headers() == Texts{"Name", "Interner Name", "Uninstaller"});
    const int row = RowOf("Größe Qm101");
    REQUIRE(row >= 0);
    CHECK(rows.Texts(row) == Texts{"Größe Qm101", "Qm101", "Qm101.exe"});
    CHECK(RowOf("Größe Qm105") == -1);
    CHECK(RowOf("Größe Qm112") == -1);
    CHECK(Joined(Crooked(program, program.Find(SoftwareForm))) == "");

    program.Click("cmdFindInvalidLinks");
    Until("the empty list", [&] { return rows.Count() == 0; });
    CHECK(Found() == "Gefunden: 0 Anwendungen");
    program.PressKey(SoftwareForm, VK_F5);
    Until("the full list", [&] { return rows.Count() == own + complete; });
    rows.ClickHeader(0);
    Until("the order", [&] { return rows.Texts(0)[0] > rows.Texts(1)[0]; });
    program.Click("frmInstalledSoftware.cmdOK");
    program.WaitGone(SoftwareForm);
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(SoftwareDialogue,
                  "an uninstaller is started and watched, and the list read when it ends") {
    const StandIn uninstaller(workplace.Folder() + "\\weg.exe");
    entries.Seed("QmA", "Quillmore A", uninstaller.Path() + " /u");
    entries.Seed("QmB", "Quillmore B", "x.exe");
    Open();
    {
        const Hold hold;
        Select("Quillmore A");
        const int row = RowOf("Quillmore A");
        program.Click("cmdUninstall");
        const Started started = uninstaller.WaitStart();
        CHECK(started.commandLine == uninstaller.Path() + " /u");
        CHECK(started.show == "1");
        Entries::Remove("QmA");
        // Longer than the watch looks away, which is half a second.
        Sleep(750);
        CHECK(RowOf("Quillmore A") == row);
        const auto isFree = [&] { return program.Responds(SoftwareForm); };
        Until("the list to be free", isFree, Blocked);
        hold.LetGo();
        WaitGone("Quillmore A");
        CHECK(RowOf("Quillmore B") == row);
        Until("the selection", [&] { return rows.Selected(row); });
    }
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(SoftwareDialogue,
                  "several uninstallers start at once, and the dialog may close meanwhile") {
    const StandIn first(workplace.Folder() + "\\eins.exe");
    const StandIn last(workplace.Folder() + "\\zwei.exe");
    entries.Seed("Qm1", "Quillmore 1", first.Path());
    entries.Seed("Qm2", "Quillmore 2", last.Path());
    Open();
    const Hold hold;
    Select("Quillmore 1");
    AlsoSelect("Quillmore 2");
    program.Click("cmdUninstall");
    first.WaitStart();
    last.WaitStart();
    CHECK(first.WasStarted());
    CHECK(last.WasStarted());
    program.PressKey(SoftwareForm, VK_ESCAPE);
    program.WaitGone(SoftwareForm);
    hold.LetGo();
    program.CloseAndWait();
    CHECK(workplace.Log() == "");
}

TEST_CASE_FIXTURE(SoftwareDialogue, "an uninstaller that cannot be started is told") {
    entries.Seed("QmA", "Quillmore A", workplace.Folder() + "\\fehlt.exe");
    Open();
    Select("Quillmore A");
    rows.DoubleClick(RowOf("Quillmore A"));
    CHECK(program.Answer("Deinstallieren", IDYES).text ==
          "Soll die Anwendung 'Quillmore A' wirklich deinstalliert werden?");
    const MessageBox box = program.Answer("Fehler beim deinstallieren aufgetreten", IDOK);
    CHECK(box.text.starts_with("'Quillmore A' konnte nicht entfernt werden.\r\n\r\nFehler: "));
    CHECK(RowOf("Quillmore A") >= 0);
}

TEST_CASE_FIXTURE(SoftwareDialogue, "entries are deleted by the name that they show") {
    entries.Seed("Quillmore A", "Quillmore A", "x.exe");
    entries.Seed("QmB", "Quillmore B", "x.exe");
    Open();
    Select("Quillmore A");
    program.Click("cmdDeleteItem");
    program.Answer("Quillmore A löschen", IDYES);
    WaitGone("Quillmore A");
    CHECK_FALSE(Entries::Has("Quillmore A"));
    Select("Quillmore B");
    program.Click("cmdDeleteItem");
    program.Answer("Quillmore B löschen", IDYES);
    const MessageBox box = program.Answer("Eintrag konnte nicht gelöscht werden [26001]", IDOK);
    CHECK(
        box.text.ends_with("Failed to delete registry Key: '-2147483646',Section: 'SOFTWARE\\"
                           "Microsoft\\Windows\\CurrentVersion\\Uninstall\\Quillmore B"));
    CHECK(Entries::Has("QmB"));
    CHECK(RowOf("Quillmore B") >= 0);
}

}  // namespace endtoend
