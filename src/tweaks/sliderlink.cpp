#include "tweaks/sliderlink.h"

#include <memory>
#include <utility>

#include "platform/locale.h"
#include "runtime/number.h"
#include "runtime/temporarily.h"
#include "toolkit/controls.h"

namespace tweaks {
namespace {

bool IsBeyond(const toolkit::SliderRange& range, std::int32_t number) {
    return number < range.minimum || number > range.maximum;
}

}  // namespace

void LinkSliderWithBox(toolkit::Slider& slider, toolkit::TextBox& box,
                       const platform::Locale& locale, std::function<void(std::int32_t)> effect) {
    // Set while a number beyond the range, which the box keeps, takes the slider to its end.
    const auto keepsText = std::make_shared<bool>(false);
    slider.onChange = [&slider, &box, keepsText, effect = std::move(effect)] {
        if (effect) effect(slider.Value());
        if (!*keepsText) box.SetText(runtime::ToText(slider.Value()));
    };
    box.onChange = [&slider, &box, &locale, keepsText] {
        const runtime::NumberSigns signs = locale.Signs();
        if (!runtime::IsNumeric(box.Text(), signs)) return;
        const std::int32_t number = runtime::ToWholeNumber(box.Text(), signs);
        const runtime::Temporarily kept(*keepsText, IsBeyond(slider.Range(), number));
        slider.SetValue(number);
    };
}

}  // namespace tweaks
