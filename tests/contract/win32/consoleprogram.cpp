#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <string>

#include "contract/machine.h"
#include "platform/win32/console/utf16.h"
#include "platform/win32/handle.h"
#include "platform/win32/program.h"

namespace {

using platform::win32::KernelHandle;

struct Ended {
    DWORD code = 0xBAD;
    std::string out;
    std::string err;
};

struct InheritedPipe {
    KernelHandle reads;
    KernelHandle writes;

    InheritedPipe() {
        CreatePipe(reads.Out(), writes.Out(), nullptr, 1 << 16);
        SetHandleInformation(writes.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    }

    std::string All() {
        writes.Close();
        std::string bytes;
        char piece[1000];
        DWORD length = 0;
        while (ReadFile(reads.Get(), piece, sizeof piece, &length, nullptr)) {
            bytes.append(piece, length);
        }
        return bytes;
    }
};

// Of contract_console.exe, the console program's main around something else.
std::wstring CommandLine(std::string_view arguments) {
    return platform::win32::ToUnits('"' + platform::win32::Program().Directory() +
                                    "\\contract_console.exe\" " + std::string(arguments));
}

// Runs it to its end.
Ended RunConsole(std::string_view arguments, bool somebodyReads = true) {
    InheritedPipe out;
    InheritedPipe err;
    if (!somebodyReads) out.reads.Close();
    std::wstring command =
        platform::win32::ToUnits('"' + platform::win32::Program().Directory() +
                                 "\\contract_console.exe\" " + std::string(arguments));
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = out.writes.Get();
    startup.hStdError = err.writes.Get();
    PROCESS_INFORMATION process = {};
    REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                           &startup, &process));
    const KernelHandle thread(process.hThread);
    const KernelHandle running(process.hProcess);
    Ended ended;
    ended.err = err.All();
    if (somebodyReads) ended.out = out.All();
    WaitForSingleObject(running.Get(), INFINITE);
    GetExitCodeProcess(running.Get(), &ended.code);
    return ended;
}

}  // namespace

TEST_CASE("whatever is thrown ends the console program with a line and code 3") {
    const Ended mistake = RunConsole("mistake");
    CHECK(mistake.code == 3);
    CHECK(mistake.err ==
          "QuillmoreCmd: gr\x94\xE1"
          "er als gedacht\r\n");
    const Ended failure = RunConsole("failure");
    CHECK(failure.code == 3);
    CHECK(failure.err.starts_with("QuillmoreCmd: "));
    CHECK(std::count(failure.err.begin(), failure.err.end(), '\n') == 1);
    for (const char* thrown : {"memory", "number"}) {
        CAPTURE(thrown);
        const Ended ended = RunConsole(thrown);
        CHECK(ended.code == 3);
        CHECK(ended.err == "QuillmoreCmd: Der Arbeitsspeicher reicht nicht.\r\n");
        CHECK(ended.out.empty());
    }
}

TEST_CASE("the console program gets its arguments with every character, and its code out") {
    const std::string strange = "\xD0\x96\xCE\xA9\xF0\x9D\x84\x9E";
    for (DWORD code = 0; code <= 5; ++code) {
        const Ended ended =
            RunConsole("say " + std::to_string(code) + " \"zwei Wörter\" * " + strange);
        CHECK(ended.code == code);
        CHECK(ended.out == "zwei Wörter\r\n*\r\n" + strange + "\r\n");
        CHECK(ended.err.empty());
    }
}

TEST_CASE("an output that got lost is a failure of its own, none worse is hidden") {
    for (const DWORD code : {0, 1, 2, 3, 4, 5}) {
        CAPTURE(code);
        CHECK(RunConsole("say " + std::to_string(code) + " text", false).code ==
              (code <= 1 ? 3 : code));
        CHECK(RunConsole("say " + std::to_string(code), false).code == code);
    }
}

TEST_CASE("in a console of its own the console program speaks and listens") {
    contract::TestMachine machine;
    const std::string path = machine.FilePath("seen.txt");
    std::wstring command = CommandLine("console \"" + path + '"');
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_HIDE;
    PROCESS_INFORMATION process = {};
    REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                           nullptr, nullptr, &startup, &process));
    const KernelHandle thread(process.hThread);
    const KernelHandle running(process.hProcess);
    CHECK(WaitForSingleObject(running.Get(), 30000) == WAIT_OBJECT_0);
    CHECK(machine.FileContent(path) == "seen|Größe € |zwei    |jä||n|");
}
