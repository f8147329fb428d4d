#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "support/failureof.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

constexpr std::string_view CdfsKey = "SYSTEM\\CurrentControlSet\\Control\\FileSystem\\CDFS";
constexpr std::string_view PrefetchKey =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters";

// Remembers what the form's pointer was set to, in order.
struct PointerWatch : toolkit::FormView {
    explicit PointerWatch(toolkit::Form& watched) : form(watched) { form.SetView(this); }
    ~PointerWatch() override { form.SetView(nullptr); }
    void Refresh(toolkit::FormAspect what) override {
        if (what == toolkit::FormAspect::Pointer) pointers.push_back(form.Pointer());
    }

    toolkit::Form& form;
    std::vector<int> pointers;
};

}  // namespace

TEST_CASE_FIXTURE(Options, "a pass shows the hourglass and puts the pointer back at its end") {
    PointerWatch watch(form);
    std::size_t callsBefore = 0;
    form.Check("chkLastAccessTimestamp").onClick = [&] {
        callsBefore = machine.journal.Count();
        CHECK(form.Pointer() == toolkit::Hourglass);
    };
    passes.Read();
    CHECK(callsBefore > 0);
    CHECK(watch.pointers == std::vector<int>{11, 0});
    passes.Write();
    CHECK(watch.pointers == std::vector<int>{11, 0, 11, 0});
}

TEST_CASE_FIXTURE(Options, "a machine on which no value exists is read without a word") {
    passes.Read();
    for (const char* name : {"chkBootOptimizeFunction", "chkSecondLevelDataCache", "chkMFTTuning",
                             "chkLastAccessTimestamp"}) {
        CAPTURE(name);
        CHECK(State(name) == 1);
    }
    for (const char* name : {"chkmemorymanagement", "chkLargeSystemCache", "chkBoostLoading",
                             "chkCDFSTune", "chkFastServices", "chkUltraDMA66", "chkAutoLogin",
                             "chkEnableAGP4x", "chkFixAthlonPCIAGP"}) {
        CAPTURE(name);
        CHECK(State(name) == 0);
    }
    for (const char* name :
         {"txtALUserName", "txtALPassword", "txtALDomain", "txtStartmenu", "txtOSVersion",
          "txtProductId", "txtUserName", "txtCompanyName", "txtWindowsVersion", "txtOSBuild"}) {
        CAPTURE(name);
        CHECK(Text(name) == "");
    }
    CHECK(machine.journal.Calls("MessageBox").empty());
    CHECK(machine.registry.Dump().empty());
}

TEST_CASE_FIXTURE(Options, "a read pass changes nothing in the registry") {
    PutMachine(WinlogonKey, "AutoAdminLogon", TextValue("1"));
    PutMachine(AgpKey, "EnableVia4x", DwordValue(1));
    const auto before = machine.registry.Dump();
    passes.Read();
    CHECK(machine.registry.Dump() == before);
}

TEST_CASE_FIXTURE(Options, "a text that reads as the number passes like the number") {
    for (const char* text : {"1", "01", " 1 ", "1,0", "+1", "&H1", "1e0"}) {
        CAPTURE(text);
        form.Check("chkLargeSystemCache").SetValue(0);
        PutMachine(MemoryKey, "LargeSystemCache", TextValue(text));
        passes.Read();
        CHECK(State("chkLargeSystemCache") == 1);
    }
}

TEST_CASE_FIXTURE(Options, "a text that is no number equals no number") {
    for (const char* text : {"", "1x", "eins", "1 0"}) {
        CAPTURE(text);
        PutMachine(MemoryKey, "LargeSystemCache", TextValue(text));
        PutMachine(MemoryKey, "SecondLevelDataCache", TextValue(text));
        passes.Read();
        CHECK(State("chkLargeSystemCache") == 0);
        CHECK(State("chkSecondLevelDataCache") == 1);
    }
}

TEST_CASE_FIXTURE(Options, "numbers are taken by the signs of the user's locale") {
    machine.locale.signs = {".", ","};
    PutMachine(MemoryKey, "LargeSystemCache", TextValue("1.0"));
    passes.Read();
    CHECK(State("chkLargeSystemCache") == 1);
}

TEST_CASE_FIXTURE(Options, "a comparison with a text tells upper and lower case apart") {
    constexpr std::string_view key = "SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction";
    PutUser(key, "Enable", TextValue("n"));
    passes.Read();
    CHECK(State("chkBootOptimizeFunction") == 1);
    PutUser(key, "Enable", TextValue("N"));
    passes.Read();
    CHECK(State("chkBootOptimizeFunction") == 0);
}

