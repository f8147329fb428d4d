#include "platform/simulated/journal.h"

#include <doctest/doctest.h>

#include "keys.h"

using namespace platform_test;
using platform::simulated::DwordValue;
using Lines = std::vector<std::string>;

TEST_CASE_FIXTURE(Keys, "opening and closing show path, access, result and number") {
    registry.MakeKey(HKLM, "SYSTEM\\Select");
    auto key = Opened(HKLM, "SYSTEM\\Select");
    auto sub = Opened(key, "", Registry::MaySetValue);
    OpenResult(HKCU, "absent", 0x04);
    registry.Close(key);
    registry.Close(sub);
    registry.Close(4 * 77);
    CHECK(machine.journal.Lines() == Lines{
                                         "RegOpenKeyExA HKLM \"SYSTEM\\Select\" 0x3F -> 0 #1",
                                         "RegOpenKeyExA #1 \"\" 0x02 -> 0 #2",
                                         "RegOpenKeyExA HKCU \"absent\" 0x04 -> 2",
                                         "RegCloseKey #1 -> 0",
                                         "RegCloseKey #2 -> 0",
                                         "RegCloseKey #77 -> 6",
                                     });
}

TEST_CASE_FIXTURE(Keys, "creating and deleting show their names and results") {
    CreateResult(HKCR, "ä");
    registry.RemoveValue(HKCR, "v");
    registry.RemoveKey(HKCR, "ä");
    CHECK(machine.journal.Text() ==
          "RegCreateKeyExA HKCR \"ä\" 0x3F -> 0 #1\n"
          "RegDeleteValueA HKCR \"v\" -> 2\n"
          "RegDeleteKeyA HKCR \"ä\" -> 0\n");
}

TEST_CASE_FIXTURE(Keys, "a query shows type and size, and the data when they were asked for") {
    registry.Put(HKLM, "", "MTU", DwordValue(1500));
    SizeResult(HKLM, "MTU");
    std::uint8_t buffer[4];
    std::uint32_t type = 0;
    std::uint32_t size = 4;
    registry.Query(HKLM, "MTU", type, buffer, size);
    size = 2;
    registry.Query(HKLM, "MTU", type, buffer, size);
    SizeResult(HKLM, "absent");
    CHECK(machine.journal.Lines() ==
          Lines{
              "RegQueryValueExA HKLM \"MTU\" -> 0 type 4 size 4",
              "RegQueryValueExA HKLM \"MTU\" -> 0 type 4 size 4 data 1500",
              "RegQueryValueExA HKLM \"MTU\" -> 234 type 4 size 4",
              "RegQueryValueExA HKLM \"absent\" -> 2",
          });
}

TEST_CASE_FIXTURE(Keys, "setting shows numbers as numbers, texts as texts and bytes as bytes") {
    SetText(HKCU, "n", "\xFF\xFF\xFF\xFF", Registry::Dword);
    SetText(HKCU, "t", "gr\xFC\xDF\r\n");
    SetText(HKCU, "m", std::string_view("a\0b\0", 4), Registry::MultiString);
    SetText(HKCU, "b", "\x01\xAB", Registry::Binary);
    SetText(HKCU, "short", "\x01", Registry::Dword);
    SetText(HKCU, "empty", "", Registry::Binary);
    SetText(HKCU, "long", std::string(33, 'A'), Registry::Binary);
    std::string longData = "hex";
    for (int i = 0; i < 32; ++i) longData += " 41";
    CHECK(machine.journal.Lines() ==
          Lines{
              "RegSetValueExA HKCU \"n\" type 4 size 4 data 4294967295 -> 0",
              "RegSetValueExA HKCU \"t\" type 1 size 6 data \"grüß\\r\\n\" -> 0",
              "RegSetValueExA HKCU \"m\" type 7 size 4 data \"a\\0b\\0\" -> 0",
              "RegSetValueExA HKCU \"b\" type 3 size 2 data hex 01 AB -> 0",
              "RegSetValueExA HKCU \"short\" type 4 size 1 data hex 01 -> 0",
              "RegSetValueExA HKCU \"empty\" type 3 size 0 data hex -> 0",
              "RegSetValueExA HKCU \"long\" type 3 size 33 data " + longData + " ... -> 0",
          });
}

TEST_CASE_FIXTURE(Keys, "calls are found by their whole name") {
    OpenResult(HKLM, "");
    machine.tray.SetIcon();
    CHECK(machine.journal.Calls("RegOpenKeyExA").size() == 1);
    CHECK(machine.journal.Calls("RegOpenKey").empty());
    CHECK(machine.journal.Calls("Tray.SetIcon").size() == 1);
}

TEST_CASE_FIXTURE(Keys, "with recording off calls are counted and not written down") {
    machine.journal.Record(false);
    OpenResult(HKLM, "");
    machine.tray.SetTip("x");
    CHECK(machine.journal.Lines().empty());
    CHECK(machine.journal.Count() == 2);
    machine.journal.Record(true);
    OpenResult(HKLM, "");
    CHECK(machine.journal.Text() == "RegOpenKeyExA HKLM \"\" 0x3F -> 0 #2\n");
}

TEST_CASE("a line is made only when it is recorded") {
    platform::simulated::Journal journal;
    int made = 0;
    auto line = [&] { return "Call " + std::to_string(++made); };
    journal.Record(false);
    journal.Finish(journal.Note(line), line);
    CHECK(made == 0);
    journal.Record(true);
    journal.Finish(journal.Note(line), line);
    CHECK(journal.Text() == "Call 1 -> Call 2\n");
}

TEST_CASE("a line that was cleared before its call ended is not finished on another") {
    platform::simulated::Journal journal;
    auto outer = journal.Note([] { return std::string("Outer"); });
    journal.Clear();
    auto inner = journal.Note([] { return std::string("Inner"); });
    journal.Finish(inner, [] { return std::string("2"); });
    journal.Finish(outer, [] { return std::string("1"); });
    CHECK(journal.Text() == "Inner -> 2\n");
    CHECK(journal.Count() == 1);
}

TEST_CASE("a call noted while recording was off is not finished on the line before") {
    platform::simulated::Journal journal;
    journal.Note([] { return std::string("First"); });
    journal.Record(false);
    auto silent = journal.Note([] { return std::string("Silent"); });
    journal.Record(true);
    journal.Finish(silent, [] { return std::string("1"); });
    CHECK(journal.Text() == "First\n");
}
