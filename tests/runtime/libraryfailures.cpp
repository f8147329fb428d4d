// This suite is linked, as the program is, with the program's own failures of the standard library.
#include <doctest/doctest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "runtime/mistake.h"

TEST_CASE("a text beyond its limit counts as memory that is not there") {
    std::string text = "x";
    CHECK_THROWS_AS(text.append(text.max_size(), 'x'), std::bad_alloc);
    CHECK(text == "x");
}

TEST_CASE("an element beyond the end is a mistake told in the library's words") {
    const std::vector<int> numbers(3);
    std::string told;
    try {
        static_cast<void>(numbers.at(3));
    } catch (const runtime::Mistake& mistake) {
        told = mistake.what();
    }
    CHECK(told.find("vector::_M_range_check") == 0);
}

TEST_CASE("a call of no function is a mistake") {
    const std::function<void()> nothing;
    CHECK_THROWS_AS(nothing(), runtime::Mistake);
}

TEST_CASE("a mistake keeps its words") {
    CHECK(std::string(runtime::Mistake("no such control").what()) == "no such control");
}
