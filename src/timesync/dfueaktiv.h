#pragma once

namespace platform {
class Network;
}

namespace timesync {

// Whether there is a dial-up connection. Only one record is asked for, so two connections, which
// do not fit, count as none, as does a call that fails.
bool DFUEAktiv(const platform::Network& network);

}  // namespace timesync
