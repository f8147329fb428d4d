#include "platform/win32/files.h"

#include "platform/win32/text.h"
#include "runtime/failure.h"

namespace platform::win32 {

namespace {

runtime::Failure FailureOf(DWORD error) {
    switch (error) {
        // A file that is not there is made, so what is missing is a directory or the drive.
        case ERROR_FILE_NOT_FOUND:
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

}  // namespace

Files::Handle Files::OpenForAppend(std::string_view path) {
    FileHandle file(CreateFileW(ToWide(path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) throw FailureOf(GetLastError());
    open_.emplace(next_, std::move(file));
    return next_++;
}

void Files::Write(Handle file, std::string_view bytes) {
    const auto found = open_.find(file);
    if (found == open_.end()) throw runtime::Failure(runtime::BadFileNumber);
    DWORD written = 0;
    if (!WriteFile(found->second.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                   nullptr)) {
        throw FailureOf(GetLastError());
    }
}

void Files::Close(Handle file) {
    open_.erase(file);
}

}  // namespace platform::win32
