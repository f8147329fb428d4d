#pragma once

#include <string_view>

#include "toolkit/picture.h"

namespace app {

// The small picture of a button below the pages, by the button's name; nullptr for one without.
// Its background has the mask colour of a new button. Drawn in the source, sign by sign, so that no
// platform is needed to load it.
toolkit::SharedPicture ButtonPicture(std::string_view button);

}  // namespace app
