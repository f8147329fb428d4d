#pragma once

namespace platform {
class Locale;
}
namespace toolkit {
class Form;
}

namespace tweaks {

// From now on the receive window (txtRWIN) follows the packet size (cboMTU), down below zero where
// the user has typed only the first digits. An entry of his own lasts until the next change. A form
// that lacks one of the two is left alone.
void ConnectReceiveWindow(toolkit::Form& form, const platform::Locale& locale);

}  // namespace tweaks
