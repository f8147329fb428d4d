#include "app/traymenu.h"

#include <utility>

#include "runtime/programtitle.h"

namespace app {

toolkit::PopupMenu MakeTrayMenu(TrayMenuActions actions) {
    return {"mnuPopUpTray",
            {{"mnuShow", std::string(runtime::ProgramTitle), std::move(actions.show)},
             {"t1", "", nullptr},
             {"mnuLockStation", "Workstation sperren", std::move(actions.lockStation)},
             {"t3", "", nullptr},
             {"mnuLogoff", "Benutzer abmelden", std::move(actions.logoff)},
             {"mnuReboot", "Computer neu starten", std::move(actions.reboot)},
             {"mnuShutdown", "Computer ausschalten", std::move(actions.shutdown)},
             {"t2", "", nullptr},
             {"mnuEnd", "Beenden", std::move(actions.end)}}};
}

}  // namespace app
