#include "tweaks/sysocinf.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/machine.h"
#include "platform/systemfacts.h"

namespace tweaks {
namespace {

// FF FE, as a byte-order mark looks in 8-bit text.
constexpr std::string_view ByteOrderMark = "\xFF\xFE";

// The file is handled byte by byte, so that whatever it holds survives. Of the letters beyond
// ASCII only the two of the mark are sought; their capitals are 9F and DE.
char Folded(char letter) {
    if (letter >= 'A' && letter <= 'Z') return static_cast<char>(letter + ('a' - 'A'));
    if (letter == '\x9F') return ByteOrderMark[0];
    if (letter == '\xDE') return ByteOrderMark[1];
    return letter;
}

// The text without `word`, whatever the letters' case, in one pass from left to right: what grows
// together at a seam stays.
std::string Without(std::string_view word, std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto found =
            std::search(text.begin(), text.end(), word.begin(), word.end(),
                        [](char left, char right) { return Folded(left) == Folded(right); });
        result.append(text.begin(), found);
        text.remove_prefix(static_cast<std::size_t>(found - text.begin()));
        if (!text.empty()) text.remove_prefix(word.size());
    }
    return result;
}

// Line by line, as sequential text input reads: CR or CR LF ends a line, a lone LF and a 1A do not.
// Each line gets CR LF, the last one too.
std::string LinesOf(std::string_view content) {
    std::string text;
    text.reserve(content.size() + 2);
    while (!content.empty()) {
        const std::size_t end = content.find('\r');
        text.append(content.substr(0, end)).append("\r\n");
        if (end == std::string_view::npos) break;
        content.remove_prefix(end + (content.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return text;
}

}  // namespace

void RewriteSysocInf(const platform::Machine& machine, bool show) {
    const std::string path = machine.systemFacts.WindowsDirectory() + "\\inf\\Sysoc.inf";
    std::string text = LinesOf(machine.files.Read(path));
    // Nothing puts the word back, on purpose: a component once shown is never hidden again.
    if (show) text = Without("Hide", text);
    text = Without(ByteOrderMark, text);
    machine.files.Remove(path, true);
    machine.files.WriteText(path, text);
}

}  // namespace tweaks
