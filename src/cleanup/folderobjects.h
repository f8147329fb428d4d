#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folders.h"

// Folders as the file system object shows them.
namespace cleanup {

struct Folder {
    std::string path;
    std::uint32_t attributes = 0;
    platform::LocalTime modified;
};

// The path of what stands in a folder.
std::string PathIn(std::string_view folder, std::string_view name);

// Throws Failure PathNotFound where there is no folder, also for a place that the system does not
// tell, which is "".
// The root of a drive has no attributes of its own, though NTFS keeps it as a hidden system folder,
// which no search would enter.
Folder GetFolder(const platform::Folders& folders, std::string_view path);

// The folders directly in it, links to folders among them. Throws what Folders::List throws.
std::vector<Folder> SubFolders(platform::Folders& folders, const std::string& path);

// A file or folder that was listed some time ago, as it is at this moment: nothing where it is no
// longer there. What cannot be asked for by its path is as it was listed.
std::optional<platform::FolderEntry> AsItIsNow(const platform::Folders& folders,
                                               const std::string& path,
                                               const platform::FolderEntry& listed);

// The bytes of all files below the folder; links are followed. Throws what Folders::List throws,
// for any folder below it as well.
double SizeOf(platform::Folders& folders, const std::string& path);

}  // namespace cleanup
