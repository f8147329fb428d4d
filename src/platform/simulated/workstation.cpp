#include "platform/simulated/workstation.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/systemfacts.h"
#include "platform/simulated/systeminformation.h"
#include "platform/simulated/wording.h"
#include "runtime/text.h"

namespace platform::simulated {

std::uint32_t Workstation::EnumerateUsers(const std::string& server,
                                          UserEnumeration& enumeration) const {
    auto line = journal_.Note([&] {
        return "NetWkstaUserEnum " + Quoted(server) + ' ' + std::to_string(enumeration.resume);
    });
    const auto answer = [&](std::uint32_t code) {
        journal_.Finish(line, [&] {
            return std::to_string(code) + ' ' + std::to_string(enumeration.users.size()) + " #" +
                   std::to_string(enumeration.buffer);
        });
        return code;
    };
    // A failing call leaves the buffer of the batch before where it is.
    enumeration.users.clear();
    if (const auto code = faults_.Check("NetWkstaUserEnum", server)) {
        return answer(static_cast<std::uint32_t>(*code));
    }
    enumeration.buffer = 0;
    const Batches users = Users();
    if (enumeration.resume >= users.size()) return answer(Success);
    enumeration.users = users[enumeration.resume++];
    if (!enumeration.users.empty()) enumeration.buffer = static_cast<std::uintptr_t>(++given_);
    return answer(enumeration.resume < users.size() ? MoreData : Success);
}

Workstation::Batches Workstation::Users() const {
    if (batches) return *batches;
    const std::string& computer = information_.computerName;
    return {{{facts_.userName, computer, "", computer}}};
}

void Workstation::FreeBuffer(std::uintptr_t buffer) const {
    journal_.Note([&] { return "NetApiBufferFree #" + std::to_string(buffer); });
    ++returned_;
}

std::string Workstation::SystemMessage(std::uint32_t code) const {
    constexpr std::size_t BufferSize = 256;
    journal_.Note([&] { return "FormatMessageA " + std::to_string(code); });
    std::string text;
    if (!faults_.Check("FormatMessageA", std::to_string(code))) {
        const auto found = systemMessages.find(code);
        if (found != systemMessages.end() && runtime::Length(found->second) < BufferSize) {
            text = found->second + '\0';
        }
    }
    return text + std::string(BufferSize - runtime::Length(text), ' ');
}

}  // namespace platform::simulated
