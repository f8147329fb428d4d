#include "platform/simulated/shell.h"

#include <stdexcept>

#include "platform/simulated/faults.h"
#include "platform/simulated/files.h"
#include "platform/simulated/locale.h"
#include "platform/simulated/wording.h"
#include "runtime/encoding.h"
#include "runtime/text.h"
#include "toolkit/form.h"

namespace platform::simulated {
namespace {

constexpr std::int32_t InvalidParameter = 87;

// A text sent to a window ends before its first NUL.
std::string_view Terminated(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

}  // namespace

void FolderDialog::Send(std::uint32_t message, std::string_view text) {
    journal_.Note([&] { return "SendMessageA " + Hex(message) + " " + Quoted(text); });
    if (message == SetStatusText) status = Terminated(text);
    if (message == SetSelection && !Terminated(text).empty()) Select(std::string(Terminated(text)));
}

void FolderDialog::Select(std::optional<std::string> path) {
    selected_ = std::move(path);
    callback_(*this, SelectionChanged);
}

void Shell::Execute(std::string_view verb, std::string_view file, std::string_view parameters,
                    std::string_view directory, std::int32_t show) {
    journal_.Note([&] {
        return "ShellExecuteA " + Quoted(verb) + " " + Quoted(file) + " " + Quoted(parameters) +
               " " + Quoted(directory) + " " + std::to_string(show);
    });
    if (faults_.Check("ShellExecuteA", file)) return;
    executed.push_back({std::string(verb), std::string(file), std::string(parameters),
                        std::string(directory), show});
}

void Shell::ObjectProperties(std::int32_t kind) {
    auto line = journal_.Note([&] { return "shell32#178 " + std::to_string(kind); });
    PassOrThrow(journal_, faults_, line, "shell32#178", "");
    propertySheets.push_back(kind);
}

std::int32_t Shell::OperateOnFiles(std::uint32_t function, std::string_view path,
                                   std::uint16_t flags) {
    auto line = journal_.Note([&] {
        return "SHFileOperationA " + std::to_string(function) + " " + Quoted(path) + " " +
               Hex(flags);
    });
    auto operate = [&]() -> std::int32_t {
        if (auto code = faults_.Check("SHFileOperationA", path)) return *code;
        if (function != DeleteFiles) return InvalidParameter;
        // The call takes bytes: a character that the code page lacks becomes a question mark, and
        // that is a wildcard.
        std::int32_t refused = files_.Take(runtime::FromWestern(ToWesternBytes(path)));
        if (refused == 0 && flags & AllowUndo) recycleBin.emplace_back(path);
        return refused;
    };
    std::int32_t code = operate();
    journal_.Finish(line, [&] { return std::to_string(code); });
    return code;
}

void Shell::EmptyRecycleBin(std::uint32_t flags) {
    journal_.Note([&] { return "SHEmptyRecycleBinA " + Hex(flags); });
    if (!faults_.Check("SHEmptyRecycleBinA", "")) recycleBin.clear();
}

// Not journalled: it is asked for each row of a search.
std::string Shell::TypeName(std::string_view path, std::uint32_t attributes) const {
    if (attributes & attribute::Directory) return folderType;
    const std::size_t dot = path.rfind('.');
    if (dot == std::string_view::npos || path.find('\\', dot) != std::string_view::npos) {
        return "Datei";
    }
    return runtime::ToUpper(path.substr(dot + 1)) + "-Datei";
}

std::string Shell::BrowseForFolder(const toolkit::Form& owner, std::string_view title,
                                   std::uint32_t flags, const FolderCallback& callback) {
    auto line = journal_.Note([&] {
        return "SHBrowseForFolderA " + owner.Name() + " " + Quoted(title) + " " + Hex(flags);
    });
    auto finish = [&](const std::string& path) {
        journal_.Finish(line, [&] { return Quoted(path); });
        return path;
    };
    if (faults_.Check("SHBrowseForFolderA", title)) return finish("");
    if (scripts_.empty()) throw std::logic_error("no script for a folder dialog");
    auto user = std::move(scripts_.front());
    scripts_.pop_front();
    FolderDialog dialog(journal_, callback, title);
    callback(dialog, FolderDialog::Initialised);
    return finish(user(dialog) ? dialog.SelectedPath().value_or("") : "");
}

std::string Shell::SpecialFolder(std::int32_t csidl) const {
    auto found = specialFolders.find(csidl);
    bool fails = faults_.Check("SHGetSpecialFolderLocation", "").has_value();
    std::string path = found == specialFolders.end() || fails ? "" : found->second;
    journal_.Note([&] {
        return "SHGetSpecialFolderLocation " + Hex(static_cast<std::uint32_t>(csidl)) + " -> " +
               Quoted(path);
    });
    return path;
}

void Shell::WhenBrowsing(std::function<bool(FolderDialog&)> user) {
    scripts_.push_back(std::move(user));
}

}  // namespace platform::simulated
