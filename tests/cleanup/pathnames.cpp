#include "cleanup/pathnames.h"

#include <doctest/doctest.h>

using cleanup::GetFileName;

namespace {

std::string_view GetExtensionName(std::string_view path) {
    return cleanup::ExtensionOf(GetFileName(path));
}

}  // namespace

TEST_CASE("the file name is the last part of the path, backslashes behind it do not count") {
    CHECK(GetFileName("C:\\a\\b.txt") == "b.txt");
    CHECK(GetFileName("C:\\a\\") == "a");
    CHECK(GetFileName("C:\\a\\\\") == "a");
    CHECK(GetFileName("b.txt") == "b.txt");
    CHECK(GetFileName("a/b.txt") == "b.txt");
    CHECK(GetFileName("\\\\server\\share\\b") == "b");
    CHECK(GetFileName("C:\\Größe\\ä ö.tmp") == "ä ö.tmp");
}

TEST_CASE("a drive and its root have no file name") {
    CHECK(GetFileName("c:") == "");
    CHECK(GetFileName("c:\\") == "");
    CHECK(GetFileName("c:x.txt") == "x.txt");
    CHECK(GetFileName("\\") == "");
    CHECK(GetFileName("") == "");
}

TEST_CASE("the extension stands behind the last dot of the last part") {
    CHECK(GetExtensionName("C:\\a\\b.txt") == "txt");
    CHECK(GetExtensionName("C:\\a\\b.tar.gz") == "gz");
    CHECK(GetExtensionName("C:\\a\\.tmp") == "tmp");
    CHECK(GetExtensionName("C:\\a.tmp\\") == "tmp");
    CHECK(GetExtensionName("C:\\a\\b.TMP") == "TMP");
}

TEST_CASE("a name without a dot, or with its only dot at the end, has no extension") {
    CHECK(GetExtensionName("C:\\a\\b") == "");
    CHECK(GetExtensionName("C:\\a\\b.") == "");
    CHECK(GetExtensionName("C:\\a.tmp\\b") == "");
    CHECK(GetExtensionName("c:") == "");
    CHECK(GetExtensionName("c:\\") == "");
    CHECK(GetExtensionName("") == "");
}
