#include "cmd/change.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>

#include "platform/locale.h"
#include "registry/littleendian.h"
#include "runtime/encoding.h"
#include "runtime/text.h"

namespace cmd {
namespace {

using platform::Registry;
using Value = WideRegistry::Value;

constexpr std::size_t ShownBytes = 32;

bool IsTextType(std::uint32_t type) {
    return type == Registry::String || type == Registry::ExpandString ||
           type == Registry::MultiString;
}

std::optional<Value> Widened(const std::optional<platform::dryrun::RegistryValue>& value,
                             const platform::Locale& locale) {
    if (!value) return std::nullopt;
    if (!IsTextType(value->type)) return Value{value->type, value->bytes};
    const std::string text = locale.FromAnsi(std::string(value->bytes.begin(), value->bytes.end()));
    const std::string units = runtime::ToUtf16(text);
    return Value{value->type, {units.begin(), units.end()}};
}

Change::Kind KindOf(platform::dryrun::Change::Kind kind) {
    using Kept = platform::dryrun::Change::Kind;
    switch (kind) {
        case Kept::KeyCreated:
            return Change::Kind::CreateKey;
        case Kept::KeyDeleted:
            return Change::Kind::DeleteKey;
        case Kept::ValueWritten:
            return Change::Kind::WriteValue;
        default:
            return Change::Kind::DeleteValue;
    }
}

bool Takes(const Change& change) {
    return change.kind == Change::Kind::DeleteKey || change.kind == Change::Kind::DeleteValue;
}

bool IsOfKey(const Change& change) {
    return change.kind == Change::Kind::CreateKey || change.kind == Change::Kind::DeleteKey;
}

std::string ChangedPlace(const Change& change) {
    return IsOfKey(change) ? PlaceText(change.root, change.path)
                           : PlaceText(change.root, change.path, change.valueName);
}

Registry::Result CarryOut(const Change& change, WideRegistry& registry) {
    switch (change.kind) {
        case Change::Kind::CreateKey:
            return registry.Create(change.root, change.path);
        case Change::Kind::DeleteKey:
            return registry.RemoveKey(change.root, change.path);
        case Change::Kind::WriteValue:
            return registry.Write(change.root, change.path, change.valueName, *change.after);
        default:
            return registry.RemoveValue(change.root, change.path, change.valueName);
    }
}

std::string Hex(const char* format, std::uint32_t number) {
    char text[24];
    std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
    return text;
}

bool EndsInNul(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= 2 && bytes[bytes.size() - 1] == 0 && bytes[bytes.size() - 2] == 0;
}

// Nothing when it is no text that could be shown whole between quotes.
std::optional<std::string> PlainText(const Value& value) {
    const std::vector<std::uint8_t>& bytes = value.bytes;
    if (value.type == Registry::MultiString || !IsTextType(value.type) || bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    const std::size_t size = EndsInNul(bytes) ? bytes.size() - 2 : bytes.size();
    const std::string text =
        runtime::FromUtf16({reinterpret_cast<const char*>(bytes.data()), size});
    std::string shown;
    for (const char c : text) {
        if (c == '\r') {
            shown += "\\r";
        } else if (c == '\n') {
            shown += "\\n";
        } else if (c == '\t') {
            shown += "\\t";
        } else if (static_cast<unsigned char>(c) < ' ') {
            return std::nullopt;
        } else {
            shown += c;
        }
    }
    return '"' + shown + '"';
}

// The texts of a list of texts, one behind the other.
std::optional<std::string> PlainTexts(const Value& value) {
    const std::vector<std::uint8_t>& bytes = value.bytes;
    if (value.type != Registry::MultiString || bytes.size() % 2 != 0) return std::nullopt;
    if (bytes.size() < 4 || !EndsInNul(bytes) || !EndsInNul({bytes.data(), bytes.size() - 2})) {
        return std::nullopt;
    }
    std::string shown;
    std::size_t begin = 0;
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 2) {
        if (bytes[i] != 0 || bytes[i + 1] != 0) continue;
        const auto text = PlainText(
            {Registry::String,
             {bytes.begin() + static_cast<long>(begin), bytes.begin() + static_cast<long>(i)}});
        if (!text) return std::nullopt;
        shown += (shown.empty() ? "" : " ") + *text;
        begin = i + 2;
    }
    return shown;
}

std::string BytesText(std::span<const std::uint8_t> bytes, bool all) {
    if (bytes.empty()) return "(leer)";
    const std::size_t count = all ? bytes.size() : std::min(bytes.size(), ShownBytes);
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += (i == 0 ? "" : " ") + Hex("%02x", bytes[i]);
    }
    if (count < bytes.size()) text += " ... (" + std::to_string(bytes.size()) + " Bytes)";
    return text;
}

std::string ValueText(const Value& value) {
    return TypeText(value.type) + ' ' + DataText(value);
}

// From what to what. Two texts that differ in their ends alone look the same otherwise.
std::string FromTo(const Change& change) {
    if (IsOfKey(change)) return {};
    if (!change.before) return change.after ? ": " + ValueText(*change.after) : "";
    std::string before = ValueText(*change.before);
    if (!change.after) return ": " + before;
    std::string after = ValueText(*change.after);
    if (before == after) {
        for (auto [text, value] : {std::pair(&before, &*change.before), {&after, &*change.after}}) {
            *text += EndsInNul(value->bytes) ? " (mit Nullzeichen)" : " (ohne Nullzeichen)";
        }
    }
    return ": " + before + " -> " + after;
}

struct Words {
    const char* toDo;
    const char* done;
};

Words WordsOf(const Change& change) {
    if (Takes(change)) return {"löschen ", "gelöscht "};
    if (!change.isBeforeKnown) return {"setzen  ", "gesetzt "};
    if (change.kind == Change::Kind::WriteValue && change.before) return {"ändern  ", "geändert "};
    return {"anlegen ", "angelegt "};
}

regfile::Key& FileKeyFor(std::vector<regfile::Key>& keys, const Change& change) {
    const std::string root = LongRootName(change.root);
    for (regfile::Key& key : keys) {
        if (!key.removes && key.root == root && key.path == change.path) return key;
    }
    return keys.emplace_back(regfile::Key{.root = root, .path = change.path});
}

// A value that goes with that key.
bool IsWithin(const Change& value, const Change& key) {
    return key.kind == Change::Kind::DeleteKey && value.kind == Change::Kind::DeleteValue &&
           value.root == key.root && value.path == key.path;
}

bool GoesWithItsKey(const Change& value, const Changes& changes) {
    return std::any_of(changes.begin(), changes.end(),
                       [&](const Change& change) { return IsWithin(value, change); });
}

// The values of the keys that go, as far as they are not told yet.
void AddLostValues(Changes& changes, WideRegistry& registry, Refusals& refusals) {
    Changes all;
    for (Change& change : changes) {
        if (change.kind == Change::Kind::DeleteKey) {
            std::vector<std::string> names;
            const Registry::Result result = registry.ValueNames(change.root, change.path, names);
            if (result != Registry::Success && result != Registry::FileNotFound) {
                refusals.push_back({ChangedPlace(change), result});
            }
            for (const std::string& name : names) {
                const bool isTold =
                    std::any_of(changes.begin(), changes.end(), [&](const Change& other) {
                        return IsWithin(other, change) &&
                               runtime::EqualsIgnoringCase(other.valueName, name);
                    });
                if (!isTold) {
                    all.push_back({Change::Kind::DeleteValue, change.root, change.path, name});
                }
            }
        }
        all.push_back(change);
    }
    changes = std::move(all);
}

}  // namespace

