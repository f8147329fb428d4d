// visitor STEP...: goes through the windows of an installer as a person does, by what is to be read
// there and by real keys. Each step is a word and mostly one more:
//   see TEXT         waits until the window in front shows the text
//   key KEY          presses it: "alt+w", "enter", "space", "escape"
//   type TEXT        writes it where the focus is
//   ticked TEXT, unticked TEXT
//                    the box with that caption is as it should be
//   fits             every caption of the window in front can be read in full
//   free FILE        waits until the file can be written, as no program is that runs
//   gone TITLE       waits until no window has a title that begins so
// Or alone, before what it is about:
//   hold FILE        opens the file so that nobody else can write or delete it, until there is a
//                    file C:\Paket\release
//   run PROGRAM [ARGUMENT...], limited PROGRAM [ARGUMENT...]
//                    runs it, for a user who is no administrator; waits for all that it starts in
//                    turn, and answers with its own exit code
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>
#include <string>
#include <vector>

#include "endtoend/automation.h"
#include "endtoend/captionfit.h"
#include "endtoend/hands/hand.h"
#include "endtoend/looks.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"

namespace {

using endtoend::Failed;
using endtoend::Look;
using platform::win32::FromWide;
using platform::win32::KernelHandle;

// Milliseconds; also on a machine with much else to do.
constexpr unsigned Patience = 30000;

// Of the window in front; it may go while it is being looked at.
std::vector<Look> LooksInFront() {
    const HWND front = endtoend::See().front;
    std::vector<Look> looks;
    if (!front) return looks;
    for (HWND window : endtoend::WindowsBelow(front)) {
        if (!IsWindowVisible(window)) continue;
        Look look;
        look.window = window;
        look.windowClass = endtoend::ClassOf(window);
        look.text = endtoend::TextOf(window);
        look.style = GetWindowLongW(window, GWL_STYLE);
        look.enabled = IsWindowEnabled(window) != FALSE;
        GetWindowRect(window, &look.area);
        looks.push_back(look);
    }
    return looks;
}

bool Shows(const Look& look, const std::string& text) {
    return endtoend::WithoutMarks(look.text).find(text) != std::string::npos;
}

// The titles of all that is to be seen, for whoever wonders what is in front instead.
std::string AllTitles() {
    std::string titles;
    for (HWND window : endtoend::Application(0).TopLevel()) {
        if (!IsWindowVisible(window)) continue;
        titles += " \"" + endtoend::SeenTitle(window) + "\" of " + endtoend::ClassOf(window);
    }
    return titles;
}

void See(const std::string& text) {
    std::string seen;
    try {
        endtoend::Until(
            "",
            [&] {
                seen = '"' + endtoend::SeenTitle(endtoend::See().front) + '"';
                std::vector<Look> looks;
                try {
                    looks = LooksInFront();
                } catch (const Failed&) {
                    return false;
                }
                for (const Look& look : looks) seen += " [" + look.text + ']';
                return std::any_of(looks.begin(), looks.end(),
                                   [&](const Look& look) { return Shows(look, text); });
            },
            Patience);
    } catch (const Failed&) {
        throw Failed("waited in vain for \"" + text + "\"; in front is " + seen + "; there are" +
                     AllTitles());
    }
}

void Press(const std::string& key) {
    const std::map<std::string, int> names = {
        {"enter", VK_RETURN}, {"escape", VK_ESCAPE}, {"space", VK_SPACE}};
    const auto name = names.find(key);
    if (name != names.end()) return endtoend::Type(name->second);
    if (key.size() != 5 || !key.starts_with("alt+")) throw Failed("no key: " + key);
    endtoend::TypeCharacter(static_cast<wchar_t>(key.back()), {VK_MENU});
}

void Write(const std::string& text) {
    for (const wchar_t character : platform::win32::ToWide(text)) {
        endtoend::TypeCharacter(character);
    }
}

// A key that has just been pressed takes its time.
void ExpectTick(const std::string& text, bool ticked) {
    endtoend::Until(
        '"' + text + (ticked ? "\" to be ticked" : "\" to be empty"),
        [&] {
            for (const Look& look : LooksInFront()) {
                if (look.Is("Button") && Shows(look, text)) {
                    return (endtoend::Send(look.window, BM_GETCHECK) == BST_CHECKED) == ticked;
                }
            }
            return false;
        },
        Patience / 3);
}

void ExpectFit(const std::string&) {
    std::string cut;
    for (Look look : LooksInFront()) {
        const LONG type = look.style & BS_TYPEMASK;
        // Of a button that has no mark, all is for the caption.
        if (look.Is("Button") && (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON)) {
            look.windowClass = "chameleonButton";
        }
        const std::string why = endtoend::WhyCut(look);
        if (!why.empty() && !look.text.empty()) cut += "\"" + look.text + "\" " + why + "; ";
    }
    if (!cut.empty()) throw Failed("cut: " + cut);
}

void WaitFree(const std::string& path) {
    endtoend::Until(
        path + " to be free",
        [&] {
            const platform::win32::FileHandle file(
                CreateFileW(platform::win32::ToWide(path).c_str(), GENERIC_WRITE, 0, nullptr,
                            OPEN_EXISTING, 0, nullptr));
            return static_cast<bool>(file);
        },
        Patience);
}

void WaitGone(const std::string& title) {
    endtoend::Until(
        '"' + title + "\" to be gone",
        [&] {
            for (HWND window : endtoend::Application(0).TopLevel()) {
                if (IsWindowVisible(window) && endtoend::SeenTitle(window).starts_with(title)) {
                    return false;
                }
            }
            return true;
        },
        Patience);
}

struct Step {
    int words;
    void (*take)(const std::string&);
};

const std::map<std::string, Step> Steps = {
    {"see", {1, See}},
    {"key", {1, Press}},
    {"type", {1, Write}},
    {"ticked", {1, [](const std::string& text) { ExpectTick(text, true); }}},
    {"unticked", {1, [](const std::string& text) { ExpectTick(text, false); }}},
    {"fits", {0, ExpectFit}},
    {"free", {1, WaitFree}},
    {"gone", {1, WaitGone}},
};

int Hold(const std::wstring& path) {
    const platform::win32::FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ,
                                                       nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) throw Failed("cannot open " + FromWide(path));
    std::printf("held\n");
    std::fflush(stdout);
    endtoend::Until("the release", [] {
        return GetFileAttributesW(L"C:\\Paket\\release") != INVALID_FILE_ATTRIBUTES;
    });
    return 0;
}

