// One loop a situation over every row, against the golden table's own statement of the rules.
#include <doctest/doctest.h>

#include "tweaks/catalogue.h"
#include "tweaks/golden.h"

using namespace tweak_tests;

namespace {

void Seed(Options& options, const Fact& fact, const std::string& side) {
    if (auto value = Outcome(side, "Text von " + fact.value)) {
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, *value);
    }
}

auto Stored(const Options& options, const Fact& fact) {
    return options.machine.registry.Value(fact.Root(), fact.key, fact.value);
}

int ExpectedState(const Options& options, const std::string& checkBox) {
    for (const Fact& fact : FactsDecidedBy(checkBox)) {
        if (fact.IsCheckBox() && !ReadsAsOn(fact, Stored(options, fact))) return 0;
    }
    return 1;
}

std::string AbsentState(const std::string& checkBox) {
    std::string state;
    for (const Fact& fact : FactsDecidedBy(checkBox)) {
        const std::size_t at = fact.read.find("; absent: ");
        if (at != std::string::npos) state = fact.read.substr(at + 10);
    }
    return state;
}

void WriteAlone(Options& options, const std::string& name) {
    registry::Registry registry(options.machine.registry, options.machine.locale);
    tweaks::WriteOption({options.form, registry, options.machine.locale.Signs()},
                        *tweaks::FindOption(name));
}

// What is in the registry when the side of every fact has been carried out and nothing else.
std::map<std::string, StoredValue> DumpWith(const std::vector<Fact>& facts,
                                            std::string Fact::*side) {
    platform::simulated::Machine machine;
    for (const Fact& fact : facts) {
        if (auto value = Outcome(fact.*side, "Text von " + fact.value)) {
            machine.registry.Put(fact.Root(), fact.key, fact.value, *value);
        } else if (machine.registry.HasKey(fact.Root(), fact.key)) {
            machine.registry.Erase(fact.Root(), fact.key, fact.value);
        }
    }
    return machine.registry.Dump();
}

// The text that the fact compares with; "1" where it compares with none.
std::string PassingText(const Fact& fact) {
    const std::size_t at = fact.read.find("= ");
    if (at == std::string::npos) return "1";
    std::string text = fact.read.substr(at + 2, fact.read.find(';') - at - 2);
    std::erase(text, '"');
    return text;
}

// The wrong ways to store something under an option's name.
std::vector<StoredValue> WrongTypes(const std::string& passing) {
    std::vector<StoredValue> values = {
        TextValue(passing),     BareTextValue("0" + passing),
        TextValue("kein Wert"), TextValue(""),
        DwordValue(78),         DwordValue(0),
        DwordValue(0xFFFFFFFF),
    };
    StoredValue text = TextValue(passing);
    for (std::uint32_t type : {0u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 11u, 99u}) {
        text.type = type;
        values.push_back(text);
    }
    return values;
}

}  // namespace

TEST_CASE("an absent value gives every check box its absent state") {
    for (const std::string& name : GoldenCheckBoxes()) {
        CAPTURE(name);
        Options options;
        options.form.Check(name).SetValue(AbsentState(name) == "on" ? 0 : 1);
        options.passes.Read();
        CHECK(options.State(name) == (AbsentState(name) == "on" ? 1 : 0));
        CHECK(options.State(name) == ExpectedState(options, name));
    }
}

TEST_CASE("what the on side writes reads as on, and what the off side writes reads as off") {
    for (const std::string& name : GoldenCheckBoxes()) {
        CAPTURE(name);
        for (int state : {1, 0}) {
            Options options;
            for (const Fact& fact : FactsDecidedBy(name)) {
                Seed(options, fact, state == 1 ? fact.on : fact.off);
            }
            options.form.Check(name).SetValue(1 - state);
            options.passes.Read();
            CHECK(options.State(name) == state);
        }
    }
}

TEST_CASE("a value of the wrong type reads as its text says") {
    for (const std::string& name : GoldenCheckBoxes()) {
        for (const Fact& fact : FactsDecidedBy(name)) {
            if (!fact.IsCheckBox()) continue;
            const std::string passing = PassingText(fact);
            for (const StoredValue& wrong : WrongTypes(passing)) {
                CAPTURE(LineOf(fact));
                CAPTURE(wrong.type);
                CAPTURE(wrong.bytes);
                Options options;
                for (const Fact& other : FactsDecidedBy(name)) Seed(options, other, other.on);
                options.machine.registry.Put(fact.Root(), fact.key, fact.value, wrong);
                options.passes.Read();
                CHECK(options.State(name) == ExpectedState(options, name));
            }
        }
    }
}

