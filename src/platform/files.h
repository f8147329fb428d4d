#pragma once

#include <string>
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

    // Opens a file for input and keeps others from reading it as long as it is open. Throws Failure
    // FileNotFound, PathNotFound for a directory that is not there, PermissionDenied for a file
    // that somebody reads or has to himself, PathFileAccess for a directory and for a file that the
    // user may not read, or InvalidProcedureCall.
    virtual Handle OpenForReading(std::string_view path) = 0;

    // Throws Failure BadFileNumber for a handle that is not open, PermissionDenied for a file
    // opened for reading, and the disk's own failures.
    virtual void Write(Handle file, std::string_view bytes) = 0;

    // A handle that is not open is passed over.
    virtual void Close(Handle file) = 0;

    // The whole file. Others may read, write and delete it meanwhile, so that only who has the file
    // to himself refuses it. Throws what OpenForReading throws for the rest, and the disk's own
    // failures.
    virtual std::string Read(std::string_view path) = 0;

    // The file system object's DeleteFile. A file with the read-only attribute goes with `force`
    // only. Throws Failure FileNotFound, PathNotFound, PermissionDenied (also for a file that
    // somebody has open, whatever he lets others do), or InvalidProcedureCall; the file stays as it
    // was then.
    virtual void Remove(std::string_view path, bool force) = 0;

    // The file system object's OpenTextFile for writing, 8-bit text, with one Write: what was there
    // is replaced, what was not there is made. Throws what OpenForAppend and Write throw.
    virtual void WriteText(std::string_view path, std::string_view bytes) = 0;
};

}  // namespace platform
