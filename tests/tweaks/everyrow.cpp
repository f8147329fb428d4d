// One loop a situation over every row, against the golden table's own statement of the rules.
#include <doctest/doctest.h>

#include "platform/messages.h"
#include "tweaks/catalogue.h"
#include "tweaks/controltext.h"
#include "tweaks/golden.h"

using namespace tweak_tests;

namespace {

// Fills every box that the facts name with a text that is no value's, so that its way can be seen.
// A box whose number is written, or that is tested for one, gets one.
void FillBoxes(Options& options, const std::vector<Fact>& facts) {
    for (const Fact& fact : facts) {
        if (fact.IsCheckBox()) continue;
        const bool number = fact.on.find("number") != std::string::npos ||
                            fact.on.find("numeric") != std::string::npos;
        tweaks::SetTextOfControl(options.form, fact.control, number ? "1492" : "9ä");
    }
}

auto Stored(const Options& options, const Fact& fact) {
    return options.machine.registry.Value(fact.Root(), fact.key, fact.value);
}

void MakeKeys(Options& options, const std::vector<Fact>& facts) {
    for (const Fact& fact : facts) options.machine.registry.MakeKey(fact.Root(), fact.key);
}

int ExpectedState(const Options& options, const std::string& checkBox) {
    for (const Fact& fact : FactsDecidedBy(checkBox)) {
        if (!ReadsAsOn(fact, Stored(options, fact))) return 0;
    }
    return 1;
}

// One option's step of a pass, without what other options do to its control.
template <typename OptionStep>
void TakeAlone(Options& options, const std::string& name, OptionStep step) {
    registry::Registry registry(options.machine.registry, options.machine.locale);
    step({options.form, registry, options.machine.locale.Signs(), options.machine.services},
         *tweaks::FindOption(name));
}

void ReadAlone(Options& options, const std::string& name) {
    TakeAlone(options, name, tweaks::ReadOption);
}

void WriteAlone(Options& options, const std::string& name) {
    TakeAlone(options, name, tweaks::WriteOption);
}

// Puts the value that the side of each fact leaves, wherever it is limited to.
void Seed(Options& options, const std::vector<Fact>& facts, FactSide side) {
    MakeKeys(options, facts);
    FillBoxes(options, facts);
    Apply(facts, side, options);
}

// The text that the fact compares with; "1" where it compares with none.
std::string PassingText(const Fact& fact) {
    const std::size_t at = fact.read.find("= ");
    if (at == std::string::npos) return "1";
    std::string text = fact.read.substr(at + 2, fact.read.find_first_of(",;") - at - 2);
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
    for (const std::string& name : ReadCheckBoxes()) {
        CAPTURE(name);
        Options options;
        options.form.Check(name).SetValue(AbsentState(name) == "on" ? 0 : 1);
        ReadAlone(options, name);
        CHECK(options.State(name) == (AbsentState(name) == "on" ? 1 : 0));
        CHECK(options.State(name) == ExpectedState(options, name));
    }
}

TEST_CASE("what Windows does where a value is absent is told of every check box that reads one") {
    std::vector<std::string> read;
    for (const std::string& name : GoldenCheckBoxes()) {
        if (AbsentState(name) != "") read.push_back(name);
    }
    std::vector<std::string> told;
    for (const auto& [name, windows] : WindowsDefaults()) told.push_back(name);
    CHECK(told == read);
}

// A first Apply changes there what Windows did so far.
TEST_CASE_FIXTURE(Options, "an absent value reads as what Windows does but for the boxes told") {
    passes.Read();
    std::string otherwise;
    for (const auto& [name, windows] : WindowsDefaults()) {
        if (State(name) != windows) otherwise += name + (windows ? " off\n" : " on\n");
    }
    std::string told;
    for (const auto& [name, shown] : ReadingOtherwiseThanWindows()) {
        told += name + (shown ? " on\n" : " off\n");
    }
    CHECK(otherwise == told);
    CHECK(otherwise != "");
}

TEST_CASE("what a side has written reads as the table says") {
    for (const std::string& name : ReadCheckBoxes()) {
        CAPTURE(name);
        for (auto side : {&Fact::on, &Fact::off}) {
            Options options;
            Seed(options, FactsDecidedBy(name), side);
            const int expected = ExpectedState(options, name);
            options.form.Check(name).SetValue(1 - expected);
            ReadAlone(options, name);
            CHECK(options.State(name) == expected);
        }
    }
}

// Each of these asks for another place or value than the one it writes, on purpose.
TEST_CASE("what a side has written reads as that side but for some options") {
    std::string odd;
    for (const std::string& name : ReadCheckBoxes()) {
        for (int state : {1, 0}) {
            Options options;
            const auto facts = FactsDecidedBy(name);
            Seed(options, facts, state == 1 ? &Fact::off : &Fact::on);
            options.form.Check(name).SetValue(state);
            WriteAlone(options, name);
            ReadAlone(options, name);
            if (options.State(name) != state) odd += name + (state == 1 ? " on\n" : " off\n");
        }
    }
    CHECK(odd ==
          "chkEncryptionContext off\n"
          "chkImagePreview on\n"
          "chkWatsonXP on\n"
          "chkWindowsDesktop on\n"
          "chkScriptDebugging on\n"
          "chkIEExtensions on\n"
          "chkOutlookTray on\n");
}

TEST_CASE("a value of the wrong type reads as its text says") {
    for (const std::string& name : ReadCheckBoxes()) {
        for (const Fact& fact : FactsDecidedBy(name)) {
            if (!fact.IsCheckBox()) continue;
            CAPTURE(LineOf(fact));
            Options options;
            Seed(options, FactsDecidedBy(name), &Fact::on);
            for (const StoredValue& wrong : WrongTypes(PassingText(fact))) {
                CAPTURE(wrong.type);
                CAPTURE(wrong.bytes);
                options.machine.registry.Put(fact.Root(), fact.key, fact.value, wrong);
                ReadAlone(options, name);
                CHECK(options.State(name) == ExpectedState(options, name));
            }
        }
    }
}

TEST_CASE("a denied key gives every check box its absent state") {
    for (const std::string& name : ReadCheckBoxes()) {
        for (std::uint32_t rights : {Service::MayDoAll, Service::MaySetValue}) {
            CAPTURE(name);
            Options options;
            const auto facts = FactsDecidedBy(name);
            Seed(options, facts, AbsentState(name) == "on" ? &Fact::off : &Fact::on);
            MakeKeys(options, facts);
            for (const Fact& fact : facts) {
                options.machine.registry.Deny(fact.Root(), fact.key, rights);
            }
            ReadAlone(options, name);
            CHECK(options.State(name) == (AbsentState(name) == "on" ? 1 : 0));
        }
    }
}

// The registries that a side is carried out on.
enum class Start { Empty, KeysAlone, WrittenOn, WrittenOff };
constexpr Start Starts[] = {Start::Empty, Start::KeysAlone, Start::WrittenOn, Start::WrittenOff};

namespace {

void Prepare(Options& options, const std::vector<Fact>& facts, Start start) {
    if (start == Start::KeysAlone) MakeKeys(options, facts);
    if (start == Start::WrittenOn) Seed(options, facts, &Fact::on);
    if (start == Start::WrittenOff) Seed(options, facts, &Fact::off);
    FillBoxes(options, facts);
}

}  // namespace

TEST_CASE("every check box writes exactly what the table says, whatever was there before") {
    for (const std::string& name : GoldenCheckBoxes()) {
        for (Start start : Starts) {
            for (int state : {1, 0}) {
                CAPTURE(name);
                CAPTURE(static_cast<int>(start));
                CAPTURE(state);
                const auto facts = FactsDecidedBy(name);
                Options options;
                Prepare(options, facts, start);
                options.form.Check(name).SetValue(state);
                WriteAlone(options, name);
                Options expected;
                Prepare(expected, facts, start);
                Apply(facts, state == 1 ? &Fact::on : &Fact::off, expected);
                CHECK(options.machine.registry.Dump() == expected.machine.registry.Dump());
            }
        }
    }
}

TEST_CASE("a denied key is not written by either side of any check box") {
    for (const std::string& name : GoldenCheckBoxes()) {
        CAPTURE(name);
        for (int state : {1, 0}) {
            Options options;
            const auto facts = FactsDecidedBy(name);
            Seed(options, facts, state == 1 ? &Fact::off : &Fact::on);
            MakeKeys(options, facts);
            for (const Fact& fact : facts) options.machine.registry.Deny(fact.Root(), fact.key);
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

void SetText(Options& options, const Fact& fact, const std::string& text) {
    tweaks::SetTextOfControl(options.form, fact.control, text);
}

std::string TextShown(const Options& options, const Fact& fact) {
    return tweaks::TextOfControl(options.form, fact.control);
}

std::vector<Fact> FactsOfControl(const std::string& control) {
    std::vector<Fact> facts;
    for (const Fact& fact : GoldenFacts()) {
        if (fact.control == control) facts.push_back(fact);
    }
    return facts;
}

// Boxes with a limit keep less.
constexpr char ShortText[] = "9ä";

}  // namespace

TEST_CASE("an absent value empties every edit field") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        SetText(options, fact, "x");
        ReadAlone(options, fact.control);
        CHECK(TextShown(options, fact) == "");
    }
}

TEST_CASE("every edit field takes the value's text as it is, whatever the type") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue(ShortText));
        ReadAlone(options, fact.control);
        CHECK(TextShown(options, fact) == ShortText);
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, DwordValue(23));
        ReadAlone(options, fact.control);
        CHECK(TextShown(options, fact) == "23");
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, {0, {65, 66}});
        ReadAlone(options, fact.control);
        CHECK(TextShown(options, fact) == "");
    }
}

