#include "platform/win32/console/surroundings.h"

#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "contract/machine.h"
#include "platform/win32/console/utf16.h"
#include "platform/win32/handle.h"
#include "support/standinfunction.h"

namespace {

namespace win32 = platform::win32;
using win32::KernelHandle;

extern "C" {
extern void* entryOfWriteFile asm("__imp__WriteFile@20");
extern void* entryOfConsoleMode asm("__imp__GetConsoleMode@8");
extern void* entryOfReadConsole asm("__imp__ReadConsoleW@20");
extern void* entryOfFileType asm("__imp__GetFileType@4");
extern void* entryOfFlush asm("__imp__FlushFileBuffers@4");
extern void* entryOfWriteConsole asm("__imp__WriteConsoleW@20");
}

// One of the standard handles is another one as long as this lives.
class Standard {
  public:
    Standard(DWORD which, HANDLE handle) : which_(which), before_(GetStdHandle(which)) {
        SetStdHandle(which, handle);
    }
    ~Standard() { SetStdHandle(which_, before_); }
    Standard(const Standard&) = delete;
    Standard& operator=(const Standard&) = delete;

  private:
    DWORD which_;
    HANDLE before_;
};

struct Pipe {
    KernelHandle reads;
    KernelHandle writes;

    Pipe() { CreatePipe(reads.Out(), writes.Out(), nullptr, 1 << 20); }

    // All until the other end is closed.
    std::string Rest() {
        writes.Close();
        std::string bytes;
        char piece[1000];
        DWORD length = 0;
        while (::ReadFile(reads.Get(), piece, sizeof piece, &length, nullptr)) {
            bytes.append(piece, length);
        }
        return bytes;
    }
};

// What the two outputs get.
struct Output {
    std::string out;
    std::string err;
    bool lost = false;
};

Output Say(const std::function<void(win32::Surroundings&)>& say) {
    Pipe out;
    Pipe err;
    Output said;
    {
        const Standard first(STD_OUTPUT_HANDLE, out.writes.Get());
        const Standard second(STD_ERROR_HANDLE, err.writes.Get());
        win32::Surroundings around;
        say(around);
        said.lost = around.OutputLost();
    }
    said.out = out.Rest();
    said.err = err.Rest();
    return said;
}

// The lines that are read where these bytes come in.
std::vector<std::string> LinesOfInput(std::string_view bytes) {
    Pipe in;
    DWORD written = 0;
    ::WriteFile(in.writes.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    in.writes.Close();
    const Standard input(STD_INPUT_HANDLE, in.reads.Get());
    win32::Surroundings around;
    std::vector<std::string> lines;
    while (const auto line = around.ReadLine()) lines.push_back(*line);
    CHECK(around.ReadLine() == std::nullopt);
    return lines;
}

std::string ReasonOf(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const cmd::FileFailure& failure) {
        return failure.reason;
    }
    return "nothing failed";
}

struct SurroundingsFixture {
    contract::TestMachine machine;
    win32::Surroundings around;

