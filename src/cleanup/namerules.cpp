#include "cleanup/namerules.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "cleanup/pathnames.h"
#include "runtime/text.h"

namespace cleanup {
namespace {

// Compared as they stand, on purpose: "x.TMP" is no temporary file. Question marks are no wildcards
// here, and no name can hold one, so "??~" never fits, nor does the name below.
// Each has three characters, which are compared one by one: each file of a disk meets them all.
constexpr char Extensions[][4] = {"---", "tmp", "_mp", "old", "bak",
                                  "chk", "gid", "dmp", "syd", "??~"};
constexpr std::array<std::string_view, 2> Names = {"mscreate.dir", "0???????.nch"};

bool IsTempExtension(std::string_view extension) {
    if (extension.size() != 3) return false;
    return std::any_of(std::begin(Extensions), std::end(Extensions), [&](const char* one) {
        return extension[0] == one[0] && extension[1] == one[1] && extension[2] == one[2];
    });
}

bool IsThumbsName(std::string_view name) {
    return runtime::EqualsIgnoringCase(name, "THUMBS.DB");
}

}  // namespace

bool IsTempFile(std::string_view path, bool deleteThumbs) {
    const std::string_view name = GetFileName(path);
    const std::string_view extension = ExtensionOf(name);
    const auto isName = [&](std::string_view other) {
        return runtime::EqualsIgnoringCase(name, other);
    };
    return IsTempExtension(extension) || std::any_of(Names.begin(), Names.end(), isName) ||
           extension.starts_with('~') || name.starts_with('~') || extension.ends_with('~') ||
           name.starts_with("--") || (deleteThumbs && IsThumbsName(name));
}

bool IsThumbs(std::string_view path) {
    return IsThumbsName(GetFileName(path));
}

}  // namespace cleanup
