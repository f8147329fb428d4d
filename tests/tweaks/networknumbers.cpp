// The number fields of the page DFÜ, which the write pass tests before it writes them.
#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "tweaks/pagefixture.h"

using namespace tweak_tests;
using platform::simulated::ShownMessage;

namespace {

using Texts = std::vector<std::string>;

struct Numbers : Options {
    Numbers() {
        SetAll({"1492", "32767", "64", "20", "8"});
        PutMachine(TcpKey, "TcpWindowSize", DwordValue(4711));
    }

    void Set(std::string_view name, const std::string& text) {
        tweaks::SetTextOfControl(form, name, text);
    }
    void SetAll(const Texts& texts) {
        const char* names[] = {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"};
        for (std::size_t i = 0; i < 5; ++i) Set(names[i], texts[i]);
    }
    auto Ttl() const { return OfMachine(TcpKey, "DefaultTTL"); }
    Texts Complaints() const {
        Texts texts;
        for (const ShownMessage& message : machine.messages.Shown()) {
            CHECK(message.title == "Fehler");
            // OK and Cancel, exclamation.
            CHECK(message.style == 49);
            texts.push_back(message.text);
        }
        return texts;
    }
    // Whether the pass came to the rows behind the numbers.
    bool WentOn() const { return OfMachine(TcpKey, "IPEnableRouter").has_value(); }
    // The failure that ends the pass, 0 for none.
    int Failing() {
        try {
            passes.Write();
        } catch (const runtime::Failure& failure) {
            CHECK(form.Pointer() == toolkit::Hourglass);
            CHECK_FALSE(WentOn());
            return failure.number;
        }
        CHECK(form.Pointer() == toolkit::DefaultPointer);
        CHECK(WentOn());
        return 0;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Numbers, "the numbers go to their six values, in order, as numbers") {
    CHECK(Failing() == 0);
    CHECK(machine.messages.Shown().empty());
    CHECK(OfMachine(Interface1, "MTU") == DwordValue(1492));
    CHECK(OfMachine(Interface2, "MTU") == DwordValue(1492));
    CHECK(OfMachine(TcpKey, "TcpWindowSize") == DwordValue(32767));
    CHECK(OfMachine(TcpKey, "DefaultTTL") == DwordValue(64));
    CHECK(OfMachine(InternetKey, "MaxConnectionsPer1_0Server") == DwordValue(20));
    CHECK(OfMachine(InternetKey, "MaxConnectionsPerServer") == DwordValue(8));
    const std::string journal = machine.journal.Text();
    std::size_t before = 0;
    for (const char* call : {"{3BD4192A", "{8323E657", "\"TcpWindowSize\"", "\"DefaultTTL\"",
                             "\"EnablePMTUBHDetect\"", "\"EnablePMTUDiscovery\"", "\"SackOpts\"",
                             "\"MaxConnectionsPer1_0Server\"", "\"MaxConnectionsPerServer\""}) {
        CAPTURE(call);
        const std::size_t at = journal.find(call);
        REQUIRE(at != std::string::npos);
        CHECK(at > before);
        before = at;
    }
}

TEST_CASE_FIXTURE(Numbers, "fields that are all empty bring six complaints in order") {
    SetAll({"", "", "", "", ""});
    CHECK(Failing() == 0);
    CHECK(Complaints() == Texts{"MTU falsch eingegeben", "MTU falscher Wert eingegeben",
                                "RWIN falscher Wert eingegeben", "TTL falscher Wert eingegeben",
                                "HTTP1.0 Wert falsch eingegeben",
                                "HTTP1.1 Wert falsch eingegeben"});
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, Interface1));
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, Interface2));
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, InternetKey));
    CHECK(OfMachine(TcpKey, "TcpWindowSize") == DwordValue(4711));
    CHECK_FALSE(Ttl());
}

TEST_CASE_FIXTURE(Numbers, "an MTU that is no number brings three complaints and spares RWIN") {
    for (const std::string text : {"", "abc", "14 92", "1492x", "ä", "１４９２", "--1", ","}) {
        CAPTURE(text);
        Numbers other;
        other.Set("cboMTU", text);
        CHECK(other.Failing() == 0);
        CHECK(other.Complaints() == Texts{"MTU falsch eingegeben", "MTU falscher Wert eingegeben",
                                          "RWIN falscher Wert eingegeben"});
        CHECK(other.OfMachine(TcpKey, "TcpWindowSize") == DwordValue(4711));
        CHECK(other.Ttl() == DwordValue(64));
    }
}

TEST_CASE_FIXTURE(Numbers, "an MTU that is no number hides an RWIN that is none either") {
    Set("cboMTU", "abc");
    Set("txtRWIN", "def");
    CHECK(Failing() == 0);
    CHECK(Complaints().size() == 3);
}

TEST_CASE_FIXTURE(Numbers, "an RWIN that is no number ends the pass at its value") {
    for (const std::string text : {"", "abc", "ä", "1 2"}) {
        CAPTURE(text);
        Numbers other;
        other.Set("txtRWIN", text);
        CHECK(other.Failing() == runtime::TypeMismatch);
        CHECK(other.machine.messages.Shown().empty());
        CHECK(other.OfMachine(Interface2, "MTU") == DwordValue(1492));
        CHECK(other.OfMachine(TcpKey, "TcpWindowSize") == DwordValue(4711));
        CHECK_FALSE(other.Ttl());
        CHECK_FALSE(other.machine.registry.HasKey(Service::LocalMachine, InternetKey));
    }
}

