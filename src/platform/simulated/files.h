#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/simulated/journal.h"

namespace platform::simulated {

class Faults;

// A disk in memory: paths (compared without regard to case) to bytes.
class Files final : public platform::Files {
  public:
    Files(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

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

    // Takes a file, or a directory with all in it, off the disk for a service that deletes: 0 or
    // the system's error code.
    std::int32_t Take(std::string_view path);

    int OpenHandles() const { return static_cast<int>(open_.size()); }

  private:
    // Here or in another program.
    bool IsOpen(const std::string& folded) const;
    // Directories are those made and those above a file.
    bool IsDirectory(const std::string& folded) const;
    // The folded path of a file that can be opened for input; throws for any other.
    std::string Readable(Journal::Place line, std::string_view path) const;
    // Whether the file may neither be written nor deleted, force or not.
    bool IsHeld(const std::string& folded) const;

    Journal& journal_;
    Faults& faults_;
    std::map<std::string, std::string> contents_;
    std::set<std::string> readOnly_;
    std::set<std::string> directories_;
    std::set<std::string> held_;
    std::set<std::string> protected_;
    struct Opened {
        std::string path;
        bool forWriting = false;
    };
    std::map<Handle, Opened> open_;
    Handle next_ = 1;
};

}  // namespace platform::simulated
