// The list of the components of Windows. The first byte says what is asked and in which state the
// file is.
#include "tweaks/sysocinf.h"

#include <map>
#include <optional>

#include "fuzz/target.h"
#include "platform/simulated/machine.h"

namespace fuzz {
namespace {

constexpr char InfPath[] = "C:\\WINDOWS\\inf\\Sysoc.inf";
constexpr char OtherPath[] = "C:\\WINDOWS\\inf\\andere.inf";

// Letter by letter, other than the program does it.
std::string WithCrLf(std::string_view content) {
    std::string text;
    bool isOpen = false;
    for (std::size_t i = 0; i < content.size(); ++i) {
        isOpen = content[i] != '\r';
        if (isOpen) {
            text += content[i];
            continue;
        }
        text += "\r\n";
        if (i + 1 < content.size() && content[i + 1] == '\n') ++i;
    }
    return isOpen ? text + "\r\n" : text;
}

std::string WithoutWord(std::string_view text, std::string_view small, std::string_view capital) {
    std::string left;
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::size_t same = 0;
        while (same < small.size() && i + same < text.size() &&
               (text[i + same] == small[same] || text[i + same] == capital[same])) {
            ++same;
        }
        if (same == small.size()) {
            i += same - 1;
        } else {
            left += text[i];
        }
    }
    return left;
}

std::map<std::string, std::string> OtherFiles(const platform::simulated::Disk& disk) {
    auto files = disk.Snapshot();
    std::erase_if(files, [](const auto& file) { return file.first.ends_with("sysoc.inf"); });
    return files;
}

}  // namespace

FUZZ_TARGET(sysocinf) {
    Input bytes(input);
    const std::uint8_t mode = bytes.Byte();
    const bool show = mode % 2 != 0;
    enum State { Normal, Protected, Absent, Held, NoWriting };
    const int state = mode / 2 % 8;
    const std::string content(bytes.Rest());

    platform::simulated::Machine machine;
    machine.files.Put(OtherPath, content);
    if (state != Absent) machine.files.Put(InfPath, content);
    if (state == Protected) machine.files.Protect(InfPath);
    if (state == Held) machine.files.Hold(InfPath);
    if (state == NoWriting) machine.faults.FailAll("OpenTextFile", runtime::PermissionDenied);
    const auto others = OtherFiles(machine.disk);

    const int failure = FailureOf([&] { tweaks::RewriteSysocInf(machine.services, show); });
    const auto now = machine.files.Content(InfPath);
    if (state == Absent) {
        Require(failure == runtime::FileNotFound && !now, "no file, and not told so");
    } else if (state == Held) {
        Require(failure == runtime::PermissionDenied && now == content, "held, and not left");
    } else if (state == NoWriting) {
        Require(failure == runtime::PermissionDenied && !now, "not written, and not told so");
    } else {
        Require(failure == 0, "a failure without a reason");
        std::string text = WithCrLf(content);
        if (show) text = WithoutWord(text, "hide", "HIDE");
        text = WithoutWord(text, "\xFF\xFE", "\x9F\xDE");
        RequireSame(now.value_or("(none)"), text, "the file");
        tweaks::RewriteSysocInf(machine.services, false);
        text = WithoutWord(WithCrLf(text), "\xFF\xFE", "\x9F\xDE");
        RequireSame(machine.files.Content(InfPath).value_or("(none)"), text, "the file, again");
    }
    Require(OtherFiles(machine.disk) == others, "another file is touched");
    Require(machine.files.OpenHandles() == 0, "a file is left open");
    Require(machine.registry.Dump().empty() && machine.settingsStore.All().empty(),
            "something else is written");
}

}  // namespace fuzz
