// QuillmoreCmd restore, with any file over a registry of any content.
#include <random>

#include "cmd/randomregistry.h"
#include "fuzz/registryoracle.h"
#include "fuzz/target.h"

namespace fuzz {

FUZZ_TARGET(restore) {
    Input bytes(input);
    std::mt19937 dice(bytes.Byte());
    const bool asks = bytes.Flag();
    cmd_test::Program program;
    auto& registry = program.machine.registry;
    program.machine.journal.Record(false);
    cmd_test::FillAtRandom(registry, dice);
    registry.Put(cmd_test::HKLM, "SOFTWARE\\Fremd", "Wert", {1, {'x'}});
    program.console.files["a.reg"] = bytes.Rest();
    const RegistryDump before = registry.Dump();
    const auto files = program.console.files;

    if (asks) {
        program.console.answers.push_back("n");
        const int asked = program.Run({"restore", "a.reg"});
        Require(asked == cmd::RefusedByUser || asked == cmd::Fine || asked == cmd::WrongInput,
                "another exit code");
        Require(registry.Dump() == before, "something is written without a yes");
    }
    const int code = program.Run({"restore", "a.reg", "/yes"});
    const RegistryDump after = registry.Dump();
    Require(code == cmd::Fine || code == cmd::WrongInput || code == cmd::NotAll,
            "another exit code");
    if (code == cmd::WrongInput) {
        Require(after == before, "a file that is refused leaves a trace");
        Require(program.console.out.empty() && program.console.err.starts_with("a.reg: Zeile "),
                "a refusal without its line");
    }
    RequireSame(ForeignChange(before, after), "", "somebody else's place");
    Require(program.Run({"restore", "a.reg", "/yes"}) == code, "another exit code, again");
    Require(registry.Dump() == after, "another registry, again");
    Require(program.console.files == files, "a file is written");
    Require(registry.OpenHandles() == 0, "handles are left open");
}

}  // namespace fuzz
