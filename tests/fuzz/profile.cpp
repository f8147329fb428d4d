// Profiles: any bytes as a file.
#include "cmd/profile.h"

#include "cmd/badinput.h"
#include "fuzz/target.h"
#include "runtime/text.h"

namespace fuzz {
namespace {

std::string SaidBy(const std::vector<cmd::ProfileLine>& lines) {
    std::string text;
    for (const cmd::ProfileLine& line : lines) {
        for (const std::string& part : {line.page, line.control, line.value}) {
            text += std::to_string(part.size()) + ':' + part + '|';
        }
    }
    return text;
}

}  // namespace

FUZZ_TARGET(profile) {
    const auto lineEnds = static_cast<int>(1 + std::count(input.begin(), input.end(), '\n'));
    std::vector<cmd::ProfileLine> lines;
    try {
        lines = cmd::ReadProfile(input);
    } catch (const cmd::BadInput& bad) {
        Require(bad.line >= 1 && bad.line <= lineEnds, "a slip on no line of the file");
        Require(!bad.reason.empty(), "a slip without a reason");
        return;
    }
    int before = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Require(lines[i].line > before && lines[i].line <= lineEnds, "a line that is none");
        before = lines[i].line;
        for (std::size_t j = 0; j < i; ++j) {
            Require(!runtime::EqualsIgnoringCase(lines[j].control, lines[i].control),
                    "a control comes twice");
        }
    }
    const std::string written = cmd::WriteProfile(lines);
    const auto again = cmd::ReadProfile(written);
    RequireSame(SaidBy(again), SaidBy(lines), "what was written and read");
    Require(cmd::WriteProfile(again) == written, "written again it is another file");
    for (cmd::ProfileLine& line : lines) line.isOff = true;
    Require(cmd::ReadProfile(cmd::WriteProfile(lines)).empty(), "a line that is off is read");
}

}  // namespace fuzz
