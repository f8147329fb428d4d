#pragma once

#include "toolkit/geometry.h"

namespace toolkit {

class Control;
class TextMeasure;

// The size at which a control shows all of its caption, in pixels. Of a frame and of a tab strip it
// is what their own captions take, without the controls that stand in them.
Size NaturalSize(const Control& control, const TextMeasure& measure);

// The height of one line of text.
int LineHeight(const TextMeasure& measure);

}  // namespace toolkit
