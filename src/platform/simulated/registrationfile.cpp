#include "regfile/registrationfile.h"

#include <stdexcept>

#include "platform/simulated/locale.h"
#include "platform/simulated/registry.h"
#include "runtime/encoding.h"

namespace platform::simulated {
namespace {

Registry::Key RootHandle(const regfile::Key& key) {
    if (key.root == "HKEY_CLASSES_ROOT") return Registry::ClassesRoot;
    if (key.root == "HKEY_CURRENT_USER") return Registry::CurrentUser;
    if (key.root == "HKEY_LOCAL_MACHINE") return Registry::LocalMachine;
    throw regfile::Slip(key.line, "Diesen Stamm gibt es hier nicht.");
}

// Texts stand in the file in UTF-16, two bytes a unit, and reach the A calls in the code page.
StoredValue ValueOf(const regfile::Value& value) {
    if (!IsTextType(value.type)) return {value.type, value.bytes};
    if (value.bytes.size() % 2 != 0) {
        throw regfile::Slip(value.line, "Der Text endet mitten in einem Zeichen.");
    }
    StoredValue narrowed{value.type, {}};
    for (std::size_t i = 0; i < value.bytes.size(); i += 2) {
        const auto unit = static_cast<char32_t>(value.bytes[i] | value.bytes[i + 1] << 8);
        narrowed.bytes.push_back(static_cast<std::uint8_t>(runtime::WesternByte(unit)));
    }
    return narrowed;
}

}  // namespace

void Registry::Load(std::string_view registrationText) {
    try {
        for (const regfile::Key& key : regfile::ReadText(registrationText)) {
            const Key root = RootHandle(key);
            if (key.removes) {
                EraseKey(root, key.path);
                continue;
            }
            MakeKey(root, key.path);
            for (const regfile::Value& value : key.values) {
                if (value.removes) {
                    Erase(root, key.path, value.name);
                } else {
                    Put(root, key.path, value.name, ValueOf(value));
                }
            }
        }
    } catch (const regfile::Slip& slip) {
        throw std::runtime_error("registration file, line " + std::to_string(slip.line) + ": " +
                                 slip.reason);
    }
}

}  // namespace platform::simulated
