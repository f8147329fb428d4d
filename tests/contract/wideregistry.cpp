#include "platform/wideregistry.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "contract/machine.h"
#include "runtime/encoding.h"

namespace {

using contract::Scratch;
using contract::Stored;
using platform::Registry;
using platform::WideRegistry;

constexpr Registry::Key Roots[] = {Registry::ClassesRoot, Registry::CurrentUser,
                                   Registry::LocalMachine};
constexpr std::uint32_t WideTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0x12345};
constexpr std::uint32_t WideTextTypes[] = {Registry::String, Registry::ExpandString,
                                           Registry::MultiString};
constexpr std::size_t WideSizes[] = {0, 1, 2, 3, 4, 5, 254, 255, 256, 257, 258, 4097, 102400};

bool IsWideText(std::uint32_t type) {
    return std::find(std::begin(WideTextTypes), std::end(WideTextTypes), type) !=
           std::end(WideTextTypes);
}

WideRegistry::Value Bytes(std::uint32_t type, std::string_view bytes) {
    return {type, {bytes.begin(), bytes.end()}};
}

// As it is given, so without an end unless one is given.
WideRegistry::Value Text(std::string_view text, std::uint32_t type = Registry::String) {
    return Bytes(type, runtime::ToUtf16(text));
}

// That no text ends at: letters, two bytes each, or any bytes.
WideRegistry::Value Filling(std::uint32_t type, std::size_t size) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(!IsWideText(type) ? i % 255 + 1
                                   : i % 2 == 0      ? i / 2 % 26 + 'a'
                                                     : 0);
    }
    return Bytes(type, bytes);
}

struct WideRegistryFixture {
    contract::TestMachine machine;
    WideRegistry& wide = machine.Wide();
    std::string scratch{Scratch};

    WideRegistryFixture() {
        REQUIRE(wide.Create(Registry::CurrentUser, Scratch) == Registry::Success);
    }

    std::string Below(std::string_view name) const { return scratch + '\\' + std::string(name); }
    WideRegistry::Result Ask(std::string_view path) {
        return wide.Ask(Registry::CurrentUser, path);
    }
    WideRegistry::Result Write(std::string_view name, const WideRegistry::Value& value) {
        return wide.Write(Registry::CurrentUser, Scratch, name, value);
    }
    // The value there; its type is one that nobody has when it cannot be read.
    WideRegistry::Value Read(std::string_view name) {
        WideRegistry::Value value;
        const auto result = wide.Read(Registry::CurrentUser, Scratch, name, value);
        return result == Registry::Success ? value : WideRegistry::Value{0xBAD, {}};
    }
    std::vector<std::string> Keys(std::string_view path) {
        std::vector<std::string> names;
        CHECK(wide.KeyNames(Registry::CurrentUser, path, names) == Registry::Success);
        std::sort(names.begin(), names.end());
        return names;
    }
    std::vector<std::string> Values(std::string_view path) {
        std::vector<std::string> names;
        CHECK(wide.ValueNames(Registry::CurrentUser, path, names) == Registry::Success);
        std::sort(names.begin(), names.end());
        return names;
    }
};

using Names = std::vector<std::string>;

}  // namespace

TEST_CASE_FIXTURE(WideRegistryFixture, "a wide key is there once created, below each root") {
    for (const Registry::Key root : Roots) {
        CAPTURE(root);
        const std::string path = Below("Made");
        CHECK(wide.Ask(root, path) == Registry::FileNotFound);
        CHECK(wide.Create(root, path) == Registry::Success);
        CHECK(wide.Ask(root, path) == Registry::Success);
        CHECK(wide.RemoveKey(root, path) == Registry::Success);
        CHECK(wide.Ask(root, path) == Registry::FileNotFound);
        CHECK(wide.Ask(root, Scratch) == Registry::Success);
    }
}

