#include <doctest/doctest.h>

#include "endtoend/everyoptionrun.h"
#include "endtoend/lines.h"
#include "endtoend/optiontablewords.h"
#include "endtoend/pages.h"
#include "endtoend/realkeys.h"
#include "platform/win32/text.h"

// Fields under the keyboard: the keys go the way of real ones, through the system's queue.
namespace endtoend {
namespace {

constexpr std::size_t LongText = 65536;

struct Field {
    const char* name;
    int page;
    bool backspace;
};

const Field Fields[] = {
    {"txtStartmenu", SystemPage, false}, {"txtLevelValue", SystemPage, false},
    {"txtTimeOut", TweaksPage, true},    {"cboMTU", NetworkPage, true},
    {"txtRWIN", NetworkPage, true},      {"txtTTL", NetworkPage, true},
    {"cboHTTP10", NetworkPage, true},    {"cboHTTP11", NetworkPage, true},
};

// The part of a field in which one types.
HWND TypingPartOf(HWND window) {
    const HWND inner = FindWindowExW(window, nullptr, L"Edit", nullptr);
    return inner ? inner : window;
}

HWND FocusIn(const Application& program) {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(program.Wait("frmMain"), nullptr), &thread);
    return thread.hwndFocus;
}

void ClickInto(HWND window) {
    RECT area;
    GetWindowRect(window, &area);
    SetCursorPos((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    for (const DWORD flags : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }
}

// Goes into the field with the mouse and marks all that is in it. A click that comes while the
// window is still on its way to the front goes elsewhere, and is done again.
void Enter(const Application& program, const std::string& name) {
    constexpr unsigned looksPerClick = 100;
    const HWND form = program.Wait("frmMain");
    const HWND part = TypingPartOf(program.Wait(name));
    unsigned looks = 0;
    Until("the focus in " + name, [&] {
        if (looks++ % looksPerClick == 0) {
            SetForegroundWindow(form);
            ClickInto(part);
        }
        return FocusIn(program) == part;
    });
    // By keys, as they come behind the click whatever that still does.
    Press(VK_HOME);
    PressWith(VK_SHIFT, VK_END);
}

void PutIntoClipboard(const std::string& text) {
    const std::wstring wide = platform::win32::ToWide(text);
    const SIZE_T size = (wide.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    memcpy(GlobalLock(memory), wide.c_str(), size);
    GlobalUnlock(memory);
    Until("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

// Waits for the text, as keys take their time; what stands there in the end.
std::string TextThatComes(const Application& program, const std::string& name,
                          const std::string& expected) {
    try {
        Until(expected, [&] { return program.Text(name) == expected; });
    } catch (const Failed&) {
        // The comparison shows it.
    }
    return program.Text(name);
}

TEST_CASE("the filtered fields take digits, and Backspace only where no slider stands beside") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    for (const auto& [name, page, backspace] : Fields) {
        CAPTURE(std::string(name));
        program.OpenTab(page);
        Enter(program, name);
        for (const int key :
             std::vector<int>{'6', 'X', '4', VK_SPACE, VK_BACK, VK_OEM_MINUS, '2'}) {
            Press(key);
        }
        const std::string expected = backspace ? "62" : "642";
        CHECK(TextThatComes(program, name, expected) == expected);
    }
}

TEST_CASE("what is pasted passes the filters") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    PutIntoClipboard("1a-b");
    for (const auto& [name, page, backspace] : Fields) {
        CAPTURE(std::string(name));
        program.OpenTab(page);
        Enter(program, name);
        PressWith(VK_CONTROL, 'V');
        CHECK(TextThatComes(program, name, "1a-b") == "1a-b");
    }
}

TEST_CASE("the window size follows each key in the packet size, and takes its own until the next") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(NetworkPage);
    Enter(program, "cboMTU");
    for (const auto& [key, size] : std::initializer_list<std::pair<int, const char*>>{
             {'1', "-156"}, {'5', "-100"}, {'0', "440"}, {'0', "5840"}, {VK_BACK, "440"}}) {
        Press(key);
        CHECK(TextThatComes(program, "txtRWIN", size) == size);
    }
    for (int count = 0; count < 3; ++count) Press(VK_BACK);
    CHECK(TextThatComes(program, "txtRWIN", "-160") == "-160");
    Enter(program, "txtRWIN");
    Press('7');
    CHECK(TextThatComes(program, "txtRWIN", "7") == "7");
    Enter(program, "cboMTU");
    Press('4');
    CHECK(TextThatComes(program, "txtRWIN", "-144") == "-144");
}

// A field of several lines takes very long to break a text that has no ends of lines.
std::string ManyLines() {
    std::string text;
    while (text.size() < LongText) text += std::string(62, 'x') + "\r\n";
    return text;
}

TEST_CASE("64 KiB in every text field are written where texts go, and complained of elsewhere") {
    SeeDesktop();
    const Workplace workplace;
    {
        OptionRun run(workplace);
        ControlStates wanted = run.Controls();
        for (auto& [name, state] : wanted) {
            state = name.starts_with("chk") ? "1" : std::string(LongText, 'x');
        }
        wanted["txtWinLogOnT"] = ManyLines();
        run.Set(wanted);
        CHECK(run.Controls().at("txtUserName").size() == LongText);
        run.Apply();
        CHECK(run.Outcome().complaints.size() == 6);
        CHECK(Joined(run.Wrong()) == "");
    }
    // And read again.
    const OptionRun run(workplace);
    CHECK(run.Controls().at("txtUserName").size() == LongText);
    CHECK(Joined(run.Wrong()) == "");
    CHECK(workplace.Log() == "");
}

TEST_CASE("64 KiB of digits are beyond all numbers: complained of, not written, and no more") {
    SeeDesktop();
    const Workplace workplace;
    OptionRun run(workplace);
    ControlStates wanted = run.Controls();
    wanted["cboMTU"] = "1500";
    wanted["txtRWIN"] = "64";
    run.Set(wanted);
    // Where they are not to be seen: Wine takes seconds to draw so many digits.
    run.Running().OpenTab(SystemPage);
    for (const char* name : {"txtTTL", "cboHTTP10", "cboHTTP11"}) {
        wanted[name] = std::string(LongText, '9');
        ReplaceText(run.Running().Find(name), wanted[name]);
    }
    run.Set(wanted);
    run.Apply();
    CHECK(run.Outcome().complaints.size() == 3);
    CHECK(Joined(run.Wrong()) == "");
}

TEST_CASE("digits beyond all numbers pasted as the packet size end in the platform's message") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    program.OpenTab(NetworkPage);
    // The first is a number, but four times the first is none.
    for (const std::size_t digits : {std::size_t{308}, LongText}) {
        CAPTURE(digits);
        PutIntoClipboard(std::string(digits, '9'));
        Enter(program, "cboMTU");
        PressWith(VK_CONTROL, 'V');
        CHECK(program.Answer("Quillmore", IDOK).text.starts_with("Laufzeitfehler '6'"));
        CHECK(program.Text("cboMTU").size() == digits);
        Until("the form behind the box", [&] { return IsWindowEnabled(program.Find("frmMain")); });
    }
    Enter(program, "cboMTU");
    Press('7');
    CHECK(TextThatComes(program, "txtRWIN", "-132") == "-132");
}

}  // namespace
}  // namespace endtoend
