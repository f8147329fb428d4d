#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace platform {

// The bits that the file system keeps with each file and folder.
namespace attribute {
inline constexpr std::uint32_t ReadOnly = 1;
inline constexpr std::uint32_t Hidden = 2;
inline constexpr std::uint32_t System = 4;
inline constexpr std::uint32_t Directory = 16;
inline constexpr std::uint32_t Archive = 32;
// A junction or a symbolic link: what is found below it lies somewhere else.
inline constexpr std::uint32_t Link = 0x400;
}  // namespace attribute

struct FolderEntry {
    std::string name;
    std::uint32_t attributes = 0;
    // In bytes; 0 for a folder.
    std::uint64_t size = 0;
    // Of the last change.
    LocalTime modified;

    bool IsFolder() const { return attributes & attribute::Directory; }
    bool IsLink() const { return attributes & attribute::Link; }
    bool operator==(const FolderEntry&) const = default;
};

// Paths of so many characters are not found, nor are longer ones.
inline constexpr std::size_t PathLimit = 260;

// Folders and what stands in them. On the way to a path links are followed; what the path itself
// names is taken as it is, link or not.
class Folders {
  public:
    virtual ~Folders() = default;

    // FindFirstFileW and FindNextFileW: everything in the folder, or in the one that a link leads
    // to, without "." and "..", in the order that the file system gives. Throws Failure
    // PathNotFound where there is no folder, and PermissionDenied for one that may not be read.
    virtual std::vector<FolderEntry> List(std::string_view path) = 0;

    // GetFileAttributesExW: what stands at the path, named as asked for; nothing where nothing is.
    virtual std::optional<FolderEntry> Find(std::string_view path) const = 0;

    // GetFullPathNameW: without "." and "..", from a drive on; whether anything is there or not. A
    // drive alone ("C:") is its current directory, with or without a backslash at its end.
    // "" for an empty path.
    virtual std::string FullPath(std::string_view path) const = 0;

    // SetCurrentDirectoryW: programs started later begin there. Throws Failure PathNotFound where
    // there is no such folder, and PermissionDenied for one that may not be used.
    virtual void MakeCurrent(std::string_view path) = 0;

    // GetShortPathNameA, told to use that many characters, the NUL among them: each name of the
    // path in its 8.3 form. "" when nothing is there or it does not fit.
    virtual std::string ShortPath(std::string_view path, std::size_t room) const = 0;

    // GetLongPathNameW: the opposite; the path itself when nothing is there.
    virtual std::string LongPath(std::string_view path) const = 0;

    // RemoveDirectoryW: an empty folder, or a link to a folder, which goes by itself and leaves
    // what it leads to. One with the read-only attribute goes with `force` only. Throws Failure
    // PathNotFound, or PermissionDenied for anything that does not go.
    virtual void Remove(std::string_view path, bool force) = 0;
};

}  // namespace platform
