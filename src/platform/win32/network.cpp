#include "platform/win32/network.h"

#include <lm.h>

#include "platform/win32/libraryfunction.h"
#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

static_assert(sizeof(TIME_OF_DAY_INFO) == 48);

// One record as it was before Windows 2000, which XP still takes: size, connection, and the names
// of entry, device type and device.
struct Record {
    DWORD size = sizeof(Record);
    HRASCONN connection = nullptr;
    char entry[257] = {};
    char deviceType[17] = {};
    char device[129] = {};
};
static_assert(sizeof(Record) == 412);

// The library comes when it is needed, since the program hardly ever asks and every start would
// have to load the whole telephone service.
DWORD WINAPI AskRas(RASCONNA* records, LPDWORD size, LPDWORD count) {
    const HMODULE library = LoadLibraryW(L"rasapi32.dll");
    const auto ask = reinterpret_cast<Network::AskConnections>(
        reinterpret_cast<void*>(GetProcAddress(library, "RasEnumConnectionsA")));
    const DWORD code = ask ? ask(records, size, count) : ERROR_PROC_NOT_FOUND;
    FreeLibrary(library);
    return code;
}

DWORD WINAPI AskRemote(LPCWSTR server, LPBYTE* buffer) {
    const auto ask = LibraryFunction<decltype(NetRemoteTOD)>(L"netapi32.dll", "NetRemoteTOD");
    return ask ? ask(server, buffer) : ERROR_PROC_NOT_FOUND;
}

DWORD WINAPI FreeAnswer(LPVOID buffer) {
    const auto free =
        LibraryFunction<decltype(NetApiBufferFree)>(L"netapi32.dll", "NetApiBufferFree");
    return free ? free(buffer) : ERROR_PROC_NOT_FOUND;
}

}  // namespace

Network::Network() : Network(AskRemote, FreeAnswer, AskRas) {}

std::optional<TimeOfDay> Network::RemoteTimeOfDay(const std::string& server) const {
    BYTE* buffer = nullptr;
    if (askTime_(ToWide(server).c_str(), &buffer) != 0 || !buffer) return std::nullopt;
    const TIME_OF_DAY_INFO told = *reinterpret_cast<const TIME_OF_DAY_INFO*>(buffer);
    free_(buffer);
    return TimeOfDay{.hours = told.tod_hours,
                     .minutes = told.tod_mins,
                     .seconds = told.tod_secs,
                     .timezone = told.tod_timezone,
                     .day = told.tod_day,
                     .month = told.tod_month,
                     .year = told.tod_year};
}

std::uint32_t Network::CountDialUpConnections(std::uint32_t& count) const {
    Record record;
    DWORD size = sizeof record;
    DWORD found = 0;
    const DWORD code = askConnections_(reinterpret_cast<RASCONNA*>(&record), &size, &found);
    count = found;
    return code;
}

}  // namespace platform::win32
