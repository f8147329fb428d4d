#include "endtoend/randomprofile.h"

#include <windows.h>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "endtoend/optiontablenumbers.h"
#include "endtoend/optiontablewords.h"
#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::ToWide;

// A tab's caption begins with a blank, a page's name does not.
std::string PageNameOf(const std::string& control) {
    static const std::map<std::string, std::string> pages = [] {
        std::map<std::string, std::string> found;
        for (const Fact& fact : Facts()) {
            found[fact.control] = fact.page.substr(fact.page.find_first_not_of(' '));
        }
        found["chkWinLogOn"] = found.at("txtWinLogOnC");
        found["txtExtensions"] = found.at("chkIEExtensions");
        return found;
    }();
    return pages.at(control);
}

// Such a text belongs to the box that it stands beside, and is no option of its own.
bool GoesAlong(const std::string& control) {
    return control.starts_with("txtAL") || control == "txtExtensions";
}

std::string InQuotes(const std::string& text) {
    static const std::map<char, std::string> escapes = {
        {'\r', "\\r"}, {'\n', "\\n"}, {'\t', "\\t"}, {'"', "\\\""}, {'\\', "\\\\"}};
    std::string quoted = "\"";
    for (const char c : text) {
        const auto escape = escapes.find(c);
        quoted += escape == escapes.end() ? std::string(1, c) : escape->second;
    }
    return quoted + '"';
}

bool NeedsQuotes(const std::string& text) {
    return text.starts_with(' ') || text.ends_with(' ') || text.starts_with('"') ||
           text.find_first_of("\r\n\t") != std::string::npos;
}

std::string InEncodingOfChance(const std::string& text, Dice& dice) {
    const std::wstring wide = ToWide(text);
    std::string units(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t));
    switch (dice.Below(4)) {
        case 0:
            return "\xEF\xBB\xBF" + text;
        case 1:
            return "\xFF\xFE" + units;
        case 2:
            for (std::size_t i = 0; i + 1 < units.size(); i += 2) std::swap(units[i], units[i + 1]);
            return "\xFE\xFF" + units;
        default:
            break;
    }
    std::string western(wide.size(), '\0');
    WideCharToMultiByte(1252, 0, wide.data(), static_cast<int>(wide.size()), western.data(),
                        static_cast<int>(western.size()), nullptr, nullptr);
    return western;
}

std::string NumberOfChance(Dice& dice) {
    static const std::vector<std::string> numbers = {"0",   "1",    "20",  "64",   "576", "1472",
                                                     "007", "1500", "1e3", "2,5",  "3,5", "&H1",
                                                     "12",  "9999", "128", "65535"};
    return dice.OneOf(numbers);
}

std::string TextOfChance(Dice& dice) {
    static const std::vector<std::string> texts = {"",
                                                   "Jörg Müßig",
                                                   "Grün & Söhne \"KG\"",
                                                   "Geheim€ß",
                                                   "exe;zip;dll",
                                                   "5.2",
                                                   "2601",
                                                   "  Rand  ",
                                                   "&Datei",
                                                   "%windir%\\x",
                                                   "1",
                                                   "a=b ; c",
                                                   "[x]",
                                                   ";kein Kommentar",
                                                   "\"",
                                                   "C:\\neu\\rot",
                                                   std::string(255, 'y')};
    return dice.OneOf(texts);
}

}  // namespace

std::string ProfileOf(const ControlStates& states, Dice& dice) {
    const std::string end = dice.Percent(50) ? "\r\n" : "\n";
    std::string text = "[Quillmore]" + end + "Profil=1" + end;
    // The packet size takes the window size along and comes before it in the alphabet.
    for (const auto& [control, state] : states) {
        text += "[" + PageNameOf(control) + "]" + end;
        if (dice.Percent(30)) text += "; Bemerkung über das Folgende" + end;
        const bool quotes = NeedsQuotes(state) || dice.Percent(30);
        text +=
            control + (dice.Percent(20) ? " = " : "=") + (quotes ? InQuotes(state) : state) + end;
    }
    return InEncodingOfChance(text, dice);
}

ControlStates RandomSettings(Dice& dice) {
    static const std::set<std::string> numbers = {"cboMTU",    "txtRWIN",   "txtTTL",
                                                  "cboHTTP10", "cboHTTP11", "txtTimeOut"};
    ControlStates settings = DesignStates();
    std::erase_if(settings, [&](const auto& entry) {
        return GoesAlong(entry.first) || (!numbers.contains(entry.first) && dice.Percent(20));
    });
    for (auto& [control, state] : settings) {
        if (control.starts_with("chk")) {
            state = dice.Percent(50) ? "1" : "0";
        } else if (numbers.contains(control)) {
            state = NumberOfChance(dice);
        } else if (control == "txtStartmenu") {
            // The slider beside it makes other texts of other numbers.
            static const std::vector<std::string> delays = {"0", "1", "123", "400", "bald", ""};
            state = dice.OneOf(delays);
        } else if (control == "txtWinLogOnT" && dice.Percent(30)) {
            state = "Erste Zeile\r\n\r\n\tZweite";
        } else {
            state = FirstCharacters(TextOfChance(dice), LengthLimitOf(control));
        }
    }
    return settings;
}

}  // namespace endtoend
