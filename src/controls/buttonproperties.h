#pragma once

#include <cstdint>
#include <string>

#include "toolkit/canvas.h"
#include "toolkit/picture.h"

namespace controls {

class PropertyStore;

// What a form keeps of a button. The values given here are those of a new button, and those of a
// store without the key; only BackOver and ForeOver then follow BackColor and ForeColor.
struct ButtonProperties {
    // The look, 1 to 14.
    std::int16_t buttonType = 2;
    std::string caption;
    bool enabled = true;
    toolkit::Font font;
    // 1: the system's edges. 2: edges of the face's own colour, and another face while the mouse is
    // over the button. 3: the system's colours for everything.
    std::int16_t colorScheme = 1;
    bool showFocusRect = true;
    toolkit::Colour backColor = toolkit::SystemColour(15);
    toolkit::Colour backOver = toolkit::SystemColour(15);
    toolkit::Colour foreColor = toolkit::SystemColour(18);
    toolkit::Colour foreOver = toolkit::SystemColour(18);
    toolkit::Colour maskColor = 0xC0C0C0;
    std::int16_t mousePointer = 0;
    toolkit::SharedPicture mouseIcon;
    toolkit::SharedPicture pictureNormal;
    toolkit::SharedPicture pictureOver;
    bool useMaskColor = true;
    bool softBevel = false;
    // Where the picture stands: 0 left of the caption, 1 right, 2 above, 3 below, 4 behind.
    std::int16_t picturePosition = 0;
    bool normalGrey = false;
    // What the caption's letters are: 0 plain, 1 raised, 2 engraved, 3 with a shadow.
    std::int16_t specialEffect = 0;
    bool handPointer = false;
    bool checkBoxBehaviour = false;
    bool value = false;
};

// The names under which the properties are stored, in the order of ButtonProperties.
namespace key {

inline constexpr char ButtonType[] = "BTYPE";
inline constexpr char Caption[] = "TX";
inline constexpr char Enabled[] = "ENAB";
inline constexpr char Font[] = "FONT";
inline constexpr char ColorScheme[] = "COLTYPE";
inline constexpr char ShowFocusRect[] = "FOCUSR";
inline constexpr char BackColor[] = "BCOL";
inline constexpr char BackOver[] = "BCOLO";
inline constexpr char ForeColor[] = "FCOL";
inline constexpr char ForeOver[] = "FCOLO";
inline constexpr char MaskColor[] = "MCOL";
inline constexpr char MousePointer[] = "MPTR";
inline constexpr char MouseIcon[] = "MICON";
inline constexpr char PictureNormal[] = "PICN";
inline constexpr char PictureOver[] = "PICH";
inline constexpr char UseMaskColor[] = "UMCOL";
inline constexpr char SoftBevel[] = "SOFT";
inline constexpr char PicturePosition[] = "PICPOS";
inline constexpr char NormalGrey[] = "NGREY";
inline constexpr char SpecialEffect[] = "FX";
inline constexpr char HandPointer[] = "HAND";
inline constexpr char CheckBoxBehaviour[] = "CHECK";
inline constexpr char Value[] = "VALUE";

// Under this name a change of PictureOver is announced, and under no other is it stored than PICH.
// Both on purpose: forms hold the one, and whoever listens knows the other.
inline constexpr char PictureOverChange[] = "PICO";

}  // namespace key

// In the order of ButtonProperties. What the store does not hold, or holds as something that the
// property cannot be, gets its default.
ButtonProperties ReadButtonProperties(const PropertyStore& store);
// All of them, in the same order.
void WriteButtonProperties(PropertyStore& store, const ButtonProperties& properties);

}  // namespace controls
