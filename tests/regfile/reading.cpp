#include <doctest/doctest.h>

#include "units.h"

using namespace regfile_test;

namespace {

const std::string FirstLine = "Windows Registry Editor Version 5.00\r\n";

std::vector<Value> ValuesIn(const std::string& lines) {
    const auto keys = ReadText(FirstLine + "[HKEY_LOCAL_MACHINE\\A]\r\n" + lines);
    REQUIRE(keys.size() == 1);
    return keys[0].values;
}

Value ValueIn(const std::string& line) {
    const auto values = ValuesIn(line);
    REQUIRE(values.size() == 1);
    return values[0];
}

using Bytes = std::vector<std::uint8_t>;

}  // namespace

TEST_CASE("keys and values come in the order of the file, with their lines") {
    const auto keys = ReadText(FirstLine +
                               "\r\n[HKEY_CURRENT_USER\\A\\B]\r\n@=\"x\"\r\n\"v\"=-\r\n\r\n"
                               "[-HKEY_LOCAL_MACHINE\\C]\r\n[HKEY_USERS]\r\n");
    REQUIRE(keys.size() == 3);
    CHECK(keys[0].root == "HKEY_CURRENT_USER");
    CHECK(keys[0].path == "A\\B");
    CHECK_FALSE(keys[0].removes);
    CHECK(keys[0].line == 3);
    REQUIRE(keys[0].values.size() == 2);
    CHECK(keys[0].values[0].name == "");
    CHECK(keys[0].values[0].line == 4);
    CHECK(keys[0].values[1].name == "v");
    CHECK(keys[0].values[1].removes);
    CHECK(keys[0].values[1].line == 5);
    CHECK(keys[1].path == "C");
    CHECK(keys[1].removes);
    CHECK(keys[2].root == "HKEY_USERS");
    CHECK(keys[2].path == "");
}

TEST_CASE("a file is read in UTF-16 and UTF-8 with a mark, otherwise in the code page") {
    const auto nameIn = [](const std::string& file) { return Read(file).at(0).values.at(0).name; };
    const std::string body = "[HKEY_LOCAL_MACHINE\\A]\r\n";
    CHECK(nameIn(FileOf(u"\uFEFFWindows Registry Editor Version 5.00\r\n"
                        u"[HKEY_LOCAL_MACHINE\\A]\r\n\"\u00FC\u20AC\U0001F600\"=-")) == "ü€😀");
    CHECK(nameIn("\xEF\xBB\xBF" + FirstLine + body + "\"ü€😀\"=-") == "ü€😀");
    CHECK(nameIn(FirstLine + body + "\"\xFC\x80\x9F\x81\"=-") == "ü€Ÿ\xC2\x81");
}

TEST_CASE("half a pair of surrogates in a name is a character like any other") {
    std::u16string units =
        u"\uFEFFWindows Registry Editor Version 5.00\r\n[HKEY_LOCAL_MACHINE\\A]\r\n\"x\"=-";
    units[units.find(u'x')] = 0xD83D;
    const std::size_t at = units.find(char16_t{0xD83D});
    CHECK(Read(FileOf(units)).at(0).values.at(0).name == "\xED\xA0\xBD");
    units.insert(at, 1, 0xDE00);
    CHECK(Read(FileOf(units)).at(0).values.at(0).name == "\xED\xB8\x80\xED\xA0\xBD");
}

TEST_CASE("a text is read with its end and without its escapes") {
    const Value text = ValueIn("\"a\\\\b\\\"c\\\"\"=\"C:\\\\ü \\\"€\\\"\"");
    CHECK(text.name == "a\\b\"c\"");
    CHECK(text.type == 1);
    CHECK(text.bytes == Terminated(u"C:\\\u00FC \"\u20AC\""));
    CHECK(ValueIn("@=\"\"").bytes == Bytes{0, 0});
    CHECK(ValueIn("\"\"=\"\"").name == "");
}

TEST_CASE("a text goes on behind the end of its line, as regedit exports one that has several") {
    const auto values = ValuesIn("\"a\"=\"x\r\ny\n\"\r\n\"b\r\nc\"=-\r\n\"d\"=-");
    REQUIRE(values.size() == 3);
    CHECK(values[0].bytes == Terminated(u"x\r\ny\n"));
    CHECK(values[1].name == "b\r\nc");
    CHECK(values[1].line == 6);
    CHECK(values[2].line == 8);
}

