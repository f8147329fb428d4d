// Measures the read pass and the write pass over all options against bare loops that make the same
// registry calls, on the simulated machine of the baseline: each once, in a function of its own.
// Instructions are counted from outside, by toggling at these functions (see bench/run).
// That the calls are the same, in number and order and with the same results, is proved here.
// Call: passes <xp-baseline.reg>
#include "tweaks/passes.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "calls.h"
#include "platform/machinewith.h"
#include "platform/simulated/machine.h"
#include "support/optionsform.h"

namespace {

using bench::Call;
using Calls = std::vector<Call>;

struct BaselineMachine : platform::simulated::Machine {
    explicit BaselineMachine(const std::string& baseline) { registry.Load(baseline); }
};

// The calls of the two passes, one after the other.
struct BothPasses {
    Calls read;
    Calls write;
};

BothPasses RecordedPasses(const std::string& baseline) {
    BaselineMachine machine(baseline);
    bench::Recorder recorder(machine.registry);
    const auto services = platform::With(machine.services, {.registry = &recorder});
    tweak_tests::OptionsForm form(services);
    tweaks::Passes passes(form, services);
    recorder.Take();
    BothPasses calls;
    passes.Read();
    calls.read = recorder.Take();
    form.FillNumbers();
    passes.Write();
    calls.write = recorder.Take();
    return calls;
}

// The journal's lines that tell of the registry, with every argument and result.
std::vector<std::string> RegistryLines(platform::simulated::Journal& journal) {
    std::vector<std::string> lines;
    for (const std::string& line : journal.Lines()) {
        if (line.starts_with("Reg")) lines.push_back(line);
    }
    journal.Clear();
    return lines;
}

}  // namespace

// Named plainly for the counting from outside.
extern "C" {

__attribute__((noinline)) void MeasuredReadPass(tweaks::Passes& passes) {
    passes.Read();
}

__attribute__((noinline)) void MeasuredWritePass(tweaks::Passes& passes) {
    passes.Write();
}

__attribute__((noinline)) void MeasuredReadLoop(bench::Service& registry, const Calls& calls) {
    bench::Repeat(calls, registry);
}

__attribute__((noinline)) void MeasuredWriteLoop(bench::Service& registry, const Calls& calls) {
    bench::Repeat(calls, registry);
}
}

namespace {

// Both passes and both loops, each on a machine of its own. Only with `proves` the machines keep
// their journals, which then must be equal.
bool Run(const std::string& baseline, const BothPasses& calls, bool proves) {
    BaselineMachine ours(baseline);
    tweak_tests::OptionsForm form(ours.services);
    tweaks::Passes passes(form, ours.services);
    BaselineMachine bare(baseline);
    for (auto* machine : {&ours, &bare}) {
        machine->journal.Clear();
        machine->journal.Record(proves);
    }

    MeasuredReadPass(passes);
    MeasuredReadLoop(bare.registry, calls.read);
    bool same = RegistryLines(ours.journal) == RegistryLines(bare.journal);

    form.FillNumbers();
    MeasuredWritePass(passes);
    MeasuredWriteLoop(bare.registry, calls.write);
    same &= RegistryLines(ours.journal) == RegistryLines(bare.journal);
    return same;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::puts("passes: call: passes <xp-baseline.reg> [prove]");
        return 1;
    }
    std::ifstream file(arguments[1], std::ios::binary);
    const std::string baseline{std::istreambuf_iterator<char>(file), {}};
    if (baseline.empty()) {
        std::puts("passes: the baseline cannot be read");
        return 1;
    }
    const BothPasses calls = RecordedPasses(baseline);
    const bool proves = count > 2;
    const bool same = Run(baseline, calls, proves);
    if (proves) {
        std::printf("calls of the registry: read pass %zu, write pass %zu, bare loops %s\n",
                    calls.read.size(), calls.write.size(), same ? "the same" : "DIFFERENT");
    }
    return same ? 0 : 1;
}
