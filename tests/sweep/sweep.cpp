#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "runtime/text.h"
#include "sweep/allocations.h"
#include "sweep/policy.h"
#include "sweep/snapshot.h"
#include "sweep/workflow.h"

using namespace sweep_test;
using app_test::Program;
using platform::simulated::FaultCode;

namespace {

// Not found, access denied, out of memory, a device that does not work: for the registry, and for
// all other services.
const std::array<FaultCode, 4> Codes = {{{2, 53}, {5, 70}, {8, 7}, {1117, 68}}};

// As a dump has a key without values.
constexpr std::string_view BareKey = "4294967295:";

enum class How { Once, FromThenOn, Memory };

struct Point {
    int number = 0;
    FaultCode code = 0;
    How how = How::Once;
};

struct Outcome {
    Snapshot before;
    Snapshot after;
    std::vector<std::string> asked;
    std::vector<std::string> told;
    int escaped = 0;
    std::size_t allocations = 0;
    bool outOfMemory = false;
    // After the user has done the same once more, and nothing failed.
    Snapshot again;
};

// Where doing it once more brings about what is missing.
bool CanBeRepeated(const Workflow& workflow) {
    for (const char* kind : {"search", "cache: Akt", "time: ", "about: ", "system information: ",
                             "logged-on users: ", "installed software: Akt",
                             "installed software: Ung", "virtual drives: Durch", "launcher: "}) {
        if (workflow.name.starts_with(kind)) return true;
    }
    return workflow.name == "Apply";
}

void Act(const Workflow& workflow, Program& program, int& escaped) {
    try {
        workflow.act(program);
    } catch (const runtime::Failure& failure) {
        escaped = failure.number;
    }
}

Outcome Play(const Workflow& workflow, const Point& point) {
    Outcome outcome;
    Program program;
    auto& machine = program.machine;
    workflow.seed(program);
    if (workflow.prepare) {
        REQUIRE(program.Start());
        workflow.prepare(program);
    }
    outcome.before = Look(machine, program.form.get());
    const std::size_t told = machine.messages.Shown().size();
    machine.journal.Clear();
    machine.faults.Watch();
    if (point.how == How::FromThenOn) {
        machine.faults.FailFrom(point.number, point.code);
    } else if (point.how == How::Once) {
        machine.faults.FailNth(point.number, point.code);
    }
    // Windows does not take the program's memory for its own calls, so nor may their journal.
    if (point.how == How::Memory) machine.journal.Record(false);
    FailAllocation(point.how == How::Memory ? static_cast<std::size_t>(point.number) : 0);
    try {
        Act(workflow, program, outcome.escaped);
    } catch (const std::bad_alloc&) {
        outcome.outOfMemory = true;
    }
    outcome.allocations = CountAllocations();
    FailAllocation(0);
    machine.journal.Record(true);
    outcome.asked = machine.faults.Asked();
    machine.faults.Clear();
    outcome.after = Look(machine, program.form.get());
    for (std::size_t i = told; i < machine.messages.Shown().size(); ++i) {
        const auto& message = machine.messages.Shown()[i];
        outcome.told.push_back(message.title + ": " + message.text);
    }
    const bool goesOn = program.form && program.form->Loaded() && !machine.program.ended;
    if (goesOn && CanBeRepeated(workflow)) {
        int escaped = 0;
        Act(workflow, program, escaped);
        CHECK(escaped == 0);
        outcome.again = Look(machine, program.form.get());
    }
    return outcome;
}

// A rule's cost that a difference is.
std::optional<std::string_view> CostOf(const Rule& rule, const std::string& name, bool isLost) {
    for (std::string_view cost : rule.costs) {
        const std::string_view whole = cost;
        if (cost.starts_with('1')) cost.remove_prefix(1);
        const bool takesAll = cost.starts_with('!');
        if (takesAll) cost.remove_prefix(1);
        if (name.starts_with(cost) && (isLost || takesAll)) return whole;
    }
    return std::nullopt;
}

// Whether one of the rules allows any other content.
bool IsCostOfSome(const std::vector<const Rule*>& rules, const std::string& name) {
    return std::any_of(rules.begin(), rules.end(),
                       [&](const Rule* rule) { return CostOf(*rule, name, false).has_value(); });
}

bool HasBelow(const Snapshot& snapshot, const std::string& start) {
    const auto next = snapshot.lower_bound(start);
    return next != snapshot.end() && next->first.starts_with(start);
}

// A key without values of which the run without failure has values or keys below: half a write.
bool IsHalfMade(const Outcome& whole, const Outcome& failed, const std::string& name) {
    if (!name.starts_with("registry ") || !name.ends_with('|')) return false;
    const std::string& found = At(failed.after, name);
    if (found != Missing && found != BareKey) return false;
    const std::string path = name.substr(0, name.size() - 1);
    return HasBelow(whole.after, path + '|') || HasBelow(whole.after, path + '\\');
}

// Whether the difference is only that something was not done, or not to its end.
bool IsLost(const Outcome& whole, const Outcome& failed, const std::string& name) {
    return At(failed.after, name) == At(failed.before, name) || IsHalfMade(whole, failed, name);
}

// What the rule does not allow; "" when it allows all.
std::string Against(const Rule& rule, const Outcome& whole, const Outcome& failed) {
    std::map<std::string_view, int> counts;
    for (const std::string& name : Differing(whole.after, failed.after)) {
        if (name.starts_with("message ")) continue;
        const bool isKey = IsHalfMade(whole, failed, name);
        const auto cost = CostOf(rule, name, IsLost(whole, failed, name));
        if (!cost) return name + " = " + At(failed.after, name);
        if (cost->starts_with('1') && !isKey && ++counts[*cost] > 1) return "one more: " + name;
    }
    if ((failed.escaped != 0) != rule.escapes) {
        return rule.escapes ? "nothing escapes" : "a failure escapes";
    }
    std::vector<std::string> told = failed.told;
    for (const std::string& message : whole.told) {
        const auto found = std::find(told.begin(), told.end(), message);
        if (found != told.end()) told.erase(found);
    }
    if (rule.tells.empty()) return told.empty() ? "" : "tells " + told.front();
    if (told.size() != 1) return "told " + std::to_string(told.size()) + " times";
    return told.front().starts_with(rule.tells) ? "" : "tells " + told.front();
}

// What is neither where it was nor in the bin; "" when all is in one of them.
std::string RemovedForGood(const Outcome& failed) {
    std::vector<std::string> binned;
    for (const auto& [name, count] : failed.after) {
        if (name.starts_with("bin ")) binned.push_back(runtime::ToLower(name.substr(4)));
    }
    for (const auto& [name, content] : failed.before) {
        if (!name.starts_with("disk ") || failed.after.contains(name)) continue;
        const std::string path = runtime::ToLower(name.substr(5));
        const bool isKept = std::any_of(binned.begin(), binned.end(), [&](const std::string& top) {
            return path == top || path.starts_with(top + '\\');
        });
        if (!isKept) return path;
    }
    return "";
}

// What is as promised wherever something fails.
void CheckPromises(const Workflow& workflow, const Outcome& failed) {
    // An event that ends for lack of memory may leave the window for another try.
    if (workflow.name == "close" && !failed.outOfMemory) {
        CHECK((At(failed.after, "ended") == "yes" || At(failed.after, "window loaded") == "no"));
    }
    CHECK(At(failed.after, "list lock") == "");
    if (At(failed.after, "ended") == "no") CHECK(At(failed.after, "screen pointer") == "0");
    if (workflow.name.starts_with("removal into the bin")) CHECK(RemovedForGood(failed) == "");
}

// Doing it once more repairs what the failure cost; what only counts how often is left out.
void CheckRepaired(const Outcome& whole, const Outcome& failed) {
    if (whole.again.empty() || failed.again.empty()) return;
    for (const auto& [name, text] : whole.again) {
        bool isState = false;
        for (const char* kind : {"control ", "row ", "registry ", "setting ", "window ", "tray"}) {
            isState |= name.starts_with(kind);
        }
        if (!isState || name == "control lblDateAndTime" || name == "window pointer") continue;
        CAPTURE(name);
        CHECK(At(failed.again, name) == text);
    }
}

// "" when one of the rules for the call allows what became of it.
std::string Judge(const Workflow& workflow, const Outcome& whole, const Outcome& failed,
                  const std::string& call) {
    const auto differing = Differing(whole.after, failed.after);
    if (failed.escaped == 0 && differing.empty()) return "";
    std::string why = "no rule for";
    for (const std::string& name : differing) why += ' ' + name;
    for (const Rule* rule : RulesFor(workflow.name, call)) {
        const std::string against = Against(*rule, whole, failed);
        if (against.empty()) return "";
        why += "\n  " + against;
    }
    return why;
}

// From a call on everything fails, so that all rules of the workflow hold at once; what is left is
// that nothing happens anywhere else.
std::string JudgeAll(const Workflow& workflow, const Outcome& whole, const Outcome& failed) {
    const auto rules = RulesFor(workflow.name);
    for (const std::string& name : Differing(whole.after, failed.after)) {
        if (name.starts_with("message ") || name.starts_with("open ")) continue;
        if (!IsLost(whole, failed, name) && !IsCostOfSome(rules, name))
            return name + " = " + At(failed.after, name);
    }
    const bool mayEscape =
        std::any_of(rules.begin(), rules.end(), [](const Rule* rule) { return rule->escapes; });
    return failed.escaped != 0 && !mayEscape ? "a failure escapes" : "";
}

// Lack of memory is kept by nobody but the time synchronisation: it ends the event.
std::string JudgeMemory(const Workflow& workflow, const Outcome& whole, const Outcome& failed) {
    const auto rules = RulesFor(workflow.name);
    const auto differing = Differing(whole.after, failed.after);
    const bool isTold = workflow.name.starts_with("time: ") && failed.told != whole.told;
    if (!failed.outOfMemory && !isTold && !differing.empty()) return "kept: " + *differing.begin();
    for (const std::string& name : differing) {
        bool isLasting = false;
        for (const char* kind : {"registry ", "setting ", "disk ", "autostart "}) {
            isLasting |= name.starts_with(kind);
        }
        if (isLasting && !IsLost(whole, failed, name) && !IsCostOfSome(rules, name))
            return name + " = " + At(failed.after, name);
    }
    return "";
}

// All points take minutes: of each workflow the first one of each call, with another code each
// time. When the environment has QUILLMORE_SWEEP=1 all of them; when it has the beginning of
// workflows' names all of these and none of the others.
struct Sweep {
    Sweep() {
        const char* wanted = std::getenv("QUILLMORE_SWEEP");
        if (!wanted) return;
        all = true;
        if (wanted != std::string_view("1")) only = wanted;
    }

