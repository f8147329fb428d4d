#pragma once

#include <array>

#include "controls/buttonproperties.h"

namespace controls {

// What a look says instead of a colour.
enum class Role : std::uint8_t {
    None,
    Face,
    Highlight,
    Light,
    Shadow,
    DarkShadow,
    Text,
    TextOver,
    // Around what the mouse is over.
    Accent,
    Black,
};

// The colours that a button is drawn in, by their roles.
class WorkingColours {
  public:
    // Looks the colours up on the canvas, which knows those of the system. `back` is the background
    // that counts now: BackColor or BackOver.
    WorkingColours(const toolkit::Canvas& canvas, const ButtonProperties& properties,
                   toolkit::Colour back);

    toolkit::Colour operator[](Role role) const { return colours_[static_cast<std::size_t>(role)]; }

  private:
    toolkit::Colour& At(Role role) { return colours_[static_cast<std::size_t>(role)]; }

    std::array<toolkit::Colour, 10> colours_{};
};

// A colour between two: that many hundredths of the way from the first to the second.
toolkit::Colour Mix(toolkit::Colour from, toolkit::Colour to, int hundredths);

}  // namespace controls