TEST_CASE_FIXTURE(WideRegistryFixture, "creating a wide key makes all levels, or finds them") {
    CHECK(wide.Create(Registry::CurrentUser, Below("a\\b\\c\\d")) == Registry::Success);
    CHECK(Ask(Below("a\\b\\c")) == Registry::Success);
    CHECK(wide.Write(Registry::CurrentUser, Below("a\\b"), "kept", Text("x")) == Registry::Success);
    CHECK(wide.Create(Registry::CurrentUser, Below("a\\b\\c\\d")) == Registry::Success);
    CHECK(wide.Create(Registry::CurrentUser, Below("A\\B")) == Registry::Success);
    CHECK(Keys(Below("a")) == Names{"b"});
    CHECK(Keys(Below("a\\b")) == Names{"c"});
    CHECK(Values(Below("a\\b")) == Names{"kept"});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a root is a key that is there and stays there") {
    for (const Registry::Key root : Roots) {
        CAPTURE(root);
        CHECK(wide.Ask(root, "") == Registry::Success);
        CHECK(wide.Create(root, "") == Registry::Success);
        CHECK(wide.RemoveKey(root, "") == Registry::AccessDenied);
        CHECK(wide.Ask(root, "") == Registry::Success);
        CHECK(wide.Write(root, "", "QuillmoreContract", Text("x")) == Registry::Success);
        WideRegistry::Value value;
        CHECK(wide.Read(root, "", "QuillmoreContract", value) == Registry::Success);
        CHECK(value == Text("x"));
        Names names;
        CHECK(wide.ValueNames(root, "", names) == Registry::Success);
        CHECK(std::count(names.begin(), names.end(), "QuillmoreContract") == 1);
        CHECK(wide.RemoveValue(root, "", "QuillmoreContract") == Registry::Success);
        CHECK(wide.Read(root, "", "QuillmoreContract", value) == Registry::FileNotFound);
        CHECK(wide.Create(root, Scratch) == Registry::Success);
        names.clear();
        CHECK(wide.KeyNames(root, "", names) == Registry::Success);
        CHECK(std::count(names.begin(), names.end(), "Software") == 1);
    }
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a wide value of every type and size keeps its bytes") {
    for (const std::uint32_t type : WideTypes) {
        for (const std::size_t size : WideSizes) {
            if (IsWideText(type) && size % 2 != 0) continue;
            CAPTURE(type);
            CAPTURE(size);
            const WideRegistry::Value value = Filling(type, size);
            REQUIRE(value.bytes.size() == size);
            REQUIRE(Write("value", value) == Registry::Success);
            CHECK((Read("value") == value));
        }
    }
}

TEST_CASE_FIXTURE(WideRegistryFixture, "NULs in a wide text are stored as they come") {
    using namespace std::string_literals;
    for (const std::uint32_t type : WideTextTypes) {
        for (const std::string& text : {"\0"s, "\0\0"s, "a"s, "a\0"s, "a\0b"s, "a\0b\0\0"s}) {
            CAPTURE(type);
            CAPTURE(text.size());
            const WideRegistry::Value value = Text(text, type);
            REQUIRE(Write("value", value) == Registry::Success);
            CHECK((Read("value") == value));
        }
    }
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a wide value takes the place of one of another type") {
    REQUIRE(Write("value", Filling(Registry::Binary, 1000)) == Registry::Success);
    REQUIRE(Write("VALUE", Text("kurz")) == Registry::Success);
    CHECK((Read("value") == Text("kurz")));
    CHECK(Values(Scratch) == Names{"value"});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "what is absent is told apart and nothing comes of it") {
    const std::string absent = Below("Absent");
    WideRegistry::Value value = Text("before");
    Names names = {"before"};
    CHECK(Ask(absent) == Registry::FileNotFound);
    CHECK(wide.KeyNames(Registry::CurrentUser, absent, names) == Registry::FileNotFound);
    CHECK(wide.ValueNames(Registry::CurrentUser, absent, names) == Registry::FileNotFound);
    CHECK(wide.Read(Registry::CurrentUser, absent, "value", value) == Registry::FileNotFound);
    CHECK(wide.Write(Registry::CurrentUser, absent, "value", value) == Registry::FileNotFound);
    CHECK(wide.RemoveValue(Registry::CurrentUser, absent, "value") == Registry::FileNotFound);
    CHECK(wide.RemoveKey(Registry::CurrentUser, absent) == Registry::FileNotFound);
    CHECK(Ask(absent) == Registry::FileNotFound);
    CHECK(wide.Read(Registry::CurrentUser, Scratch, "value", value) == Registry::FileNotFound);
    CHECK(wide.Read(Registry::CurrentUser, Scratch, "", value) == Registry::FileNotFound);
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, "value") == Registry::FileNotFound);
    CHECK(value == Text("before"));
    CHECK(names == Names{"before"});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "the wide default value has the empty name") {
    REQUIRE(Write("", Text("default")) == Registry::Success);
    REQUIRE(Write("other", Text("other")) == Registry::Success);
    CHECK((Read("") == Text("default")));
    CHECK(Values(Scratch) == Names{"", "other"});
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, "") == Registry::Success);
    CHECK(Values(Scratch) == Names{"other"});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "wide names have umlauts and are found in any case") {
    CHECK(wide.Create(Registry::CurrentUser, Below("Größe und Öl €")) == Registry::Success);
    CHECK(Ask(Below("gRÖßE UND öL €")) == Registry::Success);
    CHECK(Ask(Below("Groesse und Oel")) == Registry::FileNotFound);
    CHECK(Keys(Scratch) == Names{"Größe und Öl €"});
    CHECK(Write("Höhe €", Text("süß")) == Registry::Success);
    CHECK((Read("hÖHE €") == Text("süß")));
    CHECK(Values(Scratch) == Names{"Höhe €"});
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, "HÖHE €") == Registry::Success);
    CHECK(wide.RemoveKey(Registry::CurrentUser, Below("GRÖßE und öL €")) == Registry::Success);
    CHECK(Keys(Scratch).empty());
    CHECK(Values(Scratch).empty());
}

