#include "cmd/backup.h"

#include <doctest/doctest.h>

#include "cmd/badinput.h"
#include "cmd/console.h"
#include "runtime/encoding.h"
#include "runtime/text.h"

using namespace cmd_test;

namespace {

struct BackingUp : Program {
    std::string Text() {
        CHECK(Run({"backup", "a.reg"}) == cmd::Fine);
        CHECK(console.out == "");
        CHECK(console.err == "");
        const std::string file = console.files["a.reg"];
        console.files.erase("a.reg");
        return runtime::FromUtf16(file.substr(2));
    }

    int Restore(const std::string& lines) {
        console.files["r.reg"] = "Windows Registry Editor Version 5.00\r\n\r\n" + lines;
        return Run({"restore", "r.reg", "/yes"});
    }
};

}  // namespace

TEST_CASE("the places that the write pass may touch are those of the rows, each once") {
    for (const cmd::TouchedKey& key : cmd::TouchedKeys()) {
        CHECK(cmd::FindTouchedKey(key.root, runtime::ToUpper(key.path)) == &key);
        CHECK_FALSE(key.path.ends_with('\\'));
    }
    CHECK(cmd::LeadsToTouched(HKLM, "software"));
    CHECK(cmd::LeadsToTouched(HKLM, ""));
    CHECK_FALSE(cmd::LeadsToTouched(HKLM, "soft"));
    CHECK_FALSE(cmd::LeadsToTouched(HKLM, "SAM"));
    CHECK_FALSE(cmd::LeadsToTouched(HKCU, std::string(DesktopKey) + "\\Anderes"));
}

TEST_CASE("these keys and no others may go as a whole") {
    std::vector<std::string> names;
    for (const cmd::TouchedKey& key : cmd::TouchedKeys()) {
        if (key.mayGo) names.push_back(cmd::PlaceText(key.root, key.path));
    }
    const std::string current = R"(HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\)";
    CHECK(names ==
          std::vector<std::string>{
              R"(HKLM\Software\Microsoft\Windows\CurrentVersion\Policies\Explorer)",
              R"(HKCR\SystemFileAssociations\image\ShellEx\ContextMenuHandlers\ShellImagePreview)",
              R"(HKLM\SOFTWARE\Microsoft\MediaPlayer\Settings\MP3Encoding)",
              current + R"(Explorer\MyComputer\NameSpace\DelegateFolders)"
                        R"(\{59031a47-3f72-44a7-89c5-5595fe6b30ee})",
              R"(HKLM\SOFTWARE\Microsoft\Internet Explorer\Extensions)"
              R"(\{c95fe080-8f5d-11d2-a20b-00aa003c157a})",
              current + R"(Explorer\RemoteComputer\NameSpace)"
                        R"(\{D6277990-4C6A-11CF-8D87-00AA0060F5BF})"});
}

TEST_CASE_FIXTURE(BackingUp, "of a key that is missing the topmost missing one is to be removed") {
    machine.registry.MakeKey(HKCU, "Control Panel");
    const std::string text = Text();
    CHECK(Has(text, "[-HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n"));
    CHECK_FALSE(Has(text, "WindowMetrics"));
    CHECK(Has(text, "[-HKEY_LOCAL_MACHINE\\SYSTEM]\r\n"));
    CHECK(text.find("[-HKEY_LOCAL_MACHINE\\SYSTEM]") ==
          text.rfind("[-HKEY_LOCAL_MACHINE\\SYSTEM]"));
}

TEST_CASE_FIXTURE(BackingUp,
                  "a value that is there is kept with its bytes, one that lacks is to be removed") {
    machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", BareTextValue("5000"));
    machine.registry.Put(HKCU, DesktopKey, "Anderes", TextValue("bleibt"));
    const std::string text = Text();
    CHECK(Has(text, "[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n"));
    CHECK(Has(text, "\"HungAppTimeout\"=hex(1):35,00,30,00,30,00,30,00\r\n"));
    CHECK(Has(text, "\"PaintDesktopVersion\"=-\r\n"));
    CHECK_FALSE(Has(text, "Anderes"));
}

