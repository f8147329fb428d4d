// The drives that stand for folders: made, listed and removed through a stand-in for the command
// shell, which makes real ones.
#include <doctest/doctest.h>

#include <algorithm>

#include "endtoend/lines.h"
#include "endtoend/lists.h"
#include "endtoend/looks.h"
#include "endtoend/pages.h"
#include "endtoend/registrystate.h"
#include "endtoend/standin/substshell.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;
using Texts = std::vector<std::string>;

constexpr char DrivesForm[] = "frmVirtualDrive";
constexpr char ListLine[] = "command.com /csubst > tmpout.txt";
constexpr char Output[] = "C:\\tmpout.txt";
constexpr char Question[] = "Virtuelles Laufwerk löschen";
constexpr char StoreKey[] = "Software\\VB and VBA Program Settings\\dmVDriveC";

// The stand-in in the system's folder. What it has made goes with it.
class SubstShell {
  public:
    SubstShell() : place_(SystemFolder() + "\\command.com") {
        WriteFile(place_.Path(), ReadFile(OwnFolder() + "\\substshell.exe"));
        Clear();
        const Program proof(place_.Path(), "proof");
        CHECK(proof.WaitForEnd() == 0);
        const Texts lines = Lines();
        if (lines.size() != 1 || !lines[0].ends_with(" proof")) throw Failed("no stand-in");
    }
    ~SubstShell() { Clear(); }
    SubstShell(const SubstShell&) = delete;
    SubstShell& operator=(const SubstShell&) = delete;

    // Command lines since the last look.
    Texts Lines() const {
        const std::string log = ReadFile(Beside(SubstLog));
        Texts lines;
        for (std::size_t end; (end = log.find('\n', seen_)) != std::string::npos; seen_ = end + 1) {
            lines.push_back(log.substr(seen_, end - seen_));
        }
        return lines;
    }
    // The same when so many have come.
    Texts WaitLines(std::size_t count) const {
        Texts lines;
        Until("the commands", [&] {
            for (const std::string& line : Lines()) lines.push_back(line);
            return lines.size() >= count;
        });
        return lines;
    }
    void Print(const std::string& output) const { WriteFile(Beside(SubstOutput), output); }

  private:
    std::string Beside(const wchar_t* suffix) const { return place_.Path() + FromWide(suffix); }
    // The stand-in itself takes away what it has made.
    void Clear() const {
        const std::string drives = ReadFile(Beside(SubstDrives));
        for (std::size_t at = 0; at < drives.size(); at = drives.find('\n', at) + 1) {
            const Program removal(place_.Path(), "/csubst " + drives.substr(at, 2) + " /d");
            removal.WaitForEnd();
        }
        for (const wchar_t* suffix : {SubstLog, SubstDrives, SubstOutput}) {
            DeleteFileW(ToWide(Beside(suffix)).c_str());
        }
    }

    EmptyPlace place_;
    mutable std::size_t seen_ = 0;
};

// A folder with a blank in its name and a file in it.
class Folder {
  public:
    Folder() {
        CreateDirectoryW(ToWide(path).c_str(), nullptr);
        WriteFile(path + "\\marke.txt", "hier");
    }
    ~Folder() {
        DeleteFileW(ToWide(path + "\\marke.txt").c_str());
        RemoveDirectoryW(ToWide(path).c_str());
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::string path = "C:\\Quillmore Übung";
};

struct DrivesDialogue {
    SubstShell shell;
    Workplace workplace;
    OpenProgram program;
    Rows rows{nullptr};

    explicit DrivesDialogue(const std::string& output = "", const std::string& arguments = "")
        : program(workplace, arguments) {
        DeleteTree("HKCU", StoreKey);
        if (!output.empty()) shell.Print(output);
        Open();
    }
    ~DrivesDialogue() { DeleteTree("HKCU", StoreKey); }

