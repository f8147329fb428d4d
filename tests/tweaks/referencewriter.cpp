#include <algorithm>
#include <stdexcept>

#include "tweaks/catalogue.h"
#include "tweaks/helptexts.h"
#include "tweaks/pagefixture.h"
#include "tweaks/reference.h"

namespace tweak_tests {
namespace {

const char* TipOf(const std::string& control) {
    for (const tweaks::HelpText& row : tweaks::HelpTexts()) {
        if (row.control == control) return row.text;
    }
    return nullptr;
}

// Takes `tail` and all behind it off the end of `words`; what was taken.
std::string CutAt(std::string& words, std::string_view tail) {
    const std::size_t at = words.find(tail);
    if (at == std::string::npos) return "";
    std::string taken = words.substr(at);
    words.erase(at);
    return taken;
}

std::string BetweenQuotes(const std::string& words) {
    const std::size_t first = words.find('"');
    return words.substr(first + 1, words.rfind('"') - first - 1);
}

constexpr char EnglishHead[] = R"(# Catalogue

What each option reads and writes, in the order of the window. A test makes this page from the
program's own rows and from what an Apply does; `tests/golden/README.md` has the command. The
quotation is the tip that the window shows.

Apply, "Übernehmen", writes each box and field as it stands, touched or not. A box that reads
several values is on when all of them say so. "Absent" is what happens to an option that nobody
touches where its values are absent, and "Windows itself" what Windows does then. "Buttons" are the
presets. What a note tells is so on purpose.

)";

constexpr char GermanHead[] =
    R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN">
<html lang="de">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
<title>Anhang: alle Einstellungen im Einzelnen</title>
<link rel="stylesheet" type="text/css" href="anleitung.css">
</head>
<body>
<h1>Anhang: alle Einstellungen im Einzelnen</h1>
<p>Zu jeder Einstellung steht hier, an welcher Stelle der Registrierung sie gelesen und geschrieben
wird und was geschieht, wenn ihr Wert dort fehlt. „Übernehmen“ schreibt jedes Feld, wie es dasteht,
ob Sie es angerührt haben oder nicht. <tt>HKLM</tt> gilt für den ganzen Computer, <tt>HKCU</tt> für den
angemeldeten Benutzer, <tt>HKCR</tt> für die Dateitypen. Ein <tt>REG_DWORD</tt> ist eine Zahl, ein
<tt>REG_SZ</tt> ein Text.</p>
<p>Ein Kästchen mit mehreren Werten gilt als eingeschaltet, wenn alle das sagen. Hinter den
Schaltflächen steht, was sie daraus machen. Was zu beachten ist, ist so gewollt.</p>
<ul>
)";

struct Limit {
    const char* words;
    const char* english;
    const char* german;
};

// The longer ones stand before what they end in.
constexpr Limit Limits[] = {
    {" if only this key present", ", if the key is there and the first is not",
     ", wenn der Schlüssel da ist und der erste nicht"},
    {" if key present", ", if the key is there", ", wenn der Schlüssel da ist"},
    {" if key absent", ", if the key is absent", ", wenn der Schlüssel fehlt"},
    {" if value present", ", if the value is there", ", wenn der Wert da ist"},
};

struct Press {
    const char* preset;
    const char* caption;
};

constexpr Press Presses[] = {
    {"cmdNormal", "Standard"},
    {"cmdNormalWindows2", "Standard"},
    {"cmdDefaultMisc", "Standard"},
    {"cmdStandardDfue", "Standard"},
    {"cmdExtensionDefault", "Standard"},
    {"cmdOptimal", "Empfohlen"},
    {"cmdOptimalWindows2", "Empfohlen"},
    {"cmdOptimalMisc", "Empfohlen"},
    {"cmdOptimalDfue", "Empfohlen"},
    {"cmdSetAllOptimal", "AutoTuning"},
    {"optOptimalDFUESets(1)", "Analog"},
    {"optOptimalDFUESets(2)", "ISDN"},
    {"optOptimalDFUESets(3)", "Netzwerk"},
    {"optOptimalDFUESets(4)", "DSL"},
};

// One of the two pages: the one of the project in Markdown, or the chapter of the manual.
class ReferenceWriter {
  public:
    explicit ReferenceWriter(bool german) : german_(german) {}

    std::string Written(const std::vector<ReferencePage>& pages) {
        text_ = "";
        Begin(pages);
        for (const ReferencePage& page : pages) WritePage(page);
        if (german_) text_ += "</body>\n</html>\n";
        return text_;
    }

