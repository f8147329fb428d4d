#pragma once

// Keys that more than one page's rows stand in.
namespace tweaks {

inline constexpr char AdvancedKey[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";
inline constexpr char PoliciesKey[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
inline constexpr char MemoryKey[] =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management";
inline constexpr char SystemKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
inline constexpr char WinlogonKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";

}  // namespace tweaks
