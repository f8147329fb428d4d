#include "cmd/console.h"

#include <doctest/doctest.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>

#include "cmd/randomregistry.h"
#include "sweep/allocations.h"

namespace {

using Files = decltype(cmd_test::Console::files);
using Dump = decltype(platform::simulated::Machine().registry.Dump());

struct Verb {
    const char* name;
    std::vector<std::string> arguments;
    bool writesRegistry = false;
};

const std::array<Verb, 8> Verbs = {{
    {"state", {"state"}},
    {"state as a table", {"state", "/csv"}},
    {"profile", {"profile", "new.txt"}},
    {"plan", {"plan", "p.txt", "/reg:new.reg"}},
    {"plan of a preset", {"plan", "/preset:dsl"}},
    {"backup", {"backup", "new.reg"}},
    {"apply", {"apply", "p.txt", "/backup:new.reg", "/yes"}, true},
    {"restore", {"restore", "old.reg", "/yes"}, true},
}};

struct RunOutcome {
    // Of cmd::Run, nothing when memory lacked.
    std::optional<int> code;
    std::size_t allocations = 0;
    Dump registry;
    int openKeys = 0;
    Files files;
    std::string out;
};

// A registry with something of everything, a profile, and a backup of another state.
struct Prepared : cmd_test::Program {
    Prepared() {
        std::mt19937 dice(11);
        cmd_test::FillAtRandom(machine.registry, dice);
        console.files["p.txt"] = cmd_test::RandomProfile(dice);
        REQUIRE(Run({"backup", "old.reg"}) == cmd::Fine);
        REQUIRE(Run({"apply", "/preset:dsl", "/nobackup", "/yes"}) == cmd::Fine);
        machine.journal.Record(false);
    }
};

RunOutcome Seen(const cmd_test::Program& program) {
    RunOutcome outcome;
    outcome.registry = program.machine.registry.Dump();
    outcome.openKeys = program.machine.registry.OpenHandles();
    outcome.files = program.console.files;
    outcome.out = program.console.out;
    return outcome;
}

RunOutcome RunVerb(cmd_test::Program& program, const Verb& verb, std::size_t failing) {
    std::optional<int> code;
    sweep_test::FailAllocation(failing);
    try {
        code = program.Run(verb.arguments);
    } catch (const std::bad_alloc&) {
    }
    const std::size_t allocations = sweep_test::CountAllocations();
    sweep_test::FailAllocation(0);
    RunOutcome outcome = Seen(program);
    outcome.code = code;
    outcome.allocations = allocations;
    return outcome;
}

// Of each file either the whole or nothing is there, and what was there before stays.
void CheckFiles(const RunOutcome& before, const RunOutcome& whole, const RunOutcome& failed) {
    for (const auto& [name, bytes] : before.files) {
        CAPTURE(name);
        CHECK(failed.files.contains(name));
    }
    for (const auto& [name, bytes] : failed.files) {
        CAPTURE(name);
        const auto complete = whole.files.find(name);
        REQUIRE(complete != whole.files.end());
        CHECK(bytes == complete->second);
    }
}

}  // namespace

TEST_CASE(
    "whichever block of memory the console program cannot have, files are whole or not there, and "
    "what was begun can be finished or undone") {
    // All blocks when the environment has QUILLMORE_SWEEP=1, otherwise some of each verb.
    const char* wanted = std::getenv("QUILLMORE_SWEEP");
    const bool all = wanted && wanted == std::string_view("1");
    constexpr std::size_t Sample = 10;
    std::size_t points = 0;
    for (const Verb& verb : Verbs) {
        const std::string name = verb.name;
        CAPTURE(name);
        Prepared first;
        const RunOutcome before = Seen(first);
        const RunOutcome whole = RunVerb(first, verb, 0);
        REQUIRE((whole.code == cmd::Fine || whole.code == cmd::Differs));
        REQUIRE((whole.registry != before.registry) == verb.writesRegistry);
        auto program = std::make_unique<Prepared>();
        const std::size_t step = all ? 1 : whole.allocations / Sample + 1;
        for (std::size_t n = 1; n <= whole.allocations; n += step) {
            CAPTURE(n);
            ++points;
            program->console.files = before.files;
            const int open = program->machine.registry.OpenHandles();
            const RunOutcome failed = RunVerb(*program, verb, n);
            // A sort does without the block that it would like to have.
            if (failed.code) {
                CHECK(failed.code == whole.code);
                CHECK(failed.out == whole.out);
                CHECK(failed.files == whole.files);
                REQUIRE(failed.registry == whole.registry);
                if (verb.writesRegistry) program = std::make_unique<Prepared>();
                continue;
            }
            // The one at hand may stay open: the process is at its end.
            CHECK(failed.openKeys <= open + 1);
            CHECK(whole.out.starts_with(failed.out));
            CheckFiles(before, whole, failed);
            if (failed.registry == before.registry) continue;
            REQUIRE(verb.writesRegistry);
            if (failed.files.contains("new.reg")) {
                CHECK(program->Run({"restore", "new.reg", "/yes"}) == cmd::Fine);
                REQUIRE(program->machine.registry.Dump() == before.registry);
            } else {
                REQUIRE(name == "restore");
                CHECK(program->Run(verb.arguments) == cmd::Fine);
                REQUIRE(program->machine.registry.Dump() == whole.registry);
            }
            program = std::make_unique<Prepared>();
        }
    }
    MESSAGE(points, " points");
}
