#include "platform/autostart.h"

#include <doctest/doctest.h>

#include "contract/machine.h"
#include "platform/registry.h"

using namespace std::string_literals;

TEST_CASE("the autostart entry is the quoted path in the user's Run key") {
    contract::TestMachine machine;
    auto& autostart = machine.Services().autostart;
    const auto command = [&] {
        const auto stored =
            machine.StoredAt(platform::Registry::CurrentUser,
                             "Software\\Microsoft\\Windows\\CurrentVersion\\Run", contract::Title);
        REQUIRE(stored);
        CHECK(stored->type == platform::Registry::String);
        return stored->bytes;
    };
    CHECK(autostart.AutoStartAdd("C:\\Eigene Programme\\Öl", contract::Title, "Quillmore"));
    CHECK(command() == "\"C:\\Eigene Programme\\\xD6l\\Quillmore.exe\"\0"s);
    CHECK(autostart.AutoStartAdd("C:", contract::Title, "Quillmore"));
    CHECK(command() == "\"C:\\Quillmore.exe\"\0"s);
    CHECK(autostart.AutoStartAdd("D:\\", contract::Title, "Quillmore"));
    CHECK(command() == "\"D:\\Quillmore.exe\"\0"s);
}
