#include "runtime/encoding.h"

#include <doctest/doctest.h>

#include "runtime/mistake.h"

using runtime::FromUtf16;
using runtime::ToUtf16;

namespace {

struct Edge {
    char32_t character;
    std::string text;
    std::string units;
};

// The last and the first of each length.
const Edge Edges[] = {
    {0x7F, "\x7F", {"\x7F\0", 2}},
    {0x80, "\xC2\x80", {"\x80\0", 2}},
    {0x7FF, "\xDF\xBF", "\xFF\x07"},
    {0x800, "\xE0\xA0\x80", {"\0\x08", 2}},
    {0xFFFF, "\xEF\xBF\xBF", "\xFF\xFF"},
    {0x10000, "\xF0\x90\x80\x80", {"\0\xD8\0\xDC", 4}},
    {0x103FF, "\xF0\x90\x8F\xBF", {"\0\xD8\xFF\xDF", 4}},
    {0x10400, "\xF0\x90\x90\x80", {"\x01\xD8\0\xDC", 4}},
    {0x10FFFF, "\xF4\x8F\xBF\xBF", {"\xFF\xDB\xFF\xDF", 4}},
};

}  // namespace

TEST_CASE("characters of each length are the same in both encodings and back") {
    for (const Edge& edge : Edges) {
        CAPTURE(edge.character);
        std::string text;
        runtime::AppendCharacter(text, edge.character);
        CHECK(text == edge.text);
        CHECK(ToUtf16(edge.text) == edge.units);
        CHECK(FromUtf16(edge.units) == edge.text);
        CHECK(runtime::Units(edge.text) == edge.units.size() / 2);
        std::string_view rest = edge.text;
        CHECK(runtime::TakeCharacter(rest) == edge.character);
        CHECK(rest.empty());
    }
}

TEST_CASE("half a pair of surrogates stays as it is, an odd byte is passed over") {
    const std::string halves(
        "\0\xDC"  // the second one first
        "a\0\0\xD8"
        "b\0\0\xD8",
        10);
    const std::string text = FromUtf16(halves);
    CHECK(text ==
          "\xED\xB0\x80"
          "a"
          "\xED\xA0\x80"
          "b"
          "\xED\xA0\x80");
    CHECK(ToUtf16(text) == halves);
    CHECK(FromUtf16(halves + "c") == text);
}

TEST_CASE("bytes that are no UTF-8 are taken one by one, and refused as a whole") {
    for (const std::string bytes : {"\x80", "\xC1\xBF", "\xC2", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
                                    "\xF4\x90\x80\x80", "\xF5",
                                    "\xE2\x82"
                                    "A",
                                    "\xFF"}) {
        std::string_view rest = bytes;
        CHECK(runtime::TakeCharacter(rest) == runtime::Malformed);
        CHECK(rest == bytes.substr(1));
        CHECK_THROWS_AS(ToUtf16("a" + bytes), runtime::Mistake);
    }
}

TEST_CASE("each byte of the code page is a character that becomes the same byte") {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = runtime::FromWestern(std::string(1, static_cast<char>(byte)));
        std::string_view rest = text;
        CHECK(static_cast<unsigned char>(runtime::WesternByte(runtime::TakeCharacter(rest))) ==
              byte);
        CHECK(rest.empty());
    }
    CHECK(runtime::FromWestern("\x80\x81\x9F\xA0") == "€\xC2\x81Ÿ\xC2\xA0");
    CHECK(runtime::WesternByte(U'Ω') == '?');
    CHECK(runtime::WesternByte(0x100) == '?');
}
