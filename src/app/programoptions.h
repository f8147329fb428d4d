#pragma once

#include "platform/machine.h"

namespace toolkit {
class Form;
}

// The program's own options, as opposed to the system's settings that it tunes: the five boxes of
// the group "Optionen" and what else the settings store brings back at start-up.
namespace app {

// Stores the five boxes and adds or removes the autostart entry, each statement by itself: one
// that fails is passed over. Only a value of exactly 1 counts as set. `AutoStart` is stored and
// never read: the autostart entry itself is what start-up asks.
void SaveProgramOptions(toolkit::Form& form, const platform::Machine& machine);

// Takes the controls' states from the store, each by itself: a setting that is absent leaves its
// control alone. Setting a control raises its event as the user's click does.
void RestoreProgramOptions(toolkit::Form& form, const platform::Machine& machine);

// The tray icon takes the window's icon and the program's title as its tip.
void DressTrayIcon(const platform::Machine& machine);

}  // namespace app
