#pragma once

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/folders.h"

namespace platform::simulated {

// What stands in one place of the disk. Tests may change all but name and content of a folder.
struct DiskNode {
    std::string name;
    std::uint32_t attributes = 0;
    LocalTime modified{2004, 1, 5, 12, 30, 0};
    // Of a file. A file may be told to be larger than its content.
    std::string content;
    std::optional<std::uint64_t> toldSize;
    // Of a link: a full path, whether anything is there or not.
    std::string target;
    // Another program has the file or folder open and shares it with nobody.
    bool held = false;
    // Another program uses the file in every way and shares it with everybody.
    bool shared = false;
    // The user may not list the folder.
    bool unreadable = false;
    // The user may not write to, delete, or make the files of the folder.
    bool unwritable = false;

    DiskNode* parent = nullptr;
    // In the order of their making, as on a disk that does not sort.
    std::list<std::unique_ptr<DiskNode>> children;
    // By their names in small letters.
    std::map<std::string, std::list<std::unique_ptr<DiskNode>>::iterator, std::less<>> byName;

    bool IsFolder() const { return attributes & attribute::Directory; }
    bool IsLink() const { return attributes & attribute::Link; }
    std::uint64_t Size() const { return toldSize.value_or(content.size()); }
    // Below the drive of both, in small letters; for comparing.
    std::string Path() const;
};

// The 8.3 form of a name; of names that begin alike all have the same one.
std::string ShortName(const std::string& name);

// A disk in memory for all services that work on files. Paths are compared without regard to case
// and may hold short names; a drive is there as soon as something is put on it. Roots of drives are
// hidden system folders, as those of NTFS are.
class Disk {
  public:
    enum class Last { Follow, Keep };

    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    // nullptr where nothing is, for a path of 260 or more characters, and behind more links than
    // the system follows. Links on the way are followed, one at the end as asked.
    DiskNode* Find(std::string_view path, Last last = Last::Follow) const;
    // As above; a path with nothing there is a mistake in the test (std::out_of_range).
    DiskNode& At(std::string_view path) const;

    // Make what is missing on the way, too. What is there already is returned as it is.
    DiskNode& MakeFolder(std::string_view path, std::uint32_t attributes = attribute::Directory);
    DiskNode& MakeFile(std::string_view path, std::uint32_t attributes = attribute::Archive);
    // A junction or symbolic link to a folder.
    DiskNode& MakeLink(std::string_view path, std::string_view target);

    // With all below it. What links lead to stays.
    static void Erase(DiskNode& node);

    // Everything by its path, links not followed: attributes and content, or the link's target.
    std::map<std::string, std::string> Snapshot() const;

  private:
    DiskNode& Make(std::string_view path, std::uint32_t attributes);
    DiskNode* Walk(std::string_view path, Last last, int& linksLeft) const;

    // Holds the drives.
    mutable DiskNode top_;
};

}  // namespace platform::simulated
