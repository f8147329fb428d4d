#include "system/drivespace.h"

#include <doctest/doctest.h>

#include <string>

#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"

using platform::simulated::Machine;
using sys::clsGetDriveSpace;

namespace {

struct DriveSpaceFixture {
    Machine machine;
    const clsGetDriveSpace space{machine.systemFacts, machine.locale};

    std::string TotalOf(std::uint64_t bytes) {
        machine.systemFacts.SetSpace('D', {1, bytes, 1});
        return space.TotalSize("D:\\");
    }
};

std::string Bytes(std::initializer_list<int> codes) {
    std::string text;
    for (int code : codes) text += static_cast<char>(code);
    return text;
}

bool Overflows(const std::string& text) {
    return FailureOf([&] { clsGetDriveSpace::ver(text); }) == runtime::Overflow;
}

}  // namespace

TEST_CASE_FIXTURE(DriveSpaceFixture,
                  "free, total and left are three different numbers of one drive") {
    machine.systemFacts.SetSpace('D', {1000, 20003880960, 3000000});
    CHECK(space.UserFree("D:\\") == "1.000");
    CHECK(space.TotalSize("D:\\") == "20.003.880.960");
    CHECK(space.SizeLeft("D:\\") == "3.000.000");
}

TEST_CASE_FIXTURE(DriveSpaceFixture,
                  "what is used is the total without all that is free, quota or not") {
    machine.systemFacts.SetSpace('D', {1000, 20003880960, 3000000});
    CHECK(space.UsedSize("D:\\") == "20.000.880.960");
    machine.systemFacts.SetSpace('D', {1000, 5000, 5000});
    CHECK(space.UsedSize("D:\\") == "");
    // The user's share is smaller than what is free for all.
    machine.systemFacts.SetSpace('D', {1000, 5000, 3000000});
    CHECK(space.UsedSize("D:\\") == "");
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "the system is asked for the drive as it was named") {
    space.UserFree("C:\\");
    CHECK(machine.journal.Lines().size() == 1);
    CHECK(machine.journal.Lines().front().starts_with("GetDiskFreeSpaceExA \"C:\\\" -> "));
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "numbers below a thousand have no grouping sign") {
    CHECK(TotalOf(1) == "1");
    CHECK(TotalOf(999) == "999");
    CHECK(TotalOf(1000) == "1.000");
}

TEST_CASE_FIXTURE(DriveSpaceFixture,
                  "a drive of a hundred thousand million bytes and more is grouped on") {
    CHECK(TotalOf(99999999999) == "99.999.999.999");
    CHECK(TotalOf(100000000000) == "100.000.000.000");
    CHECK(TotalOf(2199023255552) == "2.199.023.255.552");
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "a number has 15 significant digits and zeros behind them") {
    CHECK(TotalOf(999999999999999) == "999.999.999.999.999");
    CHECK(TotalOf(1152921504606846976) == "1.152.921.504.606.850.000");
    CHECK(TotalOf(18446744073709551615u) == "18.446.744.073.709.600.000");
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "the grouping sign is the locale's") {
    machine.locale.signs = {".", ","};
    CHECK(TotalOf(1234567) == "1,234,567");
    machine.locale.signs = {",", "\u00A0"};
    CHECK(TotalOf(1234567) == "1\u00A0234\u00A0567");
    machine.locale.signs = {",", ""};
    CHECK(TotalOf(1234567) == "1234567");
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "zero bytes are the empty text") {
    machine.systemFacts.SetSpace('D', {0, 5000, 0});
    CHECK(space.UserFree("D:\\").empty());
    CHECK(space.TotalSize("D:\\") == "5.000");
    CHECK(space.SizeLeft("D:\\").empty());
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "a drive without a medium is the empty text three times") {
    CHECK(space.UserFree("A:\\").empty());
    CHECK(space.TotalSize("A:\\").empty());
    CHECK(space.SizeLeft("A:\\").empty());
}

TEST_CASE_FIXTURE(DriveSpaceFixture, "a drive that the system does not tell of is the empty text") {
    machine.faults.FailAll("GetDiskFreeSpaceExA", 5);
    CHECK(space.TotalSize("C:\\").empty());
    machine.faults.Clear();
    CHECK_FALSE(space.TotalSize("C:\\").empty());
}

TEST_CASE("eight NUL characters are the number 0") {
    CHECK(clsGetDriveSpace::ver(std::string(8, '\0')) == 0);
    CHECK(clsGetDriveSpace::ver("") == 0);
}

TEST_CASE("the first character is the lowest") {
    CHECK(clsGetDriveSpace::ver(Bytes({0x00, 0x10, 0, 0, 0, 0, 0, 0})) == 4096);
    CHECK(clsGetDriveSpace::ver(Bytes({0x10, 0, 0, 0, 0, 0, 0, 0})) == 16);
    CHECK(clsGetDriveSpace::ver(Bytes({0, 0, 0, 0, 1, 0, 0, 0})) == 4294967296.0);
    CHECK(clsGetDriveSpace::ver(Bytes({0, 0, 0, 0, 0, 0, 0, 1})) == 72057594037927936.0);
}

TEST_CASE("characters above 127 count as their codes and not as negative numbers") {
    CHECK(clsGetDriveSpace::ver(Bytes({0xFF, 0, 0, 0, 0, 0, 0, 0})) == 255);
    CHECK(clsGetDriveSpace::ver(Bytes({0x80, 0x80, 0, 0, 0, 0, 0, 0})) == 32896);
    CHECK(clsGetDriveSpace::ver(std::string(8, '\xFF')) == 18446744073709551616.0);
}

TEST_CASE("a text too long for a number is an overflow, even of NUL characters") {
    CHECK(clsGetDriveSpace::ver(std::string(127, '\0') + '\x01') > 1e305);
    CHECK(clsGetDriveSpace::ver(std::string(128, '\0')) == 0);
    CHECK(Overflows(std::string(129, '\0')));
    CHECK(Overflows(std::string(128, '\xFF')));
}
