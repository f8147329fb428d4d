#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/geometry.h"

namespace toolkit {

// An icon or a bitmap. What it is made of knows only who made it: the platform, or PixelPicture.
class Picture {
  public:
    enum class Kind { Bitmap, Icon };

    Picture(Kind kind, Size size) : kind_(kind), size_(size) {}
    virtual ~Picture() = default;

    Kind What() const { return kind_; }
    Size Extent() const { return size_; }

  private:
    Kind kind_;
    Size size_;
};

// The pixels of a rectangle, row by row from the top, each as 0x00RRGGBB: the other way round than
// a Colour, as the platform keeps them.
using Pixels = std::vector<std::uint32_t>;

// A bitmap of the program's own pixels, which needs no platform.
class PixelPicture final : public Picture {
  public:
    // As many pixels as the size has.
    PixelPicture(Size size, Pixels pixels)
        : Picture(Kind::Bitmap, size), pixels_(std::move(pixels)) {}

    const Pixels& Content() const { return pixels_; }

  private:
    Pixels pixels_;
};

// nullptr where there is none.
using SharedPicture = std::shared_ptr<const Picture>;

// A font by its properties; one without a name stands for the font of the surroundings.
struct Font {
    std::string name;
    int points = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const Font&) const = default;
};

}  // namespace toolkit
