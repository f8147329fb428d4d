#pragma once

#include <map>

#include "platform/files.h"
#include "platform/win32/handle.h"

namespace platform::win32 {

// While a file is open here, other programs may do with it what its opening does not: read it when
// it is open for appending, write it when it is open for reading.
class Files final : public platform::Files {
  public:
    Handle OpenForAppend(std::string_view path) override;
    Handle OpenForReading(std::string_view path) override;
    void Write(Handle file, std::string_view bytes) override;
    void Close(Handle file) override;
    std::string Read(std::string_view path) override;
    void Remove(std::string_view path, bool force) override;
    void WriteText(std::string_view path, std::string_view bytes) override;

  private:
    std::map<Handle, FileHandle> open_;
    Handle next_ = 1;
};

}  // namespace platform::win32
