#include <doctest/doctest.h>

#include "registry/fixture.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using namespace registry_tests;

TEST_CASE_FIXTURE(RegistryOnMachine, "a text is stored without its terminator") {
    registry.RegWriteString(HKLM, Key, "Value", "Y");
    CHECK(Value("Value") == Stored(Service::String, "Y"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "an empty text is stored as no bytes at all") {
    registry.RegWriteString(HKLM, Key, "Value", "");
    CHECK(Value("Value") == Stored(Service::String, ""));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text is stored in the ANSI code page, a byte a character") {
    registry.RegWriteString(HKLM, Key, "Wert für Ä", "Prüfgerät €");
    CHECK(Value("Wert für Ä") == Stored(Service::String,
                                        "Pr\xFC"
                                        "fger\xE4t \x80"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a number is stored as four bytes, the smallest first") {
    registry.RegWriteDword(HKLM, Key, "Value", 16384);
    CHECK(Value("Value") == Stored(Service::Dword, std::vector<std::uint8_t>{0, 0x40, 0, 0}));
    registry.RegWriteDword(HKLM, Key, "Value", 0x12345678);
    CHECK(Value("Value") ==
          Stored(Service::Dword, std::vector<std::uint8_t>{0x78, 0x56, 0x34, 0x12}));
    registry.RegWriteDword(HKLM, Key, "Value", 2147483647);
    CHECK(Value("Value") == DwordValue(0x7FFFFFFF));
    registry.RegWriteDword(HKLM, Key, "Value", 0);
    CHECK(Value("Value") == DwordValue(0));
    // The bytes of code page 1252 that are other characters in Unicode.
    registry.RegWriteDword(HKLM, Key, "Value", 0x00809F80);
    CHECK(Value("Value") == DwordValue(0x00809F80));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a negative number fails once the key is made") {
    for (std::int32_t number : {-1, -256, INT32_MIN}) {
        CAPTURE(number);
        machine.registry.EraseKey(Service::LocalMachine, "New");
        CHECK(FailureOf([&] { registry.RegWriteDword(HKLM, "New\\Key", "Value", number); }) ==
              runtime::InvalidProcedureCall);
        CHECK(machine.registry.HasKey(Service::LocalMachine, "New\\Key"));
        CHECK_FALSE(machine.registry.Value(Service::LocalMachine, "New\\Key", "Value"));
    }
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "the characters of a binary text are the stored bytes") {
    registry.RegWriteBinary(HKLM, Key, "Value", "ff,ff,00,00");
    CHECK(Value("Value") == Stored(Service::Binary, "ff,ff,00,00"));
    CHECK(Value("Value")->bytes.size() == 11);
    CHECK(Value("Value")->bytes[0] == 0x66);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "the writers make all levels of an absent path") {
    registry.RegWriteString(HKCU, "A\\B\\C", "Text", "x");
    registry.RegWriteDword(HKCU, "A\\D\\E", "Number", 1);
    registry.RegWriteBinary(HKCU, "F", "Bytes", "00");
    CHECK(machine.registry.Value(Service::CurrentUser, "A\\B\\C", "Text"));
    CHECK(machine.registry.Value(Service::CurrentUser, "A\\D\\E", "Number"));
    CHECK(machine.registry.Value(Service::CurrentUser, "F", "Bytes"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a raw write makes no key") {
    registry.RegWriteRaw(HKLM, "Software\\Nothing", "Value", Service::String, "x", 1);
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, "Software\\Nothing"));
}

TEST_CASE_FIXTURE(RegistryOnMachine,
                  "a raw write stores the given type and as much as it is told") {
    registry.RegWriteRaw(HKLM, Key, "Value", Service::ExpandString, "%a%bc", 3);
    CHECK(Value("Value") == Stored(Service::ExpandString, "%a%"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a denied key is left as it is by every writer") {
    Put("Value", DwordValue(7));
    machine.registry.Deny(Service::LocalMachine, Key);
    const auto before = machine.registry.Dump();
    registry.RegWriteString(HKLM, Key, "Value", "x");
    registry.RegWriteDword(HKLM, Key, "Value", 1);
    registry.RegWriteBinary(HKLM, Key, "Value", "00");
    registry.RegWriteRaw(HKLM, Key, "Value", Service::String, "x", 1);
    registry.RegDeleteValueAt(HKLM, Key, "Value");
    registry.RegCreateKeyAt(HKLM, "Software\\Test\\Below");
    CHECK(machine.registry.Dump() == before);
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a set that fails is silent and leaves no handle") {
    machine.faults.FailAll("RegSetValueExA", Service::AccessDenied);
    registry.RegWriteString(HKLM, Key, "Value", "x");
    CHECK_FALSE(Value("Value"));
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a value is deleted and its neighbours stay") {
    Put("Value", DwordValue(1));
    Put("Other", DwordValue(2));
    registry.RegDeleteValueAt(HKLM, Key, "Value");
    CHECK_FALSE(Value("Value"));
    CHECK(Value("Other") == DwordValue(2));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "deleting what is absent is silent") {
    const auto before = machine.registry.Dump();
    registry.RegDeleteValueAt(HKLM, Key, "Value");
    registry.RegDeleteValueAt(HKLM, "Software\\Nothing", "Value");
    registry.RegDeleteKeyAt(HKLM, "Software\\Nothing");
    CHECK(machine.registry.Dump() == before);
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a key without sub-keys is deleted with its values") {
    Put("Value", DwordValue(1));
    registry.RegDeleteKeyAt(HKLM, Key);
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, Key));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a key with sub-keys stays") {
    machine.registry.MakeKey(Service::LocalMachine, "Software\\Test\\Below");
    registry.RegDeleteKeyAt(HKLM, Key);
    CHECK(machine.registry.HasKey(Service::LocalMachine, "Software\\Test\\Below"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a path of one level is made directly under the root") {
    registry.RegCreateKeyAt(HKCU, "New");
    CHECK(machine.registry.HasKey(Service::CurrentUser, "New"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a trailing backslash names the key just made") {
    registry.RegCreateKeyAt(HKCU, "New\\");
    CHECK(machine.registry.HasKey(Service::CurrentUser, "New"));
    registry.RegWriteDword(HKCU, "New\\", "Value", 5);
    CHECK(machine.registry.Value(Service::CurrentUser, "New", "Value") == DwordValue(5));
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(RegistryOnMachine, "one level is made only below a parent that is there") {
    registry.RegCreateSubKey(HKLM, Key, "Child");
    CHECK(machine.registry.HasKey(Service::LocalMachine, "Software\\Test\\Child"));
    registry.RegCreateSubKey(HKLM, "Software\\Nothing", "Child");
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, "Software\\Nothing"));
    CHECK(machine.registry.OpenHandles() == 0);
}
