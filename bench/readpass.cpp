// Measures one read pass against a bare loop that makes the same platform calls: both once, each in
// a function of its own, on the machine of the baseline. Instructions are counted from outside,
// by toggling at these functions (see run); the calls are counted here.
// Call: readpass <xp-baseline.reg>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/simulated/machine.h"
#include "toolkit/form.h"
#include "tweaks/passes.h"
#include "tweaks/systempage.h"

namespace {

using Service = platform::Registry;

// One call of the pass as it was made. `handle` is the place among the opened handles, from 0.
struct Call {
    enum Kind { Open, Query, Close } kind = Open;
    Service::Key root = 0;
    std::size_t handle = 0;
    std::string name;
    std::uint32_t size = 0;
    bool wantsData = false;
};

// Passes everything on and notes what a bare program has to repeat.
class Recorder final : public Service {
  public:
    explicit Recorder(Service& real) : real_(real) {}

    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override {
        const Result result = real_.Open(parent, path, access, opened);
        handles_.push_back(result == Success ? opened : 0);
        calls.push_back({Call::Open, parent, 0, std::string(path), access, false});
        return result;
    }
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override {
        calls.push_back(
            {Call::Query, 0, PlaceOf(key), std::string(valueName), size, data != nullptr});
        return real_.Query(key, valueName, type, data, size);
    }
    Result Close(Key key) override {
        calls.push_back({Call::Close, 0, PlaceOf(key), "", 0, false});
        return real_.Close(key);
    }
    // A read pass writes nothing.
    Result Create(Key, std::string_view, std::uint32_t, Key&) override { return AccessDenied; }
    Result Set(Key, std::string_view, std::uint32_t, const std::uint8_t*, std::uint32_t) override {
        return AccessDenied;
    }
    Result RemoveValue(Key, std::string_view) override { return AccessDenied; }
    Result RemoveKey(Key, std::string_view) override { return AccessDenied; }

    std::vector<Call> calls;

  private:
    std::size_t PlaceOf(Key key) const {
        for (std::size_t i = handles_.size(); i-- > 0;) {
            if (handles_[i] == key) return i;
        }
        return 0;
    }

    Service& real_;
    std::vector<Key> handles_;
};

// A machine with the baseline, and the form on it.
struct Fixture {
    explicit Fixture(const std::string& baseline) {
        machine.registry.Load(baseline);
        form.SetLayout(tweaks::AddSystemPage(form, machine.clock, machine.locale));
        machine.journal.Clear();
        machine.journal.Record(false);
    }

    platform::simulated::Machine machine;
    toolkit::Form form{machine.forms, "frmMain", "", {}};
};

std::vector<Call> CallsOfOnePass(const std::string& baseline) {
    Fixture fixture(baseline);
    Recorder recorder(fixture.machine.registry);
    const platform::Machine& real = fixture.machine.services;
    const platform::Machine recorded{real.forms,     recorder,     real.settings,  real.files,
                                     real.processes, real.session, real.autostart, real.system,
                                     real.facts,     real.memory,  real.clock,     real.locale,
                                     real.messages,  real.tray,    real.program};
    tweaks::Passes(fixture.form, recorded).Read();
    return recorder.calls;
}

}  // namespace

// Named plainly for the counting from outside.
extern "C" {

__attribute__((noinline)) void MeasuredPass(tweaks::Passes& passes) {
    passes.Read();
}

__attribute__((noinline)) void MeasuredBareLoop(Service& registry, const std::vector<Call>& calls) {
    std::vector<Service::Key> handles;
    std::vector<std::uint8_t> data;
    for (const Call& call : calls) {
        switch (call.kind) {
            case Call::Open:
                handles.push_back(0);
                registry.Open(call.root, call.name, call.size, handles.back());
                break;
            case Call::Query: {
                std::uint32_t type = 0;
                std::uint32_t size = call.size;
                data.resize(call.size);
                registry.Query(handles[call.handle], call.name, type,
                               call.wantsData ? data.data() : nullptr, size);
                break;
            }
            case Call::Close:
                registry.Close(handles[call.handle]);
                break;
        }
    }
}
}

int main(int count, char** arguments) {
    if (count < 2) {
        std::puts("readpass: call: readpass <xp-baseline.reg>");
        return 1;
    }
    std::ifstream file(arguments[1], std::ios::binary);
    const std::string baseline{std::istreambuf_iterator<char>(file), {}};
    if (baseline.empty()) {
        std::puts("readpass: the baseline cannot be read");
        return 1;
    }
    const std::vector<Call> calls = CallsOfOnePass(baseline);

    Fixture ours(baseline);
    tweaks::Passes passes(ours.form, ours.machine.services);
    MeasuredPass(passes);

    Fixture bare(baseline);
    MeasuredBareLoop(bare.machine.registry, calls);

    const std::size_t ourCalls = ours.machine.journal.Count();
    const std::size_t bareCalls = bare.machine.journal.Count();
    std::printf("calls ours %zu bare %zu\n", ourCalls, bareCalls);
    return ourCalls == bareCalls ? 0 : 1;
}
