#include "endtoend/registryfile.h"

#include "endtoend/waiting.h"
#include "regfile/registrationfile.h"
#include "support/golden.h"

namespace endtoend {
namespace {

constexpr char OwnSettings[] = "Software\\VB and VBA Program Settings\\Quillmore";
constexpr char AutoStartKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

std::string RootName(const std::string& root) {
    if (root == "HKEY_CLASSES_ROOT") return "HKCR";
    if (root == "HKEY_CURRENT_USER") return "HKCU";
    if (root == "HKEY_LOCAL_MACHINE") return "HKLM";
    throw Failed("a registry file of the tests has no root " + root);
}

}  // namespace

std::vector<RegistryFileEntry> ParseRegistryFile(const std::string& text) {
    std::vector<RegistryFileEntry> entries;
    try {
        for (const regfile::Key& key : regfile::ReadText(text)) {
            const std::string root = RootName(key.root);
            if (key.removes) throw Failed("a registry file of the tests takes nothing away");
            entries.push_back({{root, key.path, ""}, std::nullopt});
            for (const regfile::Value& value : key.values) {
                if (value.removes) throw Failed("a registry file of the tests takes nothing away");
                entries.push_back(
                    {{root, key.path, value.name},
                     RegistryValue{value.type, {value.bytes.begin(), value.bytes.end()}}});
            }
        }
    } catch (const regfile::Slip& slip) {
        throw Failed("registry file, line " + std::to_string(slip.line) + ": " + slip.reason);
    }
    return entries;
}

void PutBaseline(const std::string& registryFileText, const std::string& catalogueText) {
    const std::vector<RegistryFileEntry> entries = ParseRegistryFile(registryFileText);
    for (const auto& line : golden::CatalogueLines(catalogueText)) {
        DeleteValue({line.root, line.key, line.value});
        DeleteEmptyKeys(line.root, line.key);
    }
    DeleteTree("HKCU", OwnSettings);
    DeleteValue({"HKCU", AutoStartKey, "Quillmore"});
    for (const RegistryFileEntry& entry : entries) {
        if (entry.value) {
            WriteValue(entry.place, *entry.value);
        } else {
            CreateKey(entry.place.root, entry.place.key);
        }
    }
}

}  // namespace endtoend