    std::string Reason(int error) const { return around.SystemText(error); }
    bool IsThere(std::string_view path) const { return machine.FileContent(path).has_value(); }
};

int callsLeft = 0;
std::vector<HANDLE> flushed;
void* realWriteFile = nullptr;
void* realFlush = nullptr;

// The disk is full at some time.
BOOL WINAPI WriteUntilFull(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                           LPOVERLAPPED overlapped) {
    if (callsLeft-- <= 0) {
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    return reinterpret_cast<decltype(&::WriteFile)>(realWriteFile)(file, bytes, size, written,
                                                                   overlapped);
}

// A disk that takes a little at a time.
BOOL WINAPI WriteLittle(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                        LPOVERLAPPED overlapped) {
    return reinterpret_cast<decltype(&::WriteFile)>(realWriteFile)(file, bytes, size > 7 ? 7 : size,
                                                                   written, overlapped);
}

BOOL WINAPI WriteNothing(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
    *written = 0;
    return TRUE;
}

DWORD WINAPI SayDevice(HANDLE) {
    return FILE_TYPE_CHAR;
}

BOOL WINAPI NoteFlush(HANDLE file) {
    flushed.push_back(file);
    return reinterpret_cast<decltype(&::FlushFileBuffers)>(realFlush)(file);
}

BOOL WINAPI RefuseFlush(HANDLE) {
    SetLastError(ERROR_WRITE_FAULT);
    return FALSE;
}

std::string Large() {
    std::string bytes;
    for (int i = 0; i < 3000000; ++i) bytes += static_cast<char>(i % 251);
    return bytes;
}

BOOL WINAPI SayConsole(HANDLE, LPDWORD) {
    return TRUE;
}

std::vector<std::wstring> typed;

BOOL WINAPI TypeNext(HANDLE, LPVOID units, DWORD, LPDWORD length, PCONSOLE_READCONSOLE_CONTROL) {
    *length = 0;
    if (typed.empty()) return FALSE;
    *length = static_cast<DWORD>(typed.front().copy(static_cast<wchar_t*>(units), 512));
    typed.erase(typed.begin());
    return TRUE;
}

std::wstring toConsole;
std::size_t largestPiece = 0;
bool cutsPairs = false;

BOOL WINAPI NoteConsole(HANDLE, const VOID* units, DWORD count, LPDWORD written, LPVOID) {
    const std::wstring_view piece(static_cast<const wchar_t*>(units), count);
    toConsole += piece;
    largestPiece = std::max(largestPiece, piece.size());
    cutsPairs |= !piece.empty() && IS_HIGH_SURROGATE(piece.back());
    *written = count;
    return TRUE;
}

}  // namespace

TEST_CASE("a pipe gets the console's code page, with its ends of lines") {
    const Output said = Say([](win32::Surroundings& around) {
        around.Out("Größe\n\nändern €\n");
        around.Out("ohne Ende");
        around.Err("nicht „da“\n");
    });
    CHECK(said.out ==
          "Gr\x94\xE1"
          "e\r\n\r\n\x84ndern ?\r\nohne Ende");
    CHECK(said.err == "nicht \"da\"\r\n");
    CHECK_FALSE(said.lost);
}

TEST_CASE("both outputs are UTF-8 on wish") {
    const Output said = Say([](win32::Surroundings& around) {
        around.UseUtf8();
        around.Out("Größe €\n\xF0\x9D\x84\x9E\n");
        around.Err("ändern\n");
    });
    CHECK(said.out == "Größe €\r\n\xF0\x9D\x84\x9E\r\n");
    CHECK(said.err == "ändern\r\n");
}

TEST_CASE("a large output arrives whole, also at somebody who reads slowly") {
    std::string text;
    for (int i = 0; i < 40000; ++i) text += "Zeile " + std::to_string(i) + "\n";
    Pipe pipe;
    struct Reader {
        HANDLE pipe;
        std::string bytes;
        static DWORD WINAPI Run(void* argument) {
            auto& self = *static_cast<Reader*>(argument);
            char piece[5000];
            DWORD length = 0;
            while (::ReadFile(self.pipe, piece, sizeof piece, &length, nullptr)) {
                self.bytes.append(piece, length);
            }
            return 0;
        }
    } reader{pipe.reads.Get(), ""};
    const KernelHandle thread(CreateThread(nullptr, 0, Reader::Run, &reader, 0, nullptr));
    {
        const Standard output(STD_OUTPUT_HANDLE, pipe.writes.Get());
        win32::Surroundings around;
        around.Out(text);
        CHECK_FALSE(around.OutputLost());
    }
    pipe.writes.Close();
    WaitForSingleObject(thread.Get(), INFINITE);
    CHECK(std::count(reader.bytes.begin(), reader.bytes.end(), '\n') == 40000);
    std::erase(reader.bytes, '\r');
    CHECK((reader.bytes == text));
}

TEST_CASE("an output that nobody takes is lost, one that is not there is not") {
    Pipe pipe;
    pipe.reads.Close();
    {
        const Standard output(STD_OUTPUT_HANDLE, pipe.writes.Get());
        win32::Surroundings around;
        CHECK_FALSE(around.OutputLost());
        around.Out("");
        CHECK_FALSE(around.OutputLost());
        around.Out("text\n");
        CHECK(around.OutputLost());
        CHECK_FALSE(around.OutputIsSeen());
    }
    for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        const Standard output(STD_OUTPUT_HANDLE, none);
        const Standard error(STD_ERROR_HANDLE, none);
        const Standard input(STD_INPUT_HANDLE, none);
        win32::Surroundings around;
        around.Out("text\n");
        around.Err("text\n");
        CHECK(around.ReadLine() == std::nullopt);
        CHECK_FALSE(around.OutputLost());
        CHECK_FALSE(around.OutputIsSeen());
    }
}

