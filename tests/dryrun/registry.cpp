#include <doctest/doctest.h>

#include <algorithm>

#include "dryrun/overmachine.h"

using namespace dryrun_test;
using platform::dryrun::RegistryValue;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;

namespace {

using Kind = Change::Kind;

RegistryValue AsTold(const StoredValue& value) {
    return {value.type, value.bytes};
}

struct OverKeys : OverMachine {
    OverKeys() {
        inner.registry.Put(HKLM, "A\\B", "v", DwordValue(1));
        inner.registry.Put(HKLM, "A\\B\\C", "", TextValue("x"));
        before = inner.registry.Dump();
    }
    ~OverKeys() {
        CHECK(inner.registry.Dump() == before);
        for (const char* call :
             {"RegCreateKeyExA", "RegSetValueExA", "RegDeleteValueA", "RegDeleteKeyA"}) {
            CHECK(inner.journal.Calls(call).empty());
        }
    }

    Registry::Key Opened(std::string_view path, std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        REQUIRE(registry.Open(HKLM, path, access, key) == Registry::Success);
        return key;
    }
    Registry::Result Create(std::string_view path, std::uint32_t access = Registry::MayDoAll) {
        Registry::Key key = 0;
        return registry.Create(HKLM, path, access, key);
    }
    Registry::Result Set(Registry::Key key, std::string_view name, const StoredValue& value) {
        return registry.Set(key, name, value.type, value.bytes.data(),
                            static_cast<std::uint32_t>(value.bytes.size()));
    }

    std::map<std::string, StoredValue> before;
};

}  // namespace

TEST_CASE_FIXTURE(OverKeys, "reading alone is no change") {
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    CHECK(registry.Query(Opened("A\\B"), "v", type, nullptr, size) == Registry::Success);
    CHECK(type == Registry::Dword);
    CHECK(registry.Changes().empty());
}

TEST_CASE_FIXTURE(OverKeys, "a value that is written tells what it was and what it would be") {
    REQUIRE(Set(Opened("a\\b"), "V", TextValue("new")) == Registry::Success);
    CHECK(registry.Changes() ==
          std::vector<Change>{{Kind::ValueWritten, HKLM, "a\\b", "V", AsTold(DwordValue(1)),
                               AsTold(TextValue("new"))}});
}

TEST_CASE_FIXTURE(OverKeys, "a write that equals what is there is no change") {
    REQUIRE(Set(Opened("A\\B"), "v", DwordValue(1)) == Registry::Success);
    CHECK(registry.Changes().empty());
    CHECK(registry.Changes(platform::dryrun::Registry::Telling::Writes) ==
          std::vector<Change>{{Kind::ValueWritten, HKLM, "A\\B", "v", AsTold(DwordValue(1)),
                               AsTold(DwordValue(1))}});
    REQUIRE(Set(Opened("A\\B"), "v", {Registry::Binary, DwordValue(1).bytes}) == Registry::Success);
    CHECK(registry.Changes().size() == 1);
}

TEST_CASE_FIXTURE(OverKeys, "a change that is undone is none") {
    const Registry::Key key = Opened("A\\B");
    REQUIRE(Set(key, "v", DwordValue(2)) == Registry::Success);
    REQUIRE(Set(key, "w", DwordValue(3)) == Registry::Success);
    REQUIRE(Create("A\\New") == Registry::Success);
    CHECK(registry.Changes().size() == 3);
    REQUIRE(Set(key, "v", DwordValue(1)) == Registry::Success);
    REQUIRE(registry.RemoveValue(key, "w") == Registry::Success);
    REQUIRE(registry.RemoveKey(HKLM, "A\\New") == Registry::Success);
    CHECK(registry.Changes().empty());
}