    void Open() {
        program.OpenTab(UtilitiesPage);
        program.Click("cmdVirtualDrive");
        program.Wait(DrivesForm);
        rows = Rows(program.Wait("lstDrives"));
    }
    // The folder that stands in the box is preselected; the user agrees.
    void Browse(const std::string& folder) const {
        program.SetText("txtPathName", folder);
        program.Click("cmdbroswe");
        HWND browser = nullptr;
        Until("the folder dialog", [&] {
            for (HWND window : program.TopLevel()) {
                if (ClassOf(window) == "#32770" && IsWindowVisible(window)) browser = window;
            }
            return browser != nullptr && program.Responds(DrivesForm);
        });
        PostMessageW(browser, WM_COMMAND, IDOK, 0);
        Until("the end of the folder dialog", [&] { return !IsWindow(browser); });
    }
    void WaitRows(int count) const {
        Until("the rows", [&] { return rows.Count() == count; });
    }
    std::string Stored(const char* key) const {
        return Describe(ReadValue({"HKCU", std::string(StoreKey) + "\\Config", key}));
    }
};

}  // namespace

TEST_CASE("a drive is made for a folder, listed, stored and removed again") {
    const Folder folder;
    DrivesDialogue dialogue;
    const Program& program = dialogue.program;
    CHECK(dialogue.shell.Lines() == Texts{ListLine});
    CHECK(dialogue.rows.Count() == 0);
    Until("the end of the list's file", [] { return !Exists(Output); });
    CHECK_FALSE(IsWindowEnabled(program.Find("cmdcreate")));
    CHECK_FALSE(IsWindowEnabled(program.Find("cmddelete")));
    CHECK(Joined(Crooked(program, program.Find(DrivesForm))) == "");

    dialogue.Browse(folder.path);
    Until("the folder", [&] { return IsWindowEnabled(program.Find("cmdcreate")) != FALSE; });
    const std::string shortPath = program.Text("txtPathName");
    CHECK(shortPath.find(' ') == std::string::npos);
    CHECK(Exists(shortPath + "\\marke.txt"));
    const std::string drive = program.Text("cbodrives");
    REQUIRE(drive.size() == 2);
    CHECK_FALSE(Exists(drive + "\\"));

    program.Click("cmdcreate");
    CHECK(program.Answer("Virtuelles Laufwerk erstellt", IDOK).text ==
          "Das virtuelle Laufwerk '" + drive + "' wurde erfolgreich erstellt.");
    dialogue.WaitRows(1);
    CHECK(
        dialogue.shell.WaitLines(2) ==
        Texts{"command.com /csubst " + drive + ' ' + platform::win32::ToAnsi(shortPath), ListLine});
    CHECK(Exists(drive + "\\marke.txt"));
    const Texts row = dialogue.rows.Texts(0);
    CHECK(row[0] == drive);
    CHECK(row[2] == folder.path);
    for (const int size : {3, 4, 5}) CHECK(row[static_cast<std::size_t>(size)].ends_with("B"));
    CHECK(program.Text("txtPathName") == "");
    Until("the end of the list's file", [] { return !Exists(Output); });
    CHECK(Joined(Crooked(program, program.Find(DrivesForm))) == "");

    program.SetChecked("chkrestore", true);
    Until("the store", [&] { return dialogue.Stored("Restore") != "absent"; });
    CHECK(dialogue.Stored("Count").find("\"1\"") != std::string::npos);
    CHECK(dialogue.Stored("Drives1").find('"' + drive + "=>" + row[1] + '"') != std::string::npos);
    const ValuePlace start{"HKLM", "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "VDriveC"};
    CHECK_FALSE(ReadValue(start));
    program.SetChecked("chkrestore", false);
    Until("the store's end", [&] { return dialogue.Stored("Restore") == "absent"; });
    CHECK_FALSE(KeyExists("HKCU", std::string(StoreKey) + "\\Config"));

    dialogue.rows.Click(0);
    Until("the button", [&] { return IsWindowEnabled(program.Find("cmddelete")) != FALSE; });
    program.Click("cmddelete");
    program.Answer(Question, IDYES);
    dialogue.WaitRows(0);
    CHECK(dialogue.shell.WaitLines(2) == Texts{"command.com /csubst " + drive + " /d", ListLine});
    CHECK_FALSE(Exists(drive + "\\"));
    CHECK(Exists(folder.path + "\\marke.txt"));

    program.Click("cmdexit");
    program.WaitGone(DrivesForm);
    CHECK(dialogue.workplace.Log() == "");
}

TEST_CASE("what the command tells in the ANSI code page is listed with its commas and blanks") {
    DrivesDialogue dialogue(
        "X:\\: => C:\\GR\xD6\xDF"
        "E\r\nY:\\: =>  C:\\Ein Ort, zwei\r\n");
    dialogue.WaitRows(3);
    CHECK(dialogue.rows.Texts(0)[0] == "X:");
    CHECK(dialogue.rows.Texts(0)[2] == "C:\\GRÖßE");
    CHECK(dialogue.rows.Texts(1)[2] == "C:\\Ein Ort");
    CHECK(dialogue.rows.Texts(2)[0] == " z");
    CHECK(dialogue.rows.Texts(2)[2] == "C:\\Ein Ort");
    Until("the end of the list's file", [] { return !Exists(Output); });
    dialogue.program.PressKey(DrivesForm, VK_ESCAPE);
    dialogue.program.WaitGone(DrivesForm);
}

TEST_CASE("the right button selects a drive and offers to remove it at once") {
    const DrivesDialogue dialogue("X:\\: => C:\\\r\nY:\\: => C:\\\r\n");
    dialogue.WaitRows(2);
    CHECK_FALSE(IsWindowEnabled(dialogue.program.Find("cmddelete")));
    dialogue.rows.PressRightButton(1);
    ChooseFromMenu(dialogue.program, 1);
    CHECK(dialogue.program.Answer(Question, IDNO).text ==
          "Sind Sie sicher das Sie das virtuelle Laufwerk 'Y:' löschen wollen?");
    CHECK(IsWindowEnabled(dialogue.program.Find("cmddelete")));
    CHECK(dialogue.shell.Lines() == Texts{ListLine});
}

TEST_CASE("output that cannot be read leaves an empty list and no box") {
    // Others may write the file, and neither read nor delete it.
    const HANDLE file = CreateFileW(ToWide(Output).c_str(), GENERIC_WRITE, FILE_SHARE_WRITE,
                                    nullptr, CREATE_ALWAYS, 0, nullptr);
    REQUIRE(file != INVALID_HANDLE_VALUE);
    {
        DrivesDialogue dialogue("X:\\: => C:\\\r\n");
        CHECK(dialogue.rows.Count() == 0);
        CHECK(dialogue.program.Box().window == nullptr);
        CHECK(dialogue.shell.Lines() == Texts{ListLine});
        CHECK(GetFileSize(file, nullptr) > 0);
    }
    CloseHandle(file);
    CHECK(DeleteFileW(ToWide(Output).c_str()));
}

TEST_CASE("the switch -r starts the program as any other start") {
    const SubstShell shell;
    const Workplace workplace;
    WriteValue({"HKCU", std::string(StoreKey) + "\\Config", "Count"}, TerminatedText("1"));
    WriteValue({"HKCU", std::string(StoreKey) + "\\Config", "Drives1"},
               TerminatedText("X:=>C:\\windows"));
    shell.Lines();
    {
        const OpenProgram program(workplace, "-r");
        program.CloseAndWait();
    }
    CHECK(shell.Lines().empty());
    CHECK_FALSE(Exists("X:\\"));
    DeleteTree("HKCU", StoreKey);
}

}  // namespace endtoend
