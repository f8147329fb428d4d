#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/canvas.h"
#include "toolkit/picture.h"

namespace controls {

// The properties of a control as its form keeps them: a flat list of keys, in the order of their
// writing, each with a text or a picture. Numbers are kept as text, truth values as -1 and 0,
// colours as "&H" and hexadecimal digits.
class PropertyStore {
  public:
    struct Entry {
        std::string key;
        std::string text;
        toolkit::SharedPicture picture;
    };

    PropertyStore() = default;
    // One "KEY=text" a line; the text begins behind the first equals sign. A line without one is no
    // property, and of two lines with the same key the first counts.
    explicit PropertyStore(std::string_view lines);

    const std::vector<Entry>& Entries() const { return entries_; }

    // nullptr when the key is not there. Keys are compared letter by letter.
    const Entry* Find(std::string_view key) const;
    // The number that the key's text stands for; nothing when the key is absent, when its text is
    // no number, or when that has more than 32 bits. Halves round to the even neighbour.
    std::optional<std::int64_t> Number(std::string_view key) const;
    // The same for a colour, whose hexadecimal digits are bits: "&H8000" is 0x8000 and no negative
    // number of 16 bits.
    std::optional<toolkit::Colour> Colour(std::string_view key) const;
    // Whether the key's text is "True", "False" or a number, which is false when it is 0; nothing
    // otherwise. Capitals do not matter.
    std::optional<bool> Truth(std::string_view key) const;

    // Takes the place of an entry with the same key; otherwise comes last.
    void Write(std::string_view key, std::string text, toolkit::SharedPicture picture = nullptr);
    void Write(std::string_view key, std::int64_t number);

  private:
    std::vector<Entry> entries_;
};

}  // namespace controls
