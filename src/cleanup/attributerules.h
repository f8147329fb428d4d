#pragma once

#include <cstdint>
#include <string_view>

namespace cleanup {

// Whether a file or folder with these attributes gets a row. They are taken whole, on purpose: a
// file that is also compressed always passes, a hidden one passes, a read-only one does not.
bool AttributesGiveRow(std::uint32_t attributes, std::string_view path, bool deleteThumbs);

// Whether a folder with these attributes is left out. Here, too, the value is taken whole: a hidden
// folder that is to be archived is searched.
bool AttributesHideFolder(std::uint32_t attributes);

}  // namespace cleanup
