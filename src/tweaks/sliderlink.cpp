#include "tweaks/sliderlink.h"

#include <utility>

#include "platform/locale.h"
#include "runtime/number.h"
#include "toolkit/controls.h"

namespace tweaks {

void LinkSliderWithBox(toolkit::Slider& slider, toolkit::TextBox& box,
                       const platform::Locale& locale, std::function<void(std::int32_t)> effect) {
    slider.onChange = [&slider, &box, effect = std::move(effect)] {
        if (effect) effect(slider.Value());
        box.SetText(runtime::ToText(slider.Value()));
    };
    box.onChange = [&slider, &box, &locale] {
        const runtime::NumberSigns signs = locale.Signs();
        if (!runtime::IsNumeric(box.Text(), signs)) return;
        slider.SetValue(runtime::ToWholeNumber(box.Text(), signs));
    };
}

}  // namespace tweaks
