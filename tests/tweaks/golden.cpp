#include "tweaks/golden.h"

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace tweak_tests {
namespace {

std::vector<std::string> Split(const std::string& line, char delimiter) {
    std::vector<std::string> parts;
    std::istringstream stream(line);
    for (std::string part; std::getline(stream, part, delimiter);) parts.push_back(part);
    return parts;
}

// What stands between the first and the last quotation mark.
std::string Quoted(const std::string& words) {
    const std::size_t first = words.find('"');
    return words.substr(first + 1, words.rfind('"') - first - 1);
}

std::string HexForm(const std::vector<std::uint8_t>& bytes) {
    std::string text;
    char piece[8];
    for (std::uint8_t byte : bytes) {
        std::snprintf(piece, sizeof piece, byte < 10 ? "%02X " : "%X ", byte);
        text += piece;
    }
    return text;
}

std::string TextForm(const StoredValue& stored) {
    const std::string bytes(stored.bytes.begin(), stored.bytes.end());
    switch (stored.type) {
        case 1:
        case 2:
        case 7:
            return bytes.substr(0, bytes.find('\0'));
        case 3:
            return HexForm(stored.bytes);
        case 4: {
            if (bytes.size() > 4) return "";
            std::uint32_t number = 0;
            for (std::size_t i = 0; i < bytes.size(); ++i) {
                number |= std::uint32_t{stored.bytes[i]} << 8 * i;
            }
            return std::to_string(static_cast<std::int32_t>(number));
        }
        default:
            return "";
    }
}

// Plain decimal numbers with blanks around alone, which is all that the tests store.
bool IsNumber(std::string text, long number) {
    while (text.ends_with(' ')) text.pop_back();
    char* end = nullptr;
    const long found = std::strtol(text.c_str(), &end, 10);
    return !text.empty() && *end == '\0' && found == number;
}

}  // namespace

std::string FileText(const std::string& pathInRepository) {
    std::ifstream file(QUILLMORE_SOURCE_DIR "/" + pathInRepository, std::ios::binary);
    if (!file) throw std::runtime_error("no such file: " + pathInRepository);
    return {std::istreambuf_iterator<char>(file), {}};
}

Service::Key Fact::Root() const {
    if (root == "HKCR") return Service::ClassesRoot;
    if (root == "HKCU") return Service::CurrentUser;
    if (root == "HKLM") return Service::LocalMachine;
    throw std::runtime_error("no such root: " + root);
}

namespace {

std::vector<Fact> ReadGoldenFacts() {
    std::vector<Fact> facts;
    std::istringstream lines(FileText("tests/golden/catalogue.tsv"));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        const auto part = Split(line, '\t');
        if (part.size() != 10) throw std::runtime_error("not ten columns: " + line);
        facts.push_back({part[0], part[1], part[2], part[3], part[4], part[5], part[6], part[7],
                         part[8], part[9]});
    }
    return facts;
}

}  // namespace

const std::vector<Fact>& GoldenFacts() {
    static const std::vector<Fact> facts = ReadGoldenFacts();
    return facts;
}

std::vector<std::string> GoldenCheckBoxes() {
    std::vector<std::string> names;
    for (const Fact& fact : GoldenFacts()) {
        if (fact.IsCheckBox() && (names.empty() || names.back() != fact.control)) {
            names.push_back(fact.control);
        }
    }
    return names;
}

std::vector<Fact> FactsDecidedBy(const std::string& checkBox) {
    std::vector<Fact> facts;
    for (const Fact& fact : GoldenFacts()) {
        if (fact.control == checkBox || fact.on.ends_with(" with " + checkBox)) {
            facts.push_back(fact);
        }
    }
    return facts;
}

std::optional<StoredValue> Outcome(const std::string& side, const std::string& boxText) {
    if (side.starts_with("dword ")) {
        return DwordValue(static_cast<std::uint32_t>(std::stoul(side.substr(6))));
    }
    if (side.starts_with("text of the box")) return BareTextValue(boxText);
    if (side.starts_with("text \"")) return BareTextValue(Quoted(side));
    if (side.starts_with("binary \"")) {
        StoredValue value = BareTextValue(Quoted(side));
        value.type = Service::Binary;
        return value;
    }
    if (side.starts_with("delete value") || side == "nothing") return std::nullopt;
    throw std::runtime_error("no such side: " + side);
}

bool ReadsAsOn(const Fact& fact, const std::optional<StoredValue>& stored) {
    std::string words = fact.read.substr(0, fact.read.find(';'));
    if (words == "not read") return true;
    const bool offWhen = words.starts_with("off when ");
    if (offWhen) words.erase(0, 9);

    const std::string text = stored ? TextForm(*stored) : "";
    bool holds = true;
    if (words.starts_with("present")) {
        holds = stored.has_value();
        words.erase(0, words.starts_with("present and ") ? 12 : 7);
    }
    bool emptyToo = words.starts_with("\"\" or ");
    if (emptyToo) words.erase(0, 6);
    if (words.starts_with("= \"")) {
        holds = holds && text == Quoted(words);
    } else if (words.starts_with("= ")) {
        holds = holds && (IsNumber(text, std::stol(words.substr(2))) || (emptyToo && text.empty()));
    } else if (!words.empty()) {
        throw std::runtime_error("no such condition: " + fact.read);
    }
    return holds != offWhen;
}

std::string LineOf(const Fact& fact) {
    return fact.page + '\t' + fact.control + '\t' + fact.caption + '\t' + fact.root + '\t' +
           fact.key + '\t' + fact.value + '\t' + fact.kind + '\t' + fact.read + '\t' + fact.on +
           '\t' + fact.off;
}

}  // namespace tweak_tests
