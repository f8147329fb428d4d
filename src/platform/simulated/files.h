#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace platform::simulated {

class Faults;
class Journal;

// A disk in memory: paths (compared without regard to case) to bytes.
class Files final : public platform::Files {
  public:
    Files(Journal& journal, Faults& faults) : journal_(journal), faults_(faults) {}

    Handle OpenForAppend(std::string_view path) override;
    void Write(Handle file, std::string_view bytes) override;
    void Close(Handle file) override;

    // Seeding and looking, unjournalled.
    void Put(std::string_view path, std::string_view bytes);
    std::optional<std::string> Content(std::string_view path) const;
    // No file in that directory can be opened for writing.
    void MakeReadOnly(std::string_view directory);
    int OpenHandles() const { return static_cast<int>(open_.size()); }

  private:
    bool IsOpen(const std::string& folded) const;

    Journal& journal_;
    Faults& faults_;
    std::map<std::string, std::string> contents_;
    std::set<std::string> readOnly_;
    std::map<Handle, std::string> open_;
    Handle next_ = 1;
};

}  // namespace platform::simulated
