#include "platform/wideregistry.h"

#include <windows.h>

#include <doctest/doctest.h>

#include <algorithm>
#include <atomic>
#include <string>

#include "contract/machine.h"
#include "platform/win32/handle.h"
#include "support/openhandles.h"
#include "support/standinfunction.h"

extern void* deleteKeyEntry asm("__imp__RegDeleteKeyW@8");
extern void* openKeyEntry asm("__imp__RegOpenKeyExW@20");
extern void* enumKeyEntry asm("__imp__RegEnumKeyExW@32");

// What the simulated machine, whose registry has one code page, cannot hold.

namespace {

using contract::Scratch;
using platform::Registry;
using platform::WideRegistry;
using Names = std::vector<std::string>;

constexpr std::uint32_t CutTypes[] = {REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ};

constexpr wchar_t ScratchPath[] = L"Software\\QuillmoreContract";
// Cyrillic, Greek, a pair of surrogates, and half a pair.
constexpr char StrangeName[] = "\xD0\x96\xCE\xA9\xF0\x9D\x84\x9E\xED\xA0\xB4x";
constexpr wchar_t StrangeUnits[] = L"\x0416\x03A9\xD834\xDD1E\xD834x";

struct WindowsWideRegistryFixture {
    contract::TestMachine machine;
    WideRegistry& wide = machine.Wide();
    platform::win32::RegistryKey key;

    WindowsWideRegistryFixture() {
        REQUIRE(wide.Create(Registry::CurrentUser, Scratch) == Registry::Success);
        REQUIRE(RegOpenKeyExW(HKEY_CURRENT_USER, ScratchPath, 0, KEY_ALL_ACCESS, key.Out()) ==
                ERROR_SUCCESS);
    }

    WideRegistry::Result Write(std::string_view name, const WideRegistry::Value& value) {
        return wide.Write(Registry::CurrentUser, Scratch, name, value);
    }
    WideRegistry::Value Read(std::string_view name) {
        WideRegistry::Value value;
        CHECK(wide.Read(Registry::CurrentUser, Scratch, name, value) == Registry::Success);
        return value;
    }
};

// Writes values of two sizes in turn, as somebody else might meanwhile.
struct Restless {
    HKEY key;
    std::atomic<bool> ends = false;

