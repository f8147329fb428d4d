#include <windows.h>

#include <doctest/doctest.h>

#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "contract/machine.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "runtime/failure.h"
#include "support/standinfunction.h"

// What the program asks of the system's disks, watched where it makes the calls.

namespace {

// Where each function of the system is called through.
extern "C" {
extern decltype(&CreateFileW) createFile asm("__imp__CreateFileW@28");
extern decltype(&ReadFile) readFile asm("__imp__ReadFile@20");
extern decltype(&WriteFile) writeFile asm("__imp__WriteFile@20");
extern decltype(&DeleteFileW) deleteFile asm("__imp__DeleteFileW@4");
extern decltype(&RemoveDirectoryW) removeDirectory asm("__imp__RemoveDirectoryW@4");
extern decltype(&GetFileAttributesW) getAttributes asm("__imp__GetFileAttributesW@4");
extern decltype(&SetFileAttributesW) setAttributes asm("__imp__SetFileAttributesW@8");
extern decltype(&CloseHandle) closeHandle asm("__imp__CloseHandle@4");
}

struct Seen {
    int calls = 0;
    int quietCalls = 0;
};
std::map<std::string, Seen> seen;

void Look(const char* name) {
    const UINT mode = SetErrorMode(0);
    SetErrorMode(mode);
    Seen& function = seen[name];
    ++function.calls;
    if (mode & SEM_FAILCRITICALERRORS) ++function.quietCalls;
}

// One function is replaced by another as long as this lives.
template <auto& Slot>
struct Replaced : support::StandInFunction {
    using Function = std::remove_reference_t<decltype(Slot)>;

    explicit Replaced(Function other) : StandInFunction(reinterpret_cast<void*&>(Slot), other) {}
};

// Looks at each call of one function.
template <auto& Slot, typename Function = std::remove_reference_t<decltype(Slot)>>
class Watch;
template <auto& Slot, typename Result, typename... Arguments>
class Watch<Slot, Result(WINAPI*)(Arguments...)> {
  public:
    explicit Watch(const char* name) { name_ = name; }

  private:
    static Result WINAPI Before(Arguments... arguments) {
        Look(name_);
        return own_(arguments...);
    }

    static inline const char* name_ = nullptr;
    static inline Result(WINAPI* own_)(Arguments...) = nullptr;
    Replaced<Slot> replaced_{(own_ = Slot, Before)};
};

void Try(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const runtime::Failure&) {
    }
}

}  // namespace

// It asks for a missing medium, and complains of a protected one, unless its boxes are turned off.
TEST_CASE("no call on files and folders lets the system ask for a medium") {
    contract::TestMachine machine;
    auto& files = machine.Services().files;
    auto& folders = machine.Services().folders;
    const std::string file = machine.FilePath("file");
    const std::string folder = machine.FilePath("folder");
    machine.MakeFolder(folder);
    const std::string readOnly = machine.FilePath("read-only");
    files.WriteText(readOnly, "x");
    machine.SetAttributes(readOnly, 33);
    const UINT before = SetErrorMode(SEM_NOGPFAULTERRORBOX);
    seen.clear();
    {
        const Watch<createFile> creating("CreateFileW");
        const Watch<readFile> reading("ReadFile");
        const Watch<writeFile> writing("WriteFile");
        const Watch<deleteFile> deleting("DeleteFileW");
        const Watch<removeDirectory> removing("RemoveDirectoryW");
        const Watch<getAttributes> asking("GetFileAttributesW");
        const Watch<setAttributes> setting("SetFileAttributesW");
        const Watch<closeHandle> closing("CloseHandle");
        files.WriteText(file, "a");
        const auto appended = files.OpenForAppend(file);
        files.Write(appended, "b");
        files.Close(appended);
        files.Close(files.OpenForReading(file));
        files.Read(file);
        files.Remove(file, true);
        files.Remove(readOnly, true);
        folders.Remove(folder, true);
        Try([&] { files.Remove(file, true); });
        Try([&] { folders.Remove(folder, true); });
        Try([&] { files.OpenForReading(file); });
    }
    CHECK(SetErrorMode(before) == SEM_NOGPFAULTERRORBOX);
    CHECK(seen.size() == 8);
    for (const auto& [name, function] : seen) {
        CAPTURE(name);
        CHECK(function.calls > 0);
        CHECK(function.quietCalls == function.calls);
    }
}

namespace {

DWORD folderAttributes = 0;
bool protectedFolderGoes = false;
std::vector<DWORD> attributesSet;

DWORD WINAPI TellAttributes(const wchar_t*) {
    return folderAttributes;
}
BOOL WINAPI NoteAttributes(const wchar_t*, DWORD attributes) {
    folderAttributes = attributes;
    attributesSet.push_back(attributes);
    return TRUE;
}
BOOL WINAPI RemoveUnprotected(const wchar_t*) {
    const bool isProtected = folderAttributes & FILE_ATTRIBUTE_READONLY;
    SetLastError(isProtected ? ERROR_ACCESS_DENIED : ERROR_DIR_NOT_EMPTY);
    return !isProtected && protectedFolderGoes;
}

}  // namespace

// Wine knows no folders with the attribute, so a system that does stands in for it.
TEST_CASE("a read-only folder gives its attribute back when it stays, and only then") {
    contract::TestMachine machine;
    const std::string folder = machine.FilePath("folder");
    machine.MakeFolder(folder);
    folderAttributes = 17;
    const Replaced<getAttributes> telling(TellAttributes);
    const Replaced<setAttributes> noting(NoteAttributes);
    const Replaced<removeDirectory> removing(RemoveUnprotected);
    attributesSet.clear();
    protectedFolderGoes = false;
    Try([&] { machine.Services().folders.Remove(folder, false); });
    Try([&] { machine.Services().files.Remove(folder, true); });
    CHECK(attributesSet.empty());
    Try([&] { machine.Services().folders.Remove(folder, true); });
    CHECK(attributesSet == std::vector<DWORD>{16, 17});
    protectedFolderGoes = true;
    machine.Services().folders.Remove(folder, true);
    CHECK(attributesSet == std::vector<DWORD>{16, 17, 16});
}
