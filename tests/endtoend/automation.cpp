#include "endtoend/automation.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "endtoend/tabs.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

constexpr wchar_t PropertyName[] = L"ControlName";
constexpr char BoxClass[] = "#32770";

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// The children of one window, from the top of the stack down.
std::vector<HWND> ChildrenOf(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    return children;
}

// 0 where no window of any program has the name.
ATOM AtomOf(const std::string& name) {
    return GlobalFindAtomW(ToWide(name).c_str());
}

ATOM NameAtomOf(HWND window) {
    return static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, PropertyName)) & 0xFFFF);
}

bool IsButtonOfBox(HWND window) {
    return ClassOf(window) == "Button" && GetDlgCtrlID(window) > 0 && IsWindowVisible(window);
}

MessageBox Describe(HWND window) {
    MessageBox box{window, TextOf(window), {}, {}};
    for (HWND child : ChildrenOf(window)) {
        if (IsButtonOfBox(child)) {
            box.buttons.push_back(GetDlgCtrlID(child));
        } else if (box.text.empty()) {
            box.text = TextOf(child);
        }
    }
    return box;
}

// The pointer that the window wants where `hit` lies. The thread's own pointer is asked, not the
// screen's: the mouse may stand anywhere.
HCURSOR PointerAt(HWND window, int hit) {
    Send(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(hit, WM_MOUSEMOVE));
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    AttachThreadInput(GetCurrentThreadId(), thread, TRUE);
    const HCURSOR pointer = GetCursor();
    AttachThreadInput(GetCurrentThreadId(), thread, FALSE);
    return pointer;
}

}  // namespace

std::string NameOf(HWND window) {
    const ATOM atom = NameAtomOf(window);
    wchar_t name[256];
    return atom ? FromWide({name, GlobalGetAtomNameW(atom, name, 256)}) : std::string();
}

std::string ClassOf(HWND window) {
    wchar_t name[256];
    return FromWide({name, static_cast<std::size_t>(GetClassNameW(window, name, 256))});
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam, unsigned patience) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, patience, &answer)) {
        throw Failed("no answer from window \"" + NameOf(window) + "\"");
    }
    return static_cast<LRESULT>(answer);
}

std::string TextOf(HWND window) {
    const auto length = static_cast<std::size_t>(Send(window, WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    const LRESULT copied =
        Send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return FromWide(text);
}

std::string WithoutMarks(const std::string& caption) {
    std::string plain;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] == '&' && at + 1 < caption.size()) ++at;
        plain += caption[at];
    }
    return plain;
}

std::vector<HWND> WindowsBelow(HWND window) {
    std::vector<HWND> all;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

std::vector<HWND> Application::TopLevel() const {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [&](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return process_ != 0 && owner != process_;
    });
    return windows;
}

std::vector<HWND> Application::Forms() const {
    std::vector<HWND> forms = TopLevel();
    std::erase_if(forms, [](HWND form) { return !IsWindowVisible(form) || NameOf(form).empty(); });
    return forms;
}

// Each step of a walk is a question to Wine's server, which the program waits for as well: what one
// walk has found is only looked at again.
HWND Application::FindBelow(HWND form, ATOM name) const {
    const auto known = known_.find({form, name});
    if (known != known_.end() && NameAtomOf(known->second) == name &&
        GetAncestor(known->second, GA_ROOT) == form) {
        return known->second;
    }
    std::erase_if(known_, [&](const auto& entry) { return entry.first.first == form; });
    for (HWND window : WindowsBelow(form)) known_.try_emplace({form, NameAtomOf(window)}, window);
    const auto found = known_.find({form, name});
    return found == known_.end() ? nullptr : found->second;
}

HWND Application::Find(const std::string& name) const {
    const std::size_t point = name.find('.');
    const bool isForm = point == std::string::npos && name.starts_with("frm");
    const bool namesForm = isForm || point != std::string::npos;
    const ATOM form = namesForm ? AtomOf(name.substr(0, point)) : 0;
    const ATOM control = AtomOf(point == std::string::npos ? name : name.substr(point + 1));
    if (!control) return nullptr;
    std::vector<HWND> windows = TopLevel();
    std::stable_partition(windows.begin(), windows.end(), IsWindowVisible);
    for (HWND window : windows) {
        if (namesForm && NameAtomOf(window) != form) continue;
        if (isForm) return window;
        if (HWND found = FindBelow(window, control)) return found;
    }
    return nullptr;
}

HWND Application::Wait(const std::string& name) const {
    HWND found = nullptr;
    Until(name + " to be seen", [&] {
        found = Find(name);
        return found && IsWindowVisible(found);
    });
    return found;
}

void Application::WaitGone(const std::string& name) const {
    Until(name + " to be gone", [&] {
        const HWND found = Find(name);
        return !found || !IsWindowVisible(found);
    });
}

