#include "toolkit/combobox.h"
#include "toolkit/form.h"
#include "tweaks/catalogue.h"
#include "tweaks/steps.h"

namespace tweaks {
namespace {

using registry::HKCU;
using registry::HKLM;

constexpr char TcpKey[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters";
// Two fixed interfaces, on purpose: the machine's own ones are not looked for. Where these are
// absent they are made by the first write.
constexpr char Interface1[] =
    "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
    "\\{3BD4192A-BF2A-4EBA-B0E7-7C61AE30590E}";
constexpr char Interface2[] =
    "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
    "\\{8323E657-4B53-48CC-A90C-C85DAC9764DD}";
constexpr char IEKey[] = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr char InternetKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
constexpr char LanmanKey[] = "SYSTEM\\CurrentControlSet\\Services\\LanmanWorkstation\\Parameters";

// The lists grow with each read, of which there is one a run.
void ReadPacketSize(const PassContext& pass, const Option& option) {
    auto& sizes = pass.form.Find<toolkit::ComboBox>(option.control);
    for (const char* size : {"552", "576", "1000", "1492", "1500", "3000"}) sizes.AddItem(size);
    ReadByRow(pass, option);
}

// Fills both lists of connections, as this box is read first.
void ReadConnections(const PassContext& pass, const Option& option) {
    auto& ofVersion11 = pass.form.Find<toolkit::ComboBox>("cboHTTP11");
    auto& ofVersion10 = pass.form.Find<toolkit::ComboBox>("cboHTTP10");
    for (int count = 1; count <= 20; ++count) {
        ofVersion11.AddItem(std::to_string(count));
        ofVersion10.AddItem(std::to_string(count));
    }
    ReadByRow(pass, option);
}

constexpr Option NetworkRows[] = {
    // Read from one interface and written to both, with two wordings of the same complaint.
    Option{
        .control = "cboMTU",
        .place = {HKLM, Interface1, "MTU"},
        .readStep = ReadPacketSize,
        .always =
            {NumberOf("cboMTU").IfNumeric("cboMTU", "MTU falsch eingegeben"),
             NumberOf("cboMTU").In(Interface2).IfNumeric("cboMTU", "MTU falscher Wert eingegeben")},
    },
    // The test looks at cboMTU, on purpose: a text of the own box that is no number fails in the
    // conversion and ends the pass.
    Option{
        .control = "txtRWIN",
        .place = {HKLM, TcpKey, "TcpWindowSize"},
        .always = {NumberOf("txtRWIN").IfNumeric("cboMTU", "RWIN falscher Wert eingegeben")},
    },
    Option{
        .control = "txtTTL",
        .place = {HKLM, TcpKey, "DefaultTTL"},
        .always = {NumberOf("txtTTL").IfNumeric("txtTTL", "TTL falscher Wert eingegeben")},
    },
    Option{
        .control = "cboHTTP10",
        .place = {HKLM, InternetKey, "MaxConnectionsPer1_0Server"},
        .readStep = ReadConnections,
        .always = {NumberOf("cboHTTP10").IfNumeric("cboHTTP10", "HTTP1.0 Wert falsch eingegeben")},
    },
    Option{
        .control = "cboHTTP11",
        .place = {HKLM, InternetKey, "MaxConnectionsPerServer"},
        .always = {NumberOf("cboHTTP11").IfNumeric("cboHTTP11", "HTTP1.1 Wert falsch eingegeben")},
    },
    // The value's presence carries the option, whatever it holds.
    Option{
        .control = "chkEnableNetworkProcessor",
        .place = {HKLM, TcpKey, "DisableTaskOffload"},
        .onWhen = {Present()},
        .on = {Dword(0)},
        .off = {DeleteValue()},
    },
    Option{
        .control = "chkDNSSpeed",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Services\\Dnscache\\Parameters",
                  "CacheHashTableBucketSize"},
        .onWhen = {Present()},
        .on = {Dword(1), Dword(384).To("CacheHashTableSize"),
               Dword(64000).To("MaxCacheEntryTtlLimit"), Dword(301).To("MaxSOACacheEntryTtlLimit")},
        .off = {DeleteValue(), DeleteValue().To("CacheHashTableSize"),
                DeleteValue().To("MaxCacheEntryTtlLimit"),
                DeleteValue().To("MaxSOACacheEntryTtlLimit")},
    },
    Option{
        .control = "chkNetworkSpeed",
        .place = {HKLM, LanmanKey, "MaxCmds"},
        .onWhen = {Present()},
        .on = {Dword(104), Dword(104).To("MaxThreads")},
        .off = {DeleteValue(), DeleteValue().To("MaxThreads")},
    },
    Option{
        .control = "chkTCPTuning",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Services\\AFD\\Parameters", "TransmitWorker"},
        .onWhen = {Present()},
        .on = {Dword(16), Dword(10).To("PriorityBoost")},
        .off = {DeleteValue(), DeleteValue().To("PriorityBoost")},
    },
    // The search for scheduled tasks of other computers. A key that Windows made lacks the value
    // "(Standard)", so it reads as removed, on purpose.
    Option{
        .control = "chkNetworkTasks",
        .place = {HKLM,
                  "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer"
                  "\\NameSpace\\{D6277990-4C6A-11CF-8D87-00AA0060F5BF}",
                  "(Standard)"},
        .offWhen = {Present()},
        .on = {DeleteKey()},
        .off = {Text("")},
        .onGuard = Guard::KeyPresent,
        .offGuard = Guard::KeyAbsent,
    },
    Option{
        .control = "chkSACK",
        .place = {HKLM, TcpKey, "SackOpts"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkAutoMTU",
        .place = {HKLM, TcpKey, "EnablePMTUDiscovery"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkMUTBH",
        .place = {HKLM, TcpKey, "EnablePMTUBHDetect"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkIPForwarding",
        .place = {HKLM, TcpKey, "IPEnableRouter"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    Option{
        .control = "chkPWEntrys",
        .place = {HKCU, InternetKey, "DisablePasswordCaching"},
        .onWhen = {Equals(1)},
        .on = {Text("1")},
        .off = {DeleteValue()},
    },
    // Off leaves a place of 44 bytes, stored as the text that it is written in.
    Option{
        .control = "chkIEWinPos",
        .place = {HKCU, IEKey, "Window_Placement"},
        .offWhen = {Present()},
        .on = {DeleteValue()},
        .off = {Binary("2c,00,00,00,02,00,00,00,03,00,00,00,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,"
                       "ff,ff,ff,ff,ff,ff,00,00,00,00,00,00,00,00,00,04,00,00,e2,02,00,00")},
    },
    // Written without a test, so that an empty box takes the search page away.
    Option{
        .control = "txtIETitel",
        .place = {HKCU, IEKey, "Search Page"},
        .always = {TextOfOwn()},
    },
    // For show only, on purpose: chkWindowsTour writes the value.
    Option{
        .control = "chkScriptDebugging",
        .place = {HKCU, IEKey, "Disable Script Debugger"},
        .onWhen = {LowerEquals("yes")},
    },
    Option{
        .control = "chkNotifyDownloadReady",
        .place = {HKCU, IEKey, "NotifyDownloadComplete"},
        .onWhen = {LowerEquals("yes")},
        .on = {Text("yes")},
        .off = {Text("no")},
    },
    // Level lets the user's list of extensions count; it is written in both states and never read.
    Option{
        .control = "chkIEExtensions",
        .place = {HKCU, "Software\\Microsoft\\Office\\10.0\\Outlook\\Security", "Level1Remove"},
        .laterKey = "Software\\Microsoft\\Office\\11.0\\Outlook\\Security",
        .onWhen = {NotEmpty()},
        .on = {Dword(3).To("Level"), TextOf("txtExtensions")},
        .off = {Dword(3).To("Level"), Text("")},
    },
    Option{
        .control = "chkOutlookTray",
        .place = {HKCU, "Software\\Microsoft\\Office\\10.0\\Outlook\\Preferences", "MinToTray"},
        .laterKey = "Software\\Microsoft\\Office\\11.0\\Outlook\\Preferences",
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
};

}  // namespace

std::span<const Option> NetworkOptions() {
    return NetworkRows;
}

}  // namespace tweaks
