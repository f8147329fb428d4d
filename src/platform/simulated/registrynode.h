#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/simulated/registry.h"

namespace platform::simulated {

// Inside the registry names are bytes of code page 1252, as the A calls see them, and letters
// compare without regard to case, the accented ones too.
struct NameLess {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

bool SameName(std::string_view left, std::string_view right);

// One key. The maps keep the case in which a name came first.
struct RegistryNode {
    // From the root on: "HKLM\SYSTEM\Select".
    std::string path;
    // Levels below the root.
    int depth = 0;
    // nullptr for a root and for a deleted key.
    RegistryNode* parent = nullptr;
    std::map<std::string, std::shared_ptr<RegistryNode>, NameLess> children;
    std::map<std::string, StoredValue, NameLess> values;
    bool deleted = false;

    // Makes the child; there is none of that name yet.
    std::shared_ptr<RegistryNode> AddChild(std::string_view name);
    // Takes the key, which is no root, and all below it out of the registry.
    void Remove();
    void MarkDeleted();
};

// A text on its way through an A call: up to its first NUL, in code page 1252.
class AnsiName {
  public:
    explicit AnsiName(std::string_view text);
    AnsiName(const AnsiName&) = delete;
    AnsiName& operator=(const AnsiName&) = delete;

    std::string_view Bytes() const { return bytes_; }

  private:
    std::string converted_;
    std::string_view bytes_;
};

// Takes the next name off a path, passing over backslashes that are too many. "" at the end.
std::string_view TakeName(std::string_view& path);

// The key below `node`, or nullptr.
std::shared_ptr<RegistryNode> FindBelow(std::shared_ptr<RegistryNode> node, std::string_view path);

}  // namespace platform::simulated
