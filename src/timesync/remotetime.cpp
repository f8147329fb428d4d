#include "timesync/remotetime.h"

#include <string>

#include "platform/network.h"
#include "platform/systemclock.h"
#include "runtime/text.h"

namespace timesync {

Date GetRemoteDateTime(const platform::Network& network, std::string_view ServerName) {
    std::string server = runtime::Trim(ServerName);
    if (!server.empty() && !server.starts_with("\\\\")) server.insert(0, "\\\\");
    const auto told = network.RemoteTimeOfDay(server);
    if (!told) return 0;
    // Without signs, so that no nonsense overflows: what it becomes, DateOf refuses.
    const auto part = [](std::uint32_t number) { return static_cast<int>(number); };
    return DateOf({part(told->year), part(told->month), part(told->day), part(told->hours),
                   part(told->minutes - static_cast<std::uint32_t>(told->timezone)),
                   part(told->seconds)});
}

void SetLocalClock(platform::SystemClock& clock, Date date) {
    const platform::LocalTime parts = PartsOf(date);
    clock.SetLocalDate(parts);
    clock.SetLocalTime(parts);
}

void SetSystemDateTime(const platform::Network& network, platform::SystemClock& clock) {
    const Date date = GetRemoteDateTime(network, "\\\\TIMESERVER");
    if (!IsZero(date)) SetLocalClock(clock, date);
}

}  // namespace timesync
