// The oddities of the page DFÜ, each by its name.
#include <doctest/doctest.h>

#include "toolkit/combobox.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

constexpr std::string_view Security10 = "Software\\Microsoft\\Office\\10.0\\Outlook\\Security";
constexpr std::string_view Security11 = "Software\\Microsoft\\Office\\11.0\\Outlook\\Security";
constexpr std::string_view Preferences10 =
    "Software\\Microsoft\\Office\\10.0\\Outlook\\Preferences";
constexpr std::string_view Preferences11 =
    "Software\\Microsoft\\Office\\11.0\\Outlook\\Preferences";
constexpr std::string_view TasksKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace"
    "\\{D6277990-4C6A-11CF-8D87-00AA0060F5BF}";

using Texts = std::vector<std::string>;

struct Network : Options {
    void Set(const char* name, int state) { form.Check(name).SetValue(state); }
    std::string ComboText(const char* name) { return tweaks::TextOfControl(form, name); }
    bool HasMachineKey(std::string_view key) {
        return machine.registry.HasKey(Service::LocalMachine, key);
    }
    bool HasUserKey(std::string_view key) {
        return machine.registry.HasKey(Service::CurrentUser, key);
    }
    void Write() {
        FillNumbers();
        machine.journal.Clear();
        passes.Write();
    }
    // The names that the calls are about, as far as they are among the wanted ones.
    Texts Named(const char* call, const Texts& wanted) {
        Texts names;
        for (const std::string& line : machine.journal.Calls(call)) {
            for (const std::string& name : wanted) {
                if (line.find('"' + name + '"') != std::string::npos) names.push_back(name);
            }
        }
        return names;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Network, "the lists hold the packet sizes and the numbers 1 to 20") {
    passes.Read();
    Texts counts;
    for (int count = 1; count <= 20; ++count) counts.push_back(std::to_string(count));
    CHECK(form.Find<toolkit::ComboBox>("cboMTU").Items() ==
          Texts{"552", "576", "1000", "1492", "1500", "3000"});
    CHECK(form.Find<toolkit::ComboBox>("cboHTTP11").Items() == counts);
    CHECK(form.Find<toolkit::ComboBox>("cboHTTP10").Items() == counts);
}

TEST_CASE_FIXTURE(Network, "the numbers show what the registry holds, also beside their lists") {
    PutMachine(Interface1, "MTU", DwordValue(1400));
    PutMachine(InternetKey, "MaxConnectionsPer1_0Server", DwordValue(4));
    PutMachine(InternetKey, "MaxConnectionsPerServer", TextValue("viele"));
    PutUser(InternetKey, "MaxConnectionsPer1_0Server", DwordValue(9));
    PutMachine(TcpKey, "DefaultTTL", DwordValue(128));
    passes.Read();
    CHECK(ComboText("cboMTU") == "1400");
    CHECK(form.Find<toolkit::ComboBox>("cboMTU").ListIndex() == toolkit::ComboBox::NoSelection);
    CHECK(ComboText("cboHTTP10") == "4");
    CHECK(ComboText("cboHTTP11") == "viele");
    CHECK(Text("txtTTL") == "128");
}

TEST_CASE_FIXTURE(Network, "the second interface's MTU is written but not read") {
    PutMachine(Interface2, "MTU", DwordValue(1000));
    passes.Read();
    CHECK(ComboText("cboMTU") == "");
    Write();
    CHECK(OfMachine(Interface1, "MTU") == DwordValue(64));
    CHECK(OfMachine(Interface2, "MTU") == DwordValue(64));
}

TEST_CASE_FIXTURE(Network, "an offload value of any content reads as on and is written as 0") {
    for (const StoredValue& stored : {DwordValue(1), DwordValue(0), TextValue("nein")}) {
        PutMachine(TcpKey, "DisableTaskOffload", stored);
        Set("chkEnableNetworkProcessor", 0);
        passes.Read();
        CHECK(State("chkEnableNetworkProcessor") == 1);
        Write();
        CHECK(OfMachine(TcpKey, "DisableTaskOffload") == DwordValue(0));
    }
    Set("chkEnableNetworkProcessor", 0);
    Write();
    CHECK_FALSE(OfMachine(TcpKey, "DisableTaskOffload"));
}

TEST_CASE_FIXTURE(Network, "the script debugger's box is for show: the Windows tour writes it") {
    PutUser(IEKey, "Disable Script Debugger", TextValue("YES"));
    passes.Read();
    CHECK(State("chkScriptDebugging") == 1);
    CHECK(State("chkWindowsTour") == 0);
    Write();
    CHECK(OfUser(IEKey, "Disable Script Debugger") == BareTextValue("no"));
    CHECK(State("chkScriptDebugging") == 1);
    Set("chkScriptDebugging", 0);
    Set("chkWindowsTour", 1);
    Write();
    CHECK(OfUser(IEKey, "Disable Script Debugger") == BareTextValue("yes"));
}

TEST_CASE_FIXTURE(Network, "with Outlook 10 alone its options read as off and empty") {
    PutUser(Security10, "Level1Remove", TextValue("exe;zip"));
    PutUser(Preferences10, "MinToTray", DwordValue(1));
    Set("chkIEExtensions", 1);
    Set("chkOutlookTray", 1);
    form.Box("txtExtensions").SetText("alt");
    passes.Read();
    CHECK(State("chkIEExtensions") == 0);
    CHECK(Text("txtExtensions") == "");
    CHECK(State("chkOutlookTray") == 0);
}

TEST_CASE_FIXTURE(Network, "with both Outlooks the later is read and the earlier is written") {
    PutUser(Security10, "Level1Remove", TextValue("alt"));
    PutUser(Security11, "Level1Remove", TextValue("exe;zip"));
    PutUser(Preferences10, "MinToTray", DwordValue(0));
    PutUser(Preferences11, "MinToTray", DwordValue(1));
    passes.Read();
    CHECK(State("chkIEExtensions") == 1);
    CHECK(Text("txtExtensions") == "exe;zip");
    CHECK(State("chkOutlookTray") == 1);
    form.Box("txtExtensions").SetText("dll");
    Set("chkOutlookTray", 0);
    PutUser(Preferences10, "MinToTray", DwordValue(7));
    Write();
    CHECK(OfUser(Security10, "Level1Remove") == BareTextValue("dll"));
    CHECK(OfUser(Security10, "Level") == DwordValue(3));
    CHECK(OfUser(Security11, "Level1Remove") == TextValue("exe;zip"));
    CHECK_FALSE(OfUser(Security11, "Level"));
    CHECK(OfUser(Preferences10, "MinToTray") == DwordValue(0));
    CHECK(OfUser(Preferences11, "MinToTray") == DwordValue(1));
}

TEST_CASE_FIXTURE(Network, "with Outlook 11 alone it is read and written") {
    PutUser(Security11, "Level1Remove", TextValue("exe"));
    PutUser(Preferences11, "MinToTray", DwordValue(1));
    passes.Read();
    CHECK(State("chkIEExtensions") == 1);
    Set("chkIEExtensions", 0);
    Set("chkOutlookTray", 0);
    Write();
    CHECK(OfUser(Security11, "Level1Remove") == BareTextValue(""));
    CHECK(OfUser(Security11, "Level") == DwordValue(3));
    CHECK(OfUser(Preferences11, "MinToTray") == DwordValue(0));
    CHECK_FALSE(HasUserKey(Security10));
    CHECK_FALSE(HasUserKey(Preferences10));
}

TEST_CASE_FIXTURE(Network, "without Outlook none of its keys is made") {
    Set("chkIEExtensions", 1);
    Set("chkOutlookTray", 1);
    Write();
    CHECK_FALSE(HasUserKey("Software\\Microsoft\\Office"));
}

TEST_CASE_FIXTURE(Network, "each of Outlook's options looks for its own key") {
    machine.registry.MakeKey(Service::CurrentUser, Security10);
    machine.registry.MakeKey(Service::CurrentUser, Preferences11);
    Set("chkIEExtensions", 1);
    Set("chkOutlookTray", 1);
    form.Box("txtExtensions").SetText(std::string(65536, 'x'));
    Write();
    CHECK(OfUser(Security10, "Level1Remove") == BareTextValue(std::string(65536, 'x')));
    CHECK(OfUser(Preferences11, "MinToTray") == DwordValue(1));
    CHECK_FALSE(HasUserKey(Security11));
    CHECK_FALSE(HasUserKey(Preferences10));
    CHECK(Named("RegSetValueExA", {"Level", "Level1Remove"}) == Texts{"Level", "Level1Remove"});
}

TEST_CASE_FIXTURE(Network, "a shut window place is stored as its 131 characters") {
    Set("chkIEWinPos", 0);
    Write();
    StoredValue place = BareTextValue(
        "2c,00,00,00,02,00,00,00,03,00,00,00,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,ff,"
        "00,00,00,00,00,00,00,00,00,04,00,00,e2,02,00,00");
    place.type = Service::Binary;
    CHECK(place.bytes.size() == 131);
    CHECK(OfUser(IEKey, "Window_Placement") == place);
    passes.Read();
    CHECK(State("chkIEWinPos") == 0);
    Set("chkIEWinPos", 1);
    Write();
    CHECK_FALSE(OfUser(IEKey, "Window_Placement"));
}

TEST_CASE_FIXTURE(Network, "an empty box takes the search page away, umlauts pass") {
    PutUser(IEKey, "Search Page", TextValue("http://suche/"));
    passes.Read();
    CHECK(Text("txtIETitel") == "http://suche/");
    form.Box("txtIETitel").SetText("");
    Write();
    CHECK(OfUser(IEKey, "Search Page") == BareTextValue(""));
    form.Box("txtIETitel").SetText("Größe");
    Write();
    CHECK(OfUser(IEKey, "Search Page") == BareTextValue("Größe"));
}

TEST_CASE_FIXTURE(Network, "the password option is compared as a number and written as a text") {
    for (const StoredValue& stored : {DwordValue(1), TextValue("1"), TextValue("01")}) {
        PutUser(InternetKey, "DisablePasswordCaching", stored);
        Set("chkPWEntrys", 0);
        passes.Read();
        CHECK(State("chkPWEntrys") == 1);
        Write();
        CHECK(OfUser(InternetKey, "DisablePasswordCaching") == BareTextValue("1"));
    }
    Set("chkPWEntrys", 0);
    Write();
    CHECK_FALSE(OfUser(InternetKey, "DisablePasswordCaching"));
}

TEST_CASE_FIXTURE(Network, "the name cache's four values are written and deleted in order") {
    const Texts names = {"CacheHashTableBucketSize", "CacheHashTableSize", "MaxCacheEntryTtlLimit",
                         "MaxSOACacheEntryTtlLimit"};
    Set("chkDNSSpeed", 1);
    Write();
    CHECK(Named("RegSetValueExA", names) == names);
    Set("chkDNSSpeed", 0);
    Write();
    CHECK(Named("RegDeleteValueA", names) == names);
}

TEST_CASE_FIXTURE(Network, "one value of a pair decides, the other is not read") {
    const std::string services = "SYSTEM\\CurrentControlSet\\Services\\";
    PutMachine(services + "LanmanWorkstation\\Parameters", "MaxThreads", DwordValue(104));
    PutMachine(services + "AFD\\Parameters", "PriorityBoost", DwordValue(10));
    PutMachine(services + "Dnscache\\Parameters", "CacheHashTableSize", DwordValue(384));
    passes.Read();
    for (const char* name : {"chkNetworkSpeed", "chkTCPTuning", "chkDNSSpeed"}) {
        CAPTURE(name);
        CHECK(State(name) == 0);
    }
}

TEST_CASE_FIXTURE(Network, "the task search of Windows itself reads as removed and is removed") {
    machine.registry.MakeKey(Service::LocalMachine, TasksKey);
    passes.Read();
    CHECK(State("chkNetworkTasks") == 1);
    Write();
    CHECK_FALSE(HasMachineKey(TasksKey));
    Write();
    CHECK_FALSE(HasMachineKey(TasksKey));
}

TEST_CASE_FIXTURE(Network, "the task search comes back with a value of the name (Standard)") {
    Set("chkNetworkTasks", 0);
    Write();
    CHECK(OfMachine(TasksKey, "(Standard)") == BareTextValue(""));
    passes.Read();
    CHECK(State("chkNetworkTasks") == 0);
}

TEST_CASE_FIXTURE(Network, "a task search that is there gets no value") {
    machine.registry.MakeKey(Service::LocalMachine, TasksKey);
    Set("chkNetworkTasks", 0);
    Write();
    CHECK(HasMachineKey(TasksKey));
    CHECK_FALSE(OfMachine(TasksKey, "(Standard)"));
}

TEST_CASE_FIXTURE(Network, "a task search with keys below it stays") {
    const std::string below = std::string(TasksKey) + "\\Unter";
    machine.registry.MakeKey(Service::LocalMachine, below);
    Set("chkNetworkTasks", 1);
    Write();
    CHECK(HasMachineKey(below));
}
