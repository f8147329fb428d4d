#include "controls/propertystore.h"

#include <doctest/doctest.h>

using controls::PropertyStore;

namespace {

std::string Text(const PropertyStore& store, const char* key) {
    const PropertyStore::Entry* entry = store.Find(key);
    return entry ? entry->text : "(absent)";
}

}  // namespace

TEST_CASE("a store holds one property a line, the text behind the first equals sign") {
    const PropertyStore store("TX=A = B\nBTYPE=7\n\nno property\nFX=");
    REQUIRE(store.Entries().size() == 3);
    CHECK(Text(store, "TX") == "A = B");
    CHECK(Text(store, "BTYPE") == "7");
    CHECK(Text(store, "FX") == "");
}

TEST_CASE("a key is found letter by letter, and an absent one not at all") {
    const PropertyStore store("TX=Test");
    CHECK(Text(store, "tx") == "(absent)");
    CHECK(Text(store, "T") == "(absent)");
    CHECK(Text(PropertyStore(""), "TX") == "(absent)");
}

TEST_CASE("a store keeps the order of writing, and a key that is written again its place") {
    PropertyStore store;
    store.Write("B", 1);
    store.Write("A", "x");
    store.Write("B", 2);
    REQUIRE(store.Entries().size() == 2);
    CHECK(store.Entries()[0].key == "B");
    CHECK(store.Entries()[0].text == "2");
    CHECK(store.Entries()[1].key == "A");
}

TEST_CASE("of two lines with the same key the first counts") {
    CHECK(Text(PropertyStore("TX=eins\nTX=zwei"), "TX") == "eins");
}

TEST_CASE("a number may be decimal or hexadecimal, and negative") {
    const PropertyStore store("A=12\nB=-1\nC=&HC0C0C0\nD=&H80000012");
    CHECK(store.Number("A") == 12);
    CHECK(store.Number("B") == -1);
    CHECK(store.Number("C") == 0xC0C0C0);
    CHECK(static_cast<std::uint32_t>(*store.Number("D")) == 0x80000012u);
}

TEST_CASE("an absent key, a text that is no number and one too large give no number") {
    const PropertyStore store("A=rot\nB=\nC=99999999999\nD=1E+300");
    for (const char* key : {"A", "B", "C", "D", "E"}) {
        CAPTURE(key);
        CHECK_FALSE(store.Number(key).has_value());
    }
}

TEST_CASE("a colour's hexadecimal digits are bits, a number of 16 bits too") {
    const PropertyStore store(
        "A=&H8000\nB=&H0000FF00\nC=&HFFFF\nD=&H10000\nE=&H8000000F\nF=65280\nG=-1");
    CHECK(store.Colour("A") == 0x8000u);
    CHECK(store.Colour("B") == 0xFF00u);
    CHECK(store.Colour("C") == 0xFFFFu);
    CHECK(store.Colour("D") == 0x10000u);
    CHECK(store.Colour("E") == toolkit::SystemColour(15));
    CHECK(store.Colour("F") == 0xFF00u);
    CHECK(store.Colour("G") == 0xFFFFFFFFu);
}

TEST_CASE("an absent key, a text that is no colour and one too large give no colour") {
    const PropertyStore store("A=rot\nB=\nC=&H\nD=&H123456789\nE=&HFG\nF=99999999999");
    for (const char* key : {"A", "B", "C", "D", "E", "F", "G"}) {
        CAPTURE(key);
        CHECK_FALSE(store.Colour(key).has_value());
    }
}

TEST_CASE("a truth value is a number or the words True and False") {
    const PropertyStore store("A=True\nB=false\nC=-1\nD=0\nE=TRUE\nF=2");
    CHECK(store.Truth("A") == true);
    CHECK(store.Truth("B") == false);
    CHECK(store.Truth("C") == true);
    CHECK(store.Truth("D") == false);
    CHECK(store.Truth("E") == true);
    CHECK(store.Truth("F") == true);
}

TEST_CASE("an absent key and another word give no truth value") {
    const PropertyStore store("A=ja\nB=\nC=Truee");
    for (const char* key : {"A", "B", "C", "D"}) {
        CAPTURE(key);
        CHECK_FALSE(store.Truth(key).has_value());
    }
}
