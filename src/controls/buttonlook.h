#pragma once

#include "controls/buttoncolours.h"
#include "controls/buttonproperties.h"
#include "controls/buttonshape.h"
#include "toolkit/canvas.h"

namespace controls {

// The picture that a button shows.
enum class ButtonState { Normal = 0, Hovered = 1, Pressed = 2 };

// The shape of a ButtonType; a number that has no look has that of the default, 2.
Shape ShapeOf(std::int16_t buttonType);
// Whether the look begins with what the parent shows behind the button.
bool IsTransparent(std::int16_t buttonType);

// Where caption and picture stand while the button is not down.
struct Places {
    toolkit::Rect text;
    toolkit::Point picture;
};

// Pixels that a picture beside the caption takes of the button's width, with the gap between them.
int WidthBesideCaption(const ButtonProperties& properties);

// Measures the caption; where it is too wide for the button it gets several lines.
Places PlaceContents(const toolkit::Canvas& canvas, toolkit::Rect client,
                     const ButtonProperties& properties);

// What one picture of a button depends on beside its properties.
struct ButtonFace {
    const ButtonProperties& properties;
    const WorkingColours& colours;
    const Places& places;
    ButtonState state = ButtonState::Normal;
    // Pressed now, or kept pressed as a check box.
    bool down = false;
    // The button that Return presses.
    bool isDefault = false;
    bool focusRect = false;
};

// Draws in a fixed order: face and frame, picture and caption, edges, focus rectangle.
void DrawButton(toolkit::Canvas& canvas, toolkit::Rect client, const ButtonFace& face);

}  // namespace controls
