#include <doctest/doctest.h>

#include <random>

#include "cmd/console.h"
#include "cmd/randomregistry.h"
#include "runtime/encoding.h"
#include "runtime/failure.h"
#include "support/optionsform.h"
#include "tweaks/passes.h"

using namespace cmd_test;

namespace {

constexpr int Rounds = 10;

}  // namespace

TEST_CASE("restore brings back every value and every missing key that apply has changed") {
    std::size_t changed = 0;
    for (unsigned round = 0; round < Rounds; ++round) {
        CAPTURE(round);
        std::mt19937 dice(round);
        Program program;
        FillAtRandom(program.machine.registry, dice);
        program.console.files["p.txt"] = RandomProfile(dice);
        const auto before = program.machine.registry.Dump();

        REQUIRE(program.Run({"apply", "p.txt", "/backup:a.reg", "/yes"}) != cmd::WrongInput);
        CAPTURE(program.console.err);
        changed += program.OutLines().size();
        const auto between = program.machine.registry.Dump();
        CHECK(between != before);
        REQUIRE(program.Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
        REQUIRE(program.machine.registry.Dump() == before);
        CHECK(program.Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
        CHECK(program.console.out == "Nichts zu tun.\n");
    }
    CHECK(changed > Rounds * 50);
}

TEST_CASE("apply leaves the very registry that the window's own write pass leaves") {
    for (unsigned round = 0; round < Rounds; ++round) {
        CAPTURE(round);
        std::mt19937 dice(round + 1000);
        Program program;
        platform::simulated::Machine direct;
        std::mt19937 same = dice;
        FillAtRandom(program.machine.registry, dice);
        FillAtRandom(direct.registry, same);
        direct.messages.AnswerAll("Fehler", platform::message::Cancel);
        tweak_tests::OptionsForm form(direct.services);
        tweaks::Passes passes(form, direct.services);

        passes.Read();
        // The box starts set where the settings say nothing.
        form.Check("chkSHMediaDLL").SetValue(1);
        runtime::Skip([&] { passes.Write(); });
        program.Run({"apply", "/nobackup", "/yes"});
        REQUIRE(program.machine.registry.Dump() == direct.registry.Dump());
    }
}

TEST_CASE("what plan writes as a file brings another machine to where apply brings this one") {
    for (unsigned round = 0; round < Rounds; ++round) {
        CAPTURE(round);
        std::mt19937 dice(round + 2000);
        Program program;
        FillAtRandom(program.machine.registry, dice);
        program.console.files["p.txt"] = RandomProfile(dice);
        const auto before = program.machine.registry.Dump();
        program.Run({"plan", "p.txt", "/reg:b.reg"});
        REQUIRE(program.machine.registry.Dump() == before);
        const auto planned = program.OutLines();
        REQUIRE(program.Run({"backup", "a.reg"}) == cmd::Fine);

        program.Run({"apply", "p.txt", "/nobackup", "/yes"});
        const auto applied = program.machine.registry.Dump();
        // Behind them stands how many there were.
        CHECK(program.OutLines().size() == planned.size() + 1);
        REQUIRE(program.Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
        // A key that goes takes all below it along in such a file, so nothing of that is there.
        program.machine.registry.Load(runtime::FromUtf16(program.console.files["b.reg"].substr(2)));
        CHECK(program.machine.registry.Dump() == applied);
    }
}