    static DWORD WINAPI Run(void* argument) {
        auto& self = *static_cast<Restless*>(argument);
        std::vector<BYTE> bytes(5000);
        for (unsigned round = 0; !self.ends; ++round) {
            const DWORD size = round % 2 == 0 ? 10 : 5000;
            std::fill(bytes.begin(), bytes.end(), static_cast<BYTE>(size == 10 ? 1 : 2));
            RegSetValueExW(self.key, L"restless", 0, REG_BINARY, bytes.data(), size);
        }
        return 0;
    }
};

int deletions = 0;

LONG WINAPI NoteDeletion(HKEY, LPCWSTR) {
    ++deletions;
    return ERROR_SUCCESS;
}

int openings = 0;

LONG WINAPI NoteOpening(HKEY, LPCWSTR, DWORD, REGSAM, PHKEY) {
    ++openings;
    return ERROR_FILE_NOT_FOUND;
}

LONG WINAPI NoSubKeys(HKEY, DWORD, LPWSTR, LPDWORD, LPDWORD, LPWSTR, LPDWORD, PFILETIME) {
    return ERROR_NO_MORE_ITEMS;
}

}  // namespace

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "any character of the system may stand in a name") {
    const std::string path = std::string(Scratch) + '\\' + StrangeName;
    REQUIRE(wide.Create(Registry::CurrentUser, path) == Registry::Success);
    REQUIRE(Write(StrangeName, {REG_DWORD, {1, 2, 3, 4}}) == Registry::Success);

    platform::win32::RegistryKey strange;
    CHECK(RegOpenKeyExW(key.Get(), StrangeUnits, 0, KEY_READ, strange.Out()) == ERROR_SUCCESS);
    DWORD number = 0;
    DWORD size = sizeof number;
    CHECK(RegQueryValueExW(key.Get(), StrangeUnits, nullptr, nullptr,
                           reinterpret_cast<BYTE*>(&number), &size) == ERROR_SUCCESS);
    CHECK(number == 0x04030201);

    Names names;
    CHECK(wide.KeyNames(Registry::CurrentUser, Scratch, names) == Registry::Success);
    CHECK(wide.ValueNames(Registry::CurrentUser, Scratch, names) == Registry::Success);
    CHECK(names == Names{StrangeName, StrangeName});
    CHECK(wide.Ask(Registry::CurrentUser, path) == Registry::Success);
    CHECK(Read(StrangeName) == WideRegistry::Value{REG_DWORD, {1, 2, 3, 4}});
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, StrangeName) == Registry::Success);
    CHECK(wide.RemoveKey(Registry::CurrentUser, path) == Registry::Success);
    CHECK(wide.Ask(Registry::CurrentUser, path) == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "a wide text may be cut anywhere") {
    for (const std::uint32_t type : CutTypes) {
        for (const std::vector<std::uint8_t>& bytes :
             std::vector<std::vector<std::uint8_t>>{{},
                                                    {0},
                                                    {'a'},
                                                    {'a', 0, 'b'},
                                                    {'a', 0, 0},
                                                    {'a', 0, 0, 0, 0},
                                                    {0x34, 0xD8},
                                                    {0x34, 0xD8, 0x1E},
                                                    {0xFF, 0xFE, 0x16, 0x04}}) {
            CAPTURE(type);
            CAPTURE(bytes.size());
            REQUIRE(Write("text", {type, bytes}) == Registry::Success);
            CHECK((Read("text") == WideRegistry::Value{type, bytes}));
        }
    }
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "a text without an end gets none when it is stored") {
    for (std::uint8_t length = 1; length < 64; ++length) {
        CAPTURE(length);
        std::vector<std::uint8_t> bytes;
        for (std::uint8_t i = 0; i < length; ++i) {
            bytes.push_back('a');
            bytes.push_back(0);
        }
        REQUIRE(Write("text", {REG_SZ, bytes}) == Registry::Success);
        DWORD size = 0;
        CHECK(RegQueryValueExW(key.Get(), L"text", nullptr, nullptr, nullptr, &size) ==
              ERROR_SUCCESS);
        CHECK(size == 2u * length);
    }
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "the longest name that a key can have is told") {
    const std::string longest(Registry::LongestKeyName, 'k');
    REQUIRE(wide.Create(Registry::CurrentUser, std::string(Scratch) + '\\' + longest) ==
            Registry::Success);
    Names names;
    CHECK(wide.KeyNames(Registry::CurrentUser, Scratch, names) == Registry::Success);
    CHECK(names == Names{longest});
    CHECK(wide.RemoveKey(Registry::CurrentUser, Scratch) == Registry::AccessDenied);
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "a value that grows meanwhile is read whole") {
    Restless restless{key.Get()};
    platform::win32::KernelHandle thread(
        CreateThread(nullptr, 0, Restless::Run, &restless, 0, nullptr));
    REQUIRE(thread);
    int small = 0;
    int large = 0;
    int other = 0;
    WideRegistry::Value value;
    for (int i = 0; i < 100000 && (i < 500 || small == 0 || large == 0); ++i) {
        const auto result = wide.Read(Registry::CurrentUser, Scratch, "restless", value);
        if (result == Registry::FileNotFound) continue;
        if (result == Registry::Success && value.bytes == std::vector<std::uint8_t>(10, 1)) {
            ++small;
        } else if (result == Registry::Success &&
                   value.bytes == std::vector<std::uint8_t>(5000, 2)) {
            ++large;
        } else {
            ++other;
        }
    }
    restless.ends = true;
    WaitForSingleObject(thread.Get(), INFINITE);
    CHECK(small > 0);
    CHECK(large > 0);
    CHECK(other == 0);
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "a key that is created outlasts the session") {
    platform::win32::RegistryKey lasting;
    REQUIRE(wide.Create(Registry::CurrentUser, std::string(Scratch) + "\\made") ==
            Registry::Success);
    // Below a key that goes with the session the system makes none.
    CHECK(RegCreateKeyExW(key.Get(), L"made\\Lasting", 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_ALL_ACCESS, nullptr, lasting.Out(), nullptr) == ERROR_SUCCESS);
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture, "no handle of the registry stays open") {
    int before = 0;
    for (int round = 0; round < 20; ++round) {
        if (round == 1) before = support::OpenHandles();
        const std::string path = std::string(Scratch) + "\\made";
        Names names;
        WideRegistry::Value value;
        CHECK(wide.Create(Registry::CurrentUser, path) == Registry::Success);
        CHECK(wide.Write(Registry::CurrentUser, path, "x", value) == Registry::Success);
        CHECK(wide.Read(Registry::CurrentUser, path, "x", value) == Registry::Success);
        CHECK(wide.Read(Registry::CurrentUser, path, "y", value) == Registry::FileNotFound);
        CHECK(wide.KeyNames(Registry::CurrentUser, path, names) == Registry::Success);
        CHECK(wide.ValueNames(Registry::CurrentUser, path, names) == Registry::Success);
        CHECK(wide.RemoveKey(Registry::CurrentUser, Scratch) == Registry::AccessDenied);
        CHECK(wide.RemoveValue(Registry::CurrentUser, path, "x") == Registry::Success);
        CHECK(wide.RemoveKey(Registry::CurrentUser, path) == Registry::Success);
        CHECK(wide.Ask(Registry::CurrentUser, path) == Registry::FileNotFound);
    }
    CHECK(support::OpenHandles() == before);
}

// Some versions of Windows would take the sub-keys along.
TEST_CASE_FIXTURE(WindowsWideRegistryFixture,
                  "the system is asked to delete no key with sub-keys") {
    const std::string path = std::string(Scratch) + "\\a";
    REQUIRE(wide.Create(Registry::CurrentUser, path + "\\b") == Registry::Success);
    const support::StandInFunction noting(deleteKeyEntry, NoteDeletion);
    deletions = 0;
    CHECK(wide.RemoveKey(Registry::CurrentUser, path) == Registry::AccessDenied);
    CHECK(wide.RemoveKey(Registry::CurrentUser, path + "\\none") == Registry::FileNotFound);
    {
        const support::StandInFunction bare(enumKeyEntry, NoSubKeys);
        CHECK(wide.RemoveKey(Registry::CurrentUser, "") == Registry::AccessDenied);
    }
    CHECK(deletions == 0);
    CHECK(wide.RemoveKey(Registry::CurrentUser, path + "\\b") == Registry::Success);
    CHECK(deletions == 1);
}

TEST_CASE_FIXTURE(WindowsWideRegistryFixture,
                  "a name that the system cannot count never gets there") {
    const support::StandInFunction noting(openKeyEntry, NoteOpening);
    openings = 0;
    const std::string longer(0x7FFF, 'x');
    CHECK(wide.Ask(Registry::CurrentUser, longer) == Registry::InvalidParameter);
    CHECK(Write(longer, {REG_DWORD, {}}) == Registry::InvalidParameter);
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, longer) == Registry::InvalidParameter);
    CHECK(openings == 0);
    CHECK(wide.Ask(Registry::CurrentUser, longer.substr(1)) == Registry::FileNotFound);
    CHECK(openings == 1);
}
