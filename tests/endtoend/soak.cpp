// What a day with the program leaves behind: handles, objects and memory, cycle after cycle of all
// that a user does, in one process.
#include <windows.h>

#include <doctest/doctest.h>
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "endtoend/dialogue.h"
#include "endtoend/lists.h"
#include "endtoend/pages.h"
#include "endtoend/standin/substshell.h"
#include "endtoend/tools.h"
#include "endtoend/trayuser.h"
#include "endtoend/workplace.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "support/drawingobjects.h"
#include "support/openhandles.h"

namespace endtoend {
namespace {

namespace win32 = platform::win32;

constexpr unsigned ShortRun = 7;
constexpr unsigned FullRun = 120;

struct Footprint {
    int handles = 0;
    int drawing = 0;
    int user = 0;
    int kilobytes = 0;
};

// What a measure may grow by in each cycle, and beside that at all. A short run ends before the
// system's own stores are full, and memory says nothing then.
struct Bound {
    const char* name;
    int Footprint::* value;
    int perCycle;
    int allowance;
    int shortAllowance;
};

// Apply looks whether a policy's key is there; a key that was found so stays open (registry.cpp).
constexpr Bound Bounds[] = {
    {"handles", &Footprint::handles, 1, 4, 4},
    {"drawing objects", &Footprint::drawing, 0, 6, 12},
    {"user objects", &Footprint::user, 0, 12, 40},
    // It grows by 1 KB: each label that gets its font costs Wine a block.
    {"private KB", &Footprint::kilobytes, 2, 64, 4096},
};

int DrawingObjectsOf(HANDLE process) {
    PROCESS_BASIC_INFORMATION facts = {};
    REQUIRE(NtQueryInformationProcess(process, ProcessBasicInformation, &facts, sizeof facts,
                                      nullptr) == 0);
    const auto* block = reinterpret_cast<const char*>(facts.PebBaseAddress);
    const void* table = nullptr;
    std::vector<support::DrawingEntry> entries(support::DrawingEntries);
    REQUIRE(ReadProcessMemory(process, block + support::DrawingTableOffset, &table, sizeof table,
                              nullptr));
    REQUIRE(ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof entries[0],
                              nullptr));
    const int count = support::UsedDrawingEntries(entries.data());
    REQUIRE(count > 0);
    return count;
}

int WindowsOfOthers(DWORD process) {
    std::vector<HWND> windows = Application(0).TopLevel();
    std::erase_if(windows, [&](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner == process;
    });
    std::size_t count = windows.size();
    for (const HWND window : windows) count += WindowsBelow(window).size();
    return static_cast<int>(count);
}

// Windows, menus and the like take numbers from one pool of the session, the free ones before new
// ones. So all free ones are taken for a moment. Other programs' windows do not count: Wine's
// taskbar keeps the tip of every icon that it has ever had.
int UserObjects(DWORD process) {
    constexpr int FirstNumber = 0x20;
    constexpr int NumberStep = 2;
    static int highest = 0;
    std::vector<HMENU> taken;
    int last = 0;
    do {
        taken.push_back(CreateMenu());
        REQUIRE(taken.back());
        last = LOWORD(reinterpret_cast<ULONG_PTR>(taken.back()));
    } while (last <= highest);
    highest = last;
    for (const HMENU menu : taken) DestroyMenu(menu);
    const int numbers = (last - FirstNumber) / NumberStep + 1;
    return numbers - static_cast<int>(taken.size()) - WindowsOfOthers(process);
}

int KilobytesOf(HANDLE process) {
    PROCESS_MEMORY_COUNTERS facts = {};
    REQUIRE(GetProcessMemoryInfo(process, &facts, sizeof facts));
    return static_cast<int>(facts.PagefileUsage / 1024);
}

// Files where the search comes by, which go with this object.
class SearchedFiles {
  public:
    SearchedFiles() {
        for (int number = 0; number < 12; ++number) {
            files_.push_back(WindowsFolder() + "\\Temp\\soak " + std::to_string(number) + ".tmp");
            WriteFile(files_.back(), std::string(static_cast<std::size_t>(number) * 100, 'x'));
        }
    }
    ~SearchedFiles() {
        for (const std::string& file : files_) DeleteFileW(win32::ToWide(file).c_str());
    }
    SearchedFiles(const SearchedFiles&) = delete;
    SearchedFiles& operator=(const SearchedFiles&) = delete;

