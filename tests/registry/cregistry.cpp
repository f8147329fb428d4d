#include "registry/cregistry.h"

#include <doctest/doctest.h>

#include <new>

#include "platform/machinewith.h"
#include "registry/fixture.h"
#include "registry/restless.h"
#include "runtime/failure.h"
#include "support/failureof.h"

// What the object raises, and the file types that it registers. What it stores and reads is stated
// for both machines by the contract suite.
using namespace registry_tests;

namespace {

using namespace std::string_literals;
using registry::Data;
using Bytes = std::vector<std::uint8_t>;
using Lines = std::vector<std::string>;

constexpr char Missing[] = "Software\\Absent";

struct Object {
    platform::simulated::Machine machine;
    registry::cRegistry object{machine.services};

    Object() {
        object.ClassKey = Service::LocalMachine;
        object.SectionKey = "Software\\Test";
        object.ValueKey = "Name";
    }

    // Its text, when it is one of the object's own.
    template <typename Action>
    std::string RaisedBy(Action action) {
        try {
            action();
        } catch (const runtime::Failure& failure) {
            CHECK(failure.number == 26001);
            CHECK(failure.source == "Quillmore.cRegistry");
            return failure.description;
        }
        return "nothing raised";
    }
    void Write(std::uint32_t type, const Data& data) {
        object.ValueType = type;
        object.SetValue(data);
    }
    std::string ClassText(const std::string& key) const {
        const auto value =
            machine.registry.Value(Service::LocalMachine, "SOFTWARE\\Classes\\" + key, "");
        if (!value) return "absent";
        CHECK(value->type == Service::String);
        REQUIRE_FALSE(value->bytes.empty());
        return {value->bytes.begin(), value->bytes.end() - 1};
    }
};

}  // namespace

TEST_CASE_FIXTURE(Object, "a key that cannot be made is told without a closing quote") {
    machine.registry.Deny(Service::LocalMachine, "Software");
    CHECK(RaisedBy([&] { object.CreateKey(); }) ==
          "Failed to create registry Key: 'Software\\Test");
}

TEST_CASE_FIXTURE(Object, "a key that cannot be deleted is told with its root as signed number") {
    object.SectionKey = Missing;
    CHECK(RaisedBy([&] { object.DeleteKey(); }) ==
          "Failed to delete registry Key: '-2147483646',Section: 'Software\\Absent");
    object.ClassKey = Service::CurrentUser;
    CHECK(RaisedBy([&] { object.DeleteKey(); }) ==
          "Failed to delete registry Key: '-2147483647',Section: 'Software\\Absent");
    object.ClassKey = 2;
    CHECK(RaisedBy([&] { object.DeleteKey(); }) ==
          "Failed to delete registry Key: '2',Section: 'Software\\Absent");
}

TEST_CASE_FIXTURE(Object, "a path with an empty part deletes neither the parent nor another key") {
    machine.registry.MakeKey(Service::LocalMachine, "Software\\Test\\Below");
    for (const char* path : {"Software\\Test\\Below\\", "\\Software\\Test\\Below",
                             "Software\\Test\\\\Below", "\\", ""}) {
        object.SectionKey = path;
        CHECK(RaisedBy([&] { object.DeleteKey(); }) ==
              "Failed to delete registry Key: '-2147483646',Section: '"s + path);
    }
    CHECK(machine.registry.HasKey(Service::LocalMachine, "Software\\Test\\Below"));
}

TEST_CASE_FIXTURE(Object, "a key with sub-keys is not deleted") {
    machine.registry.MakeKey(Service::LocalMachine, "Software\\Test\\Below");
    CHECK(RaisedBy([&] { object.DeleteKey(); }) ==
          "Failed to delete registry Key: '-2147483646',Section: 'Software\\Test");
    CHECK(machine.registry.HasKey(Service::LocalMachine, "Software\\Test\\Below"));
}

