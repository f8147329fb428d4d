#include <doctest/doctest.h>

#include "endtoend/tabs.h"
#include "endtoend/workplace.h"

namespace endtoend {
namespace {

TEST_CASE("each tab shows a picture of its own, and all tabs lie in sight") {
    const Workplace workplace;
    const OpenProgram program(workplace);
    const HWND strip = program.Find("SSTab1");
    const Tabs tabs(strip);
    RECT client = {};
    GetClientRect(strip, &client);
    const int count = static_cast<int>(tabs.Captions().size());
    CHECK(count == 8);
    for (int tab = 0; tab < count; ++tab) {
        CAPTURE(tab);
        CHECK(tabs.Picture(tab) == tab);
        CHECK(tabs.Area(tab).right <= client.right);
    }
}

}  // namespace
}  // namespace endtoend