TEST_CASE_FIXTURE(WideRegistryFixture, "the wide and the narrow calls see one registry") {
    REQUIRE(Write("Höhe", Text("süß €")) == Registry::Success);
    CHECK((machine.StoredAt(Registry::CurrentUser, Scratch, "Höhe") ==
           Stored{Registry::String, "s\xFC\xDF \x80"}));
    REQUIRE(Write("bytes", Bytes(Registry::Binary, "s\xFC\xDF")) == Registry::Success);
    CHECK((machine.StoredAt(Registry::CurrentUser, Scratch, "bytes") ==
           Stored{Registry::Binary, "s\xFC\xDF"}));
    Registry& narrow = machine.Services().registry;
    Registry::Key key = 0;
    REQUIRE(narrow.Open(Registry::CurrentUser, Scratch, Registry::MayDoAll, key) ==
            Registry::Success);
    const std::uint8_t letters[] = {0xC4, 0xF6};
    for (const std::uint32_t type : WideTextTypes) {
        CAPTURE(type);
        CHECK(narrow.Set(key, "narrow", type, letters, 2) == Registry::Success);
        CHECK((Read("narrow") == Text("Äö", type)));
    }
    CHECK(narrow.Set(key, "narrow", Registry::Binary, letters, 2) == Registry::Success);
    CHECK((Read("narrow") == Bytes(Registry::Binary, "\xC4\xF6")));
    narrow.Close(key);
}

TEST_CASE_FIXTURE(WideRegistryFixture, "all names of a key are told, none, one or many") {
    CHECK(Keys(Scratch).empty());
    CHECK(Values(Scratch).empty());
    Names names;
    for (int i = 1000; i < 1300; ++i) {
        const std::string name = "Name " + std::to_string(i);
        names.push_back(name);
        REQUIRE(wide.Create(Registry::CurrentUser, Below(name + "\\below")) == Registry::Success);
        REQUIRE(Write(name, Filling(Registry::Binary, static_cast<std::size_t>(i))) ==
                Registry::Success);
        if (i == 1000) {
            CHECK(Keys(Scratch) == names);
            CHECK(Values(Scratch) == names);
        }
    }
    CHECK(Keys(Scratch) == names);
    CHECK(Values(Scratch) == names);
}

TEST_CASE_FIXTURE(WideRegistryFixture, "names that are told go behind those that were there") {
    REQUIRE(wide.Create(Registry::CurrentUser, Below("key")) == Registry::Success);
    REQUIRE(Write("value", Text("x")) == Registry::Success);
    Names names = {"before"};
    CHECK(wide.KeyNames(Registry::CurrentUser, Scratch, names) == Registry::Success);
    CHECK(wide.ValueNames(Registry::CurrentUser, Scratch, names) == Registry::Success);
    CHECK(names == Names{"before", "key", "value"});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a wide key with sub-keys stays, one with values goes") {
    REQUIRE(wide.Create(Registry::CurrentUser, Below("a\\b")) == Registry::Success);
    REQUIRE(wide.Write(Registry::CurrentUser, Below("a\\b"), "value", Text("x")) ==
            Registry::Success);
    CHECK(wide.RemoveKey(Registry::CurrentUser, Below("a")) == Registry::AccessDenied);
    CHECK(Values(Below("a\\b")) == Names{"value"});
    CHECK(wide.RemoveKey(Registry::CurrentUser, Below("a\\b")) == Registry::Success);
    CHECK(Ask(Below("a\\b")) == Registry::FileNotFound);
    CHECK(wide.RemoveKey(Registry::CurrentUser, Below("a")) == Registry::Success);
    CHECK(Keys(Scratch).empty());
}

