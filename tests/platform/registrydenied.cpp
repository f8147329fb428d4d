#include <doctest/doctest.h>

#include "keys.h"

using namespace platform_test;
using platform::simulated::DwordValue;

TEST_CASE_FIXTURE(Keys, "a handle without the right to set values neither sets nor removes one") {
    registry.Put(HKLM, "A", "v", DwordValue(1));
    auto key = Opened(HKLM, "A", 0x3D);
    CHECK(SetText(key, "v", "x") == Registry::AccessDenied);
    CHECK(registry.RemoveValue(key, "v") == Registry::AccessDenied);
    CHECK(registry.Value(HKLM, "A", "v") == DwordValue(1));
}

TEST_CASE_FIXTURE(Keys, "a handle without the right to query reads nothing") {
    registry.Put(HKLM, "A", "v", DwordValue(1));
    CHECK(SizeResult(Opened(HKLM, "A", Registry::MaySetValue), "v") == Registry::AccessDenied);
    CHECK(SizeResult(Opened(HKLM, "A", 0x01), "v") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a denied key and what lies below it do not open") {
    registry.MakeKey(HKLM, "SYSTEM\\Select\\Deep");
    registry.MakeKey(HKLM, "SYSTEM\\Selected");
    registry.Deny(HKLM, "System\\SELECT");
    CHECK(OpenResult(HKLM, "SYSTEM\\Select") == Registry::AccessDenied);
    CHECK(OpenResult(HKLM, "SYSTEM\\Select\\Deep") == Registry::AccessDenied);
    CHECK(OpenResult(HKLM, "SYSTEM\\Selected") == Registry::Success);
    CHECK(OpenResult(HKLM, "SYSTEM") == Registry::Success);
    CHECK(registry.OpenHandles() == 2);
}

TEST_CASE_FIXTURE(Keys, "an absent key below a denied one is absent") {
    registry.MakeKey(HKLM, "A");
    registry.Deny(HKLM, "A");
    CHECK(OpenResult(HKLM, "A\\Gone") == Registry::FileNotFound);
    CHECK(OpenResult(HKCU, "A") == Registry::FileNotFound);
}

TEST_CASE_FIXTURE(Keys, "only openings that ask for a denied right are refused") {
    registry.MakeKey(HKLM, "A");
    registry.Deny(HKLM, "A", Registry::MaySetValue);
    CHECK(OpenResult(HKLM, "A", 0x01) == Registry::Success);
    CHECK(OpenResult(HKLM, "A", Registry::MayCreateSubKey) == Registry::Success);
    CHECK(OpenResult(HKLM, "A", Registry::MaySetValue) == Registry::AccessDenied);
    CHECK(OpenResult(HKLM, "A", Registry::MayDoAll) == Registry::AccessDenied);
}

TEST_CASE_FIXTURE(Keys, "nothing is created at or below a denied key") {
    registry.MakeKey(HKLM, "A");
    registry.Deny(HKLM, "A");
    registry.Deny(HKLM, "Coming");
    CHECK(CreateResult(HKLM, "A") == Registry::AccessDenied);
    CHECK(CreateResult(HKLM, "A\\B") == Registry::AccessDenied);
    CHECK(CreateResult(HKLM, "Coming") == Registry::AccessDenied);
    CHECK(registry.Dump().size() == 1);
}

TEST_CASE_FIXTURE(Keys, "a denied right to create sub-keys counts whatever the new key asks") {
    registry.MakeKey(HKLM, "A");
    registry.Deny(HKLM, "A", Registry::MayCreateSubKey);
    CHECK(CreateResult(HKLM, "A\\B", 0x01) == Registry::AccessDenied);
    CHECK_FALSE(registry.HasKey(HKLM, "A\\B"));
}

TEST_CASE_FIXTURE(Keys, "a denied key is not deleted") {
    registry.MakeKey(HKLM, "A\\B");
    registry.Deny(HKLM, "A", Registry::MaySetValue);
    CHECK(registry.RemoveKey(HKLM, "A\\B") == Registry::AccessDenied);
    CHECK(registry.RemoveKey(HKLM, "A\\Gone") == Registry::FileNotFound);
    CHECK(registry.HasKey(HKLM, "A\\B"));
}

TEST_CASE_FIXTURE(Keys, "a denied root refuses its predefined handle too") {
    registry.Put(HKLM, "", "v", DwordValue(1));
    registry.Deny(HKLM, "");
    CHECK(SetText(HKLM, "v", "x") == Registry::AccessDenied);
    CHECK(SizeResult(HKLM, "v") == Registry::AccessDenied);
    CHECK(OpenResult(HKLM, "") == Registry::AccessDenied);
    CHECK(OpenResult(HKCU, "") == Registry::Success);
}

TEST_CASE_FIXTURE(Keys, "a handle that was open keeps its rights") {
    registry.MakeKey(HKLM, "A");
    auto key = Opened(HKLM, "A");
    registry.Deny(HKLM, "A");
    CHECK(SetText(key, "v", "x") == Registry::Success);
}
