#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// One logon, as a record WKSTA_USER_INFO_1 tells it. What the record does not tell is "".
struct LoggedOnUser {
    std::string wkui1_username;
    // The domain of the logon.
    std::string wkui1_logon_domain;
    // Other domains browsed by the workstation.
    std::string wkui1_oth_domains;
    // The server that authenticated the logon.
    std::string wkui1_logon_server;

    bool operator==(const LoggedOnUser&) const = default;
};

// Where an enumeration stands; a fresh one begins it.
struct UserEnumeration {
    // The memory that holds the last batch, 0 for none.
    std::uintptr_t buffer = 0;
    std::uint32_t resume = 0;
    // The last batch.
    std::vector<LoggedOnUser> users;
};

// Who works on a computer, and what the system calls its own failures.
class Workstation {
  public:
    static constexpr std::uint32_t Success = 0;
    // There is a next batch.
    static constexpr std::uint32_t MoreData = 234;

    virtual ~Workstation() = default;

    // NetWkstaUserEnum on level 1 with no limit to a batch. `server` is a name behind two
    // backslashes. Replaces the batch, without giving an earlier one's buffer back, and returns the
    // call's code; with any but the two above the batch is empty, and the buffer may be the earlier
    // one still.
    virtual std::uint32_t EnumerateUsers(const std::string& server,
                                         UserEnumeration& enumeration) const = 0;

    // NetApiBufferFree.
    virtual void FreeBuffer(std::uintptr_t buffer) const = 0;

    // FormatMessageA of a code of the system into a buffer of 256 blanks. The answer is the whole
    // buffer: the text, a NUL and blanks; nothing but blanks when the system has no text that fits.
    virtual std::string SystemMessage(std::uint32_t code) const = 0;
};

}  // namespace platform
