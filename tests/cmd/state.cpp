#include <doctest/doctest.h>

#include <set>

#include "cmd/console.h"
#include "cmd/places.h"

using namespace cmd_test;

namespace {

std::string LineOf(const Program& program, const std::string& control) {
    for (const std::string& line : program.OutLines()) {
        if (line.find(control) != std::string::npos) return line;
    }
    return "no line";
}

}  // namespace

TEST_CASE("state has a line for every option, with what the window shows and each place") {
    Program program;
    program.machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", BareTextValue("5000"));
    program.machine.registry.Put(HKCU, DesktopKey, "PaintDesktopVersion", DwordValue(0));
    CHECK(program.Run({"state"}) == cmd::Fine);
    CHECK(program.console.err == "");
    CHECK(program.OutLines().size() == cmd::Settings().size());
    CHECK(LineOf(program, "txtTimeOut") ==
          "Tweaks | txtTimeOut | Timeout für \"hängende\" Programme | \"5000\" | "
          "HKCU\\Control Panel\\Desktop [HungAppTimeout] REG_SZ \"5000\"");
    CHECK(LineOf(program, "chkOSVersionOnDesktop") ==
          "Tweaks | chkOSVersionOnDesktop | Windows Versionsnummer auf Desktop anzeigen | aus | "
          "HKCU\\Control Panel\\Desktop [PaintDesktopVersion] REG_DWORD 0x00000000 (0)");
    CHECK(LineOf(program, "chkEncryptionContext") ==
          "Tweaks | chkEncryptionContext | Ver- und Entschlüsselungsoption im "
          "Explorer-Kontextmenü | aus | "
          "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced "
          "[EncryptionContextMenu] nicht vorhanden | "
          "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced "
          "[EncryptionContextMenu] nicht vorhanden");
}

TEST_CASE("every option has a caption in words") {
    Program program;
    program.Run({"state"});
    std::set<std::string> captions;
    for (const std::string& line : program.OutLines()) {
        const std::size_t first = line.find(" | ");
        const std::size_t second = line.find(" | ", first + 3);
        const std::string caption =
            line.substr(second + 3, line.find(" | ", second + 3) - second - 3);
        CHECK(caption != "");
        captions.insert(caption);
    }
    // Some boxes are named by a label that others have, too.
    MESSAGE(captions.size(), " captions of ", program.OutLines().size());
    CHECK(captions.size() >= program.OutLines().size() - 3);
}

TEST_CASE("a text of several lines stands on the option's one line") {
    Program program;
    program.machine.registry.Put(HKLM, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                                 "LegalNoticeText", BareTextValue("a\r\nb\tc"));
    CHECK(program.Run({"state"}) == cmd::Fine);
    CHECK(program.OutLines().size() == cmd::Settings().size());
    CHECK(LineOf(program, "txtWinLogOnT").find("| \"a  b c\" |") != std::string::npos);
}

TEST_CASE("the list of fields is one that a German spreadsheet takes") {
    Program program;
    program.machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", BareTextValue("a\";b"));
    CHECK(program.Run({"state", "/csv"}) == cmd::Fine);
    CHECK(program.OutLines()[0] ==
          "\"Seite\";\"Steuerelement\";\"Beschriftung\";\"Anzeige\";\"Schlüssel\";\"Wert\";"
          "\"Typ\";\"Daten\"");
    CHECK(program.OutLines().size() == cmd::Settings().size() + 1);
    CHECK(LineOf(program, "\"txtTimeOut\"") ==
          "\"Tweaks\";\"txtTimeOut\";\"Timeout für \"\"hängende\"\" Programme\";\"a\"\";b\";"
          "\"HKCU\\Control Panel\\Desktop\";\"HungAppTimeout\";\"REG_SZ\";\"\"\"a\"\";b\"\"\"");
}

TEST_CASE("a place that cannot be read is told on both outputs, and the exit code is 3") {
    Program program;
    program.machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", BareTextValue("5000"));
    program.machine.registry.Deny(HKCU, DesktopKey, platform::Registry::MayQueryValue);
    CHECK(program.Run({"state"}) == cmd::NotAll);
    CHECK(program.OutLines().size() == cmd::Settings().size());
    CHECK(LineOf(program, "txtTimeOut").ends_with("[HungAppTimeout] nicht lesbar"));
    CHECK(program.console.err.find("HKCU\\Control Panel\\Desktop") != std::string::npos);
    CHECK(program.console.err.find(": Grund 5 (5)\n") != std::string::npos);
}

TEST_CASE("the box of the preview library shows what the settings store remembers") {
    Program program;
    program.Run({"state"});
    CHECK(LineOf(program, "chkSHMediaDLL").find(" | ein | ") != std::string::npos);
    program.machine.settingsStore.Save("Quillmore", "VideoPrv", "Regged", "true");
    program.Run({"state"});
    CHECK(LineOf(program, "chkSHMediaDLL").find(" | aus | ") != std::string::npos);
}
