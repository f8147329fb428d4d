#include <doctest/doctest.h>

#include "platform/simulated/files.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"

using platform::simulated::Machine;

TEST_CASE("files that are read, removed and written whole fail on request and stay as they are") {
    Machine machine;
    machine.files.Put("C:\\x\\a.inf", "old");
    machine.faults.FailOn("C:\\x\\", runtime::PermissionDenied);
    CHECK_THROWS_AS(machine.files.Read("C:\\x\\a.inf"), runtime::Failure);
    CHECK_THROWS_AS(machine.files.Remove("C:\\x\\a.inf", true), runtime::Failure);
    CHECK_THROWS_AS(machine.files.WriteText("C:\\x\\a.inf", "new"), runtime::Failure);
    machine.faults.Clear();
    CHECK(machine.files.Content("C:\\x\\a.inf") == "old");
    machine.files.MakeReadOnly("C:\\x");
    CHECK_THROWS_AS(machine.files.Remove("C:\\x\\a.inf", true), runtime::Failure);
    CHECK_THROWS_AS(machine.files.WriteText("C:\\x\\a.inf", "new"), runtime::Failure);
    CHECK(machine.files.Read("C:\\x\\a.inf") == "old");
}

TEST_CASE("backslashes alone lead to no folder of the disk") {
    Machine machine;
    machine.files.Put("C:\\x\\a.inf", "old");
    for (const char* path : {"\\", "\\\\\\", "\\\\\\\\"}) {
        CAPTURE(path);
        CHECK(machine.disk.Find(path) == nullptr);
        CHECK(machine.folders.LongPath(path) == path);
        CHECK(machine.folders.ShortPath(path, 260) == "");
    }
}