TEST_CASE_FIXTURE(Numbers, "each of the other fields complains alone, and the rest goes on") {
    const std::pair<const char*, const char*> fields[] = {
        {"txtTTL", "TTL falscher Wert eingegeben"},
        {"cboHTTP10", "HTTP1.0 Wert falsch eingegeben"},
        {"cboHTTP11", "HTTP1.1 Wert falsch eingegeben"}};
    for (const auto& [field, complaint] : fields) {
        CAPTURE(field);
        Numbers other;
        other.Set(field, "");
        CHECK(other.Failing() == 0);
        CHECK(other.Complaints() == Texts{complaint});
        const std::string name = field;
        CHECK(other.Ttl().has_value() == (name != "txtTTL"));
        CHECK(other.OfMachine(InternetKey, "MaxConnectionsPer1_0Server").has_value() ==
              (name != "cboHTTP10"));
        CHECK(other.OfMachine(InternetKey, "MaxConnectionsPerServer").has_value() ==
              (name != "cboHTTP11"));
    }
}

TEST_CASE("the answer to a complaint changes nothing") {
    Numbers pressesOk;
    Numbers pressesCancel;
    pressesOk.machine.messages.AnswerAll("Fehler", platform::message::Ok);
    for (Numbers* each : {&pressesOk, &pressesCancel}) {
        each->SetAll({"x", "1", "x", "x", "x"});
        CHECK(each->Failing() == 0);
        CHECK(each->Complaints().size() == 6);
    }
    CHECK(pressesOk.machine.registry.Dump() == pressesCancel.machine.registry.Dump());
}

TEST_CASE("a numeric text of any form is converted to a whole number") {
    const std::pair<std::string, std::uint32_t> texts[] = {{"1e3", 1000},
                                                           {"1E3", 1000},
                                                           {"1,5d3", 1500},
                                                           {"0", 0},
                                                           {"007", 7},
                                                           {"+5", 5},
                                                           {"5+", 5},
                                                           {"-0", 0},
                                                           {"0,4", 0},
                                                           {"-0,5", 0},
                                                           {"0,5", 0},
                                                           {"1,5", 2},
                                                           {"2,5", 2},
                                                           {"1.492", 1492},
                                                           {" 64 ", 64},
                                                           {"&H5DC", 1500},
                                                           {"&O10", 8},
                                                           {",9", 1},
                                                           {"64,", 64},
                                                           {"1e-3", 0},
                                                           {"2147483647", 2147483647},
                                                           {"2147483647,4", 2147483647}};
    for (const auto& [text, number] : texts) {
        for (const char* field : {"txtTTL", "txtRWIN"}) {
            CAPTURE(text);
            Numbers other;
            other.Set(field, text);
            CHECK(other.Failing() == 0);
            CHECK(other.machine.messages.Shown().empty());
            CHECK(other.OfMachine(
                      TcpKey, std::string(field) == "txtTTL" ? "DefaultTTL" : "TcpWindowSize") ==
                  DwordValue(number));
        }
    }
}

TEST_CASE("a number beyond 32 bits ends the pass with an overflow") {
    for (const char* field : {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"}) {
        for (const char* text :
             {"2147483648", "2147483647,5", "4294967296", "1e10", "-2147483649", "1e308"}) {
            CAPTURE(field);
            CAPTURE(text);
            Numbers other;
            other.Set(field, text);
            CHECK(other.Failing() == runtime::Overflow);
            CHECK(other.machine.messages.Shown().empty());
        }
    }
}

TEST_CASE("a number below zero ends the pass in the write") {
    for (const char* field : {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"}) {
        for (const char* text : {"-1", "1-", "-2147483648", "&HFFFF"}) {
            CAPTURE(field);
            CAPTURE(text);
            Numbers other;
            other.Set(field, text);
            CHECK(other.Failing() == runtime::InvalidProcedureCall);
        }
    }
}

TEST_CASE_FIXTURE(Numbers, "an MTU below zero leaves the key that was made for it") {
    Set("cboMTU", "-1");
    CHECK(Failing() == runtime::InvalidProcedureCall);
    CHECK(machine.registry.HasKey(Service::LocalMachine, Interface1));
    CHECK_FALSE(OfMachine(Interface1, "MTU"));
    CHECK_FALSE(machine.registry.HasKey(Service::LocalMachine, Interface2));
}

TEST_CASE("a text of 64 KiB is judged like any other") {
    const std::string zeros(65535, '0');
    const std::string nines(65536, '9');
    Numbers leading;
    leading.SetAll({zeros + "7", zeros + "8", zeros + "9", zeros + "1", zeros + "2"});
    CHECK(leading.Failing() == 0);
    CHECK(leading.OfMachine(Interface2, "MTU") == DwordValue(7));
    CHECK(leading.OfMachine(TcpKey, "TcpWindowSize") == DwordValue(8));
    // Beyond every double, so no number at all.
    Numbers endless;
    endless.SetAll({nines, "1", nines, std::string(65536, 'x'), std::string(65536, ' ')});
    CHECK(endless.Failing() == 0);
    CHECK(endless.Complaints().size() == 6);
    Numbers window;
    window.Set("txtRWIN", std::string(65536, 'x'));
    CHECK(window.Failing() == runtime::TypeMismatch);
}

TEST_CASE("the locale's decimal sign decides, not the German one") {
    Numbers other;
    other.machine.locale.signs = {".", ","};
    other.Set("txtTTL", "1.5");
    other.Set("cboHTTP10", "1,492");
    CHECK(other.Failing() == 0);
    CHECK(other.Ttl() == DwordValue(2));
    CHECK(other.OfMachine(InternetKey, "MaxConnectionsPer1_0Server") == DwordValue(1492));
}
