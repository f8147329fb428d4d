#include "sweep/policy.h"

#include <algorithm>

namespace sweep_test {
namespace {

using Names = std::vector<std::string_view>;

const Names Everything{""};
const Names Starts{"start", "first start"};
const Names Ends{"close",          "session: cmdShutdown", "tray: Benutzer",
                 "tray: Computer", "tray: Beenden",        "Apply with"};
const Names CacheCalls{"FindFirstUrlCacheEntryA", "FindNextUrlCacheEntryA", "LocalAlloc"};
const Names ShellWindowCalls{"FindWindow*",    "GetWindowLongA",
                             "SetWindowLongA", "SetLayeredWindowAttributes",
                             "SendMessageA",   "SetWindowPos"};
constexpr std::string_view Log = "!disk c:\\programme\\quillmore\\quillmore.log";
constexpr std::string_view Told = "Fehler ";

bool Begins(std::string_view text, const Names& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](std::string_view start) { return text.starts_with(start); });
}

bool IsNamed(std::string_view call, std::string_view pattern) {
    if (!pattern.ends_with('*')) return call == pattern;
    return call.starts_with(pattern.substr(0, pattern.size() - 1));
}

}  // namespace

const std::vector<Rule>& Rules() {
    static const std::vector<Rule> rules = {
        // A registry call that is refused is told nobody, and costs the one value that it was
        // about, with the keys made for it.
        {Everything, {"Reg*"}, {"1registry ", "!open keys"}},
        {Starts, {"Reg*"}, {"1!control ", "!open keys"}},
        {Starts, {"Reg*"}, {"!control lblSP", "!open keys"}},
        // Each statement of the start is passed over by itself.
        {Starts, {"GetSetting"}, {"1!control "}},
        {Starts, {"GetSetting"}, {"1!window place"}},
        {Starts, {"GetSetting"}, {"!control Level", "!control txtLevelValue", "shell window "}},
        {Starts, {"GetSetting"}, {"!control chkTrayIcon", "tray"}},
        {Starts, {"SaveSetting"}, {"shell window "}},
        {Starts, CacheCalls, {"!control List1", "!control cmdClearIECache"}},
        {Starts, {"SetTimer"}, {"timers"}},
        {Starts, {"CreateWindowExA"}, {"help texts"}},
        {Starts, {"Tray.*"}, {"!tray"}},
        {Starts,
         {"GetDiskFreeSpaceExA", "GetLogicalDrives", "GetVolumeInformationA",
          "GetWindowsDirectoryA"},
         {"!control drvSelect", "!control lblFreeDriveSpace", "!control lblGesamt"}},
        // A system that does not tell its version is the wrong one: the program ends.
        {Starts,
         {"GetVersionExA"},
         {"!control ", "!ended", "help texts", "open ", "!setting Quillmore|Options|",
          "shell window ", "timers", "tray", "!window "},
         "Quillmore - Falsches Betriebssystem"},
        // What cannot be noted as accepted, or read again, is not.
        {{"first start"},
         {"SaveSetting", "GetSetting"},
         {"!control ", "!ended", "help texts", "open ", "setting ", "shell window ", "timers",
          "tray", "!window "}},

        // Closing is one procedure that reports: what comes behind is left out, but the window
        // goes. The five boxes are noted one by one.
        {Ends, {"SaveSetting"}, {"1setting Quillmore|Options|"}},
        {Ends,
         {"SaveSetting", "Tray.SetShown"},
         {"setting Quillmore|Options|", "ended", "!window ", "open dialogs", "!control ", "timers",
          "help texts", Log},
         Told},
        {Ends, {"MessageBox", "TrackPopupMenu"}, {"", "!open dialogs"}},
        {Ends, {"ExitSession"}, {"", "!open dialogs"}, "", true},
        {Ends, {"DestroyWindow"}, {"help texts"}},
        {Ends, {"AutoStart*"}, {"1autostart "}},

        // Of Apply's questions a box that cannot be shown is answered by nobody.
        {{"Apply"}, {"MessageBox"}, Everything},
        {{"Apply"}, {"CreateProcessA", "GetSystemDirectoryA"}, {"!process "}},
        // The pass is one procedure that reports; its hourglass stays.
        {{"Apply"},
         {"Start", "SaveSetting"},
         {"registry ", "process ", "setting ", "!window pointer", Log},
         Told},
        {{"Apply"}, {"SaveSetting"}, {"1setting Quillmore|Options|"}},
        {{"Apply"}, {"ExitSession"}, {"session "}},

        // A search finds less, never more. One that fails as a whole says so, and adds nothing up.
        {{"search"}, {"*"}, {"row lvwFiles ", "!control lblHinweisTemp"}},
        {{"search"},
         {"FindFirstFileW"},
         {"row lvwFiles ", "!control lblHinweisTemp", "control cmdCleanTempFiles"},
         Told},
        {{"removal"}, {"*"}, {"disk ", "bin "}},
        // What cannot be opened counts as in use when that is the reason, and stays.
        {{"removal"},
         {"OpenForReading", "CloseFile"},
         {"disk ", "bin ", "!control lblHinweisTemp"}},
        {{"removal"},
         {"GetDiskFreeSpaceExA"},
         {"!control lblGesamt", "!control lblFreeDriveSpace"}},
        {{"removal", "bin"}, {"MessageBox"}, Everything},
        {{"bin"}, {"SHEmptyRecycleBinA"}, {"bin "}},
        {{"bin"}, {"GetDiskFreeSpaceExA"}, {"!control lblGesamt", "!control lblFreeDriveSpace"}},
        // What the cache does not tell is not listed.
        {{"cache: "}, CacheCalls, {"!control List1", "!control cmdClearIECache"}},
        {{"cache: l"}, {"DeleteUrlCacheEntryA"}, {"1cache ", "!control List1"}},
        {{"launcher: lblRestorePoint"}, {"*"}, {"!process "}},
        // Without the directory the path begins at the root, on purpose.
        {{"launcher: ", "session: cmdLockWS", "tray: Work"},
         {"GetWindowsDirectoryA", "ShellExecuteA", "TrackPopupMenu"},
         {"!process ", "!execute "}},
        {{"launcher: "}, {"Start", "shell32*"}, {"process ", "properties ", Log}, Told},
        {{"launcher: lblSFC"}, {"MessageBox"}, {"process "}},
        {{"launcher: cmdHilfe"}, {"Start"}, {"process "}, "Quillmore Hilfe: "},
        {{"tray: "}, {"Tray.*"}, {"!tray", "!window "}, "", true},
        {{"tray: Quillmore"}, {"TrackPopupMenu"}, Everything},

        // An effect that fails leaves its box as the user has set it.
        {{"box: ", "slider: "},
         {"*"},
         {"!disk c:\\windows\\inf\\sysoc.inf", "!setting ", "process ", "!control ",
          "shell window "},
         "",
         true},
        {{"box: chkCleanUserTempFolder"}, {"MessageBox"}, {}},
        {{"box: chkHide"}, {"GetWindowsDirectoryA"}, {"disk c:\\windows\\inf\\sysoc.inf"}},

        {Everything, ShellWindowCalls, {"!shell window "}},
        {{"preset: ", "AutoTuning"}, {"GlobalMemoryStatus"}, {"!control chkSecondLevelDataCache"}},
        // A preset ends where the effect of one of its boxes fails; AutoTuning does not.
        {{"preset: "},
         {"SaveSetting", "Start"},
         {"control ", "setting ", "process ", "shell window "},
         "",
         true},
        {{"preset: cmdPathDefault"},
         {"GetUserNameA", "GetWindowsDirectoryA"},
         {"1!control lblVerwaltung("}},
        {{"AutoTuning"}, {"SaveSetting"}, {"1setting ", "process ", "shell window "}},
        {{"AutoTuning"}, {"Start"}, {"process "}},
        {{"AutoTuning"}, {"MessageBox"}, Everything},

        {Everything, {"CloseHandle"}, {"!open processes"}},
        {{"time: "}, {"MessageBox"}, {}},
        // Whatever keeps the time from being set is told, but for what comes after the box.
        {{"time: "},
         {"Socket.Connect", "SetLocal*", "SetTimer"},
         {"!clock"},
         "Einstellungen aktualisiert: Datum und Uhrzeit NICHT"},
        // Without any timer the clock stands still until the next synchronisation.
        {{"time: "}, {"SetTimer"}, {"!timers"}, "", true},
        {{"time: computer"}, {"NetRemoteTOD"}, {"clock"}, "Fehler beim synchronisieren"},
        {{"time: server"}, {"SetSystemTime"}, {"clock"}},
        {{"time: server"}, {"Socket.GetData"}, {"clock"}, "", true},

        {{"about: "}, {"SetTimer"}, {"browser "}, "", true},
        {{"about: "}, {"SetTimer"}, {}},
        {{"about: "}, {"CreateObject"}, {"browser "}, "Fehler"},
        {{"about: "}, {"GetDeviceCaps"}, {"browser "}},
        {{"about: "}, {"InternetExplorer.*"}, {"browser "}, "", true},
        {{"system information: "}, {"*"}, {"!clipboard"}},
        {{"system information: "}, {"SetClipboardData"}, {"clipboard"}, "Systeminformation"},
        {{"logged-on users: "}, {"NetWkstaUserEnum"}, {}, "Fehler"},
        // What is not listed cannot be chosen.
        {{"installed software: "}, {"Reg*"}, {"process Eins", "registry ", "!open keys"}},
        {{"installed software: "}, {"MessageBox"}, {"process Eins", "registry ", "!open keys"}},
        {{"installed software: Eintrag"},
         {"RegDeleteKeyA"},
         {"registry ", "!open keys"},
         "Eintrag konnte nicht gelöscht werden"},
        {{"installed software: "},
         {"Start", "SetTimer"},
         {"process Eins"},
         "Fehler beim deinstallieren aufgetreten"},
        {{"virtual drives: "}, {"*"}, {"!process ", "setting "}},
        {{"virtual drives: "},
         {"SetCurrentDirectoryW", "Start"},
         {"!process ", "setting "},
         "Virtuelles Laufwerk konnte nicht erstellt werden"},
        {{"virtual drives: "},
         {"SetCurrentDirectoryW", "Start"},
         {"!process "},
         "Löschen fehlgeschlagen"},
        {{"virtual drives: "},
         {"SetCurrentDirectoryW", "SaveSetting", "DeleteSetting"},
         {"setting "},
         "",
         true},
        {{"virtual drives: "},
         {"GetShortPathNameA"},
         {"!process "},
         "Virtuelles Laufwerk kann nich erstellt werden"},
        {{"virtual drives: "}, {"GetLogicalDrives"}, {"!process "}, "Virtuelles Laufwerk erstellt"},
        {{"virtual drives: "}, {"DeleteFile"}, {"!disk c:\\tmpout.txt"}},
    };
    return rules;
}

std::vector<const Rule*> RulesFor(std::string_view workflow) {
    std::vector<const Rule*> found;
    for (const Rule& rule : Rules()) {
        if (Begins(workflow, rule.workflows)) found.push_back(&rule);
    }
    return found;
}

std::vector<const Rule*> RulesFor(std::string_view workflow, std::string_view call) {
    std::vector<const Rule*> found = RulesFor(workflow);
    std::erase_if(found, [&](const Rule* rule) {
        return std::none_of(rule->calls.begin(), rule->calls.end(),
                            [&](std::string_view pattern) { return IsNamed(call, pattern); });
    });
    return found;
}

}  // namespace sweep_test
