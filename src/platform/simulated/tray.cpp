#include "platform/simulated/tray.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

void Tray::SetIcon() {
    auto line = journal_.Note([] { return std::string("Tray.SetIcon"); });
    PassOrThrow(journal_, faults_, line, "Tray.SetIcon", "");
    hasIcon = true;
}

void Tray::SetTip(std::string_view text) {
    auto line = journal_.Note([&] { return "Tray.SetTip " + Quoted(text); });
    PassOrThrow(journal_, faults_, line, "Tray.SetTip", "");
    tip = text;
}

void Tray::SetShown(bool show) {
    auto line = journal_.Note([&] { return "Tray.SetShown " + std::to_string(show); });
    PassOrThrow(journal_, faults_, line, "Tray.SetShown", "");
    shown = show;
}

}  // namespace platform::simulated