TEST_CASE_FIXTURE(Object, "a value that cannot be deleted is told, the missing key apart") {
    CHECK(RaisedBy([&] { object.DeleteValue(); }) ==
          "Failed to open key '-2147483646',Section: 'Software\\Test' for delete access");
    object.CreateKey();
    CHECK(RaisedBy([&] { object.DeleteValue(); }) ==
          "Failed to delete registry Key: '-2147483646',Section: 'Software\\Test',Key: 'Name");
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object, "a value that cannot be written is told with what it should have been") {
    const std::string start =
        "Failed to set registry value Key: '-2147483646',Section: 'Software\\Test',"
        "Key: 'Name' to value: '";
    SUBCASE("as the key cannot be made") {
        machine.registry.Deny(Service::LocalMachine, "Software\\Test");
    }
    SUBCASE("as the value cannot be set") {
        machine.faults.FailAll("RegSetValueExA", 5);
    }
    CHECK(RaisedBy([&] { Write(Service::String, "Größe"s); }) == start + "Größe'");
    CHECK(RaisedBy([&] { Write(Service::String, -7); }) == start + "-7'");
    CHECK(RaisedBy([&] { Write(Service::Dword, 42); }) == start + "42'");
    CHECK(RaisedBy([&] { Write(Service::Binary, Bytes{65}); }) == start + "'");
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object,
                  "data that do not fit the type are a type failure, after the key is made") {
    const auto isRefused = [&](std::uint32_t type, const Data& data) {
        CAPTURE(type);
        CHECK(FailureOf([&] { Write(type, data); }) == runtime::TypeMismatch);
    };
    isRefused(Service::String, Bytes{65});
    isRefused(Service::ExpandString, Bytes{});
    isRefused(Service::Binary, "text"s);
    isRefused(Service::Binary, 5);
    isRefused(Service::Binary, {});
    isRefused(Service::Dword, "5"s);
    isRefused(Service::Dword, Bytes{1, 2, 3, 4});
    isRefused(Service::BigEndianDword, {});
    for (const std::uint32_t type : {0u, 6u, 7u, 8u, 11u, 0xFFFFFFFFu}) {
        isRefused(type, "text"s);
        isRefused(type, 5);
        isRefused(type, Bytes{1});
    }
    CHECK(object.KeyExists());
    CHECK_FALSE(machine.registry.Value(Service::LocalMachine, "Software\\Test", "Name"));
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object, "a number is written as text where a text is asked for") {
    Write(Service::String, -7);
    CHECK(object.Value() == Data("-7"s));
    Write(Service::ExpandString, {});
    CHECK(object.Value() == Data(""s));
}

TEST_CASE_FIXTURE(Object, "reading leaves one key open, everything else closes its own") {
    Write(Service::Dword, 1);
    CHECK(object.KeyExists());
    std::vector<std::string> names;
    int count = 0;
    object.EnumerateValues(names, count);
    object.EnumerateSections(names, count);
    object.DeleteValue();
    CHECK(machine.registry.OpenHandles() == 0);
    object.Value();
    CHECK(machine.registry.OpenHandles() == 1);
    Write(Service::Dword, 1);
    object.Value();
    CHECK(machine.registry.OpenHandles() == 2);
}

TEST_CASE_FIXTURE(Object, "of a key that cannot be opened nothing more is asked") {
    std::vector<std::string> names;
    int count = 1;
    object.EnumerateSections(names, count);
    CHECK(count == 0);
    object.EnumerateValues(names, count);
    CHECK(count == 0);
    CHECK(machine.journal.Calls("RegEnumKeyExA").empty());
    CHECK(machine.journal.Calls("RegEnumValueA").empty());
    CHECK(machine.journal.Calls("RegCloseKey").empty());
}

TEST_CASE_FIXTURE(Object, "each call asks for the rights that are told for it") {
    object.CreateKey();
    object.Value();
    object.KeyExists();
    Write(Service::Dword, 1);
    object.DeleteValue();
    std::vector<std::string> names;
    int count = 0;
    object.EnumerateSections(names, count);
    object.EnumerateValues(names, count);
    CHECK(machine.journal.Calls("RegOpenKeyExA") ==
          Lines{"RegOpenKeyExA HKLM \"Software\\Test\" 0x01 -> 0 #2",
                "RegOpenKeyExA HKLM \"Software\\Test\" 0x01 -> 0 #3",
                "RegOpenKeyExA HKLM \"Software\\Test\" 0x02 -> 0 #5",
                "RegOpenKeyExA HKLM \"Software\\Test\" 0x08 -> 0 #6",
                "RegOpenKeyExA HKLM \"Software\\Test\" 0x01 -> 0 #7"});
    CHECK(machine.journal.Calls("RegCreateKeyExA") ==
          Lines{"RegCreateKeyExA HKLM \"Software\\Test\" 0x3F -> 0 #1",
                "RegCreateKeyExA HKLM \"Software\\Test\" 0x3F -> 0 #4"});
}

TEST_CASE_FIXTURE(Object, "a size that is told with more data is a size all the same") {
    machine.registry.Put(Service::LocalMachine, "Software\\Test", "Name", TextValue("abc"));
    // Opening, asking for the size, reading.
    machine.faults.FailNth(2, Service::MoreData);
    object.ValueType = 77;
    // The failing call tells neither type nor size.
    CHECK(object.Value() == Data(Bytes{}));
    CHECK(object.ValueType == Service::None);
    object.Default = 5;
    machine.faults.FailNth(2, Service::AccessDenied);
    object.ValueType = 77;
    CHECK(object.Value() == Data(5));
    CHECK(object.ValueType == 77);
}

