#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/folders.h"

namespace platform::dryrun {

// Files, read through what has been written; nothing reaches the disk. Refusals are found out by
// reading there: what the other files would refuse for its contents' sake, such as a full disk,
// they do not tell. Of two paths to one file that are not spelled alike, each has contents of its
// own.
class Files final : public platform::Files {
  public:
    // Nothing for a file that was removed.
    struct Pending {
        std::string path;
        std::optional<std::string> content;
    };

    Files(platform::Files& inner, const platform::Folders& folders)
        : inner_(inner), folders_(folders) {}
    ~Files() override;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    Handle OpenForAppend(std::string_view path) override;
    Handle OpenForReading(std::string_view path) override;
    void Write(Handle file, std::string_view bytes) override;
    void Close(Handle file) override;
    std::string Read(std::string_view path) override;
    void Remove(std::string_view path, bool force) override;
    void WriteText(std::string_view path, std::string_view bytes) override;

    // Files that would be other than they are, by their paths.
    std::vector<Pending> Changes();

  private:
    struct Opened {
        std::string place;
        bool forWriting = false;
        // In the other files, when it is open there.
        std::optional<Handle> inside;
    };

    std::string PlaceOf(std::string_view path) const;
    bool IsOpen(const std::string& place, bool forWriting) const;
    std::optional<std::string> InnerContent(const std::string& path);
    void CheckWritable(std::string_view path, const std::string& place) const;
    Handle NewHandle(Opened opened);

    platform::Files& inner_;
    const platform::Folders& folders_;
    std::map<std::string, Pending> pending_;
    std::map<Handle, Opened> open_;
    Handle next_ = 1;
};

}  // namespace platform::dryrun