  private:
    std::vector<std::string> files_;
};

// The stand-in for the command shell, which has no drives to tell of.
class NoDrives {
  public:
    NoDrives() { WriteFile(place_.Path(), ReadFile(OwnFolder() + "\\substshell.exe")); }
    ~NoDrives() { DeleteFileW(win32::ToWide(place_.Path() + win32::FromWide(SubstLog)).c_str()); }
    NoDrives(const NoDrives&) = delete;
    NoDrives& operator=(const NoDrives&) = delete;

  private:
    EmptyPlace place_{SystemFolder() + "\\command.com"};
};

class Day {
  public:
    void Spend(bool shellRestarts) {
        TurnPages();
        Search();
        Sort();
        ApplyAll();
        OpenDialogs();
        HideAndRestore(shellRestarts);
        program_.OpenTab(SystemPage);
        Settle();
    }

    Footprint Measure() const {
        Footprint sample;
        sample.handles = support::OpenHandlesOf(program_.Process());
        sample.drawing = DrawingObjectsOf(process_.Get());
        sample.user = UserObjects(program_.Process());
        sample.kilobytes = KilobytesOf(process_.Get());
        return sample;
    }

    std::string Log() const { return workplace_.Log(); }
    void End() const { program_.CloseAndWait(); }

  private:
    void TurnPages() const {
        for (int page = SystemPage; page <= UtilitiesPage; ++page) {
            program_.OpenTab(page);
            Settle();
        }
    }
    void Settle() const {
        Until("the window to be free", [&] {
            return IsWindowEnabled(program_.Find("frmMain")) && program_.Responds("frmMain");
        });
    }
    // The button comes back when the search has ended.
    void Search() const {
        program_.OpenTab(CleanUpPage);
        Send(program_.Wait("cmdSearchTempFiles"), BM_CLICK);
        CHECK(program_.Text("lblScannedFiles") == "Suchvorgang abgeschlossen!");
    }
    void Sort() const {
        const Rows rows(program_.Wait("lvwFiles"));
        const int count = rows.Count();
        CHECK(count >= 12);
        const int columns = static_cast<int>(rows.Headers().size());
        for (int column = columns - 1; column >= 0; --column) {
            rows.ClickHeader(column);
            Settle();
        }
        CHECK(rows.Count() == count);
    }
    void ApplyAll() const {
        Apply(program_);
        CHECK(registrar_.WaitStart().commandLine.starts_with("regsvr32"));
        Settle();
    }

