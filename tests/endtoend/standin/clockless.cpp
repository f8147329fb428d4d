// Takes the place of what sets the clock, asks computers on the network and names the time server
// in a build of the program that is otherwise the real one. So nothing can set this computer's
// clock, nothing leaves this computer, and what the program asks for goes into a file beside it, a
// line each. The linker takes all this instead of the libraries' own.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/win32/network.h"
#include "platform/win32/systemclock.h"
#include "runtime/failure.h"
#include "timesync/timeserver.h"

namespace {

std::wstring Beside(const wchar_t* suffix) {
    wchar_t path[MAX_PATH];
    return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH)) + suffix;
}

void Note(const std::string& line) {
    std::FILE* file = _wfopen(Beside(L".clock").c_str(), L"ab");
    std::fprintf(file, "%s\n", line.c_str());
    std::fclose(file);
}

void NoteTime(const char* call, const platform::LocalTime& time) {
    char line[96];
    std::snprintf(line, sizeof line, "%s %04d-%02d-%02d %02d:%02d:%02d", call, time.year,
                  time.month, time.day, time.hour, time.minute, time.second);
    Note(line);
}

}  // namespace

namespace platform::win32 {

void SystemClock::SetSystemTime(const LocalTime& utc) {
    NoteTime("SetSystemTime", utc);
}

// The year 1981 is refused, as all are to a user without the right.
void SystemClock::SetLocalDate(const LocalTime& date) {
    NoteTime("SetLocalDate", date);
    if (date.year == 1981) throw runtime::Failure(runtime::PermissionDenied);
}

void SystemClock::SetLocalTime(const LocalTime& time) {
    NoteTime("SetLocalTime", time);
}

Network::Network() : Network(nullptr, nullptr, nullptr) {}

// Two computers are there, the second in the year 1981.
std::optional<TimeOfDay> Network::RemoteTimeOfDay(const std::string& server) const {
    Note("NetRemoteTOD " + server);
    if (server != "\\\\zeit" && server != "\\\\damals") return std::nullopt;
    return TimeOfDay{.hours = 22,
                     .minutes = 35,
                     .seconds = 9,
                     .timezone = -330,
                     .day = 31,
                     .month = 12,
                     .year = server == "\\\\zeit" ? 2004u : 1980u};
}

std::uint32_t Network::CountDialUpConnections(std::uint32_t&) const {
    Note("RasEnumConnectionsA");
    return 0;
}

}  // namespace platform::win32

namespace timesync {

// The port stands in a file beside the program; without one nobody answers at the port.
TimeServer PublicTimeServer() {
    char port[16] = "1";
    if (std::FILE* file = _wfopen(Beside(L".port").c_str(), L"rb")) {
        port[std::fread(port, 1, sizeof port - 1, file)] = '\0';
        std::fclose(file);
    }
    return {"127.0.0.1", static_cast<std::uint16_t>(std::atoi(port))};
}

}  // namespace timesync
