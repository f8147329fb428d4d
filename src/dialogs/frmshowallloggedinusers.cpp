#include "dialogs/frmshowallloggedinusers.h"

#include "controls/chameleonbutton.h"
#include "platform/messages.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "toolkit/listbox.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using platform::Workstation;
using runtime::Skip;

// "" when the system does not tell.
std::string GetComputerName(const platform::SystemInformation& information) {
    return information.ComputerName().value_or("");
}

// With the line end that the system puts behind its texts; 256 blanks for a code without a text.
std::string SystemErrorText(const Workstation& workstation, std::uint32_t code) {
    const std::string buffer = workstation.SystemMessage(code);
    return buffer.substr(0, buffer.find('\0'));
}

}  // namespace

frmShowAllLoggedInUsers::frmShowAllLoggedInUsers(const platform::Machine& machine)
    : Form(machine.forms, "frmShowAllLoggedInUsers", "Angemeldete Benutzer", {}),
      machine_(machine) {
    constexpr int Columns = 56;
    constexpr int Lines = 12;
    auto& heading = Add<toolkit::Label>("Label1", "Alle am System angemeldeten Benutzer:");
    auto& lstUsers = Add<toolkit::ListBox>("lstUsers", Columns, Lines);
    auto& lblWait = Add<toolkit::Label>("lblWait", "Bitte warten ...");
    auto& cmdRefresh =
        Add<chameleonButton>("cmdRefresh", controls::Persisted{"TX=Aktualisieren"}, machine.clock);
    auto& cmdOK = Add<chameleonButton>("cmdOK", controls::Persisted{"TX=OK"}, machine.clock);
    lblWait.SetVisible(false);
    cmdRefresh.onClick = [this] { FillUserList(); };
    cmdOK.onClick = [this] { Unload(); };

    defaultButton = &cmdOK;
    firstFocus = &cmdOK;
    sizeToContent = true;
    SetLayout(Margin(
        Gap(toolkit::Column({
                Gap(toolkit::Column({Leaf(heading), Leaf(lstUsers)}), 4),
                Gap(toolkit::Row({Leaf(lblWait), toolkit::Filler(), Leaf(cmdRefresh), Leaf(cmdOK)}),
                    8),
            }),
            16),
        16));
}

void frmShowAllLoggedInUsers::OnLoad() {
    FillUserList();
}

bool frmShowAllLoggedInUsers::OnKeyDown(int virtualKey) {
    if (virtualKey != toolkit::key::Escape) return false;
    Unload();
    return true;
}

void frmShowAllLoggedInUsers::FillUserList() {
    auto& lstUsers = Find<toolkit::ListBox>("lstUsers");
    auto& lblWait = Find<toolkit::Label>("lblWait");
    const toolkit::ScreenHourglass hourglass{host_};
    lblWait.SetVisible(true);
    // The thread is busy until the list is there, so nothing else would paint it.
    if (lblWait.View()) lblWait.View()->PaintNow();
    const std::string ServerName = "\\\\" + GetComputerName(machine_.systemInformation);
    Skip([&] { ReadLoggedOnUsers(ServerName); });
    lstUsers.Clear();
    // All of them on purpose: who has several sessions, and the services, have a line each.
    for (const platform::LoggedOnUser& user : users_) {
        lstUsers.AddItem(user.wkui1_logon_domain + '\\' + user.wkui1_username);
    }
    lblWait.SetVisible(false);
}

// Two oddities on purpose: each batch takes the place of the one before, so that the list shows the
// last one only, and only the last one's buffer is given back.
void frmShowAllLoggedInUsers::ReadLoggedOnUsers(const std::string& ServerName) {
    const Workstation& workstation = machine_.workstation;
    platform::UserEnumeration enumeration;
    std::uint32_t status;
    do {
        status = workstation.EnumerateUsers(ServerName, enumeration);
        users_ = enumeration.users;
        if (status != Workstation::Success && status != Workstation::MoreData) {
            machine_.messages.Show("Fehler:\r\n" + SystemErrorText(workstation, status),
                                   platform::message::Critical, "Fehler");
        }
    } while (status == Workstation::MoreData);
    if (enumeration.buffer) workstation.FreeBuffer(enumeration.buffer);
}

}  // namespace dialogs
