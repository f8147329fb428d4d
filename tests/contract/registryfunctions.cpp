#include <doctest/doctest.h>

#include <cstdint>
#include <string>

#include "contract/machine.h"
#include "platform/registry.h"
#include "registry/registry.h"
#include "runtime/failure.h"

// What the registry functions really store and how they read what others stored, byte by byte.

namespace {

using namespace std::string_literals;
using contract::Scratch;
using contract::Stored;
using platform::Registry;

const std::string ScratchKey(Scratch);

struct RegistryFunctionsFixture {
    contract::TestMachine machine;
    Registry& service = machine.Services().registry;
    registry::Registry functions{service, machine.Services().locale};

    std::optional<Stored> StoredUnder(std::string_view path, std::string_view name) {
        return machine.StoredAt(Registry::CurrentUser, path, name);
    }
    void Put(std::string_view name, std::uint32_t type, const std::string& bytes) {
        Registry::Key key = 0;
        REQUIRE(service.Create(Registry::CurrentUser, ScratchKey, Registry::MayDoAll, key) ==
                Registry::Success);
        REQUIRE(service.Set(key, name, type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                            static_cast<std::uint32_t>(bytes.size())) == Registry::Success);
        service.Close(key);
    }
    std::string Read(std::string_view name) {
        return functions.RegReadValue(registry::HKCU, ScratchKey, name);
    }
};

}  // namespace

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "a text is stored with one byte a character and no terminator") {
    functions.RegWriteString(registry::HKCU, ScratchKey, "text", "Größe €");
    CHECK((StoredUnder(ScratchKey, "text") == Stored{Registry::String,
                                                     "Gr\xF6\xDF"
                                                     "e \x80"}));
    CHECK(Read("text") == "Größe €");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture, "an empty text is stored as no bytes at all") {
    functions.RegWriteString(registry::HKCU, ScratchKey, "text", "");
    CHECK((StoredUnder(ScratchKey, "text") == Stored{Registry::String, ""}));
    CHECK(functions.RegValuePresent(registry::HKCU, ScratchKey, "text"));
    CHECK(Read("text") == "");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "a text of any length is stored with exactly its bytes") {
    for (std::size_t length : {1u, 2u, 3u, 7u, 8u, 15u, 16u, 255u, 4096u, 65535u}) {
        CAPTURE(length);
        const std::string text(length, 'x');
        functions.RegWriteString(registry::HKCU, ScratchKey, "text", text);
        CHECK((StoredUnder(ScratchKey, "text") == Stored{Registry::String, text}));
        CHECK((Read("text") == text));
    }
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture, "a number is stored in four bytes, the least first") {
    functions.RegWriteDword(registry::HKCU, ScratchKey, "number", 16384);
    CHECK((StoredUnder(ScratchKey, "number") == Stored{Registry::Dword, "\x00\x40\x00\x00"s}));
    functions.RegWriteDword(registry::HKCU, ScratchKey, "number", 0x12345678);
    CHECK((StoredUnder(ScratchKey, "number") == Stored{Registry::Dword, "\x78\x56\x34\x12"s}));
    functions.RegWriteDword(registry::HKCU, ScratchKey, "number", 2147483647);
    CHECK((StoredUnder(ScratchKey, "number") == Stored{Registry::Dword, "\xFF\xFF\xFF\x7F"s}));
    CHECK(Read("number") == "2147483647");
    functions.RegWriteDword(registry::HKCU, ScratchKey, "number", 0);
    CHECK(Read("number") == "0");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "a negative number fails with its key made and nothing stored") {
    CHECK_THROWS_AS(functions.RegWriteDword(registry::HKCU, ScratchKey, "number", -1),
                    runtime::Failure);
    CHECK(functions.RegKeyPresent(registry::HKCU, ScratchKey));
    CHECK_FALSE(functions.RegValuePresent(registry::HKCU, ScratchKey, "number"));
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "binary data are the characters of the text themselves") {
    functions.RegWriteBinary(registry::HKCU, ScratchKey, "binary", "ff,ff,00,00");
    CHECK((StoredUnder(ScratchKey, "binary") == Stored{Registry::Binary, "ff,ff,00,00"}));
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "texts read up to their first NUL, whatever their end is like") {
    struct Case {
        std::uint32_t type;
        std::string bytes;
        std::string text;
    };
    const Case cases[] = {
        {Registry::String, "", ""},
        {Registry::String, "\0"s, ""},
        {Registry::String, "\0abc"s, ""},
        {Registry::String, "abc", "abc"},
        {Registry::String, "abc\0"s, "abc"},
        {Registry::String, "abc\0def"s, "abc"},
        {Registry::ExpandString, "%SystemRoot%\\x\0"s, "%SystemRoot%\\x"},
        {Registry::MultiString, "a\0b\0\0"s, "a"},
        {Registry::MultiString, "a", "a"},
        {Registry::MultiString, "\0\0"s, ""},
        {Registry::String, "\xE4\xF6\xFC", "äöü"},
    };
    for (const Case& each : cases) {
        CAPTURE(each.type);
        CAPTURE(each.text);
        Put("text", each.type, each.bytes);
        CHECK(Read("text") == each.text);
    }
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "numbers read as signed, shorter ones too, longer ones not at all") {
    Put("number", Registry::Dword, "\xFF\xFF\xFF\xFF");
    CHECK(Read("number") == "-1");
    Put("number", Registry::Dword, "\x00\x00\x00\x80"s);
    CHECK(Read("number") == "-2147483648");
    Put("number", Registry::Dword, "\x05");
    CHECK(Read("number") == "5");
    Put("number", Registry::Dword, "");
    CHECK(Read("number") == "0");
    Put("number", Registry::Dword, "12345");
    CHECK(Read("number") == "");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "binary data read as hexadecimal bytes with a blank behind each") {
    Put("binary", Registry::Binary, "\x1A\x2B\x00"s);
    CHECK(Read("binary") == "1A 2B 00 ");
    Put("binary", Registry::Binary, "\x0A\x07\x10\xFF\xC3\x9A"s);
    CHECK(Read("binary") == "A 07 10 FF C3 9A ");
    Put("binary", Registry::Binary, "");
    CHECK(Read("binary") == "");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture, "other types are present and read as nothing") {
    for (std::uint32_t type : {0u, 5u, 6u, 8u, 11u}) {
        CAPTURE(type);
        Put("other", type, "abcdefgh");
        CHECK(functions.RegValuePresent(registry::HKCU, ScratchKey, "other"));
        CHECK(Read("other") == "");
    }
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "absent keys and values are absent and read as nothing") {
    CHECK_FALSE(functions.RegKeyPresent(registry::HKCU, ScratchKey));
    CHECK_FALSE(functions.RegValuePresent(registry::HKCU, ScratchKey, "x"));
    CHECK(Read("x") == "");
    functions.RegCreateKeyAt(registry::HKCU, ScratchKey);
    CHECK(functions.RegKeyPresent(registry::HKCU, ScratchKey));
    CHECK_FALSE(functions.RegValuePresent(registry::HKCU, ScratchKey, "x"));
    CHECK(Read("x") == "");
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "a path is made level by level, a backslash behind it adds none") {
    functions.RegCreateKeyAt(registry::HKCU, ScratchKey + "\\a\\b\\");
    CHECK(functions.RegKeyPresent(registry::HKCU, ScratchKey + "\\a\\b"));
    functions.RegWriteString(registry::HKCU, ScratchKey + "\\c\\d", "text", "x");
    CHECK((StoredUnder(ScratchKey + "\\c\\d", "text") == Stored{Registry::String, "x"}));
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "raw data are written into a key that is there and make none") {
    functions.RegWriteRaw(registry::HKCU, ScratchKey, "raw", Registry::Binary, "abc", 3);
    CHECK_FALSE(functions.RegKeyPresent(registry::HKCU, ScratchKey));
    functions.RegCreateKeyAt(registry::HKCU, ScratchKey);
    functions.RegWriteRaw(registry::HKCU, ScratchKey, "raw", Registry::Binary, "abc", 2);
    CHECK((StoredUnder(ScratchKey, "raw") == Stored{Registry::Binary, "ab"}));
    functions.RegWriteRaw(registry::HKCU, ScratchKey, "raw", Registry::MultiString, "a\0\0"s, 3);
    CHECK((StoredUnder(ScratchKey, "raw") == Stored{Registry::MultiString, "a\0\0"s}));
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture,
                  "a value goes, a key goes only when it has no sub-keys") {
    functions.RegWriteString(registry::HKCU, ScratchKey + "\\a", "text", "x");
    functions.RegDeleteKeyAt(registry::HKCU, ScratchKey);
    CHECK(functions.RegKeyPresent(registry::HKCU, ScratchKey));
    functions.RegDeleteValueAt(registry::HKCU, ScratchKey + "\\a", "text");
    CHECK_FALSE(functions.RegValuePresent(registry::HKCU, ScratchKey + "\\a", "text"));
    functions.RegDeleteKeyAt(registry::HKCU, ScratchKey + "\\a");
    CHECK_FALSE(functions.RegKeyPresent(registry::HKCU, ScratchKey + "\\a"));
}

TEST_CASE_FIXTURE(RegistryFunctionsFixture, "the name (Standard) is not the default value") {
    functions.RegWriteString(registry::HKCU, ScratchKey, "(Standard)", "named");
    CHECK_FALSE(functions.RegValuePresent(registry::HKCU, ScratchKey, ""));
    CHECK(Read("(Standard)") == "named");
}
