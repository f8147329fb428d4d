#include "tweaks/order.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tweaks {
namespace {

enum class Pass { Both, Read, Write };

// An option and the pass that takes it at this place, which for all but five places is both.
struct Place {
    std::string_view name;
    Pass pass = Pass::Both;
};

constexpr Place Places[] = {
    {"chkmemorymanagement"},
    {"chkLargeSystemCache"},
    {"chkBootOptimizeFunction"},
    {"lblVerwaltung(0)"},
    {"lblVerwaltung(1)"},
    {"lblVerwaltung(2)"},
    {"lblVerwaltung(3)"},
    {"lblVerwaltung(4)"},
    {"lblVerwaltung(5)"},
    {"lblVerwaltung(6)"},
    {"lblVerwaltung(7)"},
    {"lblVerwaltung(8)"},
    {"lblVerwaltung(9)"},
    {"lblVerwaltung(10)"},
    {"lblVerwaltung(11)"},
    {"lblVerwaltung(12)"},
    // It decides what the two boxes write, and is itself decided by what they have read.
    {"chkWinLogOn", Pass::Write},
    {"txtWinLogOnT"},
    {"txtWinLogOnC"},
    {"chkWinLogOn", Pass::Read},
    {"txtStartmenu"},
    {"chkTaskBarGlooming"},
    {"chkNoSpaceCheck"},
    {"lblVerwaltung(13)"},
    {"txtOSVersion"},
    // Only shown.
    {"txtProductId", Pass::Read},
    {"txtUserName"},
    {"txtCompanyName"},
    {"txtWindowsVersion"},
    {"txtOSBuild"},
    {"chkNTLogin"},
    {"chkPageFileDelete"},
    {"chkSecondLevelDataCache"},
    {"chkSystemRestore"},
    {"chkDelegateFolders"},
    {"chkDatensicherheit(1)"},
    {"chkWatsonIE"},
    {"chkWatsonXP"},
    {"chkIEExtensions"},
    {"chkOutlookTray"},
    {"chkLogOnAdmin"},
    {"chkBalloonTipps"},
    {"chkCDAutoPlay"},
    {"chkDescriptionPopups"},
    {"chkDatensicherheit(2)"},
    {"chkLastAccessTimestamp"},
    {"chkDisableThumbnails"},
    {"chkBSODAutostart"},
    {"cboMTU"},
    {"txtRWIN"},
    {"txtTTL"},
    {"chkMUTBH"},
    {"chkAutoMTU"},
    {"chkSACK"},
    {"cboHTTP10"},
    {"cboHTTP11"},
    {"chkImagePreview"},
    {"chkIEWinPos"},
    {"txtIETitel"},
    {"chkSystemSpeaker"},
    {"chkIPForwarding"},
    {"txtTimeOut"},
    {"chkMP3BitRate"},
    {"chkBoostLoading"},
    {"chkShortCutInk"},
    {"chkAutoEndTasks"},
    {"chkWindowsUpdate"},
    {"chkClearRecentDocs"},
    {"chkShowAdminToolsInStartMenue"},
    {"chkWindowsTour"},
    // Its value is written by chkWindowsTour.
    {"chkScriptDebugging", Pass::Read},
    {"chkErrorReporting"},
    {"chkCascadeExplorer"},
    {"chkNotifyDownloadReady"},
    {"chkCDFSTune"},
    {"chkDNSSpeed"},
    {"chkNetworkSpeed"},
    {"chkMFTTuning"},
    {"chkDOSComp"},
    {"chkTCPTuning"},
    {"chkWindowsDesktop"},
    {"chkIconCache"},
    {"chkNetworkTasks"},
    {"chkFastServices"},
    {"chkOldSearchAssistent"},
    {"chkDisableTM"},
    {"chkOSVersionOnDesktop"},
    {"chkEncryptionContext"},
    {"chkAutoLogin"},
    {"chkUltraDMA66"},
    {"chkNeroBurnSpeed"},
    {"chkWinAnimate"},
    {"chkUnloadDll"},
    {"chkHideComputer"},
    {"chkPWEntrys"},
    {"chkShowALLFiles"},
    {"chkFixAthlonPCIAGP"},
    {"chkEnableNetworkProcessor"},
    {"chkRemoveLastDocsFolder"},
    {"chkEnableAGP4x"},
    // Not read: the program remembers it among its own options.
    {"chkSHMediaDLL", Pass::Write},
};

constexpr bool Has(Pass pass, const Place& place) {
    return place.pass == Pass::Both || place.pass == pass;
}

template <Pass pass>
consteval auto NamesOf() {
    constexpr auto count = std::count_if(std::begin(Places), std::end(Places),
                                         [](const Place& place) { return Has(pass, place); });
    std::array<std::string_view, static_cast<std::size_t>(count)> names;
    std::size_t next = 0;
    for (const Place& place : Places) {
        if (Has(pass, place)) names[next++] = place.name;
    }
    return names;
}

constexpr auto ReadNames = NamesOf<Pass::Read>();
constexpr auto WriteNames = NamesOf<Pass::Write>();

}  // namespace

std::span<const std::string_view> ReadOrder() {
    return ReadNames;
}

std::span<const std::string_view> WriteOrder() {
    return WriteNames;
}

}  // namespace tweaks
