#pragma once

#include <cstdint>

#include "platform/otherwindows.h"

namespace platform {
struct Machine;
}

// The opacity of the taskbar and the backgrounds of the desktop's icons: both act on the running
// shell at once and are stored for the next start. Nothing is taken back when the program ends; the
// windows stay as they are until the shell starts anew. A window that is not there is passed over.
namespace tweaks {

// The list that holds the desktop's icons; 0 when no shell runs.
platform::OtherWindows::Handle FindDesktopListView(const platform::OtherWindows& windows);

// Any value but 0 takes the backgrounds behind the icons' texts away. 0 makes them nearly black,
// whatever was there before: the former colour is not remembered, on purpose.
void SetIconsTransparent(const platform::Machine& machine, std::int16_t on);

// What the check box of the icons does with each new value: stores 1 as "1" and anything else as
// "0", then hands the value on. So the grey state is stored like off and acts like on.
void IconsChosen(const platform::Machine& machine, int value);

// Stores the level and gives it to the taskbar and to the topmost window of the class "BaseBar",
// no other of that class and none that comes later. 255 is opaque; the windows keep their layered
// style even then. Throws Failure InvalidProcedureCall, with no window touched, when the level
// cannot be stored.
void SetTaskbarOpacity(const platform::Machine& machine, std::uint8_t level);

}  // namespace tweaks
