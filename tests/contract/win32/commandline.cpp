#include "cmd/commandline.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <shellapi.h>

#include <random>

#include "platform/win32/console/utf16.h"

namespace win32 = platform::win32;

// Another function of the system splits a command line by the same rules.
TEST_CASE("random command lines are split as the system splits them") {
    std::mt19937 dice(1);
    constexpr std::string_view parts = "ab\\\\\\\"\"\"  \t/:";
    int many = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string line = round % 2 == 0 ? "x.exe" : "\"C:\\a b\\x.exe\"";
        line += ' ';
        for (std::size_t length = dice() % 20; length > 0; --length) {
            line += parts[dice() % parts.size()];
        }
        CAPTURE(line);
        int count = 0;
        LPWSTR* split = CommandLineToArgvW(win32::ToUnits(line).c_str(), &count);
        std::vector<std::string> expected;
        for (int i = 1; i < count; ++i) expected.push_back(win32::FromUnits(split[i]));
        LocalFree(split);
        CHECK(cmd::SplitCommandLine(line) == expected);
        if (count > 3) ++many;
    }
    CHECK(many > 1000);
}
