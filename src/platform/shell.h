#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace toolkit {
class Form;
}

namespace platform {

// The folder dialog while it is open.
class FolderDialog {
  public:
    // Messages to the dialog.
    static constexpr std::uint32_t SetStatusText = 0x464;
    static constexpr std::uint32_t SetSelection = 0x466;
    // Messages of the dialog.
    static constexpr std::uint32_t Initialised = 1;
    static constexpr std::uint32_t SelectionChanged = 2;

    virtual ~FolderDialog() = default;

    // SendMessageA with the text as its last argument.
    virtual void Send(std::uint32_t message, std::string_view text) = 0;

    // SHGetPathFromIDList of what is selected, in a buffer of 260 characters; nothing when that is
    // no place in the file system, or nothing is selected.
    virtual std::optional<std::string> SelectedPath() const = 0;
};

// The shell of Windows, shell32. What belongs to a window belongs to the program's main one, or to
// no window before there is one.
class Shell {
  public:
    // Gets the dialog's own messages.
    using FolderCallback = std::function<void(FolderDialog& dialog, std::uint32_t message)>;

    // What OperateOnFiles can do, and how.
    static constexpr std::uint32_t DeleteFiles = 3;
    static constexpr std::uint16_t NoProgress = 0x04;
    static constexpr std::uint16_t NoConfirmation = 0x10;
    static constexpr std::uint16_t AllowUndo = 0x40;

    virtual ~Shell() = default;

    // ShellExecuteA; `show` is a window style of Processes. Its answer is not looked at, so a file
    // that is not there is passed over.
    virtual void Execute(std::string_view verb, std::string_view file, std::string_view parameters,
                         std::string_view directory, std::int32_t show) = 0;

    // The sheet of an object's properties, the export of ordinal 178, with two empty texts. Throws
    // Failure DllFunctionNotFound where there is no such export.
    virtual void ObjectProperties(std::int32_t kind) = 0;

    // SHFileOperationA on one path, which may hold wildcards; what it asks belongs to no window.
    // Returns 0 or the shell's error code.
    virtual std::int32_t OperateOnFiles(std::uint32_t function, std::string_view path,
                                        std::uint16_t flags) = 0;

    // SHEmptyRecycleBinA without a window and a root: the bins of all drives. Its answer is not
    // looked at, so a bin that is empty already is passed over.
    virtual void EmptyRecycleBin(std::uint32_t flags) = 0;

    // SHGetFileInfoW: what the shell calls such a file or folder, in the system's language. Nothing
    // need be at the path: the attributes tell folders, the extension tells files apart.
    virtual std::string TypeName(std::string_view path, std::uint32_t attributes) const = 0;

    // SHBrowseForFolderA over `owner`: blocks until the dialog is closed and serves the other
    // windows meanwhile. Returns the path that was chosen; "" when cancelled, or when the choice
    // is no place in the file system. A failure in the callback ends in the platform's default
    // message, and the dialog stays.
    virtual std::string BrowseForFolder(const toolkit::Form& owner, std::string_view title,
                                        std::uint32_t flags, const FolderCallback& callback) = 0;

    // SHGetSpecialFolderLocation and SHGetPathFromIDListA: the path of a folder by its CSIDL
    // number; "" for an unknown number and for a folder without a place in the file system.
    virtual std::string SpecialFolder(std::int32_t csidl) const = 0;
};

}  // namespace platform
