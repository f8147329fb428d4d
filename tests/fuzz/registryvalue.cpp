// A registry value to text: as the catalogue reads it and as the dialogs do, while the value stands
// still and while another program changes it between two calls.
#include <cstdio>

#include "fuzz/target.h"
#include "platform/machinewith.h"
#include "platform/simulated/machine.h"
#include "registry/cregistry.h"
#include "registry/registry.h"
#include "registry/restless.h"
#include "runtime/encoding.h"
#include "runtime/number.h"

namespace fuzz {
namespace {

using platform::simulated::StoredValue;
using Service = platform::Registry;

constexpr char ValuesKey[] = "Software\\Eins\\Zwei";
constexpr char ValueName[] = "Wert";
constexpr char DefaultText[] = "Vorgabe";

StoredValue TakeStored(Input& bytes) {
    StoredValue value;
    const std::size_t type = bytes.Below(14);
    value.type = type < 13 ? static_cast<std::uint32_t>(type) : bytes.Number();
    value.bytes = BytesOf(bytes.Piece());
    return value;
}

std::string Western(const StoredValue& value) {
    return runtime::FromWestern(std::string(value.bytes.begin(), value.bytes.end()));
}

std::int32_t NumberIn(const StoredValue& value, bool bigEndian) {
    std::uint8_t four[4] = {};
    std::copy(value.bytes.begin(), value.bytes.end(), four);
    if (bigEndian) std::reverse(four, four + 4);
    return static_cast<std::int32_t>(four[0] | four[1] << 8 | four[2] << 16 |
                                     static_cast<std::uint32_t>(four[3]) << 24);
}

// As RegReadValue is to tell it.
std::string FlatText(const StoredValue& value) {
    std::string text;
    switch (value.type) {
        case Service::String:
        case Service::ExpandString:
        case Service::MultiString:
            text = Western(value);
            return text.substr(0, text.find('\0'));
        case Service::Dword:
            return value.bytes.size() > 4 ? "" : std::to_string(NumberIn(value, false));
        case Service::Binary:
            for (const std::uint8_t byte : value.bytes) {
                char shown[8];
                std::snprintf(shown, sizeof shown, byte > 9 && byte < 16 ? "%X " : "%02X ", byte);
                text += shown;
            }
            return text;
        default:
            return "";
    }
}

// As cRegistry::Value is to tell it.
registry::Data ObjectData(const StoredValue& value, const platform::Machine& machine) {
    const bool isNumber = value.type == Service::Dword || value.type == Service::BigEndianDword;
    if (isNumber && value.bytes.size() > 4) return std::string(DefaultText);
    if (isNumber) return NumberIn(value, value.type == Service::BigEndianDword);
    if (!platform::simulated::IsTextType(value.type)) return value.bytes;
    StoredValue shorter = value;
    if (!shorter.bytes.empty()) shorter.bytes.pop_back();
    const std::string text = Western(shorter);
    return value.type == Service::ExpandString ? machine.systemFacts.ExpandEnvironment(text) : text;
}

struct ReadValues {
    platform::simulated::Machine simulated;
    registry_tests::Restless restless{simulated.registry};
    platform::Machine machine = platform::With(simulated.services, {.registry = &restless});
    registry::Registry flat{machine.registry, machine.locale};

    void Put(const StoredValue& value) {
        simulated.registry.Put(Service::CurrentUser, ValuesKey, ValueName, value);
    }
    std::string ReadFlat() const { return flat.RegReadValue(registry::HKCU, ValuesKey, ValueName); }
    registry::Data ReadObject(std::uint32_t* type = nullptr) const {
        registry::cRegistry object(machine);
        object.ClassKey = Service::CurrentUser;
        object.SectionKey = ValuesKey;
        object.ValueKey = ValueName;
        object.Default = std::string(DefaultText);
        const registry::Data data = object.Value();
        if (type) *type = object.ValueType;
        return data;
    }
};

void CheckWritten(ReadValues& values, const std::string& text, std::uint32_t number) {
    using registry::HKCU;
    const std::string shown = text.substr(0, text.find('\0'));
    const std::size_t places = values.simulated.registry.Dump().size();
    values.flat.RegWriteString(HKCU, ValuesKey, ValueName, text);
    RequireSame(values.ReadFlat(), shown, "a text written and read");
    values.flat.RegWriteBinary(HKCU, ValuesKey, ValueName, text);
    Require(values.simulated.registry.Value(Service::CurrentUser, ValuesKey, ValueName) ==
                StoredValue{Service::Binary, BytesOf(values.machine.locale.ToAnsi(text))},
            "other bytes written");
    const auto before = values.simulated.registry.Dump();
    const auto written = static_cast<std::int32_t>(number);
    const int failure =
        FailureOf([&] { values.flat.RegWriteDword(HKCU, ValuesKey, ValueName, written); });
    if (written < 0) {
        Require(failure == runtime::InvalidProcedureCall, "a number below 0 is written");
        Require(values.simulated.registry.Dump() == before, "a number below 0 leaves a trace");
    } else {
        RequireSame(values.ReadFlat(), std::to_string(written), "a number written and read");
    }
    Require(values.simulated.registry.Dump().size() == places, "a second value written");
}

}  // namespace

FUZZ_TARGET(registryvalue) {
    Input bytes(input);
    const int changesAfter = static_cast<int>(bytes.Below(5));
    const std::uint32_t number = bytes.Number();
    const StoredValue value = TakeStored(bytes);
    const bool goes = bytes.Flag();
    const StoredValue later = TakeStored(bytes);

    ReadValues values;
    values.simulated.journal.Record(false);
    values.Put(value);
    const auto before = values.simulated.registry.Dump();
    const std::string flat = FlatText(value);
    RequireSame(values.ReadFlat(), flat, "the text");
    RequireSame(values.ReadFlat(), flat, "the text, once more");
    Require(values.flat.RegValuePresent(registry::HKCU, ValuesKey, ValueName), "not present");
    std::uint32_t type = 0;
    const registry::Data data = ObjectData(value, values.machine);
    Require(values.ReadObject(&type) == data, "other data");
    Require(type == value.type, "another type");
    registry::AsText(data);
    // A number that does not fit, the question whether the value is there, and the object leave
    // theirs open.
    Require(values.simulated.registry.OpenHandles() <= 4, "handles are left open");
    Require(values.simulated.registry.Dump() == before, "reading writes");

    if (changesAfter > 0) {
        const auto change = [&] {
            if (goes) {
                values.simulated.registry.Erase(Service::CurrentUser, ValuesKey, ValueName);
            } else {
                values.Put(later);
            }
        };
        const StoredValue mixed{value.type, later.bytes};
        values.restless.After(changesAfter, change);
        const std::string text = values.ReadFlat();
        Require(text == flat || text.empty() || (!goes && text == FlatText(later)) ||
                    (!goes && text == FlatText(mixed)),
                "a text of neither value");
        values.Put(value);
        values.restless.After(changesAfter, change);
        const registry::Data read = values.ReadObject();
        Require(read == data || read == registry::Data(std::string(DefaultText)) ||
                    (!goes && read == ObjectData(later, values.machine)),
                "data of neither value");
        values.restless.After(0, nullptr);
    }
    CheckWritten(values, Western(value), number);
}

}  // namespace fuzz
