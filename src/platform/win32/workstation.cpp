#include "platform/win32/workstation.h"

#include <lm.h>

#include "platform/win32/text.h"

namespace platform::win32 {
namespace {

static_assert(sizeof(WKSTA_USER_INFO_1) == 16);

// "" for a null pointer. lstrlenW answers 0 where no text can be read.
std::string WidePointerToText(LPCWSTR pointer) {
    return pointer ? FromWide({pointer, static_cast<std::size_t>(lstrlenW(pointer))}) : "";
}

}  // namespace

std::uint32_t Workstation::EnumerateUsers(const std::string& server,
                                          UserEnumeration& enumeration) const {
    constexpr DWORD Level = 1;
    // A failing call may leave the buffer of the batch before where it is.
    auto* buffer = reinterpret_cast<BYTE*>(enumeration.buffer);
    DWORD read = 0;
    DWORD total = 0;
    DWORD resume = enumeration.resume;
    const DWORD code = enumerate_(ToWide(server).data(), Level, &buffer, MAX_PREFERRED_LENGTH,
                                  &read, &total, &resume);
    enumeration.buffer = reinterpret_cast<std::uintptr_t>(buffer);
    enumeration.resume = resume;
    enumeration.users.clear();
    if ((code != Success && code != MoreData) || !buffer) return code;
    const auto* records = reinterpret_cast<const WKSTA_USER_INFO_1*>(buffer);
    for (DWORD record = 0; record < read; ++record) {
        const WKSTA_USER_INFO_1& user = records[record];
        enumeration.users.push_back({WidePointerToText(user.wkui1_username),
                                     WidePointerToText(user.wkui1_logon_domain),
                                     WidePointerToText(user.wkui1_oth_domains),
                                     WidePointerToText(user.wkui1_logon_server)});
    }
    return code;
}

void Workstation::FreeBuffer(std::uintptr_t buffer) const {
    free_(reinterpret_cast<void*>(buffer));
}

std::string Workstation::SystemMessage(std::uint32_t code) const {
    std::string buffer(256, ' ');
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, code, 0, buffer.data(),
                   static_cast<DWORD>(buffer.size()), nullptr);
    return FromAnsi(buffer);
}

}  // namespace platform::win32
