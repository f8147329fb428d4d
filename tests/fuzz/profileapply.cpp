// QuillmoreCmd with any profile over a registry of any content: what apply does, restore takes
// back.
#include <random>

#include "cmd/randomregistry.h"
#include "fuzz/registryoracle.h"
#include "fuzz/target.h"

namespace fuzz {

FUZZ_TARGET(profileapply) {
    Input bytes(input);
    std::mt19937 dice(bytes.Byte());
    const std::size_t mode = bytes.Below(8);
    cmd_test::Program program;
    auto& registry = program.machine.registry;
    program.machine.journal.Record(false);
    if (mode % 2 != 0) cmd_test::FillAtRandom(registry, dice);
    const std::string head = mode < 6 ? "\xEF\xBB\xBF[Quillmore]\r\nProfil=1\r\n" : "";
    program.console.files["p.txt"] = head + std::string(bytes.Rest());
    const RegistryDump before = registry.Dump();

    const int planned = program.Run({"plan", "p.txt"});
    const std::string plan = program.console.out;
    Require(registry.Dump() == before, "plan writes");
    const int code = program.Run({"apply", "p.txt", "/backup:a.reg", "/yes"});
    const RegistryDump after = registry.Dump();
    if (planned == cmd::WrongInput) {
        Require(code == cmd::WrongInput && after == before && plan.empty(),
                "a profile that is refused leaves a trace");
        Require(program.console.files.size() == 1, "a backup without need");
        Require(program.console.err.starts_with("p.txt: "), "a refusal without its file");
        return;
    }
    Require(code == cmd::Fine || code == cmd::NotAll, "another exit code");
    Require((planned == cmd::Fine) == (plan == "Nichts zu tun.\n") || planned == cmd::NotAll,
            "the plan's exit code");
    RequireSame(ForeignChange(before, after), "", "somebody else's place");
    Require(program.console.files.size() == 2, "no backup, or another file");
    Require(program.Run({"restore", "a.reg", "/yes"}) == cmd::Fine, "the backup is refused");
    Require(registry.Dump() == before, "the backup does not bring all back");
}

}  // namespace fuzz
