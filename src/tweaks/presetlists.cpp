#include "tweaks/presetlists.h"

namespace tweaks {
namespace {

// The page of the vendor that Windows XP itself searches with.
constexpr char DefaultSearchPage[] = "http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch";

// What only the button "Empfohlen" sets, where another list has what "Standard" does.
constexpr PresetRow Recommend(const char* control, const char* value) {
    return {control, Leave, value};
}

// The two buttons of this page run in orders of their own. One sets the slider of the opacity and
// the other its box; each takes the other along, so both end opaque.
constexpr PresetRow SystemStandard[] = {
    {"chkmemorymanagement", "1"},
    {"chkLargeSystemCache", "0"},
    {"chkBootOptimizeFunction", "1"},
    {"chkSecondLevelDataCache", "0"},
    {"chkBoostLoading", "0"},
    {"chkAutoLogin", "0"},
    {"chkCDFSTune", "0"},
    {"chkFastServices", "0"},
    {"chkUltraDMA66", "0"},
    {"txtALUserName", ""},
    {"txtALPassword", ""},
    {"txtALDomain", ""},
    {"txtOSVersion", "Microsoft Windows XP"},
    {"txtWindowsVersion", "5.1"},
    {"chkIcons", "0"},
    {"Level", "255"},
    {"chkMFTTuning", "0"},
    {"chkLastAccessTimestamp", "1"},
};

constexpr PresetRow SystemRecommended[] = {
    Recommend("txtOSVersion", "Microsoft Windows XP"),
    Recommend("txtWindowsVersion", "5.1"),
    Recommend("txtLevelValue", "255"),
    Recommend("chkAutoLogin", "0"),
    Recommend("txtALUserName", ""),
    Recommend("txtALPassword", ""),
    Recommend("txtALDomain", ""),
    Recommend("chkUltraDMA66", "1"),
    Recommend("chkmemorymanagement", "0"),
    Recommend("chkLargeSystemCache", "1"),
    Recommend("chkBootOptimizeFunction", "1"),
    Recommend("chkSecondLevelDataCache", ByMemory),
    Recommend("chkBoostLoading", "1"),
    Recommend("chkCDFSTune", "1"),
    Recommend("chkFastServices", "1"),
    Recommend("chkIcons", "1"),
    Recommend("chkLastAccessTimestamp", "0"),
    Recommend("chkMFTTuning", "1"),
};

constexpr PresetRow Tweaks[] = {
    {"chkBalloonTipps", "1", "0"},
    {"chkCDAutoPlay", "1", "0"},
    {"chkDescriptionPopups", "1", "0"},
    {"chkTaskBarGlooming", "1", "1"},
    {"chkNoSpaceCheck", "1", "0"},
    {"chkImagePreview", "1", "0"},
    {"chkShortCutInk", "0", "0"},
    {"chkAutoEndTasks", "0", "1"},
    {"chkOldSearchAssistent", "0", "0"},
    {"chkOSVersionOnDesktop", "0", "0"},
    {"chkEncryptionContext", "0", "1"},
    {"chkHideWinComponents", "0", "0"},
    {"chkDisableThumbnails", "1", "1"},
    {"chkWindowsTour", "1", "1"},
    {"chkCascadeExplorer", "0", "0"},
    // Nobody is advised to switch the short names on or off.
    {"chkDOSComp", "1", Leave},
    {"chkIconCache", "0", "1"},
    {"chkShowAdminToolsInStartMenue", "0", "1"},
    {"chkMP3BitRate", "0", "1"},
    {"chkSystemSpeaker", "1", "1"},
    {"chkSystemRestore", "1", "1"},
    {"chkBSODAutostart", "1", "0"},
    {"chkNeroBurnSpeed", "0", "1"},
    {"txtTimeOut", "10000", "5000"},
    {"txtStartmenu", "400", "150"},
    {"chkWinAnimate", "1", "1"},
    {"chkUnloadDll", "0", "1"},
};

constexpr PresetRow Security[] = {
    {"chkWinLogOn", "0", "0"},
    {"txtWinLogOnC", "", ""},
    {"txtWinLogOnT", "", ""},
    {"chkDatensicherheit(1)", "0", "1"},
    {"chkDatensicherheit(2)", "1", "0"},
    {"chk1RecycleBinDelete", "0", "0"},
    {"chkNTLogin", "0", "0"},
    {"chkDelegateFolders", "0", "1"},
    {"chkPageFileDelete", "0", "1"},
    {"chkDisableTM", "0", "0"},
    {"chkSecureWindows", "0", "1"},
    {"chkWindowsUpdate", "0", "1"},
    {"chkErrorReporting", "0", "1"},
    {"chkWindowsDesktop", "0", "1"},
    {"chkClearRecentDocs", "0", "1"},
    {"chkLogOnAdmin", "0", "0"},
    {"chkWatsonIE", "1", "0"},
    {"chkWatsonXP", "1", "0"},
};

// "Empfohlen" leaves the connection type where it is, although the numbers are those of ISDN then.
constexpr PresetRow Network[] = {
    {"chkNotifyDownloadReady", "0", "0"},
    {"chkScriptDebugging", "0", "1"},
    {"chkIEWinPos", "0", "1"},
    {"chkNetworkSpeed", "0", "1"},
    {"chkNetworkTasks", "0", "1"},
    {"chkDNSSpeed", "0", "1"},
    {"chkTCPTuning", "0", "1"},
    {"chkOutlookTray", "0", "1"},
    {"optOptimalDFUESets(1)", "1", Leave},
    {"cboHTTP10", "4", "8"},
    {"cboHTTP11", "2", "6"},
    {"chkSACK", "1", "1"},
    {"chkAutoMTU", "1", "1"},
    {"chkIEExtensions", "0", "0"},
    // Emptied by both; the extensions have a small "Standard" of their own.
    {"txtExtensions", "", ""},
    {"chkIPForwarding", "0", "0"},
    {"chkMUTBH", "0", "0"},
    {"cboMTU", "576", "1472"},
    {"txtRWIN", "2144", "11680"},
    {"txtTTL", "128", "64"},
    {"txtIETitel", DefaultSearchPage, Leave},
};

constexpr PresetRow Extensions[] = {{"txtExtensions", "exe;zip"}};

constexpr PresetButton Buttons[] = {
    {"cmdNormal", SystemStandard, &PresetRow::standard},
    {"cmdOptimal", SystemRecommended, &PresetRow::recommended},
    {"cmdNormalWindows2", Tweaks, &PresetRow::standard},
    {"cmdOptimalWindows2", Tweaks, &PresetRow::recommended},
    {"cmdDefaultMisc", Security, &PresetRow::standard},
    {"cmdOptimalMisc", Security, &PresetRow::recommended},
    {"cmdStandardDfue", Network, &PresetRow::standard},
    {"cmdOptimalDfue", Network, &PresetRow::recommended},
    {"cmdExtensionDefault", Extensions, &PresetRow::standard},
};

constexpr PresetRows Recommended[] = {SystemRecommended, Tweaks, Security, Network};

}  // namespace

std::span<const PresetButton> PresetButtons() {
    return Buttons;
}

std::span<const PresetRows> RecommendedLists() {
    return Recommended;
}

}  // namespace tweaks
