// Both ways to read a folder, beside each other, and what becomes of a piece that is not as it
// should be.
#include <windows.h>

#include <doctest/doctest.h>
#include <winternl.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "contract/machine.h"
#include "platform/files.h"
#include "platform/win32/folders.h"
#include "platform/win32/handle.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "support/standinfunction.h"

namespace {

namespace win32 = platform::win32;
using platform::FolderEntry;
using Entries = std::vector<FolderEntry>;
using Query = win32::Folders::QueryDirectory;
using EntryRecord = FILE_BOTH_DIR_INFORMATION;

constexpr NTSTATUS AllTold = static_cast<NTSTATUS>(0x80000006);

extern "C" {
extern void* entryOfFindFirst asm("__imp__FindFirstFileW@8");
extern void* entryOfOpening asm("__imp__CreateFileW@28");
}

int searches = 0;
void* realFindFirst = nullptr;

HANDLE WINAPI CountSearch(const wchar_t* pattern, WIN32_FIND_DATAW* found) {
    ++searches;
    return reinterpret_cast<decltype(&FindFirstFileW)>(realFindFirst)(pattern, found);
}

HANDLE WINAPI RefuseOpening(const wchar_t*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD,
                            HANDLE) {
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

// Counts how often a folder is searched while it lives.
struct SearchesCounted {
    SearchesCounted() {
        realFindFirst = function.Real();
        searches = 0;
    }
    support::StandInFunction function{entryOfFindFirst, CountSearch};
};

Query RealQuery() {
    return reinterpret_cast<Query>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryDirectoryFile")));
}

// What the system is said to have answered, call by call; behind the last one there is no more.
struct Told {
    NTSTATUS status = 0;
    std::vector<char> bytes = {};
    // What it says that it has put into the room, where that is not the bytes.
    std::ptrdiff_t told = -1;
};
std::vector<Told> answers;
std::size_t answered = 0;
bool asksQuietly = true;
std::size_t roomOffered = 0;
FILE_INFORMATION_CLASS kindWanted = {};

NTSTATUS NTAPI GiveAnswer(HANDLE, HANDLE, PIO_APC_ROUTINE, void*, IO_STATUS_BLOCK* told, void* room,
                          ULONG size, FILE_INFORMATION_CLASS kind, BOOLEAN, UNICODE_STRING*,
                          BOOLEAN) {
    const UINT mode = SetErrorMode(0);
    SetErrorMode(mode);
    asksQuietly &= (mode & SEM_FAILCRITICALERRORS) != 0;
    roomOffered = size;
    kindWanted = kind;
    if (answered == answers.size()) return AllTold;
    const Told& answer = answers[answered++];
    std::memcpy(room, answer.bytes.data(), answer.bytes.size());
    told->Information = answer.told < 0 ? answer.bytes.size() : static_cast<ULONG_PTR>(answer.told);
    return answer.status;
}

struct Said {
    std::wstring name;
    ULONG attributes = FILE_ATTRIBUTE_ARCHIVE;
    LONGLONG size = 0;
    LONGLONG written = 0;
};

// Records as a file system puts them: each begins at a multiple of eight, the last one has none
// behind it.
std::vector<char> PieceOf(const std::vector<Said>& all) {
    std::vector<char> bytes;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::size_t length = all[i].name.size() * sizeof(wchar_t);
        const std::size_t exact = offsetof(EntryRecord, FileName) + length;
        const std::size_t whole = (exact + 7) / 8 * 8;
        EntryRecord record = {};
        record.NextEntryOffset = i + 1 < all.size() ? static_cast<ULONG>(whole) : 0;
        record.FileAttributes = all[i].attributes;
        record.EndOfFile.QuadPart = all[i].size;
        record.LastWriteTime.QuadPart = all[i].written;
        record.FileNameLength = static_cast<ULONG>(length);
        const std::size_t start = bytes.size();
        bytes.resize(start + (record.NextEntryOffset != 0 ? whole : exact));
        std::memcpy(&bytes[start], &record, offsetof(EntryRecord, FileName));
        std::memcpy(&bytes[start + offsetof(EntryRecord, FileName)], all[i].name.data(), length);
    }
    return bytes;
}

template <typename Value>
std::vector<char> Altered(std::vector<char> bytes, std::size_t at, Value value) {
    std::memcpy(&bytes[at], &value, sizeof value);
    return bytes;
}

struct PiecesFixture {
    contract::TestMachine machine;
    win32::Folders inPieces;
    win32::Folders bySearch{nullptr};
    win32::Folders told{GiveAnswer};
    const std::string top = machine.FilePath("top");

