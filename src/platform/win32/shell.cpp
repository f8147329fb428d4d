#include "platform/win32/shell.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/win32/formhandles.h"
#include "platform/win32/idlist.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {

static_assert(Shell::DeleteFiles == FO_DELETE && Shell::AllowUndo == FOF_ALLOWUNDO);
static_assert(Shell::NoProgress == FOF_SILENT && Shell::NoConfirmation == FOF_NOCONFIRMATION);

void Shell::EnterApartment() const {
    if (!apartment_) apartment_.emplace();
}

void Shell::Execute(std::string_view verb, std::string_view file, std::string_view parameters,
                    std::string_view directory, std::int32_t show) {
    EnterApartment();
    ShellExecuteA(forms_.MainWindow(), ToAnsi(verb).c_str(), ToAnsi(file).c_str(),
                  ToAnsi(parameters).c_str(), ToAnsi(directory).c_str(), show);
}

void Shell::ObjectProperties(std::int32_t kind) {
    EnterApartment();
    // XP exports it by this number alone; the texts are wide there.
    using Function = BOOL(WINAPI*)(HWND, DWORD, LPCWSTR, LPCWSTR);
    constexpr WORD ordinal = 178;
    const HMODULE shell = GetModuleHandleW(L"shell32.dll");
    const auto function = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(shell, MAKEINTRESOURCEA(ordinal))));
    if (!function) throw runtime::Failure(runtime::DllFunctionNotFound);
    function(forms_.MainWindow(), static_cast<DWORD>(kind), L"", L"");
}

std::int32_t Shell::OperateOnFiles(std::uint32_t function, std::string_view path,
                                   std::uint16_t flags) {
    EnterApartment();
    // A NUL inside would make two paths of one, and both would be gone.
    path = path.substr(0, path.find('\0'));
    if (path.empty()) return ERROR_FILE_NOT_FOUND;
    // A list of paths ends with an empty one: the second NUL is the text's own.
    const std::string paths = ToAnsi(path) + '\0';
    SHFILEOPSTRUCTA operation = {};
    operation.wFunc = function;
    operation.pFrom = paths.c_str();
    operation.fFlags = flags;
    return SHFileOperationA(&operation);
}

void Shell::EmptyRecycleBin(std::uint32_t flags) {
    EnterApartment();
    SHEmptyRecycleBinA(nullptr, nullptr, flags);
}

std::string Shell::TypeName(std::string_view path, std::uint32_t attributes) const {
    EnterApartment();
    SHFILEINFOW info = {};
    const std::wstring wide = ToWide(path);
    // A folder may have a type of its own, which only the folder itself tells.
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY) ||
        !SHGetFileInfoW(wide.c_str(), 0, &info, sizeof info, SHGFI_TYPENAME)) {
        SHGetFileInfoW(wide.c_str(), attributes, &info, sizeof info,
                       SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
    }
    return FromWide(info.szTypeName);
}

std::string Shell::SpecialFolder(std::int32_t csidl) const {
    EnterApartment();
    IdList folder;
    if (SHGetSpecialFolderLocation(forms_.MainWindow(), csidl, folder.Out()) != S_OK) return "";
    return PathOf(folder.Get()).value_or("");
}

}  // namespace platform::win32
