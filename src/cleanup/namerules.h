#pragma once

#include <string_view>

namespace cleanup {

// Whether the path's last part is the name of a temporary file. `deleteThumbs` counts the archives
// of preview pictures among them. Letters' case matters, but for three whole names.
bool IsTempFile(std::string_view path, bool deleteThumbs);

// Whether the path's last part is "Thumbs.db", whatever its letters' case.
bool IsThumbs(std::string_view path);

}  // namespace cleanup
