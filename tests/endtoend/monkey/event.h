#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What the monkey does next: drawn from the seed and the event's number alone, whatever the screen
// shows.
namespace endtoend {

enum class Deed { Click, DoubleClick, RightClick, Drag, Key };

struct Event {
    Deed deed = Deed::Click;
    // One of the controls that can be seen, by its number modulo theirs, or the whole window. Of
    // the controls only those of that class, if there is any.
    bool onControl = true;
    const char* favoured = "";
    std::uint32_t control = 0;
    // Where in it, and where a drag ends, in thousandths.
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    std::uint32_t toX = 0;
    std::uint32_t toY = 0;
    int key = 0;
    std::vector<int> held;
    // The next one comes before anything of this one can be seen.
    bool hurried = false;
};

Event EventOf(std::uint32_t seed, std::uint32_t number);

std::string NameOfKey(const Event& event);

}  // namespace endtoend
