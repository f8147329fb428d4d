#include "platform/simulated/wideregistry.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "runtime/encoding.h"

namespace {

using platform::Registry;
using platform::WideRegistry;
using platform::simulated::DwordValue;
using platform::simulated::Machine;
using platform::simulated::TextValue;

struct WideMemoryFixture {
    Machine machine;
    platform::simulated::WideRegistry wide{machine.registry};

    WideMemoryFixture() {
        machine.registry.Put(Registry::CurrentUser, "Software\\Here", "Zahl", DwordValue(7));
    }
};

std::vector<std::uint8_t> Utf16(std::string_view text) {
    const std::string bytes = runtime::ToUtf16(text);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

TEST_CASE_FIXTURE(WideMemoryFixture, "a wide call stands in the journal as the narrow ones it is") {
    WideRegistry::Value value;
    wide.Read(Registry::CurrentUser, "Software\\Here", "Zahl", value);
    CHECK(machine.journal.Calls("RegOpenKeyExA").size() == 1);
    CHECK(machine.journal.Calls("RegQueryValueExA").size() == 2);
    CHECK(machine.journal.Calls("RegCloseKey").size() == 1);
    wide.Write(Registry::CurrentUser, "Software\\Here", "Text", {1, Utf16("süß")});
    REQUIRE(machine.journal.Calls("RegSetValueExA").size() == 1);
    CHECK(machine.registry.Value(Registry::CurrentUser, "Software\\Here", "Text") ==
          platform::simulated::BareTextValue("süß"));
}

TEST_CASE_FIXTURE(WideMemoryFixture, "a wide call fails as told, and leaves no handle open") {
    constexpr auto root = Registry::CurrentUser;
    const std::string path = "Software\\Here";
    const auto before = machine.registry.Dump();
    WideRegistry::Value value = {99, {1}};
    std::vector<std::string> names;
    const auto fails = [&](const char* call, auto&& work) {
        machine.faults.FailAll(call, Registry::AccessDenied);
        CAPTURE(call);
        CHECK(work() == Registry::AccessDenied);
        machine.faults.Clear();
        CHECK(machine.registry.OpenHandles() == 0);
        CHECK((machine.registry.Dump() == before));
    };
    fails("RegOpenKeyExA", [&] { return wide.Ask(root, path); });
    fails("RegOpenKeyExA", [&] { return wide.KeyNames(root, path, names); });
    fails("RegEnumKeyA", [&] { return wide.KeyNames(root, path, names); });
    fails("RegOpenKeyExA", [&] { return wide.ValueNames(root, path, names); });
    fails("RegEnumValueA", [&] { return wide.ValueNames(root, path, names); });
    fails("RegOpenKeyExA", [&] { return wide.Read(root, path, "Zahl", value); });
    fails("RegQueryValueExA", [&] { return wide.Read(root, path, "Zahl", value); });
    fails("RegOpenKeyExA", [&] { return wide.Write(root, path, "Zahl", {3, {1}}); });
    fails("RegSetValueExA", [&] { return wide.Write(root, path, "Zahl", {3, {1}}); });
    fails("RegOpenKeyExA", [&] { return wide.RemoveValue(root, path, "Zahl"); });
    fails("RegDeleteValueA", [&] { return wide.RemoveValue(root, path, "Zahl"); });
    fails("RegCreateKeyExA", [&] { return wide.Create(root, "Software\\There"); });
    fails("RegDeleteKeyA", [&] { return wide.RemoveKey(root, path); });
    CHECK((value == WideRegistry::Value{99, {1}}));
    CHECK(names.empty());
}

TEST_CASE_FIXTURE(WideMemoryFixture, "names that were told before a failure stay") {
    machine.registry.MakeKey(Registry::CurrentUser, "Software\\Here\\a");
    machine.registry.MakeKey(Registry::CurrentUser, "Software\\Here\\" + std::string(255, 'k'));
    std::vector<std::string> names;
    CHECK(wide.KeyNames(Registry::CurrentUser, "Software\\Here", names) == Registry::MoreData);
    CHECK(names == std::vector<std::string>{"a"});
}

TEST_CASE_FIXTURE(WideMemoryFixture,
                  "what the code page lacks becomes question marks, half a character is lost") {
    constexpr auto root = Registry::CurrentUser;
    WideRegistry::Value text = {1, Utf16("a\xD0\x96\xF0\x9D\x84\x9E\xED\xA0\xB4z")};
    text.bytes.push_back('y');
    CHECK(wide.Write(root, "Software\\Here", "Text", text) == Registry::Success);
    WideRegistry::Value value;
    CHECK(wide.Read(root, "Software\\Here", "Text", value) == Registry::Success);
    CHECK((value == WideRegistry::Value{1, Utf16("a????z")}));
    CHECK(wide.Create(root, "Software\\\xD0\x96") == Registry::Success);
    CHECK(machine.registry.HasKey(root, "Software\\?"));
}

TEST_CASE_FIXTURE(WideMemoryFixture, "a key that is denied to the narrow calls is to the wide") {
    machine.registry.Deny(Registry::CurrentUser, "Software\\Here", Registry::MaySetValue);
    WideRegistry::Value value;
    CHECK(wide.Read(Registry::CurrentUser, "Software\\Here", "Zahl", value) == Registry::Success);
    CHECK(wide.Ask(Registry::CurrentUser, "Software\\Here") == Registry::Success);
    CHECK(wide.Write(Registry::CurrentUser, "Software\\Here", "Zahl", value) ==
          Registry::AccessDenied);
    machine.registry.Deny(Registry::CurrentUser, "Software\\Here");
    CHECK(wide.Ask(Registry::CurrentUser, "Software\\Here") == Registry::AccessDenied);
}