void Application::Click(const std::string& name) const {
    const HWND control = Wait(name);
    if (!IsWindowEnabled(control)) throw Failed(name + " is disabled");
    const HWND form = GetAncestor(control, GA_ROOT);
    if (!IsWindowEnabled(form)) throw Failed("a dialog stands before the form of " + name);
    PostMessageW(control, BM_CLICK, 0, 0);
}

bool Application::Checked(const std::string& name) const {
    return Send(Wait(name), BM_GETCHECK) == BST_CHECKED;
}

void Application::SetChecked(const std::string& name, bool checked) const {
    if (Checked(name) == checked) return;
    Click(name);
    Until(name + " to change", [&] { return Checked(name) == checked; });
}

std::string Application::Text(const std::string& name) const {
    const HWND control = Find(name);
    if (!control) throw Failed("there is no " + name);
    return TextOf(control);
}

void Application::SetText(const std::string& name, const std::string& text) const {
    Send(Wait(name), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

void Application::Type(const std::string& name, const std::string& text) const {
    const HWND box = Wait(name);
    Send(box, EM_SETSEL, 0, -1);
    for (const wchar_t character : ToWide(text)) Send(box, WM_CHAR, character, 1);
}

int Application::SliderPosition(const std::string& name) const {
    return static_cast<int>(Send(Wait(name), TBM_GETPOS));
}

// Where no window has the focus the system tells the active one, and calls it a system key.
void Application::PressKey(const std::string& form, int virtualKey) const {
    const HWND window = Wait(form);
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    // A form that has just come up gets the focus a little later; until then another one has it, or
    // none.
    constexpr DWORD Settling = 2000;
    const DWORD begin = GetTickCount();
    Until(form + " to have the focus", [&] {
        GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
        if (thread.hwndFocus) return GetAncestor(thread.hwndFocus, GA_ROOT) == window;
        if (!thread.hwndActive) SetForegroundWindow(window);
        return thread.hwndActive == window && GetTickCount() - begin > Settling;
    });
    const HWND target = thread.hwndFocus ? thread.hwndFocus : window;
    PostMessageW(target, thread.hwndFocus ? WM_KEYDOWN : WM_SYSKEYDOWN,
                 static_cast<WPARAM>(virtualKey), 1);
    PostMessageW(target, thread.hwndFocus ? WM_KEYUP : WM_SYSKEYUP, static_cast<WPARAM>(virtualKey),
                 static_cast<LPARAM>(0xC0000001));
}

std::vector<std::string> Application::TabCaptions(const std::string& tabs) const {
    return Tabs(Wait(tabs)).Captions();
}

int Application::CurrentTab(const std::string& tabs) const {
    return static_cast<int>(Send(Wait(tabs), TCM_GETCURSEL));
}

void Application::OpenTab(int page, const std::string& tabs) const {
    const HWND strip = Wait(tabs);
    const RECT area = Tabs(strip).Area(page);
    const LPARAM point = MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    PostMessageW(strip, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(strip, WM_LBUTTONUP, 0, point);
    Until("page " + std::to_string(page), [&] { return CurrentTab(tabs) == page; });
}

MessageBox Application::Box() const {
    for (HWND window : TopLevel()) {
        if (!IsWindowVisible(window) || ClassOf(window) != BoxClass || !NameOf(window).empty()) {
            continue;
        }
        try {
            return Describe(window);
        } catch (const Failed&) {
            // A box that goes while it is being looked at is no box any more. It is hidden before
            // its buttons go, and they go before it does.
            if (IsWindowVisible(window)) throw;
        }
    }
    return {};
}

MessageBox Application::WaitBox(const std::string& title) const {
    MessageBox box;
    Until("the message box \"" + title + "\"", [&] {
        box = Box();
        return box.window && box.title == title;
    });
    return box;
}

MessageBox Application::Answer(const std::string& title, int button) const {
    const MessageBox box = WaitBox(title);
    const HWND pressed = GetDlgItem(box.window, button);
    if (!pressed) throw Failed("the box \"" + title + "\" has no such button");
    PostMessageW(pressed, BM_CLICK, 0, 0);
    Until("the box \"" + title + "\" to close", [&] { return !IsWindowVisible(box.window); });
    return box;
}

void Application::Close() const {
    const HWND form = Wait("frmMain");
    if (!IsWindowEnabled(form)) throw Failed("a dialog stands before frmMain");
    PostMessageW(form, WM_CLOSE, 0, 0);
}

bool Application::Responds(const std::string& form) const {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(Wait(form), WM_NULL, 0, 0, SMTO_NORMAL, 100, &answer) != 0;
}

bool Application::PointerIsChanged(const std::string& form) const {
    const HWND window = Wait(form);
    return PointerAt(window, HTCLIENT) != PointerAt(window, HTCAPTION);
}

}  // namespace endtoend
