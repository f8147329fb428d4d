#include <doctest/doctest.h>

#include <iterator>
#include <random>

#include "dryrun/overmachine.h"
#include "runtime/text.h"

using namespace dryrun_test;

namespace {

using Dump = std::map<std::string, StoredValue>;

std::string InSmallLetters(std::string place) {
    for (const auto& [capital, small] : {std::pair("Š", "š"), std::pair("Ÿ", "ÿ")}) {
        for (auto at = place.find(capital); at != std::string::npos; at = place.find(capital)) {
            place.replace(at, std::string_view(capital).size(), small);
        }
    }
    return runtime::ToLower(place);
}

// Names are the same in any case, so a dump in small letters tells the same registry.
Dump InSmallLetters(const Dump& dump) {
    Dump small;
    for (const auto& [place, value] : dump) small.emplace(InSmallLetters(place), value);
    return small;
}

// Does the same at random to two equal registries, to one of them through a dry run.
struct Walk {
    explicit Walk(unsigned seed) : dice(seed) {
        for (int i = 0; i < 12; ++i) Furnish();
        for (int i = 0; i < 3; ++i) Deny();
        before = over.inner.registry.Dump();
        over.inner.journal.Record(false);
        direct.journal.Record(false);
    }

    unsigned Throw(unsigned sides) { return static_cast<unsigned>(dice() % sides); }

    std::string Name() {
        static constexpr const char* Names[] = {"A", "a", "b",  "B",      "c",   "ä",     "Ä",
                                                "",  "d", "€x", "ÿ",      "Ÿ",   "_",     "日",
                                                "Z", "š", "Š",  "a\\b\\", "\\A", "b\\\\c"};
        if (Throw(60) == 0) return std::string(250 + Throw(8), 'q');
        return Names[Throw(std::size(Names))];
    }
    std::string Path() {
        std::string path = Name();
        for (unsigned more = Throw(3); more > 0; --more) path += "\\" + Name();
        return path;
    }
    StoredValue Value() {
        StoredValue value{Throw(5), std::vector<std::uint8_t>(Throw(4))};
        for (auto& byte : value.bytes) byte = static_cast<std::uint8_t>(Throw(2));
        return value;
    }
    std::uint32_t Access() {
        return Throw(3) == 0 ? Throw(64) : static_cast<unsigned>(Registry::MayDoAll);
    }

    void Furnish() {
        const Registry::Key root = HKCR + Throw(3);
        const std::string path = Path();
        const std::string name = Name();
        const StoredValue value = Value();
        // What stands behind a key whose name is not told, nobody knows but the registry itself.
        if (path.find(std::string(255, 'q')) != std::string::npos) return;
        for (auto* registry : {&direct.registry, &over.inner.registry}) {
            registry->Put(root, path, name, value);
        }
    }
    // Of a key that is there, as its denial is known by opening it.
    void Deny() {
        const Registry::Key root = HKCR + Throw(3);
        const std::string path = Path();
        if (!direct.registry.HasKey(root, path)) return;
        const std::uint32_t some[] = {Registry::MayDoAll, Registry::MaySetValue,
                                      Registry::MayCreateSubKey, Registry::MayEnumerateSubKeys};
        const std::uint32_t rights = some[Throw(std::size(some))];
        for (auto* registry : {&direct.registry, &over.inner.registry}) {
            registry->Deny(root, path, rights);
        }
    }

    // The place of a handle among those that are open; beyond them roots and a handle that is none.
    std::size_t AnyKey() {
        const unsigned choice = Throw(8);
        if (choice == 0) return keys.size() + 3;
        if (choice < 4 || keys.empty()) return keys.size() + Throw(3);
        return Throw(static_cast<unsigned>(keys.size()));
    }
    Registry::Key KeyAt(std::size_t place, bool dry) const {
        if (place < keys.size()) return dry ? keys[place].second : keys[place].first;
        const std::size_t root = place - keys.size();
        return root < 3 ? HKCR + static_cast<Registry::Key>(root) : 0x7FFFFFF1;
    }

    struct Answer {
        Registry::Result result = 0;
        std::uint32_t number = 0;
        std::uint32_t size = 0;
        std::string text = {};

