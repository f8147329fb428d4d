#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/registry.h"

namespace {

using contract::Scratch;
using platform::Registry;

constexpr Registry::Key NoHandle = 0x7FFFFFF0;

struct RegistryKeysFixture {
    contract::TestMachine machine;
    Registry& registry = machine.Services().registry;

    Registry::Key Make(Registry::Key parent, std::string_view path,
                       std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        REQUIRE(registry.Create(parent, path, access, key) == Registry::Success);
        return key;
    }
    Registry::Key MakeScratch(std::uint32_t access = Registry::MayDoAll) {
        return Make(Registry::CurrentUser, Scratch, access);
    }
    // Opens and closes.
    Registry::Result Open(Registry::Key parent, std::string_view path,
                          std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        const Registry::Result result = registry.Open(parent, path, access, key);
        if (result == Registry::Success) CHECK(registry.Close(key) == Registry::Success);
        return result;
    }
    Registry::Result SetNumber(Registry::Key key) {
        const std::uint8_t bytes[4] = {1, 2, 3, 4};
        return registry.Set(key, "number", Registry::Dword, bytes, 4);
    }
    Registry::Result AskNumber(Registry::Key key) {
        std::uint32_t type = 0;
        std::uint32_t size = 0;
        return registry.Query(key, "number", type, nullptr, size);
    }
};

}  // namespace

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "a key that was made can be opened, one that was not is not found") {
    CHECK(Open(Registry::CurrentUser, Scratch) == Registry::FileNotFound);
    registry.Close(MakeScratch());
    CHECK(Open(Registry::CurrentUser, Scratch) == Registry::Success);
    CHECK(Open(Registry::CurrentUser, std::string(Scratch) + "\\Absent") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "each of the three roots takes keys") {
    for (Registry::Key root :
         {Registry::ClassesRoot, Registry::CurrentUser, Registry::LocalMachine}) {
        CAPTURE(root);
        registry.Close(Make(root, Scratch));
        CHECK(Open(root, Scratch) == Registry::Success);
        CHECK(registry.RemoveKey(root, Scratch) == Registry::Success);
        CHECK(Open(root, Scratch) == Registry::FileNotFound);
    }
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "making a key makes the levels above it and opens what is there") {
    const Registry::Key first = Make(Registry::CurrentUser, std::string(Scratch) + "\\a\\b\\c");
    CHECK(Open(Registry::CurrentUser, std::string(Scratch) + "\\a\\b") == Registry::Success);
    REQUIRE(SetNumber(first) == Registry::Success);
    const Registry::Key again = Make(Registry::CurrentUser, std::string(Scratch) + "\\a\\b\\c");
    CHECK(again != first);
    CHECK(AskNumber(again) == Registry::Success);
    registry.Close(first);
    registry.Close(again);
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "an empty path opens the key itself through a fresh handle") {
    const Registry::Key key = MakeScratch();
    REQUIRE(SetNumber(key) == Registry::Success);
    Registry::Key same = 0;
    REQUIRE(registry.Open(key, "", Registry::MayDoAll, same) == Registry::Success);
    CHECK(same != key);
    CHECK(registry.Close(key) == Registry::Success);
    CHECK(AskNumber(same) == Registry::Success);
    CHECK(registry.Close(same) == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "an empty path below a root opens the root, to make keys there") {
    Registry::Key root = 0;
    REQUIRE(registry.Open(Registry::CurrentUser, "", Registry::MayCreateSubKey, root) ==
            Registry::Success);
    registry.Close(Make(root, Scratch));
    CHECK(registry.Close(root) == Registry::Success);
    CHECK(Open(Registry::CurrentUser, Scratch) == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "making the empty name opens the parent") {
    const Registry::Key key = MakeScratch();
    REQUIRE(SetNumber(key) == Registry::Success);
    const Registry::Key same = Make(key, "");
    CHECK(AskNumber(same) == Registry::Success);
    registry.Close(key);
    registry.Close(same);
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "a leading backslash is refused, a trailing one is passed over") {
    registry.Close(MakeScratch());
    const std::string scratch(Scratch);
    CHECK(Open(Registry::CurrentUser, "\\" + scratch) != Registry::Success);
    CHECK(Open(Registry::CurrentUser, scratch + "\\") == Registry::Success);
    registry.Close(Make(Registry::CurrentUser, scratch + "\\Below\\"));
    CHECK(Open(Registry::CurrentUser, scratch + "\\Below") == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "key names are found in any case, umlauts included") {
    const Registry::Key key = MakeScratch();
    registry.Close(Make(key, "Größe und Öl"));
    CHECK(Open(key, "gRÖßE UND öL") == Registry::Success);
    CHECK(Open(key, "Groesse und Oel") == Registry::FileNotFound);
    registry.Close(key);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "a handle allows what it was opened for") {
    registry.Close(MakeScratch());
    Registry::Key writing = 0;
    Registry::Key making = 0;
    REQUIRE(registry.Open(Registry::CurrentUser, Scratch, Registry::MaySetValue, writing) ==
            Registry::Success);
    REQUIRE(registry.Open(Registry::CurrentUser, Scratch, Registry::MayCreateSubKey, making) ==
            Registry::Success);
    CHECK(SetNumber(writing) == Registry::Success);
    CHECK(AskNumber(writing) == Registry::AccessDenied);
    CHECK(SetNumber(making) == Registry::AccessDenied);
    CHECK(registry.RemoveValue(making, "number") == Registry::AccessDenied);
    registry.Close(Make(making, "Below"));
    CHECK(Open(making, "Below") == Registry::Success);
    registry.Close(writing);
    registry.Close(making);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "a key with sub-keys is not removed, one with values is") {
    const Registry::Key key = MakeScratch();
    REQUIRE(SetNumber(key) == Registry::Success);
    registry.Close(Make(key, "Below"));
    registry.Close(key);
    CHECK(registry.RemoveKey(Registry::CurrentUser, Scratch) == Registry::AccessDenied);
    CHECK(Open(Registry::CurrentUser, std::string(Scratch) + "\\Below") == Registry::Success);
    CHECK(registry.RemoveKey(Registry::CurrentUser, std::string(Scratch) + "\\Below") ==
          Registry::Success);
    CHECK(registry.RemoveKey(Registry::CurrentUser, Scratch) == Registry::Success);
    CHECK(registry.RemoveKey(Registry::CurrentUser, Scratch) == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "a key is removed by a path with a backslash behind it, and no other") {
    const std::string below = std::string(Scratch) + "\\Below";
    registry.Close(Make(Registry::CurrentUser, below));
    CHECK(registry.RemoveKey(Registry::CurrentUser, below + "\\") == Registry::Success);
    CHECK(Open(Registry::CurrentUser, below) == Registry::FileNotFound);
    CHECK(registry.RemoveKey(Registry::CurrentUser, below + "\\") == Registry::FileNotFound);
    CHECK(Open(Registry::CurrentUser, Scratch) == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryKeysFixture,
                  "the handle of a key that was removed serves no call but closing") {
    const Registry::Key key = MakeScratch();
    REQUIRE(SetNumber(key) == Registry::Success);
    REQUIRE(registry.RemoveKey(Registry::CurrentUser, Scratch) == Registry::Success);
    CHECK(AskNumber(key) == Registry::KeyDeleted);
    CHECK(SetNumber(key) == Registry::KeyDeleted);
    CHECK(registry.RemoveValue(key, "number") == Registry::KeyDeleted);
    Registry::Key below = 0;
    CHECK(registry.Create(key, "Below", Registry::MayDoAll, below) == Registry::KeyDeleted);
    CHECK(registry.Close(key) == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "a handle that is none is refused by every call") {
    Registry::Key out = 0;
    CHECK(registry.Open(NoHandle, "a", Registry::MayDoAll, out) == Registry::InvalidHandle);
    CHECK(registry.Open(NoHandle, "", Registry::MayDoAll, out) == Registry::InvalidHandle);
    CHECK(registry.Create(NoHandle, "a", Registry::MayDoAll, out) == Registry::InvalidHandle);
    CHECK(AskNumber(NoHandle) == Registry::InvalidHandle);
    CHECK(SetNumber(NoHandle) == Registry::InvalidHandle);
    CHECK(registry.RemoveValue(NoHandle, "a") == Registry::InvalidHandle);
    CHECK(registry.RemoveKey(NoHandle, "a") == Registry::InvalidHandle);
    CHECK(registry.Close(NoHandle) == Registry::InvalidHandle);
}

TEST_CASE_FIXTURE(RegistryKeysFixture, "a handle is closed once, a root as often as one likes") {
    const Registry::Key key = MakeScratch();
    CHECK(registry.Close(key) == Registry::Success);
    CHECK(registry.Close(key) == Registry::InvalidHandle);
    CHECK(registry.Close(Registry::CurrentUser) == Registry::Success);
    CHECK(registry.Close(Registry::CurrentUser) == Registry::Success);
    CHECK(Open(Registry::CurrentUser, "Software") != Registry::InvalidHandle);
}
