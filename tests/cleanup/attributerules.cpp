#include "cleanup/attributerules.h"

#include <doctest/doctest.h>

#include <set>

using cleanup::AttributesGiveRow;
using cleanup::AttributesHideFolder;

TEST_CASE("six attribute values give no row, all others do, by the whole value") {
    const std::set<std::uint32_t> none = {1, 4, 8, 33, 36, 38, 39};
    for (std::uint32_t attributes = 0; attributes < 0x10000; ++attributes) {
        CAPTURE(attributes);
        REQUIRE(AttributesGiveRow(attributes, "C:\\a.tmp", true) == !none.contains(attributes));
    }
}

TEST_CASE("a hidden, archived system file gives a row only as Thumbs.db, when asked for") {
    CHECK(AttributesGiveRow(38, "C:\\x\\Thumbs.db", true));
    CHECK(AttributesGiveRow(38, "C:\\x\\THUMBS.DB", true));
    CHECK_FALSE(AttributesGiveRow(38, "C:\\x\\Thumbs.db", false));
    CHECK_FALSE(AttributesGiveRow(38, "C:\\x\\a.tmp", true));
    CHECK_FALSE(AttributesGiveRow(39, "C:\\x\\Thumbs.db", true));
}

TEST_CASE("four attribute values leave a folder out, all others do not") {
    const std::set<std::uint32_t> hidden = {22, 21, 20, 18};
    for (std::uint32_t attributes = 0; attributes < 0x10000; ++attributes) {
        CAPTURE(attributes);
        REQUIRE(AttributesHideFolder(attributes) == hidden.contains(attributes));
    }
}
