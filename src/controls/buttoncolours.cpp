#include "controls/buttoncolours.h"

namespace controls {

using toolkit::Colour;
using toolkit::SystemColour;

namespace {

constexpr Colour Black = 0;
constexpr Colour White = 0xFFFFFF;
constexpr int AccentColour = 13;

// An edge's colour: the system's, or the face's mixed with black or white.
struct ColourEdge {
    Role role;
    int system;
    Colour with;
    int hundredths;
};
constexpr ColourEdge Edges[] = {
    {Role::Highlight, 20, White, 80},
    {Role::Light, 22, White, 30},
    {Role::Shadow, 16, Black, 30},
    {Role::DarkShadow, 21, Black, 65},
};

}  // namespace

WorkingColours::WorkingColours(const toolkit::Canvas& canvas, const ButtonProperties& properties,
                               Colour back) {
    const bool own = properties.colorScheme == 2;
    const ButtonProperties system;
    const ButtonProperties& from = properties.colorScheme == 3 ? system : properties;
    At(Role::Face) = canvas.Translate(properties.colorScheme == 3 ? system.backColor : back);
    At(Role::Text) = canvas.Translate(from.foreColor);
    At(Role::TextOver) = canvas.Translate(from.foreOver);
    At(Role::Accent) = canvas.Translate(SystemColour(AccentColour));
    const Colour face = At(Role::Face);
    for (const ColourEdge& edge : Edges) {
        const Colour colour = own ? Mix(face, edge.with, edge.hundredths)
                                  : canvas.Translate(SystemColour(edge.system));
        At(edge.role) = properties.softBevel ? Mix(colour, face, 50) : colour;
    }
}

Colour Mix(Colour from, Colour to, int hundredths) {
    Colour mixed = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int first = static_cast<int>(from >> shift & 255);
        const int second = static_cast<int>(to >> shift & 255);
        mixed |= static_cast<Colour>(first + (second - first) * hundredths / 100) << shift;
    }
    return mixed;
}

}  // namespace controls
