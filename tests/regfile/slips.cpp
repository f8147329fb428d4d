#include <doctest/doctest.h>

#include "units.h"

using namespace regfile_test;

namespace {

std::string SlipIn(const std::string& file) {
    try {
        Read(file);
    } catch (const Slip& slip) {
        CHECK(slip.what() == std::string(slip.reason));
        return std::to_string(slip.line) + ": " + slip.reason;
    }
    return "";
}

// What is said of lines below a good key; they begin with line 3.
std::string SlipBelow(const std::string& lines) {
    return SlipIn("Windows Registry Editor Version 5.00\n[HKEY_LOCAL_MACHINE\\A]\n" + lines);
}

void CheckSlips(const std::string& reason, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        CAPTURE(line);
        CHECK(SlipBelow(line) == "3: " + reason);
        CHECK(SlipBelow(line + "\n\"good\"=\"\"\n").starts_with("3: "));
    }
}

}  // namespace

TEST_CASE("a file without its first line is refused") {
    const std::string missing = "1: Die Kopfzeile \"Windows Registry Editor Version 5.00\" fehlt.";
    CHECK(SlipIn("") == missing);
    CHECK(SlipIn("\nWindows Registry Editor Version 5.00\n") == missing);
    CHECK(SlipIn("Windows Registry Editor Version 5.001\n") == missing);
    CHECK(SlipIn("Windows Registry Editor Version 5.0\n") == missing);
    CHECK(SlipIn("REGEDIT4\n") == "1: Die alte Form REGEDIT4 wird nicht gelesen.");
    CHECK(SlipIn("Windows Registry Editor Version 5.00") == "");
}

TEST_CASE("characters that are none are refused with their line") {
    const std::string head = "Windows Registry Editor Version 5.00\n";
    CHECK(SlipIn("\xEF\xBB\xBF" + head + ";\xFC") == "2: Der Text ist kein gültiges UTF-8.");
    CHECK(SlipIn("\xEF\xBB\xBF" + head + ";\xC0\x80") == "2: Der Text ist kein gültiges UTF-8.");
    CHECK(SlipIn(head + "\n;" + std::string(1, '\0')) == "3: Ein Zeichen mit der Nummer 0.");
    CHECK(SlipIn(FileOf(u"\uFEFFWindows Registry Editor Version 5.00\n") + "x") ==
          "2: Die Datei endet mitten in einem Zeichen.");
    CHECK(SlipIn("\xFE\xFF").starts_with("1: Die Kopfzeile"));
}

TEST_CASE("every slip is told by its line and its reason") {
    CheckSlips("Die Zeile ist weder ein Schlüssel noch ein Wert.",
               {"nonsense", "HKEY_LOCAL_MACHINE", "v=1", "-", "=", "\\", "  03,04"});
    CheckSlips("Die schließende Klammer fehlt.", {"[HKEY_LOCAL_MACHINE\\B", "[", "[-"});
    CheckSlips("Der Schlüssel beginnt mit keinem bekannten Stamm.",
               {"[]", "[-]", "[HKLM\\B]", "[HKEY_LOCAL_MACHINEX\\B]", "[\\HKEY_LOCAL_MACHINE]",
                "[ HKEY_LOCAL_MACHINE\\B]", "[HKEY_LOCAL_MACHINE \\B]", "[--HKEY_LOCAL_MACHINE\\B]",
                "[HKEY_DYN_DATA\\B]"});
    CheckSlips("Im Pfad des Schlüssels fehlt ein Name.",
               {"[HKEY_LOCAL_MACHINE\\\\B]", "[HKEY_LOCAL_MACHINE\\B\\\\C]",
                "[HKEY_LOCAL_MACHINE\\B\\\\]", "[HKEY_LOCAL_MACHINE\\\\]"});
    CheckSlips("Ein ganzer Stamm wird nicht gelöscht.",
               {"[-HKEY_LOCAL_MACHINE]", "[-HKEY_LOCAL_MACHINE\\]"});
    CheckSlips("Hinter dem Schlüssel steht noch etwas.",
               {"[HKEY_LOCAL_MACHINE\\B]x", "[HKEY_LOCAL_MACHINE\\B] \"v\"=-"});
    CheckSlips("Das Gleichheitszeichen fehlt.", {"\"v\"", "@", "@v=-", "\"v\" x", "\"v\";=-"});
    CheckSlips("Ein umgekehrter Schrägstrich steht allein im Text.",
               {"\"v\\n\"=-", "\"v\"=\"a\\nb\"", "\"v\\"});
    CheckSlips("Die Art der Daten ist unbekannt.",
               {"\"v\"=", "\"v\"=1", "\"v\"=word:1", "\"v\"=hex", "\"v\"=dword", "\"v\"=;-"});
    CheckSlips("Die Zahl hat nicht ein bis acht hexadezimale Ziffern.",
               {"\"v\"=dword:", "\"v\"=dword:123456789", "\"v\"=dword:000000001", "\"v\"=dword:-1",
                "\"v\"=dword: 1", "\"v\"=dword:x", "\"v\"=hex():00", "\"v\"=hex(100000000):00"});
    CheckSlips("Hinter der Nummer des Typs fehlt \"):\".",
               {"\"v\"=hex(2:00", "\"v\"=hex(2)", "\"v\"=hex(2)00"});
    CheckSlips("Ein Byte hat nicht zwei hexadezimale Ziffern.",
               {"\"v\"=hex:1", "\"v\"=hex:01,", "\"v\"=hex:0x", "\"v\"=hex:,", "\"v\"=hex:01,,02",
                "\"v\"=hex:01,;", "\"v\"=hex:01,2", "\"v\"=hex:g0"});
    CheckSlips("Hinter dem Schrägstrich am Zeilenende steht noch etwas.",
               {"\"v\"=hex:01,\\02", "\"v\"=hex:\\x"});
    CheckSlips("Hinter den Daten steht noch etwas.",
               {"\"v\"=--", "\"v\"=\"a\"b", "\"v\"=\"a\" \"b\"", "\"v\"=dword:12g4",
                "\"v\"=hex:001", "\"v\"=hex:01 02", "\"v\"=hex:01 x"});
}

TEST_CASE("a text without an end is told by the line on which it begins") {
    CHECK(SlipBelow("\"v=1\n\n\n") == "3: Das schließende Anführungszeichen fehlt.");
    CHECK(SlipBelow("\n\"v\"=\"open\nx\n") == "4: Das schließende Anführungszeichen fehlt.");
}

TEST_CASE("a slip in wrapped bytes is told by the line on which it stands") {
    CHECK(SlipBelow("\"b\"=hex:01,\\\n  02,\\\n  0x").starts_with("5: Ein Byte"));
    CHECK(SlipBelow("\"b\"=hex:01,\\\n02,\\\n03\nnonsense").starts_with("6: Die Zeile"));
    CHECK(SlipBelow("\"b\"=hex:01,\\\n[HKEY_LOCAL_MACHINE\\B]").starts_with("4: Ein Byte"));
    CHECK(SlipBelow("\"b\"=hex:01,\\").starts_with("3: Ein Byte"));
}

TEST_CASE("a value needs a key that is made") {
    CHECK(SlipIn("Windows Registry Editor Version 5.00\n\"v\"=dword:1") ==
          "2: Der Wert gehört zu keinem Schlüssel.");
    CHECK(SlipBelow("[-HKEY_LOCAL_MACHINE\\B]\n\"v\"=-") ==
          "4: Der Wert gehört zu keinem Schlüssel.");
}