        bool operator==(const Answer&) const = default;
    };
    // What both answer must be equal; a success is told.
    template <typename Call>
    bool Same(std::size_t place, Call call) {
        const Answer plain = call(static_cast<Registry&>(direct.registry), KeyAt(place, false));
        const Answer dry = call(static_cast<Registry&>(over.registry), KeyAt(place, true));
        CHECK(dry.result == plain.result);
        CHECK(dry.number == plain.number);
        CHECK(dry.size == plain.size);
        CHECK(dry.text == plain.text);
        REQUIRE((dry == plain));
        results.insert(plain.result);
        return plain.result == Registry::Success;
    }

    void OpenOrCreate() {
        const bool create = Throw(2) == 0;
        const std::string path = Path();
        const std::uint32_t access = Access();
        Registry::Key opened[2] = {};
        int side = 0;
        const bool opens = Same(AnyKey(), [&](Registry& registry, Registry::Key key) {
            Registry::Key& to = opened[side++];
            return Answer{create ? registry.Create(key, path, access, to)
                                 : registry.Open(key, path, access, to)};
        });
        if (opens) keys.emplace_back(opened[0], opened[1]);
    }
    void Set() {
        const std::string name = Name();
        const StoredValue value = Value();
        Same(AnyKey(), [&](Registry& registry, Registry::Key key) {
            return Answer{registry.Set(key, name, value.type, value.bytes.data(),
                                       static_cast<std::uint32_t>(value.bytes.size()))};
        });
    }
    void Ask() {
        const std::string name = Name();
        const std::uint32_t room = Throw(6);
        Same(AnyKey(), [&](Registry& registry, Registry::Key key) {
            Answer answer;
            std::vector<std::uint8_t> buffer(room + 1, 0xA5);
            answer.size = room;
            answer.result = registry.Query(key, name, answer.number,
                                           room == 5 ? nullptr : buffer.data(), answer.size);
            // Of a buffer that is too small nothing is said.
            if (answer.result == Registry::Success) {
                answer.text.assign(buffer.begin(), buffer.end());
            }
            return answer;
        });
    }
    void Enumerate() {
        const unsigned what = Throw(3);
        const std::uint32_t index = Throw(7);
        Same(AnyKey(), [&](Registry& registry, Registry::Key key) {
            Answer answer;
            if (what == 0) answer.result = registry.EnumerateKey(key, index, answer.text);
            if (what == 1) answer.result = registry.LongestValueName(key, answer.number);
            if (what == 2) answer.result = registry.EnumerateValue(key, index, 3, answer.text);
            return answer;
        });
    }
    void Remove() {
        const bool removesKey = Throw(2) == 0;
        const std::string name = removesKey ? Path() : Name();
        Same(AnyKey(), [&](Registry& registry, Registry::Key key) {
            return Answer{removesKey ? registry.RemoveKey(key, name)
                                     : registry.RemoveValue(key, name)};
        });
    }
    void CloseOne() {
        const std::size_t place = AnyKey();
        if (Same(place, [](Registry& registry,
                           Registry::Key key) { return Answer{registry.Close(key)}; }) &&
            place < keys.size()) {
            keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(place));
        }
    }

    void Step() {
        switch (Throw(9)) {
            case 0:
            case 1:
                return OpenOrCreate();
            case 2:
                return Set();
            case 3:
                return Ask();
            case 4:
                return Enumerate();
            case 5:
            case 6:
                return Remove();
            default:
                return keys.size() > 12 ? CloseOne() : OpenOrCreate();
        }
    }

    std::mt19937 dice;
    platform::simulated::Machine direct;
    OverMachine over;
    Dump before;
    std::vector<std::pair<Registry::Key, Registry::Key>> keys;
    std::set<Registry::Result> results;
};

}  // namespace

TEST_CASE("a dry run answers any calls as the registry itself, and its changes lead to the same") {
    std::size_t changes = 0;
    std::set<Registry::Result> results;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        CAPTURE(seed);
        Walk walk(seed);
        for (int step = 0; step < 2000; ++step) {
            CAPTURE(step);
            walk.Step();
        }
        REQUIRE((walk.over.inner.registry.Dump() == walk.before));
        const auto pending = walk.over.registry.Changes();
        changes += pending.size();
        results.merge(walk.results);
        CarryOut(pending, walk.over.inner.registry);
        REQUIRE((InSmallLetters(walk.over.inner.registry.Dump()) ==
                 InSmallLetters(walk.direct.registry.Dump())));
    }
    CHECK(changes > 1000);
    CHECK(results == std::set<Registry::Result>{0, 2, 5, 6, 87, 161, 234, 259, 1018});
}