    bool all = false;
    std::string only;
    std::size_t points = 0;

    template <typename Try>
    void ForEachWorkflow(const Try& tryWorkflow) const {
        for (const Workflow& workflow : Workflows()) {
            if (workflow.name.starts_with(only)) tryWorkflow(workflow);
        }
    }

    template <typename Try>
    void ForEachPoint(const Outcome& whole, How how, const Try& tryPoint) {
        std::set<std::string> seen;
        for (std::size_t n = 1; n <= whole.asked.size(); ++n) {
            const bool isNew = seen.insert(whole.asked[n - 1]).second;
            if (!all && !isNew) continue;
            for (std::size_t i = 0; i < Codes.size(); ++i) {
                if (!all && i != n % Codes.size()) continue;
                ++points;
                tryPoint(Point{static_cast<int>(n), Codes[i], how});
            }
        }
    }

    template <typename Try>
    void ForEachAllocation(const Outcome& whole, const Try& tryPoint) {
        constexpr std::size_t Sample = 3;
        const std::size_t step = all ? 1 : whole.allocations / Sample + 1;
        for (std::size_t n = 1; n <= whole.allocations; n += step) {
            ++points;
            tryPoint(Point{static_cast<int>(n), 0, How::Memory});
        }
    }
};

}  // namespace

