#include "system/filelock.h"

#include "platform/files.h"
#include "runtime/failure.h"

namespace sys {

bool FileIsLocked(platform::Files& files, std::string_view path) {
    try {
        files.Close(files.OpenForReading(path));
        return false;
    } catch (const runtime::Failure& failure) {
        if (failure.number != runtime::PermissionDenied) throw;
        return true;
    }
}

}  // namespace sys
