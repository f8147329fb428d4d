#include <doctest/doctest.h>

#include "endtoend/lines.h"
#include "endtoend/registrydump.h"
#include "endtoend/registryfile.h"
#include "endtoend/waiting.h"

namespace endtoend {
namespace {

std::vector<RegistryFileEntry> Parse(const std::string& lines) {
    return ParseRegistryFile(
        "Windows Registry Editor Version 5.00\r\n\r\n; comment\r\n"
        "[HKEY_CURRENT_USER\\Software\\Probe]\r\n" +
        lines);
}

TEST_CASE("a registry file's values are read with type and bytes") {
    const auto entries = Parse(
        "\"Text\"=\"C:\\\\Ordner \\\"ü\\\"\"\r\n"
        "@=\"\"\r\n"
        "\"Number\"=dword:00000091\r\n"
        "\"Bytes\"=hex:00,ff,\\\r\n"
        "  7f\r\n"
        "\"Several\"=hex(7):61,00,00,00,00,00\r\n");
    REQUIRE(entries.size() == 6);
    CHECK(entries[0].place.root == "HKCU");
    CHECK(entries[0].place.key == "Software\\Probe");
    CHECK_FALSE(entries[0].value);
    CHECK(entries[1].place.name == "Text");
    CHECK(entries[1].value == TerminatedText("C:\\Ordner \"ü\""));
    CHECK(entries[2].place.name == "");
    CHECK(entries[2].value == TerminatedText(""));
    CHECK(entries[3].value == Dword(0x91));
    CHECK(entries[4].value == Binary({"\0\xFF\x7F", 3}));
    CHECK(entries[5].value == RegistryValue{REG_MULTI_SZ, std::string("a\0\0\0\0\0", 6)});
}

TEST_CASE("a line that is not understood is refused") {
    CHECK_THROWS_AS(Parse("Text=1"), std::runtime_error);
    CHECK_THROWS_AS(Parse("\"Text\"=1"), std::runtime_error);
    CHECK_THROWS_AS(Parse("\"Text=\"a\""), std::runtime_error);
    CHECK_THROWS_AS(ParseRegistryFile("Windows Registry Editor Version 5.00\n\"Text\"=\"a\""),
                    std::runtime_error);
}

TEST_CASE("a snapshot tells new keys, changed bytes and lost values apart") {
    const ValuePlace kept = {"HKCU", "Software\\QuillmoreProbe", "Kept"};
    const ValuePlace lost = {"HKCU", "Software\\QuillmoreProbe", "Lost"};
    WriteValue(kept, BareText("ab"));
    WriteValue(lost, Dword(1));
    const RegistryState before = Snapshot({"HKCU\\Software\\QuillmoreProbe"});
    WriteValue(kept, TerminatedText("ab"));
    DeleteValue(lost);
    CreateKey("HKCU", "Software\\QuillmoreProbe\\New");
    const auto lines = Differences(before, Snapshot({"HKCU\\Software\\QuillmoreProbe"}));
    DeleteTree("HKCU", "Software\\QuillmoreProbe");
    CHECK(Joined(lines) ==
          "hkcu\\software\\quillmoreprobe\\new: absent -> a key\n"
          "hkcu\\software\\quillmoreprobe|kept: text \"ab\" 4 bytes -> text \"ab\" 6 bytes\n"
          "hkcu\\software\\quillmoreprobe|lost: type 4 01 00 00 00 -> absent\n");
}

TEST_CASE("a dump of the registry holds what its calls show, whatever lies in there") {
    const std::string key = "Software\\QuillmoreProbe";
    const std::string odd = key + "\\a\\B [ü] \"quoted\"\\\u20AC\\empty";
    CreateKey("HKCU", odd);
    std::string everyByte;
    std::string everyCharacter;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
        everyCharacter += {static_cast<char>(byte), '\0'};
    }
    everyCharacter += {'7', '\0', 'a', '\0', '\0', '\0'};
    for (DWORD type = 0; type < 13; ++type) {
        const std::string name = "of type " + std::to_string(type);
        WriteValue({"HKCU", odd, name}, {type, everyCharacter});
        WriteValue({"HKCU", odd, name + " without end"}, {type, everyByte});
        WriteValue({"HKCU", odd, name + ", empty"}, {type, ""});
        WriteValue({"HKCU", odd, name + ", odd"}, {type, "abc"});
        WriteValue({"HKCU", odd, name + ", short"}, {type, std::string("\x01\x02\0\0", 4)});
    }
    WriteValue({"HKCU", odd, ""}, TerminatedText("\x01"
                                                 "7\x02"
                                                 "x \u20AC1 \\\"]"));
    WriteValue({"HKCU", odd, "[ü]=\"\\\u20ACa"}, Dword(0xFFFFFFFF));
    RegistryState dumped;
    DumpTree("HKCU", key, dumped);
    const RegistryState shown = Snapshot({"HKCU\\" + key});
    DeleteTree("HKCU", key);
    CHECK(shown.size() > 65);
    CHECK(Joined(Differences(shown, dumped)) == "");
}

TEST_CASE("a dump of the registry that is cut off or not understood is refused") {
    RegistryState state;
    CHECK_THROWS_AS(ParseDump("REGEDIT4\n", "hkcu", state), Failed);
    for (const char* rest : {"[a", "[a] 1\n\"b\"", "[a] 1\n\"b\"=\"c", "[a] 1\n\"b\"=hex:0,",
                             "[a] 1\n\"b\"=dword:", "[a] 1\n\"b\"=word:1", "b=1\n"}) {
        CAPTURE(rest);
        CHECK_THROWS_AS(ParseDump(std::string("WINE REGISTRY Version 2\n") + rest, "hkcu", state),
                        Failed);
    }
}

}  // namespace
}  // namespace endtoend
