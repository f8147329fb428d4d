#include "platform/win32/files.h"

#include "platform/win32/nomediumbox.h"
#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {
namespace {

runtime::Failure FileFailure(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return runtime::Failure(runtime::FileNotFound);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_NETPATH:
            return runtime::Failure(runtime::PathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return runtime::Failure(runtime::PermissionDenied);
        default:
            return runtime::Failure(runtime::InvalidProcedureCall);
    }
}

// Others may read the file meanwhile. It is made when it is not there.
FileHandle OpenOutput(std::string_view path, DWORD access, DWORD disposition) {
    FileHandle file(CreateFileW(ToWide(path).c_str(), access, FILE_SHARE_READ, nullptr, disposition,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file) return file;
    const DWORD error = GetLastError();
    // So what is missing is a directory or the drive.
    throw FileFailure(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error);
}

// `sharing` is what others may do with the file meanwhile.
FileHandle OpenInput(std::string_view path, DWORD sharing) {
    FileHandle file(CreateFileW(ToWide(path).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file) return file;
    const DWORD error = GetLastError();
    // Only here is a missing right told apart from a file that is in use.
    throw error == ERROR_ACCESS_DENIED ? runtime::Failure(runtime::PathFileAccess)
                                       : FileFailure(error);
}

void WriteAll(const FileHandle& file, std::string_view bytes) {
    DWORD written = 0;
    if (!WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) {
        throw FileFailure(GetLastError());
    }
}

}  // namespace

Files::Handle Files::OpenForAppend(std::string_view path) {
    const NoMediumBox quiet;
    open_.emplace(next_, OpenOutput(path, FILE_APPEND_DATA, OPEN_ALWAYS));
    return next_++;
}

Files::Handle Files::OpenForReading(std::string_view path) {
    const NoMediumBox quiet;
    open_.emplace(next_, OpenInput(path, FILE_SHARE_WRITE));
    return next_++;
}

void Files::Write(Handle file, std::string_view bytes) {
    const NoMediumBox quiet;
    const auto found = open_.find(file);
    if (found == open_.end()) throw runtime::Failure(runtime::BadFileNumber);
    WriteAll(found->second, bytes);
}

void Files::Close(Handle file) {
    const NoMediumBox quiet;
    open_.erase(file);
}

std::string Files::Read(std::string_view path) {
    const NoMediumBox quiet;
    const FileHandle file = OpenInput(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    std::string content;
    char piece[16 * 1024];
    DWORD length = 0;
    do {
        if (!ReadFile(file.Get(), piece, sizeof piece, &length, nullptr)) {
            throw FileFailure(GetLastError());
        }
        content.append(piece, length);
    } while (length > 0);
    return content;
}

void Files::Remove(std::string_view path, bool force) {
    const NoMediumBox quiet;
    const std::wstring wide = ToWide(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    // A folder does not go this way, so it keeps its attribute.
    const bool isProtected = attributes != INVALID_FILE_ATTRIBUTES &&
                             !(attributes & FILE_ATTRIBUTE_DIRECTORY) &&
                             (attributes & FILE_ATTRIBUTE_READONLY);
    if (force && isProtected) {
        SetFileAttributesW(wide.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    // The system would delete a file that somebody shares only when he closes it, and give its name
    // away no sooner.
    const FileHandle alone(CreateFileW(wide.c_str(), DELETE, FILE_SHARE_DELETE, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    DWORD error = alone ? ERROR_SUCCESS : GetLastError();
    if (error != ERROR_SHARING_VIOLATION) {
        if (DeleteFileW(wide.c_str())) return;
        error = GetLastError();
    }
    if (force && isProtected) SetFileAttributesW(wide.c_str(), attributes);
    throw FileFailure(error);
}

void Files::WriteText(std::string_view path, std::string_view bytes) {
    const NoMediumBox quiet;
    WriteAll(OpenOutput(path, GENERIC_WRITE, CREATE_ALWAYS), bytes);
}

}  // namespace platform::win32
