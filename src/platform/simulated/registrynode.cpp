#include "platform/simulated/registrynode.h"

#include <algorithm>

#include "platform/simulated/locale.h"

namespace platform::simulated {
namespace {

std::uint8_t Upper(char c) {
    auto byte = static_cast<std::uint8_t>(c);
    bool ascii = byte >= 'a' && byte <= 'z';
    // All but the division sign.
    bool latin = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
    if (ascii || latin) return static_cast<std::uint8_t>(byte - 0x20);
    // The letters s and z with caron, the ligature oe; y with diaeresis.
    if (byte == 0x9A || byte == 0x9C || byte == 0x9E) return static_cast<std::uint8_t>(byte - 0x10);
    return byte == 0xFF ? 0x9F : byte;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<std::uint8_t>(c) < 0x80; });
}

}  // namespace

bool NameLess::operator()(std::string_view left, std::string_view right) const {
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](char a, char b) { return Upper(a) < Upper(b); });
}

bool SameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return Upper(a) == Upper(b); });
}

std::shared_ptr<RegistryNode> RegistryNode::AddChild(std::string_view name) {
    auto child = std::make_shared<RegistryNode>();
    child->path = path + "\\" + std::string(name);
    child->depth = depth + 1;
    child->parent = this;
    children.emplace(name, child);
    return child;
}

void RegistryNode::Remove() {
    auto& siblings = parent->children;
    auto self = siblings.find(std::string_view(path).substr(path.rfind('\\') + 1));
    // The map may hold the last reference to this key.
    auto alive = self->second;
    MarkDeleted();
    siblings.erase(self);
}

void RegistryNode::MarkDeleted() {
    deleted = true;
    parent = nullptr;
    for (auto& [name, child] : children) child->MarkDeleted();
}

AnsiName::AnsiName(std::string_view text) : bytes_(text.substr(0, text.find('\0'))) {
    if (IsAscii(bytes_)) return;
    converted_ = ToWesternBytes(bytes_);
    bytes_ = converted_;
}

std::string_view TakeName(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of('\\'), path.size()));
    std::string_view name = path.substr(0, path.find('\\'));
    path.remove_prefix(name.size());
    return name;
}

std::shared_ptr<RegistryNode> FindBelow(std::shared_ptr<RegistryNode> node, std::string_view path) {
    for (auto name = TakeName(path); node && !name.empty(); name = TakeName(path)) {
        auto child = node->children.find(name);
        node = child == node->children.end() ? nullptr : child->second;
    }
    return node;
}

}  // namespace platform::simulated
