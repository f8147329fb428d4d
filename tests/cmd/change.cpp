#include "cmd/change.h"

#include <doctest/doctest.h>

#include "cmd/console.h"

using namespace cmd_test;

namespace {

using Kind = cmd::Change::Kind;
using Value = platform::WideRegistry::Value;

// Holds one value, which cannot be read when `readResult` says so.
struct OneValue final : platform::WideRegistry {
    Result Ask(Root, std::string_view) override { return 0; }
    Result KeyNames(Root, std::string_view, std::vector<std::string>&) override { return 0; }
    Result ValueNames(Root, std::string_view, std::vector<std::string>&) override { return 0; }
    Result Read(Root, std::string_view, std::string_view, Value& value) override {
        value = held;
        return readResult;
    }
    Result Write(Root, std::string_view, std::string_view, const Value&) override { return 0; }
    Result RemoveValue(Root, std::string_view, std::string_view) override { return 0; }
    Result Create(Root, std::string_view) override { return 0; }
    Result RemoveKey(Root, std::string_view) override { return 0; }

    Value held;
    Result readResult = 0;
};

}  // namespace

TEST_CASE("a text that the code page cannot hold is changed by writing what the program reads") {
    const Value omega{1, {0xA9, 0x03}};
    const Value question{1, {'?', 0}};
    OneValue registry;
    registry.held = omega;
    cmd::Refusals refusals;
    // As the calls of the code page tell it, nothing changes.
    cmd::Changes changes{{Kind::WriteValue, HKCU, "K", "v", question, question}};
    cmd::ReadBefore(changes, registry, refusals);
    REQUIRE(changes.size() == 1);
    CHECK(changes[0].before == omega);
    CHECK(cmd::ToDo(changes[0]) == "ändern  HKCU\\K [v]: REG_SZ \"Ω\" -> REG_SZ \"?\"");

    registry.held = question;
    cmd::ReadBefore(changes, registry, refusals);
    CHECK(changes.empty());
    CHECK(refusals.empty());
}

TEST_CASE("what is there and cannot be read is neither new nor changed for whoever is told of it") {
    OneValue registry;
    registry.readResult = platform::Registry::AccessDenied;
    cmd::Refusals refusals;
    cmd::Changes changes{{Kind::WriteValue, HKCU, "K", "", std::nullopt, Value{4, {1, 0, 0, 0}}}};
    cmd::ReadBefore(changes, registry, refusals);
    REQUIRE(changes.size() == 1);
    CHECK(cmd::Done(changes[0]) == "gesetzt HKCU\\K [@]: REG_DWORD 0x00000001 (1)");
    CHECK(refusals == cmd::Refusals{{"HKCU\\K [@]", 5}});
}

TEST_CASE("the values of a key that goes are told with it and not deleted one by one") {
    Program program;
    program.machine.registry.Put(HKCU, "K\\L", "v", TextValue("x"));
    program.machine.registry.MakeKey(HKCU, "K\\L\\M");
    const cmd::Changes changes{{Kind::DeleteValue, HKCU, "K\\L", "v", Value{1, {}}},
                               {Kind::DeleteKey, HKCU, "K\\L"}};
    cmd::Refusals refusals;
    std::vector<std::string> done;
    const auto note = [&](const cmd::Change& change) { done.push_back(cmd::Done(change)); };
    cmd::CarryOut(changes, program.wide, refusals, note);
    CHECK(done.empty());
    CHECK(refusals == cmd::Refusals{{"HKCU\\K\\L", 5}});
    CHECK(program.machine.registry.Value(HKCU, "K\\L", "v").has_value());

    program.machine.registry.EraseKey(HKCU, "K\\L\\M");
    cmd::CarryOut(changes, program.wide, refusals, note);
    CHECK(done ==
          std::vector<std::string>{"gelöscht HKCU\\K\\L [v]: REG_SZ \"\"", "gelöscht HKCU\\K\\L"});
    CHECK_FALSE(program.machine.registry.HasKey(HKCU, "K\\L"));
}

TEST_CASE("texts are told as texts only when their zeros stand as they should") {
    const auto told = [](std::uint32_t type, std::vector<std::uint8_t> bytes) {
        const std::string text =
            cmd::ToDo({Kind::WriteValue, HKCU, "K", "v", std::nullopt, Value{type, bytes}});
        return text.substr(text.find(": ") + 2);
    };
    CHECK(told(1, {0, 0}) == "REG_SZ \"\"");
    CHECK(told(1, {}) == "REG_SZ \"\"");
    CHECK(told(1, {0, 0, 0, 0}) == "REG_SZ 00 00 00 00");
    CHECK(told(7, {0, 0, 0, 0}) == "REG_MULTI_SZ \"\"");
    CHECK(told(7, {0, 0}) == "REG_MULTI_SZ 00 00");
    CHECK(told(7, {'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0}) == "REG_MULTI_SZ \"a\" \"b\"");
    CHECK(told(7, {'a', 0, 0, 0}) == "REG_MULTI_SZ 61 00 00 00");
}
