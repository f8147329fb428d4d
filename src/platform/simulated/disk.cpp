#include "platform/simulated/disk.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "runtime/text.h"

namespace platform::simulated {
namespace {

// A path leads through so many links at most.
constexpr int LinkLimit = 31;

// The part before the next backslash, which is taken off with it.
std::string_view TakePart(std::string_view& path) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    return part;
}

DiskNode* Child(const DiskNode& folder, std::string_view name) {
    const auto found = folder.byName.find(runtime::ToLower(name));
    if (found != folder.byName.end()) return found->second->get();
    if (name.find('~') == std::string_view::npos) return nullptr;
    for (const auto& node : folder.children) {
        if (runtime::EqualsIgnoringCase(ShortName(node->name), name)) return node.get();
    }
    return nullptr;
}

DiskNode& Add(DiskNode& folder, std::string_view name, std::uint32_t attributes) {
    auto node = std::make_unique<DiskNode>();
    node->name = name;
    node->attributes = attributes;
    node->parent = &folder;
    folder.children.push_back(std::move(node));
    folder.byName[runtime::ToLower(name)] = std::prev(folder.children.end());
    return *folder.children.back();
}

}  // namespace

std::string ShortName(const std::string& name) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    std::string base = name.substr(0, dot);
    const std::string extension = name.substr(dot, 4);
    const bool fits =
        name.find(' ') == std::string::npos && runtime::Length(base) <= 8 && name.size() - dot <= 4;
    if (fits) return name;
    std::erase(base, ' ');
    return runtime::ToUpper(runtime::Left(base, 6) + "~1" + extension);
}

std::string DiskNode::Path() const {
    return parent && parent->parent ? parent->Path() + '\\' + runtime::ToLower(name)
                                    : runtime::ToLower(name);
}

DiskNode* Disk::Walk(std::string_view path, Last last, int& linksLeft) const {
    DiskNode* node = &top_;
    if (path.starts_with("\\\\")) {
        path.remove_prefix(2);
        // A server alone is no folder; its shares are.
        if (path.find('\\') == std::string_view::npos) return nullptr;
    }
    if (path.empty()) return nullptr;
    while (node && !path.empty()) {
        const std::string_view part = TakePart(path);
        // A backslash at the end names the same folder.
        node = part.empty() && path.empty() ? node : Child(*node, part);
        if (node && node->IsLink() && (last == Last::Follow || !path.empty())) {
            node = linksLeft-- > 0 ? Walk(node->target, Last::Follow, linksLeft) : nullptr;
        }
    }
    // Backslashes alone lead to no drive.
    return node == &top_ ? nullptr : node;
}

DiskNode* Disk::Find(std::string_view path, Last last) const {
    if (runtime::Length(path) >= PathLimit) return nullptr;
    int linksLeft = LinkLimit;
    return Walk(path, last, linksLeft);
}

DiskNode& Disk::At(std::string_view path) const {
    DiskNode* node = Find(path, Last::Keep);
    if (!node) throw std::out_of_range("nothing at " + std::string(path));
    return *node;
}

DiskNode& Disk::Make(std::string_view path, std::uint32_t attributes) {
    constexpr std::uint32_t root = attribute::Directory | attribute::Hidden | attribute::System;
    DiskNode* node = &top_;
    while (!path.empty()) {
        const std::string_view part = TakePart(path);
        if (part.empty()) continue;
        DiskNode* child = Child(*node, part);
        const bool isDrive = node == &top_;
        node = child ? child
                     : &Add(*node, part,
                            isDrive ? root : (path.empty() ? attributes : attribute::Directory));
        if (!path.empty() && node->IsLink()) node = Find(node->target);
    }
    return *node;
}

DiskNode& Disk::MakeFolder(std::string_view path, std::uint32_t attributes) {
    return Make(path, attributes | attribute::Directory);
}

DiskNode& Disk::MakeFile(std::string_view path, std::uint32_t attributes) {
    return Make(path, attributes);
}

DiskNode& Disk::MakeLink(std::string_view path, std::string_view target) {
    DiskNode& link = Make(path, attribute::Directory | attribute::Link);
    link.target = target;
    return link;
}

void Disk::Erase(DiskNode& node) {
    DiskNode& folder = *node.parent;
    const auto found = folder.byName.find(runtime::ToLower(node.name));
    const auto place = found->second;
    folder.byName.erase(found);
    folder.children.erase(place);
}

std::map<std::string, std::string> Disk::Snapshot() const {
    std::map<std::string, std::string> all;
    const std::function<void(const DiskNode&)> add = [&](const DiskNode& folder) {
        for (const auto& node : folder.children) {
            all[node->Path()] =
                std::to_string(node->attributes) + ' ' + node->content + node->target;
            add(*node);
        }
    };
    add(top_);
    return all;
}

}  // namespace platform::simulated