Changes ChangesOf(const std::vector<platform::dryrun::Change>& kept,
                  const platform::Locale& locale) {
    Changes changes;
    for (const platform::dryrun::Change& change : kept) {
        changes.push_back({KindOf(change.kind), change.root, change.path, change.valueName,
                           Widened(change.before, locale), Widened(change.after, locale)});
    }
    const auto taken = std::stable_partition(changes.begin(), changes.end(),
                                             [](const Change& change) { return !Takes(change); });
    std::reverse(taken, changes.end());
    return changes;
}

void ReadBefore(Changes& changes, WideRegistry& registry, Refusals& refusals) {
    AddLostValues(changes, registry, refusals);
    std::erase_if(changes, [&](Change& change) {
        if (IsOfKey(change)) return false;
        Value now;
        const Registry::Result result =
            registry.Read(change.root, change.path, change.valueName, now);
        if (result == Registry::Success) {
            change.before = now;
        } else if (result != Registry::FileNotFound) {
            refusals.push_back({ChangedPlace(change), result});
            change.isBeforeKnown = change.before.has_value();
        }
        return change.isBeforeKnown && change.before == change.after;
    });
}

void CarryOut(const Changes& changes, WideRegistry& registry, Refusals& refusals,
              const std::function<void(const Change&)>& done) {
    for (const Change& change : changes) {
        if (GoesWithItsKey(change, changes)) continue;
        const Registry::Result result = CarryOut(change, registry);
        // Where nobody knew what was there, nothing may have been.
        if (result == Registry::FileNotFound && !change.isBeforeKnown && Takes(change)) continue;
        if (result != Registry::Success) {
            refusals.push_back({ChangedPlace(change), result});
            continue;
        }
        for (const Change& other : changes) {
            if (IsWithin(other, change)) done(other);
        }
        done(change);
    }
}