TEST_CASE_FIXTURE(Object, "a value that goes or grows while it is read is the default") {
    Restless restless{machine.registry};
    const platform::Machine disturbed = platform::With(machine.services, {.registry = &restless});
    registry::cRegistry watched(disturbed);
    watched.ClassKey = Service::LocalMachine;
    watched.SectionKey = "Software\\Test";
    watched.ValueKey = "Name";
    watched.Default = "default"s;
    for (const bool grows : {false, true}) {
        machine.registry.Put(Service::LocalMachine, "Software\\Test", "Name", TextValue("abc"));
        restless.After(2, [&] {
            machine.registry.Erase(Service::LocalMachine, "Software\\Test", "Name");
            if (!grows) return;
            machine.registry.Put(Service::LocalMachine, "Software\\Test", "Name",
                                 TextValue("abcdef"));
        });
        watched.ValueType = 77;
        CHECK(watched.Value() == Data("default"s));
        CHECK(watched.ValueType == 77);
        CHECK(restless.HasActed());
    }
}

TEST_CASE_FIXTURE(Object, "a value that shrinks while it is read is what is stored by then") {
    Restless restless{machine.registry};
    const platform::Machine disturbed = platform::With(machine.services, {.registry = &restless});
    registry::cRegistry watched(disturbed);
    watched.ClassKey = Service::LocalMachine;
    watched.SectionKey = "Software\\Test";
    watched.ValueKey = "Name";
    const auto shrunk = [&](const platform::simulated::StoredValue& left) {
        machine.registry.Put(Service::LocalMachine, "Software\\Test", "Name", TextValue("abcdef"));
        restless.After(2, [&] {
            machine.registry.Put(Service::LocalMachine, "Software\\Test", "Name", left);
        });
        return watched.Value();
    };
    CHECK(shrunk(TextValue("ab")) == Data("ab"s));
    CHECK(shrunk(TextValue("")) == Data(""s));
    CHECK(shrunk({Service::Binary, {1, 0}}) == Data(Bytes{1, 0}));
    CHECK(watched.ValueType == Service::Binary);
    CHECK(shrunk({Service::Dword, {1, 0, 0, 0}}) == Data(1));
}

TEST_CASE_FIXTURE(Object, "whatever ends the enumeration of sub-keys, the key is closed") {
    machine.registry.MakeKey(Service::LocalMachine, "Software\\Test\\a");
    Restless restless{machine.registry};
    const platform::Machine disturbed = platform::With(machine.services, {.registry = &restless});
    registry::cRegistry watched(disturbed);
    watched.ClassKey = Service::LocalMachine;
    watched.SectionKey = "Software\\Test";
    restless.After(2, [] { throw std::bad_alloc(); });
    std::vector<std::string> names;
    int count = 0;
    CHECK_THROWS_AS(watched.EnumerateSections(names, count), std::bad_alloc);
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object,
                  "a failure while sub-keys are enumerated closes the key and keeps its number") {
    machine.registry.MakeKey(Service::LocalMachine, "Software\\Test\\a");
    Restless restless{machine.registry};
    const platform::Machine disturbed = platform::With(machine.services, {.registry = &restless});
    registry::cRegistry watched(disturbed);
    watched.ClassKey = Service::LocalMachine;
    watched.SectionKey = "Software\\Test";
    restless.After(2, [] { throw runtime::Failure(runtime::OutOfMemory); });
    std::vector<std::string> names;
    int count = 0;
    try {
        watched.EnumerateSections(names, count);
        FAIL("nothing raised");
    } catch (const runtime::Failure& failure) {
        CHECK(failure.number == runtime::OutOfMemory);
        CHECK(failure.description == runtime::DescriptionOf(runtime::OutOfMemory));
        CHECK(failure.source == "Quillmore.cRegistry");
    }
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object, "the source names the executable") {
    machine.program.executableName = "Andere";
    try {
        object.SectionKey = Missing;
        object.DeleteKey();
        FAIL("nothing raised");
    } catch (const runtime::Failure& failure) {
        CHECK(failure.source == "Andere.cRegistry");
    }
}

