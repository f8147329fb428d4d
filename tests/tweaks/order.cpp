#include "tweaks/order.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "tweaks/golden.h"

using namespace tweak_tests;

namespace {

using Names = std::vector<std::string>;

Names GoldenOrder(const std::string& pass) {
    return golden::PassOrder(FileText("tests/golden/passorder.txt"), pass);
}

Names NamesOf(std::span<const std::string_view> order) {
    return {order.begin(), order.end()};
}

void AddName(Names& names, const std::string& name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

std::size_t IndexOf(const Names& names, const std::string& name) {
    return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
}

}  // namespace

TEST_CASE("the read pass takes every control of the golden order in that order") {
    CHECK(NamesOf(tweaks::ReadOrder()) == GoldenOrder("read"));
}

TEST_CASE("the write pass takes every control of the golden order in that order") {
    CHECK(NamesOf(tweaks::WriteOrder()) == GoldenOrder("write"));
}

TEST_CASE("the logon message's box is read after its two texts and written before them") {
    const Names read = NamesOf(tweaks::ReadOrder());
    const Names write = NamesOf(tweaks::WriteOrder());
    const std::size_t at = IndexOf(read, "txtWinLogOnT");
    CHECK(Names(read.begin() + at, read.begin() + at + 3) ==
          Names{"txtWinLogOnT", "txtWinLogOnC", "chkWinLogOn"});
    CHECK(Names(write.begin() + at, write.begin() + at + 3) ==
          Names{"chkWinLogOn", "txtWinLogOnT", "txtWinLogOnC"});
}

TEST_CASE("apart from five names the write pass follows the read pass") {
    Names read = NamesOf(tweaks::ReadOrder());
    Names write = NamesOf(tweaks::WriteOrder());
    CHECK(write.back() == "chkSHMediaDLL");
    std::erase(write, "chkSHMediaDLL");
    std::erase(write, "chkWinLogOn");
    std::erase(read, "chkWinLogOn");
    std::erase(read, "chkScriptDebugging");
    std::erase(read, "txtProductId");
    CHECK(read == write);
}

namespace {

// The names of the values that the calls are about, each when it first comes.
Names ValuesInOrder(const Names& lines, std::initializer_list<std::string_view> calls) {
    Names names;
    for (const std::string& line : lines) {
        const std::string_view call = std::string_view(line).substr(0, line.find(' '));
        if (std::find(calls.begin(), calls.end(), call) == calls.end()) continue;
        const std::size_t first = line.find('"') + 1;
        AddName(names, line.substr(first, line.find('"', first) - first));
    }
    return names;
}

// For reports that can be read.
std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names) text += name + '\n';
    return text;
}

// The values of the golden facts in the golden order of a pass, as far as they are wanted.
template <typename Wanted>
Names GoldenValues(const std::string& pass, Wanted wanted) {
    Names names;
    for (const std::string& name : GoldenOrder(pass)) {
        for (const Fact& fact : FactsDecidedBy(name)) {
            if (wanted(fact)) AddName(names, fact.value);
        }
    }
    return names;
}

struct FullOptions : Options {
    FullOptions() {
        for (const Fact& fact : GoldenFacts()) {
            machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("1"));
        }
        machine.journal.Clear();
    }
};

}  // namespace

TEST_CASE_FIXTURE(FullOptions, "a read pass asks for the values in the order of the names") {
    passes.Read();
    const Names expected =
        GoldenValues("read", [](const Fact& fact) { return fact.read != "not read"; });
    CHECK(expected.size() > 40);
    CHECK(Joined(ValuesInOrder(machine.journal.Lines(), {"RegQueryValueExA"})) == Joined(expected));
}

// With every value present, so that no limit but those on absent keys takes effect.
TEST_CASE("a write pass touches the values in the order of the names") {
    for (int state : {1, 0}) {
        CAPTURE(state);
        FullOptions options;
        options.passes.Read();
        for (const std::string& name : GoldenCheckBoxes()) options.form.Check(name).SetValue(state);
        options.machine.journal.Clear();
        options.passes.Write();
        const Names expected = GoldenValues("write", [&](const Fact& fact) {
            const std::string& side = state == 1 ? fact.on : fact.off;
            return side != "nothing" && !side.starts_with("delete key") &&
                   side.find(" if key absent") == std::string::npos &&
                   side.find(" if only this key present") == std::string::npos;
        });
        CHECK(expected.size() > 40);
        CHECK(Joined(ValuesInOrder(options.machine.journal.Lines(),
                                   {"RegSetValueExA", "RegDeleteValueA"})) == Joined(expected));
    }
}
