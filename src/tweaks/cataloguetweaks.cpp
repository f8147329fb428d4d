#include "tweaks/catalogue.h"
#include "tweaks/cataloguekeys.h"
#include "tweaks/previewlibrary.h"
#include "tweaks/steps.h"

namespace tweaks {
namespace {

using registry::HKCR;
using registry::HKCU;
using registry::HKLM;

constexpr char DesktopKey[] = "Control Panel\\Desktop";
// Read without and written with a backslash at the end.
constexpr char EncodingKey[] = "SOFTWARE\\Microsoft\\MediaPlayer\\Settings\\MP3Encoding";
constexpr char EncodingKeyToWrite[] = "SOFTWARE\\Microsoft\\MediaPlayer\\Settings\\MP3Encoding\\";

// The only option that runs a command from the pass: the library is registered or unregistered
// anew in every pass.
void WritePreviewLibrary(const PassContext& pass, const Option& option) {
    WriteByRow(pass, option);
    SetPreviewLibrary(pass.machine, IsOn(pass, option.control));
}

constexpr Option TweaksRows[] = {
    // Not read by the pass: start-up sets the box from the settings store.
    Option{
        .control = "chkSHMediaDLL",
        .place = {HKCR, "SystemFileAssociations\\.avi\\shellex\\PropertyHandler", ""},
        .on = {DeleteValue()},
        .off = {Text("{87D62D94-71B3-4b9a-9489-5FE6850DC73E}")},
        .writeStep = WritePreviewLibrary,
    },
    Option{
        .control = "chkUnloadDll",
        .place = {HKLM, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer",
                  "AlwaysUnloadDll"},
        .onWhen = {PresentWith("1")},
        .on = {Text("1")},
        .off = {Text("0")},
    },
    Option{
        .control = "chkWinAnimate",
        .place = {HKCU, "Control Panel\\Desktop\\WindowMetrics", "MinAnimate"},
        .onWhen = {PresentWith("1")},
        .on = {Text("1")},
        .off = {Text("0")},
    },
    // Makes Nero's key also where Nero is not installed.
    Option{
        .control = "chkNeroBurnSpeed",
        .place = {HKCU, "Software\\Ahead\\Nero - Burning Rom\\Recorder", "ShowSingleRecorderSpeed"},
        .offWhen = {Equals(0)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // A text that is no number is passed over without a word.
    Option{
        .control = "txtTimeOut",
        .place = {HKCU, DesktopKey, "HungAppTimeout"},
        .always = {TextOfOwn().IfNumeric("txtTimeOut")},
    },
    // Off deletes the user's value, on purpose: the machine's value, once set, stays, and the
    // option keeps reading as on.
    Option{
        .control = "chkEncryptionContext",
        .place = {HKLM, AdvancedKey, "EncryptionContextMenu"},
        .onWhen = {Present()},
        .on = {Dword(1)},
        .off = {DeleteValue().Under(HKCU)},
    },
    Option{
        .control = "chkOSVersionOnDesktop",
        .place = {HKCU, DesktopKey, "PaintDesktopVersion"},
        .offWhen = {Equals(0)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkOldSearchAssistent",
        .place = {HKCU, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CabinetState",
                  "Use Search Asst"},
        .onWhen = {PresentWith("no")},
        .on = {Text("no")},
        .off = {Text("yes")},
    },
    Option{
        .control = "chkBalloonTipps",
        .place = {HKCU, AdvancedKey, "EnableBalloonTips"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // On removes the whole key, not the value alone; a key with sub-keys stays, and with it the
    // value. 185 is 0xB9.
    Option{
        .control = "chkCDAutoPlay",
        .place = {HKLM, PoliciesKey, "NoDriveTypeAutoRun"},
        .offWhen = {Present()},
        .on = {DeleteKey()},
        .off = {Dword(185)},
    },
    Option{
        .control = "chkDescriptionPopups",
        .place = {HKCU, AdvancedKey, "ShowInfoTip"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkDisableThumbnails",
        .place = {HKCU, AdvancedKey, "DisableThumbnailCache"},
        .onWhen = {Equals(0)},
        .on = {Dword(0)},
        .off = {Dword(1)},
    },
    Option{
        .control = "chkBSODAutostart",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Control\\CrashControl", "AutoReboot"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // The test looks for a value named "(Standard)", on purpose, while the default value is
    // written: the read cannot see what the write leaves, so an Apply that leaves the box alone
    // deletes the key.
    Option{
        .control = "chkImagePreview",
        .place = {HKCR,
                  "SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers\\ShellImagePreview",
                  "(Standard)"},
        .onWhen = {Present()},
        .on = {Text("{e84fda7c-1d6a-45f6-b725-cb260c236066}").To("")},
        .off = {DeleteKey()},
    },
    Option{
        .control = "chkShortCutInk",
        .place = {HKCR, "lnkfile", "IsShortcut"},
        .offWhen = {Present()},
        .on = {DeleteValue()},
        .off = {Text("")},
    },
    // The service's start type is never read.
    Option{
        .control = "chkSystemRestore",
        .place = {HKLM, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\SystemRestore",
                  "DisableSR"},
        .onWhen = {Equals(0)},
        .on = {Dword(0), Dword(0).In("SYSTEM\\CurrentControlSet\\Services\\sr").To("Start")},
        .off = {Dword(1), Dword(4).In("SYSTEM\\CurrentControlSet\\Services\\sr").To("Start")},
    },
    Option{
        .control = "chkNoSpaceCheck",
        .place = {HKCU, PoliciesKey, "NoLowDiskSpaceChecks"},
        .offWhen = {Present()},
        .on = {DeleteValue()},
        .off = {Dword(1)},
        .onGuard = Guard::ValuePresent,
    },
    Option{
        .control = "chkTaskBarGlooming",
        .place = {HKCU, AdvancedKey, "TaskbarGlomming"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // "Yes" reads as off.
    Option{
        .control = "chkSystemSpeaker",
        .place = {HKCU, "Control Panel\\Sound", "ExtendedSounds"},
        .onWhen = {Equals("yes")},
        .on = {Text("yes")},
        .off = {Text("no")},
    },
    Option{
        .control = "chkMP3BitRate",
        .place = {HKLM, EncodingKey, "LowRate"},
        .onWhen = {Present()},
        .on = {Dword(56000).In(EncodingKeyToWrite),
               Dword(128000).In(EncodingKeyToWrite).To("MediumRate"),
               Dword(256000).In(EncodingKeyToWrite).To("MediumHighRate"),
               Dword(320000).In(EncodingKeyToWrite).To("HighRate")},
        .off = {DeleteKey().In(EncodingKeyToWrite)},
    },
    // A stored text "1" turns into a number with the first Apply.
    Option{
        .control = "chkAutoEndTasks",
        .place = {HKCU, DesktopKey, "AutoEndTasks"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // A stored "NO" reads as on.
    Option{
        .control = "chkShowAdminToolsInStartMenue",
        .place = {HKCU, AdvancedKey, "StartMenuAdminTools"},
        .onWhen = {Present()},
        .on = {Text("YES")},
        .off = {DeleteValue()},
    },
    // Writes a second value, which chkScriptDebugging alone reads; that box writes nothing, on
    // purpose.
    Option{
        .control = "chkWindowsTour",
        .place = {HKLM, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Tour", "RunCount"},
        .offWhen = {AtLeast(1)},
        .on = {Dword(0), Text("yes")
                             .Under(HKCU)
                             .In("Software\\Microsoft\\Internet Explorer\\Main")
                             .To("Disable Script Debugger")},
        .off = {Dword(3), Text("no")
                              .Under(HKCU)
                              .In("Software\\Microsoft\\Internet Explorer\\Main")
                              .To("Disable Script Debugger")},
    },
    Option{
        .control = "chkCascadeExplorer",
        .place = {HKCU, AdvancedKey, "CascadeControlPanel"},
        .onWhen = {UpperEquals("YES")},
        .on = {Text("YES")},
        .off = {Text("NO")},
    },
    Option{
        .control = "chkDOSComp",
        .place = {HKLM, "System\\CurrentControlSet\\Control\\FileSystem",
                  "NtfsDisable8dot3NameCreation"},
        .onWhen = {Equals(0)},
        .on = {Dword(0)},
        .off = {Dword(1)},
    },
    // A number, on purpose, where Windows keeps a text; a present value of any size reads as on.
    Option{
        .control = "chkIconCache",
        .place = {HKLM, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer",
                  "Max Cached Icons"},
        .onWhen = {Present()},
        .on = {Dword(1024)},
        .off = {DeleteValue()},
    },
};

}  // namespace

std::span<const Option> TweaksOptions() {
    return TweaksRows;
}

}  // namespace tweaks
