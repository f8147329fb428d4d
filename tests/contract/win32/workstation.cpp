// The records of the workstation service, asked of a service of the test's own: what is logged on
// here can be neither chosen nor made to fail.
#include "platform/win32/workstation.h"

#include <doctest/doctest.h>
#include <lm.h>

#include <cstring>
#include <string>

namespace {

using platform::LoggedOnUser;
using platform::UserEnumeration;
using platform::win32::Workstation;

struct Question {
    std::wstring server;
    DWORD level = 0;
    DWORD wanted = 0;
    DWORD resume = 0;
    void* buffer = nullptr;
};

struct Answer {
    DWORD code = 0;
    // What it writes into its caller's variables; a buffer that is not the caller's only when
    // `gives`.
    bool gives = true;
    std::vector<WKSTA_USER_INFO_1> records;
    DWORD read = 0;
    DWORD resume = 0;
};

Question asked;
Answer answer;
void* given = nullptr;
std::vector<void*> freed;

DWORD WINAPI Enumerate(LPWSTR server, DWORD level, LPBYTE* buffer, DWORD wanted, LPDWORD read,
                       LPDWORD total, LPDWORD resume) {
    asked = {server, level, wanted, *resume, *buffer};
    *read = *total = answer.read;
    *resume = answer.resume;
    if (!answer.gives) return answer.code;
    const std::size_t size = answer.records.size() * sizeof(WKSTA_USER_INFO_1);
    NetApiBufferAllocate(static_cast<DWORD>(size), &given);
    std::memcpy(given, answer.records.data(), size);
    *buffer = static_cast<BYTE*>(given);
    return answer.code;
}

DWORD WINAPI Free(LPVOID buffer) {
    freed.push_back(buffer);
    return NetApiBufferFree(buffer);
}

wchar_t name[] = L"J\u00FCrgen";
wchar_t domain[] = L"B\u00DCRO";
wchar_t others[] = L"LAGER \u20AC";
wchar_t server[] = L"\\\\S";
wchar_t nothing[] = L"";

struct WindowsWorkstationFixture {
    Workstation workstation{Enumerate, Free};
    UserEnumeration enumeration;

    WindowsWorkstationFixture() {
        asked = {};
        answer = {};
        freed.clear();
    }
    ~WindowsWorkstationFixture() {
        if (enumeration.buffer) workstation.FreeBuffer(enumeration.buffer);
    }

    DWORD Ask(DWORD code, std::vector<WKSTA_USER_INFO_1> records) {
        answer.code = code;
        answer.read = static_cast<DWORD>(records.size());
        answer.records = std::move(records);
        return workstation.EnumerateUsers("\\\\Büro-Süd", enumeration);
    }
};

const std::vector<LoggedOnUser> Juergen{{"Jürgen", "BÜRO", "LAGER €", "\\\\S"}};

}  // namespace

TEST_CASE_FIXTURE(WindowsWorkstationFixture,
                  "level 1 is asked from the start and without a limit") {
    CHECK(Ask(0, {}) == 0);
    CHECK((asked.server == L"\\\\B\u00FCro-S\u00FCd"));
    CHECK(asked.level == 1);
    CHECK(asked.wanted == 0xFFFFFFFF);
    CHECK(asked.resume == 0);
    CHECK(asked.buffer == nullptr);
    CHECK(enumeration.users.empty());
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture, "the four texts of a record keep their places") {
    CHECK(Ask(0, {{name, domain, others, server}}) == 0);
    CHECK(enumeration.users == Juergen);
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture,
                  "null pointers and empty texts of a record are empty texts") {
    Ask(0, {{nullptr, domain, others, server},
            {name, nullptr, nothing, nullptr},
            {nullptr, nullptr, nullptr, nullptr},
            {name, domain, others, server}});
    CHECK(enumeration.users ==
          std::vector<LoggedOnUser>{
              {"", "BÜRO", "LAGER €", "\\\\S"}, {"Jürgen", "", "", ""}, {}, Juergen[0]});
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture, "a pointer to nowhere is an empty text") {
    Ask(0, {{reinterpret_cast<wchar_t*>(16), domain, others, server}});
    CHECK(enumeration.users == std::vector<LoggedOnUser>{{"", "BÜRO", "LAGER €", "\\\\S"}});
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture,
                  "a batch with more behind it is read, and the next one goes on there") {
    answer.resume = 7;
    CHECK(Ask(234, {{name, domain, others, server}, {name, nullptr, nullptr, nullptr}}) == 234);
    CHECK(enumeration.users.size() == 2);
    void* first = given;
    CHECK(Ask(0, {{name, domain, others, server}}) == 0);
    CHECK(asked.resume == 7);
    CHECK(enumeration.users == Juergen);
    CHECK(enumeration.buffer == reinterpret_cast<std::uintptr_t>(given));
    CHECK(freed.empty());
    NetApiBufferFree(first);
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture,
                  "a call that fails tells of nobody, whatever it counts") {
    for (DWORD code : {5u, 53u, 124u, 1722u, 2138u}) {
        enumeration.users = Juergen;
        CHECK(Ask(code, {{name, domain, others, server}}) == code);
        CHECK(enumeration.users.empty());
        NetApiBufferFree(given);
    }
    enumeration.buffer = 0;
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture, "logons that are counted but not given are nobody") {
    answer.gives = false;
    CHECK(Ask(0, {{name, domain, others, server}}) == 0);
    CHECK(enumeration.users.empty());
    CHECK(enumeration.buffer == 0);
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture,
                  "a failing call that gives no buffer leaves the one before") {
    Ask(234, {{name, domain, others, server}});
    const std::uintptr_t first = enumeration.buffer;
    REQUIRE(first != 0);
    answer.gives = false;
    CHECK(Ask(5, {}) == 5);
    CHECK(enumeration.buffer == first);
}

TEST_CASE_FIXTURE(WindowsWorkstationFixture, "a buffer is given back to the service") {
    Ask(0, {{name, domain, others, server}});
    workstation.FreeBuffer(enumeration.buffer);
    CHECK(freed == std::vector<void*>{given});
    enumeration.buffer = 0;
}