  private:
    std::string Say(const std::string& english, const std::string& german) const {
        return german_ ? german : english;
    }
    std::string Escaped(std::string text) const {
        if (!german_) return text;
        return Replaced(Replaced(Replaced(std::move(text), "&", "&amp;"), "<", "&lt;"), ">",
                        "&gt;");
    }
    // Keys are long: they may break behind each part.
    std::string Code(const std::string& text) const {
        if (!german_) return '`' + text + '`';
        const std::string broken =
            Replaced(Replaced(Escaped(text), "\\", "\\<wbr>"), ",", ",<wbr>");
        return "<tt>" + broken + "</tt>";
    }
    std::string Strong(const std::string& text) const {
        return Say("**" + text + "**", "<b>" + text + "</b>");
    }
    // What the window shows.
    std::string Shown(const std::string& text) const {
        return Say('"' + text + '"', "„" + Escaped(text) + "“");
    }
    std::string OnOrOff(bool on) const {
        return on ? Say("on", "eingeschaltet") : Say("off", "ausgeschaltet");
    }
    // A text of the table, in which names stand between grave accents.
    std::string Told(const std::string& text) const {
        if (!german_) return text;
        std::string told;
        std::size_t at = 0;
        while (true) {
            const std::size_t open = text.find('`', at);
            told += Escaped(text.substr(at, open - at));
            if (open == std::string::npos) return told;
            const std::size_t close = text.find('`', open + 1);
            told += Code(text.substr(open + 1, close - open - 1));
            at = close + 1;
        }
    }

    void Begin(const std::vector<ReferencePage>& pages) {
        text_ += Say(EnglishHead, GermanHead);
        for (const ReferencePage& page : pages) {
            const std::string title = Title(page);
            text_ += german_ ? "<li><a href=\"#" + AnchorOf(page) + "\">" + title + "</a></li>\n"
                             : "- [" + title + "](#" + AnchorOf(page) + ")\n";
        }
        text_ += Say("", "</ul>\n");
    }

    std::string Title(const ReferencePage& page) const {
        return Say("Page ", "Seite ") + page.name;
    }

