#include "platform/simulated/display.h"

#include <algorithm>

#include "platform/simulated/journal.h"
#include "runtime/text.h"

namespace platform::simulated {

toolkit::Size Display::Size() const {
    journal_.Note([&] {
        return "GetSystemMetrics -> " + std::to_string(size.width) + "x" +
               std::to_string(size.height);
    });
    return size;
}

// Not journalled: it is asked for each file.
std::string Display::CompactPath(const toolkit::Form&, std::string_view path, int width) const {
    constexpr int characterWidth = 5;
    const auto room = static_cast<std::size_t>(width / characterWidth);
    if (runtime::Length(path) <= room) return std::string(path);
    const std::size_t name = std::min(path.rfind('\\'), path.size());
    std::string compact = "..." + std::string(path.substr(name));
    const std::size_t taken = runtime::Length(compact);
    if (taken < room) compact.insert(0, runtime::Left(path, room - taken));
    const std::string rest = runtime::Mid(path, runtime::Length(compact) + 1);
    return compact + '\0' + rest;
}

}  // namespace platform::simulated
