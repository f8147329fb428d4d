#include "endtoend/randommachine.h"

#include <algorithm>
#include <string>

#include "endtoend/optiontable.h"
#include "endtoend/optiontablewords.h"

namespace endtoend {
namespace {

using Candidate = std::optional<RegistryValue>;

constexpr char ForeignKey[] = "QuillmoreTestUnterschlüssel";
constexpr std::size_t LongTextSize = 5000;

RegistryValue Typed(DWORD type, RegistryValue value) {
    value.type = type;
    return value;
}

RegistryValue Raw(DWORD type, const std::string& bytes) {
    return {type, bytes};
}

std::string Several(const char* bytes, std::size_t count) {
    return {bytes, count};
}

// What one of the catalogue's words means as a stored value, in each form in which it may lie
// there.
void AddForms(const ReadWords& read, std::vector<Candidate>& all) {
    using enum ReadWords::Asked;
    if (read.asked == EqualsNumber || read.asked == AtLeastNumber) {
        all.push_back(Dword(static_cast<DWORD>(read.number)));
        all.push_back(TerminatedText(std::to_string(read.number)));
    }
    if (read.asked == EqualsText || read.asked == LowerEqualsText ||
        read.asked == UpperEqualsText) {
        std::string capitals = read.text;
        std::string small = read.text;
        std::transform(capitals.begin(), capitals.end(), capitals.begin(), ::toupper);
        std::transform(small.begin(), small.end(), small.begin(), ::tolower);
        for (const std::string& text : {read.text, capitals, small, read.text + ' '}) {
            all.push_back(TerminatedText(text));
        }
    }
}

void AddForms(const WriteWords& write, std::vector<Candidate>& all) {
    using enum WriteWords::Action;
    if (write.action == WriteWords::Action::Dword) {
        all.push_back(endtoend::Dword(static_cast<DWORD>(write.number)));
    }
    if (write.action == Text) {
        all.push_back(BareText(write.text));
        all.push_back(TerminatedText(write.text));
        all.push_back(Typed(REG_EXPAND_SZ, TerminatedText(write.text)));
    }
    if (write.action == WriteWords::Action::Binary) all.push_back(endtoend::Binary(write.text));
}

// What any value may be found to be.
std::vector<Candidate> Oddities() {
    std::vector<Candidate> all = {
        Dword(0),
        Dword(1),
        Dword(2),
        Dword(7),
        Dword(0x7FFFFFFF),
        Dword(0xFFFFFFFF),
        Raw(REG_DWORD, Several("\1\0", 2)),
        Raw(REG_DWORD, Several("\1\0\0\0\0\0\0\0", 8)),
        Raw(REG_DWORD, ""),
        Raw(REG_QWORD, Several("\1\0\0\0\0\0\0\0", 8)),
        Raw(REG_DWORD_BIG_ENDIAN, Several("\0\0\0\1", 4)),
        Raw(REG_NONE, "\1"),
        Raw(REG_BINARY, Several("\1", 1)),
        Raw(REG_BINARY, Several("\0", 1)),
        Raw(REG_BINARY, Several("\x1a\x2b\0\xff", 4)),
        Raw(REG_BINARY, ""),
        Typed(REG_MULTI_SZ, TerminatedText("1")),
        Typed(REG_EXPAND_SZ, TerminatedText("%windir%\\1")),
        BareText(""),
        BareText("ohne Ende"),
        TerminatedText(std::string(LongTextSize, 'x')),
    };
    for (const char* text : {"", "0", "1", "01", " 1 ", "1,0", "1-", "-1", "&H1", "1e0", "abc",
                             "yes", "no", "Y", "1 1", "Grün & Söhne €", "中文"}) {
        all.push_back(TerminatedText(text));
    }
    RegistryValue two = TerminatedText("1");
    two.bytes += TerminatedText("2").bytes + TerminatedText("").bytes;
    all.push_back(Typed(REG_MULTI_SZ, two));
    all.push_back(Typed(REG_SZ, two));
    return all;
}

std::vector<Candidate> TextsOfFields() {
    std::vector<Candidate> all;
    for (const char* text :
         {"", "5.1", "2600", "400", "0", "500", "1500", "64", "C:\\Dokumente und Einstellungen\\Öl",
          "Jörg Müßig", "\"A\" & B", "http://www.example.com/?a=b&c", "&Datei", "5.1.2600", "99999",
          "1.500", "2,5", " 12 "}) {
        all.push_back(TerminatedText(text));
        all.push_back(BareText(text));
    }
    return all;
}

Candidate ValueFor(const Fact& fact, Dice& dice) {
    static const std::vector<Candidate> oddities = Oddities();
    static const std::vector<Candidate> texts = TextsOfFields();
    const std::size_t kind = dice.Below(10);
    if (kind < 2) return std::nullopt;
    if (kind >= 7) return dice.OneOf(oddities);
    std::vector<Candidate> own;
    AddForms(fact.read, own);
    AddForms(fact.on, own);
    AddForms(fact.off, own);
    return own.empty() ? dice.OneOf(texts) : dice.OneOf(own);
}

// The keys on whose being there something hangs.
std::vector<ValuePlace> DecidingKeys() {
    std::vector<ValuePlace> keys = {{"HKLM", GraphicsDriverKey, ""}};
    for (const Fact& fact : Facts()) {
        for (const WriteWords& side : {fact.on, fact.off}) {
            const bool decides = side.action == WriteWords::Action::DeleteKey ||
                                 side.guard == WriteWords::Guard::KeyPresent ||
                                 side.guard == WriteWords::Guard::KeyAbsent ||
                                 side.guard == WriteWords::Guard::OnlyThisKeyPresent;
            if (decides) keys.push_back(fact.place);
        }
    }
    const auto less = [](const ValuePlace& left, const ValuePlace& right) {
        return KeyPath(left) < KeyPath(right);
    };
    const auto same = [](const ValuePlace& left, const ValuePlace& right) {
        return KeyPath(left) == KeyPath(right);
    };
    std::sort(keys.begin(), keys.end(), less);
    keys.erase(std::unique(keys.begin(), keys.end(), same), keys.end());
    for (ValuePlace& place : keys) {
        if (place.key.ends_with('\\')) place.key.pop_back();
    }
    return keys;
}

bool IsAmong(const std::vector<ValuePlace>& keys, const ValuePlace& place) {
    return std::any_of(keys.begin(), keys.end(),
                       [&](const ValuePlace& key) { return KeyPath(key) == KeyPath(place); });
}

void PutValue(const Fact& fact, const Candidate& value) {
    if (value) {
        WriteValue(fact.place, *value);
    } else {
        DeleteValue(fact.place);
    }
}

// Numbers that the fields take; now and then one that ends the pass.
std::string RandomNumber(Dice& dice, bool mustBeNumber) {
    static const std::vector<std::string> numbers = {"1500", "576", "64", "0",    "2147483647",
                                                     "1e3",  "&H1", "12", " 12 ", "2,5",
                                                     "3,5",  "007", "20", "1.500"};
    static const std::vector<std::string> none = {"", "abc", "12a", "1 1", "-"};
    static const std::vector<std::string> impossible = {"-1", "99999999999", "2147483648"};
    if (dice.Percent(2)) return dice.OneOf(impossible);
    if (dice.Percent(mustBeNumber ? 3 : 15)) return dice.OneOf(none);
    return dice.OneOf(numbers);
}

std::string RandomText(Dice& dice) {
    static const std::vector<std::string> texts = {"",
                                                   "Jörg Müßig",
                                                   "Grün & Söhne \"KG\"",
                                                   "Geheim€ß",
                                                   "exe;zip;dll",
                                                   "5.2",
                                                   "2601",
                                                   "  Rand  ",
                                                   "&Datei",
                                                   "中文 und Rest",
                                                   "%windir%",
                                                   "1",
                                                   "http://x",
                                                   std::string(300, 'y'),
                                                   std::string(LongTextSize, 'z')};
    return dice.OneOf(texts);
}

}  // namespace

void PutRandomMachine(Dice& dice) {
    const std::vector<ValuePlace> keys = DecidingKeys();
    std::vector<ValuePlace> absent;
    for (const ValuePlace& key : keys) {
        DeleteTree(key.root, key.key);
        if (dice.Percent(35)) {
            absent.push_back(key);
            continue;
        }
        CreateKey(key.root, key.key);
        if (dice.Percent(25)) CreateKey(key.root, key.key + '\\' + ForeignKey);
        if (dice.Percent(25)) {
            WriteValue({key.root, key.key, "Fremder Wert"}, TerminatedText("bleibt"));
        }
    }
    for (const Fact& fact : Facts()) {
        const Candidate value = ValueFor(fact, dice);
        if (!IsAmong(absent, fact.place)) PutValue(fact, value);
    }
    // A delay beyond 32 bits ends the read pass, with most options still unread: seldom.
    const ValuePlace delay = FactsOf("txtStartmenu").front().place;
    if (dice.Percent(4)) WriteValue(delay, TerminatedText("99999999999"));
}

void RemoveRandomKeys() {
    for (const ValuePlace& key : DecidingKeys()) DeleteTree(key.root, key.key);
}

ControlStates RandomUser(Dice& dice, ControlStates found) {
    for (auto& [name, state] : found) {
        if (name.starts_with("chk")) {
            if (dice.Percent(50)) state = state == "1" ? "0" : "1";
        } else if (name == "cboMTU" || name == "txtTTL" || name.starts_with("cboHTTP")) {
            state = RandomNumber(dice, false);
        } else if (name == "txtRWIN") {
            // No number here fails the conversion, and the pass with it.
            state = RandomNumber(dice, true);
        } else if (name == "txtStartmenu") {
            static const std::vector<std::string> delays = {"0",   "1", "123", "400",
                                                            "500", "",  "bald"};
            state = dice.OneOf(delays);
        } else if (name == "txtTimeOut") {
            static const std::vector<std::string> times = {"5000", "",    "abc",
                                                           "1e3",  " 12", "123456"};
            state = dice.OneOf(times);
        } else if (dice.Percent(60)) {
            state = RandomText(dice);
        }
    }
    return found;
}

}  // namespace endtoend
