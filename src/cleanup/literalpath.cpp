#include "cleanup/literalpath.h"

#include <algorithm>
#include <array>

#include "runtime/text.h"

namespace cleanup {
namespace {

// The last two with a digit from 1 to 9 behind.
constexpr std::array<std::string_view, 6> Devices = {"CON", "PRN", "AUX", "NUL", "COM", "LPT"};

bool IsDevice(std::string_view part) {
    std::string_view name = part.substr(0, part.find_first_of(".:"));
    name = name.substr(0, name.find_last_not_of(' ') + 1);
    const bool isNumbered = name.size() == 4 && name[3] >= '1' && name[3] <= '9';
    if (name.size() != 3 && !isNumbered) return false;
    const auto* const found =
        std::find_if(Devices.begin(), Devices.end(), [&](std::string_view device) {
            return runtime::EqualsIgnoringCase(name.substr(0, 3), device);
        });
    const bool wantsNumber = found >= Devices.end() - 2;
    return found != Devices.end() && wantsNumber == isNumbered;
}

}  // namespace

bool IsTakenLiterally(std::string_view path) {
    if (path.find_first_of("*?") != std::string_view::npos) return false;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        const std::string_view part = path.substr(begin, end - begin);
        if (part.ends_with('.') || part.ends_with(' ') || IsDevice(part)) return false;
        begin = end + 1;
    }
    return true;
}

}  // namespace cleanup
