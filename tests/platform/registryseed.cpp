#include <doctest/doctest.h>

#include <stdexcept>

#include "keys.h"

using namespace platform_test;
using platform::simulated::BareTextValue;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;

TEST_CASE("test values have the bytes that Windows would store") {
    CHECK(DwordValue(0x12345678) == StoredValue{4, {0x78, 0x56, 0x34, 0x12}});
    CHECK(TextValue("ü€") == StoredValue{1, {0xFC, 0x80, 0}});
    CHECK(BareTextValue("ü€") == StoredValue{1, {0xFC, 0x80}});
}

TEST_CASE_FIXTURE(Keys, "seeding and looking leave no trace in the journal and open no handle") {
    registry.Put(HKLM, "A\\B", "v", DwordValue(1));
    registry.MakeKey(HKCU, "C");
    registry.Erase(HKLM, "A\\B", "absent");
    registry.EraseKey(HKCU, "absent");
    CHECK(registry.HasKey(HKLM, "a\\b"));
    CHECK(registry.Value(HKLM, "a\\b", "V") == DwordValue(1));
    CHECK(machine.journal.Count() == 0);
    CHECK(registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Keys, "a look at what is absent finds nothing") {
    registry.MakeKey(HKLM, "A");
    CHECK_FALSE(registry.Value(HKLM, "A", "v"));
    CHECK_FALSE(registry.Value(HKLM, "B", "v"));
    CHECK_FALSE(registry.HasKey(HKLM, "A\\B"));
    CHECK_FALSE(registry.HasKey(HKCU, "A"));
}

TEST_CASE_FIXTURE(Keys, "erasing takes a value, or a key with all below it") {
    registry.Put(HKLM, "A\\B", "v", DwordValue(1));
    registry.Put(HKLM, "A", "w", DwordValue(2));
    auto deep = Opened(HKLM, "A\\B");
    registry.Erase(HKLM, "A", "W");
    CHECK_FALSE(registry.Value(HKLM, "A", "w"));
    registry.EraseKey(HKLM, "a");
    CHECK(registry.Dump().empty());
    CHECK(SizeResult(deep, "v") == 1018);
}

TEST_CASE_FIXTURE(Keys, "a dump names every value, every key without values, and no bare root") {
    CHECK(registry.Dump().empty());
    registry.Put(HKLM, "A", "Wert ü", DwordValue(1));
    registry.Put(HKLM, "A", "", TextValue("d"));
    registry.MakeKey(HKCR, ".txt");
    registry.Put(HKCU, "", "r", DwordValue(2));
    std::map<std::string, StoredValue> expected{
        {"HKCR\\.txt|", {0xFFFFFFFF, {}}},
        {"HKCU|r", DwordValue(2)},
        {"HKLM\\A|", TextValue("d")},
        {"HKLM\\A|Wert ü", DwordValue(1)},
    };
    CHECK(registry.Dump() == expected);
}

TEST_CASE_FIXTURE(Keys, "a name that the code page lacks is stored with question marks") {
    registry.Put(HKLM, "A", "日本", DwordValue(1));
    CHECK(registry.Dump().contains("HKLM\\A|??"));
    CHECK(SizeResult(Opened(HKLM, "A"), "??") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "seeding below something that is no root is a mistake in the test") {
    CHECK_THROWS_AS(registry.MakeKey(0x80000003u, "A"), std::logic_error);
    CHECK_THROWS_AS(registry.Put(5, "A", "v", DwordValue(1)), std::logic_error);
}