TEST_CASE_FIXTURE(SurroundingsFixture, "an output to a full disk is lost") {
    const std::string path = machine.FilePath("out.txt");
    const win32::FileHandle file(CreateFileW(win32::ToUnits(path).c_str(), GENERIC_WRITE, 0,
                                             nullptr, CREATE_ALWAYS, 0, nullptr));
    const Standard output(STD_OUTPUT_HANDLE, file.Get());
    win32::Surroundings full;
    CHECK_FALSE(full.OutputIsSeen());
    full.Out("da\n");
    const support::StandInFunction noRoom(entryOfWriteFile, WriteUntilFull);
    realWriteFile = noRoom.Real();
    callsLeft = 0;
    full.Out("fort\n");
    CHECK(full.OutputLost());
}

TEST_CASE("lines of a pipe are read one by one, in the console's code page") {
    using Lines = std::vector<std::string>;
    CHECK(LinesOfInput("").empty());
    CHECK(LinesOfInput("j\r\n") == Lines{"j"});
    CHECK(LinesOfInput("j") == Lines{"j"});
    CHECK(LinesOfInput("j\n\r\n\nn\r\nGr\x94\xE1"
                       "e") == Lines{"j", "", "", "n", "Größe"});
    CHECK(LinesOfInput(std::string("\0j\n\xFF\n", 5)) == Lines{std::string("\0j", 2), "\xC2\xA0"});
}

