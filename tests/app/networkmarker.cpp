// What start-up makes of the page DFÜ: the mark of the connection type, and the fields' events.
#include <doctest/doctest.h>

#include "app/program.h"

using namespace app_test;
using platform::Registry;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;

namespace {

constexpr char Interface1[] =
    "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"
    "\\{3BD4192A-BF2A-4EBA-B0E7-7C61AE30590E}";
constexpr char InternetKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

struct NetworkValues {
    std::uint32_t mtu, rwin, ttl, http10, http11, blackhole, autoMtu, sack;
};
constexpr NetworkValues Dsl{1492, 32767, 64, 20, 8, 0, 1, 1};

struct Connected : Program {
    void Put(const char* key, const char* value, platform::simulated::StoredValue stored) {
        machine.registry.Put(Registry::LocalMachine, key, value, std::move(stored));
    }
    void Put(const NetworkValues& stored) {
        Put(Interface1, "MTU", DwordValue(stored.mtu));
        Put(TcpKey, "TcpWindowSize", DwordValue(stored.rwin));
        Put(TcpKey, "DefaultTTL", DwordValue(stored.ttl));
        Put(InternetKey, "MaxConnectionsPer1_0Server", DwordValue(stored.http10));
        Put(InternetKey, "MaxConnectionsPerServer", DwordValue(stored.http11));
        Put(TcpKey, "EnablePMTUBHDetect", DwordValue(stored.blackhole));
        Put(TcpKey, "EnablePMTUDiscovery", DwordValue(stored.autoMtu));
        Put(TcpKey, "SackOpts", DwordValue(stored.sack));
    }
    // The number of the selected connection type after a start, -1 for none.
    int Marked() {
        REQUIRE(Start());
        CHECK(form->Visible());
        int marked = -1;
        for (int index = 0; index < 5; ++index) {
            const std::string name = "optOptimalDFUESets(" + std::to_string(index) + ")";
            if (form->Find<toolkit::OptionButton>(name).Value()) marked = index;
        }
        return marked;
    }
};

}  // namespace

TEST_CASE("a connection type and a time source are chosen beside each other") {
    Connected program;
    REQUIRE(program.Start());
    const auto option = [&](const char* name) -> toolkit::OptionButton& {
        return program.form->Find<toolkit::OptionButton>(name);
    };
    option("optSynServer").SetValue(true);
    option("optOptimalDFUESets(2)").SetValue(true);
    CHECK(option("optSynServer").Value());
    option("optAtomUhr").SetValue(true);
    CHECK(option("optOptimalDFUESets(2)").Value());
    CHECK_FALSE(option("optSynServer").Value());
}

TEST_CASE("the connection type whose values the registry holds is selected at the start") {
    const std::pair<int, NetworkValues> types[] = {{1, {576, 2144, 128, 4, 2, 0, 1, 1}},
                                                   {2, {1472, 11680, 64, 8, 6, 0, 1, 1}},
                                                   {3, {3000, 32767, 64, 20, 8, 0, 1, 1}},
                                                   {4, Dsl}};
    for (const auto& [type, stored] : types) {
        CAPTURE(type);
        Connected program;
        program.Put(stored);
        CHECK(program.Marked() == type);
    }
}

TEST_CASE("without any network value no connection type is selected") {
    Connected program;
    CHECK(program.Marked() == -1);
}

TEST_CASE("a denied network key selects no connection type") {
    Connected program;
    program.Put(Dsl);
    program.machine.registry.Deny(Registry::LocalMachine, TcpKey);
    CHECK(program.Marked() == -1);
}

TEST_CASE("values of the type text select the connection type too") {
    Connected program;
    program.Put(Dsl);
    program.Put(Interface1, "MTU", TextValue("1492"));
    program.Put(TcpKey, "TcpWindowSize", TextValue("32.767"));
    CHECK(program.Marked() == 4);
}

TEST_CASE("the type selected at the start puts its own texts in place of equal numbers") {
    Connected program;
    program.Put(Dsl);
    program.Put(Interface1, "MTU", TextValue("1.492"));
    program.Put(TcpKey, "TcpWindowSize", TextValue(" 32767 "));
    const auto before = program.machine.registry.Dump();
    CHECK(program.Marked() == 4);
    CHECK(program.Combo("cboMTU").Text() == "1492");
    CHECK(program.Text("txtRWIN").Text() == "32767");
    CHECK(program.machine.registry.Dump() == before);
}

TEST_CASE("a single text that is no number selects no type and spoils no start") {
    for (const char* value : {"TcpWindowSize", "DefaultTTL"}) {
        Connected program;
        program.Put(Dsl);
        program.Put(TcpKey, value, TextValue("groß"));
        CHECK(program.Marked() == -1);
        CHECK_FALSE(program.machine.files.Content(LogPath).has_value());
    }
}

TEST_CASE("the window size read from the registry stands over the derived one") {
    Connected program;
    program.Put(Interface1, "MTU", DwordValue(1500));
    program.Put(TcpKey, "TcpWindowSize", DwordValue(17520));
    REQUIRE(program.Start());
    CHECK(program.Text("txtRWIN").Text() == "17520");
}

TEST_CASE("a window size that is absent stays empty under any MTU") {
    Connected program;
    program.Put(Interface1, "MTU", DwordValue(1500));
    REQUIRE(program.Start());
    CHECK(program.Text("txtRWIN").Text() == "");
}

TEST_CASE("the window size follows the MTU, typed or chosen from the list") {
    Connected program;
    REQUIRE(program.Start());
    const std::pair<const char*, const char*> typed[] = {
        {"1", "-156"}, {"15", "-100"}, {"150", "440"}, {"1500", "5840"}, {"", "-160"}};
    for (const auto& [mtu, window] : typed) {
        program.Combo("cboMTU").SetText(mtu);
        CHECK(program.Text("txtRWIN").Text() == window);
    }
    program.Combo("cboMTU").SetListIndex(1);
    CHECK(program.Text("txtRWIN").Text() == "2144");
}

TEST_CASE("the number fields swallow letters and let digits and Backspace pass") {
    Connected program;
    REQUIRE(program.Start());
    toolkit::KeyHandler* handlers[] = {
        &program.Combo("cboMTU").onKeyPress, &program.Combo("cboHTTP10").onKeyPress,
        &program.Combo("cboHTTP11").onKeyPress, &program.Text("txtRWIN").onKeyPress,
        &program.Text("txtTTL").onKeyPress};
    for (const toolkit::KeyHandler* handler : handlers) {
        REQUIRE(*handler);
        for (const auto& [typed, left] :
             {std::pair{u'7', u'7'}, {u'\b', u'\b'}, {u'x', u'\0'}, {u',', u'\0'}, {u'-', u'\0'}}) {
            char16_t key = typed;
            (*handler)(key);
            CHECK(key == left);
        }
    }
    CHECK_FALSE(program.Text("txtIETitel").onKeyPress);
}

TEST_CASE("choosing Manuell behind the start changes no number and no registry value") {
    Connected program;
    program.Put(Dsl);
    REQUIRE(program.Start());
    program.machine.journal.Clear();
    program.form->Find<toolkit::OptionButton>("optOptimalDFUESets(0)").SetValue(true);
    CHECK(program.Combo("cboMTU").Text() == "1492");
    CHECK(program.machine.journal.Text().empty());
}
