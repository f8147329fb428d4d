#include "tweaks/passes.h"

#include <doctest/doctest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "dryrun/overmachine.h"
#include "platform/machinewith.h"
#include "support/optionsform.h"
#include "tweaks/sysocinf.h"

using namespace dryrun_test;

namespace {

constexpr char SysocPath[] = "C:\\WINDOWS\\inf\\Sysoc.inf";

std::string Text(const char* pathInRepository) {
    std::ifstream file(std::string(QUILLMORE_SOURCE_DIR "/") + pathInRepository, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Notes each call with its result.
class Noting final : public Registry {
  public:
    explicit Noting(Registry& inner) : inner_(inner) {}

    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override {
        return Note("open", parent, path, inner_.Open(parent, path, access, opened), opened);
    }
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& made) override {
        return Note("create", parent, name, inner_.Create(parent, name, access, made), made);
    }
    Result Query(Key key, std::string_view name, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override {
        const Result result = inner_.Query(key, name, type, data, size);
        std::string bytes;
        if (result == Success && data) bytes.assign(data, data + size);
        return Note("query", key, name, result, type, bytes);
    }
    Result Set(Key key, std::string_view name, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override {
        return Note("set", key, name, inner_.Set(key, name, type, data, size), type,
                    std::string(data, data + size));
    }
    Result RemoveValue(Key key, std::string_view name) override {
        return Note("remove value", key, name, inner_.RemoveValue(key, name), 0);
    }
    Result RemoveKey(Key parent, std::string_view path) override {
        return Note("remove key", parent, path, inner_.RemoveKey(parent, path), 0);
    }
    Result EnumerateKey(Key key, std::uint32_t index, std::string& name) override {
        return inner_.EnumerateKey(key, index, name);
    }
    Result LongestValueName(Key key, std::uint32_t& length) override {
        return inner_.LongestValueName(key, length);
    }
    Result EnumerateValue(Key key, std::uint32_t index, std::uint32_t room,
                          std::string& name) override {
        return inner_.EnumerateValue(key, index, room, name);
    }
    Result Close(Key key) override { return Note("close", key, "", inner_.Close(key), 0); }

    std::vector<std::string> calls;

  private:
    // What a failed call leaves behind its result is nobody's to rely on.
    Result Note(const char* call, Key key, std::string_view name, Result result, std::uint32_t told,
                const std::string& bytes = "") {
        calls.push_back(std::string(call) + " " + std::to_string(key) + " " + std::string(name) +
                        " -> " + std::to_string(result));
        if (result == Success) calls.back() += " " + std::to_string(told) + " " + bytes;
        return result;
    }

    Registry& inner_;
};

// All options on a machine whose registry is watched.
struct Watched {
    explicit Watched(const platform::Machine& machine)
        : registry(machine.registry),
          services(platform::With(machine, {.registry = &registry})),
          form(services),
          passes(form, services) {}

    std::map<std::string, std::string> Controls() {
        std::map<std::string, std::string> shown;
        for (const auto& control : form.Controls()) {
            if (const auto* box = dynamic_cast<const toolkit::CheckBox*>(control.get())) {
                shown[box->Name()] = std::to_string(box->Value());
            } else if (const auto* text = dynamic_cast<const toolkit::TextBox*>(control.get())) {
                shown[text->Name()] = text->Text();
            }
        }
        return shown;
    }

    Noting registry;
    platform::Machine services;
    tweak_tests::OptionsForm form;
    tweaks::Passes passes;
};

struct BothWays {
    BothWays() {
        for (auto* machine : {&direct, &over.inner}) {
            machine->registry.Load(Text("resources/xp-baseline.reg"));
            machine->files.Put(SysocPath, "a,hide,7\r\n");
            machine->messages.AnswerAll("Fehler", platform::message::Ok);
        }
    }

    void CheckSame() {
        CHECK(dry.registry.calls == plain.registry.calls);
        CHECK(dry.Controls() == plain.Controls());
        CHECK(over.dry.messages.shown.size() == direct.messages.Shown().size());
        std::vector<std::string> started;
        for (const auto& launch : direct.processes.launched) started.push_back(launch.commandLine);
        CHECK(over.dry.processes.started == started);
        CHECK(over.dry.files.Read(SysocPath) == direct.files.Content(SysocPath));
    }

    platform::simulated::Machine direct;
    OverMachine over;
    Watched plain{direct.services};
    Watched dry{over.dry.services};
};

}  // namespace

TEST_CASE_FIXTURE(BothWays, "both passes get the same answers over a dry run, and change nothing") {
    std::mt19937 dice(1);
    const auto before = over.inner.registry.Dump();
    over.inner.journal.Clear();
    std::set<std::size_t> numbers;
    for (int round = 0; round < 20; ++round) {
        CAPTURE(round);
        plain.passes.Read();
        dry.passes.Read();
        CheckSame();
        for (const auto& [name, text] : plain.Controls()) {
            if (!name.starts_with("chk") || dice() % 2 == 0) continue;
            const int state = static_cast<int>(dice() % 2);
            plain.form.Check(name).SetValue(state);
            dry.form.Check(name).SetValue(state);
        }
        if (round % 2 == 1) {
            plain.form.FillNumbers();
            dry.form.FillNumbers();
        }
        plain.passes.Write();
        dry.passes.Write();
        CheckSame();
        numbers.insert(over.registry.Changes().size());
    }
    CHECK(numbers.size() > 5);
    CHECK(plain.registry.calls.size() > 10000);
    CHECK(direct.processes.launched.size() > 10);

    // The calls that read; forms belong to the program itself.
    const std::set<std::string> allowed = {"RegOpenKeyExA", "RegQueryValueExA", "RegCloseKey",
                                           "RegEnumKeyA",   "FindWindowA",      "GetFullPathNameW",
                                           "ReadFile",      "RegQueryInfoKeyA", "RegEnumValueA"};
    CHECK(over.inner.journal.Lines().size() > 10000);
    for (const std::string& line : over.inner.journal.Lines()) {
        const std::string call = line.substr(0, line.find(' '));
        if (!allowed.contains(call)) FAIL_CHECK(line);
    }
    REQUIRE(over.inner.registry.Dump() == before);
    CHECK(over.inner.files.Content(SysocPath) == "a,hide,7\r\n");

    CarryOut(over.registry.Changes(), over.inner.registry);
    CHECK(over.inner.registry.Dump() == direct.registry.Dump());
}

TEST_CASE_FIXTURE(BothWays, "the list of components is rewritten in the dry run alone") {
    tweaks::RewriteSysocInf(over.dry.services, true);
    const auto changes = over.dry.files.Changes();
    REQUIRE(changes.size() == 1);
    CHECK(changes[0].path == SysocPath);
    CHECK(changes[0].content == "a,,7\r\n");
    CHECK(over.inner.files.Content(SysocPath) == "a,hide,7\r\n");
}
