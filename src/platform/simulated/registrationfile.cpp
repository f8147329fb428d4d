#include "platform/simulated/registrationfile.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "platform/simulated/locale.h"
#include "platform/simulated/registry.h"

namespace platform::simulated {
namespace {

constexpr std::string_view Header = "Windows Registry Editor Version 5.00";

// The text line by line, with a value's continuation lines joined to their first one.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    bool Next(std::string& line) {
        if (rest_.empty()) return false;
        line = TakeOne();
        first_ = number_;
        while (line.ends_with('\\') && !line.starts_with(';') && !rest_.empty()) {
            line.pop_back();
            line += Trimmed(TakeOne());
        }
        return true;
    }

    [[noreturn]] void Refuse(const std::string& why) const {
        throw std::runtime_error("registration file, line " + std::to_string(first_) + ": " + why);
    }

  private:
    static std::string_view Trimmed(std::string_view line) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        return line.substr(0, line.find_last_not_of(" \t") + 1);
    }

    std::string TakeOne() {
        std::size_t end = rest_.find('\n');
        std::string_view line = Trimmed(rest_.substr(0, end));
        if (line.ends_with('\r')) line = Trimmed(line.substr(0, line.size() - 1));
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        ++number_;
        return std::string(line);
    }

    std::string_view rest_;
    int number_ = 0;
    int first_ = 0;
};

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

std::uint32_t HexNumber(const Lines& lines, std::string_view digits, std::size_t longest) {
    std::uint32_t number = 0;
    const char* end = digits.data() + digits.size();
    auto [stop, error] = std::from_chars(digits.data(), end, number, 16);
    if (digits.empty() || digits.size() > longest || error != std::errc() || stop != end) {
        lines.Refuse("no hexadecimal number: \"" + std::string(digits) + "\"");
    }
    return number;
}

// A quoted text, in which a backslash stands before a backslash or a quote.
std::string TakeQuoted(const Lines& lines, std::string_view& text) {
    std::string quoted;
    if (!TakePrefix(text, "\"")) lines.Refuse("a quote is missing");
    while (!text.empty() && text.front() != '"') {
        if (TakePrefix(text, "\\") && (text.empty() || (text[0] != '\\' && text[0] != '"'))) {
            lines.Refuse("a lone backslash in a text");
        }
        quoted += text.front();
        text.remove_prefix(1);
    }
    if (!TakePrefix(text, "\"")) lines.Refuse("a quote is missing");
    return quoted;
}

std::vector<std::uint8_t> HexBytes(const Lines& lines, std::string_view list) {
    std::vector<std::uint8_t> bytes;
    while (!list.empty()) {
        std::string_view byte = list.substr(0, list.find(','));
        if (byte.size() != 2) lines.Refuse("no byte: \"" + std::string(byte) + "\"");
        bytes.push_back(static_cast<std::uint8_t>(HexNumber(lines, byte, 2)));
        list.remove_prefix(byte.size());
        if (TakePrefix(list, ",") && list.empty()) lines.Refuse("a byte is missing");
    }
    return bytes;
}

// Takes the value's data into the line.
void TakeData(const Lines& lines, std::string_view text, RegistrationLine& line) {
    if (text == "-") {
        line.removes = true;
    } else if (text.starts_with('"')) {
        line.type = platform::Registry::String;
        line.text = TakeQuoted(lines, text);
        if (!text.empty()) lines.Refuse("something stands behind the text");
    } else if (TakePrefix(text, "dword:")) {
        const StoredValue number = DwordValue(HexNumber(lines, text, 8));
        line.type = number.type;
        line.data = number.bytes;
    } else if (TakePrefix(text, "hex:")) {
        line.type = platform::Registry::Binary;
        line.data = HexBytes(lines, text);
    } else {
        if (!TakePrefix(text, "hex(")) {
            lines.Refuse("unknown data \"" + std::string(text) + "\"");
        }
        const std::size_t end = text.find("):");
        if (end == std::string_view::npos) lines.Refuse("the type has no end");
        line.type = HexNumber(lines, text.substr(0, end), 8);
        line.data = HexBytes(lines, text.substr(end + 2));
        if (IsTextType(line.type) && line.data.size() % 2 != 0) {
            lines.Refuse("half a character at the end of a text");
        }
    }
}

RegistrationLine KeyOf(const Lines& lines, std::string_view text) {
    constexpr std::pair<std::string_view, Registry::Key> Roots[] = {
        {"HKEY_CLASSES_ROOT", Registry::ClassesRoot},
        {"HKEY_CURRENT_USER", Registry::CurrentUser},
        {"HKEY_LOCAL_MACHINE", Registry::LocalMachine},
    };
    if (!text.ends_with(']')) lines.Refuse("the key has no end");
    text.remove_suffix(1);
    RegistrationLine line;
    line.removes = TakePrefix(text, "-");
    const std::string_view rootName = text.substr(0, text.find('\\'));
    for (const auto& [name, root] : Roots) {
        if (rootName == name) line.root = root;
    }
    if (line.root == 0) lines.Refuse("unknown root \"" + std::string(rootName) + "\"");
    line.key = text.substr(std::min(rootName.size() + 1, text.size()));
    return line;
}

// Texts in bytes stand in the file in UTF-16, two bytes a unit, and reach the A calls in the code
// page.
std::vector<std::uint8_t> NarrowedUnits(const std::vector<std::uint8_t>& units) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < units.size(); i += 2) {
        auto unit = static_cast<char32_t>(units[i] | units[i + 1] << 8);
        bytes.push_back(static_cast<std::uint8_t>(WesternByte(unit)));
    }
    return bytes;
}

StoredValue ValueOf(const RegistrationLine& line) {
    if (line.text) return TextValue(*line.text);
    return {line.type, IsTextType(line.type) ? NarrowedUnits(line.data) : line.data};
}

}  // namespace

std::vector<RegistrationLine> ReadRegistrationFile(std::string_view registrationText) {
    TakePrefix(registrationText, "\xEF\xBB\xBF");
    Lines lines(registrationText);
    std::string line;
    if (!lines.Next(line) || line != Header) lines.Refuse("the header is missing");
    std::vector<RegistrationLine> read;
    std::optional<RegistrationLine> key;
    while (lines.Next(line)) {
        std::string_view text = line;
        if (text.empty() || text.front() == ';') continue;
        if (TakePrefix(text, "[")) {
            key = KeyOf(lines, text);
            read.push_back(*key);
            continue;
        }
        if (!key || key->removes) lines.Refuse("a value without a key");
        RegistrationLine value = *key;
        value.name = TakePrefix(text, "@") ? "" : TakeQuoted(lines, text);
        if (!TakePrefix(text, "=")) lines.Refuse("the equals sign is missing");
        TakeData(lines, text, value);
        read.push_back(value);
    }
    return read;
}

void Registry::Load(std::string_view registrationText) {
    for (const RegistrationLine& line : ReadRegistrationFile(registrationText)) {
        if (!line.name && line.removes) {
            EraseKey(line.root, line.key);
        } else if (!line.name) {
            MakeKey(line.root, line.key);
        } else if (line.removes) {
            Erase(line.root, line.key, *line.name);
        } else {
            Put(line.root, line.key, *line.name, ValueOf(line));
        }
    }
}

}  // namespace platform::simulated
