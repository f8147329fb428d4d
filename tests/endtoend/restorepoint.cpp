#include <doctest/doctest.h>

#include "endtoend/dialogue.h"
#include "endtoend/standin/restorewizard.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

std::string SystemFolder() {
    wchar_t folder[MAX_PATH];
    return FromWide({folder, GetSystemDirectoryW(folder, MAX_PATH)});
}

// The stand-in at the wizard's place, which Wine leaves empty; it goes with this object.
class Wizard {
  public:
    Wizard() : folder_(SystemFolder() + "\\restore") {
        if (!ReadFile(Path()).empty()) throw Failed("this machine has a restore wizard");
        CreateDirectoryW(ToWide(folder_).c_str(), nullptr);
        if (!CopyFileW(ToWide(OwnFolder() + "\\rstrui.exe").c_str(), ToWide(Path()).c_str(),
                       TRUE)) {
            throw Failed("cannot put the stand-in to " + Path());
        }
        mayEnd_.Reset(CreateEventW(nullptr, TRUE, FALSE, WizardMayEnd));
    }
    ~Wizard() {
        LetEnd();
        // The file can go as soon as its process is really gone.
        for (unsigned waited = 0; waited < Patience && !Remove(Path()); waited += Step) Sleep(Step);
        Remove(Record());
        RemoveDirectoryW(ToWide(folder_).c_str());
    }
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    std::string Path() const { return folder_ + "\\rstrui.exe"; }
    void LetEnd() const { SetEvent(mayEnd_.Get()); }

    // Empty until it has been started.
    std::string CommandLine() const {
        const std::string bytes = ReadFile(Record());
        return FromWide({reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / 2});
    }

  private:
    std::string Record() const { return folder_ + '\\' + FromWide(WizardRecord); }
    static bool Remove(const std::string& path) {
        return DeleteFileW(ToWide(path).c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND;
    }

    std::string folder_;
    platform::win32::KernelHandle mayEnd_;
};

void AskForRestorePoint(const Program& program) {
    program.Click("cmdApply");
    program.Answer(ConfirmTitle, IDYES);
    const MessageBox box = program.WaitBox(RestorePointTitle);
    PostMessageW(GetDlgItem(box.window, IDYES), BM_CLICK, 0, 0);
}

TEST_CASE("Apply waits for the restore wizard before it writes") {
    const Workplace workplace;
    const Wizard wizard;
    const OpenProgram program(workplace);
    AskForRestorePoint(program);
    Until("the wizard", [&] { return !wizard.CommandLine().empty(); });
    CHECK(wizard.CommandLine() == wizard.Path());
    // Blocked: neither the window answers nor has the next step come.
    CHECK_FALSE(program.Responds("frmMain"));
    CHECK(workplace.Stored("Options", "TrayIcon") == "(absent)");
    wizard.LetEnd();
    DeclineRestart(program);
    CHECK(workplace.Stored("Options", "TrayIcon") == "0");
}

TEST_CASE("a missing restore wizard is passed over in silence") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    AskForRestorePoint(program);
    DeclineRestart(program);
    CHECK(workplace.Stored("Options", "TrayIcon") == "0");
    CHECK(workplace.Log() == "");
}

}  // namespace
}  // namespace endtoend
