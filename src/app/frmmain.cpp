#include "app/frmmain.h"

#include "app/closing.h"
#include "app/pages.h"
#include "app/programoptions.h"
#include "app/sessionactions.h"
#include "app/startup.h"
#include "app/traymenu.h"
#include "app/version.h"
#include "controls/chameleonbutton.h"
#include "dialogs/forminform.h"
#include "platform/menus.h"
#include "platform/program.h"
#include "platform/tray.h"
#include "runtime/failure.h"
#include "runtime/programtitle.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "tools/helpfile.h"
#include "tools/launcherlabels.h"
#include "tweaks/autotuning.h"
#include "tweaks/helptexts.h"
#include "tweaks/keyfilters.h"
#include "tweaks/networksets.h"
#include "tweaks/pathspage.h"
#include "tweaks/presets.h"
#include "tweaks/sideeffects.h"

namespace app {
namespace {

// The designed place: in the middle of the screen.
toolkit::Bounds DesignedPlace(const toolkit::FormHost& host) {
    const toolkit::Bounds area = host.WorkArea();
    return {area.left + (area.width - frmMain::FixedWidth) / 2,
            area.top + (area.height - frmMain::FixedHeight) / 2, frmMain::FixedWidth,
            frmMain::FixedHeight};
}

}  // namespace

frmMain::frmMain(const platform::Machine& machine)
    : Form(machine.forms, "frmMain", std::string(runtime::ProgramTitle),
           DesignedPlace(machine.forms)),
      machine_(machine),
      log_(machine_, version_),
      launchers_(machine_, [this](std::string_view procedure,
                                  const auto& body) { log_.Report(procedure, body); }),
      passes_(*this, machine_),
      synchronization_(*this, machine_),
      password_(machine_),
      about_(machine_, version_),
      systemInformation_(machine_),
      loggedInUsers_(machine_),
      installedSoftware_(machine_),
      virtualDrive_(machine_),
      apply_(*this, password_, machine_,
             {.saveProgramOptions = [this] { SaveProgramOptions(*this, machine_); },
              .writeRegistry = [this] { WriteRegistry(); }}),
      mnuPopUpTray_(MakeTrayMenu({.show = [this] { ComeBackFromTray(); },
                                  .lockStation = [this] { LockStation(); },
                                  .logoff = [this] { DoLogoff(); },
                                  .reboot = [this] { DoReboot(); },
                                  .shutdown = [this] { DoShutdown(); },
                                  .end = [this] { Unload(); }})) {
    isDialog = false;
    toolkit::Box pages = AddPages(*this, machine_, launchers_, cleanUp_);
    toolkit::Box buttons = AddWindowButtons(*this, machine_);
    SetLayout(toolkit::Margin(
        toolkit::Gap(toolkit::Column({Stretch(std::move(pages)), std::move(buttons)}), 8), 8));
    Connect();
}

void frmMain::ReadRegistry() {
    log_.Report("ReadRegistry", [&] { passes_.Read(); });
}

void frmMain::WriteRegistry() {
    log_.Report("WriteRegistry", [&] { passes_.Write(); });
}

void frmMain::BuildVersion() {
    version_ = VersionText(MajorVersion, MinorVersion, Revision);
    SetCaption(std::string(runtime::ProgramTitle) + " " + version_);
}

void frmMain::SetHelpTexts() {
    tweaks::HangHelpTexts(*this, toolTip_.emplace(machine_.toolTips));
}

void frmMain::LockStation() {
    launchers_.LoadExternMSC("rundll32.exe", "user32.dll,LockWorkStation");
}

void frmMain::OnLoad() {
    runtime::Skip([&] { synchronization_.Start_tmrUhrzeit(); });
    StartUp(*this, machine_);
}

void frmMain::OnResize() {
    const int toTray = Find<toolkit::CheckBox>("chkTrayIcon").Value();
    const bool minimised = State() == toolkit::WindowState::Minimised;
    if (minimised && toTray == 1) {
        machine_.tray.SetIcon();
        machine_.tray.SetShown(true);
        SetInTaskbar(false);
        Hide();
    }
    if (minimised && toTray == 0) SetInTaskbar(true);
    // The normal window cannot be resized: any attempt snaps back. A maximised one is left alone.
    if (State() == toolkit::WindowState::Normal) SetSize(FixedWidth, FixedHeight);
}

bool frmMain::OnKeyDown(int virtualKey) {
    if (virtualKey != toolkit::key::F4) return false;
    Unload();
    return true;
}

void frmMain::OnMouseMove() {
    tools::ResetLabelColors(*this);
}

// A session that ends while the warning is still open leaves as little trace as a refusal.
void frmMain::OnQueryUnload() {
    synchronization_.Stop_tmrUhrzeit();
    if (!storesAtClosing_) machine_.program.End();
    log_.Report("Form_QueryUnload", [&] { CloseProgram(*this, machine_, toolTip_); });
}

// A hidden dialog must not keep the process alive when closing could not end it, nor must an icon
// that cannot be removed, which may have kept it from ending. The tooltip object is still there
// then, too, and must leave the controls before their windows go.
void frmMain::OnUnload() {
    toolTip_.reset();
    runtime::Skip([&] { machine_.tray.SetShown(false); });
    password_.Unload();
}

void frmMain::Connect() {
    Find<controls::chameleonButton>("cmdApply").onClick = [this] { apply_.Run(); };
    Find<controls::chameleonButton>("cmdHilfe").onClick = [this] { tools::ShowHelp(machine_); };
    Find<controls::chameleonButton>("cmdAbout").onClick = [this] { ShowDialog(about_); };
    Find<controls::chameleonButton>("cmdSysInfo").onClick = [this] {
        ShowDialog(systemInformation_);
    };
    Find<controls::chameleonButton>("cmdShowAllLoggedOnUsers").onClick = [this] {
        ShowDialog(loggedInUsers_);
    };
    Find<controls::chameleonButton>("cmdInstalledSoftware").onClick = [this] {
        ShowDialog(installedSoftware_);
    };
    Find<controls::chameleonButton>("cmdVirtualDrive").onClick = [this] {
        ShowDialog(virtualDrive_);
    };
    Find<controls::chameleonButton>("cmdSynchronizeDateTime").onClick = [this] {
        synchronization_.cmdSynchronizeDateTime_Click();
    };
    Find<controls::chameleonButton>("cmdEnd").onClick = [this] { Unload(); };
    Find<controls::chameleonButton>("cmdSetAllOptimal").onClick = [this] {
        tweaks::AutoTuning(*this, machine_);
    };
    Find<controls::chameleonButton>("cmdPathDefault").onClick = [this] {
        log_.Report("cmdPathDefault",
                    [&] { tweaks::SetDefaultPaths(*this, machine_.systemFacts); });
    };
    tweaks::ConnectSideEffects(*this, machine_);
    tweaks::ConnectKeyFilters(*this, machine_.beeper);
    tweaks::ConnectPresets(*this, machine_.memory);
    tweaks::ConnectNetworkSets(*this);
    machine_.tray.onRestore = [this] { ComeBackFromTray(); };
    machine_.tray.onMouseUp = [this](int button) {
        if (button == platform::Tray::RightButton) OpenTrayMenu();
    };
}

void frmMain::OpenTrayMenu() {
    const toolkit::MenuItem* chosen = machine_.menus.Choose(mnuPopUpTray_);
    if (chosen) chosen->onClick();
}

void frmMain::ShowDialog(Form& dialog) {
    // One that lets events through as it loads is shown once, however often its button is pressed.
    if (dialog.Loaded()) return;
    try {
        dialog.Load();
        dialogs::fFormInFormZentrieren(dialog, *this, machine_.forms.WorkArea());
        dialog.ShowModal();
    } catch (...) {
        // Else it would stay loaded and unseen, and could not be opened again.
        dialog.Unload();
        throw;
    }
}

// With the taskbar entry, so that the next closing stores the window's place again.
void frmMain::ComeBackFromTray() {
    SetState(toolkit::WindowState::Normal);
    SetInTaskbar(true);
    Show();
    machine_.tray.SetShown(false);
}

}  // namespace app
