#include <doctest/doctest.h>

#include "registry/fixture.h"

// Which calls of the platform a function makes, and which handles it leaves open.
using namespace registry_tests;

namespace {

struct Calls : RegistryOnMachine {
    Calls() {
        Put("Number", DwordValue(1));
        Put("Text", TextValue("x"));
        Put("Other", Stored(Service::None, "abcd"));
    }

    // The names of the calls since the last time, in order, each with one blank behind.
    std::string Names() {
        std::string names;
        for (const std::string& line : machine.journal.Lines()) {
            names += line.substr(0, line.find(' ')) + ' ';
        }
        machine.journal.Clear();
        return names;
    }
    int Open() const { return machine.registry.OpenHandles(); }
};

}  // namespace

TEST_CASE_FIXTURE(Calls, "the key test opens the key with all rights and leaves it open") {
    registry.RegKeyPresent(HKLM, Key);
    REQUIRE(machine.journal.Lines().size() == 1);
    CHECK(machine.journal.Lines()[0].find("0x3F") != std::string::npos);
    CHECK(Names() == "RegOpenKeyExA ");
    CHECK(Open() == 1);
}

TEST_CASE_FIXTURE(Calls, "the value test opens, asks once and leaves the key open") {
    registry.RegValuePresent(HKLM, Key, "Number");
    CHECK(machine.journal.Lines()[0].find("0x3F") != std::string::npos);
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA ");
    CHECK(Open() == 1);
    registry.RegValuePresent(HKLM, Key, "Nothing");
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA ");
    CHECK(Open() == 2);
}

TEST_CASE_FIXTURE(Calls, "a test of an absent key opens nothing") {
    registry.RegKeyPresent(HKLM, "Software\\Nothing");
    registry.RegValuePresent(HKLM, "Software\\Nothing", "Number");
    CHECK(Names() == "RegOpenKeyExA RegOpenKeyExA ");
    CHECK(Open() == 0);
}

TEST_CASE_FIXTURE(Calls, "a read asks for the size, then for the data, and closes the key") {
    Read("Number");
    CHECK(machine.journal.Lines()[0].find("0x3F") != std::string::npos);
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA RegQueryValueExA RegCloseKey ");
    Read("Text");
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA RegQueryValueExA RegCloseKey ");
    CHECK(Open() == 0);
}

TEST_CASE_FIXTURE(Calls, "a read of an unknown type asks for no data and closes the key") {
    Read("Other");
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA RegCloseKey ");
    CHECK(Open() == 0);
}

TEST_CASE_FIXTURE(Calls, "a read whose first query fails leaves the key open") {
    Read("Nothing");
    CHECK(Names() == "RegOpenKeyExA RegQueryValueExA ");
    CHECK(Open() == 1);
}

TEST_CASE_FIXTURE(Calls, "a read whose second query fails gives nothing and leaves the key open") {
    int leftOpen = 0;
    Put("Bytes", Stored(Service::Binary, "abc"));
    for (const char* name : {"Number", "Text", "Bytes"}) {
        CAPTURE(name);
        machine.faults.FailNth(3, Service::FileNotFound);
        CHECK(Read(name) == "");
        CHECK(Names() == "RegOpenKeyExA RegQueryValueExA RegQueryValueExA ");
        CHECK(Open() == ++leftOpen);
    }
}

TEST_CASE_FIXTURE(Calls, "a path is made level by level with the right to create alone") {
    registry.RegCreateKeyAt(HKLM, "Software\\Test");
    const auto opens = machine.journal.Calls("RegOpenKeyExA");
    REQUIRE(opens.size() == 2);
    CHECK(opens[0].find("\"\" 0x04") != std::string::npos);
    CHECK(opens[1].find("\"Software\" 0x04") != std::string::npos);
    const auto creates = machine.journal.Calls("RegCreateKeyExA");
    REQUIRE(creates.size() == 2);
    CHECK(creates[0].find("\"Software\" 0x3F") != std::string::npos);
    CHECK(creates[1].find("\"Test\" 0x3F") != std::string::npos);
    CHECK(Names() ==
          "RegOpenKeyExA RegCreateKeyExA RegCloseKey RegCloseKey "
          "RegOpenKeyExA RegCreateKeyExA RegCloseKey RegCloseKey ");
    CHECK(Open() == 0);
}

TEST_CASE_FIXTURE(Calls, "a level that fails does not keep the next ones from being tried") {
    machine.faults.FailNth(2, Service::AccessDenied);
    registry.RegCreateKeyAt(HKLM, "New\\Below\\Deep");
    CHECK(Names() == "RegOpenKeyExA RegCreateKeyExA RegCloseKey RegOpenKeyExA RegOpenKeyExA ");
    CHECK(Open() == 0);
}

TEST_CASE_FIXTURE(Calls, "a raw write opens with the right to set values, sets and closes") {
    registry.RegWriteRaw(HKLM, Key, "Text", Service::String, "y", 1);
    CHECK(machine.journal.Lines()[0].find(" 0x02 ") != std::string::npos);
    CHECK(Names() == "RegOpenKeyExA RegSetValueExA RegCloseKey ");
}

TEST_CASE_FIXTURE(Calls, "a value is deleted with the right to set values") {
    registry.RegDeleteValueAt(HKLM, Key, "Text");
    CHECK(machine.journal.Lines()[0].find(" 0x02 ") != std::string::npos);
    CHECK(Names() == "RegOpenKeyExA RegDeleteValueA RegCloseKey ");
}

TEST_CASE_FIXTURE(Calls, "a key is deleted without opening anything") {
    registry.RegDeleteKeyAt(HKLM, Key);
    CHECK(Names() == "RegDeleteKeyA ");
}
