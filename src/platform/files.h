#pragma once

#include <string_view>

namespace platform {

// Files, read and written as bytes. Paths are the platform's.
class Files {
  public:
    using Handle = int;

    virtual ~Files() = default;

    // Opens a file for appending and makes it when it is not there. Throws Failure PathNotFound,
    // PermissionDenied (also for a file that another program holds), or InvalidProcedureCall.
    virtual Handle OpenForAppend(std::string_view path) = 0;

    // Throws Failure BadFileNumber for a handle that is not open, and the disk's own failures.
    virtual void Write(Handle file, std::string_view bytes) = 0;

    // A handle that is not open is passed over.
    virtual void Close(Handle file) = 0;
};

}  // namespace platform
