#pragma once

#include <map>

#include "platform/files.h"
#include "platform/win32/handle.h"

namespace platform::win32 {

// While a file is open here, other programs may read it and not write it.
class Files final : public platform::Files {
  public:
    Handle OpenForAppend(std::string_view path) override;
    void Write(Handle file, std::string_view bytes) override;
    void Close(Handle file) override;

  private:
    std::map<Handle, FileHandle> open_;
    Handle next_ = 1;
};

}  // namespace platform::win32