TEST_CASE("an endless line ends somewhere") {
    std::size_t length = 0;
    for (const std::string& line : LinesOfInput(std::string(60000, 'j') + "\n")) {
        length += line.size();
    }
    CHECK(length == 60000);
    struct Endless {
        HANDLE pipe;
        static DWORD WINAPI Run(void* argument) {
            const std::string piece(1000, 'j');
            DWORD written = 0;
            while (::WriteFile(static_cast<Endless*>(argument)->pipe, piece.data(), 1000, &written,
                               nullptr)) {
            }
            return 0;
        }
    };
    Pipe in;
    Endless endless{in.writes.Get()};
    const KernelHandle thread(CreateThread(nullptr, 0, Endless::Run, &endless, 0, nullptr));
    {
        const Standard input(STD_INPUT_HANDLE, in.reads.Get());
        win32::Surroundings around;
        const auto line = around.ReadLine();
        REQUIRE(line);
        CHECK(line->size() >= 65536);
        CHECK(line->size() < 70000);
    }
    in.reads.Close();
    WaitForSingleObject(thread.Get(), INFINITE);
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a file is written and read byte by byte") {
    const std::string large = Large();
    for (const std::string& bytes :
         {std::string(), std::string("a\r\nb\n\0\x1A\xFF", 8), large, std::string("kurz")}) {
        CAPTURE(bytes.size());
        const std::string path = machine.FilePath(std::to_string(bytes.size()) + ".reg");
        around.WriteNewFile(path, bytes);
        CHECK((machine.FileContent(path) == bytes));
        CHECK((around.ReadFile(path) == bytes));
    }
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a path may have any character") {
    const std::string path = machine.FilePath("Größe \xD0\x96 \xF0\x9D\x84\x9E.reg");
    around.WriteNewFile(path, "bytes");
    CHECK(around.ReadFile(path) == "bytes");
    CHECK(GetFileAttributesW(win32::ToUnits(path).c_str()) != INVALID_FILE_ATTRIBUTES);
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a path counts from the current folder") {
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    const std::string path = machine.FilePath("here.txt");
    SetCurrentDirectoryW(win32::ToUnits(path.substr(0, path.rfind('\\'))).c_str());
    around.WriteNewFile("here.txt", "bytes");
    SetCurrentDirectoryW(before);
    CHECK(machine.FileContent(path) == "bytes");
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a new file takes nobody's place") {
    const std::string path = machine.FilePath("new.reg");
    const std::string folder = machine.FilePath("folder");
    machine.MakeFolder(folder);
    around.WriteNewFile(path, "first");
    CHECK(ReasonOf([&] { around.WriteNewFile(path, "second"); }) == Reason(ERROR_FILE_EXISTS));
    CHECK(machine.FileContent(path) == "first");
    CHECK(ReasonOf([&] { around.WriteNewFile(folder, "x"); }) != "nothing failed");
    CHECK(ReasonOf([&] { around.ReadFile(folder); }) == Reason(ERROR_ACCESS_DENIED));
    CHECK((GetFileAttributesW(win32::ToUnits(folder).c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0);
}

TEST_CASE_FIXTURE(SurroundingsFixture, "what is in the way of a file is told") {
    const std::string path = machine.FilePath("file.reg");
    const std::string lost = machine.FilePath("none\\file.reg");
    CHECK(ReasonOf([&] { around.ReadFile(path); }) == Reason(ERROR_FILE_NOT_FOUND));
    CHECK(ReasonOf([&] { around.ReadFile(lost); }) == Reason(ERROR_PATH_NOT_FOUND));
    CHECK(ReasonOf([&] { around.WriteNewFile(lost, "x"); }) == Reason(ERROR_PATH_NOT_FOUND));
    CHECK(ReasonOf([&] { around.ReadFile(machine.FilePath("a*b")); }) ==
          Reason(ERROR_INVALID_NAME));
    CHECK(ReasonOf([&] { around.ReadFile(std::string(40000, 'x')); }) != "nothing failed");
    CHECK(ReasonOf([&] { around.ReadFile(""); }) != "nothing failed");
    CHECK(ReasonOf([&] { around.WriteNewFile("", "x"); }) != "nothing failed");

    around.WriteNewFile(path, "old");
    {
        const win32::FileHandle taken(CreateFileW(win32::ToUnits(path).c_str(), GENERIC_READ, 0,
                                                  nullptr, OPEN_EXISTING, 0, nullptr));
        CHECK(ReasonOf([&] { around.ReadFile(path); }) == Reason(ERROR_SHARING_VIOLATION));
        CHECK(ReasonOf([&] { around.WriteNewFile(path, "new"); }) != "nothing failed");
    }
    CHECK(around.ReadFile(path) == "old");
}

TEST_CASE_FIXTURE(SurroundingsFixture, "no device or pipe is taken for a file") {
    const KernelHandle pipe(CreateNamedPipeW(L"\\\\.\\pipe\\QuillmoreContract", PIPE_ACCESS_DUPLEX,
                                             PIPE_TYPE_BYTE, 2, 0, 0, 0, nullptr));
    REQUIRE(pipe.Get() != INVALID_HANDLE_VALUE);
    const std::string file = machine.FilePath("file.reg");
    around.WriteNewFile(file, "bytes");
    for (const std::string& path :
         {std::string("NUL"), std::string("con"), std::string("CON:"), std::string("AUX.reg"),
          std::string("COM1"), machine.FilePath("nul"), machine.FilePath("LPT1.txt"),
          std::string("\\\\.\\pipe\\QuillmoreContract"), std::string("//./pipe/QuillmoreContract"),
          std::string("\\\\.\\C:"), std::string("\\\\?\\C:"), "\\\\?\\" + file,
          std::string("\\\\.\\PhysicalDrive0")}) {
        CAPTURE(path);
        CHECK(ReasonOf([&] { around.ReadFile(path); }) == Reason(ERROR_INVALID_NAME));
        CHECK(ReasonOf([&] { around.WriteNewFile(path, "x"); }) == Reason(ERROR_INVALID_NAME));
    }
    CHECK(machine.FileContent(file) == "bytes");
    // One that is told by opening it alone.
    const support::StandInFunction devices(entryOfFileType, SayDevice);
    CHECK(ReasonOf([&] { around.ReadFile(file); }) == Reason(ERROR_INVALID_NAME));
    CHECK(ReasonOf([&] { around.WriteNewFile(file + "2", "x"); }) == Reason(ERROR_INVALID_NAME));
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a file that is not written whole goes again") {
    const std::string large = Large();
    const std::string path = machine.FilePath("half.reg");
    const support::StandInFunction noRoom(entryOfWriteFile, WriteUntilFull);
    realWriteFile = noRoom.Real();
    for (const int room : {0, 1, 2}) {
        CAPTURE(room);
        callsLeft = room;
        CHECK(ReasonOf([&] { around.WriteNewFile(path, large); }) == Reason(ERROR_DISK_FULL));
        CHECK_FALSE(IsThere(path));
    }
    callsLeft = 3;
    around.WriteNewFile(path, large);
    CHECK((machine.FileContent(path) == large));
    callsLeft = 0;
    CHECK(ReasonOf([&] { around.WriteNewFile(path, "x"); }) == Reason(ERROR_FILE_EXISTS));
    CHECK(IsThere(path));
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a disk that takes little at a time gets all") {
    const std::string path = machine.FilePath("slow.reg");
    const std::string bytes = Large().substr(0, 1000);
    {
        const support::StandInFunction slow(entryOfWriteFile, WriteLittle);
        realWriteFile = slow.Real();
        around.WriteNewFile(path, bytes);
    }
    CHECK((machine.FileContent(path) == bytes));
    const support::StandInFunction stuck(entryOfWriteFile, WriteNothing);
    const std::string full = machine.FilePath("stuck.reg");
    CHECK(ReasonOf([&] { around.WriteNewFile(full, bytes); }) == Reason(ERROR_DISK_FULL));
    CHECK_FALSE(IsThere(full));
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a file is on the disk when it is written") {
    const std::string path = machine.FilePath("flushed.reg");
    {
        const support::StandInFunction noting(entryOfFlush, NoteFlush);
        realFlush = noting.Real();
        flushed.clear();
        around.WriteNewFile(machine.FilePath("other.reg"), "bytes");
        CHECK(flushed.size() == 1);
    }
    const support::StandInFunction refusing(entryOfFlush, RefuseFlush);
    CHECK(ReasonOf([&] { around.WriteNewFile(path, "other"); }) == Reason(ERROR_WRITE_FAULT));
    CHECK_FALSE(IsThere(path));
}

TEST_CASE_FIXTURE(SurroundingsFixture, "a file beyond all measure is not read to its end") {
    const std::string path = machine.FilePath("huge.reg");
    {
        const win32::FileHandle file(CreateFileW(win32::ToUnits(path).c_str(), GENERIC_WRITE, 0,
                                                 nullptr, CREATE_ALWAYS, 0, nullptr));
        LONG above = 1;
        SetFilePointer(file.Get(), 0, &above, FILE_BEGIN);
        REQUIRE(SetEndOfFile(file.Get()));
    }
    CHECK(ReasonOf([&] { around.ReadFile(path); }) == Reason(ERROR_NOT_ENOUGH_MEMORY));
}

TEST_CASE_FIXTURE(SurroundingsFixture, "the system's texts are sentences on one line") {
    CHECK(Reason(ERROR_ACCESS_DENIED).starts_with("Zugriff verweigert"));
    CHECK(Reason(ERROR_FILE_NOT_FOUND).starts_with("Datei nicht gefunden"));
    CHECK(Reason(987654) == "Fehler 987654");
    CHECK(Reason(-1) == "Fehler -1");
    int told = 0;
    for (int error = 0; error < 2000; ++error) {
        CAPTURE(error);
        const std::string text = Reason(error);
        CHECK(text.find_first_of("\r\n") == std::string::npos);
        CHECK(text == text.substr(0, text.find_last_not_of(' ') + 1));
        CHECK_FALSE(text.empty());
        if (!text.starts_with("Fehler ")) ++told;
    }
    CHECK(told > 500);
}

TEST_CASE("a console gets characters, in pieces that it can take") {
    const support::StandInFunction yes(entryOfConsoleMode, SayConsole);
    const support::StandInFunction noting(entryOfWriteConsole, NoteConsole);
    win32::Surroundings around;
    CHECK(around.OutputIsSeen());
    toConsole.clear();
    around.Out("Größe €\n");
    around.Err("\n");
    around.UseUtf8();
    around.Out("ä");
    CHECK(win32::FromUnits(toConsole) == "Größe €\r\n\r\nä");
    toConsole.clear();
    std::string text;
    for (int i = 0; i < 10000; ++i) text += "\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E-";
    around.Out(text);
    CHECK((win32::FromUnits(toConsole) == text));
    CHECK(largestPiece * sizeof(wchar_t) < 60000);
    CHECK_FALSE(cutsPairs);
    CHECK_FALSE(around.OutputLost());
}

TEST_CASE("lines of a console are read one by one, until its user ends them") {
    const support::StandInFunction yes(entryOfConsoleMode, SayConsole);
    const support::StandInFunction typing(entryOfReadConsole, TypeNext);
    win32::Surroundings around;
    typed = {L"jä\r\n", L"\r\n", L"ein langes", L" Wort\r\nn\r\n", L"\x1A\r\n"};
    CHECK(around.ReadLine() == "jä");
    CHECK(around.ReadLine() == "");
    CHECK(around.ReadLine() == "ein langes Wort");
    CHECK(around.ReadLine() == "n");
    CHECK(around.ReadLine() == std::nullopt);
    // As the system has it when the user breaks it off.
    CHECK(around.ReadLine() == std::nullopt);
}
