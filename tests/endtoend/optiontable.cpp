#include "endtoend/optiontable.h"

namespace endtoend {
namespace {

constexpr char MemoryKey[] =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management";
constexpr char PrefetchKey[] =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters";
constexpr char FileSystemKey[] = "SYSTEM\\CurrentControlSet\\Control\\FileSystem";
constexpr char CdfsKey[] = "SYSTEM\\CurrentControlSet\\Control\\FileSystem\\CDFS";
constexpr char DiskControllerKey[] =
    "SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000";
constexpr char BootKey[] = "SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction";
constexpr char WindowsKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
constexpr char WinlogonKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";

ValuePlace Machine(const char* key, const char* value) {
    return {"HKLM", key, value};
}

Effect Memory(const char* value, DWORD number) {
    return {Machine(MemoryKey, value), Dword(number)};
}

// The comma-separated text is stored as it stands, one byte a character: eleven bytes, not four.
std::vector<Effect> Cdfs(DWORD prefetch) {
    return {{Machine(CdfsKey, "CacheSize"), Binary("ff,ff,00,00")},
            {Machine(CdfsKey, "Prefetch"), Dword(prefetch)},
            {Machine(CdfsKey, "PrefetchTail"), Dword(prefetch)}};
}

}  // namespace

const std::vector<CheckBoxFacts>& CheckBoxesOfSystemPage() {
    static const std::vector<CheckBoxFacts> boxes = {
        {"chkmemorymanagement",
         "Memory Paging",
         true,
         {Memory("DisablePagingExecutive", 0)},
         {Memory("DisablePagingExecutive", 1)}},
        {"chkLargeSystemCache",
         "Large System Cache",
         false,
         {Memory("LargeSystemCache", 1)},
         {Memory("LargeSystemCache", 0)}},
        // The current user's hive, where the baseline has no such key: absent reads as on.
        {"chkBootOptimizeFunction",
         "Boot Optimize Function (Defrag)",
         true,
         {{{"HKCU", BootKey, "Enable"}, BareText("Y")}},
         {{{"HKCU", BootKey, "Enable"}, BareText("N")}}},
        {"chkSecondLevelDataCache",
         "Second Level Data Cache > 256 KB",
         false,
         {Memory("SecondLevelDataCache", 512)},
         {Memory("SecondLevelDataCache", 0)}},
        {"chkBoostLoading",
         "Boot Data Prefetch",
         false,
         {{Machine(PrefetchKey, "EnablePrefetcher"), Dword(5)}},
         {{Machine(PrefetchKey, "EnablePrefetcher"), Dword(3)}}},
        {"chkCDFSTune", "CDFS Performance verbessern", false, Cdfs(0x4000), Cdfs(0x3FFF)},
        {"chkFastServices",
         "Serverdienste beschleunigen",
         false,
         {Memory("IOPageLockLimit", 0x133333)},
         {Memory("IOPageLockLimit", 0)}},
        {"chkUltraDMA66",
         "Ultra-DMA/66 aktivieren",
         false,
         {{Machine(DiskControllerKey, "EnableUDMA66"), Dword(1)}},
         {{Machine(DiskControllerKey, "EnableUDMA66"), std::nullopt}}},
        {"chkMFTTuning",
         "Master File Table vergrößern (12,5% > 25%)",
         true,
         {{Machine(FileSystemKey, "NtfsMftZoneReservation"), Dword(2)}},
         {{Machine(FileSystemKey, "NtfsMftZoneReservation"), Dword(1)}}},
        {"chkAutoLogin",
         "Auto-Login aktivieren",
         false,
         {{Machine(WinlogonKey, "AutoAdminLogon"), BareText("1")}},
         {{Machine(WinlogonKey, "AutoAdminLogon"), std::nullopt}}},
        {"chkEnableAGP4x",
         "AGP 4x Modus bei NVIDIA Grafikkarten aktiviert",
         false,
         {{Machine(GraphicsDriverKey, "EnableVia4x"), Dword(1)}},
         {{Machine(GraphicsDriverKey, "EnableVia4x"), Dword(0)}}},
        // Nine digits: not the largest number of 32 bits.
        {"chkFixAthlonPCIAGP",
         "Problem mit Athlon Prozessoren und AGP Karten beheben",
         false,
         {Memory("LargePageMinimum", 429496729)},
         {{Machine(MemoryKey, "LargePageMinimum"), std::nullopt}}},
        {"chkLastAccessTimestamp",
         "Last Access Timestamp aktiv (nur NTFS)",
         true,
         {{Machine(FileSystemKey, "NtfsDisableLastAccessUpdate"), Dword(0)}},
         {{Machine(FileSystemKey, "NtfsDisableLastAccessUpdate"), Dword(1)}}},
    };
    return boxes;
}

const std::vector<TextBoxFacts>& TextBoxesOfSystemPage() {
    static const std::vector<TextBoxFacts> boxes = {
        {"txtStartmenu", "400", "123", {"HKCU", "Control Panel\\Desktop", "MenuShowDelay"}},
        {"txtOSVersion", "Microsoft Windows XP", "Fenster für Übermütige",
         Machine(WindowsKey, "ProductName")},
        {"txtUserName", "", "Jörg Müßig", Machine(WindowsKey, "RegisteredOwner")},
        {"txtCompanyName", "", "Grün & Söhne \"KG\"",
         Machine(WindowsKey, "RegisteredOrganization")},
        {"txtWindowsVersion", "5.1", "5.2", Machine(WindowsKey, "CurrentVersion")},
        {"txtOSBuild", "2600", "2601", Machine(WindowsKey, "CurrentBuildNumber")},
    };
    return boxes;
}

const std::vector<TextBoxFacts>& TextBoxesOfAutoLogin() {
    static const std::vector<TextBoxFacts> boxes = {
        {"txtALUserName", "", "Jörg", Machine(WinlogonKey, "DefaultUserName")},
        {"txtALPassword", "", "Geheim€ß", Machine(WinlogonKey, "DefaultPassword")},
        {"txtALDomain", "", "MÜNCHEN", Machine(WinlogonKey, "DefaultDomainName")},
    };
    return boxes;
}

}  // namespace endtoend
