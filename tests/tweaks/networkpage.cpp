#include "tweaks/networkpage.h"

#include <doctest/doctest.h>

#include "runtime/failure.h"
#include "toolkit/combobox.h"
#include "tweaks/networksets.h"
#include "tweaks/pagefixture.h"
#include "tweaks/pagelook.h"

using namespace tweak_tests;

namespace {

struct NetworkPage : OnePage {
    NetworkPage() : OnePage(tweaks::AddNetworkPage) {}

    toolkit::OptionButton& Type(int index) {
        return form.Find<toolkit::OptionButton>("optOptimalDFUESets(" + std::to_string(index) +
                                                ")");
    }
    // The number of the selected type, -1 for none.
    int Selected() {
        int selected = -1;
        for (int index = 0; index < 5; ++index) {
            if (Type(index).Value()) selected = index;
        }
        return selected;
    }
    // The values of the type "DSL".
    void ShowDsl() {
        const std::pair<const char*, const char*> texts[] = {{"cboMTU", "1492"},
                                                             {"txtRWIN", "32767"},
                                                             {"txtTTL", "64"},
                                                             {"cboHTTP10", "20"},
                                                             {"cboHTTP11", "8"}};
        for (const auto& [name, text] : texts) tweaks::SetTextOfControl(form, name, text);
        for (const char* name : {"chkAutoMTU", "chkSACK"}) {
            form.Find<toolkit::CheckBox>(name).SetValue(1);
        }
    }
    int Marked() {
        tweaks::MarkNetworkSet(form, machine.locale.Signs());
        return Selected();
    }
};

}  // namespace

TEST_CASE_FIXTURE(NetworkPage, "the page DFÜ has all controls in the order in which one reads") {
    std::string names;
    for (const auto& control : form.Controls()) names += control->Name() + ' ';
    CHECK(names ==
          "Label7 Line3D(Label7) Frame2 lblMTU cboMTU lblRWIN txtRWIN lblTTL txtTTL "
          "fraHTTPConnections lblHTTP10 cboHTTP10 lblHTTP11 cboHTTP11 "
          "fraThreads chkEnableNetworkProcessor chkDNSSpeed chkNetworkSpeed chkTCPTuning "
          "chkNetworkTasks fraADvanced chkSACK chkAutoMTU chkMUTBH chkIPForwarding "
          "fraIESpecials chkPWEntrys chkIEWinPos Label8 txtIETitel chkScriptDebugging "
          "chkNotifyDownloadReady fraIE6 chkIEExtensions txtExtensions cmdExtensionDefault "
          "chkOutlookTray Frame3 optOptimalDFUESets(0) optOptimalDFUESets(1) "
          "optOptimalDFUESets(2) optOptimalDFUESets(3) optOptimalDFUESets(4) "
          "cmdStandardDfue cmdOptimalDfue ");
}

