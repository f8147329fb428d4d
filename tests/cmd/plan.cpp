#include <doctest/doctest.h>

#include "cmd/change.h"
#include "cmd/console.h"
#include "runtime/encoding.h"
#include "tweaks/presetlists.h"

using namespace cmd_test;

namespace {

using Value = platform::WideRegistry::Value;

Value Wide(std::uint32_t type, const std::string& text) {
    const std::string units = runtime::ToUtf16(text);
    return {type, {units.begin(), units.end()}};
}

const std::string Nul(1, '\0');

}  // namespace

TEST_CASE("data are shown by their types") {
    CHECK(cmd::DataText({4, {1, 2, 0, 0}}) == "0x00000201 (513)");
    CHECK(cmd::DataText({4, {1, 2}}) == "01 02");
    CHECK(cmd::DataText(Wide(1, "a \"b\"" + Nul)) == "\"a \"b\"\"");
    CHECK(cmd::DataText(Wide(2, "a\r\n\tb")) == "\"a\\r\\n\\tb\"");
    CHECK(cmd::DataText(Wide(1, "a" + Nul + "b")) == "61 00 00 00 62 00");
    CHECK(cmd::DataText({1, {0x41}}) == "41");
    CHECK(cmd::DataText(Wide(7, "a" + Nul + "bc" + Nul + Nul)) == "\"a\" \"bc\"");
    CHECK(cmd::DataText(Wide(7, "a" + Nul)) == "61 00 00 00");
    CHECK(cmd::DataText({3, {}}) == "(leer)");
    CHECK(cmd::DataText({1, {}}) == "\"\"");
    const Value longOne{3, std::vector<std::uint8_t>(40, 0xAB)};
    CHECK(cmd::DataText(longOne).ends_with(" ab ... (40 Bytes)"));
    CHECK(cmd::DataText(longOne, true).size() == 40 * 3 - 1);
    CHECK(cmd::TypeText(0) == "REG_NONE");
    CHECK(cmd::TypeText(11) == "REG_QWORD");
    CHECK(cmd::TypeText(0x12345) == "Typ 0x12345");
}

TEST_CASE("plan tells every change on a line: what happens, the place, the old and the new") {
    Program program;
    program.machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("5000"));
    program.machine.registry.Put(HKLM, PoliciesKey, "NoDriveTypeAutoRun", DwordValue(185));
    program.console.files["p.txt"] =
        "[Quillmore]\nProfil=1\n[Tweaks]\ntxtTimeOut=7000\nchkCDAutoPlay=1\n";
    const auto before = program.machine.registry.Dump();
    CHECK(program.Run({"plan", "p.txt"}) == cmd::Differs);
    const std::string& out = program.console.out;
    CAPTURE(out);
    CHECK(Has(out,
              "ändern  HKCU\\Control Panel\\Desktop [HungAppTimeout]: "
              "REG_SZ \"5000\" -> REG_SZ \"7000\"\n"));
    CHECK(Has(out,
              "anlegen HKCU\\Control Panel\\Desktop [PaintDesktopVersion]: "
              "REG_DWORD 0x00000001 (1)\n"));
    CHECK(Has(out, "löschen HKLM\\" + std::string(PoliciesKey) +
                       " [NoDriveTypeAutoRun]: REG_DWORD 0x000000b9 (185)\n"));
    CHECK(Has(out, "löschen HKLM\\" + std::string(PoliciesKey) + "\n"));
    CHECK(out.find("[NoDriveTypeAutoRun]") <
          out.find("löschen HKLM\\" + std::string(PoliciesKey) + "\n"));
    CHECK(program.machine.registry.Dump() == before);
    CHECK(program.machine.processes.launched.empty());
    CHECK(program.console.files.size() == 1);
}

TEST_CASE("two texts that differ in their ends alone are told apart") {
    Program program;
    program.machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("5000"));
    program.Run({"plan"});
    CHECK(Has(program.console.out,
              "REG_SZ \"5000\" (mit Nullzeichen) -> "
              "REG_SZ \"5000\" (ohne Nullzeichen)\n"));
}

TEST_CASE("after apply nothing is left to change, and plan and apply say so") {
    Program program;
    CHECK(program.Run({"apply", "/preset:dsl,empfohlen", "/nobackup", "/yes"}) == cmd::Fine);
    CHECK(program.console.err == "");
    CHECK(program.Run({"apply", "/preset:dsl,empfohlen", "/nobackup", "/yes"}) == cmd::Fine);
    CHECK(program.Run({"plan", "/preset:dsl,empfohlen"}) <= cmd::Differs);
}

