#pragma once

#include <optional>
#include <string>

#include "app/apply.h"
#include "app/errorlog.h"
#include "cleanup/cleanuppage.h"
#include "controls/ctooltip.h"
#include "dialogs/frmabout.h"
#include "dialogs/frminstalledsoftware.h"
#include "dialogs/frmpassword.h"
#include "dialogs/frmshowallloggedinusers.h"
#include "dialogs/frmsysteminformation.h"
#include "dialogs/frmvirtualdrive.h"
#include "platform/machine.h"
#include "timesync/synchronization.h"
#include "toolkit/form.h"
#include "toolkit/popupmenu.h"
#include "tools/launchers.h"
#include "tweaks/passes.h"

namespace app {

// The whole program: one window with its pages. It is the composition of the pages and tools,
// which live in their own rooms; here stand only the window's own events.
class frmMain final : public toolkit::Form {
  public:
    // Twips; the normal window always has this size.
    static constexpr float FixedWidth = 9990;
    static constexpr float FixedHeight = 7920;

    explicit frmMain(const platform::Machine& machine);

    // Brings the system's state into the option controls, or carries it back. A failure is
    // reported under the procedure's own name and leaves the pass where it stands.
    void ReadRegistry();
    void WriteRegistry();

    // From here on closing stores the window's facts and the program's options.
    void StoreAtClosing() { storesAtClosing_ = true; }

    // The ends of the user's session, asked for by the buttons and by the tray menu. Each asks
    // first, unless `chkRebootQuestion` is set, then asks the system for the end, forced when
    // `chkForceReboot` is 1, and unloads this window. So nothing of closing runs before the answer,
    // and the system's own end runs while the program closes. A refusal of the system is not
    // noticed: the program ends and the system runs on, on purpose. A failure passes to the caller
    // and leaves the window open. They stand in sessionactions.cpp.
    void DoLogoff();
    void DoReboot();
    void DoShutdown();
    void LockStation();

    cleanup::CleanUpPage& CleanUp() { return *cleanUp_; }

    // Makes the tooltip object and gives the controls their help texts.
    void SetHelpTexts();

    // Builds strVersion and puts it into the caption.
    void BuildVersion();
    const std::string& strVersion() const { return version_; }

  protected:
    void OnLoad() override;
    void OnResize() override;
    bool OnKeyDown(int virtualKey) override;
    void OnMouseMove() override;
    void OnQueryUnload() override;
    void OnUnload() override;

  private:
    // Whoever makes a control connects it. Here is connected what needs the window's own parts, and
    // what a table says of controls by their names.
    void Connect();
    // Over the middle of this window, until the user closes the dialog.
    void ShowDialog(Form& dialog);
    void ComeBackFromTray();
    void OpenTrayMenu();

    platform::Machine machine_;
    bool storesAtClosing_ = false;
    std::string version_;
    ErrorLog log_;
    tools::Launchers launchers_;
    tweaks::Passes passes_;
    timesync::Synchronization synchronization_;
    std::optional<cleanup::CleanUpPage> cleanUp_;
    dialogs::frmPassword password_;
    dialogs::frmAbout about_;
    dialogs::frmSystemInformation systemInformation_;
    dialogs::frmShowAllLoggedInUsers loggedInUsers_;
    dialogs::frmInstalledSoftware installedSoftware_;
    dialogs::frmVirtualDrive virtualDrive_;
    app::Apply apply_;
    toolkit::PopupMenu mnuPopUpTray_;
    std::optional<controls::cToolTip> toolTip_;
};

}  // namespace app
