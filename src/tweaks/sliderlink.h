#pragma once

#include <cstdint>
#include <functional>

namespace platform {
class Locale;
}
namespace toolkit {
class Slider;
class TextBox;
}  // namespace toolkit

namespace tweaks {

// Lets a slider and the box with its number follow each other from now on. A text that is no number
// leaves the slider where it is, as does one beyond its range: so a number can be typed digit by
// digit, and what lies outside is neither shown by the slider nor carried out. A number that does
// not fit into 32 bits raises Failure Overflow to whoever set the text, which is then in the box
// already: there is no guard on purpose, and a read pass that meets such a number ends there.
//
// `effect` is what each move of the slider does beside that, with the slider's value and before the
// box follows. When it fails the box does not follow.
void LinkSliderWithBox(toolkit::Slider& slider, toolkit::TextBox& box,
                       const platform::Locale& locale,
                       std::function<void(std::int32_t)> effect = {});

}  // namespace tweaks
