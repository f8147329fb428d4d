#include "cleanup/attributerules.h"

#include "cleanup/namerules.h"

namespace cleanup {

bool AttributesGiveRow(std::uint32_t attributes, std::string_view path, bool deleteThumbs) {
    switch (attributes) {
        case 1:
        case 4:
        case 8:
        case 33:
        case 36:
        case 39:
            return false;
        // Archive, hidden and system, as the shell makes its archives of preview pictures.
        case 38:
            return deleteThumbs && IsThumbs(path);
        default:
            return true;
    }
}

bool AttributesHideFolder(std::uint32_t attributes) {
    return attributes == 22 || attributes == 21 || attributes == 20 || attributes == 18;
}

}  // namespace cleanup
