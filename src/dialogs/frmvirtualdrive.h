#pragma once

#include <string>

#include "platform/machine.h"
#include "toolkit/form.h"
#include "toolkit/popupmenu.h"

namespace controls {
class chameleonButton;
}
namespace toolkit {
class CheckBox;
class ComboBox;
class ListView;
class TextBox;
}  // namespace toolkit

namespace dialogs {

// Drive letters that stand for folders. The system's command `subst` makes, lists and removes them;
// the dialog runs it through a hidden command shell and reads what it has written into a file.
class frmVirtualDrive final : public toolkit::Form {
  public:
    explicit frmVirtualDrive(const platform::Machine& machine);

    // Makes the stored drives again. Nobody calls it, on purpose: neither this dialog nor the
    // program looks at the switch "-r" with which the stored start command would ask for it.
    void RestoreDrives();

  protected:
    void OnLoad() override;
    bool OnKeyDown(int virtualKey) override;

  private:
    void ResetControls();
    void RefreshDrives();
    void FillFreeLetters(toolkit::ComboBox& combo);
    void ReadSubstList();
    void AddRows(const std::string& output, int reading);
    void AddRow(int number, const std::string& drive, const std::string& path);
    void CreateDrive();
    void RunCreate();
    void BrowseFolder();
    void PickFolder();
    void DeleteDrive();
    void RunDelete();
    void StoreDrives();
    void Exit();
    void OpenMenu();
    // The button and the menu's item that remove the selected drive.
    void EnableDelete(bool enabled);
    // Runs `subst` with these arguments; false when it reported a failure.
    bool RunSubst(const std::string& arguments);

    platform::Machine machine_;
    toolkit::ComboBox& cbodrives_;
    toolkit::TextBox& txtPathName_;
    controls::chameleonButton& cmdbroswe_;
    controls::chameleonButton& cmdcreate_;
    toolkit::ListView& lstDrives_;
    controls::chameleonButton& cmddelete_;
    toolkit::CheckBox& chkrestore_;
    controls::chameleonButton& cmdexit_;
    toolkit::PopupMenu mnuFile_;
    bool sortDescending_ = false;
    // How often the list has been read. Events are let through meanwhile, and so another reading
    // may begin before one has ended.
    int readings_ = 0;
    // "C:\Programme\Quillmore\".
    std::string AppFolder_;
    // "C:\": where the output of `subst` goes.
    std::string AppRoot_;
};

}  // namespace dialogs
