#include <cstddef>
#include <optional>

#include "regfile/places.h"
#include "regfile/registrationfile.h"
#include "runtime/encoding.h"
#include "runtime/mistake.h"

namespace regfile {
namespace {

constexpr char HexDigits[] = "0123456789abcdef";

// regedit wraps its lines behind the first comma from here on, which leaves room for the backslash
// and, on a shorter line, for one byte more: 80 characters at most.
constexpr std::size_t WrapFrom = 77;

std::string HexNumber(std::uint32_t number, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += HexDigits[number >> shift & 0xF];
    }
    return text;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

// What gives the very bytes when it is read as a text: the end is where it should be, and no
// character is one that a program on the way could change or stumble over.
std::optional<std::string> PlainText(const Value& value) {
    const auto& bytes = value.bytes;
    if (value.type != 1 || bytes.size() < 2 || bytes.size() % 2 != 0) return std::nullopt;
    if (bytes.back() != 0 || bytes[bytes.size() - 2] != 0) return std::nullopt;
    const std::string text = runtime::FromUtf16(std::string(bytes.begin(), bytes.end() - 2));
    for (std::string_view rest = text; !rest.empty();) {
        const char32_t character = runtime::TakeCharacter(rest);
        const bool halfPair = character >= 0xD800 && character < 0xE000;
        if (character == 0 || character == '\r' || character == '\n' || halfPair) {
            return std::nullopt;
        }
    }
    return text;
}

std::string WrappedBytes(const std::vector<std::uint8_t>& bytes, std::size_t column) {
    std::string text;
    text.reserve(bytes.size() * 4);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text += HexNumber(bytes[i], 2);
        if (i + 1 == bytes.size()) break;
        text += ',';
        column += 3;
        if (column >= WrapFrom) {
            text += "\\\r\n  ";
            column = 2;
        }
    }
    return text;
}

// Without leading zeros, as regedit has it.
std::string TypeNumber(std::uint32_t type) {
    const std::string digits = HexNumber(type, 8);
    const std::size_t first = digits.find_first_not_of('0');
    return digits.substr(first == std::string::npos ? 7 : first);
}

std::string LineOf(const Value& value) {
    if (value.name.find('\0') != std::string::npos) {
        throw runtime::Mistake("a value's name with a NUL");
    }
    const std::string head = (value.name.empty() ? "@" : Quoted(value.name)) + '=';
    if (value.removes) return head + '-';
    if (const auto text = PlainText(value)) return head + Quoted(*text);
    const auto& bytes = value.bytes;
    if (value.type == 4 && bytes.size() == 4) {
        std::uint32_t number = 0;
        for (int i = 3; i >= 0; --i) number = number << 8 | bytes[static_cast<std::size_t>(i)];
        return head + "dword:" + HexNumber(number, 8);
    }
    const std::string kind =
        head + (value.type == 3 ? "hex:" : "hex(" + TypeNumber(value.type) + "):");
    return kind + WrappedBytes(bytes, runtime::Units(kind));
}

}  // namespace

std::string Write(const std::vector<Key>& keys) {
    std::string text = "\xEF\xBB\xBF" + std::string(Header) + "\r\n\r\n";
    for (const Key& key : keys) {
        if (RootNamed(key.root) != key.root || key.root.empty() || !IsPath(key.path) ||
            (key.removes && (key.path.empty() || !key.values.empty()))) {
            throw runtime::Mistake("a key that no registration file can hold");
        }
        text += key.removes ? "[-" : "[";
        text += key.root;
        if (!key.path.empty()) text += '\\' + key.path;
        text += "]\r\n";
        for (const Value& value : key.values) text += LineOf(value) + "\r\n";
        text += "\r\n";
    }
    return runtime::ToUtf16(text);
}

}  // namespace regfile
