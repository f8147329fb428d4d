#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/machine.h"
#include "toolkit/form.h"
#include "toolkit/popupmenu.h"

namespace runtime {
class Failure;
}
namespace toolkit {
class ListView;
}

namespace dialogs {

// What the system's uninstall key names, with the ways to run an uninstaller and to take an entry
// away.
class frmInstalledSoftware final : public toolkit::Form {
  public:
    // Milliseconds between two looks at the uninstaller that is watched.
    static constexpr int ProcessInterval = 500;

    explicit frmInstalledSoftware(const platform::Machine& machine);
    ~frmInstalledSoftware() override;

  protected:
    void OnLoad() override;
    bool OnKeyDown(int virtualKey) override;
    void OnUnload() override;

  private:
    // Reads the key and fills the list. With `onlyInvalid` nothing is listed, on purpose: the
    // button of that search empties the list, and nothing looks for invalid entries.
    void FillSoftwareList(bool onlyInvalid);
    void AddEntries(bool onlyInvalid);
    void AskUninstall();
    void UninstallSelected() { Uninstall(SelectedTexts(UninstallerColumn)); }
    void Uninstall(const std::vector<std::string>& commands);
    void StartUninstallers(const std::vector<std::string>& commands);
    void DeleteSelected();
    void DeleteEntries();
    void tmrActiveProcess_Timer();
    // What could not be done with the selected entry; then reads the list anew.
    void TellFailure(const std::string& what, const runtime::Failure& failure,
                     const std::string& title);
    // Rows count from 1 here, as the user counts them.
    int SelectedIndex() const;
    void SelectIndex(int index);
    // Throws ObjectNotSet when no row is selected.
    const std::string& SelectedText() const;
    // What the selected rows show in that column, first to last.
    std::vector<std::string> SelectedTexts(int column) const;
    bool IsYes(const std::string& question, const std::string& title);
    void EnableTimer(bool enabled);
    void OpenMenu();

    static constexpr int UninstallerColumn = 2;

    platform::Machine machine_;
    toolkit::ListView& lvwSoftware_;
    toolkit::PopupMenu mnuFile_;
    bool sortDescending_ = false;
    // Of the last uninstaller started.
    std::int32_t processId_ = 0;
    platform::Clock::Timer tmrActiveProcess_ = 0;
    // While a question or a menu about the selected rows is open. The watch then leaves the list
    // alone.
    bool keepsRows_ = false;
};

}  // namespace dialogs
