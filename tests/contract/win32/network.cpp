#include "platform/win32/network.h"

#include <doctest/doctest.h>
#include <lm.h>
#include <raserror.h>

#include <cstdlib>
#include <string>

#include "support/wineversion.h"

namespace {

using platform::TimeOfDay;
using platform::win32::Network;

// Stands for a call that Wine 8 does not have.
constexpr DWORD NoSuchFunction = 0x80000100;

std::wstring askedServer;
TIME_OF_DAY_INFO told = {};
DWORD timeAnswer = 0;
void* givenTime = nullptr;
void* freedTime = nullptr;
int frees = 0;

DWORD WINAPI AskTime(LPCWSTR server, LPBYTE* buffer) {
    askedServer = server;
    *buffer = nullptr;
    if (timeAnswer != 0) return timeAnswer;
    NetApiBufferAllocate(sizeof told, &givenTime);
    *buffer = static_cast<BYTE*>(givenTime);
    *reinterpret_cast<TIME_OF_DAY_INFO*>(givenTime) = told;
    return 0;
}

DWORD WINAPI FreeTimeOfDay(LPVOID buffer) {
    ++frees;
    freedTime = buffer;
    return NetApiBufferFree(buffer);
}

constexpr DWORD TooSmall = ERROR_BUFFER_TOO_SMALL;

DWORD recordSize = 0;
DWORD roomSize = 0;
DWORD connections = 0;

DWORD WINAPI AskConnections(RASCONNA* records, LPDWORD size, LPDWORD count) {
    recordSize = records->dwSize;
    roomSize = *size;
    *count = connections;
    return connections > 1 ? TooSmall : 0;
}

struct WindowsNetworkFixture {
    Network network{AskTime, FreeTimeOfDay, AskConnections};

    WindowsNetworkFixture() {
        askedServer = L"?";
        timeAnswer = 0;
        frees = 0;
        connections = 0;
        told = {.tod_elapsedt = 1,
                .tod_msecs = 2,
                .tod_hours = 23,
                .tod_mins = 59,
                .tod_secs = 58,
                .tod_hunds = 3,
                .tod_timezone = -330,
                .tod_tinterval = 310,
                .tod_day = 31,
                .tod_month = 12,
                .tod_year = 2004,
                .tod_weekday = 5};
    }
};

// The real call in a thread of its own, which ends with the exception by which Wine 8 says that it
// has no such function.
LONG CALLBACK EndThread(EXCEPTION_POINTERS* exception) {
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    if (code == NoSuchFunction) ExitThread(code);
    return EXCEPTION_CONTINUE_SEARCH;
}

DWORD WINAPI AskReally(void* time) {
    const auto own = Network().RemoteTimeOfDay("");
    if (!own) return 1;
    *static_cast<TimeOfDay*>(time) = *own;
    return 0;
}

}  // namespace

TEST_CASE_FIXTURE(WindowsNetworkFixture,
                  "what a computer tells is taken from its record, which is givenTime back") {
    CHECK(network.RemoteTimeOfDay("\\\\Büro-Süd") == TimeOfDay{.hours = 23,
                                                               .minutes = 59,
                                                               .seconds = 58,
                                                               .timezone = -330,
                                                               .day = 31,
                                                               .month = 12,
                                                               .year = 2004});
    CHECK((askedServer == L"\\\\B\u00FCro-S\u00FCd"));
    CHECK(frees == 1);
    CHECK(freedTime == givenTime);
}

TEST_CASE_FIXTURE(WindowsNetworkFixture, "this computer is askedServer by an empty name") {
    CHECK(network.RemoteTimeOfDay(""));
    CHECK(askedServer.empty());
}

TEST_CASE_FIXTURE(WindowsNetworkFixture,
                  "a computer that answers with a code tells nothing and gives no record") {
    for (DWORD code : {5u, 50u, 53u, 1722u}) {
        timeAnswer = code;
        CHECK_FALSE(network.RemoteTimeOfDay("\\\\niemand"));
    }
    CHECK(frees == 0);
}

TEST_CASE("the real call tells this computer's time, or the system has no such service") {
    TimeOfDay time;
    void* handler = AddVectoredExceptionHandler(1, EndThread);
    const HANDLE thread = CreateThread(nullptr, 0, AskReally, &time, 0, nullptr);
    CHECK(WaitForSingleObject(thread, 20000) == WAIT_OBJECT_0);
    DWORD code = 1;
    GetExitCodeThread(thread, &code);
    CloseHandle(thread);
    RemoveVectoredExceptionHandler(handler);
    if (code == NoSuchFunction) {
        CHECK(WineVersion() == 8);
        return;
    }
    if (WineVersion() >= 10) {
        // Wine 10 has the call, which finds no computer at all.
        CHECK(code == 1);
        BYTE* record = nullptr;
        CHECK(NetRemoteTOD(L"", &record) == ERROR_NO_BROWSER_SERVERS_FOUND);
        return;
    }
    REQUIRE(code == 0);
    SYSTEMTIME now = {};
    GetSystemTime(&now);
    CHECK(std::abs(static_cast<int>(time.year) - now.wYear) <= 1);
    CHECK(std::abs(static_cast<int>(time.minutes) - now.wMinute) % 59 <= 1);
}

TEST_CASE_FIXTURE(WindowsNetworkFixture,
                  "dial-up connections are askedServer for with one record of 412 bytes") {
    for (const DWORD there : {0u, 1u, 2u}) {
        connections = there;
        std::uint32_t count = 7;
        CHECK(network.CountDialUpConnections(count) == (there > 1 ? TooSmall : 0));
        CHECK(count == there);
        CHECK(recordSize == 412);
        CHECK(roomSize == 412);
    }
}

TEST_CASE("the system can be askedServer for its dial-up connections and has none here") {
    std::uint32_t count = 7;
    CHECK(Network().CountDialUpConnections(count) == 0);
    CHECK(count == 0);
}
