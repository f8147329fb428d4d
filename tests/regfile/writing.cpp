// What regedit exports, byte for byte and by hand.
#include <doctest/doctest.h>

#include <algorithm>

#include "runtime/mistake.h"
#include "units.h"

using namespace regfile_test;

namespace {

const std::u16string Head = u"\uFEFFWindows Registry Editor Version 5.00\r\n\r\n";

// The text of the file that one value below a key makes, from its own line on.
std::u16string LinesOf(const Value& value) {
    const std::u16string whole = UnitsOf(Write({{Machine, "A", false, {value}}}));
    const std::u16string above = Head + u"[HKEY_LOCAL_MACHINE\\A]\r\n";
    REQUIRE(whole.starts_with(above));
    REQUIRE(whole.ends_with(u"\r\n\r\n"));
    return whole.substr(above.size(), whole.size() - above.size() - 4);
}

std::u16string LinesOf(std::uint32_t type, std::vector<std::uint8_t> bytes) {
    return LinesOf({"v", false, type, std::move(bytes)});
}

}  // namespace

TEST_CASE("a file begins with its byte order mark and has two bytes a character") {
    const std::string file = Write({});
    CHECK(file.substr(0, 8) == std::string("\xFF\xFEW\0i\0n\0", 8));
    CHECK(file.size() == 2 * Head.size());
    CHECK(UnitsOf(file) == Head);
}

TEST_CASE("an export is the same to the last byte") {
    CHECK(UnitsOf(Write({
              {Machine, "SOFTWARE\\Ordner", false, {}},
              {"HKEY_CURRENT_USER",
               "Software\\Bücher",
               false,
               {
                   {"", false, 1, Terminated(u"Standard")},
                   {"Pfad\\zu \"ihm\"", false, 1, Terminated(u"C:\\WINDOWS \"ü\"")},
                   {"Zahl", false, 4, {0x0A, 0, 0, 0xFF}},
                   {"Bytes", false, 3, {0, 0xAB, 0xFF}},
                   {"Weg", false, 2, Terminated(u"%ü")},
                   {"Liste", false, 7, {'a', 0, 0, 0, 0, 0}},
                   {"Alt", true},
                   {"", true},
               }},
              {Machine, "SOFTWARE\\Weg damit", true, {}},
              {Machine, "", false, {}},
          })) == Head +
                     u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Ordner]\r\n\r\n"
                     u"[HKEY_CURRENT_USER\\Software\\B\u00FCcher]\r\n"
                     u"@=\"Standard\"\r\n"
                     u"\"Pfad\\\\zu \\\"ihm\\\"\"=\"C:\\\\WINDOWS \\\"\u00FC\\\"\"\r\n"
                     u"\"Zahl\"=dword:ff00000a\r\n"
                     u"\"Bytes\"=hex:00,ab,ff\r\n"
                     u"\"Weg\"=hex(2):25,00,fc,00,00,00\r\n"
                     u"\"Liste\"=hex(7):61,00,00,00,00,00\r\n"
                     u"\"Alt\"=-\r\n"
                     u"@=-\r\n\r\n"
                     u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Weg damit]\r\n\r\n"
                     u"[HKEY_LOCAL_MACHINE]\r\n\r\n");
}

TEST_CASE("bytes are wrapped where regedit wraps them") {
    const std::vector<std::uint8_t> path = Terminated(u"%SystemRoot%\\system32;%SystemRoot%");
    CHECK(LinesOf({"PATH", false, 2, path}) ==
          u"\"PATH\"=hex(2):25,00,53,00,79,00,73,00,74,00,65,00,6d,00,52,00,6f,00,6f,00,74,\\\r\n"
          u"  00,25,00,5c,00,73,00,79,00,73,00,74,00,65,00,6d,00,33,00,32,00,3b,00,25,00,\\\r\n"
          u"  53,00,79,00,73,00,74,00,65,00,6d,00,52,00,6f,00,6f,00,74,00,25,00,00,00");
}

TEST_CASE("a line has 80 characters at most, for every length of the name and the bytes") {
    for (std::size_t name = 1; name < 70; ++name) {
        for (std::size_t size = 0; size < 80; ++size) {
            const std::u16string lines =
                LinesOf({std::string(name, 'n'), false, 3, std::vector<std::uint8_t>(size, 0xEE)});
            std::size_t begin = 0;
            for (std::size_t end = 0; end != std::u16string::npos; begin = end + 2) {
                end = lines.find(u"\r\n", begin);
                const std::u16string line = lines.substr(begin, end - begin);
                CHECK(line.size() <= 80);
                // No room is given away either.
                if (end != std::u16string::npos) {
                    CHECK(line.size() >= 78);
                    CHECK(line.ends_with(u",\\"));
                }
            }
        }
    }
}

TEST_CASE("a name that fills the line leaves one byte on it") {
    const std::string name(75, 'n');
    CHECK(LinesOf({name, false, 3, {1, 2, 3}}) ==
          u"\"" + std::u16string(75, u'n') + u"\"=hex:01,\\\r\n  02,03");
}

