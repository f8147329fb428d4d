#include "registry/restless.h"

#include <doctest/doctest.h>

#include "registry/fixture.h"

// A value that another program changes between the question for its size and the one for its data.
using namespace registry_tests;

namespace {

struct ChangedBetween : RegistryOnMachine {
    std::string ReadWhile(StoredValue before, std::function<void()> change) {
        Put("Value", std::move(before));
        // The second call asks for the size.
        restless.After(2, std::move(change));
        return disturbed.RegReadValue(HKLM, Key, "Value");
    }

    Restless restless{machine.registry};
    registry::Registry disturbed{restless, machine.locale};
};

}  // namespace

TEST_CASE_FIXTURE(ChangedBetween, "a value that vanishes between the queries reads as empty") {
    const auto vanish = [&] { machine.registry.Erase(Service::LocalMachine, Key, "Value"); };
    CHECK(ReadWhile(TextValue("abc"), vanish) == "");
    CHECK(ReadWhile(DwordValue(5), vanish) == "");
    CHECK(ReadWhile(Stored(Service::Binary, "abc"), vanish) == "");
}

TEST_CASE_FIXTURE(ChangedBetween, "a value that grows between the queries reads as empty") {
    CHECK(ReadWhile(TextValue("abc"), [&] { Put("Value", TextValue("abcdef")); }) == "");
    CHECK(ReadWhile(Stored(Service::Binary, "abc"),
                    [&] { Put("Value", Stored(Service::Binary, std::string(65536, 'x'))); }) == "");
    CHECK(ReadWhile(DwordValue(5),
                    [&] { Put("Value", Stored(Service::Dword, std::string(64, 'x'))); }) == "");
}

TEST_CASE_FIXTURE(ChangedBetween,
                  "a value that shrinks between the queries reads as what is left") {
    CHECK(ReadWhile(TextValue("abcdef"), [&] { Put("Value", BareTextValue("ab")); }) == "ab");
    CHECK(ReadWhile(Stored(Service::Binary, "abc"),
                    [&] { Put("Value", Stored(Service::Binary, "a")); }) == "61 ");
    CHECK(ReadWhile(DwordValue(0x01010101),
                    [&] { Put("Value", Stored(Service::Dword, "\x02")); }) == "2");
}

TEST_CASE_FIXTURE(ChangedBetween, "a value that changes its type is read by the first one") {
    CHECK(ReadWhile(DwordValue(5), [&] { Put("Value", BareTextValue("A")); }) == "65");
    CHECK(ReadWhile(TextValue("abc"), [&] { Put("Value", Stored(Service::Binary, "xy")); }) ==
          "xy");
}
