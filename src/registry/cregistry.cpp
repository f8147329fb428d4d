#include "registry/cregistry.h"

#include "platform/locale.h"
#include "platform/program.h"
#include "platform/systemfacts.h"
#include "registry/littleendian.h"
#include "runtime/failure.h"
#include "runtime/number.h"

namespace registry {
namespace {

using Service = platform::Registry;
using Bytes = std::vector<std::uint8_t>;

constexpr const char* Classes = "SOFTWARE\\Classes\\";

// The number whose bytes lie the other way round.
std::uint32_t Swapped(std::uint32_t number) {
    return number << 24 | (number & 0xFF00) << 8 | (number >> 8 & 0xFF00) | number >> 24;
}

// A pair of percent signs, whatever stands between them.
bool HoldsReference(std::string_view text) {
    const std::size_t first = text.find('%');
    return first != std::string_view::npos && text.find('%', first + 1) != std::string_view::npos;
}

// The names grow one by one, and what stands in the list goes as soon as there is a first one.
void Append(std::vector<std::string>& names, int& count, const std::string& name) {
    ++count;
    names.resize(static_cast<std::size_t>(count));
    names.back() = name.substr(0, name.find('\0'));
}

// Whether nothing stands before, between or behind the backslashes of a path. The platform passes
// over such a part and so comes to a key of another name, which may be the parent.
bool HasEmptyPart(const std::string& path) {
    return ('\\' + path + '\\').find("\\\\") != std::string::npos;
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

}  // namespace

std::string AsText(const Data& data) {
    if (const auto* text = std::get_if<std::string>(&data)) return *text;
    if (const auto* number = std::get_if<std::int32_t>(&data)) return runtime::ToText(*number);
    return "";
}

Data cRegistry::Value() {
    Service& service = machine_.registry;
    Service::Key key = 0;
    std::uint32_t type = Service::None;
    std::uint32_t size = 0;
    if (service.Open(ClassKey, SectionKey, Service::MayQueryValue, key) != Service::Success) {
        return Default;
    }
    const auto asked = service.Query(key, ValueKey, type, nullptr, size);
    if (asked != Service::Success && asked != Service::MoreData) return Default;

    Bytes bytes(size);
    // The value may have gone or grown since.
    if (size > 0 && service.Query(key, ValueKey, type, bytes.data(), size) != Service::Success) {
        return Default;
    }
    // Or shrunk, or become one of another type.
    bytes.resize(size);
    ValueType = type;
    const bool isNumber = type == Service::Dword || type == Service::BigEndianDword;
    // A number has no room for more than four.
    if (isNumber && bytes.size() > 4) return Default;
    switch (ValueType) {
        case Service::String:
        case Service::ExpandString:
        case Service::MultiString: {
            if (!bytes.empty()) bytes.pop_back();
            std::string text = machine_.locale.FromAnsi(std::string(bytes.begin(), bytes.end()));
            return ValueType == Service::ExpandString ? ExpandEnvStr(text) : text;
        }
        case Service::Dword:
            return static_cast<std::int32_t>(FromLittleEndian(bytes));
        case Service::BigEndianDword:
            return static_cast<std::int32_t>(Swapped(FromLittleEndian(bytes)));
        default:
            return bytes;
    }
}

void cRegistry::SetValue(const Data& data) {
    Service& service = machine_.registry;
    Service::Key key = 0;
    auto result = service.Create(ClassKey, SectionKey, Service::MayDoAll, key);
    if (result == Service::Success) {
        try {
            result = Write(key, data);
        } catch (const runtime::Failure&) {
            service.Close(key);
            throw;
        }
        service.Close(key);
    }
    if (result != Service::Success) {
        Raise("Failed to set registry value Key: " + SectionText() + ValueText() + "' to value: '" +
              AsText(data) + "'");
    }
}

Service::Result cRegistry::Write(Service::Key key, const Data& data) {
    Service& service = machine_.registry;
    const auto set = [&](std::uint32_t type, const void* bytes, std::size_t size) {
        return service.Set(key, ValueKey, type, static_cast<const std::uint8_t*>(bytes),
                           static_cast<std::uint32_t>(size));
    };
    const auto* bytes = std::get_if<Bytes>(&data);
    const auto* number = std::get_if<std::int32_t>(&data);
    switch (ValueType) {
        case Service::String:
        case Service::ExpandString: {
            if (bytes) break;
            const std::string text = machine_.locale.ToAnsi(AsText(data));
            // With the terminating NUL, other than the flat functions.
            return set(HoldsReference(text) ? Service::ExpandString : Service::String, text.c_str(),
                       text.size() + 1);
        }
        case Service::Binary:
            if (!bytes) break;
            return set(Service::Binary, bytes->data(), bytes->size());
        case Service::Dword:
        case Service::BigEndianDword: {
            if (!number) break;
            const auto raw = ToLittleEndian(static_cast<std::uint32_t>(*number));
            return set(Service::Dword, raw.data(), raw.size());
        }
        default:
            break;
    }
    throw runtime::Failure(runtime::TypeMismatch);
}

bool cRegistry::KeyExists() {
    Service::Key key = 0;
    const auto result = machine_.registry.Open(ClassKey, SectionKey, Service::MayQueryValue, key);
    if (result != Service::Success) return false;
    machine_.registry.Close(key);
    return true;
}

// The texts of these failures do not close their last quote but where a word follows it, on
// purpose: callers show them so.
bool cRegistry::CreateKey() {
    Service::Key key = 0;
    const auto result = machine_.registry.Create(ClassKey, SectionKey, Service::MayDoAll, key);
    if (result != Service::Success) Raise("Failed to create registry Key: '" + SectionKey);
    machine_.registry.Close(key);
    return true;
}

bool cRegistry::DeleteKey() {
    if (HasEmptyPart(SectionKey) ||
        machine_.registry.RemoveKey(ClassKey, SectionKey) != Service::Success) {
        Raise("Failed to delete registry Key: " + SectionText());
    }
    return true;
}

bool cRegistry::DeleteValue() {
    Service& service = machine_.registry;
    Service::Key key = 0;
    if (service.Open(ClassKey, SectionKey, Service::MaySetValue, key) != Service::Success) {
        Raise("Failed to open key " + SectionText() + "' for delete access");
    }
    const auto result = service.RemoveValue(key, ValueKey);
    service.Close(key);
    if (result != Service::Success) {
        Raise("Failed to delete registry Key: " + SectionText() + ValueText());
    }
    return true;
}

void cRegistry::EnumerateValues(std::vector<std::string>& sKeyNames, int& iKeyCount) {
    Service& service = machine_.registry;
    iKeyCount = 0;
    Service::Key key = 0;
    if (service.Open(ClassKey, SectionKey, Service::MayQueryValue, key) != Service::Success) {
        return;
    }
    std::uint32_t longest = 0;
    if (service.LongestValueName(key, longest) == Service::Success) {
        std::string name;
        for (std::uint32_t index = 0;
             service.EnumerateValue(key, index, longest + 1, name) == Service::Success; ++index) {
            Append(sKeyNames, iKeyCount, name);
        }
    }
    service.Close(key);
}

void cRegistry::EnumerateSections(std::vector<std::string>& sSect, int& iSectCount) {
    Service& service = machine_.registry;
    iSectCount = 0;
    Service::Key key = 0;
    if (service.Open(ClassKey, SectionKey, Service::MayEnumerateSubKeys, key) != Service::Success) {
        return;
    }
    try {
        std::string name;
        for (std::uint32_t index = 0; service.EnumerateKey(key, index, name) == Service::Success;
             ++index) {
            Append(sSect, iSectCount, name);
        }
    } catch (const runtime::Failure& failure) {
        service.Close(key);
        throw runtime::Failure(failure.number, failure.description, Source());
    } catch (...) {
        service.Close(key);
        throw;
    }
    service.Close(key);
}

bool cRegistry::CreateEXEAssociation(std::string_view sExePath, std::string_view sClassName,
                                     std::string_view sClassDescription,
                                     std::string_view sAssociation,
                                     const AssociationOptions& options) {
    const std::string name(sClassName);
    const std::string program = Quoted(sExePath);
    const auto verb = [&](const char* key, std::string_view text, const char* arguments) {
        const std::string path = name + "\\shell\\" + key;
        WriteClassText(path, text);
        WriteClassText(path + "\\command", program + arguments);
    };
    WriteClassText(name, sClassDescription);
    WriteClassText('.' + std::string(sAssociation), name);
    verb("open", options.sOpenMenuText, " \"%1\"");
    if (options.bSupportPrint) verb("print", options.sPrintMenuText, " /p \"%1\"");
    if (options.bSupportInstall) {
        const std::string text(options.sInstallMenuText);
        verb("add", text.empty() ? "&Install " + name : text, " /a \"%1\"");
    }
    if (options.bSupportNew) verb("new", options.sNewMenuText, " /n \"%1\"");
    if (options.lDefaultIconIndex >= 0) {
        WriteClassText(name + "\\DefaultIcon",
                       std::string(sExePath) + ',' + runtime::ToText(options.lDefaultIconIndex));
    }
    return true;
}

bool cRegistry::CreateAdditionalEXEAssociations(std::string_view sClassName,
                                                const std::vector<std::string>& vItems) {
    constexpr std::size_t Group = 3;
    if (vItems.size() % Group != 0) {
        Raise(
            "Invalid parameter list passed to CreateAdditionalEXEAssociations - expected "
            "Name/Text/Command");
    }
    const std::string name(sClassName);
    SectionKey = Classes + name;
    if (!KeyExists()) {
        Raise("Error - attempt to create additional associations before class defined.");
    }
    for (std::size_t at = 0; at < vItems.size(); at += Group) {
        const std::string path = name + "\\shell\\" + vItems[at];
        WriteClassText(path, vItems[at + 1]);
        WriteClassText(path + "\\command", vItems[at + 2]);
    }
    return true;
}

void cRegistry::WriteClassText(const std::string& key, std::string_view text) {
    SectionKey = Classes + key;
    ValueKey.clear();
    ValueType = Service::String;
    SetValue(std::string(text));
}

std::string cRegistry::ExpandEnvStr(std::string_view text) const {
    return machine_.systemFacts.ExpandEnvironment(text);
}

std::string cRegistry::Source() const {
    return machine_.program.ExecutableName() + ".cRegistry";
}

// The root is told as a signed number.
std::string cRegistry::SectionText() const {
    return '\'' + runtime::ToText(static_cast<std::int32_t>(ClassKey)) + "',Section: '" +
           SectionKey;
}

std::string cRegistry::ValueText() const {
    return "',Key: '" + ValueKey;
}

void cRegistry::Raise(std::string text) const {
    throw runtime::Failure(FailureNumber, std::move(text), Source());
}

}  // namespace registry
