#include "platform/simulated/clipboard.h"

#include "platform/simulated/faults.h"
#include "platform/simulated/wording.h"

namespace platform::simulated {

bool Clipboard::SetText(std::string_view newText) {
    auto line = journal_.Note([&] { return "SetClipboardData " + Quoted(newText); });
    const bool set = !faults_.Check("SetClipboardData", "");
    if (set) text = newText;
    journal_.Finish(line, [&] { return std::string(set ? "1" : "0"); });
    return set;
}

}  // namespace platform::simulated
