#include "tweaks/sliderlink.h"

#include <algorithm>
#include <cmath>

#include "platform/locale.h"
#include "runtime/number.h"
#include "toolkit/controls.h"

namespace tweaks {
namespace {

// Whether the box holds a number beyond the slider's range that has taken the slider to the end
// where it stands.
bool HoldsNumberBeyond(const toolkit::Slider& slider, const std::string& text,
                       const runtime::NumberSigns& signs) {
    const auto number = runtime::ParseNumber(text, signs);
    if (!number) return false;
    const double whole = std::nearbyint(*number);
    const double lowest = slider.Range().minimum;
    const double highest = slider.Range().maximum;
    return whole != std::clamp(whole, lowest, highest) &&
           slider.Value() == std::clamp(whole, lowest, highest);
}

}  // namespace

void LinkSliderWithBox(toolkit::Slider& slider, toolkit::TextBox& box,
                       const platform::Locale& locale) {
    slider.onChange = [&slider, &box, &locale] {
        if (HoldsNumberBeyond(slider, box.Text(), locale.Signs())) return;
        box.SetText(runtime::ToText(slider.Value()));
    };
    box.onChange = [&slider, &box, &locale] {
        const runtime::NumberSigns signs = locale.Signs();
        if (runtime::IsNumeric(box.Text(), signs)) {
            slider.SetValue(runtime::ToWholeNumber(box.Text(), signs));
        }
    };
}

}  // namespace tweaks