TEST_CASE_FIXTURE(BackingUp, "of a key that may be deleted every value is kept") {
    machine.registry.Put(HKLM, PoliciesKey, "Fremd", TextValue("auch"));
    CHECK(Has(Text(), "\"Fremd\"=\"auch\"\r\n"));
}

TEST_CASE_FIXTURE(BackingUp, "a backup never takes the place of a file that is there") {
    console.files["a.reg"] = "alt";
    CHECK(Run({"backup", "a.reg"}) == cmd::NotAll);
    CHECK(console.err == "a.reg: Datei ist schon vorhanden\n");
    CHECK(Run({"apply", "/backup:a.reg", "/yes"}) == cmd::NotAll);
    CHECK(machine.registry.Dump().empty());
    CHECK(console.files["a.reg"] == "alt");
}

TEST_CASE_FIXTURE(BackingUp,
                  "what cannot be read for a backup is told, and apply does not begin then") {
    machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("5000"));
    machine.registry.Put(HKCU, "Control Panel\\Desktop\\WindowMetrics", "MinAnimate",
                         TextValue("0"));
    const auto before = machine.registry.Dump();
    machine.registry.Deny(HKCU, DesktopKey, platform::Registry::MayQueryValue);
    CHECK(Run({"backup", "b.reg"}) == cmd::NotAll);
    CHECK(Has(console.err, "HKCU\\Control Panel\\Desktop"));
    CHECK(console.files.contains("b.reg"));
    CHECK(Run({"apply", "/preset:empfohlen", "/backup:c.reg", "/yes"}) == cmd::NotAll);
    CHECK(Has(console.err, "Ohne vollständige Sicherung wird nichts geändert.\n"));
    CHECK_FALSE(console.files.contains("c.reg"));
    CHECK(machine.registry.Dump() == before);
}

TEST_CASE_FIXTURE(BackingUp,
                  "restore refuses every place that Apply never touches, and writes nothing") {
    machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("5000"));
    machine.registry.Put(HKCU, DesktopKey, "Wallpaper", TextValue("bild.bmp"));
    machine.registry.Put(HKLM, "SOFTWARE\\Fremd", "x", TextValue("y"));
    const auto before = machine.registry.Dump();
    const std::string right =
        "[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\"\r\n";
    const struct {
        const char* lines;
        const char* told;
    } rows[] = {
        {"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Fremd]\r\n",
         "Zeile 5: HKEY_LOCAL_MACHINE\\SOFTWARE\\Fremd"},
        {"[HKEY_USERS\\.DEFAULT]\r\n", "Zeile 5: HKEY_USERS\\.DEFAULT"},
        {"[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"Wallpaper\"=-\r\n",
         "Zeile 6: HKCU\\Control Panel\\Desktop [Wallpaper]"},
        {"[HKEY_CURRENT_USER\\Control Panel]\r\n\"x\"=\"1\"\r\n",
         "Zeile 6: HKCU\\Control Panel [x]"},
        {"[-HKEY_CURRENT_USER\\Control Panel]\r\n", "Zeile 5: derselbe Schlüssel"},
        {"[-HKEY_LOCAL_MACHINE]\r\n", "Zeile 5: Ein ganzer Stamm wird nicht gelöscht."},
    };
    for (const auto& row : rows) {
        CAPTURE(console.err);
        CHECK(Restore(right + row.lines) == cmd::WrongInput);
        CHECK(console.err.starts_with(std::string("r.reg: ") + row.told));
        CHECK(console.out == "");
        CHECK(machine.registry.Dump() == before);
    }
    CHECK(Restore(right) == cmd::Fine);
    CHECK(machine.registry.Dump() != before);
}

TEST_CASE_FIXTURE(BackingUp,
                  "a slip in a registration file is told with its line, and nothing is written") {
    CHECK(
        Restore("[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\"\r\n\"x") ==
        cmd::WrongInput);
    CHECK(console.err.starts_with("r.reg: Zeile 5: "));
    CHECK(machine.registry.Dump().empty());
    console.files["r.reg"] = "";
    CHECK(Run({"restore", "r.reg", "/yes"}) == cmd::WrongInput);
}

