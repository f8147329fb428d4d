// Measures the read pass and the write pass together on the real registry, against a bare loop that
// calls advapi32 the same times with the same arguments: interleaved pairs, medians.
// Everything but registry and locale is simulated, so the form has no windows and nothing is
// started. Call: realpasses <xp-baseline.reg> [pairs]
//
// The machine's own settings stay untouched: the predefined roots are led to a key of this program,
// which is filled from the baseline first and removed at the end.
#include <windows.h>

#include <shlwapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "calls.h"
#include "platform/machinewith.h"
#include "platform/simulated/machine.h"
#include "platform/win32/locale.h"
#include "platform/win32/registry.h"
#include "processortime.h"
#include "support/optionsform.h"
#include "tweaks/passes.h"

namespace {

using bench::Call;
using Calls = std::vector<Call>;

// The type by which a dump tells a key without values.
constexpr std::uint32_t NoValues = 0xFFFFFFFF;
constexpr char ScratchKey[] = "Software\\QuillmorePasses";

[[noreturn]] void Fail(const char* what) {
    std::printf("realpasses: %s\n", what);
    std::exit(1);
}

std::string FileText(const char* path) {
    std::string text;
    std::FILE* file = std::fopen(path, "rb");
    if (!file) Fail("the baseline cannot be read");
    char piece[4096];
    while (std::size_t count = std::fread(piece, 1, sizeof piece, file)) text.append(piece, count);
    std::fclose(file);
    return text;
}

// The entry points themselves, without a conversion on the way: paths and value names of the
// catalogue are plain ASCII.
class BareRegistry final : public bench::WithoutEnumeration {
  public:
    Result Open(Key parent, std::string_view path, std::uint32_t access, Key& opened) override {
        return RegOpenKeyExA(Native(parent), path.data(), 0, access,
                             reinterpret_cast<HKEY*>(&opened));
    }
    Result Create(Key parent, std::string_view name, std::uint32_t access, Key& created) override {
        SECURITY_ATTRIBUTES noInheritance = {};
        char keyClass[] = "";
        return RegCreateKeyExA(Native(parent), name.data(), 0, keyClass, REG_OPTION_NON_VOLATILE,
                               access, &noInheritance, reinterpret_cast<HKEY*>(&created), nullptr);
    }
    Result Query(Key key, std::string_view valueName, std::uint32_t& type, std::uint8_t* data,
                 std::uint32_t& size) override {
        DWORD nativeType = 0;
        DWORD nativeSize = size;
        const Result result = RegQueryValueExA(Native(key), valueName.data(), nullptr, &nativeType,
                                               data, &nativeSize);
        type = nativeType;
        size = nativeSize;
        return result;
    }
    Result Set(Key key, std::string_view valueName, std::uint32_t type, const std::uint8_t* data,
               std::uint32_t size) override {
        return RegSetValueExA(Native(key), valueName.data(), 0, type, data, size);
    }
    Result RemoveValue(Key key, std::string_view valueName) override {
        return RegDeleteValueA(Native(key), valueName.data());
    }
    Result RemoveKey(Key parent, std::string_view path) override {
        return RegDeleteKeyA(Native(parent), path.data());
    }
    Result Close(Key key) override { return RegCloseKey(Native(key)); }

  private:
    static HKEY Native(Key key) { return reinterpret_cast<HKEY>(key); }
};

// As long as it lives the three roots lead to keys of this program.
class ScratchRoots {
  public:
    ScratchRoots() {
        SHDeleteKeyA(HKEY_CURRENT_USER, ScratchKey);
        const char* const names[] = {"HKCR", "HKCU", "HKLM"};
        HKEY keys[3] = {};
        for (int i = 0; i < 3; ++i) {
            const std::string path = std::string(ScratchKey) + "\\" + names[i];
            if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                nullptr, &keys[i], nullptr) != ERROR_SUCCESS) {
                Fail("no key to work in");
            }
        }
        for (int i = 0; i < 3; ++i) {
            if (RegOverridePredefKey(Roots[i], keys[i]) != ERROR_SUCCESS) {
                Fail("the roots cannot be led elsewhere");
            }
            RegCloseKey(keys[i]);
        }
    }
    ~ScratchRoots() {
        for (HKEY root : Roots) RegOverridePredefKey(root, nullptr);
        SHDeleteKeyA(HKEY_CURRENT_USER, ScratchKey);
    }
    ScratchRoots(const ScratchRoots&) = delete;
    ScratchRoots& operator=(const ScratchRoots&) = delete;

  private:
    static inline const HKEY Roots[] = {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE};
};

// Puts everything that the simulated registry holds into the real one.
void Fill(const platform::simulated::Registry& from, platform::Registry& registry) {
    for (const auto& [place, value] : from.Dump()) {
        const std::size_t name = place.find('|');
        const std::string root = place.substr(0, 4);
        const auto rootKey = root == "HKCR"   ? bench::Service::ClassesRoot
                             : root == "HKCU" ? bench::Service::CurrentUser
                                              : bench::Service::LocalMachine;
        const std::string path = name > 5 ? place.substr(5, name - 5) : "";
        bench::Service::Key key = 0;
        if (registry.Create(rootKey, path, bench::Service::MayDoAll, key) != 0) {
            Fail(("cannot make " + place).c_str());
        }
        if (value.type != NoValues) {
            registry.Set(key, place.substr(name + 1), value.type, value.bytes.data(),
                         static_cast<std::uint32_t>(value.bytes.size()));
        }
        registry.Close(key);
    }
}

// A form with its passes on the given registry. Each is used once, as the program does.
struct Options {
    explicit Options(platform::Registry& registry)
        : services(platform::With(simulated.services, {.registry = &registry, .locale = &locale})),
          form(services),
          passes(form, services) {
        simulated.journal.Record(false);
    }

    platform::simulated::Machine simulated;
    platform::win32::Locale locale;
    platform::Machine services;
    tweak_tests::OptionsForm form;
    tweaks::Passes passes;
};

Calls RecordedPasses(platform::Registry& registry) {
    bench::Recorder recorder(registry);
    Options options(recorder);
    recorder.Take();
    options.passes.Read();
    options.form.FillNumbers();
    options.passes.Write();
    return recorder.Take();
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) Fail("call: realpasses <xp-baseline.reg> [pairs]");
    const std::string baseline = FileText(arguments[1]);
    const int pairs = count > 2 ? std::atoi(arguments[2]) : 101;
    ScratchRoots roots;
    platform::win32::Registry real;
    BareRegistry bare;
    {
        platform::simulated::Machine machine;
        machine.registry.Load(baseline);
        Fill(machine.registry, real);
    }
    // What one write changes, the next read sees; after two rounds nothing changes any more.
    RecordedPasses(real);
    RecordedPasses(real);
    const Calls calls = RecordedPasses(real);

    const std::wstring own = bench::ProcessOf("realpasses.exe");
    bench::Costs ourCosts;
    bench::Costs bareCosts;
    for (int i = 0; i < pairs; ++i) {
        Options options(real);
        ourCosts.Add(bench::CostOf(own, [&] {
            options.passes.Read();
            options.passes.Write();
        }));
        bareCosts.Add(bench::CostOf(own, [&] { bench::Repeat(calls, bare); }));
    }

    bench::Recorder watched(bare);
    bench::Repeat(calls, watched);
    if (watched.Take() != calls || RecordedPasses(real) != calls)
        Fail("the calls are not the same");
    bench::Report(
        "real_passes",
        ("both passes, real registry, " + std::to_string(calls.size()) + " calls").c_str(),
        ourCosts, bareCosts);
    return 0;
}