TEST_CASE("whichever call fails once, it costs no more than the policy of its procedure allows") {
    Sweep sweep;
    sweep.ForEachWorkflow([&](const Workflow& workflow) {
        CAPTURE(workflow.name);
        const Outcome whole = Play(workflow, {});
        CHECK(whole.escaped == 0);
        sweep.ForEachPoint(whole, How::Once, [&](const Point& point) {
            const std::string& call = whole.asked[static_cast<std::size_t>(point.number) - 1];
            CAPTURE(point.number);
            CAPTURE(point.code.failure);
            CAPTURE(call);
            const Outcome failed = Play(workflow, point);
            CHECK(Judge(workflow, whole, failed, call) == "");
            CheckPromises(workflow, failed);
            CheckRepaired(whole, failed);
        });
    });
    MESSAGE(sweep.points, " points");
}

TEST_CASE(
    "from whichever call on all fail, nothing happens in other places, and it can be mended") {
    Sweep sweep;
    sweep.ForEachWorkflow([&](const Workflow& workflow) {
        CAPTURE(workflow.name);
        const Outcome whole = Play(workflow, {});
        sweep.ForEachPoint(whole, How::FromThenOn, [&](const Point& point) {
            CAPTURE(point.number);
            CAPTURE(point.code.failure);
            CAPTURE(whole.asked[static_cast<std::size_t>(point.number) - 1]);
            const Outcome failed = Play(workflow, point);
            CHECK(JudgeAll(workflow, whole, failed) == "");
            CheckPromises(workflow, failed);
            CheckRepaired(whole, failed);
        });
    });
    MESSAGE(sweep.points, " points");
}

TEST_CASE(
    "whichever block of memory cannot be had, nothing happens elsewhere and it can be mended") {
    Sweep sweep;
    sweep.ForEachWorkflow([&](const Workflow& workflow) {
        CAPTURE(workflow.name);
        const Outcome whole = Play(workflow, {.how = How::Memory});
        sweep.ForEachAllocation(whole, [&](const Point& point) {
            CAPTURE(point.number);
            const Outcome failed = Play(workflow, point);
            CHECK(JudgeMemory(workflow, whole, failed) == "");
            CheckPromises(workflow, failed);
            CheckRepaired(whole, failed);
        });
    });
    MESSAGE(sweep.points, " points");
}
