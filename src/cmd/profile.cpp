#include "cmd/profile.h"

#include <algorithm>
#include <utility>

#include "cmd/badinput.h"
#include "runtime/encoding.h"
#include "runtime/text.h"

namespace cmd {
namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";
constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view HeadSection = "Quillmore";
constexpr std::string_view HeadKey = "Profil";
// Goes up when a profile of today could no longer be read rightly.
constexpr std::string_view Version = "1";

// What quotes let through, by the letter behind the backslash.
constexpr std::pair<char, char> Escapes[] = {
    {'r', '\r'}, {'n', '\n'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'},
};

std::string TextOf(std::string_view file) {
    if (file.starts_with(Utf8Mark)) return std::string(file.substr(Utf8Mark.size()));
    if (file.starts_with(LittleEndianMark)) return runtime::FromUtf16(file.substr(2));
    if (!file.starts_with(BigEndianMark)) return runtime::FromWestern(file);
    std::string swapped(file.substr(2));
    for (std::size_t i = 0; i + 1 < swapped.size(); i += 2) std::swap(swapped[i], swapped[i + 1]);
    return runtime::FromUtf16(swapped);
}

bool IsText(std::string_view text) {
    while (!text.empty()) {
        const char32_t character = runtime::TakeCharacter(text);
        if (character == runtime::Malformed || character == 0) return false;
        if (character >= 0xD800 && character < 0xE000) return false;
    }
    return true;
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string Quoted(const std::string& value) {
    std::string quoted = "\"";
    for (const char c : value) {
        const auto* escape = std::find_if(std::begin(Escapes), std::end(Escapes),
                                          [&](const auto& pair) { return pair.second == c; });
        if (escape == std::end(Escapes)) {
            quoted += c;
        } else {
            quoted += {'\\', escape->first};
        }
    }
    return quoted + '"';
}

std::string Written(const std::string& value) {
    const bool plain = Trimmed(value) == value && !value.starts_with('"') &&
                       value.find_first_of("\r\n\t") == std::string::npos;
    return plain ? value : Quoted(value);
}

std::string Unquoted(std::string_view text, int line) {
    std::string value;
    for (text.remove_prefix(1); !text.empty(); text.remove_prefix(1)) {
        const char c = text.front();
        if (c == '"') {
            if (text.size() > 1) break;
            return value;
        }
        if (c != '\\') {
            value += c;
            continue;
        }
        text.remove_prefix(1);
        const auto* escape = std::find_if(
            std::begin(Escapes), std::end(Escapes),
            [&](const auto& pair) { return !text.empty() && pair.first == text.front(); });
        if (escape == std::end(Escapes)) {
            throw BadInput("hinter \\ steht keines der Zeichen r, n, t, \" und \\", line);
        }
        value += escape->second;
    }
    throw BadInput("der Text in Anführungszeichen endet nicht mit einem", line);
}

class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::vector<ProfileLine> Read() {
        while (!rest_.empty()) Take(NextLine());
        if (!isProfile_) throw NoProfile();
        return std::move(lines_);
    }

  private:
    BadInput NoProfile() const {
        return BadInput(
            "das ist kein Profil von Quillmore: es beginnt nicht mit [Quillmore] und Profil=1",
            std::max(line_, 1));
    }

    std::string_view NextLine() {
        ++line_;
        const std::size_t end = rest_.find('\n');
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        return Trimmed(line);
    }

    void Take(std::string_view line) {
        if (line.empty() || line.starts_with(';')) return;
        if (line.starts_with('[')) {
            if (!line.ends_with(']')) throw BadInput("der Abschnitt endet nicht mit ]", line_);
            section_ = Trimmed(line.substr(1, line.size() - 2));
            if (!isProfile_ && section_ != HeadSection) throw NoProfile();
            return;
        }
        const std::size_t equals = line.find('=');
        if (section_.empty()) throw NoProfile();
        if (equals == std::string_view::npos) {
            throw BadInput("hier steht weder [Seite] noch Steuerelement=Wert", line_);
        }
        const std::string name(Trimmed(line.substr(0, equals)));
        const std::string_view text = Trimmed(line.substr(equals + 1));
        const std::string value = text.starts_with('"') ? Unquoted(text, line_) : std::string(text);
        if (section_ == HeadSection) {
            if (name != HeadKey || value != Version) throw NoProfile();
            isProfile_ = true;
            return;
        }
        if (!isProfile_) throw NoProfile();
        for (const ProfileLine& other : lines_) {
            if (runtime::EqualsIgnoringCase(other.control, name)) {
                throw BadInput(name + " steht schon in Zeile " + std::to_string(other.line), line_);
            }
        }
        lines_.push_back({section_, name, value, line_});
    }

    std::string_view rest_;
    std::string section_;
    std::vector<ProfileLine> lines_;
    int line_ = 0;
    bool isProfile_ = false;
};

}  // namespace

std::string WriteProfile(const std::vector<ProfileLine>& lines) {
    std::string text(Utf8Mark);
    const auto add = [&](std::string_view line) { text.append(line).append(LineEnd); };
    add("[" + std::string(HeadSection) + "]");
    add(std::string(HeadKey) + "=" + std::string(Version));
    std::string page;
    for (const ProfileLine& line : lines) {
        if (line.page != page) {
            page = line.page;
            add("");
            add("[" + page + "]");
        }
        add("; " + line.comment);
        add((line.isOff ? ";" : "") + line.control + "=" + Written(line.value));
    }
    return text;
}

std::vector<ProfileLine> ReadProfile(std::string_view file) {
    const std::string text = TextOf(file);
    if (!IsText(text)) throw BadInput("die Datei ist kein Text", 1);
    return Reader(text).Read();
}

}  // namespace cmd
