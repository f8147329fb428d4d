#pragma once

#include <memory>
#include <string>

#include "toolkit/geometry.h"

namespace toolkit {

// An icon or a bitmap. What it is made of knows only the platform that made it.
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
