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
        for (std::size_t size : {0u, 1u, 3u, 4u, 5u, 8u, 255u, 65536u}) {
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

// Strange data may end a read early only where a number does not fit its slider.
void ReadRow(Options& options, const tweaks::Option& row) {
    registry::Registry registry(options.machine.registry, options.machine.locale);
    try {
        tweaks::ReadOption({options.form, registry, options.machine.locale.Signs()}, row);
    } catch (const runtime::Failure& failure) {
        CHECK(row.control == "txtStartmenu");
        CHECK(failure.number == runtime::Overflow);
    }
}

void PutEverything(Options& options) {
    for (const Fact& fact : GoldenFacts()) {
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("1"));
    }
    options.machine.registry.Put(Service::LocalMachine, "SOFTWARE\\Fremd", "Wert", TextValue("x"));
}

// The machine's services with another registry in front.
platform::Machine With(platform::Registry& registry, const platform::Machine& real) {
    return {.forms = real.forms,
            .registry = registry,
            .settings = real.settings,
            .files = real.files,
            .processes = real.processes,
            .session = real.session,
            .autostart = real.autostart,
            .system = real.system,
            .facts = real.facts,
            .memory = real.memory,
            .clock = real.clock,
            .locale = real.locale,
            .messages = real.messages,
            .tray = real.tray,
            .program = real.program};
}

// Whether a dump holds nothing but the facts' values, the foreign one and their keys' levels.
bool HoldsOnlyOwnValues(const std::map<std::string, StoredValue>& dump) {
    std::set<std::string> own = {"hklm\\software\\fremd|wert"};
    for (const Fact& fact : GoldenFacts()) {
        own.insert(runtime::ToLower(fact.root + "\\" + fact.key + "|" + fact.value));
    }
    return std::all_of(dump.begin(), dump.end(), [&](const auto& entry) {
        return entry.first.ends_with('|') || own.contains(runtime::ToLower(entry.first));
    });
}

}  // namespace

TEST_CASE("a value of any type and size does no harm to the row that reads it") {
    const auto strange = StrangeValues();
    for (const Fact& fact : GoldenFacts()) {
        CAPTURE(LineOf(fact));
        Options options;
        PutEverything(options);
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

TEST_CASE("a read pass survives the failure of any one call and changes nothing") {
    for (int code : {Service::FileNotFound, Service::AccessDenied, Service::InvalidHandle,
                     Service::MoreData}) {
        CAPTURE(code);
        std::size_t calls = 1;
        for (std::size_t n = 1; n <= calls; ++n) {
            CAPTURE(n);
            Options options;
            PutEverything(options);
            const auto before = options.machine.registry.Dump();
            options.machine.journal.Clear();
            options.machine.faults.FailNth(static_cast<int>(n), code);
            options.passes.Read();
            CHECK(options.form.Pointer() == toolkit::DefaultPointer);
            CHECK(options.machine.registry.Dump() == before);
            calls = options.machine.journal.Count();
        }
        CHECK(calls > 60);
    }
}

TEST_CASE("a write pass survives the failure of any one call and touches only its own values") {
    std::size_t calls = 1;
    for (std::size_t n = 1; n <= calls; ++n) {
        CAPTURE(n);
        Options options;
        PutEverything(options);
        options.machine.journal.Clear();
        options.machine.faults.FailNth(static_cast<int>(n), Service::AccessDenied);
        options.passes.Write();
        CHECK(options.form.Pointer() == toolkit::DefaultPointer);
        CHECK(HoldsOnlyOwnValues(options.machine.registry.Dump()));
        CHECK(options.machine.registry.Value(Service::LocalMachine, "SOFTWARE\\Fremd", "Wert") ==
              TextValue("x"));
        calls = options.machine.journal.Count();
    }
    CHECK(calls > 200);
}

TEST_CASE("keys that vanish between any two calls do no harm to a read pass") {
    for (int n = 1, done = 0; !done; ++n) {
        CAPTURE(n);
        Options options;
        PutEverything(options);
        registry_tests::Restless restless(options.machine.registry);
        tweaks::Passes passes(options.form, With(restless, options.machine.services));
        restless.After(n, [&] {
            options.machine.registry.EraseKey(Service::LocalMachine, "SYSTEM");
            options.machine.registry.EraseKey(Service::LocalMachine, "SOFTWARE");
            options.machine.registry.EraseKey(Service::CurrentUser, "Control Panel");
        });
        passes.Read();
        CHECK(options.form.Pointer() == toolkit::DefaultPointer);
        done = !restless.HasActed();
    }
}

TEST_CASE("keys that vanish between any two calls do no harm to a write pass") {
    for (int n = 1, done = 0; !done; ++n) {
        CAPTURE(n);
        Options options;
        PutEverything(options);
        registry_tests::Restless restless(options.machine.registry);
        tweaks::Passes passes(options.form, With(restless, options.machine.services));
        restless.After(n, [&] {
            options.machine.registry.EraseKey(Service::LocalMachine, "SYSTEM");
            options.machine.registry.EraseKey(Service::LocalMachine, "SOFTWARE");
            options.machine.registry.EraseKey(Service::CurrentUser, "Control Panel");
        });
        passes.Write();
        CHECK(options.form.Pointer() == toolkit::DefaultPointer);
        CHECK(HoldsOnlyOwnValues(options.machine.registry.Dump()));
        done = !restless.HasActed();
    }
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
