#include "registry/cregistry.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "contract/machine.h"
#include "platform/machinewith.h"
#include "platform/systemfacts.h"
#include "registry/restless.h"
#include "runtime/failure.h"
#include "runtime/text.h"

// The object before the registry: what it stores byte by byte, what it makes of others' values, and
// how it enumerates.

namespace {

using namespace std::string_literals;
using contract::Scratch;
using contract::Stored;
using platform::Registry;
using registry::Data;
using Names = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;

const std::string Key(Scratch);

struct RegistryObjectFixture {
    contract::TestMachine machine;
    Registry& service = machine.Services().registry;
    registry::cRegistry object{machine.Services()};

    RegistryObjectFixture() { Point(object); }

    static void Point(registry::cRegistry& at) {
        at.ClassKey = Registry::CurrentUser;
        at.SectionKey = Key;
        at.ValueKey = "value";
        at.Default = "default"s;
    }
    std::optional<Stored> StoredValue() const {
        return machine.StoredAt(Registry::CurrentUser, Key, "value");
    }
    Registry::Key Make(const std::string& path) {
        Registry::Key key = 0;
        REQUIRE(service.Create(Registry::CurrentUser, path, Registry::MayDoAll, key) ==
                Registry::Success);
        return key;
    }
    void MakeClosed(const std::string& path) { service.Close(Make(path)); }
    void Put(const char* name, std::uint32_t type, const std::string& bytes) {
        const Registry::Key key = Make(Key);
        REQUIRE(service.Set(key, name, type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                            static_cast<std::uint32_t>(bytes.size())) == Registry::Success);
        service.Close(key);
    }
    Data ReadBack(std::uint32_t type, const std::string& bytes) {
        Put("value", type, bytes);
        const Data data = object.Value();
        CHECK(object.ValueType == type);
        return data;
    }
    void Write(std::uint32_t type, const Data& data) {
        object.ValueType = type;
        object.SetValue(data);
    }
    // With what was in the list before.
    Names Sections(Names before = {}) {
        int count = -1;
        object.EnumerateSections(before, count);
        lastCount = count;
        return before;
    }
    int lastCount = -1;
};

}  // namespace