TEST_CASE("a denied key empties every edit field") {
    for (const Fact& fact : GoldenBoxes()) {
        CAPTURE(fact.control);
        Options options;
        options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("x"));
        options.machine.registry.Deny(fact.Root(), fact.key);
        SetText(options, fact, "y");
        ReadAlone(options, fact.control);
        CHECK(TextShown(options, fact) == "");
    }
}

namespace {

// The control whose text must be numeric; the fact's own one where no other is named.
std::string TestedControl(const Fact& fact) {
    const std::size_t end = fact.on.find(" is numeric");
    if (end == std::string::npos) return fact.control;
    const std::size_t start = fact.on.rfind(' ', end - 1) + 1;
    return fact.on.substr(start, end - start);
}

// Writes the field alone and compares with what the table says of that side.
void CheckWritten(const Fact& fact, Start start, const std::string& text, int side) {
    const auto facts = FactsOfControl(fact.control);
    const std::size_t decider = fact.on.find(" with ");
    Options options;
    Options expected;
    for (Options* each : {&options, &expected}) {
        Prepare(*each, facts, start);
        SetText(*each, fact, text);
        tweaks::SetTextOfControl(each->form, TestedControl(fact), text);
        for (std::size_t i = 0; i < facts.size(); ++i) {
            each->machine.messages.Answer("Fehler", platform::message::Cancel);
        }
        if (decider != std::string::npos) {
            each->form.Check(fact.on.substr(decider + 6)).SetValue(side);
        }
    }
    WriteAlone(options, fact.control);
    Apply(facts, side == 1 ? &Fact::on : &Fact::off, expected);
    CHECK(options.machine.registry.Dump() == expected.machine.registry.Dump());
}

}  // namespace

TEST_CASE("every edit field writes exactly what the table says, and a display nothing") {
    for (const Fact& fact : GoldenBoxes()) {
        for (const std::string text : {"1492", "", ShortText}) {
            for (Start start : Starts) {
                for (int side : {1, 0}) {
                    CAPTURE(fact.control);
                    CAPTURE(text);
                    CAPTURE(static_cast<int>(start));
                    CAPTURE(side);
                    CheckWritten(fact, start, text, side);
                }
            }
        }
    }
}
