#include "endtoend/monkey/event.h"

#include <windows.h>

#include "endtoend/randommachine.h"

namespace endtoend {
namespace {

struct Stroke {
    int weight;
    int key;
    std::vector<int> held;
};

// Any letter or digit.
constexpr int AnyCharacter = 0;

const std::vector<Stroke>& Strokes() {
    static const std::vector<Stroke> strokes = {
        {12, VK_TAB, {}},
        {5, VK_TAB, {VK_SHIFT}},
        {5, VK_TAB, {VK_CONTROL}},
        {3, VK_TAB, {VK_CONTROL, VK_SHIFT}},
        {8, VK_DOWN, {}},
        {6, VK_UP, {}},
        {6, VK_RIGHT, {}},
        {5, VK_LEFT, {}},
        {10, VK_SPACE, {}},
        {6, VK_RETURN, {}},
        {7, VK_ESCAPE, {}},
        {4, VK_APPS, {}},
        {3, VK_F10, {VK_SHIFT}},
        {2, VK_F10, {}},
        {2, VK_MENU, {}},
        {2, VK_SPACE, {VK_MENU}},
        {2, VK_HOME, {}},
        {2, VK_END, {}},
        {2, VK_PRIOR, {}},
        {2, VK_NEXT, {}},
        {2, VK_DELETE, {}},
        {2, VK_BACK, {}},
        {2, VK_F5, {}},
        {1, VK_F1, {}},
        {1, VK_F2, {}},
        {1, VK_F4, {}},
        {1, VK_F4, {VK_MENU}},
        {1, VK_DOWN, {VK_MENU}},
        {1, 'A', {VK_CONTROL}},
        {1, 'C', {VK_CONTROL}},
        {1, 'V', {VK_CONTROL}},
        {1, 'X', {VK_CONTROL}},
        {1, 'Z', {VK_CONTROL}},
        {8, AnyCharacter, {}},
        {3, AnyCharacter, {VK_MENU}},
    };
    return strokes;
}

const Stroke& RandomStroke(Dice& dice) {
    std::size_t all = 0;
    for (const Stroke& stroke : Strokes()) all += static_cast<std::size_t>(stroke.weight);
    std::size_t left = dice.Below(all);
    for (const Stroke& stroke : Strokes()) {
        if (left < static_cast<std::size_t>(stroke.weight)) return stroke;
        left -= static_cast<std::size_t>(stroke.weight);
    }
    return Strokes().front();
}

Deed RandomDeed(Dice& dice) {
    const std::size_t chance = dice.Below(100);
    if (chance < 48) return Deed::Click;
    if (chance < 55) return Deed::DoubleClick;
    if (chance < 67) return Deed::RightClick;
    if (chance < 70) return Deed::Drag;
    return Deed::Key;
}

// One control in sixty leads to another page, and one in forty to a dialog: that is too seldom.
const char* Favoured(Dice& dice) {
    const std::size_t chance = dice.Below(100);
    if (chance < 10) return "SysTabControl32";
    if (chance < 25) return "chameleonButton";
    return chance < 37 ? "SysListView32" : "";
}

std::uint32_t Thousandths(Dice& dice) {
    return static_cast<std::uint32_t>(dice.Below(1000));
}

}  // namespace

Event EventOf(std::uint32_t seed, std::uint32_t number) {
    Dice dice(seed * 1000003u + number);
    Event event;
    event.deed = RandomDeed(dice);
    event.onControl = dice.Percent(80);
    event.favoured = Favoured(dice);
    event.control = static_cast<std::uint32_t>(dice.Below(1000000));
    event.x = Thousandths(dice);
    event.y = Thousandths(dice);
    event.toX = Thousandths(dice);
    event.toY = Thousandths(dice);
    const Stroke& stroke = RandomStroke(dice);
    const std::size_t character = dice.Below(36);
    event.held = stroke.held;
    event.hurried = dice.Percent(35);
    event.key = stroke.key != AnyCharacter ? stroke.key
                : character < 10           ? '0' + static_cast<int>(character)
                                           : 'A' + static_cast<int>(character) - 10;
    return event;
}

std::string NameOfKey(const Event& event) {
    std::string name;
    for (const int held : event.held) {
        name += held == VK_SHIFT ? "Shift+" : held == VK_CONTROL ? "Ctrl+" : "Alt+";
    }
    struct Named {
        int key;
        const char* name;
    };
    constexpr Named Names[] = {
        {VK_TAB, "Tab"},        {VK_DOWN, "Down"},      {VK_UP, "Up"},
        {VK_RIGHT, "Right"},    {VK_LEFT, "Left"},      {VK_SPACE, "Space"},
        {VK_RETURN, "Enter"},   {VK_ESCAPE, "Escape"},  {VK_APPS, "Menu key"},
        {VK_MENU, "Alt"},       {VK_HOME, "Home"},      {VK_END, "End"},
        {VK_PRIOR, "Page up"},  {VK_NEXT, "Page down"}, {VK_DELETE, "Delete"},
        {VK_BACK, "Backspace"},
    };
    for (const Named& named : Names) {
        if (named.key == event.key) return name + named.name;
    }
    if (event.key >= VK_F1 && event.key <= VK_F12) {
        return name + 'F' + std::to_string(event.key - VK_F1 + 1);
    }
    return name + static_cast<char>(event.key);
}

}  // namespace endtoend
