#include <doctest/doctest.h>

#include <random>

#include "keys.h"

using namespace platform_test;

namespace {

// A user without aim: random calls with random, often senseless arguments.
struct Wanderer : Keys {
    explicit Wanderer(unsigned seed) : dice(seed) {}

    unsigned Throw(unsigned sides) { return static_cast<unsigned>(dice() % sides); }

    std::string Name() {
        static constexpr const char* Names[] = {"A",       "b",  "ä",   "Ä",      "A\\B",
                                                "a\\b\\",  "",   "\\A", "A\\\\C", "\xFF",
                                                "\xC3\\b", "日", "B\\", "C",      "😀\\x"};
        if (Throw(8) != 0) return Names[Throw(std::size(Names))];
        std::string name(Throw(300), '\0');
        for (char& c : name) c = static_cast<char>(Throw(256));
        return name;
    }

    Registry::Key AnyKey() {
        unsigned choice = Throw(6);
        if (choice == 0) return Throw(20);
        if (choice < 3 || open.empty()) return HKCR + Throw(3);
        return open[Throw(static_cast<unsigned>(open.size()))];
    }

    std::uint32_t Access() { return Throw(3) == 0 ? Throw(64) : 0x3F; }

    void OpenOrCreate() {
        Registry::Key key = 0;
        auto parent = AnyKey();
        auto result = Throw(2) == 0 ? registry.Open(parent, Name(), Access(), key)
                                    : registry.Create(parent, Name(), Access(), key);
        if (result == Registry::Success) open.push_back(key);
    }

    void SetAndReadBack() {
        auto key = AnyKey();
        std::string name = Name();
        std::vector<std::uint8_t> bytes(Throw(4) == 0 ? Throw(65537) : Throw(9));
        for (auto& byte : bytes) byte = static_cast<std::uint8_t>(dice());
        std::uint32_t type = Throw(12);
        auto size = static_cast<std::uint32_t>(bytes.size());
        if (registry.Set(key, name, type, bytes.data(), size) != Registry::Success) return;
        std::vector<std::uint8_t> read(size + 2);
        std::uint32_t readType = 0;
        std::uint32_t readSize = size + 2;
        auto result = registry.Query(key, name, readType, read.data(), readSize);
        if (result == Registry::AccessDenied) return;
        REQUIRE(result == Registry::Success);
        CHECK(readType == type);
        REQUIRE(readSize == size);
        read.resize(size);
        CHECK(read == bytes);
    }

    void CloseOne() {
        if (open.empty()) return;
        auto one = open.begin() + Throw(static_cast<unsigned>(open.size()));
        CHECK(registry.Close(*one) == Registry::Success);
        open.erase(one);
    }

    void Step() {
        switch (Throw(7)) {
            case 0:
            case 1:
                OpenOrCreate();
                break;
            case 2:
                SetAndReadBack();
                break;
            case 3:
                registry.RemoveValue(AnyKey(), Name());
                break;
            case 4:
                registry.RemoveKey(AnyKey(), Name());
                break;
            case 5:
                SizeResult(AnyKey(), Name());
                break;
            default:
                CloseOne();
                break;
        }
    }

    std::mt19937 dice;
    std::vector<Registry::Key> open;
};

}  // namespace

TEST_CASE("any sequence of calls keeps count of handles and gives back what was stored") {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        CAPTURE(seed);
        Wanderer wanderer(seed);
        for (int step = 0; step < 400; ++step) {
            wanderer.Step();
            REQUIRE(wanderer.registry.OpenHandles() == static_cast<int>(wanderer.open.size()));
        }
        CHECK(wanderer.registry.Dump().size() > 1);
    }
}

TEST_CASE("the same calls leave the same journal and the same registry") {
    Wanderer first(99);
    Wanderer second(99);
    for (int step = 0; step < 500; ++step) {
        first.Step();
        second.Step();
    }
    CHECK(first.machine.journal.Text() == second.machine.journal.Text());
    CHECK(first.registry.Dump() == second.registry.Dump());
    CHECK(first.machine.journal.Count() == first.machine.journal.Lines().size());
}

TEST_CASE("calls that are made to fail change nothing, whatever their arguments") {
    Wanderer wanderer(7);
    wanderer.registry.Put(HKLM, "A\\B", "b", {Registry::Binary, {1}});
    wanderer.registry.Put(HKCU, "ä", "", {Registry::Binary, {2}});
    const auto before = wanderer.registry.Dump();
    for (const char* call :
         {"RegSetValueExA", "RegCreateKeyExA", "RegDeleteValueA", "RegDeleteKeyA"}) {
        wanderer.machine.faults.FailAll(call, Registry::AccessDenied);
    }
    for (int step = 0; step < 1000; ++step) wanderer.Step();
    CHECK(wanderer.registry.Dump() == before);
}
