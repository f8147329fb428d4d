#include "dialogs/forminform.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"

using dialogs::fFormInFormZentrieren;
using toolkit::Bounds;

namespace {

const Bounds Screen{0, 0, 15360, 11100};

// Where a dialog of that size comes to lie over a form at that place.
Bounds Centred(float width, float height, Bounds parentPlace, const Bounds& workArea = Screen,
               toolkit::WindowState parentState = toolkit::WindowState::Normal) {
    platform::simulated::Machine machine;
    toolkit::Form parent(machine.forms, "frmMain", "", parentPlace);
    parent.SetState(parentState);
    toolkit::Form dialog(machine.forms, "frmDialog", "", {30, 45, width, height});
    fFormInFormZentrieren(dialog, parent, workArea);
    CHECK(parent.Place() == parentPlace);
    return dialog.Place();
}

}  // namespace

TEST_CASE("a dialog is centred over its parent") {
    CHECK(Centred(3000, 1500, {3000, 1800, 9000, 6000}) == Bounds{6000, 4050, 3000, 1500});
}

TEST_CASE("a dialog larger than its parent is centred over it too") {
    CHECK(Centred(9000, 6000, {6000, 4500, 3000, 1500}) == Bounds{3000, 2250, 9000, 6000});
}

TEST_CASE("a dialog over a form at the screen's right or bottom edge stays on the screen") {
    CHECK(Centred(9000, 6000, {14000, 10000, 9990, 7920}) == Bounds{6360, 5100, 9000, 6000});
}

TEST_CASE("a dialog over a form at the screen's left or top edge stays on the screen") {
    CHECK(Centred(3000, 1500, {-9000, -7000, 9990, 7920}) == Bounds{0, 0, 3000, 1500});
}

TEST_CASE("a dialog larger than the screen starts at its left and top edge") {
    CHECK(Centred(16000, 12000, {3000, 1800, 9000, 6000}) == Bounds{0, 0, 16000, 12000});
}

TEST_CASE("a task bar on the left or the top is not covered") {
    const Bounds beside{900, 450, 14460, 10650};
    CHECK(Centred(3000, 1500, {0, 0, 3000, 1500}, beside) == Bounds{900, 450, 3000, 1500});
    CHECK(Centred(16000, 12000, {0, 0, 3000, 1500}, beside) == Bounds{900, 450, 16000, 12000});
}

TEST_CASE("a dialog over a minimised form is centred on the screen") {
    CHECK(Centred(3360, 1100, {-480000, -480000, 2400, 360}, Screen,
                  toolkit::WindowState::Minimised) == Bounds{6000, 5000, 3360, 1100});
}

TEST_CASE("a dialog over a maximised form is centred over it") {
    CHECK(Centred(3000, 1100, {-60, -60, 15480, 11220}, Screen, toolkit::WindowState::Maximised) ==
          Bounds{6180, 5000, 3000, 1100});
}
