#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/simulated/disk.h"
#include "platform/simulated/journal.h"

namespace platform::simulated {

class Faults;

// The files of the disk in memory. A file is made together with the folders above it.
class Files final : public platform::Files {
  public:
    Files(Journal& journal, Faults& faults, Disk& disk)
        : journal_(journal), faults_(faults), disk_(disk) {}

    Handle OpenForAppend(std::string_view path) override;
    Handle OpenForReading(std::string_view path) override;
    void Write(Handle file, std::string_view bytes) override;
    void Close(Handle file) override;
    std::string Read(std::string_view path) override;
    void Remove(std::string_view path, bool force) override;
    void WriteText(std::string_view path, std::string_view bytes) override;

    // Seeding and looking, unjournalled.
    void Put(std::string_view path, std::string_view bytes);
    std::optional<std::string> Content(std::string_view path) const;
    // No file in that directory can be opened for writing.
    void MakeReadOnly(std::string_view directory);
    // Gives the file the read-only attribute: it can be removed with force only.
    void Protect(std::string_view path);
    void MakeDirectory(std::string_view directory);
    // Another program has the file open and shares it with nobody.
    void Hold(std::string_view path);

    // What the shell's deletion does to a file, or to a directory with all in it: 0 or the system's
    // error code. Wildcards in the last part mean all that fit. As XP's shell does, it goes into
    // links and deletes what they lead to.
    std::int32_t Take(std::string_view path);

    int OpenHandles() const { return static_cast<int>(open_.size()); }

  private:
    struct Opened {
        std::string path;
        bool forWriting = false;
    };

    // Here.
    bool IsOpen(const DiskNode& node) const;
    // A file that can be opened for input, with or without others who read it; throws for any
    // other.
    const DiskNode& Readable(Journal::Place line, std::string_view path, bool alone) const;
    // Whether the file may neither be written nor deleted, force or not.
    bool IsHeld(const DiskNode& node) const;
    // For output: the file, which is made when it is not there.
    DiskNode& Writable(Journal::Place line, std::string_view path);
    bool AnyInUse(const DiskNode& node) const;
    void TakeTree(DiskNode& node);

    Journal& journal_;
    Faults& faults_;
    Disk& disk_;
    std::map<Handle, Opened> open_;
    Handle next_ = 1;
};

}  // namespace platform::simulated