    void Leave(const std::string& form) const {
        program_.Wait(form);
        program_.PressKey(form, VK_ESCAPE);
        program_.WaitGone(form);
    }
    void Close(const std::string& form) const {
        Leave(form);
        Settle();
    }
    void Decline(const std::string& button, const std::string& title) const {
        program_.Click(button);
        program_.Answer(title, IDNO);
        Settle();
    }
    void OpenDialogs() const {
        program_.Click("cmdAbout");
        Close("frmAbout");
        program_.Click("cmdSysInfo");
        Close("frmSystemInformation");
        Decline("cmdSetAllOptimal", "AutoTuning");

        program_.OpenTab(UtilitiesPage);
        program_.Click("cmdInstalledSoftware");
        Close("frmInstalledSoftware");
        program_.Click("cmdVirtualDrive");
        Close("frmVirtualDrive");
        program_.Click("cmdShowAllLoggedOnUsers");
        // Wine has no list of them.
        program_.Answer("Fehler", IDOK);
        Close("frmShowAllLoggedInUsers");
        Decline("cmdShutdown(0)", "Computer herunterfahren");
        Decline("lblSFC", "Überprüfung der Windows XP Systemdateien");

        program_.OpenTab(SystemPage);
        program_.SetChecked("chkAutoLogin", true);
        program_.SetText("txtALPassword", "geheim");
        program_.Click("cmdApply");
        program_.Answer(ConfirmTitle, IDYES);
        Leave("frmPassword");
        program_.Answer(WrongPasswordTitle, IDOK);
        Settle();
        program_.SetChecked("chkAutoLogin", false);
    }
    void HideAndRestore(bool shellRestarts) const {
        user_.Hide();
        Until("the icon", [&] { return user_.HasIcon(); });
        if (shellRestarts) {
            user_.LoseIcon();
            CHECK_FALSE(user_.HasIcon());
            TrayUser::TellStart();
            Until("the icon's return", [&] { return user_.HasIcon(); });
        }
        user_.Choose(1);
        program_.Wait("frmMain");
        Until("the normal window", [&] { return !IsIconic(program_.Find("frmMain")); });
        Until("the icon's end", [&] { return !user_.HasIcon(); });
    }

    Workplace workplace_;
    SearchedFiles searchedFiles_;
    NoDrives noDrives_;
    StandIn registrar_{SystemFolder() + "\\regsvr32.exe"};
    OpenProgram program_{workplace_};
    TrayUser user_{program_};
    win32::KernelHandle process_{
        OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, program_.Process())};
};

unsigned Cycles() {
    const char* text = std::getenv("QUILLMORE_SOAK");
    return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : ShortRun;
}

int MiddleOf(const std::vector<Footprint>& footprints, std::size_t first, std::size_t count,
             int Footprint::* value) {
    std::vector<int> values;
    for (std::size_t at = first; at < first + count; ++at) values.push_back(footprints[at].*value);
    std::sort(values.begin(), values.end());
    return values[count / 2];
}

// The middle of the last cycles against that of the first ones in which all has been seen once.
void CheckFlat(const std::vector<Footprint>& footprints) {
    const bool isFull = footprints.size() >= FullRun;
    const std::size_t warm = isFull ? 20 : 3;
    const std::size_t count = isFull ? 50 : 2;
    const std::size_t last = footprints.size() - count;
    for (const Bound& bound : Bounds) {
        const int early = MiddleOf(footprints, warm, count, bound.value);
        const int late = MiddleOf(footprints, last, count, bound.value);
        const int meant = early + bound.perCycle * static_cast<int>(last - warm);
        const int allowance = isFull ? bound.allowance : bound.shortAllowance;
        std::printf("%s: %d at first, %d at last, %d to %d meant\n", bound.name, early, late, meant,
                    meant + allowance);
        INFO(std::string(bound.name));
        CHECK(late <= meant + allowance);
    }
}

void Soak(unsigned restartEvery) {
    const unsigned cycles = Cycles();
    REQUIRE(cycles >= ShortRun);
    std::vector<Footprint> footprints;
    Day day;
    std::printf("cycle  handles  drawing  user  private KB\n");
    for (unsigned cycle = 1; cycle <= cycles; ++cycle) {
        CAPTURE(cycle);
        day.Spend(restartEvery != 0 && cycle % restartEvery == 0);
        const Footprint last = day.Measure();
        footprints.push_back(last);
        if (cycles >= FullRun && cycle % 10 != 0) continue;
        std::printf("%5u  %7d  %7d  %4d  %10d\n", cycle, last.handles, last.drawing, last.user,
                    last.kilobytes);
        std::fflush(stdout);
    }
    CHECK(day.Log() == "");
    day.End();
    CheckFlat(footprints);
}

// Without a shell that starts anew, and with one; a short run does both in one.
TEST_CASE("day after day takes no more handles, objects and memory than is known of") {
    if (Cycles() < FullRun) return Soak(3);
    Soak(0);
    Soak(20);
}

}  // namespace
}  // namespace endtoend
