#include "windows/desk.h"

namespace windows {
namespace {

struct Search {
    std::string name;
    HWND found = nullptr;
};

BOOL CALLBACK Look(HWND window, LPARAM search) {
    auto* wanted = reinterpret_cast<Search*>(search);
    if (NameOf(window) == wanted->name) wanted->found = window;
    return !wanted->found;
}

}  // namespace

HWND Desk::Find(const toolkit::Form& form, const std::string& name) const {
    Search search{name};
    EnumChildWindows(host.WindowOf(form), Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string NameOf(HWND window) {
    const auto atom =
        static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropA(window, "ControlName")));
    char name[256] = "";
    if (atom) GlobalGetAtomNameA(atom, name, sizeof name);
    return platform::win32::FromAnsi(name);
}

std::string TextOf(HWND window) {
    wchar_t text[256] = L"";
    GetWindowTextW(window, text, 256);
    return platform::win32::FromWide(text);
}

void ServeQueue() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace windows
