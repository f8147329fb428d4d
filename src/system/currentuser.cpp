#include "system/currentuser.h"

#include "platform/systemfacts.h"

namespace sys {

std::string GetCurrentUserName(const platform::SystemFacts& facts) {
    return facts.UserName();
}

}  // namespace sys
