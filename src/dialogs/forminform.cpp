#include "dialogs/forminform.h"

#include <algorithm>

namespace dialogs {
namespace {

// One direction: a stretch of `size` in the middle of the parent's, within the screen's.
float Centred(float size, float parentStart, float parentSize, float screenStart,
              float screenSize) {
    const float centred = parentStart + (parentSize - size) / 2;
    return std::max(screenStart, std::min(centred, screenStart + screenSize - size));
}

}  // namespace

void fFormInFormZentrieren(toolkit::Form& objForm, const toolkit::Form& objParent,
                           const toolkit::Bounds& workArea) {
    const bool minimised = objParent.State() == toolkit::WindowState::Minimised;
    const toolkit::Bounds& over = minimised ? workArea : objParent.Place();
    const toolkit::Bounds& own = objForm.Place();
    const float left = Centred(own.width, over.left, over.width, workArea.left, workArea.width);
    const float top = Centred(own.height, over.top, over.height, workArea.top, workArea.height);
    objForm.SetLeft(left);
    objForm.SetTop(top);
}

}  // namespace dialogs
