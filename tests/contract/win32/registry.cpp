#include "platform/win32/registry.h"

#include <windows.h>

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/win32/handle.h"

using platform::Registry;

// Below a key that goes with the session the system makes no key that outlasts it.
TEST_CASE("a key that is made outlasts the session") {
    contract::TestMachine machine;
    Registry& registry = machine.Services().registry;
    Registry::Key made = 0;
    REQUIRE(registry.Create(Registry::CurrentUser, contract::Scratch, Registry::MayDoAll, made) ==
            Registry::Success);
    platform::win32::RegistryKey lasting;
    CHECK(RegCreateKeyExW(reinterpret_cast<HKEY>(made), L"Lasting", 0, nullptr,
                          REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, lasting.Out(),
                          nullptr) == ERROR_SUCCESS);
    CHECK(registry.Close(made) == Registry::Success);
}