TEST_CASE_FIXTURE(OverKeys, "a key that is deleted and made anew with the same values is none") {
    REQUIRE(registry.RemoveKey(HKLM, "A\\B\\C") == Registry::Success);
    REQUIRE(Create("A\\B\\C") == Registry::Success);
    const Registry::Key key = Opened("A\\B\\C");
    CHECK(registry.Changes() == std::vector<Change>{{Kind::ValueDeleted, HKLM, "A\\B\\C", "",
                                                     AsTold(TextValue("x")), std::nullopt}});
    REQUIRE(Set(key, "", TextValue("x")) == Registry::Success);
    CHECK(registry.Changes().empty());
}

TEST_CASE_FIXTURE(OverKeys, "missing levels are told from the top, before their values") {
    REQUIRE(Create("A\\X\\Y") == Registry::Success);
    REQUIRE(Set(Opened("A\\X\\Y"), "w", DwordValue(7)) == Registry::Success);
    CHECK(registry.Changes() == std::vector<Change>{{Kind::KeyCreated, HKLM, "A\\X"},
                                                    {Kind::KeyCreated, HKLM, "A\\X\\Y"},
                                                    {Kind::ValueWritten, HKLM, "A\\X\\Y", "w",
                                                     std::nullopt, AsTold(DwordValue(7))}});
}

TEST_CASE_FIXTURE(OverKeys, "a deleted key is told with the values that go with it") {
    CHECK(registry.RemoveKey(HKLM, "A\\B") == Registry::AccessDenied);
    REQUIRE(registry.RemoveKey(HKLM, "A\\B\\C") == Registry::Success);
    REQUIRE(registry.RemoveKey(HKLM, "A\\B") == Registry::Success);
    CHECK(registry.Changes() ==
          std::vector<Change>{{Kind::KeyDeleted, HKLM, "A\\B"},
                              {Kind::ValueDeleted, HKLM, "A\\B", "v", AsTold(DwordValue(1))},
                              {Kind::KeyDeleted, HKLM, "A\\B\\C"},
                              {Kind::ValueDeleted, HKLM, "A\\B\\C", "", AsTold(TextValue("x"))}});
}

TEST_CASE_FIXTURE(OverKeys, "the roots come in their order") {
    Registry::Key key = 0;
    REQUIRE(registry.Create(HKLM, "Z", Registry::MayDoAll, key) == Registry::Success);
    REQUIRE(registry.Create(HKCU, "Z", Registry::MayDoAll, key) == Registry::Success);
    REQUIRE(registry.Create(HKCR, "Z", Registry::MayDoAll, key) == Registry::Success);
    const auto changes = registry.Changes();
    REQUIRE(changes.size() == 3);
    CHECK(changes[0].root == HKCR);
    CHECK(changes[1].root == HKCU);
    CHECK(changes[2].root == HKLM);
}

TEST_CASE_FIXTURE(OverKeys, "what the inner registry refuses is refused") {
    inner.registry.Deny(HKLM, "A\\B", Registry::MaySetValue | Registry::MayCreateSubKey);
    Registry::Key key = 0;
    CHECK(registry.Open(HKLM, "A\\B", Registry::MaySetValue, key) == Registry::AccessDenied);
    CHECK(Create("A\\B") == Registry::AccessDenied);
    CHECK(Create("A\\B\\New", Registry::MayQueryValue) == Registry::AccessDenied);
    CHECK(registry.RemoveKey(HKLM, "A\\B\\C") == Registry::AccessDenied);
    CHECK(Set(Opened("A\\B", Registry::MayQueryValue), "v", DwordValue(2)) ==
          Registry::AccessDenied);
    CHECK(registry.Changes().empty());
}

TEST_CASE_FIXTURE(OverKeys, "a root that may not be written to refuses its predefined handle") {
    inner.registry.Deny(HKCU, "", Registry::MaySetValue);
    CHECK(Set(HKCU, "v", DwordValue(1)) == Registry::AccessDenied);
    CHECK(Set(HKLM, "v", DwordValue(1)) == Registry::Success);
    CHECK(registry.RemoveKey(HKLM, "") == Registry::AccessDenied);
}