TEST_CASE("numbers have one to eight digits") {
    CHECK(ValueIn("\"n\"=dword:0000ffFE").type == 4);
    CHECK(ValueIn("\"n\"=dword:0000ffFE").bytes == Bytes{0xFE, 0xFF, 0, 0});
    CHECK(ValueIn("\"n\"=dword:a").bytes == Bytes{10, 0, 0, 0});
    CHECK(ValueIn("\"n\"=dword:fedcba98").bytes == Bytes{0x98, 0xBA, 0xDC, 0xFE});
}

TEST_CASE("bytes have the type that stands in the brackets, binary without") {
    CHECK(ValueIn("\"b\"=hex:01,fF,00").type == 3);
    CHECK(ValueIn("\"b\"=hex:01,fF,00").bytes == Bytes{1, 0xFF, 0});
    CHECK(ValueIn("\"b\"=hex:").bytes.empty());
    CHECK(ValueIn("\"b\"=hex(0):").type == 0);
    CHECK(ValueIn("\"b\"=hex(B):01").type == 11);
    CHECK(ValueIn("\"b\"=hex(ffffffff):01").type == 0xFFFFFFFF);
    // Nothing is read into the bytes: half a character, a number too short.
    CHECK(ValueIn("\"b\"=hex(1):41").bytes == Bytes{0x41});
    CHECK(ValueIn("\"b\"=hex(4):41,42").bytes == Bytes{0x41, 0x42});
}

TEST_CASE("bytes go on over lines that end in a backslash, with any blanks") {
    const auto values = ValuesIn(
        "\"b\"=hex:\\\r\n\t 01, 02 ,\\ \t\r\n   03\\\r\n,04 ; four\r\n"
        "\"c\"=hex:05,\\ ; more\r\n\\\n06\r\n\"d\"=-");
    REQUIRE(values.size() == 3);
    CHECK(values[0].bytes == Bytes{1, 2, 3, 4});
    CHECK(values[1].bytes == Bytes{5, 6});
    CHECK(values[1].line == 7);
    CHECK(values[2].line == 10);
}

TEST_CASE("keywords are read in any letter case") {
    const auto keys = ReadText(
        "windows registry editor VERSION 5.00\n[hkey_Local_machine\\Ab]\n"
        "\"n\"=DWORD:1\n\"b\"=Hex:01\n\"t\"=HEX(2):01\n");
    REQUIRE(keys.size() == 1);
    CHECK(keys[0].root == Machine);
    CHECK(keys[0].path == "Ab");
    REQUIRE(keys[0].values.size() == 3);
    CHECK(keys[0].values[0].type == 4);
    CHECK(keys[0].values[1].type == 3);
    CHECK(keys[0].values[2].type == 2);
}

TEST_CASE("comments, blanks and the kind of line end are no matter") {
    for (const char* end : {"\r\n", "\n", "\r"}) {
        std::string text =
            "Windows Registry Editor Version 5.00 \t|; a comment \\|  ; \"v\"=-| \t|"
            "\t[HKEY_LOCAL_MACHINE\\A] ; key|  \"n\" = dword:2 ; two|@\t=\t\"x;y\";text|\"w\"=- ;|";
        for (std::size_t at = 0; (at = text.find('|')) != std::string::npos;) {
            text.replace(at, 1, end);
        }
        const auto keys = ReadText(text);
        REQUIRE(keys.size() == 1);
        CHECK(keys[0].line == 5);
        CHECK(keys[0].path == "A");
        REQUIRE(keys[0].values.size() == 3);
        CHECK(keys[0].values[0].bytes == Bytes{2, 0, 0, 0});
        CHECK(keys[0].values[1].bytes == Terminated(u"x;y"));
        CHECK(keys[0].values[2].removes);
        CHECK(keys[0].values[2].line == 8);
    }
}

TEST_CASE("a key's name may hold brackets, quotes, blanks and an equals sign") {
    const auto keys = ReadText(FirstLine + "[HKEY_LOCAL_MACHINE\\[a] \"b\"=-;c]]\n");
    REQUIRE(keys.size() == 1);
    CHECK(keys[0].path == "[a] \"b\"=-;c]");
}

TEST_CASE("a backslash at the end of a path is passed over, as the registry does") {
    CHECK(ReadText(FirstLine + "[HKEY_LOCAL_MACHINE\\A\\]").at(0).path == "A");
    CHECK(ReadText(FirstLine + "[HKEY_LOCAL_MACHINE\\]").at(0).path == "");
}
