#include <doctest/doctest.h>

#include <vector>

#include "contract/machine.h"
#include "platform/registry.h"

namespace {

using contract::Scratch;
using contract::Stored;
using platform::Registry;

constexpr std::uint8_t Untouched = 0xA5;
constexpr std::uint32_t AllTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 4711};
constexpr std::size_t AllSizes[] = {0, 1, 2, 3, 4, 5, 255, 256, 4097, 65535, 65536};

// Bytes that no text ends at.
std::string Pattern(std::size_t size) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(i % 255 + 1);
    return bytes;
}

struct RegistryValuesFixture {
    contract::TestMachine machine;
    Registry& registry = machine.Services().registry;
    Registry::Key key = 0;

    RegistryValuesFixture() {
        REQUIRE(registry.Create(Registry::CurrentUser, Scratch, Registry::MayDoAll, key) ==
                Registry::Success);
    }
    ~RegistryValuesFixture() { registry.Close(key); }

    Registry::Result Set(std::string_view name, std::uint32_t type, std::string_view bytes) {
        return registry.Set(key, name, type, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                            static_cast<std::uint32_t>(bytes.size()));
    }

    struct Answer {
        Registry::Result result = -1;
        std::uint32_t type = 0xFFFF;
        std::uint32_t size = 0;
        std::string buffer;
        bool overrun = false;
    };
    // Asks with so much room; what lies behind the room must stay as it was.
    Answer Ask(std::string_view name, std::size_t room) {
        std::vector<std::uint8_t> buffer(room + 16, Untouched);
        Answer answer;
        answer.size = static_cast<std::uint32_t>(room);
        answer.result = registry.Query(key, name, answer.type, buffer.data(), answer.size);
        for (std::size_t i = room; i < buffer.size(); ++i) {
            if (buffer[i] != Untouched) answer.overrun = true;
        }
        answer.buffer.assign(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(room));
        return answer;
    }
    std::optional<Stored> StoredUnder(std::string_view name) {
        return machine.StoredAt(Registry::CurrentUser, Scratch, name);
    }
};

}  // namespace

