#include <doctest/doctest.h>

#include "registry/fixture.h"

using namespace registry_tests;

TEST_CASE_FIXTURE(RegistryOnMachine, "a value of an absent key reads as the empty text") {
    CHECK(registry.RegReadValue(HKLM, "Software\\Nothing", "Value") == "");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "an absent value reads as the empty text") {
    CHECK(Read("Value") == "");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a value of a denied key reads as the empty text") {
    Put("Value", DwordValue(1));
    machine.registry.Deny(Service::LocalMachine, Key);
    CHECK(Read("Value") == "");
    CHECK_FALSE(registry.RegValuePresent(HKLM, Key, "Value"));
    CHECK_FALSE(registry.RegKeyPresent(HKLM, Key));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a key that may only be read counts as absent") {
    Put("Value", DwordValue(1));
    machine.registry.Deny(Service::LocalMachine, Key, Service::MaySetValue);
    CHECK(Read("Value") == "");
    CHECK_FALSE(registry.RegValuePresent(HKLM, Key, "Value"));
    CHECK_FALSE(registry.RegKeyPresent(HKLM, Key));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text reads back without its terminator") {
    CHECK(ReadBack(TextValue("Besitzer")) == "Besitzer");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text stored without a terminator reads back whole") {
    CHECK(ReadBack(BareTextValue("Besitzer")) == "Besitzer");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text of size 0 reads as the empty text") {
    CHECK(ReadBack(Stored(Service::String, "")) == "");
    CHECK(registry.RegValuePresent(HKLM, Key, "Value"));
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text that begins with NUL reads as the empty text") {
    CHECK(ReadBack(Stored(Service::String, std::string_view("\0abc", 4))) == "");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a text in the ANSI code page reads as UTF-8") {
    CHECK(ReadBack(Stored(Service::String,
                          "Pr\xFC"
                          "fger\xE4t \x80")) == "Prüfgerät €");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "an expandable text keeps its percent signs") {
    CHECK(ReadBack(Stored(Service::ExpandString, std::string_view("%SystemRoot%\\x\0", 15))) ==
          "%SystemRoot%\\x");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "of several texts the first one is read") {
    CHECK(ReadBack(Stored(Service::MultiString, std::string_view("a\0b\0\0", 5))) == "a");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a number reads as signed decimal text") {
    CHECK(ReadBack(DwordValue(0)) == "0");
    CHECK(ReadBack(DwordValue(255)) == "255");
    CHECK(ReadBack(DwordValue(0x7FFFFFFF)) == "2147483647");
    CHECK(ReadBack(DwordValue(0x80000000)) == "-2147483648");
    CHECK(ReadBack(DwordValue(0xFFFFFFFF)) == "-1");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a number of fewer than four bytes is filled up with zeros") {
    CHECK(ReadBack(Stored(Service::Dword, std::vector<std::uint8_t>{})) == "0");
    CHECK(ReadBack(Stored(Service::Dword, std::vector<std::uint8_t>{7})) == "7");
    CHECK(ReadBack(Stored(Service::Dword, std::vector<std::uint8_t>{7, 1, 0})) == "263");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a number of more than four bytes cannot be read") {
    CHECK(ReadBack(Stored(Service::Dword, std::vector<std::uint8_t>{1, 0, 0, 0, 0})) == "");
    CHECK(ReadBack(Stored(Service::Dword, std::vector<std::uint8_t>(65536, 1))) == "");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "binary data read as hexadecimal bytes with a blank each") {
    CHECK(ReadBack(Stored(Service::Binary, std::vector<std::uint8_t>{0x1A, 0x2B, 0x00})) ==
          "1A 2B 00 ");
    CHECK(ReadBack(Stored(Service::Binary, std::vector<std::uint8_t>{})) == "");
    CHECK(ReadBack(Stored(Service::Binary, std::vector<std::uint8_t>{0, 7, 9, 0x10, 0xFF, 0xC3})) ==
          "00 07 09 10 FF C3 ");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "the bytes 0A to 0F read as a single letter") {
    CHECK(ReadBack(Stored(Service::Binary, std::vector<std::uint8_t>{0x0A, 0x0B, 0x0C, 0x0D, 0x0E,
                                                                     0x0F})) == "A B C D E F ");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "bytes that end in A after another digit read with both") {
    CHECK(ReadBack(Stored(Service::Binary, std::vector<std::uint8_t>{0x1A, 0x2A, 0x3A, 0x4A, 0x5A,
                                                                     0x6A, 0x7A, 0x8A, 0x9A})) ==
          "1A 2A 3A 4A 5A 6A 7A 8A 9A ");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "a value of any other type reads as empty but is present") {
    for (std::uint32_t type : {0u, 5u, 6u, 8u, 11u, 0xFFFFFFFFu}) {
        CAPTURE(type);
        CHECK(ReadBack(Stored(type, std::vector<std::uint8_t>{1, 0, 0, 0})) == "");
        CHECK(registry.RegValuePresent(HKLM, Key, "Value"));
    }
}

TEST_CASE_FIXTURE(RegistryOnMachine, "the name (Standard) is not the key's default value") {
    Put("", TextValue("default"));
    CHECK(Read("(Standard)") == "");
    CHECK_FALSE(registry.RegValuePresent(HKLM, Key, "(Standard)"));
    Put("(Standard)", TextValue("literal"));
    CHECK(Read("(Standard)") == "literal");
    CHECK(Read("") == "default");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "each root selector reaches its own root") {
    machine.registry.Put(Service::ClassesRoot, "Key", "Value", TextValue("classes"));
    machine.registry.Put(Service::CurrentUser, "Key", "Value", TextValue("user"));
    machine.registry.Put(Service::LocalMachine, "Key", "Value", TextValue("machine"));
    CHECK(registry.RegReadValue(HKCR, "Key", "Value") == "classes");
    CHECK(registry.RegReadValue(HKCU, "Key", "Value") == "user");
    CHECK(registry.RegReadValue(HKLM, "Key", "Value") == "machine");
}

TEST_CASE_FIXTURE(RegistryOnMachine, "data of 64 KiB are read whole") {
    CHECK(ReadBack(Stored(Service::String, std::string(65536, 'x'))) == std::string(65536, 'x'));
    const std::string bytes = ReadBack(Stored(Service::Binary, std::string(65536, '\x41')));
    CHECK(bytes.size() == 65536 * 3);
    CHECK(bytes.ends_with("41 41 "));
}