TEST_CASE_FIXTURE(OverKeys, "names are listed through what is pending") {
    inner.registry.MakeKey(HKLM, "A\\D");
    before = inner.registry.Dump();
    REQUIRE(registry.RemoveKey(HKLM, "A\\D") == Registry::Success);
    REQUIRE(Create("A\\AA") == Registry::Success);
    const Registry::Key key = Opened("A");
    std::string name;
    REQUIRE(registry.EnumerateKey(key, 0, name) == Registry::Success);
    CHECK(name == "AA");
    REQUIRE(registry.EnumerateKey(key, 1, name) == Registry::Success);
    CHECK(name == "B");
    CHECK(registry.EnumerateKey(key, 2, name) == Registry::NoMoreItems);
}

TEST_CASE_FIXTURE(OverKeys, "a key below whose name is too long to be told keeps its place") {
    inner.registry.MakeKey(HKLM, "A\\" + std::string(255, 'l'));
    inner.registry.MakeKey(HKLM, "A\\Z");
    before = inner.registry.Dump();
    // What is pending beside it must be listed along.
    CHECK(Create("A\\Zz") == Registry::Success);
    const auto key = Opened("A");
    std::string name;
    int tooLong = 0;
    std::vector<std::string> told;
    for (std::uint32_t index = 0;; ++index) {
        const auto result = registry.EnumerateKey(key, index, name);
        if (result == Registry::NoMoreItems) break;
        if (result == Registry::MoreData) {
            ++tooLong;
        } else {
            told.push_back(name);
        }
    }
    CHECK(tooLong == 1);
    CHECK(told == std::vector<std::string>{"B", "Z", "Zz"});
}

TEST_CASE_FIXTURE(OverKeys, "no handle is left open below, whatever the program leaves open") {
    {
        platform::dryrun::Registry other(inner.registry, inner.locale);
        Registry::Key key = 0;
        REQUIRE(other.Open(HKLM, "A\\B", Registry::MayDoAll, key) == Registry::Success);
        REQUIRE(other.Create(HKLM, "A\\B\\N\\M", Registry::MayDoAll, key) == Registry::Success);
        REQUIRE(other.RemoveKey(HKLM, "A\\B\\C") == Registry::Success);
        CHECK(other.Changes().size() == 4);
        CHECK(inner.registry.OpenHandles() == 1);
    }
    CHECK(inner.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(OverKeys, "paths longer than the system takes at once lead to their keys") {
    std::string path = "A";
    for (int level = 0; level < 6; ++level) path += "\\" + std::string(100, 'n');
    inner.registry.Put(HKLM, path, "v", DwordValue(1));
    before = inner.registry.Dump();
    REQUIRE(Set(Opened(path), "v", DwordValue(2)) == Registry::Success);
    CHECK(registry.Changes().size() == 1);
    for (const std::string& line : inner.journal.Calls("RegOpenKeyExA")) CHECK(line.size() < 300);
    CHECK(inner.registry.OpenHandles() == 1);
}

TEST_CASE_FIXTURE(OverKeys, "512 levels are the deepest that can be made, as on the system") {
    std::string path = "N";
    while (Create(path) == Registry::Success) path += "\\N";
    CHECK(path.size() == 2 * Registry::DeepestKey + 1);
    CHECK(Create(path) == Registry::InvalidParameter);
}

TEST_CASE_FIXTURE(OverKeys, "of a value that tells its size and no more nothing is known") {
    REQUIRE(Set(Opened("A\\B"), "v", DwordValue(2)) == Registry::Success);
    inner.faults.Watch();
    static_cast<void>(registry.Changes());
    const auto& asked = inner.faults.Asked();
    const auto size = std::find(asked.begin(), asked.end(), "RegQueryValueExA");
    REQUIRE(size < asked.end());
    const auto data = std::find(size + 1, asked.end(), "RegQueryValueExA");
    REQUIRE(data < asked.end());
    inner.faults.FailNth(static_cast<int>(data - asked.begin()) + 1, 5);
    const auto changes = registry.Changes();
    inner.faults.Clear();
    REQUIRE(changes.size() == 1);
    CHECK(changes[0].before == std::nullopt);
}
