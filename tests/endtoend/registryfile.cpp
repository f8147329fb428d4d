#include "endtoend/registryfile.h"

#include "endtoend/waiting.h"
#include "platform/simulated/registrationfile.h"
#include "support/golden.h"

namespace endtoend {
namespace {

constexpr char OwnSettings[] = "Software\\VB and VBA Program Settings\\Quillmore";
constexpr char AutoStartKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

const char* RootName(platform::Registry::Key root) {
    if (root == platform::Registry::ClassesRoot) return "HKCR";
    return root == platform::Registry::CurrentUser ? "HKCU" : "HKLM";
}

RegistryValue ValueOf(const platform::simulated::RegistrationLine& line) {
    if (line.text) return TerminatedText(*line.text);
    return {line.type, {line.data.begin(), line.data.end()}};
}

}  // namespace

std::vector<RegistryFileEntry> ParseRegistryFile(const std::string& text) {
    std::vector<RegistryFileEntry> entries;
    for (const auto& line : platform::simulated::ReadRegistrationFile(text)) {
        if (line.removes) throw Failed("a registry file of the tests takes nothing away");
        const ValuePlace place{RootName(line.root), line.key, line.name.value_or("")};
        entries.push_back({place, line.name ? std::optional(ValueOf(line)) : std::nullopt});
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
