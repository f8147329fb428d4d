#include "controls/buttonlook.h"

#include <algorithm>
#include <iterator>

#include "controls/buttonpicture.h"

namespace controls {

using toolkit::Canvas;
using toolkit::Colour;
using toolkit::Rect;
using toolkit::Size;

namespace {

enum class Fill : std::uint8_t {
    Plain,
    // Lighter under the mouse, darker when down.
    Tinted,
    // Light above and dark below; the other way round when down.
    Gradient,
    // What the parent shows behind the button.
    Parent,
};

struct Edge {
    Role upperLeft = Role::None;
    Role lowerRight = Role::None;
};

struct Look {
    Shape shape = {};
    Fill fill = Fill::Plain;
    // Around the whole button; the edges lie within it.
    Role frame = Role::None;
    // From outside to inside. When the button is down, those under the mouse change sides.
    Edge edges[2] = {};
    Edge hovered[2] = {};
    // Pixels that caption and picture go right and down with the button.
    std::uint8_t shift = 1;
    // Pixels between the left and right sides and the caption or focus rectangle.
    std::uint8_t side = 4;
};

// The same above and below, for all looks.
constexpr int Above = 4;
// Between picture and caption.
constexpr int PictureGap = 4;

constexpr Edge Outer{Role::Highlight, Role::DarkShadow};
constexpr Edge Inner{Role::Light, Role::Shadow};
constexpr Edge Thin{Role::Highlight, Role::Shadow};
constexpr Edge Dark{Role::DarkShadow, Role::DarkShadow};
constexpr Edge Lit{Role::Accent, Role::Accent};
constexpr std::uint8_t UpperCorners = UpperLeft | UpperRight;
constexpr std::uint8_t OppositeCorners = UpperLeft | LowerRight;

// By ButtonType, from 1.
constexpr Look Looks[] = {
    // Thick: a black frame and two equal lines.
    {.frame = Role::Black, .edges = {Thin, Thin}, .hovered = {Outer, Thin}},
    // The default: two lines that turn inside out. It does not change under the mouse.
    {.edges = {Outer, Inner}, .hovered = {Outer, Inner}},
    // Modern: a gradient in a dark frame.
    {.fill = Fill::Gradient, .frame = Role::DarkShadow, .edges = {Thin}, .hovered = {Lit}},
    // Thin: one line.
    {.edges = {Thin}, .hovered = {Outer}},
    // Flat, and raised under the mouse.
    {.hovered = {Outer, Inner}},
    // Framed: nothing but a line, and the face tells what happens.
    {.fill = Fill::Tinted, .frame = Role::Shadow, .hovered = {Lit}, .shift = 0},
    {.shape = {Corner::Round, 4},
     .fill = Fill::Gradient,
     .edges = {Dark, Thin},
     .hovered = {Dark, Lit},
     .side = 5},
    {.shape = {Corner::Cut, 5}, .edges = {Outer, Inner}, .hovered = {Dark, Thin}, .side = 6},
    // A pill.
    {.shape = {Corner::HalfRound},
     .fill = Fill::Tinted,
     .edges = {Dark, Thin},
     .hovered = {Dark, Lit},
     .side = 9},
    // A tab: only its upper corners are round.
    {.shape = {Corner::Round, 6, UpperCorners},
     .fill = Fill::Tinted,
     .edges = {Outer, Inner},
     .hovered = {Outer, Lit},
     .side = 5},
    // Transparent, with an edge under the mouse only.
    {.fill = Fill::Parent, .hovered = {Thin}},
    {.shape = {Corner::Notch, 3},
     .fill = Fill::Tinted,
     .edges = {Dark, Thin},
     .hovered = {Dark, Lit},
     .side = 6},
    // A leaf: two opposite corners are round.
    {.shape = {Corner::Round, 9, OppositeCorners},
     .fill = Fill::Gradient,
     .edges = {Outer, Inner},
     .hovered = {Outer, Lit},
     .side = 7},
    {.shape = {Corner::Ellipse},
     .fill = Fill::Tinted,
     .edges = {Dark, Thin},
     .hovered = {Dark, Lit},
     .side = 10},
};
constexpr int Usual = 2;

const Look& LookOf(std::int16_t buttonType) {
    const bool known = buttonType >= 1 && buttonType <= static_cast<int>(std::size(Looks));
    return Looks[(known ? buttonType : Usual) - 1];
}

Rect Contents(Rect client, const Look& look) {
    return {client.left + look.side, client.top + Above, client.width - 2 * look.side,
            client.height - 2 * Above};
}

Rect Moved(Rect area, int by) {
    return {area.left + by, area.top + by, area.width, area.height};
}

void FillGradient(Canvas& canvas, Rect area, Colour from, Colour to) {
    for (int row = 0; row < area.height; ++row) {
        const int y = area.top + row;
        canvas.Line({area.left, y}, {area.Right(), y}, Mix(from, to, 100 * row / area.height));
    }
}

void DrawFill(Canvas& canvas, Rect client, const Look& look, const ButtonFace& face) {
    const WorkingColours& colours = face.colours;
    const Colour plain = colours[Role::Face];
    if (look.fill == Fill::Parent) {
        canvas.Background(client);
    } else if (look.fill == Fill::Gradient) {
        const Colour light = Mix(plain, colours[Role::Highlight], 60);
        const Colour dark = Mix(plain, colours[Role::Shadow], 40);
        FillGradient(canvas, client, face.down ? dark : light, face.down ? light : dark);
    } else {
        const bool tinted = look.fill == Fill::Tinted;
        const bool lit = face.state == ButtonState::Hovered;
        const Role towards = face.down ? Role::Shadow : lit ? Role::Highlight : Role::Face;
        canvas.FillRect(client, tinted ? Mix(plain, colours[towards], 40) : plain);
    }
}

// Says whether there is a frame.
bool DrawFrame(Canvas& canvas, Rect client, const Look& look, const ButtonFace& face) {
    const Role frame = face.isDefault ? Role::Black : look.frame;
    if (frame == Role::None) return false;
    const Colour colour = face.colours[frame];
    if (look.shape.corner == Corner::Square) {
        canvas.FrameRect(client, colour);
    } else {
        DrawOutline(canvas, client, look.shape, 0, colour, colour);
    }
    return true;
}

void DrawPictureOf(Canvas& canvas, const ButtonFace& face, int shift) {
    const ButtonProperties& properties = face.properties;
    const bool normal = face.state == ButtonState::Normal;
    const bool other = !normal && properties.pictureOver;
    const auto& picture = other ? properties.pictureOver : properties.pictureNormal;
    if (!picture) return;
    std::optional<Colour> mask;
    if (properties.useMaskColor) mask = canvas.Translate(properties.maskColor);
    const bool grey = !properties.enabled || (normal && properties.normalGrey);
    const toolkit::Point at = face.places.picture;
    DrawPicture(canvas, *picture, {at.x + shift, at.y + shift}, mask, grey);
}

// What stands behind the letters, a pixel aside.
struct Effect {
    Role role;
    int aside;
};
constexpr Effect Effects[] = {
    {Role::None, 0}, {Role::Highlight, -1}, {Role::Highlight, 1}, {Role::Shadow, 1}};
constexpr Effect Engraved{Role::Highlight, 1};

void DrawCaption(Canvas& canvas, const ButtonFace& face, int shift) {
    const ButtonProperties& properties = face.properties;
    if (properties.caption.empty()) return;
    const Rect area = Moved(face.places.text, shift);
    const auto number = static_cast<std::size_t>(properties.specialEffect);
    Effect effect = number < std::size(Effects) ? Effects[number] : Effects[0];
    Role role = face.state == ButtonState::Hovered ? Role::TextOver : Role::Text;
    if (!properties.enabled) {
        effect = Engraved;
        role = Role::Shadow;
    }
    if (effect.aside) {
        canvas.Text(Moved(area, effect.aside), properties.caption, face.colours[effect.role]);
    }
    canvas.Text(area, properties.caption, face.colours[role]);
}

void DrawEdges(Canvas& canvas, Rect client, const Look& look, const ButtonFace& face, int depth) {
    const bool resting = face.state == ButtonState::Normal && !face.down;
    for (const Edge& edge : resting ? look.edges : look.hovered) {
        if (edge.upperLeft == Role::None) return;
        const Colour first = face.colours[edge.upperLeft];
        const Colour second = face.colours[edge.lowerRight];
        DrawOutline(canvas, client, look.shape, depth++, face.down ? second : first,
                    face.down ? first : second);
    }
}

// The one that the contents are placed for.
const toolkit::SharedPicture& PictureOf(const ButtonProperties& properties) {
    return properties.pictureNormal ? properties.pictureNormal : properties.pictureOver;
}

}  // namespace

Shape ShapeOf(std::int16_t buttonType) {
    return LookOf(buttonType).shape;
}

bool IsTransparent(std::int16_t buttonType) {
    return LookOf(buttonType).fill == Fill::Parent;
}

int WidthBesideCaption(const ButtonProperties& properties) {
    const auto& picture = PictureOf(properties);
    if (!picture || properties.picturePosition > 1) return 0;
    return picture->Extent().width + (properties.caption.empty() ? 0 : PictureGap);
}

Places PlaceContents(const Canvas& canvas, Rect client, const ButtonProperties& properties) {
    const Rect area = Contents(client, LookOf(properties.buttonType));
    const auto& picture = PictureOf(properties);
    const Size image = picture ? picture->Extent() : Size{};
    const bool stacked = properties.picturePosition == 2 || properties.picturePosition == 3;
    const bool behind = properties.picturePosition == 4;
    const bool pictureFirst = properties.picturePosition % 2 == 0;
    const int gap = picture && !properties.caption.empty() && !behind ? PictureGap : 0;
    const int room = area.width - WidthBesideCaption(properties);
    const Size text = properties.caption.empty()
                          ? Size{}
                          : canvas.TextSize(properties.caption, std::max(room, 1));
    // First all in the middle, then both moved apart along one line.
    const auto centred = [&](Size size) {
        return Rect{area.left + (area.width - size.width) / 2,
                    area.top + (area.height - size.height) / 2, size.width, size.height};
    };
    Rect textAt = centred(text);
    Rect pictureAt = centred(image);
    if (picture && !behind) {
        const auto apart = [&](auto start, auto extent) {
            Rect& first = pictureFirst ? pictureAt : textAt;
            Rect& second = pictureFirst ? textAt : pictureAt;
            const int whole = first.*extent + gap + second.*extent;
            first.*start = area.*start + (area.*extent - whole) / 2;
            second.*start = first.*start + first.*extent + gap;
        };
        if (stacked) {
            apart(&Rect::top, &Rect::height);
        } else {
            apart(&Rect::left, &Rect::width);
        }
    }
    return {textAt, {pictureAt.left, pictureAt.top}};
}

void DrawButton(Canvas& canvas, Rect client, const ButtonFace& face) {
    const Look& look = LookOf(face.properties.buttonType);
    const int shift = face.down ? look.shift : 0;
    DrawFill(canvas, client, look, face);
    const bool framed = DrawFrame(canvas, client, look, face);
    DrawPictureOf(canvas, face, shift);
    DrawCaption(canvas, face, shift);
    DrawEdges(canvas, client, look, face, framed ? 1 : 0);
    if (face.focusRect) canvas.FocusRect(Contents(client, look));
}

}  // namespace controls