TEST_CASE_FIXTURE(BackingUp,
                  "of a value that a file has twice the last one counts, as for regedit") {
    machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("2"));
    CHECK(Restore("[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\"\r\n"
                  "\"HUNGAPPTIMEOUT\"=\"3\"\r\n"
                  "[HKEY_CURRENT_USER\\CONTROL PANEL\\DESKTOP]\r\n\"HungAppTimeout\"=\"2\"\r\n") ==
          cmd::Fine);
    CHECK(console.out == "Nichts zu tun.\n");
}

TEST_CASE_FIXTURE(BackingUp,
                  "restore shows what it would do, asks, and takes anything but j as no") {
    console.files["r.reg"] =
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"HungAppTimeout\"=\"1\"\r\n";
    for (const char* answer : {"n", "", "ja", " j", "y", "J"}) {
        console.answers = {answer};
        CHECK(Run({"restore", "r.reg"}) == cmd::RefusedByUser);
        CHECK(machine.registry.Dump().empty());
    }
    CHECK(Run({"restore", "r.reg"}) == cmd::RefusedByUser);
    console.answers = {"j"};
    CHECK(Run({"restore", "r.reg"}) == cmd::Fine);
    CHECK(console.out ==
          "anlegen HKCU\\Control Panel\\Desktop\n"
          "anlegen HKCU\\Control Panel\\Desktop [HungAppTimeout]: REG_SZ \"1\"\n"
          "Einstellungen zurückholen? (j/n) "
          "angelegt HKCU\\Control Panel\\Desktop\n"
          "angelegt HKCU\\Control Panel\\Desktop [HungAppTimeout]: REG_SZ \"1\"\n"
          "2 von 2 Änderungen ausgeführt.\n");
}

TEST_CASE_FIXTURE(BackingUp,
                  "what others have put below a key that was missing stays, and all else goes") {
    REQUIRE(Run({"backup", "a.reg"}) == cmd::Fine);
    REQUIRE(Run({"apply", "/preset:empfohlen", "/nobackup", "/yes"}) == cmd::Fine);
    machine.registry.Put(HKCU, DesktopKey, "Wallpaper", TextValue("bild.bmp"));
    machine.registry.Put(HKLM, "SOFTWARE\\Fremd\\Unten", "x", TextValue("y"));
    CHECK(Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
    CHECK(Has(console.err, "HKLM\\SOFTWARE\\Fremd bleibt: Das ist nicht von Quillmore.\n"));
    CHECK(Has(console.err, "HKCU\\Control Panel\\Desktop [Wallpaper] bleibt: "));
    const auto left = machine.registry.Dump();
    // The two values, and three keys above them.
    CHECK(left.size() == 5);
    CHECK(machine.registry.Value(HKCU, DesktopKey, "Wallpaper") == TextValue("bild.bmp"));
    CHECK(machine.registry.Value(HKLM, "SOFTWARE\\Fremd\\Unten", "x") == TextValue("y"));
    CHECK(Run({"restore", "a.reg", "/yes"}) == cmd::Fine);
    CHECK(console.out == "Nichts zu tun.\n");
}

TEST_CASE_FIXTURE(BackingUp,
                  "a key that cannot be looked through stays, as nobody knows what else it holds") {
    REQUIRE(Run({"backup", "a.reg"}) == cmd::Fine);
    machine.registry.Put(HKCU, DesktopKey, "HungAppTimeout", TextValue("1"));
    machine.registry.Put(HKCU, DesktopKey, "Wallpaper", TextValue("bild.bmp"));
    for (const char* call : {"RegEnumValueA", "RegEnumKeyA"}) {
        machine.faults.FailAll(call, platform::Registry::AccessDenied);
        CHECK(Run({"restore", "a.reg", "/yes"}) == cmd::NotAll);
        machine.faults.Clear();
        CHECK(machine.registry.Value(HKCU, DesktopKey, "Wallpaper").has_value());
    }
}