TEST_CASE_FIXTURE(RegistryObjectFixture, "a text written by the object carries its terminator") {
    Write(Registry::String, "Größe €"s);
    CHECK((StoredValue() == Stored{Registry::String,
                                   "Gr\xF6\xDF"
                                   "e \x80\0"s}));
    CHECK(object.Value() == Data("Größe €"s));
    CHECK(object.ValueType == Registry::String);
    Write(Registry::String, ""s);
    CHECK((StoredValue() == Stored{Registry::String, "\0"s}));
    CHECK(object.Value() == Data(""s));
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "two percent signs make a text expandable, one does not") {
    Write(Registry::String, "50% of 100%"s);
    CHECK((StoredValue() == Stored{Registry::ExpandString, "50% of 100%\0"s}));
    Write(Registry::ExpandString, "100%"s);
    CHECK((StoredValue() == Stored{Registry::String, "100%\0"s}));
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "numbers and bytes are stored as they are, type 5 as type 4") {
    Write(Registry::Dword, -2);
    CHECK((StoredValue() == Stored{Registry::Dword, "\xFE\xFF\xFF\xFF"s}));
    CHECK(object.Value() == Data(-2));
    Write(Registry::BigEndianDword, 0x01020304);
    CHECK((StoredValue() == Stored{Registry::Dword, "\4\3\2\1"s}));
    CHECK(object.Value() == Data(0x01020304));
    Write(Registry::Binary, Bytes{0, 255, 0});
    CHECK((StoredValue() == Stored{Registry::Binary, "\0\xFF\0"s}));
    CHECK(object.Value() == Data(Bytes{0, 255, 0}));
    Write(Registry::Binary, Bytes{});
    CHECK((StoredValue() == Stored{Registry::Binary, ""}));
    CHECK(object.Value() == Data(Bytes{}));
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "writing makes the path, all its levels") {
    object.SectionKey = Key + "\\a\\b";
    Write(Registry::Dword, 1);
    CHECK((machine.StoredAt(Registry::CurrentUser, Key + "\\a\\b", "value") ==
           Stored{Registry::Dword, "\1\0\0\0"s}));
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "a stored text is read up to the byte before its last") {
    CHECK(ReadBack(Registry::String, "abc\0"s) == Data("abc"s));
    CHECK(ReadBack(Registry::String, "abc") == Data("ab"s));
    CHECK(ReadBack(Registry::String, "\0"s) == Data(""s));
    CHECK(ReadBack(Registry::String, "") == Data(""s));
    CHECK(ReadBack(Registry::ExpandString, "") == Data(""s));
    CHECK(ReadBack(Registry::MultiString, "a\0b\0\0"s) == Data("a\0b\0"s));
    const std::string longText(32 * 1024, 'x');
    CHECK(ReadBack(Registry::String, longText + '\0') == Data(longText));
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "numbers are read in both orders, other types as bytes") {
    CHECK(ReadBack(Registry::Dword, "\1\2\3\x84"s) == Data(static_cast<std::int32_t>(0x84030201)));
    CHECK(ReadBack(Registry::BigEndianDword, "\x84\3\2\1"s) ==
          Data(static_cast<std::int32_t>(0x84030201)));
    CHECK(ReadBack(Registry::Dword, "\1\2"s) == Data(0x0201));
    CHECK(ReadBack(Registry::Dword, "") == Data(0));
    CHECK(ReadBack(Registry::Dword, "\1\2\3\4\5"s) == Data("default"s));
    for (const std::uint32_t type : {0u, 3u, 6u, 8u, 11u, 0x12345u}) {
        CAPTURE(type);
        CHECK(ReadBack(type, "a\0b"s) == Data(Bytes{'a', 0, 'b'}));
        CHECK(ReadBack(type, "") == Data(Bytes{}));
    }
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "references to the environment are expanded in type 2 alone") {
    const auto isExpanded = [](const Data& data, const std::string& wanted) {
        return runtime::EqualsIgnoringCase(std::get<std::string>(data), wanted);
    };
    const std::string windows = machine.Services().systemFacts.WindowsDirectory();
    CHECK(isExpanded(ReadBack(Registry::ExpandString, "%SystemRoot%\\x%\0"s), windows + "\\x%"));
    CHECK(isExpanded(ReadBack(Registry::ExpandString, "%systemROOT%;%SystemRoot%\0"s),
                     windows + ';' + windows));
    CHECK(ReadBack(Registry::ExpandString, "%NoSuchThing% 5%\0"s) == Data("%NoSuchThing% 5%"s));
    CHECK(ReadBack(Registry::String, "%SystemRoot%\0"s) == Data("%SystemRoot%"s));
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "what cannot be read is the default and leaves the type") {
    object.ValueType = 77;
    CHECK(object.Value() == Data("default"s));
    MakeClosed(Key);
    CHECK(object.Value() == Data("default"s));
    object.ClassKey = 2;
    CHECK(object.Value() == Data("default"s));
    CHECK(object.ValueType == 77);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "keys and values are made, found and deleted") {
    CHECK_FALSE(object.KeyExists());
    CHECK(object.CreateKey());
    CHECK(object.KeyExists());
    Write(Registry::Dword, 1);
    CHECK(object.DeleteValue());
    CHECK_FALSE(StoredValue());
    CHECK_THROWS_AS(object.DeleteValue(), runtime::Failure);
    CHECK(object.DeleteKey());
    CHECK_FALSE(object.KeyExists());
    CHECK_THROWS_AS(object.DeleteKey(), runtime::Failure);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "a root that is a plain number is refused by everything") {
    for (const Registry::Key root : {0u, 1u, 2u, 3u}) {
        CAPTURE(root);
        Registry::Key key = 0;
        CHECK(service.Create(root, Key, Registry::MayDoAll, key) == Registry::InvalidHandle);
        CHECK(service.Open(root, Key, Registry::MayDoAll, key) == Registry::InvalidHandle);
        object.ClassKey = root;
        CHECK_FALSE(object.KeyExists());
        CHECK_THROWS_AS(object.CreateKey(), runtime::Failure);
        CHECK(Sections().empty());
    }
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "no sub-keys, and no key, are a count of 0 and an untouched list") {
    const Names before{"x", "y"};
    CHECK(Sections(before) == before);
    CHECK(lastCount == 0);
    MakeClosed(Key);
    CHECK(Sections(before) == before);
    CHECK(lastCount == 0);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "one sub-key replaces what was in the list") {
    MakeClosed(Key + "\\Größe");
    CHECK(Sections({"x", "y"}) == Names{"Größe"});
    CHECK(lastCount == 1);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "a thousand sub-keys are enumerated once each") {
    Names wanted;
    for (int number = 1000; number < 2000; ++number) {
        wanted.push_back("Sub" + std::to_string(number));
        MakeClosed(Key + '\\' + wanted.back());
    }
    Names found = Sections();
    std::sort(found.begin(), found.end());
    CHECK((found == wanted));
    CHECK(lastCount == 1000);
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "a name of 254 characters is enumerated, one of 255 ends it") {
    const std::string almost(254, 'b');
    const std::string longest(255, 'm');
    // Such names fit into no path, only by themselves.
    const Registry::Key parent = Make(Key);
    const auto make = [&](const std::string& child) {
        Registry::Key key = 0;
        REQUIRE(service.Create(parent, child, Registry::MayDoAll, key) == Registry::Success);
        service.Close(key);
    };
    for (const std::string& child : {std::string("a"), almost, std::string("z")}) make(child);
    CHECK((Sections() == Names{"a", almost, "z"}));
    make(longest);
    std::string name;
    CHECK(service.EnumerateKey(parent, 2, name) == Registry::MoreData);
    CHECK(service.EnumerateKey(parent, 3, name) == Registry::Success);
    CHECK(name == "z");
    CHECK((Sections() == Names{"a", almost}));
    CHECK(service.RemoveKey(parent, longest) == Registry::Success);
    service.Close(parent);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "values are enumerated with the longest of their names") {
    int count = -1;
    Names names{"x"};
    object.EnumerateValues(names, count);
    CHECK(count == 0);
    MakeClosed(Key);
    object.EnumerateValues(names, count);
    CHECK(count == 0);
    CHECK(names == Names{"x"});
    const std::string longName(255, 'n');
    Put("Größe", Registry::Dword, "1234");
    Put(longName.c_str(), Registry::Binary, "");
    Put("", Registry::String, "default\0"s);
    object.EnumerateValues(names, count);
    std::sort(names.begin(), names.end());
    CHECK(count == 3);
    CHECK(names == Names{"", "Größe", longName});
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "the enumeration needs the right to enumerate and tells its end") {
    MakeClosed(Key + "\\Below");
    std::string name;
    Registry::Key key = 0;
    REQUIRE(service.Open(Registry::CurrentUser, Key, Registry::MayQueryValue, key) ==
            Registry::Success);
    CHECK(service.EnumerateKey(key, 0, name) == Registry::AccessDenied);
    CHECK(service.EnumerateValue(key, 0, 20, name) == Registry::NoMoreItems);
    service.Close(key);
    REQUIRE(service.Open(Registry::CurrentUser, Key, Registry::MayEnumerateSubKeys, key) ==
            Registry::Success);
    CHECK(service.EnumerateKey(key, 0, name) == Registry::Success);
    CHECK(service.EnumerateKey(key, 1, name) == Registry::NoMoreItems);
    CHECK(service.EnumerateValue(key, 0, 20, name) == Registry::AccessDenied);
    service.Close(key);
    std::uint32_t length = 0;
    CHECK(service.EnumerateKey(key, 0, name) == Registry::InvalidHandle);
    CHECK(service.LongestValueName(key, length) == Registry::InvalidHandle);
    CHECK(service.EnumerateValue(key, 0, 20, name) == Registry::InvalidHandle);
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "a value's name needs room for its NUL") {
    Put("abc", Registry::Dword, "1234");
    std::string name;
    const Registry::Key key = Make(Key);
    std::uint32_t length = 0;
    CHECK(service.LongestValueName(key, length) == Registry::Success);
    CHECK(length == 3);
    CHECK(service.EnumerateValue(key, 0, 3, name) == Registry::MoreData);
    CHECK(service.EnumerateValue(key, 0, 4, name) == Registry::Success);
    CHECK(name == "abc");
    service.Close(key);
}

