#include "platform/registry.h"

#include <doctest/doctest.h>

#include "keys.h"

using namespace platform_test;
using platform::simulated::BareTextValue;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;

TEST_CASE_FIXTURE(Keys, "a key that is absent does not open") {
    CHECK(OpenResult(HKLM, "SYSTEM\\Select") == Registry::FileNotFound);
    CHECK(registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Keys, "a key opens whatever the case of its name") {
    registry.MakeKey(HKLM, "SYSTEM\\Ärger");
    CHECK(Opened(HKLM, "system\\ÄRGER") != 0);
    CHECK(Opened(HKLM, "System\\ärger") != 0);
    CHECK(OpenResult(HKLM, "System\\arger") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(Keys, "the letters beyond Latin-1 in the code page have two cases as well") {
    registry.MakeKey(HKCU, "Šœžÿ");
    CHECK(Opened(HKCU, "šŒŽŸ") != 0);
    registry.MakeKey(HKCU, "÷ß");
    CHECK(OpenResult(HKCU, "×ß") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(Keys, "a key keeps the case in which it was first made") {
    CHECK(CreateResult(HKCU, "Software\\Quillmore") == Registry::Success);
    CHECK(CreateResult(HKCU, "SOFTWARE\\QUILLMORE\\Sub") == Registry::Success);
    CHECK(registry.Dump().contains("HKCU\\Software\\Quillmore\\Sub|"));
}

TEST_CASE_FIXTURE(Keys, "an empty path gives a fresh handle to the same key") {
    registry.Put(HKLM, "SOFTWARE", "Name", TextValue("x"));
    auto first = Opened(HKLM, "SOFTWARE");
    auto second = Opened(first, "");
    CHECK(second != first);
    CHECK(registry.Close(first) == Registry::Success);
    CHECK(SizeResult(second, "Name") == Registry::Success);
    CHECK(registry.Close(second) == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a path with a leading backslash is a bad path to every call") {
    registry.MakeKey(HKLM, "SOFTWARE");
    CHECK(OpenResult(HKLM, "\\SOFTWARE") == 161);
    CHECK(OpenResult(HKLM, "\\") == 161);
    CHECK(CreateResult(HKLM, "\\SOFTWARE") == 161);
    CHECK(registry.RemoveKey(HKLM, "\\SOFTWARE") == 161);
    CHECK(registry.HasKey(HKLM, "SOFTWARE"));
}

TEST_CASE_FIXTURE(Keys, "trailing and doubled backslashes are passed over") {
    registry.MakeKey(HKLM, "A\\B");
    CHECK(Opened(HKLM, "A\\B\\") != 0);
    CHECK(Opened(HKLM, "A\\\\B\\\\") != 0);
    CHECK(CreateResult(HKLM, "A\\\\C\\") == Registry::Success);
    CHECK(registry.HasKey(HKLM, "A\\C"));
    CHECK(registry.Dump().size() == 3);
}

TEST_CASE_FIXTURE(Keys, "a path ends at its first NUL") {
    registry.MakeKey(HKLM, "A");
    CHECK(Opened(HKLM, std::string_view("A\0\\B", 4)) != 0);
}

TEST_CASE_FIXTURE(Keys, "creating makes all levels of the path") {
    CHECK(CreateResult(HKLM, "A\\B\\C") == Registry::Success);
    CHECK(registry.HasKey(HKLM, "a\\b\\c"));
}

TEST_CASE_FIXTURE(Keys, "creating an empty name opens the parent itself") {
    auto parent = Opened(HKLM, "");
    Registry::Key created = 0;
    CHECK(registry.Create(parent, "", Registry::MayDoAll, created) == Registry::Success);
    CHECK(SetText(created, "v", "x") == Registry::Success);
    CHECK(registry.Value(HKLM, "", "v") == BareTextValue("x"));
}

TEST_CASE_FIXTURE(Keys, "creating a key that is there opens it with what it holds") {
    registry.Put(HKLM, "A", "v", DwordValue(1));
    Registry::Key created = 0;
    CHECK(registry.Create(HKLM, "a", Registry::MayDoAll, created) == Registry::Success);
    CHECK(SizeResult(created, "v") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "whether a sub-key may be made is asked of the key, not of the handle") {
    registry.MakeKey(HKLM, "A");
    CHECK(CreateResult(Opened(HKLM, "A", 0x01), "New") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a key name of 255 characters is made and one of 256 is refused") {
    CHECK(CreateResult(HKLM, std::string(255, 'x')) == Registry::Success);
    CHECK(CreateResult(HKLM, std::string(256, 'x')) == Registry::InvalidParameter);
    CHECK(registry.Dump().size() == 1);
}

TEST_CASE_FIXTURE(Keys, "keys go 512 levels deep and no deeper") {
    std::string path = "k";
    for (int level = 1; level < 512; ++level) path += "\\k";
    CHECK(CreateResult(HKLM, path) == Registry::Success);
    CHECK(CreateResult(HKLM, path + "\\k") == Registry::InvalidParameter);
}

TEST_CASE_FIXTURE(Keys, "exactly the given bytes are stored, with any type") {
    auto key = Opened(HKLM, "");
    CHECK(SetText(key, "text", "abc") == Registry::Success);
    CHECK(SetText(key, "short", "\x01\x02", Registry::Dword) == Registry::Success);
    CHECK(SetText(key, "odd", "q", 99) == Registry::Success);
    CHECK(registry.Value(HKLM, "", "text") == StoredValue{1, {'a', 'b', 'c'}});
    CHECK(registry.Value(HKLM, "", "short") == StoredValue{4, {1, 2}});
    CHECK(registry.Value(HKLM, "", "odd") == StoredValue{99, {'q'}});
}

TEST_CASE_FIXTURE(Keys, "setting a value again replaces type and data and keeps its name's case") {
    registry.Put(HKLM, "A", "Name", DwordValue(7));
    CHECK(SetText(Opened(HKLM, "A"), "NAME", "x") == Registry::Success);
    auto dump = registry.Dump();
    REQUIRE(dump.size() == 1);
    CHECK(dump.at("HKLM\\A|Name") == BareTextValue("x"));
}

TEST_CASE_FIXTURE(Keys, "the empty value name is the key's default value") {
    auto key = Opened(HKLM, "");
    CHECK(SizeResult(key, "") == Registry::FileNotFound);
    CHECK(SetText(key, "", "default") == Registry::Success);
    CHECK(SizeResult(key, "") == Registry::Success);
    CHECK(SizeResult(key, "(Standard)") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(Keys, "a query without a buffer tells type and size, whatever size came in") {
    registry.Put(HKLM, "", "v", BareTextValue("abc"));
    for (std::uint32_t given : {0u, 2u, 1000u}) {
        std::uint32_t type = 77;
        std::uint32_t size = given;
        CHECK(registry.Query(HKLM, "v", type, nullptr, size) == Registry::Success);
        CHECK(type == Registry::String);
        CHECK(size == 3);
    }
}

TEST_CASE_FIXTURE(Keys, "a buffer that is too small gives the size needed") {
    registry.Put(HKLM, "", "v", DwordValue(5));
    std::uint8_t buffer[4] = {};
    std::uint32_t type = 0;
    std::uint32_t size = 3;
    CHECK(registry.Query(HKLM, "v", type, buffer, size) == Registry::MoreData);
    CHECK(size == 4);
    CHECK(type == Registry::Dword);
    CHECK(buffer[0] != 5);
    CHECK(buffer[3] == 0);
}

TEST_CASE_FIXTURE(Keys, "a text of no bytes stays one, whatever room there is") {
    registry.Put(HKLM, "", "v", BareTextValue(""));
    std::uint8_t buffer[2] = {9, 9};
    std::uint32_t type = 0;
    std::uint32_t size = 2;
    CHECK(registry.Query(HKLM, "v", type, buffer, size) == Registry::Success);
    CHECK(size == 0);
    CHECK(buffer[0] == 9);
}

TEST_CASE_FIXTURE(Keys, "a value set without data is empty, whatever size is told") {
    CHECK(registry.Set(HKLM, "v", Registry::Binary, nullptr, 5) == Registry::Success);
    CHECK(registry.Value(HKLM, "", "v") == StoredValue{3, {}});
}

TEST_CASE_FIXTURE(Keys, "a value name of 16383 characters is stored and a longer one is refused") {
    CHECK(SetText(HKLM, std::string(16383, 'v'), "x") == Registry::Success);
    CHECK(SetText(HKLM, std::string(16384, 'v'), "x") == Registry::InvalidParameter);
    CHECK(registry.Dump().size() == 1);
}

TEST_CASE_FIXTURE(Keys, "a text stored without its end gets one where the buffer has room") {
    registry.Put(HKLM, "", "v", BareTextValue("abc"));
    std::uint8_t buffer[6] = {9, 9, 9, 9, 9, 9};
    std::uint32_t type = 0;
    std::uint32_t size = 4;
    CHECK(registry.Query(HKLM, "v", type, buffer, size) == Registry::Success);
    CHECK(size == 3);
    CHECK(buffer[3] == 0);
    CHECK(buffer[4] == 9);
    buffer[3] = 9;
    size = 3;
    CHECK(registry.Query(HKLM, "v", type, buffer, size) == Registry::Success);
    CHECK(buffer[3] == 9);
}

TEST_CASE_FIXTURE(Keys, "binary data and ended texts get nothing added") {
    registry.Put(HKLM, "", "binary", {Registry::Binary, {1, 2}});
    registry.Put(HKLM, "", "text", TextValue("a"));
    for (const char* name : {"binary", "text"}) {
        std::uint8_t buffer[4] = {9, 9, 9, 9};
        std::uint32_t type = 0;
        std::uint32_t size = 4;
        CHECK(registry.Query(HKLM, name, type, buffer, size) == Registry::Success);
        CHECK(size == 2);
        CHECK(buffer[2] == 9);
    }
}

TEST_CASE_FIXTURE(Keys, "values of every size up to 64 KiB come back as they were stored") {
    auto key = Opened(HKCU, "");
    for (std::uint32_t size : {0u, 1u, 2u, 3u, 4u, 255u, 256u, 4095u, 65535u, 65536u}) {
        std::vector<std::uint8_t> bytes(size);
        for (std::uint32_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 7 + 1);
        CHECK(registry.Set(key, "v", Registry::Binary, bytes.data(), size) == Registry::Success);
        std::vector<std::uint8_t> read(size + 1, 0xEE);
        std::uint32_t type = 0;
        std::uint32_t room = size + 1;
        CHECK(registry.Query(key, "v", type, read.data(), room) == Registry::Success);
        CHECK(room == size);
        CHECK(read[size] == 0xEE);
        read.pop_back();
        CHECK(read == bytes);
    }
}

TEST_CASE_FIXTURE(Keys, "a value is removed once") {
    registry.Put(HKLM, "A", "Name", DwordValue(1));
    auto key = Opened(HKLM, "A", Registry::MaySetValue);
    CHECK(registry.RemoveValue(key, "NAME") == Registry::Success);
    CHECK(registry.RemoveValue(key, "NAME") == Registry::FileNotFound);
    CHECK(registry.HasKey(HKLM, "A"));
}

TEST_CASE_FIXTURE(Keys, "a key with sub-keys stays, an empty one goes, an absent one is told") {
    registry.Put(HKLM, "A\\B", "v", DwordValue(1));
    CHECK(registry.RemoveKey(HKLM, "A") == Registry::AccessDenied);
    CHECK(registry.HasKey(HKLM, "A\\B"));
    CHECK(registry.RemoveKey(HKLM, "a\\b\\") == Registry::Success);
    CHECK(registry.RemoveKey(HKLM, "A\\B") == Registry::FileNotFound);
    CHECK(registry.RemoveKey(HKLM, "A") == Registry::Success);
    CHECK(registry.Dump().empty());
}

TEST_CASE_FIXTURE(Keys, "an empty path deletes the handle's own key, and never a root") {
    registry.MakeKey(HKLM, "A");
    CHECK(registry.RemoveKey(Opened(HKLM, "A"), "") == Registry::Success);
    CHECK_FALSE(registry.HasKey(HKLM, "A"));
    CHECK(registry.RemoveKey(HKLM, "") == Registry::AccessDenied);
}

TEST_CASE_FIXTURE(Keys, "a handle to a deleted key says so to every call and can be closed") {
    registry.Put(HKLM, "A", "v", DwordValue(1));
    auto key = Opened(HKLM, "A");
    REQUIRE(registry.RemoveKey(HKLM, "A") == Registry::Success);
    CHECK(OpenResult(key, "") == 1018);
    CHECK(CreateResult(key, "B") == 1018);
    CHECK(SizeResult(key, "v") == 1018);
    CHECK(SetText(key, "v", "x") == 1018);
    CHECK(registry.RemoveValue(key, "v") == 1018);
    CHECK(registry.RemoveKey(key, "B") == 1018);
    CHECK(registry.Close(key) == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a key made anew does not revive handles to the old one") {
    registry.MakeKey(HKLM, "A");
    auto old = Opened(HKLM, "A");
    REQUIRE(registry.RemoveKey(HKLM, "A") == Registry::Success);
    REQUIRE(CreateResult(HKLM, "A") == Registry::Success);
    CHECK(SetText(old, "v", "x") == 1018);
    CHECK_FALSE(registry.Value(HKLM, "A", "v"));
}

TEST_CASE_FIXTURE(Keys, "handles that are none are refused by every call") {
    for (Registry::Key key : {0u, 12345u, 0x80000003u, 0xFFFFFFFFu}) {
        CHECK(OpenResult(key, "A") == Registry::InvalidHandle);
        CHECK(CreateResult(key, "A") == Registry::InvalidHandle);
        CHECK(SizeResult(key, "v") == Registry::InvalidHandle);
        CHECK(SetText(key, "v", "x") == Registry::InvalidHandle);
        CHECK(registry.RemoveValue(key, "v") == Registry::InvalidHandle);
        CHECK(registry.RemoveKey(key, "A") == Registry::InvalidHandle);
        CHECK(registry.Close(key) == Registry::InvalidHandle);
    }
}

TEST_CASE_FIXTURE(Keys, "open handles are counted, the roots are not") {
    registry.MakeKey(HKLM, "A");
    auto first = Opened(HKLM, "A");
    auto second = Opened(HKLM, "A");
    CHECK(first != second);
    CHECK(registry.OpenHandles() == 2);
    CHECK(registry.Close(HKLM) == Registry::Success);
    CHECK(registry.OpenHandles() == 2);
    CHECK(registry.Close(first) == Registry::Success);
    CHECK(registry.Close(first) == Registry::InvalidHandle);
    CHECK(registry.Close(second) == Registry::Success);
    CHECK(registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Keys, "a call that fails leaves the handle variable alone") {
    Registry::Key key = 4711;
    CHECK(registry.Open(HKLM, "absent", Registry::MayDoAll, key) == Registry::FileNotFound);
    CHECK(key == 4711);
}
