#include "tweaks/golden.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "tweaks/controltext.h"

namespace tweak_tests {
namespace {

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
std::optional<long> NumberIn(std::string text) {
    while (text.ends_with(' ')) text.pop_back();
    char* end = nullptr;
    const long found = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0') return std::nullopt;
    return found;
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
    for (const auto& line : golden::CatalogueLines(FileText("tests/golden/catalogue.tsv"))) {
        facts.push_back({line});
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

std::vector<std::string> ReadCheckBoxes() {
    std::vector<std::string> names = GoldenCheckBoxes();
    std::erase_if(names, [](const std::string& name) {
        const auto facts = FactsDecidedBy(name);
        return std::none_of(facts.begin(), facts.end(),
                            [](const Fact& fact) { return fact.Decides(); });
    });
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

std::string AbsentState(const std::string& checkBox) {
    constexpr std::string_view Absent = "; absent: ";
    for (const Fact& fact : FactsDecidedBy(checkBox)) {
        const std::size_t at = fact.read.find(Absent);
        if (fact.IsCheckBox() && at != std::string::npos) {
            return fact.read.substr(at + Absent.size());
        }
    }
    return "";
}

namespace {

std::vector<std::pair<std::string, bool>> ReadWindowsDefaults() {
    std::vector<std::pair<std::string, bool>> defaults;
    for (const auto& row : golden::RowsOf(FileText("tests/golden/windowsdefaults.tsv"), 2)) {
        if (row[1] != "on" && row[1] != "off") {
            throw std::runtime_error("neither on nor off: " + row[0]);
        }
        defaults.emplace_back(row[0], row[1] == "on");
    }
    return defaults;
}

}  // namespace

const std::vector<std::pair<std::string, bool>>& WindowsDefaults() {
    static const auto defaults = ReadWindowsDefaults();
    return defaults;
}

std::vector<std::pair<std::string, bool>> ReadingOtherwiseThanWindows() {
    std::vector<std::pair<std::string, bool>> boxes;
    for (const auto& [name, windows] : WindowsDefaults()) {
        const bool shown = AbsentState(name) == "on";
        if (shown != windows) boxes.emplace_back(name, shown);
    }
    return boxes;
}

namespace {

// Takes `tail` off the end of `words`; whether it stood there.
bool TakeOff(std::string& words, const std::string& tail) {
    if (!words.ends_with(tail)) return false;
    words.erase(words.size() - tail.size());
    return true;
}

std::string BoxText(const Options& options, const std::string& name) {
    return tweaks::TextOfControl(options.form, name);
}

bool Numeric(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

// Takes the numeric test off the words and asks it.
bool NumericTestPasses(std::string& words, const Fact& fact, const Options& options) {
    const std::size_t end = words.find("numeric");
    if (end == std::string::npos) return true;
    const std::size_t start = words.find(" if ") + 4;
    std::string asked = words.substr(start, end - start);
    words.erase(start - 4);
    return Numeric(BoxText(options, TakeOff(asked, " is ") ? asked : fact.control));
}

// Takes what limits the side off the words and asks it.
bool Allowed(std::string& words, const Fact& fact, const Options& options) {
    const auto& registry = options.machine.registry;
    if (TakeOff(words, " if key present")) return registry.HasKey(fact.Root(), fact.key);
    if (TakeOff(words, " if key absent")) return !registry.HasKey(fact.Root(), fact.key);
    if (TakeOff(words, " if value present")) {
        return registry.Value(fact.Root(), fact.key, fact.value).has_value();
    }
    if (TakeOff(words, " if only this key present")) {
        const bool earlier =
            std::any_of(GoldenFacts().begin(), GoldenFacts().end(), [&](const Fact& other) {
                return other.control == fact.control && other.read == "overruled" &&
                       registry.HasKey(other.Root(), other.key);
            });
        return !earlier && registry.HasKey(fact.Root(), fact.key);
    }
    return true;
}

void ApplyWords(const std::string& words, const Fact& fact, Options& options) {
    auto& registry = options.machine.registry;
    const auto put = [&](const StoredValue& value) {
        registry.Put(fact.Root(), fact.key, fact.value, value);
    };
    const auto source = [&](std::size_t prefix) {
        const std::string name = words.substr(prefix);
        return BoxText(options, name == "the box" ? fact.control : name);
    };
    if (words.starts_with("dword ")) {
        put(DwordValue(static_cast<std::uint32_t>(std::stoul(words.substr(6)))));
    } else if (words.starts_with("text of ")) {
        put(BareTextValue(source(8)));
    } else if (words.starts_with("number of ")) {
        put(DwordValue(static_cast<std::uint32_t>(std::stoul(source(10)))));
    } else if (words.starts_with("text \"")) {
        put(BareTextValue(Quoted(words)));
    } else if (words.starts_with("binary \"")) {
        StoredValue value = BareTextValue(Quoted(words));
        value.type = Service::Binary;
        put(value);
    } else if (words == "delete value") {
        if (registry.HasKey(fact.Root(), fact.key)) {
            registry.Erase(fact.Root(), fact.key, fact.value);
        }
    } else if (words == "delete key") {
        if (registry.HasKey(fact.Root(), fact.key)) registry.EraseKey(fact.Root(), fact.key);
    } else if (words != "nothing") {
        throw std::runtime_error("no such side: " + words);
    }
}

}  // namespace

// The limits are asked before anything is written, as one side of an option is limited as a whole.
void Apply(const std::vector<Fact>& facts, FactSide side, Options& options) {
    std::vector<std::pair<std::string, const Fact*>> allowed;
    for (const Fact& fact : facts) {
        std::string words = (fact.*side).substr(0, (fact.*side).find(" with "));
        if (Allowed(words, fact, options) && NumericTestPasses(words, fact, options)) {
            allowed.emplace_back(words, &fact);
        }
    }
    for (const auto& [words, fact] : allowed) ApplyWords(words, *fact, options);
}

bool ReadsAsOn(const Fact& fact, const std::optional<StoredValue>& stored) {
    if (!fact.Decides()) return true;
    std::string words = fact.read.substr(0, fact.read.find_first_of(",;"));
    const bool offWhen = words.starts_with("off when ");
    if (offWhen) words.erase(0, 9);

    std::string text = stored ? TextForm(*stored) : "";
    bool holds = true;
    if (words.starts_with("present")) {
        holds = stored.has_value();
        words.erase(0, words.starts_with("present and ") ? 12 : 7);
    }
    const bool emptyToo = words.starts_with("\"\" or ");
    if (emptyToo) words.erase(0, 6);
    if (words.starts_with("lower ") || words.starts_with("upper ")) {
        for (char& letter : text) {
            letter =
                static_cast<char>(words[0] == 'l' ? std::tolower(letter) : std::toupper(letter));
        }
        words.erase(0, 6);
    }
    if (words.starts_with("= \"")) {
        holds = holds && text == Quoted(words);
    } else if (words.starts_with("= ")) {
        holds =
            holds && (NumberIn(text) == std::stol(words.substr(2)) || (emptyToo && text.empty()));
    } else if (words.starts_with(">= ")) {
        holds = holds && NumberIn(text).value_or(LONG_MAX) >= std::stol(words.substr(3));
    } else if (words == "not empty") {
        holds = !text.empty();
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
