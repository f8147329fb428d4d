#include <windows.h>

#include <cstdlib>
#include <new>

#include "cmd/run.h"
#include "cmd/surroundings.h"
#include "platform/win32/console/utf16.h"
#include "runtime/failure.h"
#include "runtime/mistake.h"

// What the console program does is another thing here, so that its main is seen alone:
//   memory, mistake, failure, number   throws such a thing
//   console FILE                       talks to its console, types by itself what it reads, and
//                                      writes what it saw into FILE
//   say CODE TEXT ...                  puts each text out on a line and ends with that code

namespace {

void Type(std::wstring_view keys) {
    for (const wchar_t key : keys) {
        for (const BOOL down : {TRUE, FALSE}) {
            INPUT_RECORD record = {};
            record.EventType = KEY_EVENT;
            record.Event.KeyEvent.bKeyDown = down;
            record.Event.KeyEvent.wRepeatCount = 1;
            record.Event.KeyEvent.uChar.UnicodeChar = key;
            record.Event.KeyEvent.wVirtualKeyCode = key == L'\r' ? VK_RETURN : 0;
            DWORD count = 0;
            WriteConsoleInputW(GetStdHandle(STD_INPUT_HANDLE), &record, 1, &count);
        }
    }
}

std::string OnScreen(SHORT row) {
    wchar_t text[9] = {};
    DWORD count = 0;
    ReadConsoleOutputCharacterW(GetStdHandle(STD_OUTPUT_HANDLE), text, 8, {0, row}, &count);
    return platform::win32::FromUnits(text);
}

void TryConsole(cmd::Surroundings& around, const std::string& path) {
    std::string seen = around.OutputIsSeen() ? "seen|" : "unseen|";
    around.Out("Größe €\nzwei");
    seen += OnScreen(0) + '|' + OnScreen(1) + '|';
    Type(L"jä\r\rn\r\x1A\r");
    while (const auto line = around.ReadLine()) seen += *line + '|';
    around.WriteNewFile(path, seen);
}

}  // namespace

namespace cmd {

int Run(const std::vector<std::string>& arguments, const platform::Machine&,
        platform::WideRegistry&, Surroundings& around) {
    const std::string& what = arguments.at(0);
    if (what == "memory") throw std::bad_alloc();
    if (what == "mistake") throw runtime::Mistake("größer als gedacht");
    if (what == "failure") throw runtime::Failure(runtime::TypeMismatch);
    if (what == "number") throw 5;
    if (what == "console") {
        TryConsole(around, arguments.at(1));
        return 0;
    }
    around.UseUtf8();
    for (std::size_t i = 2; i < arguments.size(); ++i) around.Out(arguments[i] + "\n");
    return std::atoi(arguments.at(1).c_str());
}

}  // namespace cmd