    // As the web page makes it of the heading.
    std::string AnchorOf(const ReferencePage& page) const {
        std::string name = page.name;
        for (char& letter : name) {
            if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + 32);
        }
        if (german_) return Replaced(name, "Ü", "ue");
        return "page-" + Replaced(name, "Ü", "ü");
    }

    void WritePage(const ReferencePage& page) {
        const std::string title = Title(page);
        text_ += german_ ? "<h2><a name=\"" + AnchorOf(page) + "\"></a>" + title + "</h2>\n"
                         : "\n## " + title + "\n";
        const bool plain =
            std::none_of(page.entries.begin(), page.entries.end(), [](const ReferenceEntry& entry) {
                return entry.control.starts_with("chk") || entry.facts.size() != 1;
            });
        if (plain) return WriteInOneTable(page);
        text_ += Say("", "<dl>\n");
        for (const ReferenceEntry& entry : page.entries) WriteEntry(entry);
        text_ += Say("", "</dl>\n");
    }

    // A page of fields alone: what is told of each is the same but for the place.
    void WriteInOneTable(const ReferencePage& page) {
        std::vector<std::vector<std::string>> rows;
        std::vector<std::string> points;
        for (const ReferenceEntry& entry : page.entries) {
            const Fact& fact = entry.facts.front();
            rows.push_back({Shown(entry.caption), Code(fact.root + '\\' + fact.key),
                            Code(fact.value), WriteCell(fact.on)});
            for (const std::string& point : PointsOf(entry)) {
                if (std::find(points.begin(), points.end(), point) == points.end()) {
                    points.push_back(point);
                }
            }
        }
        AddOddity(page.name, points);
        text_ += Say("\n", "");
        WriteTable({Say("field", "Feld"), Say("key", "Schlüssel"), Say("value", "Wert"),
                    Say("Apply writes", "geschrieben wird")},
                   rows);
        WritePoints(points);
    }

    void WriteEntry(const ReferenceEntry& entry) {
        const std::string caption = Escaped(entry.caption);
        if (german_) {
            text_ += "<dt>„" + caption + "“</dt>\n<dd>";
        } else {
            text_ += "\n### " + caption + "\n\n`" + entry.control + '`';
            if (!entry.group.empty() && entry.group != entry.caption) {
                text_ += " in \"" + entry.group + '"';
            }
            text_ += "\n\n";
        }
        if (const char* tip = TipOf(entry.control)) {
            text_ += german_ ? "<p>„" + Escaped(tip) + "“</p>\n" : "> " + std::string(tip) + "\n\n";
        }
        WritePlaces(entry);
        WritePoints(PointsOf(entry));
        text_ += Say("", "</dd>\n");
    }

    // A table for each key.
    void WritePlaces(const ReferenceEntry& entry) {
        for (auto first = entry.facts.begin(); first != entry.facts.end();) {
            const auto last = std::find_if(first, entry.facts.end(), [&](const Fact& fact) {
                return fact.root != first->root || fact.key != first->key;
            });
            const std::string key = Code(first->root + '\\' + first->key);
            text_ += german_ ? "<p>" + key + "</p>\n" : key + "\n\n";
            std::vector<std::vector<std::string>> rows;
            bool sides = false;
            for (auto fact = first; fact != last; ++fact) sides |= fact->on != fact->off;
            for (auto fact = first; fact != last; ++fact) {
                rows.push_back({NameOf(*fact), ReadCell(*fact), WriteCell(fact->on)});
                if (sides) rows.back().push_back(WriteCell(fact->off));
            }
            if (sides) {
                WriteTable({Say("value", "Wert"), Say("read as", "gelesen als"),
                            Say("on writes", "ein schreibt"), Say("off writes", "aus schreibt")},
                           rows);
            } else {
                WriteTable({Say("value", "Wert"), Say("read as", "gelesen als"),
                            Say("Apply writes", "geschrieben wird")},
                           rows);
            }
            first = last;
        }
    }

    void WriteTable(const std::vector<std::string>& head,
                    const std::vector<std::vector<std::string>>& rows) {
        const auto line = [&](const std::vector<std::string>& cells, const char* tag) {
            text_ += Say("|", "<tr>");
            for (const std::string& cell : cells) {
                text_ += german_ ? '<' + std::string(tag) + '>' + cell + "</" + tag + '>'
                                 : ' ' + cell + " |";
            }
            text_ += Say("\n", "</tr>\n");
        };
        text_ += Say("", "<table>\n");
        line(head, "th");
        if (!german_) {
            for (std::size_t i = 0; i < head.size(); ++i) text_ += "|---";
            text_ += "|\n";
        }
        for (const auto& row : rows) line(row, "td");
        text_ += Say("\n", "</table>\n");
    }

    void WritePoints(const std::vector<std::string>& points) {
        if (points.empty()) return;
        text_ += Say("", "<ul>\n");
        for (const std::string& point : points) {
            text_ += Say("- " + point + '\n', "<li>" + point + "</li>\n");
        }
        text_ += Say("", "</ul>\n");
    }

    std::string NameOf(const Fact& fact) const {
        return fact.value.empty() ? Say("(default)", "<i>Standardwert</i>") : Code(fact.value);
    }

    std::string ReadCell(const Fact& fact) const {
        std::string words = fact.read;
        if (words == "not read") return Say("not read", "nicht gelesen");
        if (words == "overruled") return Say("read, then overruled", "gelesen, gilt aber nicht");
        if (words == "the text") return Say("text of the field", "Text im Feld");
        if (words.starts_with("the text when ")) {
            const std::string box = Shown(CaptionAnywhere(words.substr(14)));
            return Say("text of the field while " + box + " is on, else none",
                       "Text im Feld, solange " + box + " eingeschaltet ist, sonst keiner");
        }
        CutAt(words, ";");
        const std::string clears = CutAt(words, ", else clears ");
        const std::string also = CutAt(words, ", also into ");
        const bool off = words.starts_with("off when ");
        if (off) words.erase(0, 9);
        std::string cell = (off ? Say("off", "aus") : Say("on", "ein")) + ConditionOf(words);
        if (!clears.empty()) {
            cell += Say(", else as it was, and ", ", sonst wie zuvor, und ") +
                    Shown(CaptionAnywhere(clears.substr(14))) + Say(" goes off", " geht aus");
        } else {
            cell += off ? Say(", else on", ", sonst ein") : Say(", else off", ", sonst aus");
        }
        if (!also.empty()) {
            cell += Say("; its text goes into ", "; sein Text kommt in ") + Code(also.substr(12));
        }
        return cell;
    }

    std::string ConditionOf(std::string words) const {
        if (words == "present") return Say(" when there", ", wenn vorhanden");
        if (words == "not empty") return Say(" when not empty", ", wenn nicht leer");
        const bool emptyToo = words.starts_with("\"\" or ");
        const bool anyCase = words.starts_with("lower ") || words.starts_with("upper ");
        const std::size_t sign = words.find_first_of("=>");
        std::string compared = words.substr(words.find(' ', sign) + 1);
        if (compared.starts_with('"')) compared = BetweenQuotes(compared);
        std::string told = Say(" when ", ", wenn ");
        if (emptyToo) told += Say("empty or ", "leer oder ");
        if (words.find(">=") != std::string::npos) {
            // An absent value and a text that is no number count as greater.
            return told + Code(compared) +
                   Say(" or more, or no number", " oder mehr, oder keine Zahl");
        }
        told += Code(compared);
        if (anyCase) told += Say(", in capitals or not", " in großen oder kleinen Buchstaben");
        return told;
    }

    std::string WriteCell(const std::string& side, bool withLimit = true) const {
        std::string words = side;
        CutAt(words, " with chk");
        std::string limit;
        for (const Limit& each : Limits) {
            if (!CutAt(words, each.words).empty()) limit = Say(each.english, each.german);
        }
        const std::string test = CutAt(words, " if ");
        if (!test.empty()) {
            const std::size_t is = test.find(" is numeric");
            const std::string field = is == std::string::npos
                                          ? Say("it", "das Feld")
                                          : Shown(CaptionAnywhere(test.substr(4, is - 4)));
            limit +=
                Say(", if " + field + " is a number", ", wenn " + field + " eine Zahl enthält");
            if (test.find("else ") != std::string::npos) {
                limit += Say(", else a message ", ", sonst Meldung ") + Shown(BetweenQuotes(test));
            }
        }
        return ActionOf(words) + (withLimit ? limit : "");
    }

    std::string ActionOf(const std::string& words) const {
        const auto typed = [&](const char* type, const std::string& content) {
            return Code(type) + ' ' + content;
        };
        const auto literal = [&](const char* type) {
            const std::string content = BetweenQuotes(words);
            return typed(type, content.empty() ? Say("(empty)", "(leer)") : Code(content));
        };
        if (words == "nothing") return Say("nothing", "nichts");
        if (words == "delete value") return Strong(Say("value deleted", "Wert gelöscht"));
        if (words == "delete key")
            return Strong(Say("whole key deleted", "ganzer Schlüssel gelöscht"));
        if (words.starts_with("dword ")) return typed("REG_DWORD", Code(words.substr(6)));
        if (words.starts_with("text \"")) return literal("REG_SZ");
        if (words.starts_with("binary \"")) return literal("REG_BINARY");
        const std::string source = words.substr(words.find(" of ") + 4);
        const std::string field = source == "the box" ? Say("of the field", "im Feld")
                                                      : Say("of ", "von ") + Code(source);
        if (words.starts_with("text of ")) return typed("REG_SZ", Say("text ", "Text ") + field);
        if (words.starts_with("number of ")) {
            return typed("REG_DWORD", Say("number ", "Zahl ") + field);
        }
        throw std::runtime_error("no such side: " + words);
    }

    std::string CaptionAnywhere(const std::string& control) const {
        static const Options options;
        return AsShown(CaptionOf(options.form, control));
    }

    std::vector<std::string> PointsOf(const ReferenceEntry& entry) const {
        std::vector<std::string> points;
        const tweaks::Option* option = tweaks::FindOption(entry.control);
        const std::string decider = DeciderOf(entry);
        if (!decider.empty()) {
            const std::string box = Shown(CaptionAnywhere(decider));
            points.push_back(Say("On and off are those of " + box + '.',
                                 "Ein und aus richten sich nach " + box + '.'));
        }
        const bool read = std::any_of(entry.facts.begin(), entry.facts.end(),
                                      [](const Fact& fact) { return fact.read != "not read"; });
        if (option && read) {
            points.push_back(AbsentPoint(entry, *option));
        }
        const std::string presses = PressesOf(entry.control);
        if (!presses.empty()) points.push_back(presses);
        AddOddity(entry.control, points);
        return points;
    }

    static std::string DeciderOf(const ReferenceEntry& entry) {
        if (entry.facts.empty()) return "";
        const std::string& on = entry.facts.front().on;
        const std::size_t with = on.find(" with chk");
        return with == std::string::npos ? "" : on.substr(with + 6);
    }

    std::string AbsentPoint(const ReferenceEntry& entry, const tweaks::Option& option) const {
        const AbsentEffect keys = EffectOf(entry, true);
        const AbsentEffect bare = EffectOf(entry, false);
        std::string point = Strong(Say("Absent:", "Fehlt der Wert:")) + ' ';
        if (option.IsCheckBox()) {
            point +=
                Say("shown as ", "erscheint ") + OnOrOff(keys.on) + WindowsSays(entry, keys.on);
        } else {
            point += Say("the field is empty", "das Feld ist leer");
        }
        point += Say("; Apply then ", "; „Übernehmen“ ");
        point += EffectWords(entry, keys);
        if (!keys.SameAs(bare)) {
            const std::string words = EffectWords(entry, bare);
            point += Say("; where the key is absent, too, it " + words,
                         " (" + words + ", wo auch der Schlüssel fehlt)");
        }
        return point + '.';
    }

    std::string WindowsSays(const ReferenceEntry& entry, bool on) const {
        for (const auto& [name, windows] : WindowsDefaults()) {
            if (name != entry.control) continue;
            if (windows == on)
                return Say(", as Windows itself has it then", ", wie es Windows dann auch hält");
            return Say(", though Windows itself then does as if it were ",
                       ", obwohl Windows sich dann verhält wie ") +
                   OnOrOff(windows);
        }
        return "";
    }

    // Of a single value the name need not be told.
    std::string EffectWords(const ReferenceEntry& entry, const AbsentEffect& effect) const {
        if (!effect.deletes.empty()) return Strong(Say("deletes the key", "löscht den Schlüssel"));
        std::string words = Say("changes nothing", "ändert nichts");
        for (const Fact* fact : effect.writes) {
            const bool isFirst = fact == effect.writes.front();
            words = isFirst ? Say("writes ", "schreibt ") : words + ", ";
            if (entry.facts.size() > 1) words += NameOf(*fact) + " = ";
            words += WriteCell(WithEmptyField(effect.on ? fact->on : fact->off), false);
        }
        for (const std::string& complaint : effect.complaints) {
            const bool isFirst = complaint == effect.complaints.front();
            words += (isFirst ? Say(" and shows ", " und meldet ") : ", ") + Shown(complaint);
        }
        return words;
    }

    // An absent value leaves its field empty.
    static std::string WithEmptyField(const std::string& side) {
        return side.starts_with("text of ") ? "text \"\"" : side;
    }

    std::string PressesOf(const std::string& control) const {
        static const auto lines = golden::PresetLines(FileText("tests/golden/presets.tsv"));
        // Each value once, with all the buttons that set it.
        std::vector<std::pair<std::string, std::string>> values;
        for (const Press& press : Presses) {
            for (const golden::PresetLine& line : lines) {
                if (line.preset != press.preset || line.control != control) continue;
                const std::string value = PressValue(control, line.value);
                const auto same =
                    std::find_if(values.begin(), values.end(),
                                 [&](const auto& other) { return other.first == value; });
                if (same == values.end()) {
                    values.emplace_back(value, Shown(press.caption));
                } else {
                    same->second += ", " + Shown(press.caption);
                }
            }
        }
        if (values.empty()) return "";
        std::string words;
        for (const auto& [value, buttons] : values) {
            words += (words.empty() ? "" : "; ") + buttons + ": " + value;
        }
        return Strong(Say("Buttons:", "Schaltflächen:")) + ' ' + words + '.';
    }

    std::string PressValue(const std::string& control, const std::string& value) const {
        if (value.starts_with("memory > ")) {
            return Say("on with more than " + value.substr(9) + " bytes of memory, else off",
                       "ein bei mehr als " + value.substr(9) + " Byte Arbeitsspeicher, sonst aus");
        }
        if (control.starts_with("chk")) return value == "1" ? Say("on", "ein") : Say("off", "aus");
        if (value == "\"\"") return Say("empty", "leer");
        return Code(value.starts_with('"') ? BetweenQuotes(value) : value);
    }

    void AddOddity(const std::string& name, std::vector<std::string>& points) const {
        for (const Oddity& oddity : oddities_) {
            if (oddity.name != name) continue;
            points.push_back(Strong(Say("Note:", "Zu beachten:")) + ' ' +
                             Told(Say(oddity.english, oddity.german)));
        }
    }

    bool german_;
    std::vector<Oddity> oddities_ = Oddities();
    std::string text_;
};

}  // namespace

std::string WrittenReference(bool german) {
    return ReferenceWriter(german).Written(ReferencePages());
}

}  // namespace tweak_tests
