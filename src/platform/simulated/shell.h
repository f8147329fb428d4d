#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/shell.h"

namespace platform::simulated {

class Faults;
class Files;
class Journal;

// The folder dialog as the test's user has it before him.
class FolderDialog final : public platform::FolderDialog {
  public:
    FolderDialog(Journal& journal, const platform::Shell::FolderCallback& callback,
                 std::string_view dialogTitle)
        : title(dialogTitle), journal_(journal), callback_(callback) {}

    void Send(std::uint32_t message, std::string_view text) override;
    std::optional<std::string> SelectedPath() const override { return selected_; }

    // The user selects a folder, or with nothing a place outside the file system.
    void Select(std::optional<std::string> path);

    const std::string title;
    // The last status text.
    std::string status;

  private:
    Journal& journal_;
    const platform::Shell::FolderCallback& callback_;
    std::optional<std::string> selected_;
};

// A shell that shows nothing: it notes what was started, deletes in the disk of memory, and lets a
// script use the folder dialog.
class Shell final : public platform::Shell {
  public:
    Shell(Journal& journal, Faults& faults, Files& files)
        : journal_(journal), faults_(faults), files_(files) {}

    void Execute(std::string_view verb, std::string_view file, std::string_view parameters,
                 std::string_view directory, std::int32_t show) override;
    void ObjectProperties(std::int32_t kind) override;
    std::int32_t OperateOnFiles(std::uint32_t function, std::string_view path,
                                std::uint16_t flags) override;
    void EmptyRecycleBin(std::uint32_t flags) override;
    std::string TypeName(std::string_view path, std::uint32_t attributes) const override;
    std::string BrowseForFolder(const toolkit::Form& owner, std::string_view title,
                                std::uint32_t flags, const FolderCallback& callback) override;
    std::string SpecialFolder(std::int32_t csidl) const override;

    // The next folder dialog is used by `user`, who returns whether he closed it with OK. A dialog
    // without a script is a mistake in the test (std::logic_error).
    void WhenBrowsing(std::function<bool(FolderDialog&)> user);

    struct Executed {
        std::string verb;
        std::string file;
        std::string parameters;
        std::string directory;
        std::int32_t show = 0;
        bool operator==(const Executed&) const = default;
    };
    std::vector<Executed> executed;
    std::vector<std::int32_t> propertySheets;
    // What was deleted with the flag 0x40 (allow undo), in that order.
    std::vector<std::string> recycleBin;
    // What a folder is called; not so on a system of another language.
    std::string folderType = "Dateiordner";
    // By CSIDL: the folders of the user "Besitzer" on a German XP.
    std::map<std::int32_t, std::string> specialFolders{
        {0x00, "C:\\Dokumente und Einstellungen\\Besitzer\\Desktop"},
        {0x02, "C:\\Dokumente und Einstellungen\\Besitzer\\Startmenü\\Programme"},
        {0x05, "C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien"},
        {0x06, "C:\\Dokumente und Einstellungen\\Besitzer\\Favoriten"},
        {0x08, "C:\\Dokumente und Einstellungen\\Besitzer\\Recent"},
        {0x09, "C:\\Dokumente und Einstellungen\\Besitzer\\SendTo"},
        {0x0B, "C:\\Dokumente und Einstellungen\\Besitzer\\Startmenü"},
        {0x1A, "C:\\Dokumente und Einstellungen\\Besitzer\\Anwendungsdaten"},
        {0x1C, "C:\\Dokumente und Einstellungen\\Besitzer\\Lokale Einstellungen\\Anwendungsdaten"},
        {0x20,
         "C:\\Dokumente und Einstellungen\\Besitzer\\Lokale Einstellungen\\Temporary Internet "
         "Files"},
        {0x21, "C:\\Dokumente und Einstellungen\\Besitzer\\Cookies"},
        {0x22, "C:\\Dokumente und Einstellungen\\Besitzer\\Lokale Einstellungen\\Verlauf"},
        {0x24, "C:\\WINDOWS"},
        {0x25, "C:\\WINDOWS\\system32"},
        {0x26, "C:\\Programme"},
    };

  private:
    Journal& journal_;
    Faults& faults_;
    Files& files_;
    std::deque<std::function<bool(FolderDialog&)>> scripts_;
};

}  // namespace platform::simulated
