#include "app/frmmain.h"

#include "app/closing.h"
#include "app/pages.h"
#include "app/programoptions.h"
#include "app/startup.h"
#include "app/version.h"
#include "controls/chameleonbutton.h"
#include "platform/program.h"
#include "platform/settings.h"
#include "platform/tray.h"
#include "toolkit/controls.h"

namespace app {
namespace {

constexpr int KeyF4 = 0x73;

// The designed place: in the middle of the screen.
toolkit::Bounds DesignedPlace(const toolkit::FormHost& host) {
    const toolkit::Bounds area = host.WorkArea();
    return {area.left + (area.width - frmMain::FixedWidth) / 2,
            area.top + (area.height - frmMain::FixedHeight) / 2, frmMain::FixedWidth,
            frmMain::FixedHeight};
}

}  // namespace

frmMain::frmMain(const platform::Machine& machine)
    : Form(machine.forms, "frmMain", std::string(platform::ProgramTitle),
           DesignedPlace(machine.forms)),
      machine_(machine),
      log_(machine_, version_),
      passes_(*this, machine_),
      password_(machine_),
      apply_(*this, password_, machine_,
             {.saveProgramOptions = [this] { SaveProgramOptions(*this, machine_); },
              .writeRegistry = [this] { WriteRegistry(); }}) {
    isDialog = false;
    toolkit::Box pages = AddPages(*this, machine_);
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
    SetCaption(std::string(platform::ProgramTitle) + " " + version_);
}

void frmMain::OnLoad() {
    StartUp(*this, machine_);
}

void frmMain::OnResize() {
    const bool toTray = Find<toolkit::CheckBox>("chkTrayIcon").Value() == 1;
    if (State() == toolkit::WindowState::Minimised) {
        if (toTray) {
            machine_.tray.SetIcon();
            machine_.tray.SetShown(true);
            SetInTaskbar(false);
            Hide();
        } else {
            SetInTaskbar(true);
        }
    }
    // The normal window cannot be resized: any attempt snaps back. A maximised one is left alone.
    if (State() == toolkit::WindowState::Normal) SetSize(FixedWidth, FixedHeight);
}

bool frmMain::OnKeyDown(int virtualKey) {
    if (virtualKey != KeyF4) return false;
    Unload();
    return true;
}

// A session that ends while the warning is still open leaves as little trace as a refusal.
void frmMain::OnQueryUnload() {
    if (!warningAccepted_) machine_.program.End();
    log_.Report("Form_QueryUnload", [&] { CloseProgram(*this, machine_); });
}

// A hidden dialog must not keep the process alive when closing could not end it.
void frmMain::OnUnload() {
    machine_.tray.SetShown(false);
    password_.Unload();
}

void frmMain::Connect() {
    Find<controls::chameleonButton>("cmdApply").onClick = [this] { apply_.Run(); };
    Find<controls::chameleonButton>("cmdEnd").onClick = [this] { Unload(); };
    machine_.tray.onRestore = [this] { ComeBackFromTray(); };
}

void frmMain::ComeBackFromTray() {
    SetState(toolkit::WindowState::Normal);
    SetInTaskbar(true);
    Show();
    machine_.tray.SetShown(false);
}

}  // namespace app
