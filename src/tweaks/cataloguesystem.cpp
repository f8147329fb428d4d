#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/catalogue.h"
#include "tweaks/cataloguekeys.h"
#include "tweaks/steps.h"

namespace tweaks {
namespace {

using registry::HKCU;
using registry::HKLM;

constexpr char CdfsKey[] = "SYSTEM\\CurrentControlSet\\Control\\FileSystem\\CDFS";

// Without the driver's key the box is shut, because its on side would make the key for a driver
// that is not there; it is the only option that looks whether it makes sense on this machine.
void ReadAgp(const PassContext& pass, const Option& option) {
    pass.form.Find<toolkit::CheckBox>(option.control)
        .SetEnabled(pass.registry.RegKeyPresent(option.place.root, option.place.key));
    ReadByRow(pass, option);
}

constexpr Option SystemRows[] = {
    // On means that the kernel may be paged out.
    Option{
        .control = "chkmemorymanagement",
        .place = {HKLM, MemoryKey, "DisablePagingExecutive"},
        .onWhen = {Equals(0)},
        .on = {Dword(0)},
        .off = {Dword(1)},
    },
    Option{
        .control = "chkLargeSystemCache",
        .place = {HKLM, MemoryKey, "LargeSystemCache"},
        .onWhen = {Equals(1)},
        .on = {Dword(1)},
        .off = {Dword(0)},
    },
    // The current user's root on purpose, although the key is spelt like one of the machine's.
    Option{
        .control = "chkBootOptimizeFunction",
        .place = {HKCU, "SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction", "Enable"},
        .offWhen = {Equals("N")},
        .on = {Text("Y")},
        .off = {Text("N")},
    },
    Option{
        .control = "chkSecondLevelDataCache",
        .place = {HKLM, MemoryKey, "SecondLevelDataCache"},
        .offWhen = {Equals(0)},
        .on = {Dword(512)},
        .off = {Dword(0)},
    },
    // Every other number reads as off, and off writes 3.
    Option{
        .control = "chkBoostLoading",
        .place = {HKLM,
                  "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"
                  "\\PrefetchParameters",
                  "EnablePrefetcher"},
        .onWhen = {Equals(5)},
        .on = {Dword(5)},
        .off = {Dword(3)},
    },
    // CacheSize gets the same eleven characters in both states and is never read.
    Option{
        .control = "chkCDFSTune",
        .place = {HKLM, CdfsKey, "Prefetch"},
        .onWhen = {Equals(16384), Equals(16384).Of("PrefetchTail")},
        .on = {Binary("ff,ff,00,00").To("CacheSize"), Dword(16384),
               Dword(16384).To("PrefetchTail")},
        .off = {Binary("ff,ff,00,00").To("CacheSize"), Dword(16383),
                Dword(16383).To("PrefetchTail")},
    },
    Option{
        .control = "chkFastServices",
        .place = {HKLM, MemoryKey, "IOPageLockLimit"},
        .offWhen = {EmptyOrEquals(0)},
        .on = {Dword(1258291)},
        .off = {Dword(0)},
    },
    // The first controller alone; a stored 0 reads as on too.
    Option{
        .control = "chkUltraDMA66",
        .place = {HKLM,
                  "SYSTEM\\CurrentControlSet\\Control\\Class"
                  "\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000",
                  "EnableUDMA66"},
        .onWhen = {Present()},
        .on = {Dword(1)},
        .off = {DeleteValue()},
    },
    Option{
        .control = "chkMFTTuning",
        .place = {HKLM, "System\\CurrentControlSet\\Control\\FileSystem", "NtfsMftZoneReservation"},
        .offWhen = {Equals(1)},
        .on = {Dword(2)},
        .off = {Dword(1)},
    },
    // One value decides over four controls, by its presence: a stored "0" reads as on. The password
    // is stored as it is, which is how Windows wants it for its automatic logon.
    Option{
        .control = "chkAutoLogin",
        .place = {HKLM, WinlogonKey, "AutoAdminLogon"},
        .onWhen = {Present()},
        .on = {Text("1"), TextOf("txtALUserName").To("DefaultUserName"),
               TextOf("txtALPassword").To("DefaultPassword"),
               TextOf("txtALDomain").To("DefaultDomainName")},
        .off = {DeleteValue(), DeleteValue().To("DefaultUserName"),
                DeleteValue().To("DefaultPassword"), DeleteValue().To("DefaultDomainName")},
    },
    // The on side has no guard: the shut box keeps it from being reached where the key is absent.
    Option{
        .control = "chkEnableAGP4x",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Services\\nv4\\Device0", "EnableVia4x"},
        .onWhen = {Present(), Equals(1)},
        .readStep = ReadAgp,
        .on = {Dword(1)},
        .off = {Dword(0)},
        .offGuard = Guard::KeyPresent,
    },
    // 0x19999999, nine digits; not the largest number of 32 bits.
    Option{
        .control = "chkFixAthlonPCIAGP",
        .place = {HKLM, MemoryKey, "LargePageMinimum"},
        .onWhen = {Present()},
        .on = {Dword(429496729)},
        .off = {DeleteValue()},
    },
    Option{
        .control = "txtStartmenu",
        .place = {HKCU, "Control Panel\\Desktop", "MenuShowDelay"},
        .always = {TextOfOwn()},
    },
    // Turned round against the value's name.
    Option{
        .control = "chkLastAccessTimestamp",
        .place = {HKLM, "SYSTEM\\CurrentControlSet\\Control\\FileSystem",
                  "NtfsDisableLastAccessUpdate"},
        .offWhen = {Equals(1)},
        .on = {Dword(0)},
        .off = {Dword(1)},
    },
    // The boxes with the facts of the system look like a display, but all except the product's
    // number are written back, so that what the user types there reaches the system.
    Option{
        .control = "txtOSVersion",
        .place = {HKLM, SystemKey, "ProductName"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "txtProductId",
        .place = {HKLM, SystemKey, "ProductId"},
    },
    Option{
        .control = "txtUserName",
        .place = {HKLM, SystemKey, "RegisteredOwner"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "txtCompanyName",
        .place = {HKLM, SystemKey, "RegisteredOrganization"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "txtWindowsVersion",
        .place = {HKLM, SystemKey, "CurrentVersion"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "txtOSBuild",
        .place = {HKLM, SystemKey, "CurrentBuildNumber"},
        .always = {TextOfOwn()},
    },
};

}  // namespace

std::span<const Option> SystemOptions() {
    return SystemRows;
}

}  // namespace tweaks
