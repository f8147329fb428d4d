#include <doctest/doctest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "cmd/console.h"
#include "cmd/randomregistry.h"
#include "runtime/text.h"

using namespace cmd_test;

namespace {

using Dump = std::map<std::string, StoredValue>;

// A key of its own without values.
constexpr std::uint32_t EmptyKey = 0xFFFFFFFF;

struct Prepared : Program {
    Prepared() {
        std::mt19937 dice(7);
        FillAtRandom(machine.registry, dice);
        console.files["p.txt"] = RandomProfile(dice);
    }
};

// "HKLM\Key|name" of the dump as a done line has it, letters' case aside.
std::string PlaceOfEntry(const std::string& entry) {
    const std::size_t bar = entry.rfind('|');
    const std::string name = entry.substr(bar + 1);
    return runtime::ToLower(entry.substr(0, bar) + " [" + (name.empty() ? "@" : name) + "]");
}

bool Tells(const std::vector<std::string>& lines, std::string_view word, const std::string& place) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        const std::string told = std::string(word) + ' ' + place;
        return line == told || line.starts_with(told + ':');
    });
}

// Whether the lines tell each value that came, went or changed, and no other. What was there could
// not be read where something was just set.
void CheckTold(const Dump& before, const Dump& after, const std::string& out) {
    const std::vector<std::string> lines = LinesOf(runtime::ToLower(out));
    std::ptrdiff_t told = 0;
    const auto check = [&](const std::string& entry, const char* word) {
        if (Tells(lines, "gesetzt", PlaceOfEntry(entry))) return;
        if (!Tells(lines, word, PlaceOfEntry(entry))) FAIL_CHECK(entry);
        ++told;
    };
    // An empty key stands where its default value would.
    const auto valueIn = [](const Dump& dump, const std::string& entry) {
        const auto found = dump.find(entry);
        const bool isValue = found != dump.end() && found->second.type != EmptyKey;
        return isValue ? &found->second : nullptr;
    };
    for (const auto& [entry, ignored] : before) {
        const StoredValue* was = valueIn(before, entry);
        const StoredValue* is = valueIn(after, entry);
        if (was && !is) check(entry, "gelöscht");
        if (was && is && *was != *is) check(entry, "geändert");
    }
    for (const auto& [entry, ignored] : after) {
        if (valueIn(after, entry) && !valueIn(before, entry)) check(entry, "angelegt");
    }
    CHECK(told == std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
              const bool isDone = line.starts_with("angelegt ") || line.starts_with("geändert ") ||
                                  line.starts_with("gelöscht ");
              return isDone && line.find(" [") != std::string::npos;
          }));
}

// All calls of a run. To fail each of them takes minutes, so it is some, of those that write more;
// all of them when the environment has QUILLMORE_SWEEP.
struct Sweep {
    explicit Sweep(const Program& whole) : calls(whole.machine.journal.Lines()) {}

    bool Takes(std::size_t number) const {
        const std::string& call = calls[number - 1];
        const bool writes = call.starts_with("RegSet") || call.starts_with("RegDelete") ||
                            call.starts_with("RegCreate");
        return std::getenv("QUILLMORE_SWEEP") || number % (writes ? 17 : 307) == 0;
    }
    // What becomes of a handle that cannot be closed does not matter to anybody.
    bool Matters(std::size_t number) const {
        const std::string& call = calls[number - 1];
        return call.starts_with("Reg") && !call.starts_with("RegClose");
    }

    const std::vector<std::string> calls;
};

}  // namespace

TEST_CASE(
    "whichever call fails in apply: a whole backup or nothing done, told truly, exit code 3") {
    const std::vector<std::string> apply{"apply", "p.txt", "/backup:a.reg", "/yes"};
    Prepared whole;
    const Dump before = whole.machine.registry.Dump();
    whole.machine.journal.Clear();
    REQUIRE(whole.Run(apply) == cmd::Fine);
    CheckTold(before, whole.machine.registry.Dump(), whole.console.out);
    const Sweep sweep(whole);
    std::size_t begun = 0;
    for (std::size_t n = 1; n <= sweep.calls.size(); ++n) {
        if (!sweep.Takes(n)) continue;
        CAPTURE(n);
        CAPTURE(sweep.calls[n - 1]);
        Prepared program;
        program.machine.faults.FailNth(static_cast<int>(n), 5);
        const int code = program.Run(apply);
        program.machine.faults.Clear();
        const Dump after = program.machine.registry.Dump();
        CAPTURE(program.console.err);
        if (sweep.Matters(n)) CHECK(code == cmd::NotAll);
        CheckTold(before, after, program.console.out);
        if (!program.console.files.contains("a.reg")) {
            REQUIRE(after == before);
            continue;
        }
        ++begun;
        REQUIRE(program.Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
        REQUIRE(program.machine.registry.Dump() == before);
    }
    CHECK(begun > 5);
}

TEST_CASE("whichever call fails in restore: told truly, exit code 3, and the next one mends it") {
    const std::vector<std::string> restore{"restore", "a.reg", "/yes"};
    Prepared whole;
    const Dump before = whole.machine.registry.Dump();
    REQUIRE(whole.Run({"apply", "p.txt", "/backup:a.reg", "/yes"}) == cmd::Fine);
    const Dump applied = whole.machine.registry.Dump();
    whole.machine.journal.Clear();
    REQUIRE(whole.Run(restore) == cmd::Fine);
    CheckTold(applied, whole.machine.registry.Dump(), whole.console.out);
    const Sweep sweep(whole);
    for (std::size_t n = 1; n <= sweep.calls.size(); ++n) {
        if (!sweep.Takes(n)) continue;
        CAPTURE(n);
        CAPTURE(sweep.calls[n - 1]);
        Prepared program;
        REQUIRE(program.Run({"apply", "p.txt", "/backup:a.reg", "/yes"}) == cmd::Fine);
        program.machine.faults.FailNth(static_cast<int>(n), 5);
        const int code = program.Run(restore);
        program.machine.faults.Clear();
        CAPTURE(program.console.err);
        if (sweep.Matters(n)) CHECK(code == cmd::NotAll);
        CheckTold(applied, program.machine.registry.Dump(), program.console.out);
        REQUIRE(program.Run(restore) == cmd::Fine);
        REQUIRE(program.machine.registry.Dump() == before);
    }
}