std::vector<regfile::Key> AsRegistrationFile(const Changes& changes) {
    std::vector<regfile::Key> keys;
    for (const Change& change : changes) {
        switch (change.kind) {
            case Change::Kind::CreateKey:
                FileKeyFor(keys, change);
                break;
            case Change::Kind::DeleteKey:
                keys.push_back(
                    {.root = LongRootName(change.root), .path = change.path, .removes = true});
                break;
            case Change::Kind::WriteValue:
                FileKeyFor(keys, change)
                    .values.push_back({.name = change.valueName,
                                       .type = change.after->type,
                                       .bytes = change.after->bytes});
                break;
            case Change::Kind::DeleteValue:
                if (GoesWithItsKey(change, changes)) break;
                FileKeyFor(keys, change)
                    .values.push_back({.name = change.valueName, .removes = true});
                break;
        }
    }
    return keys;
}

std::string ToDo(const Change& change) {
    return WordsOf(change).toDo + ChangedPlace(change) + FromTo(change);
}

std::string ListToDo(const Changes& changes) {
    std::string list;
    for (const Change& change : changes) list += ToDo(change) + '\n';
    return list;
}

std::string Done(const Change& change) {
    return WordsOf(change).done + ChangedPlace(change) + FromTo(change);
}

std::string TypeText(std::uint32_t type) {
    static constexpr std::array<const char*, 12> Names = {
        "REG_NONE",
        "REG_SZ",
        "REG_EXPAND_SZ",
        "REG_BINARY",
        "REG_DWORD",
        "REG_DWORD_BIG_ENDIAN",
        "REG_LINK",
        "REG_MULTI_SZ",
        "REG_RESOURCE_LIST",
        "REG_FULL_RESOURCE_DESCRIPTOR",
        "REG_RESOURCE_REQUIREMENTS_LIST",
        "REG_QWORD",
    };
    return type < Names.size() ? Names[type] : Hex("Typ 0x%x", type);
}

std::string DataText(const Value& value, bool all) {
    if (value.type == Registry::Dword && value.bytes.size() == 4) {
        const std::uint32_t number = registry::FromLittleEndian(value.bytes);
        return Hex("0x%08x", number) + " (" + std::to_string(number) + ")";
    }
    if (auto text = PlainText(value)) return *text;
    if (auto texts = PlainTexts(value)) return *texts;
    return BytesText(value.bytes, all);
}

}  // namespace cmd
