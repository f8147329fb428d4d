#include "endtoend/registryfile.h"

#include <cstdlib>
#include <sstream>

#include "endtoend/waiting.h"

namespace endtoend {
namespace {

constexpr char SettingsStore[] = "Software\\VB and VBA Program Settings\\Quillmore";
constexpr char RunKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// The quoted text at `at`, which moves behind it. A backslash takes away the meaning of the next
// character.
std::string Quoted(const std::string& line, std::size_t& at) {
    std::string text;
    for (++at; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] == '\\') ++at;
        if (at < line.size()) text += line[at];
    }
    if (at >= line.size()) throw Failed("no closing quote: " + line);
    ++at;
    return text;
}

RegistryValue HexValue(const std::string& data) {
    const std::size_t colon = data.find(':');
    RegistryValue value{REG_BINARY, {}};
    if (data[3] == '(') value.type = std::strtoul(data.c_str() + 4, nullptr, 16);
    std::istringstream bytes(data.substr(colon + 1));
    for (std::string byte; std::getline(bytes, byte, ',');) {
        value.bytes += static_cast<char>(std::strtoul(byte.c_str(), nullptr, 16));
    }
    return value;
}

RegistryValue ParseValue(const std::string& data) {
    if (data.starts_with("dword:")) return Dword(std::strtoul(data.c_str() + 6, nullptr, 16));
    if (data.starts_with("hex")) return HexValue(data);
    if (!data.starts_with('"')) throw Failed("no value: " + data);
    std::size_t at = 0;
    return TerminatedText(Quoted(data, at));
}

ValuePlace ParseKey(const std::string& line) {
    const std::string path = line.substr(1, line.find_last_of(']') - 1);
    const std::size_t cut = path.find('\\');
    if (cut == std::string::npos) throw Failed("no key: " + line);
    return {path.substr(0, cut), path.substr(cut + 1), ""};
}

RegistryFileEntry ParseEntry(ValuePlace place, const std::string& line) {
    std::size_t at = 0;
    if (line[0] == '@') {
        at = 1;
    } else if (line[0] == '"') {
        place.name = Quoted(line, at);
    }
    if (at == 0 || at >= line.size() || line[at] != '=') throw Failed("not understood: " + line);
    return {place, ParseValue(line.substr(at + 1))};
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream input(text);
    bool continued = false;
    for (std::string line; std::getline(input, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (continued) line = lines.back() + line.substr(line.find_first_not_of(" \t"));
        if (continued) lines.pop_back();
        // Only the bytes of a hex value run on behind a backslash.
        continued = line.ends_with(",\\");
        if (continued) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The places in columns root, key and value of the catalogue, whose first line is the heading.
std::vector<ValuePlace> PlacesOfCatalogue(const std::string& text) {
    std::vector<ValuePlace> places;
    for (const std::string& line : Lines(text)) {
        std::vector<std::string> columns;
        std::istringstream input(line);
        for (std::string column; std::getline(input, column, '\t');) columns.push_back(column);
        if (columns.size() > 5 && columns[3].starts_with("HK")) {
            places.push_back({columns[3], columns[4], columns[5]});
        }
    }
    if (places.empty()) throw Failed("the catalogue names no places");
    return places;
}

}  // namespace

std::vector<RegistryFileEntry> ParseRegistryFile(const std::string& text) {
    std::vector<RegistryFileEntry> entries;
    std::optional<ValuePlace> key;
    for (const std::string& line : Lines(text)) {
        if (line.empty() || line[0] == ';' || line.starts_with("Windows Registry Editor")) continue;
        if (line[0] == '[') {
            key = ParseKey(line);
            entries.push_back({*key, std::nullopt});
        } else if (key) {
            entries.push_back(ParseEntry(*key, line));
        } else {
            throw Failed("a value without a key: " + line);
        }
    }
    return entries;
}

void PutBaseline(const std::string& registryFileText, const std::string& catalogueText) {
    const std::vector<RegistryFileEntry> entries = ParseRegistryFile(registryFileText);
    for (const ValuePlace& place : PlacesOfCatalogue(catalogueText)) {
        DeleteValue(place);
        DeleteEmptyKeys(place.root, place.key);
    }
    DeleteTree("HKCU", SettingsStore);
    DeleteValue({"HKCU", RunKey, "Quillmore"});
    for (const RegistryFileEntry& entry : entries) {
        if (entry.value) {
            WriteValue(entry.place, *entry.value);
        } else {
            CreateKey(entry.place.root, entry.place.key);
        }
    }
}

}  // namespace endtoend
