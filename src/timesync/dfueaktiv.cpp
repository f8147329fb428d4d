#include "timesync/dfueaktiv.h"

#include "platform/network.h"
#include "runtime/failure.h"

namespace timesync {

bool DFUEAktiv(const platform::Network& network) {
    bool active = false;
    runtime::Skip([&] {
        std::uint32_t count = 0;
        active = network.CountDialUpConnections(count) == 0 && count != 0;
    });
    return active;
}

}  // namespace timesync
