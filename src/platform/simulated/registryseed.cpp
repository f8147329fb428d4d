// What tests put into the registry and look up there behind the program's back.
#include <stdexcept>

#include "platform/simulated/locale.h"
#include "platform/simulated/registry.h"
#include "platform/simulated/registrynode.h"
#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

constexpr std::uint32_t NoValues = 0xFFFFFFFF;

void DumpKey(const RegistryNode& node, std::map<std::string, StoredValue>& dump) {
    const std::string path = runtime::FromWestern(node.path) + "|";
    // The roots are always there and tell nothing.
    if (node.values.empty() && node.depth > 0) dump[path] = {NoValues, {}};
    for (const auto& [name, value] : node.values) dump[path + runtime::FromWestern(name)] = value;
    for (const auto& [name, child] : node.children) DumpKey(*child, dump);
}

std::vector<std::uint8_t> BytesOf(std::string_view text) {
    const std::string bytes = ToWesternBytes(text);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

StoredValue DwordValue(std::uint32_t number) {
    StoredValue value{platform::Registry::Dword, {}};
    for (int i = 0; i < 4; ++i, number >>= 8) {
        value.bytes.push_back(static_cast<std::uint8_t>(number & 0xFF));
    }
    return value;
}

StoredValue TextValue(std::string_view text) {
    StoredValue value = BareTextValue(text);
    value.bytes.push_back(0);
    return value;
}

StoredValue BareTextValue(std::string_view text) {
    return {platform::Registry::String, BytesOf(text)};
}

bool IsTextType(std::uint32_t type) {
    return type == platform::Registry::String || type == platform::Registry::ExpandString ||
           type == platform::Registry::MultiString;
}

void Registry::MakeKey(Key root, std::string_view path) {
    Seeded(root, path);
}

void Registry::Put(Key root, std::string_view path, std::string_view valueName, StoredValue value) {
    Seeded(root, path)
        ->values.insert_or_assign(std::string(AnsiName(valueName).Bytes()), std::move(value));
}

void Registry::Erase(Key root, std::string_view path, std::string_view valueName) {
    NodeRef node = FindBelow(Root(root), AnsiName(path).Bytes());
    if (!node) return;
    auto found = node->values.find(AnsiName(valueName).Bytes());
    if (found != node->values.end()) node->values.erase(found);
}

void Registry::EraseKey(Key root, std::string_view path) {
    NodeRef node = FindBelow(Root(root), AnsiName(path).Bytes());
    if (!node || node->depth == 0) return;
    node->Remove();
}

void Registry::Deny(Key root, std::string_view path, std::uint32_t rights) {
    AnsiName name(path);
    std::string_view rest = name.Bytes();
    std::string full = Root(root)->path;
    for (auto next = TakeName(rest); !next.empty(); next = TakeName(rest)) {
        full += "\\" + std::string(next);
    }
    denials_.push_back({std::move(full), rights});
}

bool Registry::HasKey(Key root, std::string_view path) const {
    return FindBelow(Root(root), AnsiName(path).Bytes()) != nullptr;
}

std::optional<StoredValue> Registry::Value(Key root, std::string_view path,
                                           std::string_view valueName) const {
    NodeRef node = FindBelow(Root(root), AnsiName(path).Bytes());
    if (!node) return std::nullopt;
    auto found = node->values.find(AnsiName(valueName).Bytes());
    if (found == node->values.end()) return std::nullopt;
    return found->second;
}

std::map<std::string, StoredValue> Registry::Dump() const {
    std::map<std::string, StoredValue> dump;
    for (const NodeRef& root : roots_) DumpKey(*root, dump);
    return dump;
}

int Registry::OpenHandles() const {
    return static_cast<int>(handles_.size());
}

const Registry::NodeRef& Registry::Root(Key root) const {
    if (root < ClassesRoot || root > LocalMachine) {
        throw std::logic_error("no root of the registry");
    }
    return roots_[root - ClassesRoot];
}

Registry::NodeRef Registry::Seeded(Key root, std::string_view path) {
    NodeRef node = Root(root);
    AnsiName name(path);
    std::string_view rest = name.Bytes();
    for (auto next = TakeName(rest); !next.empty(); next = TakeName(rest)) {
        auto child = node->children.find(next);
        node = child == node->children.end() ? node->AddChild(next) : child->second;
    }
    return node;
}

}  // namespace platform::simulated
