#include "platform/clipboard.h"

#include <doctest/doctest.h>

#include "contract/machine.h"

TEST_CASE("the clipboard holds the text that was set last, each character of it") {
    contract::TestMachine machine;
    platform::Clipboard& clipboard = machine.Services().clipboard;
    CHECK(clipboard.SetText("zuvor"));
    CHECK(machine.ClipboardText() == "zuvor");
    const std::string text = "Größe:\t37,2 GB\r\n\xE2\x82\xAC \xD0\x96 \xF0\x9F\x98\x80\r\n";
    CHECK(clipboard.SetText(text));
    CHECK(machine.ClipboardText() == text);
    CHECK(clipboard.SetText(""));
    CHECK(machine.ClipboardText() == "");
}
