#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/catalogue.h"
#include "tweaks/cataloguekeys.h"
#include "tweaks/steps.h"

namespace tweaks {
namespace {

using registry::HKCU;
using registry::HKLM;

// The title alone decides, once its box is filled: Windows shows no message without one. So a text
// without a title reads as off, and the next Apply wipes it.
void ReadLogonMessage(const PassContext& pass, const Option& option) {
    const bool titled = !pass.form.Find<toolkit::TextBox>("txtWinLogOnC").Text().empty();
    SetCheckBox(pass, option.control, titled);
}

// chkSecureWindows and chk1RecycleBinDelete have no row: they act on click, and no pass looks at
// them.
constexpr Option SecurityRows[] = {
    Option{
        .control = "chkRemoveLastDocsFolder",
        .place = {HKCU, PoliciesKey, "NoRecentDocsMenu"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkShowALLFiles",
        .place = {HKCU, AdvancedKey, "SuperHidden"},
        .onWhen = {Equals(1)},
        .on = {Text("1")},
        .off = {DeleteValue()},
    },
    Option{
        .control = "chkHideComputer",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Services\\lanmanserver\\parameters", "Hide"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkWatsonIE",
        .place = {HKLM, "Software\\Microsoft\\Internet Explorer\\Main", "IEWatsonEnabled"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // Read from the machine and written for the user, on purpose: what is written is never read
    // back.
    Option{
        .control = "chkWatsonXP",
        .place = {HKLM, "Software\\Policies\\Microsoft\\Office\\10.0\\Common", "DWNeverUpload"},
        .onWhen = {Equals(0)},
        .on = {Dword(0).Under(HKCU), Dword(0).Under(HKCU).To("DWNoExternalURL"),
               Dword(0).Under(HKCU).To("DWNoFileCollection"),
               Dword(0).Under(HKCU).To("DWNoSecondLevelCollection")},
        .off = {Dword(1).Under(HKCU), Dword(1).Under(HKCU).To("DWNoExternalURL"),
                Dword(1).Under(HKCU).To("DWNoFileCollection"),
                Dword(1).Under(HKCU).To("DWNoSecondLevelCollection")},
    },
    // The other way round: read from the user and written for the machine, on purpose too.
    Option{
        .control = "chkWindowsDesktop",
        .place = {HKCU, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer", "DesktopProcess"},
        .onWhen = {Present()},
        .on = {Dword(1).Under(HKLM)},
        .off = {DeleteValue().Under(HKLM)},
    },
    // ShowUI is written along and never read.
    Option{
        .control = "chkErrorReporting",
        .place = {HKLM, "SOFTWARE\\Microsoft\\PCHealth\\ErrorReporting", "DoReport"},
        .offWhen = {AtLeast(1)},
        .on = {Dword(0), Dword(0).To("ShowUI")},
        .off = {Dword(1), Dword(1).To("ShowUI")},
    },
    Option{
        .control = "chkClearRecentDocs",
        .place = {HKCU, PoliciesKey, "ClearRecentDocsOnExit"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkWindowsUpdate",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Control\\Update", "UpdateMode"},
        .onWhen = {Equals(0)},
        .on = {Dword(0)},
        .off = {Dword(1)},
    },
    Option{
        .control = "chkLogOnAdmin",
        .place = {HKLM,
                  "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\SpecialAccounts"
                  "\\UserList",
                  "Administrator"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // A stored 0 reads as on too.
    Option{
        .control = "chkDisableTM",
        .place = {HKCU, PoliciesKey, "DisableTaskMgr"},
        .onWhen = {Present()},
        .on = {Dword(1)},
        .off = {DeleteValue()},
    },
    // A machine outside of a domain logs on without the keys while the value is absent.
    Option{
        .control = "chkNTLogin",
        .place = {HKLM, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system",
                  "disablecad"},
        .offWhen = {Equals(0)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkPageFileDelete",
        .place = {HKLM, MemoryKey, "ClearPageFileAtShutdown"},
        .offWhen = {Equals(0)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // The shared documents in My Computer. A key that Windows made lacks the value "(Standard)", so
    // it reads as removed, on purpose, and the first Apply then removes it; the key that this row
    // makes reads as kept.
    Option{
        .control = "chkDelegateFolders",
        .place = {HKLM,
                  "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace"
                  "\\DelegateFolders\\{59031a47-3f72-44a7-89c5-5595fe6b30ee}",
                  "(Standard)"},
        .offWhen = {Present()},
        .on = {DeleteKey()},
        .off = {Text("")},
        .onGuard = Guard::KeyPresent,
        .offGuard = Guard::KeyAbsent,
    },
    Option{
        .control = "chkWinLogOn",
        .readStep = ReadLogonMessage,
    },
    // Both boxes keep what they hold while the check box is off; the values are emptied, not
    // deleted.
    Option{
        .control = "txtWinLogOnT",
        .place = {HKLM, WinlogonKey, "LegalNoticeText"},
        .decidedBy = "chkWinLogOn",
        .on = {TextOfOwn()},
        .off = {Text("")},
    },
    Option{
        .control = "txtWinLogOnC",
        .place = {HKLM, WinlogonKey, "LegalNoticeCaption"},
        .decidedBy = "chkWinLogOn",
        .on = {TextOfOwn()},
        .off = {Text("")},
    },
    // A key that is there is left as it is, however incomplete.
    Option{
        .control = "chkDatensicherheit(1)",
        .place = {HKLM,
                  "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions"
                  "\\{c95fe080-8f5d-11d2-a20b-00aa003c157a}",
                  "MenuStatusBar"},
        .offWhen = {Present()},
        .on = {DeleteKey()},
        .off = {Text("").To("(Standard)"), Text("@shdoclc.dll,-866").To("ButtonText"),
                Text("{1FBA04EE-3024-11D2-8F1F-0000F87ABD16}").To("clsid"),
                Text(",4").To("HotIcon"), Text(",4").To("Icon"), Text("@shdoclc.dll,-865"),
                Text("@shdoclc.dll,-864").To("MenuText"),
                Text("%SystemRoot%\\web\\related.htm").To("Script")},
        .offGuard = Guard::KeyAbsent,
    },
    // The wrong box is cleared on purpose: what chkDescriptionPopups has just read is overruled
    // wherever the value is not "Yes".
    Option{
        .control = "chkDatensicherheit(2)",
        .place = {HKLM, "SOFTWARE\\Microsoft\\MediaPlayer\\PlayerUpgrade", "EnableAutoUpgrade"},
        .onWhen = {Equals("Yes")},
        .otherwiseClears = "chkDescriptionPopups",
        .on = {Text("Yes")},
        .off = {Text("No")},
    },
};

}  // namespace

std::span<const Option> SecurityOptions() {
    return SecurityRows;
}

}  // namespace tweaks