TEST_CASE_FIXTURE(RegistryValuesFixture, "every type and size comes back byte by byte") {
    for (std::uint32_t type : AllTypes) {
        for (std::size_t size : AllSizes) {
            CAPTURE(type);
            CAPTURE(size);
            const std::string bytes = Pattern(size);
            REQUIRE(Set("value", type, bytes) == Registry::Success);
            CHECK((StoredUnder("value") == Stored{type, bytes}));
            const Answer answer = Ask("value", size);
            CHECK(answer.result == Registry::Success);
            CHECK(answer.type == type);
            CHECK(answer.size == size);
            CHECK((answer.buffer == bytes));
            CHECK_FALSE(answer.overrun);
        }
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "without a buffer only type and size are told") {
    for (std::uint32_t type : AllTypes) {
        for (std::size_t size : AllSizes) {
            CAPTURE(type);
            CAPTURE(size);
            REQUIRE(Set("value", type, Pattern(size)) == Registry::Success);
            std::uint32_t askedType = 0xFFFF;
            std::uint32_t askedSize = 0;
            CHECK(registry.Query(key, "value", askedType, nullptr, askedSize) == Registry::Success);
            CHECK(askedType == type);
            CHECK(askedSize == size);
        }
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture,
                  "a buffer that is too small gets the size that is needed") {
    for (std::uint32_t type : AllTypes) {
        REQUIRE(Set("value", type, Pattern(20)) == Registry::Success);
        for (std::size_t room = 0; room < 20; ++room) {
            CAPTURE(type);
            CAPTURE(room);
            const Answer answer = Ask("value", room);
            CHECK(answer.result == Registry::MoreData);
            CHECK(answer.type == type);
            CHECK(answer.size == 20);
            CHECK_FALSE(answer.overrun);
        }
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture,
                  "room behind an unterminated text may get a NUL, never more") {
    for (std::uint32_t type : AllTypes) {
        CAPTURE(type);
        REQUIRE(Set("value", type, "abc") == Registry::Success);
        const Answer answer = Ask("value", 8);
        CHECK(answer.result == Registry::Success);
        CHECK(answer.size == 3);
        CHECK(answer.buffer.substr(0, 3) == "abc");
        const bool isText = type == Registry::String || type == Registry::ExpandString ||
                            type == Registry::MultiString;
        CHECK(static_cast<std::uint8_t>(answer.buffer[3]) == (isText ? 0 : Untouched));
        CHECK(static_cast<std::uint8_t>(answer.buffer[4]) == Untouched);
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture,
                  "a NUL that happens to stand behind the data is not stored") {
    const char text[] = "Wert";
    for (std::uint32_t type : {Registry::String, Registry::ExpandString, Registry::MultiString}) {
        CAPTURE(type);
        REQUIRE(Set("value", type, std::string_view(text, 4)) == Registry::Success);
        CHECK((StoredUnder("value") == Stored{type, "Wert"}));
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture,
                  "NULs within and at the end of a text are stored as they come") {
    using namespace std::string_literals;
    for (const std::string& bytes : {"\0"s, "\0\0"s, "a\0"s, "a\0b"s, "a\0b\0\0"s, "\0a"s}) {
        for (std::uint32_t type :
             {Registry::String, Registry::ExpandString, Registry::MultiString}) {
            CAPTURE(type);
            CAPTURE(bytes.size());
            REQUIRE(Set("value", type, bytes) == Registry::Success);
            CHECK((StoredUnder("value") == Stored{type, bytes}));
            const Answer answer = Ask("value", bytes.size());
            CHECK(answer.result == Registry::Success);
            CHECK(answer.size == bytes.size());
            CHECK((answer.buffer == bytes));
        }
    }
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "every byte of the code page survives in a text") {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    REQUIRE(Set("value", Registry::String, all) == Registry::Success);
    CHECK((Ask("value", all.size()).buffer == all));
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "an absent value is not found") {
    CHECK(Ask("absent", 16).result == Registry::FileNotFound);
    CHECK(registry.RemoveValue(key, "absent") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "the empty name is the default value, no other name is") {
    REQUIRE(Set("", Registry::String, "default") == Registry::Success);
    CHECK(Ask("(Standard)", 16).result == Registry::FileNotFound);
    REQUIRE(Set("(Standard)", Registry::String, "named") == Registry::Success);
    CHECK(Ask("", 7).buffer == "default");
    CHECK(Ask("(Standard)", 5).buffer == "named");
    CHECK(registry.RemoveValue(key, "") == Registry::Success);
    CHECK(Ask("", 7).result == Registry::FileNotFound);
    CHECK(Ask("(Standard)", 5).result == Registry::Success);
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "value names are found in any case, umlauts included") {
    REQUIRE(Set("Größe", Registry::String, "one") == Registry::Success);
    CHECK(Ask("GRÖßE", 3).buffer == "one");
    REQUIRE(Set("grÖßE", Registry::String, "two") == Registry::Success);
    CHECK(Ask("Größe", 3).buffer == "two");
    CHECK(registry.RemoveValue(key, "GRÖßE") == Registry::Success);
    CHECK(Ask("Größe", 3).result == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "a name with a backslash is an ordinary value name") {
    REQUIRE(Set("a\\b", Registry::String, "one") == Registry::Success);
    CHECK(Ask("a\\b", 3).buffer == "one");
}

TEST_CASE_FIXTURE(RegistryValuesFixture,
                  "setting a value anew replaces its type and all its data") {
    REQUIRE(Set("value", Registry::String, "a long text") == Registry::Success);
    REQUIRE(Set("value", Registry::Dword, std::string_view("\1\0\0\0", 4)) == Registry::Success);
    using namespace std::string_literals;
    CHECK((StoredUnder("value") == Stored{Registry::Dword, "\1\0\0\0"s}));
}

TEST_CASE_FIXTURE(RegistryValuesFixture, "data of size zero are stored as none") {
    CHECK(registry.Set(key, "value", Registry::Binary, nullptr, 0) == Registry::Success);
    CHECK((StoredUnder("value") == Stored{Registry::Binary, ""}));
}