TEST_CASE_FIXTURE(Options, "the machine's own boot optimisation is not looked at") {
    PutMachine("SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction", "Enable", TextValue("N"));
    passes.Read();
    CHECK(State("chkBootOptimizeFunction") == 1);
}

TEST_CASE_FIXTURE(Options, "only a prefetcher of 5 reads as on") {
    for (std::uint32_t number : {0u, 1u, 3u, 4u, 6u}) {
        CAPTURE(number);
        PutMachine(PrefetchKey, "EnablePrefetcher", DwordValue(number));
        form.Check("chkBoostLoading").SetValue(1);
        passes.Read();
        CHECK(State("chkBoostLoading") == 0);
    }
    PutMachine(PrefetchKey, "EnablePrefetcher", DwordValue(5));
    passes.Read();
    CHECK(State("chkBoostLoading") == 1);
}

TEST_CASE_FIXTURE(Options, "the CD cache is on only when both of its values are 16384") {
    PutMachine(CdfsKey, "Prefetch", DwordValue(16384));
    passes.Read();
    CHECK(State("chkCDFSTune") == 0);
    PutMachine(CdfsKey, "PrefetchTail", DwordValue(16383));
    passes.Read();
    CHECK(State("chkCDFSTune") == 0);
    PutMachine(CdfsKey, "PrefetchTail", DwordValue(16384));
    passes.Read();
    CHECK(State("chkCDFSTune") == 1);
    PutMachine(CdfsKey, "Prefetch", DwordValue(16383));
    passes.Read();
    CHECK(State("chkCDFSTune") == 0);
}

TEST_CASE_FIXTURE(Options, "both values of the CD cache are asked even when the first one fails") {
    machine.registry.MakeKey(Service::LocalMachine, CdfsKey);
    passes.Read();
    std::string asked;
    for (const std::string& line : machine.journal.Calls("RegQueryValueExA")) {
        if (line.find("Prefetch") != std::string::npos) asked += line.substr(line.find('"')) + '\n';
    }
    CHECK(asked == "\"Prefetch\" -> 2\n\"PrefetchTail\" -> 2\n");
}

TEST_CASE_FIXTURE(Options, "a page lock limit that is 0 or absent reads as off, any other as on") {
    passes.Read();
    CHECK(State("chkFastServices") == 0);
    PutMachine(MemoryKey, "IOPageLockLimit", DwordValue(4096));
    passes.Read();
    CHECK(State("chkFastServices") == 1);
    PutMachine(MemoryKey, "IOPageLockLimit", DwordValue(0));
    passes.Read();
    CHECK(State("chkFastServices") == 0);
    PutMachine(MemoryKey, "IOPageLockLimit", TextValue("viel"));
    passes.Read();
    CHECK(State("chkFastServices") == 1);
}

TEST_CASE_FIXTURE(Options, "a page lock limit is read once") {
    PutMachine(MemoryKey, "IOPageLockLimit", DwordValue(4096));
    passes.Read();
    int queries = 0;
    for (const std::string& line : machine.journal.Calls("RegQueryValueExA")) {
        queries += line.find("\"IOPageLockLimit\"") != std::string::npos ? 1 : 0;
    }
    CHECK(queries == 2);
}

TEST_CASE_FIXTURE(Options, "an automatic logon that holds 0 reads as on and fills the boxes") {
    PutMachine(WinlogonKey, "AutoAdminLogon", TextValue("0"));
    PutMachine(WinlogonKey, "DefaultUserName", TextValue("Jörg"));
    PutMachine(WinlogonKey, "DefaultPassword", TextValue("geheim"));
    passes.Read();
    CHECK(State("chkAutoLogin") == 1);
    CHECK(Text("txtALUserName") == "Jörg");
    CHECK(Text("txtALPassword") == "geheim");
    CHECK(Text("txtALDomain") == "");
}

TEST_CASE_FIXTURE(Options, "without an automatic logon its boxes are emptied and not read") {
    PutMachine(WinlogonKey, "DefaultUserName", TextValue("Jörg"));
    form.Box("txtALDomain").SetText("RECHNER");
    passes.Read();
    CHECK(State("chkAutoLogin") == 0);
    CHECK(Text("txtALUserName") == "");
    CHECK(Text("txtALDomain") == "");
    CHECK(machine.journal.Text().find("DefaultUserName") == std::string::npos);
}

