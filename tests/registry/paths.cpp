#include <doctest/doctest.h>

#include "registry/fixture.h"

using registry::RegSplitPath;

TEST_CASE("the head of a path is what stands before the first delimiter") {
    std::string text = "A\\B\\C";
    CHECK(RegSplitPath(text, "\\") == "A");
    CHECK(text == "B\\C");
}

TEST_CASE("a text without the delimiter is all head") {
    std::string text = "A";
    CHECK(RegSplitPath(text, "\\") == "A");
    CHECK(text == "");
    CHECK(RegSplitPath(text, "\\") == "");
    CHECK(text == "");
}

TEST_CASE("a delimiter is removed in its whole length") {
    std::string text = "A, B, C";
    CHECK(RegSplitPath(text, ", ") == "A");
    CHECK(text == "B, C");
}

TEST_CASE("a delimiter in front gives an empty head") {
    std::string text = "\\A";
    CHECK(RegSplitPath(text, "\\") == "");
    CHECK(text == "A");
}

TEST_CASE("a delimiter is told apart by upper and lower case") {
    std::string text = "axAb";
    CHECK(RegSplitPath(text, "A") == "ax");
    CHECK(text == "b");
}

TEST_CASE("NUL is a delimiter like any other") {
    std::string text("a\0b", 3);
    CHECK(RegSplitPath(text, std::string_view("\0", 1)) == "a");
    CHECK(text == "b");
}
