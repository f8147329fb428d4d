#include "platform/simulated/wording.h"

#include "platform/simulated/locale.h"
#include "platform/simulated/registry.h"
#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

constexpr char Digits[] = "0123456789ABCDEF";
constexpr std::uint32_t ShownBytes = 32;

std::string ByteText(std::uint8_t byte) {
    return {Digits[byte >> 4], Digits[byte & 15]};
}

std::uint32_t LittleEndian(const std::uint8_t* data) {
    std::uint32_t number = 0;
    for (int i = 3; i >= 0; --i) number = number << 8 | data[i];
    return number;
}

}  // namespace

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        auto byte = static_cast<std::uint8_t>(c);
        switch (byte) {
            case 0:
                quoted += "\\0";
                break;
            case '\r':
                quoted += "\\r";
                break;
            case '\n':
                quoted += "\\n";
                break;
            case '\t':
                quoted += "\\t";
                break;
            default:
                if (byte < 0x20) {
                    quoted += "\\x" + ByteText(byte);
                } else {
                    quoted += c;
                }
        }
    }
    return quoted + "\"";
}

std::string Hex(std::uint32_t number) {
    std::string digits;
    for (; number != 0 || digits.size() < 2; number >>= 4) {
        digits.insert(digits.begin(), Digits[number & 15]);
    }
    return "0x" + digits;
}

std::string DataText(std::uint32_t type, const std::uint8_t* data, std::uint32_t size) {
    if (type == platform::Registry::Dword && size == 4) return std::to_string(LittleEndian(data));
    if (IsTextType(type)) {
        return Quoted(runtime::FromWestern({reinterpret_cast<const char*>(data), size}));
    }
    std::string text = "hex";
    for (std::uint32_t i = 0; i < size && i < ShownBytes; ++i) text += " " + ByteText(data[i]);
    return size > ShownBytes ? text + " ..." : text;
}

}  // namespace platform::simulated
