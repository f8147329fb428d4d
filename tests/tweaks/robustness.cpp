// Whatever lies in the registry, and whatever happens to it meanwhile, a pass comes to its end and
// touches nothing that is not its own.
#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "registry/restless.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "tweaks/catalogue.h"
#include "tweaks/golden.h"

using namespace tweak_tests;

namespace {

std::vector<StoredValue> StrangeValues() {
    std::vector<StoredValue> values;
    for (std::uint32_t type :
         {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 0xFFFFFFFFu}) {
        for (std::size_t size : {0u, 1u, 3u, 4u, 5u, 8u, 255u, 4096u}) {
            for (std::uint8_t byte : {0x00, 0x39, 0xFF}) {
                values.push_back({type, std::vector<std::uint8_t>(size, byte)});
            }
        }
    }
    return values;
}

// The row that reads the fact's value.
const tweaks::Option& RowOf(const Fact& fact) {
    const std::size_t with = fact.on.find(" with ");
    return *tweaks::FindOption(with == std::string::npos ? fact.control : fact.on.substr(with + 6));
}

// Takes one option's step of a pass, on the given registry.
template <typename OptionStep>
void Take(Options& options, platform::Registry& service, OptionStep step,
          const tweaks::Option& row) {
    registry::Registry registry(service, options.machine.locale);
    step({options.form, registry, options.machine.locale.Signs(), options.machine.services}, row);
}

// Strange data may end a read early only where a number does not fit its slider.
void ReadRow(Options& options, const tweaks::Option& row) {
    try {
        Take(options, options.machine.registry, tweaks::ReadOption, row);
    } catch (const runtime::Failure& failure) {
        CHECK(row.control == "txtStartmenu");
        CHECK(failure.number == runtime::Overflow);
    }
}

template <typename Action>
void ForEachRow(Action action) {
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const tweaks::Option& row : page.options) {
            CAPTURE(row.control);
            action(row);
        }
    }
}

void PutAll(Options& options, const std::vector<Fact>& facts) {
    for (const Fact& fact : facts) {
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("1"));
    }
    options.machine.registry.Put(Service::LocalMachine, "SOFTWARE\\Fremd", "Wert", TextValue("x"));
}

// Whether a dump holds nothing but the facts' values, the foreign one and their keys' levels.
bool HoldsOnly(const std::vector<Fact>& facts, const std::map<std::string, StoredValue>& dump) {
    std::set<std::string> own = {"hklm\\software\\fremd|wert"};
    for (const Fact& fact : facts) {
        std::string key = fact.key;
        if (key.ends_with('\\')) key.pop_back();
        own.insert(runtime::ToLower(fact.root + "\\" + key + "|" + fact.value));
    }
    return std::all_of(dump.begin(), dump.end(), [&](const auto& entry) {
        return entry.first.ends_with('|') || own.contains(runtime::ToLower(entry.first));
    });
}

}  // namespace

TEST_CASE("a value of any type and size does no harm to the row that reads it") {
    const auto strange = StrangeValues();
    for (const Fact& fact : GoldenFacts()) {
        if (fact.read == "not read") continue;
        CAPTURE(LineOf(fact));
        Options options;
        PutAll(options, GoldenFacts());
        options.machine.journal.Record(false);
        const auto before = options.machine.registry.Dump();
        for (const StoredValue& value : strange) {
            options.machine.registry.Put(fact.Root(), fact.key, fact.value, value);
            ReadRow(options, RowOf(fact));
            REQUIRE(options.machine.registry.Value(fact.Root(), fact.key, fact.value) == value);
        }
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("1"));
        CHECK(options.machine.registry.Dump() == before);
    }
}

TEST_CASE("a read survives the failure of any one of its calls and changes nothing") {
    Options options;
    PutAll(options, GoldenFacts());
    const auto before = options.machine.registry.Dump();
    ForEachRow([&](const tweaks::Option& row) {
        for (int code : {Service::FileNotFound, Service::AccessDenied, Service::InvalidHandle,
                         Service::MoreData}) {
            CAPTURE(code);
            std::size_t calls = 1;
            for (std::size_t n = 1; n <= calls; ++n) {
                CAPTURE(n);
                options.machine.journal.Clear();
                options.machine.faults.FailNth(static_cast<int>(n), code);
                Take(options, options.machine.registry, tweaks::ReadOption, row);
                calls = options.machine.journal.Count();
            }
            CHECK(options.machine.registry.Dump() == before);
        }
    });
}

TEST_CASE("a write survives the failure of any one of its calls and touches only its own values") {
    std::size_t all = 0;
    ForEachRow([&](const tweaks::Option& row) {
        const auto facts = FactsDecidedBy(std::string(row.control));
        for (int state : {1, 0}) {
            CAPTURE(state);
            Options options;
            options.FillNumbers();
            if (row.IsCheckBox()) options.form.Check(row.control).SetValue(state);
            std::size_t calls = 1;
            for (std::size_t n = 1; n <= calls; ++n) {
                CAPTURE(n);
                PutAll(options, facts);
                options.machine.journal.Clear();
                options.machine.faults.FailNth(static_cast<int>(n), Service::AccessDenied);
                // A command that does not start is a failure, a registry call never.
                const auto write = [&] {
                    Take(options, options.machine.registry, tweaks::WriteOption, row);
                };
                if (!runtime::Skip(write)) CHECK(row.control == "chkSHMediaDLL");
                CHECK(HoldsOnly(facts, options.machine.registry.Dump()));
                CHECK(options.machine.registry.Value(Service::LocalMachine, "SOFTWARE\\Fremd",
                                                     "Wert") == TextValue("x"));
                calls = options.machine.journal.Count();
            }
            all += calls;
        }
    });
    CHECK(all > 400);
}

namespace {

// Takes the step of every row once for each of its calls, after which the keys vanish.
template <typename OptionStep>
void WhileKeysVanish(OptionStep step) {
    ForEachRow([&](const tweaks::Option& row) {
        const auto facts = FactsDecidedBy(std::string(row.control));
        Options options;
        for (int n = 1, done = 0; !done; ++n) {
            CAPTURE(n);
            PutAll(options, facts);
            registry_tests::Restless restless(options.machine.registry);
            restless.After(n, [&] {
                for (const Fact& fact : facts) {
                    options.machine.registry.EraseKey(fact.Root(), fact.key);
                }
            });
            Take(options, restless, step, row);
            CHECK(HoldsOnly(facts, options.machine.registry.Dump()));
            done = !restless.HasActed();
        }
    });
}

}  // namespace

TEST_CASE("keys that vanish between any two calls do no harm to a read") {
    WhileKeysVanish(tweaks::ReadOption);
}

TEST_CASE("keys that vanish between any two calls do no harm to a write") {
    WhileKeysVanish(tweaks::WriteOption);
}

TEST_CASE("any text of a box is stored as its characters in the ANSI code page") {
    for (const std::string& text :
         {std::string("\"a\",b"), std::string("äöü€ß"), std::string("日本"),
          std::string(65536, 'x'), std::string("a\0b", 3), std::string("\xFF\xC3")}) {
        CAPTURE(text.size());
        Options options;
        options.form.Box("txtOSVersion").SetText(text);
        options.passes.Write();
        const auto stored = options.OfMachine(SystemKey, "ProductName");
        REQUIRE(stored);
        CHECK(std::string(stored->bytes.begin(), stored->bytes.end()) ==
              options.machine.locale.ToAnsi(text));
    }
}