TEST_CASE_FIXTURE(RegistryObjectFixture,
                  "a sub-key deleted during the enumeration takes another one's turn") {
    for (const char* name : {"\\a", "\\b", "\\c", "\\d"}) MakeClosed(Key + name);
    registry_tests::Restless restless(service);
    const platform::Machine disturbed = platform::With(machine.Services(), {.registry = &restless});
    registry::cRegistry watched(disturbed);
    Point(watched);
    // The third call finds b.
    restless.After(3, [&] { service.RemoveKey(Registry::CurrentUser, Key + "\\a"); });
    Names names;
    int count = 0;
    watched.EnumerateSections(names, count);
    CHECK(restless.HasActed());
    CHECK(names == Names{"a", "b", "d"});
}

TEST_CASE_FIXTURE(RegistryObjectFixture, "the key itself deleted during the enumeration ends it") {
    for (const char* name : {"\\Inner\\a", "\\Inner\\b"}) MakeClosed(Key + name);
    registry_tests::Restless restless(service);
    const platform::Machine disturbed = platform::With(machine.Services(), {.registry = &restless});
    registry::cRegistry watched(disturbed);
    Point(watched);
    watched.SectionKey = Key + "\\Inner";
    restless.After(2, [&] {
        for (const char* name : {"\\Inner\\a", "\\Inner\\b", "\\Inner"}) {
            CHECK(service.RemoveKey(Registry::CurrentUser, Key + name) == Registry::Success);
        }
    });
    Names names;
    int count = 0;
    watched.EnumerateSections(names, count);
    CHECK(restless.HasActed());
    CHECK(names == Names{"a"});
    CHECK(count == 1);
}
