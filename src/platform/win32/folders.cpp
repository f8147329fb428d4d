#include "platform/win32/folders.h"

#include <cstddef>

#include "platform/win32/handle.h"
#include "platform/win32/nomediumbox.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {
namespace {

struct SearchTraits {
    using Type = HANDLE;
    static Type None() { return INVALID_HANDLE_VALUE; }
    static bool Close(Type search) { return FindClose(search) != FALSE; }
};

std::uint64_t Ticks(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

// FileTimeToLocalFileTime adds the same to each time, which is the zone of the moment, and to ask
// for it takes longer than all else that is done with a time. So it is asked for once a listing.
class LocalClock {
  public:
    LocalClock() {
        const FILETIME moment = {0, 0x01000000};
        FILETIME local{};
        isKnown_ = FileTimeToLocalFileTime(&moment, &local) != FALSE;
        ahead_ = Ticks(local) - Ticks(moment);
    }

    LocalTime Of(const FILETIME& time) const {
        const std::uint64_t ticks = Ticks(time) + ahead_;
        const FILETIME local = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
        SYSTEMTIME parts{};
        if (!isKnown_ || !FileTimeToSystemTime(&local, &parts)) return {};
        return {parts.wYear, parts.wMonth, parts.wDay, parts.wHour, parts.wMinute, parts.wSecond};
    }

  private:
    bool isKnown_ = false;
    // In 100 nanoseconds; a zone behind Greenwich wraps round.
    std::uint64_t ahead_ = 0;
};

// Both kinds of data that Windows tells about a file.
template <typename Data>
FolderEntry ToEntry(std::string name, const Data& data, const LocalClock& clock) {
    return {std::move(name), data.dwFileAttributes,
            std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow,
            clock.Of(data.ftLastWriteTime)};
}

bool IsDots(std::wstring_view name) {
    return name == L"." || name == L"..";
}

// The record in which FindFirstFileW, too, has the system tell it of an entry.
using EntryRecord = FILE_BOTH_DIR_INFORMATION;
constexpr std::size_t NameOffset = offsetof(EntryRecord, FileName);
static_assert(NameOffset == 94);

// Room for some hundred entries; more than that is refused by some servers on the network.
constexpr std::size_t PieceSize = 64 * 1024;

constexpr NTSTATUS Success = 0;
constexpr auto NoMoreFiles = static_cast<NTSTATUS>(0x80000006);

// Adds the entries that lie one behind the other in these bytes. False where one does not lie
// within them: file systems are drivers, which may come from anybody.
bool AddEntries(const char* bytes, std::size_t size, const LocalClock& clock,
                std::vector<FolderEntry>& entries) {
    for (;;) {
        if (size < NameOffset) return false;
        const auto& record = *reinterpret_cast<const EntryRecord*>(bytes);
        const std::size_t length = record.FileNameLength;
        if (length > size - NameOffset || length % sizeof(wchar_t) != 0) return false;
        std::wstring_view name(record.FileName, length / sizeof(wchar_t));
        // Some servers count the NUL at its end.
        name = name.substr(0, name.find(L'\0'));
        if (!IsDots(name)) {
            const auto& written = record.LastWriteTime;
            entries.push_back({FromWide(name), record.FileAttributes,
                               static_cast<std::uint64_t>(record.EndOfFile.QuadPart),
                               clock.Of({written.LowPart, static_cast<DWORD>(written.HighPart)})});
        }
        const std::size_t next = record.NextEntryOffset;
        if (next == 0) return true;
        const bool isAligned = next % alignof(EntryRecord) == 0;
        if (next < NameOffset + length || next > size || !isAligned) return false;
        bytes += next;
        size -= next;
    }
}

// FindFirstFileW's way without its small pieces. False where anything is not as it should be, and
// then the entries are not all.
bool ListInPieces(Folders::QueryDirectory query, const std::wstring& folder,
                  const LocalClock& clock, std::vector<FolderEntry>& entries) {
    const FileHandle handle(CreateFileW(
        folder.c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!handle) return false;
    alignas(EntryRecord) char piece[PieceSize];
    for (bool isFirst = true;; isFirst = false) {
        IO_STATUS_BLOCK told = {};
        const NTSTATUS status =
            query(handle.Get(), nullptr, nullptr, nullptr, &told, piece, sizeof piece,
                  FileBothDirectoryInformation, FALSE, nullptr, FALSE);
        if (status == NoMoreFiles && !isFirst) return true;
        if (status != Success || told.Information > sizeof piece ||
            !AddEntries(piece, told.Information, clock, entries)) {
            return false;
        }
    }
}

// What is not there, in all words that Windows has for it, apart from what is refused.
runtime::Failure FolderFailure(DWORD error) {
    const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ||
                           error == ERROR_DIRECTORY || error == ERROR_INVALID_NAME ||
                           error == ERROR_FILENAME_EXCED_RANGE || error == ERROR_BAD_PATHNAME ||
                           error == ERROR_NOT_READY || error == ERROR_BAD_NETPATH ||
                           error == ERROR_BAD_NET_NAME || error == ERROR_CANT_RESOLVE_FILENAME;
    return runtime::Failure(isMissing ? runtime::PathNotFound : runtime::PermissionDenied);
}

}  // namespace

Folders::Folders()
    : Folders(reinterpret_cast<QueryDirectory>(reinterpret_cast<void*>(
          GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryDirectoryFile")))) {}

std::vector<FolderEntry> Folders::List(std::string_view path) {
    std::wstring pattern = ToWide(path);
    if (pattern.empty()) throw runtime::Failure(runtime::PathNotFound);
    const NoMediumBox quiet;
    if (pattern.back() != L'\\') pattern += L'\\';
    if (pattern.size() + 1 >= MAX_PATH) throw runtime::Failure(runtime::PathNotFound);
    std::vector<FolderEntry> entries;
    const LocalClock clock;
    if (query_ && ListInPieces(query_, pattern, clock, entries)) return entries;
    entries.clear();
    pattern += L'*';
    WIN32_FIND_DATAW data;
    const Owned<SearchTraits> search(FindFirstFileW(pattern.c_str(), &data));
    if (!search) {
        // The root of an empty drive has not even dots in it.
        if (GetLastError() == ERROR_FILE_NOT_FOUND && Find(path)) return entries;
        throw FolderFailure(GetLastError());
    }
    do {
        if (!IsDots(data.cFileName)) {
            entries.push_back(ToEntry(FromWide(data.cFileName), data, clock));
        }
    } while (FindNextFileW(search.Get(), &data));
    if (GetLastError() != ERROR_NO_MORE_FILES) throw FolderFailure(GetLastError());
    return entries;
}

std::optional<FolderEntry> Folders::Find(std::string_view path) const {
    const std::wstring wide = ToWide(path);
    const NoMediumBox quiet;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (wide.size() >= MAX_PATH ||
        !GetFileAttributesExW(wide.c_str(), GetFileExInfoStandard, &data)) {
        return std::nullopt;
    }
    return ToEntry(std::string(path), data, LocalClock());
}

std::string Folders::FullPath(std::string_view path) const {
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(ToWide(path).c_str(), MAX_PATH, full, nullptr);
    return length < MAX_PATH ? FromWide({full, length}) : std::string(path);
}

void Folders::MakeCurrent(std::string_view path) {
    const NoMediumBox quiet;
    if (!SetCurrentDirectoryW(ToWide(path).c_str())) throw FolderFailure(GetLastError());
}

std::string Folders::ShortPath(std::string_view path, std::size_t room) const {
    std::string buffer(room, '\0');
    const NoMediumBox quiet;
    const DWORD length =
        GetShortPathNameA(ToAnsi(path).c_str(), buffer.data(), static_cast<DWORD>(room));
    return length < room ? FromAnsi({buffer.data(), length}) : "";
}

std::string Folders::LongPath(std::string_view path) const {
    wchar_t buffer[MAX_PATH];
    const NoMediumBox quiet;
    const DWORD length = GetLongPathNameW(ToWide(path).c_str(), buffer, MAX_PATH);
    return length > 0 && length < MAX_PATH ? FromWide({buffer, length}) : std::string(path);
}

void Folders::Remove(std::string_view path, bool force) {
    const NoMediumBox quiet;
    const std::wstring wide = ToWide(path);
    if (RemoveDirectoryW(wide.c_str())) return;
    DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    const bool isProtected = attributes != INVALID_FILE_ATTRIBUTES &&
                             (attributes & FILE_ATTRIBUTE_DIRECTORY) &&
                             (attributes & FILE_ATTRIBUTE_READONLY);
    // Taken only where it stands in the way, and given back where it was not that alone.
    if (force && isProtected && error == ERROR_ACCESS_DENIED) {
        SetFileAttributesW(wide.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
        if (RemoveDirectoryW(wide.c_str())) return;
        error = GetLastError();
        SetFileAttributesW(wide.c_str(), attributes);
    }
    throw error == ERROR_DIRECTORY ? runtime::Failure(runtime::PermissionDenied)
                                   : FolderFailure(error);
}

}  // namespace platform::win32
