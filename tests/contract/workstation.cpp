#include "platform/workstation.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "contract/machine.h"
#include "platform/systemfacts.h"
#include "platform/systeminformation.h"
#include "runtime/text.h"

namespace {

using platform::Workstation;

struct Place {
    contract::TestMachine machine;
    Workstation& workstation = machine.Services().workstation;
};

}  // namespace

TEST_CASE_FIXTURE(Place, "this computer tells who is logged on to it, in a buffer to give back") {
    const auto name = machine.Services().systemInformation.ComputerName();
    REQUIRE(name);
    platform::UserEnumeration enumeration;
    const std::uint32_t code = workstation.EnumerateUsers("\\\\" + *name, enumeration);
    if (machine.LacksWorkstationService()) {
        // Wine knows the call and refuses every level.
        constexpr std::uint32_t InvalidParameter = 87;
        CHECK(code == InvalidParameter);
        CHECK(enumeration.users.empty());
        CHECK(enumeration.buffer == 0);
        return;
    }
    REQUIRE(code == Workstation::Success);
    REQUIRE_FALSE(enumeration.users.empty());
    const std::string user = machine.Services().systemFacts.UserName();
    const auto isUser = [&](const platform::LoggedOnUser& logon) {
        return logon.wkui1_username == user;
    };
    CHECK(std::any_of(enumeration.users.begin(), enumeration.users.end(), isUser));
    REQUIRE(enumeration.buffer != 0);
    workstation.FreeBuffer(enumeration.buffer);
}

TEST_CASE_FIXTURE(Place, "a code's text stands before a NUL in a buffer of 256 characters") {
    const std::string buffer = workstation.SystemMessage(5);
    CHECK(runtime::Length(buffer) == 256);
    const std::string text = buffer.substr(0, buffer.find('\0'));
    CHECK(text.ends_with("\r\n"));
    CHECK(text.find("erweiger") != std::string::npos);
    CHECK(buffer.substr(text.size() + 1) == std::string(buffer.size() - text.size() - 1, ' '));
}

TEST_CASE_FIXTURE(Place, "a code without a text leaves 256 blanks") {
    CHECK(workstation.SystemMessage(0x1FFFFFFF) == std::string(256, ' '));
}
