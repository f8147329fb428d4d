#include <doctest/doctest.h>

#include <cstdlib>

#include "endtoend/everyoptionrun.h"
#include "endtoend/lines.h"
#include "endtoend/randommachine.h"
#include "endtoend/registrydump.h"
#include "endtoend/tools.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

constexpr unsigned FixedSamples = 40;
constexpr unsigned FirstSeed = 1;

unsigned Setting(const char* name, unsigned otherwise) {
    const char* text = std::getenv(name);
    return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

// The command that a whole pass ends with.
std::string LibraryCommand(const ControlStates& controls) {
    const std::string off = controls.at("chkSHMediaDLL") == "1" ? "/u " : "";
    return "regsvr32.exe %windir%\\system32\\shmedia.dll " + off + "/s";
}

std::vector<std::string> WrongInSample(unsigned seed, const StandIn& registrar) {
    const Workplace workplace;
    Dice dice(seed);
    PutRandomMachine(dice);
    if (dice.Percent(50)) {
        workplace.Store("VideoPrv", "Regged", dice.Percent(50) ? "true" : "false");
    }
    std::vector<std::string> wrong;
    try {
        OptionRun run(workplace);
        run.Set(RandomUser(dice, run.Controls()));
        run.Apply(dice.Percent(20));
        wrong = run.Wrong();
        if (run.Began() && !run.Outcome().failure) {
            const std::string command = registrar.WaitStart().commandLine;
            if (command != LibraryCommand(run.Controls())) wrong.push_back("started: " + command);
        }
    } catch (const Failed& failed) {
        wrong.push_back(failed.what());
    }
    RemoveRandomKeys();
    return wrong;
}

std::string Replay(unsigned seed) {
    return "QUILLMORE_RANDOM_SEED=" + std::to_string(seed) +
           " QUILLMORE_RANDOM_SAMPLES=1 tools/wine "
           "build/xp/tests/endtoend/test_endtoend.exe -tc=\"random machines*\"";
}

TEST_CASE("random machines are read and written as the catalogue says, and nothing else changes") {
    SeeDesktop();
    const StandIn registrar(SystemFolder() + "\\regsvr32.exe");
    const RegistryState before = [] {
        // What a run that was broken off has left would go with the samples' own.
        RemoveRandomKeys();
        const Workplace workplace;
        return SnapshotOfMachine();
    }();
    const unsigned first = Setting("QUILLMORE_RANDOM_SEED", FirstSeed);
    const unsigned count = Setting("QUILLMORE_RANDOM_SAMPLES", FixedSamples);
    for (unsigned seed = first; seed < first + count; ++seed) {
        const std::vector<std::string> wrong = WrongInSample(seed, registrar);
        INFO("seed " << seed << "; again: " << Replay(seed));
        CHECK(Joined(wrong) == "");
    }
    // Whatever lies further off than each sample looks.
    const Workplace workplace;
    CHECK(Joined(OptionDifferences(before, SnapshotOfMachine())) == "");
}

}  // namespace
}  // namespace endtoend
