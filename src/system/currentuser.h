#pragma once

#include <string>

namespace platform {
class SystemFacts;
}

namespace sys {

// The name of the user who is logged on; "" when the system does not tell.
std::string GetCurrentUserName(const platform::SystemFacts& facts);

}  // namespace sys
