#include "contract/win32/folderuser.h"

#include "platform/win32/text.h"

namespace contract {
namespace {

// The text's static control in every message box.
constexpr int MessageBoxText = 0xFFFF;

// A timer procedure is told of no object, so the one that lives is kept here.
FolderUser* currentFolderUser = nullptr;

std::wstring ClassOf(HWND window) {
    wchar_t name[32] = {};
    return std::wstring(name, static_cast<std::size_t>(GetClassNameW(window, name, 32)));
}

}  // namespace

FolderUser::FolderUser(bool ok) : ok_(ok), timer_(SetTimer(nullptr, 0, 50, Look)) {
    currentFolderUser = this;
}

FolderUser::~FolderUser() {
    KillTimer(nullptr, timer_);
    currentFolderUser = nullptr;
}

void CALLBACK FolderUser::Look(HWND, UINT, UINT_PTR, DWORD) {
    if (currentFolderUser && currentFolderUser->dialogs == 0) {
        EnumThreadWindows(GetCurrentThreadId(), Found, reinterpret_cast<LPARAM>(currentFolderUser));
    }
}

BOOL CALLBACK FolderUser::Found(HWND window, LPARAM parameter) {
    auto* self = reinterpret_cast<FolderUser*>(parameter);
    const bool isMessageBox = GetDlgItem(window, MessageBoxText) != nullptr;
    if (ClassOf(window) != L"#32770" || isMessageBox || !IsWindowVisible(window)) return TRUE;
    ++self->dialogs;
    self->owner = GetWindow(window, GW_OWNER);
    EnumChildWindows(window, Read, parameter);
    PostMessageW(window, WM_COMMAND, self->ok_ ? IDOK : IDCANCEL, 0);
    return FALSE;
}

BOOL CALLBACK FolderUser::Read(HWND child, LPARAM parameter) {
    auto* self = reinterpret_cast<FolderUser*>(parameter);
    if (ClassOf(child) != L"Static") return TRUE;
    wchar_t text[300] = {};
    GetWindowTextW(child, text, 300);
    self->labels.push_back(platform::win32::FromWide(text));
    return TRUE;
}

}  // namespace contract
