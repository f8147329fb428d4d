#include "tweaks/presets.h"

#include <cstdint>
#include <string_view>

#include "controls/chameleonbutton.h"
#include "platform/memory.h"
#include "runtime/number.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"
#include "tweaks/presetlists.h"

namespace tweaks {
namespace {

// Bytes, on purpose, so every real machine passes, but for one with so much memory that the number
// comes out negative.
constexpr std::int32_t MemoryLimit = 256000;

}  // namespace

void SetToPreset(toolkit::Form& form, const platform::Memory& memory, const char* control,
                 const char* value) {
    if (std::string_view(value) == ByMemory) {
        value = memory.PhysicalBytes() > MemoryLimit ? "1" : "0";
    }
    toolkit::Control* const found = form.FindControl(control);
    const auto number = [&] { return static_cast<std::int32_t>(runtime::LeadingNumber(value)); };
    if (auto* box = dynamic_cast<toolkit::CheckBox*>(found)) return box->SetValue(number());
    if (auto* option = dynamic_cast<toolkit::OptionButton*>(found)) {
        return option->SetValue(number() != 0);
    }
    if (auto* slider = dynamic_cast<toolkit::Slider*>(found)) return slider->SetValue(number());
    SetTextOfControl(form, control, value);
}

void ConnectPresets(toolkit::Form& form, const platform::Memory& memory) {
    for (const PresetButton& button : PresetButtons()) {
        form.Find<controls::chameleonButton>(button.name).onClick = [&form, &memory, &button] {
            for (const PresetRow& row : button.rows) {
                const char* value = row.*button.column;
                if (value != Leave) SetToPreset(form, memory, row.control, value);
            }
        };
    }
}

}  // namespace tweaks
