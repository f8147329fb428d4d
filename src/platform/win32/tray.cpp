#include "platform/win32/tray.h"

#include <windows.h>

#include <shellapi.h>

#include <utility>

#include "platform/win32/eventguard.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

constexpr UINT TrayMessage = WM_APP + 1;
constexpr UINT TrayId = 1;
constexpr WORD ProgramIcon = 1;
constexpr UINT_PTR RetryTimer = 1;
constexpr UINT FirstRetry = 500;

// The record without the fields that came later: the shells of 2000 and XP know both.
constexpr DWORD RecordSize = NOTIFYICONDATAW_V2_SIZE;
static_assert(RecordSize == 936);

HICON SmallIcon() {
    // Shared icons are the system's to destroy.
    HANDLE icon =
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(ProgramIcon), IMAGE_ICON,
                   GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED);
    return icon ? static_cast<HICON>(icon) : LoadIconW(nullptr, IDI_APPLICATION);
}

}  // namespace

Tray::Tray(platform::Messages& messages)
    : messages_(messages),
      shellStarted_(RegisterWindowMessageW(L"TaskbarCreated")),
      retryInterval_(FirstRetry),
      window_([this](UINT message, WPARAM, LPARAM lParam) { Receive(message, lParam); }) {}

Tray::~Tray() {
    SetShown(false);
}

void Tray::SetIcon() {
    icon_ = SmallIcon();
    if (shown_) Notify(NIM_MODIFY);
}

void Tray::SetTip(std::string_view text) {
    tip_ = ToWide(text);
    if (shown_) Notify(NIM_MODIFY);
}

void Tray::SetShown(bool shown) {
    const bool before = std::exchange(wanted_, shown);
    if (shown && !shown_) Put();
    if (!shown && before) {
        Notify(NIM_DELETE);
        shown_ = false;
    }
}

// A shell that is busy reports a failure and takes the icon nevertheless; it then refuses a second
// one of the same number, but not its change. At the user's logon it may be too busy for both, and
// without the icon there would be no way back to a hidden window.
void Tray::Put() {
    shown_ = Notify(NIM_ADD) || Notify(NIM_MODIFY);
    // A shell that hangs holds each attempt up, so they come ever more seldom.
    retryInterval_ = shown_ ? FirstRetry : retryInterval_ * 2;
    if (!shown_) SetTimer(window_.Get(), RetryTimer, retryInterval_, nullptr);
}

bool Tray::Notify(DWORD action) {
    NOTIFYICONDATAW record = {};
    record.cbSize = RecordSize;
    record.hWnd = window_.Get();
    record.uID = TrayId;
    record.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    record.uCallbackMessage = TrayMessage;
    record.hIcon = icon_;
    // The field's last character stays its terminator.
    tip_.copy(record.szTip, std::size(record.szTip) - 1);
    return Shell_NotifyIconW(action, &record) != FALSE;
}

void Tray::Receive(UINT message, LPARAM lParam) {
    if (message == WM_TIMER) KillTimer(window_.Get(), RetryTimer);
    if (message == TrayMessage) {
        Mouse(static_cast<UINT>(lParam));
    } else if (wanted_ && (message == shellStarted_ || (message == WM_TIMER && !shown_))) {
        Put();
    }
}

void Tray::Mouse(UINT message) {
    switch (message) {
        case WM_LBUTTONUP:
            if (onMouseUp) GuardEvent(messages_, [this] { onMouseUp(LeftButton); });
            break;
        case WM_RBUTTONUP:
            if (onMouseUp) GuardEvent(messages_, [this] { onMouseUp(RightButton); });
            break;
        case WM_LBUTTONDBLCLK:
            // The right to come to the front is this window's; what it shows takes it over. A box
            // that has disabled it stays in front.
            if (IsWindowEnabled(window_.Get())) SetForegroundWindow(window_.Get());
            if (onRestore) GuardEvent(messages_, onRestore);
            break;
        default:
            break;
    }
}

}  // namespace platform::win32