    PiecesFixture() {
        machine.MakeFolder(top);
        answers.clear();
        answered = 0;
        asksQuietly = true;
    }

    std::string In(std::string_view name) const { return top + '\\' + std::string(name); }
    void Put(std::string_view path, std::string_view bytes) {
        machine.Services().files.WriteText(path, bytes);
    }
    // The entries, which both ways tell alike and in the same order, each without help by the
    // other.
    Entries Alike(std::string_view path) {
        const Entries searched = bySearch.List(path);
        const SearchesCounted counted;
        const Entries read = inPieces.List(path);
        CAPTURE(path);
        CHECK(searches == 0);
        CHECK(read.size() == searched.size());
        CHECK((read == searched));
        return read;
    }
    // A folder that is still open lets nobody have it alone.
    bool IsOpen() const {
        return !win32::FileHandle(CreateFileW(win32::ToWide(top).c_str(), GENERIC_READ, 0, nullptr,
                                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    }
};

}  // namespace

TEST_CASE_FIXTURE(PiecesFixture, "both ways tell the same of what a folder can hold") {
    CHECK(Alike(top).empty());
    Put(In("file"), "12345");
    Put(In("Ein langer Name mit Ümlaut.html"), "");
    for (const std::uint32_t attributes : {33u, 34u, 36u, 39u}) {
        const std::string name = In("f" + std::to_string(attributes));
        Put(name, "x");
        machine.SetAttributes(name, attributes);
    }
    machine.MakeFolder(In("folder"));
    machine.MakeFolder(In("hidden"));
    machine.SetAttributes(In("hidden"), 16 | 2);
    machine.MakeLink(In("link"), In("folder"));
    Put(In("folder\\behind the link"), "1");
    CHECK(Alike(top).size() == 9);
    CHECK(Alike(top + '\\').size() == 9);
    CHECK(Alike(In("link")).size() == 1);
    CHECK_FALSE(IsOpen());
    for (const std::uint32_t attributes : {33u, 34u, 36u, 39u}) {
        machine.SetAttributes(In("f" + std::to_string(attributes)), 32);
    }
}

TEST_CASE_FIXTURE(PiecesFixture, "both ways tell the same of odd names, at any length") {
    for (const char* name : {".a", "..a", "a..b", " a", "a b.c d", "~1", "ab~1.txt", "%TEMP%",
                             "a;b", "[a]{b}(c)", "'`^&!@#$+=,", "Привет", "日本語",
                             "\xF0\x9D\x84\x9E", "e\xCC\x81", "\xEF\xBB\xBFx", "ANSI €"}) {
        Put(In(name), "x");
    }
    Put(In(std::string(200, 'n')), "x");
    CHECK(Alike(top).size() == 18);
}

TEST_CASE_FIXTURE(PiecesFixture, "both ways tell the same of more than fits into a piece") {
    const std::string tail(120, 'x');
    for (int number = 0; number < 500; ++number) Put(In(std::to_string(number) + tail), "");
    CHECK(Alike(top).size() == 500);
}

TEST_CASE_FIXTURE(PiecesFixture, "both ways tell the same of the system's own folders") {
    for (const char* path : {"C:\\", "C:", "C:\\windows", "C:\\windows\\system32\\"}) {
        CHECK_FALSE(Alike(path).empty());
    }
}

TEST_CASE_FIXTURE(PiecesFixture, "both ways go as deep, and refuse the same") {
    std::string path = top;
    while (path.size() < 246) {
        path += "\\" + std::string(std::min<std::size_t>(10, 250 - path.size()), 'x');
        machine.MakeFolder(path);
        Alike(path);
    }
    Put(In("file"), "x");
    for (const std::string& none :
         {In("absent"), In("absent\\deeper"), In("file"), In("file\\deeper"), In("*"), In("x*"),
          In("?"), In("a<b"), In("a|b"), std::string("Q:\\"), std::string(":"), std::string("\\\\"),
          std::string("\\\\.\\C:"), std::string("NUL"), In("NUL"), In("CON"), In(""),
          path + "\\" + std::string(300, 'y')}) {
        CAPTURE(none);
        CHECK(FailureOf([&] { inPieces.List(none); }) == FailureOf([&] { bySearch.List(none); }));
    }
    machine.WithUnreadable(top, [&] {
        CHECK(FailureOf([&] { inPieces.List(top); }) == runtime::PermissionDenied);
        CHECK(FailureOf([&] { bySearch.List(top); }) == runtime::PermissionDenied);
    });
}

TEST_CASE_FIXTURE(PiecesFixture, "a folder that cannot be opened for it is searched") {
    Put(In("a"), "1");
    Put(In("b"), "22");
    const support::StandInFunction opening(entryOfOpening, RefuseOpening);
    const SearchesCounted counted;
    CHECK((inPieces.List(top) == bySearch.List(top)));
    CHECK(inPieces.List(top).size() == 2);
    CHECK(searches == 3);
}

TEST_CASE_FIXTURE(PiecesFixture, "a piece is 64 KB of what a search is told, asked without a box") {
    answers = {{.bytes = PieceOf({{L"a"}})}};
    CHECK(told.List(top).size() == 1);
    CHECK(roomOffered == 65536);
    CHECK(kindWanted == FileBothDirectoryInformation);
    CHECK(asksQuietly);
}

TEST_CASE_FIXTURE(PiecesFixture, "what is told in pieces is taken as it is told") {
    const SearchesCounted counted;
    // 1 January 2004, 12:34:56, as told in Greenwich.
    const LONGLONG moment = 127174412960000000;
    answers = {
        {.bytes = PieceOf(
             {{L"."}, {L".."}, {L"Größe", 33, 0x123456789AB, moment}, {L"odd", 0x410, 0, moment}})},
        {.bytes = PieceOf({{L"...", 32, 1, moment}})},
        {.bytes = PieceOf({{std::wstring(L"last", 5), 32, 0xFFFFFFFF, moment}})}};
    const Entries entries = told.List(top);
    CHECK(searches == 0);
    REQUIRE(entries.size() == 4);
    CHECK(entries[0].name == "Größe");
    CHECK(entries[0].attributes == 33);
    CHECK(entries[0].size == 0x123456789AB);
    FILETIME written = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
    FILETIME local = {};
    SYSTEMTIME parts = {};
    FileTimeToLocalFileTime(&written, &local);
    FileTimeToSystemTime(&local, &parts);
    const platform::LocalTime modified{parts.wYear, parts.wMonth,  parts.wDay,
                                       parts.wHour, parts.wMinute, parts.wSecond};
    CHECK(modified.year == 2004);
    for (const FolderEntry& entry : entries) CHECK((entry.modified == modified));
    CHECK(entries[1].name == "odd");
    CHECK(entries[1].IsFolder());
    CHECK(entries[1].IsLink());
    CHECK(entries[2].name == "...");
    CHECK(entries[3].name == "last");
    CHECK(entries[3].size == 0xFFFFFFFF);
}

TEST_CASE_FIXTURE(PiecesFixture, "whatever goes wrong, all of the folder is searched instead") {
    Put(In("a"), "1");
    Put(In("b"), "22");
    const Entries searched = bySearch.List(top);
    const auto good = PieceOf({{L"x"}, {L"yyy"}});
    // Where the second record begins.
    const std::size_t second = (PieceOf({{L"x"}}).size() + 7) / 8 * 8;
    const auto end = static_cast<std::ptrdiff_t>(good.size());
    const std::size_t length = offsetof(EntryRecord, FileNameLength);
    const struct {
        const char* name;
        Told answer;
    } wrong[] = {
        {"not implemented", {static_cast<NTSTATUS>(0xC0000002), good}},
        {"no such kind", {static_cast<NTSTATUS>(0xC0000003), good}},
        {"invalid parameter", {static_cast<NTSTATUS>(0xC000000D), good}},
        {"no such file", {static_cast<NTSTATUS>(0xC000000F), good}},
        {"invalid request", {static_cast<NTSTATUS>(0xC0000010), good}},
        {"access denied", {static_cast<NTSTATUS>(0xC0000022), good}},
        {"gone", {static_cast<NTSTATUS>(0xC0000056), good}},
        {"too little room", {static_cast<NTSTATUS>(0x80000005), good}},
        {"will come later", {0x103, good}},
        {"nothing at all", {0, {}}},
        {"less than a record", {0, good, offsetof(EntryRecord, FileName) - 1}},
        {"less than the name", {0, good, end - 1}},
        {"ends before the second record", {0, good, static_cast<std::ptrdiff_t>(second) - 8}},
        {"ends within the second record", {0, good, static_cast<std::ptrdiff_t>(second) + 8}},
        {"more than the room", {0, good, 65537}},
        {"far more than the room", {0, good, 0x7FFFFFFF}},
        {"a name behind the end", {0, Altered(good, second + length, ULONG{8})}},
        {"a name without end", {0, Altered(good, second + length, ULONG{0xFFFFFFFE})}},
        {"half a letter", {0, Altered(good, second + length, ULONG{5})}},
        {"the next one behind the end", {0, Altered(good, 0, static_cast<ULONG>(end) + 2)}},
        {"the next one anywhere", {0, Altered(good, 0, ULONG{0xFFFFFFF8})}},
        {"the next one within this one", {0, Altered(good, 0, ULONG{8})}},
        {"the next one within the name", {0, Altered(good, 0, ULONG{88})}},
        {"the next one at an odd place", {0, Altered(good, 0, static_cast<ULONG>(second) + 1)}},
        {"the next one between", {0, Altered(good, 0, static_cast<ULONG>(second) + 4)}},
    };
    for (const auto& [name, answer] : wrong) {
        CAPTURE(name);
        // At once, and after a piece that was good.
        for (const bool first : {true, false}) {
            answers = {answer};
            if (!first) answers.insert(answers.begin(), Told{0, good});
            answered = 0;
            const SearchesCounted counted;
            CHECK((told.List(top) == searched));
            CHECK(searches == 1);
            CHECK(answered == answers.size());
        }
        CHECK_FALSE(IsOpen());
    }
    // A folder has at least the dots in it.
    answers.clear();
    answered = 0;
    CHECK((told.List(top) == searched));
}

namespace {

std::function<void()> betweenPieces;

NTSTATUS NTAPI ActBetween(HANDLE folder, HANDLE event, PIO_APC_ROUTINE routine, void* context,
                          IO_STATUS_BLOCK* told, void* room, ULONG, FILE_INFORMATION_CLASS kind,
                          BOOLEAN onlyOne, UNICODE_STRING* pattern, BOOLEAN anew) {
    const NTSTATUS status = RealQuery()(folder, event, routine, context, told, room, 1024, kind,
                                        onlyOne, pattern, anew);
    if (betweenPieces) betweenPieces();
    return status;
}

}  // namespace

TEST_CASE_FIXTURE(PiecesFixture, "a folder may go while it is read") {
    const std::string gone = In("gone");
    machine.MakeFolder(gone);
    for (int number = 0; number < 50; ++number) Put(gone + '\\' + std::to_string(number), "");
    betweenPieces = nullptr;
    win32::Folders folders(ActBetween);
    CHECK((folders.List(gone) == bySearch.List(gone)));
    betweenPieces = [&] {
        for (int number = 0; number < 50; ++number) {
            DeleteFileW(win32::ToWide(gone + '\\' + std::to_string(number)).c_str());
        }
        RemoveDirectoryW(win32::ToWide(gone).c_str());
    };
    Entries entries;
    const int failure = FailureOf([&] { entries = folders.List(gone); });
    // What was read before it went, or that there is none.
    CHECK((failure == runtime::PathNotFound || (failure == 0 && entries.size() <= 50)));
    CHECK_FALSE(folders.Find(gone));
    CHECK(FailureOf([&] { folders.List(gone); }) == runtime::PathNotFound);
}
