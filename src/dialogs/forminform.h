#pragma once

#include "toolkit/form.h"

namespace dialogs {

// Centres a dialog, which must be loaded as its size is known only then, over another form and
// keeps it within `workArea` (twips). A dialog larger than the work area starts at its left or top
// edge. Over a minimised form, which has no place on the screen, it is centred on the work area.
void fFormInFormZentrieren(toolkit::Form& objForm, const toolkit::Form& objParent,
                           const toolkit::Bounds& workArea);

}  // namespace dialogs