TEST_CASE_FIXTURE(Options, "without the driver's key the AGP box is shut and off") {
    form.Check("chkEnableAGP4x").SetValue(1);
    passes.Read();
    CHECK_FALSE(form.Check("chkEnableAGP4x").Enabled());
    CHECK(State("chkEnableAGP4x") == 0);
}

TEST_CASE_FIXTURE(Options, "with the driver's key the AGP box is open and shows its value") {
    form.Check("chkEnableAGP4x").SetEnabled(false);
    machine.registry.MakeKey(Service::LocalMachine, AgpKey);
    passes.Read();
    CHECK(form.Check("chkEnableAGP4x").Enabled());
    CHECK(State("chkEnableAGP4x") == 0);
    PutMachine(AgpKey, "EnableVia4x", DwordValue(1));
    passes.Read();
    CHECK(State("chkEnableAGP4x") == 1);
    PutMachine(AgpKey, "EnableVia4x", DwordValue(2));
    passes.Read();
    CHECK(State("chkEnableAGP4x") == 0);
}

TEST_CASE_FIXTURE(Options, "the AGP box asks for the key, for presence and for the value") {
    machine.registry.MakeKey(Service::LocalMachine, AgpKey);
    passes.Read();
    const auto& lines = machine.journal.Lines();
    std::vector<std::string> last;
    for (const std::string& line : lines) {
        if (line.find("nv4") != std::string::npos ||
            line.find("EnableVia4x") != std::string::npos) {
            last.push_back(line.substr(0, line.find(' ')));
        }
    }
    CHECK(last == std::vector<std::string>{"RegOpenKeyExA", "RegOpenKeyExA", "RegQueryValueExA",
                                           "RegOpenKeyExA", "RegQueryValueExA"});
}

TEST_CASE_FIXTURE(Options, "the version boxes take no more than three and four characters") {
    PutMachine(SystemKey, "CurrentVersion", TextValue("5.1.2600"));
    PutMachine(SystemKey, "CurrentBuildNumber", TextValue("26001"));
    passes.Read();
    CHECK(Text("txtWindowsVersion") == "5.1");
    CHECK(Text("txtOSBuild") == "2600");
}

TEST_CASE_FIXTURE(Options, "an absent menu delay empties the box and leaves the slider") {
    form.Find<toolkit::Slider>("sldStartmenu").SetValue(120);
    passes.Read();
    CHECK(Text("txtStartmenu") == "");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 120);
}

TEST_CASE_FIXTURE(Options, "the menu delay moves the slider while it is read") {
    PutUser(DesktopKey, "MenuShowDelay", TextValue("250"));
    passes.Read();
    CHECK(Text("txtStartmenu") == "250");
    CHECK(form.Find<toolkit::Slider>("sldStartmenu").Value() == 250);
}

TEST_CASE_FIXTURE(Options, "a menu delay that does not fit ends the read pass where it stands") {
    PutMachine(MemoryKey, "LargeSystemCache", DwordValue(1));
    PutUser(DesktopKey, "MenuShowDelay", TextValue("99999999999"));
    PutMachine(SystemKey, "ProductName", TextValue("Microsoft Windows XP"));
    CHECK(FailureOf([&] { passes.Read(); }) == runtime::Overflow);
    // What came before is done, the box has its text, what comes after is not done.
    CHECK(State("chkLargeSystemCache") == 1);
    CHECK(Text("txtStartmenu") == "99999999999");
    CHECK(Text("txtOSVersion") == "");
    CHECK(machine.journal.Text().find("ProductName") == std::string::npos);
    CHECK(form.Pointer() == toolkit::Hourglass);
}

TEST_CASE_FIXTURE(Options, "a pass after a failed one runs through and puts the pointer back") {
    PutUser(DesktopKey, "MenuShowDelay", TextValue("99999999999"));
    CHECK_THROWS_AS(passes.Read(), runtime::Failure);
    PutUser(DesktopKey, "MenuShowDelay", TextValue("400"));
    passes.Read();
    CHECK(form.Pointer() == toolkit::DefaultPointer);
}

TEST_CASE_FIXTURE(Options, "the options that act at once are left alone by a pass") {
    form.Check("chkIcons").SetValue(1);
    form.Box("txtLevelValue").SetText("120");
    passes.Read();
    passes.Write();
    CHECK(State("chkIcons") == 1);
    CHECK(Text("txtLevelValue") == "120");
}
