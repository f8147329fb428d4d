#include <algorithm>
#include <cstddef>

#include "regfile/places.h"
#include "regfile/registrationfile.h"
#include "runtime/encoding.h"
#include "runtime/text.h"

namespace regfile {
namespace {

constexpr char LittleEndianMark[] = "\xFF\xFE";
constexpr char Utf8Mark[] = "\xEF\xBB\xBF";

int LinesIn(std::string_view text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

// -1 for what is none.
int HexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

// Goes through the text once, from its beginning to its end.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::vector<Key> All() {
        TakeHeader();
        std::vector<Key> keys;
        while (!rest_.empty()) {
            TakeBlanks();
            if (AtEnd()) {
                TakeLineEnd("");
            } else if (Take("[")) {
                keys.push_back(TakeKey());
            } else if (rest_.front() == '"' || rest_.front() == '@') {
                if (keys.empty() || keys.back().removes) {
                    Refuse("Der Wert gehört zu keinem Schlüssel.");
                }
                keys.back().values.push_back(TakeValue());
            } else {
                Refuse("Die Zeile ist weder ein Schlüssel noch ein Wert.");
            }
        }
        return keys;
    }

  private:
    [[noreturn]] void Refuse(const char* reason) const { throw Slip(line_, reason); }

    bool Take(std::string_view word) {
        if (!runtime::EqualsIgnoringCase(rest_.substr(0, word.size()), word)) return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    void TakeBlanks() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    }

    // The end of what counts on the line.
    bool AtEnd() const {
        return rest_.empty() || rest_.front() == ';' || rest_.front() == '\r' ||
               rest_.front() == '\n';
    }

    std::string_view RestOfLine() const { return rest_.substr(0, rest_.find_first_of("\r\n")); }

    // Blanks and a comment may stand before it.
    void TakeLineEnd(const char* otherwise) {
        TakeBlanks();
        if (!AtEnd()) Refuse(otherwise);
        rest_.remove_prefix(RestOfLine().size());
        if (Take("\r\n") || Take("\n") || Take("\r")) ++line_;
    }

    void TakeHeader() {
        std::string_view first = RestOfLine();
        first = first.substr(0, first.find_last_not_of(" \t") + 1);
        if (runtime::EqualsIgnoringCase(first, "REGEDIT4")) {
            Refuse("Die alte Form REGEDIT4 wird nicht gelesen.");
        }
        if (!runtime::EqualsIgnoringCase(first, Header)) {
            Refuse("Die Kopfzeile \"Windows Registry Editor Version 5.00\" fehlt.");
        }
        rest_.remove_prefix(first.size());
        TakeLineEnd("");
    }

    // The last bracket of the line ends the path, as the name of a key may hold brackets.
    Key TakeKey() {
        Key key;
        key.line = line_;
        key.removes = Take("-");
        const std::size_t end = RestOfLine().rfind(']');
        if (end == std::string_view::npos) Refuse("Die schließende Klammer fehlt.");
        const std::string_view whole = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        const std::string_view rootName = whole.substr(0, whole.find('\\'));
        key.root = RootNamed(rootName);
        if (key.root.empty()) Refuse("Der Schlüssel beginnt mit keinem bekannten Stamm.");
        key.path = whole.substr(std::min(rootName.size() + 1, whole.size()));
        if (key.path.size() > 1 && key.path.ends_with('\\')) key.path.pop_back();
        if (!IsPath(key.path)) Refuse("Im Pfad des Schlüssels fehlt ein Name.");
        if (key.removes && key.path.empty()) Refuse("Ein ganzer Stamm wird nicht gelöscht.");
        TakeLineEnd("Hinter dem Schlüssel steht noch etwas.");
        return key;
    }