TEST_CASE("apply with a user: the plan, the question, then what was done") {
    Program program;
    program.console.answers = {"n"};
    CHECK(program.Run({"apply", "/preset:dsl", "/nobackup"}) == cmd::RefusedByUser);
    CHECK(program.machine.registry.Dump().empty());
    CHECK(Has(program.console.out, "anlegen HKCU\\"));
    CHECK_FALSE(Has(program.console.out, "angelegt"));
    CHECK(program.console.out.ends_with("Einstellungen übernehmen? (j/n) Nichts geändert.\n"));
    program.console.answers = {"j"};
    CHECK(program.Run({"apply", "/preset:dsl", "/backup:a.reg"}) == cmd::Fine);
    CHECK(Has(program.console.out, "Einstellungen übernehmen? (j/n) angelegt "));
    CHECK(program.console.files.contains("a.reg"));
}

TEST_CASE("a backup that was asked for is made, also where nothing is to be changed") {
    Program program;
    program.Run({"apply", "/preset:dsl", "/nobackup", "/yes"});
    program.Run({"apply", "/preset:dsl", "/nobackup", "/yes"});
    CHECK(program.Run({"apply", "/backup:a.reg"}) == cmd::Fine);
    CHECK(program.console.out == "Nichts zu tun.\n");
    CHECK(program.console.files.contains("a.reg"));
}

TEST_CASE("a refusal leaves no backup behind") {
    Program program;
    CHECK(program.Run({"apply", "/backup:a.reg"}) == cmd::RefusedByUser);
    CHECK(program.console.files.empty());
}

TEST_CASE("where nobody sees the output no question is put, but an answer is taken") {
    Program program;
    program.console.isSeen = false;
    CHECK(program.Run({"apply", "/preset:dsl", "/nobackup"}) == cmd::RefusedByUser);
    CHECK(program.console.out == "Nichts geändert. Ohne Frage geht es mit /yes.\n");
    program.console.answers = {"j"};
    CHECK(program.Run({"apply", "/preset:dsl", "/nobackup"}) == cmd::Fine);
    CHECK_FALSE(Has(program.console.out, "?"));
    CHECK(program.console.out.starts_with("angelegt "));
}

TEST_CASE("what the pass complains about stands on the standard error output") {
    Program program;
    program.console.files["p.txt"] = "\xEF\xBB\xBF[Quillmore]\nProfil=1\n[DFÜ]\ncboMTU=1500\n";
    CHECK(program.Run({"plan", "p.txt"}) == cmd::Differs);
    CHECK(program.console.err ==
          "Meldung: TTL falscher Wert eingegeben\n"
          "Meldung: HTTP1.0 Wert falsch eingegeben\n"
          "Meldung: HTTP1.1 Wert falsch eingegeben\n");
}

TEST_CASE("a pass that ends early is told, what came before is done, and the exit code is 3") {
    Program program;
    // A packet size without a receive window: what the window does with such a machine, too.
    program.machine.registry.Put(
        HKLM,
        "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
        "\\{3BD4192A-BF2A-4EBA-B0E7-7C61AE30590E}",
        "MTU", DwordValue(1500));
    CHECK(program.Run({"plan"}) == cmd::NotAll);
    CHECK(program.console.err.starts_with("WriteRegistry endet mit Fehler 13: "));
    CHECK(program.Run({"apply", "/nobackup", "/yes"}) == cmd::NotAll);
    CHECK(program.machine.registry.Value(HKCU, DesktopKey, "PaintDesktopVersion") == std::nullopt);
    CHECK_FALSE(program.machine.registry.Dump().empty());
}

TEST_CASE("the presets of a page, one after the other, are the preset of all") {
    const auto plan = [](const std::string& presets) {
        Program program;
        program.Run({"plan", "/preset:" + presets});
        return program.console.out;
    };
    CHECK(plan("empfohlen") == plan("empfohlen:System,empfohlen:Tweaks,empfohlen:Sicherheit,"
                                    "empfohlen:DFÜ"));
    CHECK(plan("standard") == plan("standard:System,standard:Tweaks,standard:Pfade,"
                                   "standard:Sicherheit,standard:DFÜ"));
    CHECK(plan("empfohlen") != plan("standard"));
    CHECK(plan("empfohlen") != plan("autotuning"));
    CHECK(plan("isdn") != plan("dsl"));
    CHECK(plan("isdn") != plan("analog"));
    CHECK(plan("netzwerk") != plan("dsl"));
    CHECK(plan("dsl,isdn") == plan("isdn"));
}

TEST_CASE("presets act on what is there: nothing at once, nothing in the settings store") {
    Program program;
    program.machine.journal.Clear();
    program.Run({"apply", "/preset:standard,empfohlen,autotuning", "/nobackup", "/yes"});
    CHECK(program.machine.processes.launched.empty());
    CHECK(program.machine.messages.Shown().empty());
    for (const auto& [place, value] : program.machine.registry.Dump()) {
        CHECK_FALSE(Has(place, "Desktop\\NameSpace"));
    }
}
