#include "cmd/arguments.h"

#include <doctest/doctest.h>

#include "cmd/badinput.h"
#include "cmd/console.h"
#include "runtime/text.h"

using namespace cmd_test;

namespace {

using Given = std::vector<std::string>;

std::string Reason(const Given& given) {
    try {
        cmd::ParseArguments(given);
    } catch (const cmd::BadInput& input) {
        return input.reason;
    }
    return "taken";
}

}  // namespace

TEST_CASE("no command and the question mark show the help, whatever else stands there") {
    for (const Given& given :
         {Given{}, {"/?"}, {"-?"}, {"--help"}, {"/H"}, {"apply", "/?"}, {"/?", "unsinn"}}) {
        Program program;
        if (given == Given{"/?", "unsinn"}) {
            CHECK(program.Run(given) == cmd::WrongInput);
            continue;
        }
        CHECK(program.Run(given) == cmd::Fine);
        CHECK(program.console.out.starts_with("Quillmore: Einstellungen"));
        CHECK(program.console.err == "");
    }
}

TEST_CASE("the help fits on one screen of a console") {
    Program program;
    program.Run({});
    CHECK(program.OutLines().size() <= 24);
    for (const std::string& line : program.OutLines()) CHECK(runtime::Length(line) <= 79);
}

TEST_CASE("commands and switches are known in any letter case, with a slash or a hyphen") {
    for (const Given& given : {Given{"STATE", "/CSV", "/Utf8"},
                               {"-csv", "State", "-UTF8"},
                               {"state", "/csv", "/utf8"}}) {
        const cmd::Arguments arguments = cmd::ParseArguments(given);
        CHECK(arguments.verb == cmd::Verb::State);
        CHECK(arguments.csv);
        CHECK(arguments.utf8);
        CHECK_FALSE(arguments.raw);
    }
}

TEST_CASE("presets come in the order of the command line, files with a colon of their own") {
    const cmd::Arguments arguments =
        cmd::ParseArguments({"plan", "C:\\Profil.txt", "/preset:DSL,empfohlen:dfü",
                             "/reg:D:\\a b.reg", "/preset:standard"});
    CHECK(arguments.verb == cmd::Verb::Plan);
    CHECK(arguments.file == "C:\\Profil.txt");
    CHECK(arguments.presets == Given{"DSL", "empfohlen:dfü", "standard"});
    CHECK(arguments.regFile == "D:\\a b.reg");
}

TEST_CASE("what a command does not know or lacks is refused in one sentence") {
    CHECK(Reason({"los"}) == "unbekannter Befehl \"los\"");
    CHECK(Reason({"/csv"}) == "vor oder hinter /csv fehlt der Befehl");
    CHECK(Reason({"state", "datei"}) == "\"datei\" ist hier zu viel");
    CHECK(Reason({"plan", "a", "b"}) == "\"b\" ist hier zu viel");
    CHECK(Reason({"profile"}) == "hinter profile fehlt die Datei");
    CHECK(Reason({"backup", ""}) == "ein Name ist leer");
    CHECK(Reason({"restore"}) == "hinter restore fehlt die Datei");
    CHECK(Reason({"state", "/yes"}) == "state kennt keinen Schalter /yes");
    CHECK(Reason({"plan", "/"}) == "taken");
    CHECK(Reason({"plan", "/reg"}) == "hinter /reg: fehlt etwas");
    CHECK(Reason({"plan", "/preset:"}) == "hinter /preset: fehlt etwas");
    CHECK(Reason({"plan", "/reg:a", "/reg:b"}) == "/reg steht zweimal da");
    CHECK(Reason({"apply", "/yes:1", "/nobackup"}) == "hinter /yes gehört nichts");
    CHECK(Reason({"plan", "/preset:dsl,"}) == "unbekannte Voreinstellung \"\"");
    CHECK(Reason({"plan", "/preset:schnell"}) == "unbekannte Voreinstellung \"schnell\"");
    CHECK(Reason({"plan", "/preset:empfohlen:pfade"}) ==
          "unbekannte Voreinstellung \"empfohlen:pfade\"");
    CHECK(Reason({"plan", "/preset:dsl:System"}) == "unbekannte Voreinstellung \"dsl:System\"");
    const std::string wants =
        "apply braucht /backup:DATEI.reg oder /nobackup, und nur eines von beiden";
    CHECK(Reason({"apply"}) == wants);
    CHECK(Reason({"apply", "/backup:a.reg", "/nobackup"}) == wants);
    CHECK(Reason({"apply", "/backup:a.reg"}) == "taken");
    CHECK(Reason({"apply", "/nobackup"}) == "taken");
}

TEST_CASE("every page has its own presets, in any letter case") {
    for (const char* page : {"System", "tweaks", "SICHERHEIT", "DFÜ", "dfü"}) {
        CHECK(Reason({"plan", std::string("/preset:standard:") + page}) == "taken");
        CHECK(Reason({"plan", std::string("/preset:Empfohlen:") + page}) == "taken");
    }
    CHECK(Reason({"plan", "/preset:standard:Pfade"}) == "taken");
    CHECK(Reason({"plan", "/preset:analog,ISDN,dsl,netzwerk,AutoTuning"}) == "taken");
}

TEST_CASE("a wrong command line writes nothing, says why on one line, and has exit code 2") {
    Program program;
    CHECK(program.Run({"apply", "/preset:schnell", "/nobackup"}) == cmd::WrongInput);
    CHECK(program.console.out == "");
    CHECK(program.console.err ==
          "QuillmoreCmd: unbekannte Voreinstellung \"schnell\". Hilfe: QuillmoreCmd /?\n");
    CHECK(program.machine.journal.Lines().empty());
}

TEST_CASE("another Windows than build 2600 is refused, and accepted with /raw") {
    Program program;
    program.machine.operatingSystem.facts.build = 3790;
    CHECK(program.Run({"state"}) == cmd::WrongSystem);
    CHECK(program.console.out == "");
    CHECK(program.ErrLines().size() == 1);
    CHECK(program.console.err.find("(Build 3790)") != std::string::npos);
    CHECK(program.Run({"state", "/raw"}) == cmd::Fine);
    CHECK(program.Run({}) == cmd::Fine);
}

TEST_CASE("/utf8 asks for UTF-8, and nothing else does") {
    Program program;
    program.Run({"state"});
    CHECK_FALSE(program.console.utf8);
    program.Run({"state", "/utf8"});
    CHECK(program.console.utf8);
}
