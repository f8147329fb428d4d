#include <doctest/doctest.h>

#include "endtoend/lines.h"
#include "endtoend/lists.h"
#include "endtoend/pages.h"
#include "endtoend/realkeys.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

constexpr int DeselectAll = 2;

std::string WindowsTemp() {
    wchar_t folder[MAX_PATH];
    return FromWide({folder, GetWindowsDirectoryW(folder, MAX_PATH)}) + "\\Temp";
}

// Files and a folder where the search comes by, which go with this object.
class Litter {
  public:
    Litter() {
        CreateDirectoryW(ToWide(WindowsTemp()).c_str(), nullptr);
        CreateDirectoryW(ToWide(folder).c_str(), nullptr);
        for (const std::string& file : {inside, wanted, kept}) {
            CloseHandle(CreateFileW(ToWide(file).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    0, nullptr));
        }
    }
    ~Litter() {
        for (const std::string& file : {inside, wanted, kept}) DeleteFileW(ToWide(file).c_str());
        RemoveDirectoryW(ToWide(folder).c_str());
    }
    Litter(const Litter&) = delete;
    Litter& operator=(const Litter&) = delete;

    const std::string folder = WindowsTemp() + "\\Quillmore Ü";
    const std::string inside = folder + "\\inside.txt";
    const std::string wanted = WindowsTemp() + "\\quillmore ö.tmp";
    const std::string kept = WindowsTemp() + "\\quillmore ü.tmp";
};

bool IsThere(const std::string& path) {
    return GetFileAttributesW(ToWide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

int RowOf(const Rows& rows, const std::string& path) {
    for (int row = 0; row < rows.Count(); ++row) {
        if (CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, ToWide(rows.Texts(row)[0]).c_str(),
                           -1, ToWide(path).c_str(), -1) == CSTR_EQUAL) {
            return row;
        }
    }
    throw Failed("no row " + path);
}

void WaitText(const Program& program, const std::string& label, const std::string& text) {
    Until(text, [&] { return program.Text(label) == text; });
}

void Search(const Program& program) {
    program.OpenTab(CleanUpPage);
    program.Click("cmdSearchTempFiles");
    WaitText(program, "lblScannedFiles", "Suchvorgang abgeschlossen!");
}

TEST_CASE("temp files are found on the system's drive, and only what is ticked goes") {
    const Workplace workplace;
    const Litter litter;
    const OpenProgram program(workplace);
    Search(program);
    const HWND list = program.Wait("lvwFiles");
    const Rows rows(list);
    CHECK(rows.Headers() ==
          std::vector<std::string>{"Name", "Größe (bytes)", "Typ", "Zuletzt geändert"});
    CHECK(rows.Ticked(RowOf(rows, litter.folder)));
    CHECK(rows.Texts(RowOf(rows, litter.wanted))[1] == "0");
    CHECK(program.Text("lblHinweisTemp")
              .starts_with(std::to_string(rows.Count()) + " Tempdateien belegen "));

    rows.PressRightButton(0);
    ChooseFromMenu(program, DeselectAll);
    Until("all ticks to go", [&] { return !rows.Ticked(rows.Count() - 1); });
    program.Click("cmdCleanTempFiles");
    CHECK(program.Answer("Tempdateien löschen", IDOK).text ==
          "Keine Tempdateien zum löschen ausgewählt.");

    rows.SetTicked(RowOf(rows, litter.wanted), true);
    program.Click("cmdCleanTempFiles");
    CHECK(program.Answer("Tempdateien löschen", IDYES).text == "Alle markierten Dateien löschen?");
    WaitText(program, "lblScannedFiles", "Löschvorgang abgeschlossen!");
    CHECK(program.Text("lblHinweisTemp") ==
          "0 Dateien konnten nicht gelöscht werden (in Benutzung).");
    CHECK(rows.Count() == 0);
    CHECK_FALSE(IsWindowEnabled(program.Find("cmdCleanTempFiles")));
    CHECK_FALSE(IsThere(litter.wanted));
    CHECK(IsThere(litter.kept));
    // Wine's shell has another word for folders, so the row was a file's and was not ticked.
    CHECK(IsThere(litter.inside));
    CHECK(workplace.Log() == "");
    program.CloseAndWait();
}

// Brings the window to the front and uses the menu of its list.
HWND UseListMenu(const Program& program) {
    Search(program);
    const HWND form = program.Wait("frmMain");
    Until("the window in front", [&] {
        SetForegroundWindow(form);
        return GetForegroundWindow() == form;
    });
    const Rows rows(program.Wait("lvwFiles"));
    rows.PressRightButton(0);
    ChooseFromMenu(program, DeselectAll);
    Until("all ticks to go", [&] { return !rows.Ticked(rows.Count() - 1); });
    return form;
}

TEST_CASE("after the menu of the list F4 closes the program") {
    const Workplace workplace;
    const Litter litter;
    const OpenProgram program(workplace);
    UseListMenu(program);
    Press(VK_F4);
    CHECK(program.WaitForEnd() == 0);
}

TEST_CASE("after the menu of the list Alt and F4 close the program") {
    const Workplace workplace;
    const Litter litter;
    const OpenProgram program(workplace);
    REQUIRE(UseListMenu(program) == GetForegroundWindow());
    PressWith(VK_MENU, VK_F4);
    CHECK(program.WaitForEnd() == 0);
}

TEST_CASE("No to the question leaves the files and the list as they are") {
    const Workplace workplace;
    const Litter litter;
    const OpenProgram program(workplace);
    Search(program);
    const Rows rows(program.Wait("lvwFiles"));
    const int count = rows.Count();
    program.Click("cmdCleanTempFiles");
    program.Answer("Tempdateien löschen", IDNO);
    Until("the program to go on", [&] { return program.Responds("frmMain"); });
    CHECK(rows.Count() == count);
    CHECK(IsThere(litter.wanted));
    CHECK(IsThere(litter.kept));
    program.CloseAndWait();
}

}  // namespace
}  // namespace endtoend