TEST_CASE("a denied key gives every check box its absent state") {
    for (const std::string& name : GoldenCheckBoxes()) {
        for (std::uint32_t rights : {Service::MayDoAll, Service::MaySetValue}) {
            CAPTURE(name);
            Options options;
            for (const Fact& fact : FactsDecidedBy(name)) {
                Seed(options, fact, AbsentState(name) == "on" ? fact.off : fact.on);
                options.machine.registry.Deny(fact.Root(), fact.key, rights);
            }
            options.passes.Read();
            CHECK(options.State(name) == (AbsentState(name) == "on" ? 1 : 0));
        }
    }
}

TEST_CASE(
    "every check box writes exactly what the table says, on an empty and on a full registry") {
    for (const std::string& name : GoldenCheckBoxes()) {
        CAPTURE(name);
        const auto facts = FactsDecidedBy(name);
        for (auto side : {&Fact::on, &Fact::off}) {
            Options options;
            for (const Fact& fact : facts) {
                if (!fact.IsCheckBox())
                    options.form.Box(fact.control).SetText("Text von " + fact.value);
                // What limits a side is tested by itself.
                if (fact.off.ends_with(" if key present")) {
                    options.machine.registry.MakeKey(fact.Root(), fact.key);
                }
            }
            options.form.Check(name).SetValue(side == &Fact::on ? 1 : 0);
            WriteAlone(options, name);
            CHECK(options.machine.registry.Dump() == DumpWith(facts, side));

            // Once more over what the other side has left.
            for (const Fact& fact : facts) {
                Seed(options, fact, side == &Fact::on ? fact.off : fact.on);
            }
            WriteAlone(options, name);
            for (const Fact& fact : facts) {
                CHECK(Stored(options, fact) == Outcome(fact.*side, "Text von " + fact.value));
            }
        }
    }
}

TEST_CASE("a denied key is not written by either side of any check box") {
    for (const std::string& name : GoldenCheckBoxes()) {
        CAPTURE(name);
        for (int state : {1, 0}) {
            Options options;
            for (const Fact& fact : FactsDecidedBy(name)) {
                Seed(options, fact, state == 1 ? fact.off : fact.on);
                options.machine.registry.MakeKey(fact.Root(), fact.key);
                options.machine.registry.Deny(fact.Root(), fact.key);
            }
            const auto before = options.machine.registry.Dump();
            options.form.Check(name).SetValue(state);
            WriteAlone(options, name);
            CHECK(options.machine.registry.Dump() == before);
            CHECK(options.machine.registry.OpenHandles() == 0);
        }
    }
}

namespace {

std::vector<Fact> GoldenBoxes() {
    std::vector<Fact> boxes;
    for (const Fact& fact : GoldenFacts()) {
        if (fact.read == "the text") boxes.push_back(fact);
    }
    return boxes;
}

// Boxes with a limit keep less.
std::string ShortText(const Fact&) {
    return "9ä";
}

}  // namespace

TEST_CASE("an absent value empties every edit field") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        options.form.Box(fact.control).SetText("x");
        options.passes.Read();
        CHECK(options.Text(fact.control) == "");
    }
}

TEST_CASE("every edit field takes the value's text as it is, whatever the type") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue(ShortText(fact)));
        options.passes.Read();
        CHECK(options.Text(fact.control) == ShortText(fact));
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, DwordValue(23));
        options.passes.Read();
        CHECK(options.Text(fact.control) == "23");
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, {0, {65, 66}});
        options.passes.Read();
        CHECK(options.Text(fact.control) == "");
    }
}

TEST_CASE("a denied key empties every edit field") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("x"));
        options.machine.registry.Deny(fact.Root(), fact.key);
        options.form.Box(fact.control).SetText("y");
        options.passes.Read();
        CHECK(options.Text(fact.control) == "");
    }
}

TEST_CASE("every edit field is written as text, also when empty, and a display never") {
    for (const Fact& fact : GoldenBoxes()) {
        for (const std::string& text : {ShortText(fact), std::string()}) {
            CAPTURE(fact.control);
            Options options;
            options.machine.registry.Put(fact.Root(), fact.key, fact.value, DwordValue(1));
            options.form.Box(fact.control).SetText(text);
            WriteAlone(options, fact.control);
            CHECK(Stored(options, fact) ==
                  (fact.kind == "display" ? DwordValue(1) : BareTextValue(text)));
        }
    }
}