    Value TakeValue() {
        Value value;
        value.line = line_;
        if (!Take("@")) value.name = TakeText();
        TakeBlanks();
        if (!Take("=")) Refuse("Das Gleichheitszeichen fehlt.");
        TakeBlanks();
        if (Take("-")) {
            value.removes = true;
        } else if (rest_.starts_with('"')) {
            const std::string units = runtime::ToUtf16(TakeText());
            value.type = 1;
            value.bytes.assign(units.begin(), units.end());
            value.bytes.insert(value.bytes.end(), 2, 0);
        } else if (Take("dword:")) {
            const std::uint32_t number = TakeNumber();
            value.type = 4;
            for (int shift = 0; shift < 32; shift += 8) {
                value.bytes.push_back(static_cast<std::uint8_t>(number >> shift));
            }
        } else if (Take("hex:")) {
            value.type = 3;
            value.bytes = TakeBytes();
        } else if (Take("hex(")) {
            value.type = TakeNumber();
            if (!Take("):")) Refuse("Hinter der Nummer des Typs fehlt \"):\".");
            value.bytes = TakeBytes();
        } else {
            Refuse("Die Art der Daten ist unbekannt.");
        }
        TakeLineEnd("Hinter den Daten steht noch etwas.");
        return value;
    }

    // A text may hold line ends: regedit exports them as they are.
    std::string TakeText() {
        const int begin = line_;
        std::string text;
        rest_.remove_prefix(1);
        for (;;) {
            const std::size_t end = rest_.find_first_of("\"\\");
            if (end == std::string_view::npos) {
                throw Slip(begin, "Das schließende Anführungszeichen fehlt.");
            }
            text += rest_.substr(0, end);
            line_ += LinesIn(rest_.substr(0, end));
            const bool closes = rest_[end] == '"';
            rest_.remove_prefix(end + 1);
            if (closes) return text;
            if (!rest_.starts_with('"') && !rest_.starts_with('\\')) {
                Refuse("Ein umgekehrter Schrägstrich steht allein im Text.");
            }
            text += rest_.front();
            rest_.remove_prefix(1);
        }
    }

    std::uint32_t TakeNumber() {
        std::uint32_t number = 0;
        std::size_t digits = 0;
        for (; digits < rest_.size() && HexDigit(rest_[digits]) >= 0; ++digits) {
            number = number << 4 | static_cast<std::uint32_t>(HexDigit(rest_[digits]));
        }
        if (digits == 0 || digits > 8) {
            Refuse("Die Zahl hat nicht ein bis acht hexadezimale Ziffern.");
        }
        rest_.remove_prefix(digits);
        return number;
    }

    // Blanks, and where the line goes on on the next one.
    void TakeWrap() {
        TakeBlanks();
        while (Take("\\")) {
            TakeLineEnd("Hinter dem Schrägstrich am Zeilenende steht noch etwas.");
            TakeBlanks();
        }
    }

    std::vector<std::uint8_t> TakeBytes() {
        std::vector<std::uint8_t> bytes;
        TakeBlanks();
        if (AtEnd()) return bytes;
        do {
            TakeWrap();
            const int high = rest_.size() < 2 ? -1 : HexDigit(rest_[0]);
            const int low = high < 0 ? -1 : HexDigit(rest_[1]);
            if (low < 0) Refuse("Ein Byte hat nicht zwei hexadezimale Ziffern.");
            bytes.push_back(static_cast<std::uint8_t>(high << 4 | low));
            rest_.remove_prefix(2);
            TakeWrap();
        } while (Take(","));
        return bytes;
    }

    std::string_view rest_;
    int line_ = 1;
};

void CheckCharacters(std::string_view text) {
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t at = text.size() - rest.size();
        const char32_t character = runtime::TakeCharacter(rest);
        if (character != runtime::Malformed && character != 0) continue;
        throw Slip(1 + LinesIn(text.substr(0, at)), character == 0
                                                        ? "Ein Zeichen mit der Nummer 0."
                                                        : "Der Text ist kein gültiges UTF-8.");
    }
}

}  // namespace

std::vector<Key> ReadText(std::string_view text) {
    if (text.starts_with(Utf8Mark)) text.remove_prefix(3);
    CheckCharacters(text);
    return Reader(text).All();
}

std::vector<Key> Read(std::string_view file) {
    if (file.starts_with(Utf8Mark)) return ReadText(file);
    if (!file.starts_with(LittleEndianMark)) return ReadText(runtime::FromWestern(file));
    file.remove_prefix(2);
    const std::string text = runtime::FromUtf16(file);
    if (file.size() % 2 != 0) {
        throw Slip(1 + LinesIn(text), "Die Datei endet mitten in einem Zeichen.");
    }
    return ReadText(text);
}

}  // namespace regfile