TEST_CASE_FIXTURE(Object, "a file type is registered with opening alone") {
    CHECK(object.CreateEXEAssociation("C:\\Ein Ort\\Prog.exe", "Prog.Datei", "Eine Datei", "prg"));
    CHECK(ClassText("Prog.Datei") == "Eine Datei");
    CHECK(ClassText(".prg") == "Prog.Datei");
    CHECK(ClassText("Prog.Datei\\shell\\open") == "&Open");
    CHECK(ClassText("Prog.Datei\\shell\\open\\command") == "\"C:\\Ein Ort\\Prog.exe\" \"%1\"");
    for (const char* key : {"shell\\print", "shell\\add", "shell\\new", "DefaultIcon"}) {
        CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine,
                                            "SOFTWARE\\Classes\\Prog.Datei\\"s + key));
    }
    CHECK(machine.registry.OpenHandles() == 0);
}

TEST_CASE_FIXTURE(Object, "a file type is registered with all that it may offer") {
    object.CreateEXEAssociation("P.exe", "P", "Datei", "p",
                                {.bSupportPrint = true,
                                 .bSupportNew = true,
                                 .bSupportInstall = true,
                                 .lDefaultIconIndex = 0});
    CHECK(ClassText("P\\shell\\print") == "&Print");
    CHECK(ClassText("P\\shell\\print\\command") == "\"P.exe\" /p \"%1\"");
    CHECK(ClassText("P\\shell\\add") == "&Install P");
    CHECK(ClassText("P\\shell\\add\\command") == "\"P.exe\" /a \"%1\"");
    CHECK(ClassText("P\\shell\\new") == "&New");
    CHECK(ClassText("P\\shell\\new\\command") == "\"P.exe\" /n \"%1\"");
    CHECK(ClassText("P\\DefaultIcon") == "P.exe,0");
}

TEST_CASE_FIXTURE(Object, "the words of the verbs and the icon can be chosen") {
    object.CreateEXEAssociation("P.exe", "P", "Datei", "p",
                                {.sOpenMenuText = "Ö&ffnen",
                                 .bSupportPrint = true,
                                 .sPrintMenuText = "&Drucken",
                                 .bSupportNew = true,
                                 .sNewMenuText = "&Neu",
                                 .bSupportInstall = true,
                                 .sInstallMenuText = "&Einrichten",
                                 .lDefaultIconIndex = 12});
    CHECK(ClassText("P\\shell\\open") == "\xD6&ffnen");
    CHECK(ClassText("P\\shell\\print") == "&Drucken");
    CHECK(ClassText("P\\shell\\new") == "&Neu");
    CHECK(ClassText("P\\shell\\add") == "&Einrichten");
    CHECK(ClassText("P\\DefaultIcon") == "P.exe,12");
}

TEST_CASE_FIXTURE(Object, "a file type of the user's own goes below his root") {
    object.ClassKey = Service::CurrentUser;
    object.CreateEXEAssociation("P.exe", "P", "Datei", "p");
    CHECK(machine.registry.HasKey(Service::CurrentUser, "SOFTWARE\\Classes\\.p"));
    CHECK(ClassText("P") == "absent");
}

TEST_CASE_FIXTURE(Object, "a file type that cannot be written is told like any value") {
    machine.registry.Deny(Service::LocalMachine, "SOFTWARE\\Classes");
    CHECK(RaisedBy([&] { object.CreateEXEAssociation("P.exe", "P", "Datei", "p"); }) ==
          "Failed to set registry value Key: '-2147483646',Section: 'SOFTWARE\\Classes\\P',"
          "Key: '' to value: 'Datei'");
}

TEST_CASE_FIXTURE(Object, "further verbs come in threes, to a class that is there") {
    const char* const badList =
        "Invalid parameter list passed to CreateAdditionalEXEAssociations - expected "
        "Name/Text/Command";
    const auto add = [&](const std::vector<std::string>& list) {
        return RaisedBy([&] { object.CreateAdditionalEXEAssociations("P", list); });
    };
    CHECK(add({"a", "b"}) == badList);
    CHECK(add({"a", "b", "c", "d"}) == badList);
    CHECK(add({"a", "b", "c"}) ==
          "Error - attempt to create additional associations before class defined.");
    object.CreateEXEAssociation("P.exe", "P", "Datei", "p");
    CHECK(object.CreateAdditionalEXEAssociations("P", {}));
    CHECK(object.CreateAdditionalEXEAssociations(
        "P", {"edit", "&Bearbeiten", "P.exe /e \"%1\"", "show", "&Zeigen", "P.exe /s \"%1\""}));
    CHECK(ClassText("P\\shell\\edit") == "&Bearbeiten");
    CHECK(ClassText("P\\shell\\edit\\command") == "P.exe /e \"%1\"");
    CHECK(ClassText("P\\shell\\show") == "&Zeigen");
    CHECK(ClassText("P\\shell\\show\\command") == "P.exe /s \"%1\"");
}
