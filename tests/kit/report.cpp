#include "kit/report.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace kit {
namespace {

struct Word {
    Verdict verdict;
    const char* text;
};
constexpr Word Words[] = {
    {Verdict::Passed, "bestanden"},        {Verdict::Failed, "NICHT BESTANDEN"},
    {Verdict::Crashed, "ABGESTÜRZT"},      {Verdict::Hung, "HÄNGT"},
    {Verdict::NotTried, "nicht versucht"},
};

std::string WordOf(Verdict verdict) {
    return std::find_if(std::begin(Words), std::end(Words),
                        [&](const Word& word) { return word.verdict == verdict; })
        ->text;
}

std::string Line(const Tried& tried) {
    std::string line = WordOf(tried.verdict) + '\t' + tried.is.suite + '\t' + tried.is.sentence;
    if (tried.verdict == Verdict::Passed || tried.verdict == Verdict::Failed) {
        line += '\t' + std::to_string(std::lround(tried.milliseconds)) + " ms";
    }
    if (tried.verdict == Verdict::NotTried && !tried.notes.empty()) line += '\t' + tried.notes[0];
    return line + '\n';
}

std::string Wanting(const std::vector<Tried>& cases) {
    std::string text;
    for (const Tried& tried : cases) {
        if (tried.verdict == Verdict::Passed || tried.verdict == Verdict::NotTried) continue;
        text += Line(tried);
        for (const std::string& note : tried.notes) text += "\t" + note + '\n';
    }
    return text.empty() ? "keiner\n" : text;
}

// The reasons, in the order of the first cases that have them.
std::string Reasons(const std::vector<Tried>& cases) {
    std::vector<std::pair<std::string, int>> reasons;
    for (const Tried& tried : cases) {
        if (tried.verdict != Verdict::NotTried || tried.notes.empty()) continue;
        auto found = std::find_if(reasons.begin(), reasons.end(), [&](const auto& reason) {
            return reason.first == tried.notes[0];
        });
        if (found == reasons.end()) found = reasons.insert(found, {tried.notes[0], 0});
        ++found->second;
    }
    std::string text;
    for (const auto& [reason, count] : reasons) {
        text += "  " + std::to_string(count) + ' ' + reason + '\n';
    }
    return text.empty() ? "keiner\n" : text;
}

}  // namespace

std::string Report(const std::vector<std::string>& head, const std::vector<Tried>& cases) {
    std::string text = "Ergebnis der Prüfung von Quillmore\n\n";
    for (const std::string& line : head) text += line + '\n';
    text += "\nFälle: " + std::to_string(cases.size()) + '\n';
    for (const Word& word : Words) {
        const auto count = std::count_if(cases.begin(), cases.end(), [&](const Tried& tried) {
            return tried.verdict == word.verdict;
        });
        text += "  " + std::to_string(count) + ' ' + word.text + '\n';
    }
    text += "\nWas nicht bestanden hat\n" + Wanting(cases);
    text += "\nWas nicht versucht wurde, und warum\n" + Reasons(cases) + "\nAlle Fälle\n";
    for (const Tried& tried : cases) text += Line(tried);
    std::string lines = "\xEF\xBB\xBF";
    for (const char character : text) {
        if (character == '\n') lines += '\r';
        lines += character;
    }
    return lines;
}

}  // namespace kit
