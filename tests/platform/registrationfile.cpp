#include <doctest/doctest.h>

#include <stdexcept>

#include "keys.h"

using namespace platform_test;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;

namespace {

struct RegistrationFile : Keys {
    void Load(const std::string& body) {
        registry.Load("Windows Registry Editor Version 5.00\n\n" + body);
    }
    std::string Refusal(const std::string& text) {
        try {
            registry.Load(text);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "";
    }
    // What is said of one bad line below a good key; the line's number is 3.
    std::string RefusalOf(const std::string& line) {
        return Refusal("Windows Registry Editor Version 5.00\n[HKEY_LOCAL_MACHINE\\A]\n" + line);
    }
    bool Refuses(const std::string& line) {
        return RefusalOf(line).starts_with("registration file, line 3: ");
    }
};

}  // namespace

TEST_CASE_FIXTURE(RegistrationFile, "keys of the three roots are made, with and without values") {
    Load("[HKEY_CLASSES_ROOT\\.txt]\n[HKEY_CURRENT_USER\\Software]\n[HKEY_LOCAL_MACHINE\\A\\B]\n");
    CHECK(registry.HasKey(HKCR, ".txt"));
    CHECK(registry.HasKey(HKCU, "Software"));
    CHECK(registry.HasKey(HKLM, "A\\B"));
    CHECK(machine.journal.Count() == 0);
}

TEST_CASE_FIXTURE(RegistrationFile, "texts come with their end and without their escapes") {
    Load(
        "[HKEY_LOCAL_MACHINE\\A]\n\"Pfad\\\\x\"=\"C:\\\\WINDOWS \\\"ü\\\"\"\n@=\"Standard\"\n"
        "\"leer\"=\"\"\n");
    CHECK(registry.Value(HKLM, "A", "Pfad\\x") == TextValue("C:\\WINDOWS \"ü\""));
    CHECK(registry.Value(HKLM, "A", "") == TextValue("Standard"));
    CHECK(registry.Value(HKLM, "A", "leer") == TextValue(""));
}

TEST_CASE_FIXTURE(RegistrationFile, "numbers and bytes are read in hexadecimal") {
    Load(
        "[HKEY_LOCAL_MACHINE\\A]\n\"n\"=dword:0000ffFE\n\"b\"=hex:01,fF,00\n\"e\"=hex:\n"
        "\"none\"=hex(0):\n\"big\"=hex(b):01,00,00,00,00,00,00,00\n");
    CHECK(registry.Value(HKLM, "A", "n") == DwordValue(0xFFFE));
    CHECK(registry.Value(HKLM, "A", "b") == StoredValue{3, {1, 0xFF, 0}});
    CHECK(registry.Value(HKLM, "A", "e") == StoredValue{3, {}});
    CHECK(registry.Value(HKLM, "A", "none") == StoredValue{0, {}});
    CHECK(registry.Value(HKLM, "A", "big") == StoredValue{11, {1, 0, 0, 0, 0, 0, 0, 0}});
}

TEST_CASE_FIXTURE(RegistrationFile, "texts in bytes go from UTF-16 to the code page") {
    Load(
        "[HKEY_LOCAL_MACHINE\\A]\n\"s\"=hex(1):41,00,ac,20\n\"x\"=hex(2):25,00,fc,00,00,00\n"
        "\"m\"=hex(7):61,00,00,00,62,00,00,00,00,00\n\"far\"=hex(1):3d,d8,00,de\n");
    CHECK(registry.Value(HKLM, "A", "s") == StoredValue{1, {'A', 0x80}});
    CHECK(registry.Value(HKLM, "A", "x") == StoredValue{2, {'%', 0xFC, 0}});
    CHECK(registry.Value(HKLM, "A", "m") == StoredValue{7, {'a', 0, 'b', 0, 0}});
    CHECK(registry.Value(HKLM, "A", "far") == StoredValue{1, {'?', '?'}});
}

TEST_CASE_FIXTURE(RegistrationFile, "bytes go on over lines that end in a backslash") {
    Load("[HKEY_LOCAL_MACHINE\\A]\n\"b\"=hex:01,02,\\\n  03,\\\n\t04\n\"next\"=dword:00000001\n");
    CHECK(registry.Value(HKLM, "A", "b") == StoredValue{3, {1, 2, 3, 4}});
    CHECK(registry.Value(HKLM, "A", "next") == DwordValue(1));
}

TEST_CASE_FIXTURE(RegistrationFile, "CR LF, a byte order mark, comments and blanks are no matter") {
    registry.Load(
        "\xEF\xBB\xBFWindows Registry Editor Version 5.00\r\n\r\n; a comment \\\r\n"
        "[HKEY_LOCAL_MACHINE\\A]\r\n\r\n\"n\"=dword:00000002\r\n");
    CHECK(registry.Value(HKLM, "A", "n") == DwordValue(2));
}

TEST_CASE_FIXTURE(RegistrationFile, "a minus deletes a key with all below it, or a value") {
    registry.Put(HKLM, "A\\B", "v", DwordValue(1));
    registry.Put(HKLM, "C", "v", DwordValue(1));
    Load("[-HKEY_LOCAL_MACHINE\\A]\n\n[HKEY_LOCAL_MACHINE\\C]\n\"v\"=-\n");
    CHECK_FALSE(registry.HasKey(HKLM, "A"));
    CHECK(registry.HasKey(HKLM, "C"));
    CHECK_FALSE(registry.Value(HKLM, "C", "v"));
}

TEST_CASE_FIXTURE(RegistrationFile, "a file without its header is refused") {
    CHECK(Refusal("").ends_with("Die Kopfzeile \"Windows Registry Editor Version 5.00\" fehlt."));
    CHECK(Refusal("REGEDIT4\n").starts_with("registration file, line 1: "));
    CHECK(Refusal("\nWindows Registry Editor Version 5.00\n") != "");
}

TEST_CASE_FIXTURE(RegistrationFile, "every malformed line is refused with its number") {
    for (const char* line : {"[HKEY_LOCAL_MACHINE\\B",
                             "[HKEY_USERS\\B]",
                             "[]",
                             "nonsense",
                             "\"v\"",
                             "\"v=1",
                             "\"v\"=",
                             "\"v\"=1",
                             "\"v\"=dword:",
                             "\"v\"=dword:123456789",
                             "\"v\"=dword:000000001",
                             "\"v\"=dword:12g4",
                             "\"v\"=dword:-1",
                             "\"v\"=\"open",
                             "\"v\"=\"a\"b",
                             "\"v\"=\"a\\nb\"",
                             "\"v\"=hex:1",
                             "\"v\"=hex:001",
                             "\"v\"=hex:01,",
                             "\"v\"=hex:01 02",
                             "\"v\"=hex:0x",
                             "\"v\"=hex(2:00",
                             "\"v\"=hex():00",
                             "\"v\"=hex(1):41",
                             "\"v\"=hex:01,\\",
                             "\"v\\"}) {
        CAPTURE(line);
        CHECK(Refuses(line));
    }
}

TEST_CASE_FIXTURE(RegistrationFile,
                  "a line behind continued bytes is refused with its own number") {
    CHECK(RefusalOf("\"b\"=hex:01,\\\n02,\\\n03\nnonsense")
              .starts_with("registration file, line 6: "));
}

TEST_CASE_FIXTURE(RegistrationFile, "a value before any key, or below a deleted one, is refused") {
    CHECK(Refusal("Windows Registry Editor Version 5.00\n\"v\"=dword:1")
              .ends_with("Der Wert gehört zu keinem Schlüssel."));
    CHECK(Refuses("[-HKEY_LOCAL_MACHINE\\A]") == false);
    CHECK(RefusalOf("[-HKEY_LOCAL_MACHINE\\A]\n\"v\"=dword:1")
              .ends_with("line 4: Der Wert gehört zu keinem Schlüssel."));
}

TEST_CASE_FIXTURE(RegistrationFile, "no cut or changed byte of a file does more than be refused") {
    const std::string whole =
        "Windows Registry Editor Version 5.00\r\n[HKEY_LOCAL_MACHINE\\A]\r\n@=\"x\\\\y\"\r\n"
        "\"m\"=hex(7):61,00,\\\r\n  00,00\r\n\"n\"=dword:0000000a\r\n[-HKEY_CURRENT_USER\\Z]\r\n";
    for (std::size_t i = 0; i < whole.size(); ++i) {
        Refusal(whole.substr(0, i));
        for (char c : {'\0', '\\', '"', '[', ',', '\n', '\xFF'}) {
            std::string changed = whole;
            changed[i] = c;
            Refusal(changed);
        }
    }
    CHECK(Refusal(whole) == "");
}
