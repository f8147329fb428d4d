#pragma once

#include "toolkit/popupmenu.h"

namespace app {

// What the items of the tray menu do.
struct TrayMenuActions {
    toolkit::Handler show;
    toolkit::Handler lockStation;
    toolkit::Handler logoff;
    toolkit::Handler reboot;
    toolkit::Handler shutdown;
    toolkit::Handler end;
};

// The menu mnuPopUpTray.
toolkit::PopupMenu MakeTrayMenu(TrayMenuActions actions);

}  // namespace app
