#include "kit/facts.h"

#include <windows.h>

#include <iterator>

#include "platform/win32/text.h"
#include "support/wineversion.h"

namespace kit {
namespace {

using platform::win32::FromWide;

std::string Number(DWORD number) {
    return std::to_string(number);
}

std::string Hexadecimal(unsigned number) {
    std::string digits;
    for (int shift = 12; shift >= 0; shift -= 4) digits += "0123456789ABCDEF"[number >> shift & 15];
    return digits;
}

template <typename Function>
Function Ask(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryW(library);
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(module ? GetProcAddress(module, name) : nullptr));
}

std::string Edition(const OSVERSIONINFOEXW& version) {
    if (version.dwMajorVersion != 5 || version.dwMinorVersion != 1) return "";
    return version.wSuiteMask & VER_SUITE_PERSONAL ? ", Home Edition" : ", Professional";
}

// Nothing where the user has no administrator's rights, or has them not now.
bool IsAdministrator() {
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    PSID group = nullptr;
    BOOL member = FALSE;
    if (!AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                  DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &group)) {
        return false;
    }
    if (!CheckTokenMembership(nullptr, group, &member)) member = FALSE;
    FreeSid(group);
    return member != FALSE;
}

std::string Screen() {
    const HDC screen = GetDC(nullptr);
    const int depth = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
    const int perInch = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    using IsActive = BOOL(WINAPI*)();
    const auto themed = Ask<IsActive>(L"uxtheme.dll", "IsThemeActive");
    return std::to_string(GetSystemMetrics(SM_CXSCREEN)) + " x " +
           std::to_string(GetSystemMetrics(SM_CYSCREEN)) + ", " + std::to_string(depth) + " Bit, " +
           std::to_string(perInch) + " dpi, " + (themed && themed() ? "mit" : "ohne") + " Design" +
           (GetSystemMetrics(SM_REMOTESESSION) ? ", Sitzung von fern" : "");
}

std::string WineAround() {
    using Version = const char*(CDECL*)();
    const auto version = reinterpret_cast<Version>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
    return version ? version() : "";
}

}  // namespace

Facts LookAround(const std::wstring& folder) {
    Facts facts;
    OSVERSIONINFOEXW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&version));
    facts.lines.push_back("System: Windows " + Number(version.dwMajorVersion) + '.' +
                          Number(version.dwMinorVersion) + '.' + Number(version.dwBuildNumber) +
                          Edition(version));
    const std::string pack = FromWide(version.szCSDVersion);
    facts.lines.push_back("Service Pack: " + (pack.empty() ? "keines" : pack));
    if (WineVersion() > 0) facts.lines.push_back("Kein echtes Windows: Wine " + WineAround());

    const LANGID system = GetSystemDefaultUILanguage();
    facts.isGerman = PRIMARYLANGID(system) == LANG_GERMAN && GetACP() == 1252;
    facts.lines.push_back("Sprache: Oberfläche " + Hexadecimal(system) + '/' +
                          Hexadecimal(GetUserDefaultUILanguage()) + ", Gebietsschema " +
                          Hexadecimal(GetSystemDefaultLangID()) + '/' +
                          Hexadecimal(GetUserDefaultLangID()) + ", Codepages " + Number(GetACP()) +
                          '/' + Number(GetOEMCP()));
    facts.lines.push_back(std::string("Konto: ") + (IsAdministrator() ? "mit" : "ohne") +
                          " Administratorrechte");

    wchar_t fileSystem[64] = L"";
    DWORD flags = 0;
    GetVolumeInformationW(folder.substr(0, 3).c_str(), nullptr, 0, nullptr, nullptr, &flags,
                          fileSystem, static_cast<DWORD>(std::size(fileSystem)));
    facts.knowsLinks = (flags & FILE_SUPPORTS_REPARSE_POINTS) || WineVersion() > 0;
    facts.lines.push_back("Dateisystem von %TEMP%: " + FromWide(fileSystem));
    facts.lines.push_back("Anzeige: " + Screen());
    return facts;
}

}  // namespace kit
