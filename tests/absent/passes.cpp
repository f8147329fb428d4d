#include "tweaks/passes.h"

#include <doctest/doctest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "platform/absent/machine.h"
#include "platform/dryrun/machine.h"
#include "platform/simulated/machine.h"
#include "support/optionsform.h"

namespace {

std::string Baseline() {
    std::ifstream file(QUILLMORE_SOURCE_DIR "/resources/xp-baseline.reg", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// All options, in a dry run over a machine.
struct Planned {
    explicit Planned(const platform::Machine& machine)
        : dry(machine), form(dry.services), passes(form, dry.services) {}

    platform::dryrun::Machine dry;
    tweak_tests::OptionsForm form;
    tweaks::Passes passes;
};

}  // namespace

TEST_CASE("both passes over a lean machine do what they do over a whole one") {
    platform::simulated::Machine whole;
    whole.registry.Load(Baseline());
    platform::absent::Machine absent({whole.registry, whole.settingsStore, whole.operatingSystem,
                                      whole.systemFacts, whole.memory, whole.locale});
    std::mt19937 dice(1);
    for (int round = 0; round < 20; ++round) {
        CAPTURE(round);
        Planned full(whole.services);
        Planned lean(absent.services);
        for (Planned* one : {&full, &lean}) one->passes.Read();
        int set = 0;
        for (const auto& control : full.form.Controls()) {
            auto* box = dynamic_cast<toolkit::CheckBox*>(control.get());
            if (!box) continue;
            CHECK(box->Value() == lean.form.Check(box->Name()).Value());
            if (dice() % 2 == 0) continue;
            const int state = static_cast<int>(dice() % 2);
            box->SetValue(state);
            lean.form.Check(box->Name()).SetValue(state);
            ++set;
        }
        CHECK(set > 10);
        for (Planned* one : {&full, &lean}) {
            one->form.FillNumbers();
            one->passes.Write();
        }
        CHECK(full.dry.registry.Changes().size() > 10);
        CHECK((full.dry.registry.Changes() == lean.dry.registry.Changes()));
        CHECK(full.dry.processes.started == lean.dry.processes.started);
        CHECK((full.dry.messages.shown == lean.dry.messages.shown));
    }
}
