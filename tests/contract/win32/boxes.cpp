#include "contract/win32/boxes.h"

#include "platform/win32/text.h"

namespace contract {
namespace {

// The text's static control in every message box.
constexpr int TextId = 0xFFFF;

// A timer procedure is told of no object, so the one that lives is kept here.
BoxAnswerer* currentAnswerer = nullptr;

std::string TextOf(HWND window) {
    wchar_t buffer[1024] = {};
    GetWindowTextW(window, buffer, 1024);
    return platform::win32::FromWide(buffer);
}

}  // namespace

BoxAnswerer::BoxAnswerer(int answer) : answer_(answer), timer_(SetTimer(nullptr, 0, 20, Look)) {
    currentAnswerer = this;
}

BoxAnswerer::~BoxAnswerer() {
    KillTimer(nullptr, timer_);
    currentAnswerer = nullptr;
}

void CALLBACK BoxAnswerer::Look(HWND, UINT, UINT_PTR, DWORD) {
    EnumThreadWindows(GetCurrentThreadId(), Found, reinterpret_cast<LPARAM>(currentAnswerer));
}

BOOL CALLBACK BoxAnswerer::Found(HWND window, LPARAM parameter) {
    auto* self = reinterpret_cast<BoxAnswerer*>(parameter);
    const HWND label = GetDlgItem(window, TextId);
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (!self || std::wstring_view(name) != L"#32770") return TRUE;
    if (!label) {
        if (!GetDlgItem(window, IDYES)) return TRUE;
        ++self->shellQuestions;
        EndDialog(window, self->answer_);
        return FALSE;
    }
    ++self->boxes;
    self->title = TextOf(window);
    self->text = TextOf(label);
    self->owner = GetWindow(window, GW_OWNER);
    EndDialog(window, self->answer_);
    return FALSE;
}

}  // namespace contract
