#pragma once

#include "platform/folders.h"

namespace platform::win32 {

class Folders final : public platform::Folders {
  public:
    std::vector<FolderEntry> List(std::string_view path) override;
    std::optional<FolderEntry> Find(std::string_view path) const override;
    std::string FullPath(std::string_view path) const override;
    void MakeCurrent(std::string_view path) override;
    std::string ShortPath(std::string_view path, std::size_t room) const override;
    std::string LongPath(std::string_view path) const override;
    void Remove(std::string_view path, bool force) override;
};

}  // namespace platform::win32
