#include <doctest/doctest.h>

#include "cleanup/fixture.h"

using cleanup_test::Fixture;

TEST_CASE_FIXTURE(Fixture,
                  "100,000 files in 1,000 folders with 20,000 hits: one listing a folder") {
    for (int folder = 0; folder < 1000; ++folder) {
        const std::string path = "C:\\x\\" + std::to_string(folder) + "\\";
        for (int file = 0; file < 100; ++file) {
            disk.MakeFile(path + std::to_string(file) + (file % 5 == 0 ? ".tmp" : ".txt"));
        }
    }
    const int polls = 110000;
    machine.keyboard.escape.assign(polls, 0);
    Search();
    CHECK(list.Count() == 20000);
    CHECK(frame.lblHinweisTemp.Caption() ==
          "20000 Tempdateien belegen 0 Bytes - Gescannt: 100000 Dateien");
    // The drive, x, its folders, WINDOWS and its Temp, which is also listed by itself.
    CHECK(machine.journal.Calls("FindFirstFileW").size() == 1005);
    CHECK(polls - machine.keyboard.escape.size() == 100000 + 1004);
    Clean();
    CHECK(disk.Find("C:\\x\\0\\0.tmp") == nullptr);
    CHECK(disk.Find("C:\\x\\999\\95.tmp") == nullptr);
    CHECK(disk.Find("C:\\x\\999\\99.txt"));
    CHECK(machine.journal.Calls("DeleteFile").size() == 20000);
    CHECK(list.Count() == 0);
}
