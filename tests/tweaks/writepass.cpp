#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "tweaks/catalogue.h"
#include "tweaks/golden.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

StoredValue BinaryText(std::string_view characters) {
    StoredValue value = BareTextValue(characters);
    value.type = Service::Binary;
    return value;
}

// The calls of one name that concern a key, cut to the value's name and what follows.
std::vector<std::string> ValuesOf(const std::vector<std::string>& lines,
                                  std::initializer_list<const char*> names) {
    std::vector<std::string> found;
    for (const std::string& line : lines) {
        const std::size_t first = line.find('"') + 1;
        const std::string name = line.substr(first, line.find('"', first) - first);
        for (const char* wanted : names) {
            if (name == wanted) found.push_back(name);
        }
    }
    return found;
}

using Names = std::vector<std::string>;

}  // namespace

TEST_CASE_FIXTURE(Options, "an automatic logon writes 1 and the texts of its boxes, in order") {
    PutMachine(WinlogonKey, "AutoAdminLogon", TextValue("0"));
    PutMachine(WinlogonKey, "DefaultUserName", TextValue("Jörg"));
    passes.Read();
    form.Box("txtALPassword").SetText("ge\"heim");
    machine.journal.Clear();
    passes.Write();
    CHECK(OfMachine(WinlogonKey, "AutoAdminLogon") == BareTextValue("1"));
    CHECK(OfMachine(WinlogonKey, "DefaultUserName") == BareTextValue("Jörg"));
    CHECK(OfMachine(WinlogonKey, "DefaultPassword") == BareTextValue("ge\"heim"));
    CHECK(OfMachine(WinlogonKey, "DefaultDomainName") == BareTextValue(""));
    CHECK(ValuesOf(machine.journal.Calls("RegSetValueExA"),
                   {"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName"}) ==
          Names{"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName"});
}

TEST_CASE_FIXTURE(Options, "without an automatic logon its four values are deleted, in order") {
    for (const char* name :
         {"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName", "Shell"}) {
        PutMachine(WinlogonKey, name, TextValue("x"));
    }
    form.Box("txtALUserName").SetText("Jörg");
    machine.journal.Clear();
    passes.Write();
    CHECK(ValuesOf(machine.journal.Calls("RegDeleteValueA"),
                   {"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName"}) ==
          Names{"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName"});
    for (const char* name :
         {"AutoAdminLogon", "DefaultUserName", "DefaultPassword", "DefaultDomainName"}) {
        CHECK_FALSE(OfMachine(WinlogonKey, name));
    }
    CHECK(OfMachine(WinlogonKey, "Shell") == TextValue("x"));
}

TEST_CASE_FIXTURE(Options, "deleting an automatic logon that is not there makes no key") {
    registry::Registry registry(machine.registry, machine.locale);
    tweaks::WriteOption({form, registry, machine.locale.Signs(), machine.services},
                        *tweaks::FindOption("chkAutoLogin"));
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, WinlogonKey));
    CHECK(machine.journal.Text().find("AutoAdminLogon") == std::string::npos);
}

TEST_CASE_FIXTURE(Options, "the CD cache writes its three values in order in both states") {
    constexpr std::string_view key = "SYSTEM\\CurrentControlSet\\Control\\FileSystem\\CDFS";
    for (int state : {1, 0}) {
        CAPTURE(state);
        form.Check("chkCDFSTune").SetValue(state);
        machine.journal.Clear();
        passes.Write();
        const std::uint32_t number = state == 1 ? 16384 : 16383;
        CHECK(OfMachine(key, "CacheSize") == BinaryText("ff,ff,00,00"));
        CHECK(OfMachine(key, "Prefetch") == DwordValue(number));
        CHECK(OfMachine(key, "PrefetchTail") == DwordValue(number));
        CHECK(ValuesOf(machine.journal.Calls("RegSetValueExA"),
                       {"CacheSize", "Prefetch", "PrefetchTail"}) ==
              Names{"CacheSize", "Prefetch", "PrefetchTail"});
    }
}

TEST_CASE_FIXTURE(Options, "a prefetcher of 1 is written back as 3") {
    constexpr std::string_view key =
        "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"
        "\\PrefetchParameters";
    PutMachine(key, "EnablePrefetcher", DwordValue(1));
    passes.Read();
    passes.Write();
    CHECK(OfMachine(key, "EnablePrefetcher") == DwordValue(3));
}

TEST_CASE_FIXTURE(Options, "without the driver's key AGP is neither made nor written") {
    passes.Read();
    passes.Write();
    CHECK_FALSE(
        machine.registry.HasKey(Service::LocalMachine, "SYSTEM\\CurrentControlSet\\Services\\nv4"));
}