// The group of administrators still stands in the token, but only to be refused by.
KernelHandle LimitedUser() {
    HANDLE own = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own)) throw Failed("no token");
    const KernelHandle token(own);
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    SID_AND_ATTRIBUTES administrators = {};
    AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0,
                             0, 0, 0, 0, 0, &administrators.Sid);
    HANDLE limited = nullptr;
    const BOOL made = CreateRestrictedToken(token.Get(), DISABLE_MAX_PRIVILEGE, 1, &administrators,
                                            0, nullptr, 0, nullptr, &limited);
    FreeSid(administrators.Sid);
    if (!made) throw Failed("no restricted token");
    return KernelHandle(limited);
}

int RunWhole(std::wstring commandLine, bool isLimited) {
    const KernelHandle user = isLimited ? LimitedUser() : KernelHandle();
    const KernelHandle job(CreateJobObjectW(nullptr, nullptr));
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started = {};
    const BOOL runs =
        isLimited
            ? CreateProcessAsUserW(user.Get(), nullptr, commandLine.data(), nullptr, nullptr, FALSE,
                                   CREATE_SUSPENDED, nullptr, nullptr, &startup, &started)
            : CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                             nullptr, nullptr, &startup, &started);
    if (!runs) throw Failed("cannot start " + FromWide(commandLine));
    const KernelHandle process(started.hProcess);
    const KernelHandle thread(started.hThread);
    if (!AssignProcessToJobObject(job.Get(), process.Get())) throw Failed("no job");
    ResumeThread(thread.Get());
    endtoend::Until(
        "the end of " + FromWide(commandLine),
        [&] {
            JOBOBJECT_BASIC_ACCOUNTING_INFORMATION account = {};
            if (!QueryInformationJobObject(job.Get(), JobObjectBasicAccountingInformation, &account,
                                           sizeof account, nullptr)) {
                throw Failed("the job does not tell");
            }
            return account.ActiveProcesses == 0;
        },
        4 * Patience);
    DWORD code = 0;
    GetExitCodeProcess(process.Get(), &code);
    return static_cast<int>(code);
}

int Run(int count, wchar_t** words) {
    const std::wstring first = count > 1 ? words[1] : L"";
    if (first == L"hold" && count == 3) return Hold(words[2]);
    if ((first == L"run" || first == L"limited") && count > 2) {
        // Unquoted, as an installer wants its folder.
        std::wstring commandLine = words[2];
        for (int at = 3; at < count; ++at) commandLine += std::wstring(L" ") + words[at];
        return RunWhole(commandLine, first == L"limited");
    }
    for (int at = 1; at < count; ++at) {
        const auto step = Steps.find(FromWide(words[at]));
        if (step == Steps.end() || at + step->second.words >= count) {
            throw Failed("not understood: " + FromWide(words[at]));
        }
        at += step->second.words;
        step->second.take(step->second.words ? FromWide(words[at]) : "");
    }
    return 0;
}

}  // namespace

int main() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    try {
        return Run(count, words);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "visitor: %s\n", failure.what());
        return 99;
    }
}