TEST_CASE_FIXTURE(NetworkPage, "the page DFÜ carries its captions") {
    const std::pair<const char*, const char*> captions[] = {
        {"Label7", "DFÜ Einstellungen"},
        {"Frame2", "DFÜ-Einstellungen"},
        {"fraHTTPConnections", "Simultane HTTP Verbindungen"},
        {"fraADvanced", "Erweiterte Optionen"},
        {"Frame3", "Optimale Settings"},
        {"fraThreads", "Netzwerk && Internet"},
        {"fraIESpecials", "Internet Explorer"},
        {"fraIE6", "Outlook XP/2003"},
        {"lblMTU", "MTU:"},
        {"lblRWIN", "RWIN:"},
        {"lblTTL", "TTL:"},
        {"lblHTTP10", "HTTP 1.0"},
        {"lblHTTP11", "HTTP 1.1"},
        {"Label8", "IE Suchseite:"},
        {"optOptimalDFUESets(0)", "Manuell"},
        {"optOptimalDFUESets(1)", "Analog"},
        {"optOptimalDFUESets(2)", "ISDN"},
        {"optOptimalDFUESets(3)", "Netzwerk"},
        {"optOptimalDFUESets(4)", "DSL"},
        {"cmdExtensionDefault", "Standard"},
        {"cmdStandardDfue", "Standard"},
        {"cmdOptimalDfue", "Empfohlen"},
    };
    for (const auto& [name, caption] : captions) {
        CAPTURE(name);
        REQUIRE(form.FindControl(name));
        CHECK(form.FindControl(name)->Caption() == caption);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "each control of the page DFÜ stands in its own group") {
    CHECK(GroupsOf(form) ==
          "- Label7 Line3D(Label7) cmdStandardDfue cmdOptimalDfue\n"
          "Frame2: lblMTU cboMTU lblRWIN txtRWIN lblTTL txtTTL\n"
          "fraHTTPConnections: lblHTTP10 cboHTTP10 lblHTTP11 cboHTTP11\n"
          "fraThreads: chkEnableNetworkProcessor chkDNSSpeed chkNetworkSpeed chkTCPTuning "
          "chkNetworkTasks\n"
          "fraADvanced: chkSACK chkAutoMTU chkMUTBH chkIPForwarding\n"
          "fraIESpecials: chkPWEntrys chkIEWinPos Label8 txtIETitel chkScriptDebugging "
          "chkNotifyDownloadReady\n"
          "fraIE6: chkIEExtensions txtExtensions cmdExtensionDefault chkOutlookTray\n"
          "Frame3: optOptimalDFUESets(0) optOptimalDFUESets(1) optOptimalDFUESets(2) "
          "optOptimalDFUESets(3) optOptimalDFUESets(4)\n");
}

TEST_CASE_FIXTURE(NetworkPage, "the page DFÜ fits its area and no two controls overlap") {
    CheckFits(form);
}

TEST_CASE_FIXTURE(NetworkPage, "every caption of the page DFÜ has room for its text") {
    CheckCaptionsHaveRoom(form);
}

TEST_CASE_FIXTURE(NetworkPage, "the page DFÜ's own buttons stand where those of System do") {
    CheckAtBottomRight(form, "cmdOptimalDfue");
}

TEST_CASE_FIXTURE(NetworkPage,
                  "the search page takes 255 characters, the other fields any number") {
    Box("txtIETitel").SetText(std::string(300, 'x'));
    CHECK(Box("txtIETitel").Text().size() == 255);
    CHECK(Box("txtIETitel").Style().maxLength == 255);
    for (const char* name : {"txtRWIN", "txtTTL", "txtExtensions"}) {
        CHECK(Box(name).Style().maxLength == 0);
    }
    for (const char* name : {"cboMTU", "cboHTTP10", "cboHTTP11"}) {
        const auto& style = form.Find<toolkit::ComboBox>(name).Style();
        CHECK(style.maxLength == 0);
        CHECK_FALSE(style.listOnly);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "no connection type is selected at first, and then only one") {
    CHECK(Selected() == -1);
    for (int index = 0; index < 5; ++index) {
        Type(index).SetValue(true);
        int selected = 0;
        for (int other = 0; other < 5; ++other) selected += Type(other).Value() ? 1 : 0;
        CHECK(selected == 1);
        CHECK(Selected() == index);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "the four sets of values are those of their connection types") {
    struct Row {
        const char* option;
        std::vector<int> values;
    };
    const Row rows[] = {{"optOptimalDFUESets(1)", {576, 2144, 128, 4, 2, 0, 1, 1}},
                        {"optOptimalDFUESets(2)", {1472, 11680, 64, 8, 6, 0, 1, 1}},
                        {"optOptimalDFUESets(3)", {3000, 32767, 64, 20, 8, 0, 1, 1}},
                        {"optOptimalDFUESets(4)", {1492, 32767, 64, 20, 8, 0, 1, 1}}};
    const auto sets = tweaks::NetworkSets();
    REQUIRE(sets.size() == 4);
    for (std::size_t i = 0; i < 4; ++i) {
        CAPTURE(i);
        const tweaks::NetworkSet& set = sets[i];
        CHECK(std::string(set.option) == rows[i].option);
        CHECK(std::vector<int>{set.cboMTU, set.txtRWIN, set.txtTTL, set.cboHTTP10, set.cboHTTP11,
                               set.chkMUTBH, set.chkAutoMTU, set.chkSACK} == rows[i].values);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "a type is marked only when all eight controls agree") {
    ShowDsl();
    CHECK(Marked() == 4);
    for (const char* name : {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"}) {
        CAPTURE(name);
        NetworkPage other;
        other.ShowDsl();
        tweaks::SetTextOfControl(other.form, name, "7");
        CHECK(other.Marked() == -1);
    }
    for (const char* name : {"chkMUTBH", "chkAutoMTU", "chkSACK"}) {
        CAPTURE(name);
        NetworkPage other;
        other.ShowDsl();
        other.form.Find<toolkit::CheckBox>(name).Toggle();
        CHECK(other.Marked() == -1);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "the texts are compared as numbers") {
    ShowDsl();
    for (const char* text : {"1492,0", " 1492 ", "1.492", "+1492", "14,92e2", "&H5D4", "01492"}) {
        CAPTURE(text);
        NetworkPage other;
        other.ShowDsl();
        tweaks::SetTextOfControl(other.form, "cboMTU", text);
        CHECK(other.Marked() == 4);
    }
    for (const char* text : {"1492,4", "1491,9", "-1492", "14.92e2,"}) {
        CAPTURE(text);
        NetworkPage other;
        other.ShowDsl();
        tweaks::SetTextOfControl(other.form, "cboMTU", text);
        CHECK(other.Marked() == -1);
    }
}

TEST_CASE_FIXTURE(NetworkPage, "a text that is no number marks nothing and fails nothing") {
    for (const char* name : {"cboMTU", "txtRWIN", "txtTTL", "cboHTTP10", "cboHTTP11"}) {
        for (const std::string text : {"", "abc", "ä", "1492x", "１４９２"}) {
            CAPTURE(name);
            CAPTURE(text);
            NetworkPage other;
            other.ShowDsl();
            tweaks::SetTextOfControl(other.form, name, text);
            int marked = 0;
            CHECK_NOTHROW(marked = other.Marked());
            CHECK(marked == -1);
        }
    }
}

TEST_CASE_FIXTURE(NetworkPage, "where no type fits, the selection stays as it is") {
    Type(2).SetValue(true);
    SUBCASE("for want of numbers") {}
    SUBCASE("for numbers of no type") {
        ShowDsl();
        tweaks::SetTextOfControl(form, "txtTTL", "65");
    }
    CHECK(Marked() == 2);
}

TEST_CASE_FIXTURE(NetworkPage, "a marked type that fails in its click is passed over") {
    ShowDsl();
    Type(4).onClick = [] { throw runtime::Failure(runtime::TypeMismatch); };
    CHECK_NOTHROW(Marked());
}
