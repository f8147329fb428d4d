#pragma once

#include <string>

namespace platform {
class Files;
class Folders;
}  // namespace platform

namespace cleanup {

// The file system object's DeleteFolder with force: the folder with all in it, read-only or not.
// A link goes by itself, and what it leads to stays. Stops at the first thing that does not go;
// what has gone by then is gone. Throws Failure PathNotFound, also for a file, or PermissionDenied.
void DeleteFolder(platform::Folders& folders, platform::Files& files, const std::string& path);

// Takes the links to folders out of the folder and all below it, or takes it away when it is one
// itself: what deletes the folder afterwards finds no way out of it. A link to a file is none:
// nobody enters it, and under that mark a file may also hold data of its own. Throws as
// DeleteFolder does.
void DropLinks(platform::Folders& folders, platform::Files& files, const std::string& path);

}  // namespace cleanup
