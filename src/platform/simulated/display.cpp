#include "platform/simulated/display.h"

#include "platform/simulated/journal.h"

namespace platform::simulated {

toolkit::Size Display::Size() const {
    journal_.Note([&] {
        return "GetSystemMetrics -> " + std::to_string(size.width) + "x" +
               std::to_string(size.height);
    });
    return size;
}

}  // namespace platform::simulated
