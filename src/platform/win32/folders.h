#pragma once

#include <windows.h>

#include <winternl.h>

#include "platform/folders.h"

namespace platform::win32 {

class Folders final : public platform::Folders {
  public:
    // NtQueryDirectoryFile, which tells of as many entries at once as there is room for. Without it
    // folders are read by FindFirstFileW alone.
    using QueryDirectory = NTSTATUS(NTAPI*)(HANDLE folder, HANDLE event, PIO_APC_ROUTINE, PVOID,
                                            IO_STATUS_BLOCK* told, PVOID room, ULONG size,
                                            FILE_INFORMATION_CLASS kind, BOOLEAN onlyOne,
                                            UNICODE_STRING* pattern, BOOLEAN anew);

    Folders();
    explicit Folders(QueryDirectory query) : query_(query) {}

    std::vector<FolderEntry> List(std::string_view path) override;
    std::optional<FolderEntry> Find(std::string_view path) const override;
    std::string FullPath(std::string_view path) const override;
    void MakeCurrent(std::string_view path) override;
    std::string ShortPath(std::string_view path, std::size_t room) const override;
    std::string LongPath(std::string_view path) const override;
    void Remove(std::string_view path, bool force) override;

  private:
    QueryDirectory query_;
};

}  // namespace platform::win32