TEST_CASE("the line is measured in characters of 16 bits") {
    // 20 and 40 of them, not the bytes that the name has in the program.
    const std::pair<const char*, std::ptrdiff_t> rows[] = {
        {"üüüüüüüüüüüüüüüüüüüü", 17},
        {"😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀", 10},
    };
    for (const auto& [name, bytes] : rows) {
        CAPTURE(name);
        const std::u16string lines = LinesOf({name, false, 3, std::vector<std::uint8_t>(30, 0x55)});
        const auto first = lines.substr(0, lines.find(u"\r\n"));
        CHECK(std::count(first.begin(), first.end(), u',') == bytes);
    }
}

TEST_CASE("a text stands in quotes only where they give back its very bytes") {
    CHECK(LinesOf(1, Terminated(u"")) == u"\"v\"=\"\"");
    CHECK(LinesOf(1, Terminated(u"a\tb;]=@")) == u"\"v\"=\"a\tb;]=@\"");
    CHECK(LinesOf(1, Terminated(u"\u20AC\U0001F600")) == u"\"v\"=\"\u20AC\U0001F600\"");
    CHECK(LinesOf(1, {}) == u"\"v\"=hex(1):");
    CHECK(LinesOf(1, {'a'}) == u"\"v\"=hex(1):61");
    CHECK(LinesOf(1, {0}) == u"\"v\"=hex(1):00");
    CHECK(LinesOf(1, {'a', 0}) == u"\"v\"=hex(1):61,00");
    CHECK(LinesOf(1, {'a', 0, 0}) == u"\"v\"=hex(1):61,00,00");
    CHECK(LinesOf(1, {'a', 0, 0, 1}) == u"\"v\"=hex(1):61,00,00,01");
    CHECK(LinesOf(1, {0, 0, 0, 0}) == u"\"v\"=hex(1):00,00,00,00");
    CHECK(LinesOf(1, {'a', 0, 0, 0, 'b', 0, 0, 0}) == u"\"v\"=hex(1):61,00,00,00,62,00,00,00");
    CHECK(LinesOf(1, Terminated(u"\r")) == u"\"v\"=hex(1):0d,00,00,00");
    CHECK(LinesOf(1, Terminated(u"\n")) == u"\"v\"=hex(1):0a,00,00,00");
    CHECK(LinesOf(1, {0, 0xD8, 0, 0}) == u"\"v\"=hex(1):00,d8,00,00");
    CHECK(LinesOf(1, {0xFF, 0xDF, 0, 0}) == u"\"v\"=hex(1):ff,df,00,00");
    CHECK(LinesOf(1, {0, 0xDC, 0, 0xD8, 0, 0}) == u"\"v\"=hex(1):00,dc,00,d8,00,00");
    CHECK(LinesOf(2, Terminated(u"a")) == u"\"v\"=hex(2):61,00,00,00");
}

TEST_CASE("a number is one of four bytes, and every other type has its own in hexadecimal") {
    CHECK(LinesOf(4, {1, 0, 0, 0}) == u"\"v\"=dword:00000001");
    CHECK(LinesOf(4, {0, 0, 0}) == u"\"v\"=hex(4):00,00,00");
    CHECK(LinesOf(4, {}) == u"\"v\"=hex(4):");
    CHECK(LinesOf(4, {1, 0, 0, 0, 0}) == u"\"v\"=hex(4):01,00,00,00,00");
    CHECK(LinesOf(0, {}) == u"\"v\"=hex(0):");
    CHECK(LinesOf(5, {0, 0, 0, 1}) == u"\"v\"=hex(5):00,00,00,01");
    CHECK(LinesOf(11, {1}) == u"\"v\"=hex(b):01");
    CHECK(LinesOf(0x10000010, {1}) == u"\"v\"=hex(10000010):01");
    CHECK(LinesOf(0xFFFFFFFF, {1}) == u"\"v\"=hex(ffffffff):01");
}

TEST_CASE("what the format cannot hold is not written") {
    CHECK_THROWS_AS(Write({{"HKLM", "A"}}), runtime::Mistake);
    CHECK_THROWS_AS(Write({{"", "A"}}), runtime::Mistake);
    CHECK_THROWS_AS(Write({{"hkey_local_machine", "A"}}), runtime::Mistake);
    for (const std::string path : {"\\A", "A\\", "A\\\\B", "A\rB", "A\nB", "A\xFF"}) {
        CAPTURE(path);
        CHECK_THROWS_AS(Write({{Machine, path}}), runtime::Mistake);
    }
    CHECK_THROWS_AS(Write({{Machine, std::string(1, '\0')}}), runtime::Mistake);
    CHECK_THROWS_AS(Write({{Machine, "", true}}), runtime::Mistake);
    CHECK_THROWS_AS(Write({{Machine, "A", true, {{"v", true}}}}), runtime::Mistake);
    CHECK_THROWS_AS(Write({{Machine, "A", false, {{std::string(1, '\0'), true}}}}),
                    runtime::Mistake);
    CHECK_THROWS_AS(Write({{Machine, "A", false, {{"\xC3", true}}}}), runtime::Mistake);
}
