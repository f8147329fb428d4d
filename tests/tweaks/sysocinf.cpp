#include "tweaks/sysocinf.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using namespace std::string_literals;
using Lines = std::vector<std::string>;

namespace {

constexpr char Path[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

struct Windows {
    platform::simulated::Machine machine;

    Windows() { machine.files.MakeDirectory("C:\\WINDOWS\\inf"); }

    std::optional<std::string> Rewritten(const std::string& content, bool show) {
        machine.files.Put(Path, content);
        tweaks::RewriteSysocInf(machine.services, show);
        return machine.files.Content(Path);
    }
    std::optional<std::string> Shown(const std::string& content) {
        return Rewritten(content, true);
    }
    int FailureNumber(bool show = true) {
        return FailureOf([&] { tweaks::RewriteSysocInf(machine.services, show); });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Windows, "showing takes the word out of every line") {
    CHECK(Shown("[Components]\r\ngames=ocgen.dll,OcEntry,games.inf,HIDE,7\r\n"
                "msmsgs=msgrocm.dll,OcEntry,msmsgs.inf,hide,7\r\n") ==
          "[Components]\r\ngames=ocgen.dll,OcEntry,games.inf,,7\r\n"
          "msmsgs=msgrocm.dll,OcEntry,msmsgs.inf,,7\r\n");
}

TEST_CASE_FIXTURE(Windows, "the word goes in any mixture of capitals, and inside of other words") {
    CHECK(Shown("Hide hIDE HiDe unhidehide Hid e\r\n") == "   un Hid e\r\n");
}

TEST_CASE_FIXTURE(Windows, "a word that grows together where another was taken out stays") {
    CHECK(Shown("HiHidede\r\n") == "Hide\r\n");
}

TEST_CASE_FIXTURE(Windows, "hiding changes nothing in the lines, so showing cannot be undone") {
    const std::string content = "a,hide,7\r\nb,,7\r\n";
    CHECK(Rewritten(content, false) == content);
    Shown(content);
    CHECK(Rewritten(*machine.files.Content(Path), false) == "a,,7\r\nb,,7\r\n");
}

TEST_CASE_FIXTURE(Windows, "every line ends in CR LF afterwards, the last one too") {
    for (const bool show : {true, false}) {
        CHECK(Rewritten("a\r\nb", show) == "a\r\nb\r\n");
        CHECK(Rewritten("a\rb\r\r\n", show) == "a\r\nb\r\n\r\n");
        CHECK(Rewritten("\r\n", show) == "\r\n");
        CHECK(Rewritten("\r", show) == "\r\n");
        CHECK(Rewritten("a\nb\r\n\n", show) == "a\nb\r\n\n\r\n");
    }
}

TEST_CASE_FIXTURE(Windows, "an empty file stays empty") {
    CHECK(Shown("") == "");
    CHECK(Rewritten("", false) == "");
}

TEST_CASE_FIXTURE(Windows, "a byte-order mark goes in either direction, wherever it stands") {
    CHECK(Rewritten("\xFF\xFE[Components]\r\nx\xFF\xFEy\r\n", false) == "[Components]\r\nxy\r\n");
    CHECK(Shown("\xFF\xFE[Components]\r\n") == "[Components]\r\n");
    CHECK(Shown("\xFE\xFF\xFF\r\n") == "\xFE\xFF\xFF\r\n");
}

TEST_CASE_FIXTURE(Windows, "the letters of the mark go in capitals too") {
    CHECK(Shown("\x9F\xDE|\xFF\xDE|\x9F\xFE|\xDE\x9F\r\n") == "|||\xDE\x9F\r\n");
}

TEST_CASE_FIXTURE(Windows, "the mark is looked for after the word, so it goes where that grew") {
    CHECK(Shown("\xFFHide\xFE\r\n") == "\r\n");
    CHECK(Rewritten("\xFFHide\xFE\r\n", false) == "\xFFHide\xFE\r\n");
}

TEST_CASE_FIXTURE(Windows, "a file of 16-bit characters loses its mark and keeps its NULs") {
    CHECK((Shown("\xFF\xFE"
                 "a\0,\0h\0i\0d\0e\0"s) == "a\0,\0h\0i\0d\0e\0\r\n"s));
    // The CR of such a file has a NUL behind it, so its LF is left at the head of the next line.
    CHECK((Shown("\xFF\xFE"
                 "a\0\r\0\n\0b\0"s) == "a\0\r\n\0\n\0b\0\r\n"s));
}

TEST_CASE_FIXTURE(Windows, "bytes of all kinds survive") {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r') bytes += static_cast<char>(byte);
    }
    CHECK((Shown(bytes) == bytes + "\r\n"));
}

TEST_CASE_FIXTURE(Windows, "the file is read, deleted with force and written at once") {
    machine.files.Put(Path, "a,hide\r\n");
    tweaks::RewriteSysocInf(machine.services, true);
    CHECK(machine.journal.Lines() ==
          Lines{"GetWindowsDirectoryA -> \"C:\\WINDOWS\"",
                "ReadFile \"C:\\WINDOWS\\inf\\Sysoc.inf\" -> 8 bytes",
                "DeleteFile \"C:\\WINDOWS\\inf\\Sysoc.inf\" force",
                "OpenTextFile \"C:\\WINDOWS\\inf\\Sysoc.inf\" write 4 bytes"});
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Windows, "a read-only file is replaced too") {
    machine.files.Put(Path, "a,hide\r\n");
    machine.files.Protect(Path);
    tweaks::RewriteSysocInf(machine.services, true);
    CHECK(machine.files.Content(Path) == "a,\r\n");
}

TEST_CASE_FIXTURE(Windows, "a Windows directory elsewhere is looked at there") {
    machine.systemFacts.windowsDirectory = "D:\\WINNT";
    machine.files.Put("D:\\WINNT\\inf\\Sysoc.inf", "hide\r\n");
    tweaks::RewriteSysocInf(machine.services, true);
    CHECK(machine.files.Content("D:\\WINNT\\inf\\Sysoc.inf") == "\r\n");
}

TEST_CASE_FIXTURE(Windows, "a missing file is failure 53 and is not made") {
    CHECK(FailureNumber(true) == runtime::FileNotFound);
    CHECK(FailureNumber(false) == runtime::FileNotFound);
    CHECK_FALSE(machine.files.Content(Path));
}

TEST_CASE_FIXTURE(Windows,
                  "a missing directory is failure 76, also where Windows does not tell it") {
    machine.systemFacts.windowsDirectory = "D:\\WINNT";
    CHECK(FailureNumber() == runtime::PathNotFound);
    machine.files.Put(Path, "hide");
    machine.faults.FailAll("GetWindowsDirectoryA", 5);
    CHECK(FailureNumber() == runtime::PathNotFound);
    CHECK(machine.files.Content(Path) == "hide");
}

TEST_CASE_FIXTURE(Windows, "a file that somebody holds open stays as it was") {
    machine.files.Put(Path, "hide");
    machine.files.Hold(Path);
    CHECK(FailureNumber() == runtime::PermissionDenied);
    CHECK(machine.files.Content(Path) == "hide");
}

TEST_CASE_FIXTURE(Windows, "a file that cannot be read or deleted stays as it was") {
    machine.files.Put(Path, "hide");
    for (const char* call : {"ReadFile", "DeleteFile"}) {
        CAPTURE(call);
        machine.faults.Clear();
        machine.faults.FailAll(call, runtime::PermissionDenied);
        CHECK(FailureNumber() == runtime::PermissionDenied);
        CHECK(machine.files.Content(Path) == "hide");
    }
    CHECK(machine.journal.Calls("OpenTextFile").empty());
}

TEST_CASE_FIXTURE(Windows, "a file that cannot be made anew is lost: there is no copy") {
    machine.files.Put(Path, "hide");
    machine.faults.FailAll("OpenTextFile", runtime::PermissionDenied);
    CHECK(FailureNumber() == runtime::PermissionDenied);
    CHECK_FALSE(machine.files.Content(Path));
}

TEST_CASE_FIXTURE(Windows, "five megabytes are rewritten in one go") {
    // What is not linear takes minutes here: half the file is words, half a line without an end.
    std::string content;
    for (int line = 0; line < 200000; ++line) content += "HIDE,hide\r\n";
    content.append(3 * 1024 * 1024, 'h');
    const auto shown = Shown(content);
    REQUIRE(shown);
    CHECK(shown->size() == 200000 * 3 + 3 * 1024 * 1024 + 2);
    CHECK(shown->substr(0, 9) == ",\r\n,\r\n,\r\n");
    CHECK(shown->substr(shown->size() - 4) == "hh\r\n");
}
