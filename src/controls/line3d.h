#pragma once

#include "toolkit/drawncontrol.h"

namespace controls {

// An engraved line over the control's whole width. The keyboard passes it by.
class Line3D final : public toolkit::DrawnControl {
  public:
    Line3D(toolkit::Form& form, std::string name);

    const char* WindowClass() const override { return "Line3D"; }
    // 30 twips high, which are two pixels at 96 dots per inch; the layout gives it its width.
    toolkit::Size NaturalSize(toolkit::Size text) const override;
    void Paint(toolkit::Canvas& canvas, toolkit::Rect client) override;
};

}  // namespace controls