TEST_CASE_FIXTURE(Options, "with the driver's key AGP is written in both states") {
    machine.registry.MakeKey(Service::LocalMachine, AgpKey);
    passes.Read();
    passes.Write();
    CHECK(OfMachine(AgpKey, "EnableVia4x") == DwordValue(0));
    form.Check("chkEnableAGP4x").SetValue(1);
    passes.Write();
    CHECK(OfMachine(AgpKey, "EnableVia4x") == DwordValue(1));
}

TEST_CASE_FIXTURE(Options, "the AGP on side has no look at the key, which the shut box spares it") {
    form.Check("chkEnableAGP4x").SetValue(1);
    passes.Write();
    CHECK(OfMachine(AgpKey, "EnableVia4x") == DwordValue(1));
}

TEST_CASE_FIXTURE(Options, "the boxes of the system's facts are written back unconditionally") {
    PutMachine(SystemKey, "ProductId", TextValue("55274-640"));
    passes.Read();
    form.Box("txtOSVersion").SetText("Mein Windows");
    form.Box("txtProductId").SetText("anders");
    form.Box("txtWindowsVersion").SetText("6.0");
    passes.Write();
    CHECK(OfMachine(SystemKey, "ProductName") == BareTextValue("Mein Windows"));
    CHECK(OfMachine(SystemKey, "CurrentVersion") == BareTextValue("6.0"));
    CHECK(OfMachine(SystemKey, "RegisteredOwner") == BareTextValue(""));
    CHECK(OfMachine(SystemKey, "RegisteredOrganization") == BareTextValue(""));
    CHECK(OfMachine(SystemKey, "CurrentBuildNumber") == BareTextValue(""));
    CHECK(OfMachine(SystemKey, "ProductId") == TextValue("55274-640"));
}

TEST_CASE_FIXTURE(Options, "an empty menu delay is written as an empty text") {
    PutUser(DesktopKey, "MenuShowDelay", TextValue("400"));
    form.Box("txtStartmenu").SetText("");
    passes.Write();
    CHECK(OfUser(DesktopKey, "MenuShowDelay") == BareTextValue(""));
}

TEST_CASE_FIXTURE(Options, "a menu delay that is no number is written without a test") {
    form.Box("txtStartmenu").SetText("schnell");
    passes.Write();
    CHECK(OfUser(DesktopKey, "MenuShowDelay") == BareTextValue("schnell"));
}

TEST_CASE_FIXTURE(Options, "a second write pass makes the same calls as the first") {
    passes.Write();
    machine.journal.Clear();
    passes.Write();
    const auto second = machine.journal.Text();
    const auto after = machine.registry.Dump();
    machine.journal.Clear();
    passes.Write();
    CHECK(machine.journal.Calls("RegSetValueExA").size() > 15);
    CHECK(machine.registry.Dump() == after);
    // Handles are numbered on, so only the names of the calls are compared.
    const auto names = [](const std::string& journal) {
        std::string words;
        for (std::size_t at = 0; at < journal.size(); at = journal.find('\n', at) + 1) {
            words += journal.substr(at, journal.find(' ', at) - at) + ' ';
        }
        return words;
    };
    CHECK(names(machine.journal.Text()) == names(second));
}

namespace {

// A write pass with all check boxes in that state.
void WriteAll(Options& options, int state) {
    options.FillNumbers();
    for (const std::string& name : GoldenCheckBoxes()) options.form.Check(name).SetValue(state);
    options.passes.Write();
}

}  // namespace

TEST_CASE("a pass on an empty registry leaves no key open") {
    for (int state : {0, 1}) {
        Options options;
        WriteAll(options, state);
        CHECK(options.machine.registry.OpenHandles() == 0);
    }
}

// Off asks for the keys of the graphics driver, the shared folders, the tasks of the network and
// the menu entry, on for the value of the disk check and the keys of folders and tasks; both ask
// for the two keys of an Outlook.
TEST_CASE("a pass leaves one key open for each thing that it asked for and found, no other") {
    for (const auto& [state, open] : {std::pair{0, 4 + 2}, std::pair{1, 3 + 2}}) {
        CAPTURE(state);
        Options options;
        for (const Fact& fact : GoldenFacts()) {
            options.machine.registry.Put(fact.Root(), fact.key, fact.value, TextValue("1"));
        }
        WriteAll(options, state);
        CHECK(options.machine.registry.OpenHandles() == open);
    }
}

TEST_CASE_FIXTURE(Options, "without the right to write the machine's keys a pass says nothing") {
    machine.registry.Deny(Service::LocalMachine, "SOFTWARE");
    machine.registry.Deny(Service::LocalMachine, "SYSTEM");
    passes.Read();
    FillNumbers();
    passes.Write();
    CHECK(machine.messages.Shown().empty());
    for (const auto& [name, value] : machine.registry.Dump()) {
        CAPTURE(name);
        CHECK_FALSE(name.starts_with("HKLM\\"));
    }
    CHECK(OfUser(DesktopKey, "MenuShowDelay"));
    CHECK(form.Pointer() == toolkit::DefaultPointer);
}
