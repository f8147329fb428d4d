#include "cleanup/literalpath.h"

#include <doctest/doctest.h>

#include <string>

using cleanup::IsTakenLiterally;

TEST_CASE("a plain path is taken as it is spelled") {
    for (const char* path : {"C:\\a\\b.txt", "c:\\", "C:\\Größe\\ä ö.tmp", "C:\\.a\\.tmp",
                             "\\\\server\\share\\b", "C:\\a b\\c. d", ""}) {
        CAPTURE(std::string(path));
        CHECK(IsTakenLiterally(path));
    }
}

TEST_CASE("dots and blanks behind a part are dropped, wherever it stands") {
    for (const char* path : {"C:\\a.", "C:\\a ", "C:\\a.\\b", "C:\\a \\b", "C:\\a\\..", "a. "}) {
        CAPTURE(std::string(path));
        CHECK_FALSE(IsTakenLiterally(path));
    }
}

TEST_CASE("signs for many names are not taken as they stand") {
    CHECK_FALSE(IsTakenLiterally("C:\\x\\?.tmp"));
    CHECK_FALSE(IsTakenLiterally("C:\\x\\*"));
    CHECK_FALSE(IsTakenLiterally("C:\\x?\\a.tmp"));
}

TEST_CASE("the names of devices are taken for devices, whatever stands behind them") {
    for (const char* name : {"con", "PRN", "Aux", "nul", "com1", "COM9", "lpt1", "aux.tmp",
                             "nul.x.y", "com1 .tmp", "lpt3:x"}) {
        CAPTURE(std::string(name));
        CHECK_FALSE(IsTakenLiterally("C:\\x\\" + std::string(name)));
        CHECK_FALSE(IsTakenLiterally("C:\\" + std::string(name) + "\\x.tmp"));
    }
    for (const char* name : {"com", "lpt", "com0", "com10", "con1", "nul9", "comx", "console.tmp",
                             "a.com1", "x.aux"}) {
        CAPTURE(std::string(name));
        CHECK(IsTakenLiterally("C:\\x\\" + std::string(name)));
    }
}
