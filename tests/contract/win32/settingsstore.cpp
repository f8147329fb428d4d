#include "platform/settingsstore.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/registry.h"
#include "runtime/failure.h"
#include "support/failureof.h"

// Where the store lies, and what it makes of what others put there.

namespace {

using namespace std::string_literals;
using contract::Stored;
using contract::Title;
using platform::Registry;

const std::string TitlePath = "Software\\VB and VBA Program Settings\\" + std::string(Title);
const std::string Section = TitlePath + "\\Options";

struct WindowsSettingsStoreFixture {
    contract::TestMachine machine;
    platform::SettingsStore& store = machine.Services().settingsStore;
    Registry& registry = machine.Services().registry;

    void Put(std::uint32_t type, const std::string& bytes) {
        Registry::Key key = 0;
        REQUIRE(registry.Create(Registry::CurrentUser, Section, Registry::MayDoAll, key) ==
                Registry::Success);
        REQUIRE(registry.Set(key, "Tab", type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                             static_cast<std::uint32_t>(bytes.size())) == Registry::Success);
        registry.Close(key);
    }
    std::string Tab() { return store.Get(Title, "Options", "Tab", "fallback"); }
};

}  // namespace

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture,
                  "the store is the user's own tree, its texts are terminated") {
    store.Save(Title, "Options", "Tab", "3");
    CHECK((machine.StoredAt(Registry::CurrentUser, Section, "Tab") ==
           Stored{Registry::String, "3\0"s}));
}

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture, "a stored text is read with and without its end") {
    Put(Registry::String, "abc\0"s);
    CHECK(Tab() == "abc");
    Put(Registry::String, "abc");
    CHECK(Tab() == "abc");
    Put(Registry::String, "abc\0def"s);
    CHECK(Tab() == "abc");
    Put(Registry::ExpandString, "%TEMP%");
    CHECK(Tab() == "%TEMP%");
    Put(Registry::String, "");
    CHECK(Tab() == "");
}

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture,
                  "a text is read whole at every length around the reader's buffer") {
    for (std::size_t length = 60; length < 70; ++length) {
        CAPTURE(length);
        const std::string text(length, 'x');
        Put(Registry::String, text);
        CHECK(Tab() == text);
        Put(Registry::String, text + '\0');
        CHECK(Tab() == text);
    }
}

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture,
                  "what is no text gives the fallback, whatever its size") {
    for (std::uint32_t type : {Registry::None, Registry::Binary, Registry::Dword,
                               Registry::MultiString, std::uint32_t{11}, std::uint32_t{4711}}) {
        for (std::size_t size : {0u, 1u, 3u, 4u, 127u, 128u, 129u, 60000u}) {
            CAPTURE(type);
            CAPTURE(size);
            Put(type, std::string(size, 'a'));
            CHECK(Tab() == "fallback");
        }
    }
}

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture, "reading makes no key") {
    CHECK(Tab() == "fallback");
    Registry::Key key = 0;
    CHECK(registry.Open(Registry::CurrentUser, TitlePath, Registry::MayDoAll, key) ==
          Registry::FileNotFound);
}

TEST_CASE_FIXTURE(WindowsSettingsStoreFixture,
                  "a store that cannot be written fails as an invalid call") {
    // No key may have so long a name.
    const std::string section(300, 'x');
    CHECK(FailureOf([&] { store.Save(Title, section, "Tab", "1"); }) ==
          runtime::InvalidProcedureCall);
    CHECK(store.Get(Title, section, "Tab", "fallback") == "fallback");
}
