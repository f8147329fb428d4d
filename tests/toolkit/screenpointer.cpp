#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "toolkit/form.h"
#include "toolkit/journal.h"

using namespace toolkit;

namespace {

struct Host final : NotingHost {
    int changes = 0;

  private:
    void ScreenPointerChanged() override { ++changes; }
};

struct PointerFixture {
    Host host;
    Form main{host, "frmMain", "", {}};
    Form dialog{host, "frmTest", "", {}};
};

}  // namespace

TEST_CASE_FIXTURE(PointerFixture, "the screen's pointer covers the own one of every form") {
    CHECK(host.ScreenPointer() == DefaultPointer);
    host.SetScreenPointer(Hourglass);
    CHECK(main.ShownPointer() == Hourglass);
    CHECK(dialog.ShownPointer() == Hourglass);
    CHECK(main.Pointer() == DefaultPointer);
    host.SetScreenPointer(DefaultPointer);
    CHECK(main.ShownPointer() == DefaultPointer);
    CHECK(dialog.ShownPointer() == DefaultPointer);
}

TEST_CASE_FIXTURE(PointerFixture,
                  "a form's own pointer stays under the screen's and comes back to light") {
    main.SetPointer(Hourglass);
    CHECK(main.ShownPointer() == Hourglass);
    CHECK(dialog.ShownPointer() == DefaultPointer);
    {
        const ScreenHourglass hourglass(host);
        CHECK(dialog.ShownPointer() == Hourglass);
    }
    CHECK(main.ShownPointer() == Hourglass);
    CHECK(dialog.ShownPointer() == DefaultPointer);
    host.SetScreenPointer(2);
    CHECK(main.ShownPointer() == 2);
}

TEST_CASE_FIXTURE(PointerFixture, "the host hears of the screen's pointer when it is another one") {
    host.SetScreenPointer(DefaultPointer);
    CHECK(host.changes == 0);
    host.SetScreenPointer(Hourglass);
    host.SetScreenPointer(Hourglass);
    CHECK(host.changes == 1);
    host.SetScreenPointer(DefaultPointer);
    CHECK(host.changes == 2);
}

TEST_CASE_FIXTURE(PointerFixture,
                  "the screen's hourglass ends with the default, also by a failure") {
    const auto fail = [&] {
        const ScreenHourglass hourglass(host);
        CHECK(host.ScreenPointer() == Hourglass);
        throw runtime::Failure(runtime::OutOfMemory);
    };
    CHECK_THROWS_AS(fail(), runtime::Failure);
    CHECK(host.ScreenPointer() == DefaultPointer);
    host.SetScreenPointer(Hourglass);
    {
        const ScreenHourglass hourglass(host);
        CHECK(host.ScreenPointer() == Hourglass);
    }
    CHECK(host.ScreenPointer() == DefaultPointer);
}
