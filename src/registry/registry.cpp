#include "registry/registry.h"

#include <algorithm>
#include <utility>

#include "platform/locale.h"
#include "registry/littleendian.h"
#include "runtime/failure.h"
#include "runtime/number.h"

namespace registry {
namespace {

using Service = platform::Registry;

Service::Key HandleOf(Root root) {
    return Service::ClassesRoot + static_cast<Service::Key>(root);
}

// Two hexadecimal digits, but a single letter for 0x0A to 0x0F: the zero in front is only put
// before what looks like a decimal number. The form serves display and comparison alone.
void AppendByte(std::string& text, std::uint8_t byte) {
    constexpr char digits[] = "0123456789ABCDEF";
    if (byte < 10 || byte > 15) text += digits[byte >> 4];
    text += digits[byte & 15];
    text += ' ';
}

std::string BytesAsText(const std::string& bytes) {
    std::string text;
    text.reserve(bytes.size() * 3);
    for (char byte : bytes) AppendByte(text, static_cast<std::uint8_t>(byte));
    return text;
}

// The value's data with the size that an earlier query told; false when it has gone or grown since.
bool QueryBytes(Service& service, Service::Key key, std::string_view valueName, std::uint32_t size,
                std::string& bytes) {
    bytes.assign(size, '\0');
    std::uint32_t type = Service::None;
    std::uint32_t filled = size;
    auto* buffer = reinterpret_cast<std::uint8_t*>(bytes.data());
    if (service.Query(key, valueName, type, buffer, filled) != Service::Success) return false;
    bytes.resize(std::min(filled, size));
    return true;
}

// A stored number may be shorter than 4 bytes; one that is longer does not fit and counts as
// unreadable.
bool QueryNumber(Service& service, Service::Key key, std::string_view valueName,
                 std::int32_t& number) {
    std::uint8_t bytes[4] = {};
    std::uint32_t type = Service::None;
    std::uint32_t size = sizeof bytes;
    if (service.Query(key, valueName, type, bytes, size) != Service::Success) return false;
    number = static_cast<std::int32_t>(FromLittleEndian(bytes));
    return true;
}

}  // namespace

std::string RegSplitPath(std::string& text, std::string_view delimiter) {
    const std::size_t end = text.find(delimiter);
    if (end == std::string::npos) return std::exchange(text, {});
    std::string head = text.substr(0, end);
    text.erase(0, end + delimiter.size());
    return head;
}

bool Registry::Open(Root root, std::string_view subKey, std::uint32_t access,
                    Service::Key& opened) const {
    return service_.Open(HandleOf(root), subKey, access, opened) == Service::Success;
}

bool Registry::RegKeyPresent(Root root, std::string_view subKey) const {
    Service::Key key = 0;
    return Open(root, subKey, Service::MayDoAll, key);
}

bool Registry::RegValuePresent(Root root, std::string_view subKey,
                               std::string_view valueName) const {
    Service::Key key = 0;
    if (!Open(root, subKey, Service::MayDoAll, key)) return false;
    std::uint32_t type = Service::None;
    std::uint32_t size = 0;
    return service_.Query(key, valueName, type, nullptr, size) == Service::Success;
}

std::string Registry::RegReadValue(Root root, std::string_view subKey,
                                   std::string_view valueName) const {
    Service::Key key = 0;
    if (!Open(root, subKey, Service::MayDoAll, key)) return "";
    std::uint32_t type = Service::None;
    std::uint32_t size = 0;
    if (service_.Query(key, valueName, type, nullptr, size) != Service::Success) return "";

    std::string result;
    std::string bytes;
    std::int32_t number = 0;
    switch (type) {
        case Service::String:
        case Service::ExpandString:
        case Service::MultiString:
            if (!QueryBytes(service_, key, valueName, size, bytes)) return "";
            result = locale_.FromAnsi(RegSplitPath(bytes, std::string_view("\0", 1)));
            break;
        case Service::Dword:
            if (!QueryNumber(service_, key, valueName, number)) return "";
            result = runtime::ToText(number);
            break;
        case Service::Binary:
            if (!QueryBytes(service_, key, valueName, size, bytes)) return "";
            result = BytesAsText(bytes);
            break;
        default:
            break;
    }
    service_.Close(key);
    return result;
}

void Registry::RegWriteString(Root root, std::string_view subKey, std::string_view valueName,
                              std::string_view text) {
    RegCreateKeyAt(root, subKey);
    const std::string bytes = locale_.ToAnsi(text);
    RegWriteRaw(root, subKey, valueName, Service::String, bytes,
                static_cast<std::uint32_t>(bytes.size()));
}

void Registry::RegWriteDword(Root root, std::string_view subKey, std::string_view valueName,
                             std::int32_t number) {
    RegCreateKeyAt(root, subKey);
    if (number < 0) throw runtime::Failure(runtime::InvalidProcedureCall);
    const auto bytes = ToLittleEndian(static_cast<std::uint32_t>(number));
    RegWriteRaw(root, subKey, valueName, Service::Dword, std::string(bytes.begin(), bytes.end()),
                4);
}

void Registry::RegWriteBinary(Root root, std::string_view subKey, std::string_view valueName,
                              std::string_view text) {
    RegCreateKeyAt(root, subKey);
    const std::string bytes = locale_.ToAnsi(text);
    RegWriteRaw(root, subKey, valueName, Service::Binary, bytes,
                static_cast<std::uint32_t>(bytes.size()));
}

void Registry::RegWriteRaw(Root root, std::string_view subKey, std::string_view valueName,
                           std::uint32_t type, std::string_view bytes, std::uint32_t size) {
    Service::Key key = 0;
    if (!Open(root, subKey, Service::MaySetValue, key)) return;
    service_.Set(key, valueName, type, reinterpret_cast<const std::uint8_t*>(bytes.data()), size);
    service_.Close(key);
}

void Registry::RegDeleteValueAt(Root root, std::string_view subKey, std::string_view valueName) {
    Service::Key key = 0;
    if (!Open(root, subKey, Service::MaySetValue, key)) return;
    service_.RemoveValue(key, valueName);
    service_.Close(key);
}

void Registry::RegDeleteKeyAt(Root root, std::string_view subKey) {
    service_.RemoveKey(HandleOf(root), subKey);
}

// What became of a level is not looked at: after one that fails the next ones fail as well.
void Registry::RegCreateKeyAt(Root root, std::string_view path) {
    std::string rest(path);
    std::string built;
    while (rest.find('\\') != std::string::npos) {
        const std::string head = RegSplitPath(rest, "\\");
        RegCreateSubKey(root, built, head);
        if (!built.empty()) built += '\\';
        built += head;
    }
    RegCreateSubKey(root, built, rest);
}

void Registry::RegCreateSubKey(Root root, std::string_view parent, std::string_view child) {
    Service::Key parentKey = 0;
    if (!Open(root, parent, Service::MayCreateSubKey, parentKey)) return;
    Service::Key childKey = 0;
    const auto created = service_.Create(parentKey, child, Service::MayDoAll, childKey);
    if (created == Service::Success) service_.Close(childKey);
    service_.Close(parentKey);
}

}  // namespace registry
