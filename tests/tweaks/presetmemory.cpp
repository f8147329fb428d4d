// The one condition of all presets.
#include <doctest/doctest.h>

#include <limits>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

constexpr char CacheBox[] = "chkSecondLevelDataCache";

// What the two presets with the memory test make of the box, which was grey.
void CheckBoxBecomes(const char* state, void (*prepare)(Presets&)) {
    for (const char* preset : {"cmdOptimal", AutoTuningButton}) {
        CAPTURE(preset);
        Presets program;
        prepare(program);
        program.Put(CacheBox, "2");
        program.Press(preset);
        CHECK(program.Shown(CacheBox) == state);
        CHECK(program.machine.journal.Calls("GlobalMemoryStatus").size() == 1);
    }
}

}  // namespace

TEST_CASE("256000 bytes of memory are not enough for the second level cache") {
    CheckBoxBecomes("0", [](Presets& program) { program.machine.memory.physical.total = 256000; });
}

TEST_CASE("256001 bytes of memory are enough for the second level cache") {
    CheckBoxBecomes("1", [](Presets& program) { program.machine.memory.physical.total = 256001; });
}

TEST_CASE("200 KB of memory are not enough for the second level cache") {
    CheckBoxBecomes("0", [](Presets& program) { program.machine.memory.physical.total = 204800; });
}

TEST_CASE("memory that is negative as a signed number is not enough") {
    CheckBoxBecomes("0",
                    [](Presets& program) { program.machine.memory.physical.total = 0xFFFFFFFF; });
    CheckBoxBecomes("0",
                    [](Presets& program) { program.machine.memory.physical.total = 0x80000000; });
}

TEST_CASE("memory of 2147483647 bytes is enough") {
    CheckBoxBecomes("1", [](Presets& program) {
        program.machine.memory.physical.total = std::numeric_limits<std::int32_t>::max();
    });
}

TEST_CASE("memory of which the system tells nothing is not enough") {
    CheckBoxBecomes(
        "0", [](Presets& program) { program.machine.faults.FailAll("GlobalMemoryStatus", 1); });
}

TEST_CASE("every golden list holds whether the memory is enough or not") {
    for (const char* preset : {"cmdOptimal", AutoTuningButton}) {
        Presets program;
        program.machine.memory.physical.total = 0;
        program.Isolate();
        ChangeNotes changes(program.form);
        program.Press(preset);
        CHECK(changes.lines == LinesOf(GoldenSteps(preset, false)));
    }
}

TEST_CASE("the other presets do not look at the memory") {
    for (const std::string& preset : GoldenPresets()) {
        if (preset == "cmdOptimal" || preset == AutoTuningButton) continue;
        CAPTURE(preset);
        Presets program;
        program.AllOn();
        program.Press(preset);
        CHECK(program.machine.journal.Calls("GlobalMemoryStatus").empty());
    }
}