TEST_CASE_FIXTURE(WideRegistryFixture, "long wide names are taken, longer ones refused") {
    const std::string key(Registry::EnumerationRoom - 1, 'k');
    const std::string value(Registry::ValueNameLimit, 'v');
    CHECK(wide.Create(Registry::CurrentUser, Below(key + "\\" + key)) == Registry::Success);
    CHECK(Keys(Scratch) == Names{key});
    CHECK(Keys(Below(key)) == Names{key});
    CHECK(Write(value, Text("x")) == Registry::Success);
    CHECK((Read(value) == Text("x")));
    CHECK(Values(Scratch) == Names{value});

    if (!machine.TakesTooLongKeys()) {
        const std::string longerKey(Registry::LongestKeyName + 1, 'k');
        CHECK(wide.Create(Registry::CurrentUser, Below(longerKey)) == Registry::InvalidParameter);
        CHECK(Ask(Below(longerKey)) == Registry::FileNotFound);
    }
    for (const std::size_t length : {16384u, 32767u, 32768u, 65536u, 65537u, 70000u}) {
        CAPTURE(length);
        const std::string longer(length, 'v');
        CHECK(Write(longer, Text("y")) != Registry::Success);
        CHECK((Read(longer) != Text("x")));
        CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, longer) != Registry::Success);
        CHECK(Ask(Below(longer)) != Registry::Success);
        CHECK(wide.Create(Registry::CurrentUser, Below(longer)) != Registry::Success);
        CHECK(wide.RemoveKey(Registry::CurrentUser, Below(longer)) != Registry::Success);
    }
    CHECK((Read(value) == Text("x")));
    CHECK(Keys(Scratch) == Names{key});
    CHECK(Values(Scratch) == Names{value});
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a NUL in a wide name makes it no name") {
    using namespace std::string_literals;
    const std::string cut = "name\0more"s;
    REQUIRE(wide.Create(Registry::CurrentUser, Below("name")) == Registry::Success);
    REQUIRE(Write("name", Text("x")) == Registry::Success);
    WideRegistry::Value value;
    Names names;
    constexpr auto refused = Registry::InvalidParameter;
    CHECK(Ask(Below(cut)) == refused);
    CHECK(wide.Create(Registry::CurrentUser, Below("new"s + cut)) == refused);
    CHECK(wide.RemoveKey(Registry::CurrentUser, Below(cut)) == refused);
    CHECK(wide.KeyNames(Registry::CurrentUser, Below(cut), names) == refused);
    CHECK(wide.ValueNames(Registry::CurrentUser, Below(cut), names) == refused);
    CHECK(wide.Read(Registry::CurrentUser, Below(cut), "", value) == refused);
    CHECK(wide.Write(Registry::CurrentUser, Below(cut), "", Text("y")) == refused);
    CHECK(wide.RemoveValue(Registry::CurrentUser, Below(cut), "name") == refused);
    CHECK(wide.Read(Registry::CurrentUser, Scratch, cut, value) == refused);
    CHECK(wide.RemoveValue(Registry::CurrentUser, Scratch, cut) == refused);
    CHECK(Write(cut, Text("y")) == refused);
    CHECK((Read("name") == Text("x")));
    CHECK(Keys(Scratch) == Names{"name"});
    CHECK(Values(Scratch) == Names{"name"});
    CHECK(Values(Below("name")).empty());
}

TEST_CASE_FIXTURE(WideRegistryFixture, "a wide path that begins with a backslash is refused") {
    CHECK(Ask("\\" + scratch) != Registry::Success);
    CHECK(wide.RemoveKey(Registry::CurrentUser, "\\" + scratch) != Registry::Success);
    CHECK(wide.RemoveKey(Registry::CurrentUser, "\\") != Registry::Success);
    CHECK(Ask(Scratch) == Registry::Success);
}
