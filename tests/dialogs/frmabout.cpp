#include "dialogs/frmabout.h"

#include <doctest/doctest.h>

#include "controls/chameleonbutton.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"

namespace {

using Lines = std::vector<std::string>;
using platform::simulated::ShownMessage;

struct About {
    platform::simulated::Machine machine;
    std::string version = "v2.38";
    dialogs::frmAbout form{machine.services, version};
    controls::chameleonButton& cmdOK = form.Find<controls::chameleonButton>("cmdOK");

    // One tick of whichever timer runs.
    void Tick(int times = 1) { machine.clock.Advance(times); }
    // The dialog stands there, faded in.
    void FadeIn() {
        form.Show();
        Tick(127);
        machine.journal.Clear();
    }
    void ClickWebPage() { form.Find<toolkit::Label>("Label1").Click(); }
    Lines Alphas() const { return machine.journal.Calls("SetLayeredWindowAttributes"); }
};

std::string Applied(int alpha, int flags = 2) {
    return "SetLayeredWindowAttributes frmAbout 0 " + std::to_string(alpha) + ' ' +
           std::to_string(flags);
}

}  // namespace

TEST_CASE_FIXTURE(About, "loading asks for alpha 0 without flags, then makes the window layered") {
    form.Load();
    CHECK(machine.journal.Lines() == Lines{"OpenForm frmAbout", Applied(0, 0),
                                           "SetWindowLongA frmAbout -20 +0x80000",
                                           "SetTimer 1 -> #1"});
    CHECK(form.Layered());
    CHECK(form.Find<toolkit::Label>("lblVersion").Caption() == "v2.38");
    CHECK_FALSE(cmdOK.Enabled());
}

TEST_CASE_FIXTURE(About, "the version is the one that the program has when the dialog is loaded") {
    version = "v3.01";
    form.Load();
    CHECK(form.Find<toolkit::Label>("lblVersion").Caption() == "v3.01");
}

TEST_CASE_FIXTURE(About, "the fade-in takes 127 ticks of a millisecond, from alpha 3 to 255") {
    form.Show();
    machine.journal.Clear();
    Tick();
    CHECK(Alphas() == Lines{Applied(3)});
    Tick(125);
    CHECK(Alphas().size() == 126);
    CHECK(Alphas().back() == Applied(253));
    CHECK_FALSE(cmdOK.Enabled());
    CHECK(machine.clock.RunningTimers() == 1);
    Tick();
    CHECK(Alphas().size() == 127);
    CHECK(Alphas().back() == Applied(255));
    CHECK(cmdOK.Enabled());
    CHECK(machine.clock.RunningTimers() == 0);
    Tick(100);
    CHECK(Alphas().size() == 127);
}

TEST_CASE_FIXTURE(About, "the OK button cannot be pressed before the alpha has reached 254") {
    form.Show();
    for (int tick = 1; tick <= 126; ++tick) {
        Tick();
        cmdOK.Press();
        CAPTURE(tick);
        REQUIRE(form.Layer().alpha == 1 + 2 * tick);
        REQUIRE(form.Loaded());
    }
    Tick();
    cmdOK.Press();
    CHECK_FALSE(cmdOK.Enabled());
    Tick();
    CHECK(form.Layer().alpha == 253);
}

// From 255 in steps of 2, 4 is passed with the 126th tick: the fade-out is one tick shorter.
TEST_CASE_FIXTURE(About, "OK fades out to alpha 5 and unloads the dialog with the next tick") {
    FadeIn();
    cmdOK.Press();
    CHECK_FALSE(cmdOK.Enabled());
    CHECK(form.Layer().alpha == 255);
    Tick(125);
    CHECK(Alphas().size() == 125);
    CHECK(Alphas().front() == Applied(253));
    CHECK(Alphas().back() == Applied(5));
    CHECK(form.Loaded());
    Tick();
    CHECK(Alphas().size() == 125);
    CHECK_FALSE(form.Loaded());
    CHECK(machine.clock.RunningTimers() == 0);
}

TEST_CASE_FIXTURE(About, "Escape closes the dialog at once") {
    SUBCASE("before the first tick") {
        form.Show();
    }
    SUBCASE("during the fade-in") {
        form.Show();
        Tick(50);
    }
    SUBCASE("when it stands there") {
        FadeIn();
    }
    SUBCASE("during the fade-out") {
        FadeIn();
        cmdOK.Press();
        Tick(50);
    }
    CHECK(form.KeyPressed(toolkit::key::Escape));
    CHECK_FALSE(form.Loaded());
    CHECK_FALSE(form.Visible());
    CHECK_FALSE(cmdOK.Enabled());
    CHECK(machine.clock.RunningTimers() == 0);
    machine.journal.Clear();
    Tick(300);
    CHECK(machine.journal.Lines().empty());
}

TEST_CASE_FIXTURE(About, "where the system has no timer left, OK and Escape close without a fade") {
    FadeIn();
    machine.faults.FailAll("SetTimer", runtime::OutOfMemory);
    SUBCASE("OK") {
        cmdOK.Press();
    }
    SUBCASE("Escape") {
        CHECK(form.KeyPressed(toolkit::key::Escape));
    }
    CHECK_FALSE(form.Loaded());
}

TEST_CASE_FIXTURE(About, "other keys are not the dialog's") {
    form.Show();
    CHECK_FALSE(form.KeyPressed(0x0D));
    CHECK(form.Loaded());
}

TEST_CASE_FIXTURE(About, "the close box ends the fade, and the next showing starts anew") {
    form.Show();
    Tick(90);
    form.Unload();
    CHECK(machine.clock.RunningTimers() == 0);
    CHECK_FALSE(form.Layered());
    FadeIn();
    CHECK(form.Layer().alpha == 255);
    CHECK(cmdOK.Enabled());
}

TEST_CASE("a dialog that ends while it fades leaves no timer behind") {
    platform::simulated::Machine machine;
    const std::string version;
    {
        dialogs::frmAbout form(machine.services, version);
        form.Show();
        CHECK(machine.clock.RunningTimers() == 1);
    }
    CHECK(machine.clock.RunningTimers() == 0);
}

TEST_CASE_FIXTURE(About, "the web page opens in a browser over the whole screen but 25 pixels") {
    FadeIn();
    ClickWebPage();
    CHECK(machine.journal.Lines() ==
          Lines{"CreateObject InternetExplorer", "InternetExplorer.Visible 1",
                "InternetExplorer.Navigate \"http://www.quillmore.example/\"", "GetDeviceCaps",
                "InternetExplorer.Width 1024", "InternetExplorer.Height 743"});
    CHECK(machine.messages.Shown().empty());
    CHECK(form.Find<toolkit::Label>("Label1").Caption() == "http://www.quillmore.example/");
}

TEST_CASE_FIXTURE(About, "without Internet Explorer a box says so, and nothing else happens") {
    FadeIn();
    machine.faults.FailAll("CreateObject", runtime::CannotCreateObject);
    ClickWebPage();
    CHECK(machine.messages.Shown() ==
          std::vector<ShownMessage>{{"Fehler",
                                     "Funktioniert nur wenn Sie den Microsoft Internet Explorer "
                                     "installiert haben!",
                                     16}});
    CHECK(machine.journal.Lines().size() == 2);
    CHECK(form.Loaded());
}

TEST_CASE_FIXTURE(About, "a browser that refuses the page is no missing browser") {
    FadeIn();
    machine.faults.FailAll("InternetExplorer.Navigate", 1);
    CHECK(FailureOf([&] { ClickWebPage(); }) == 440);
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(About, "a screen of unknown size leaves the browser as large as it is") {
    FadeIn();
    machine.faults.FailAll("GetDeviceCaps", 1);
    ClickWebPage();
    CHECK(machine.journal.Calls("InternetExplorer.Navigate").size() == 1);
    CHECK(machine.journal.Calls("InternetExplorer.Width").empty());
}

TEST_CASE_FIXTURE(About, "a failing event of the fade is passed over, and the fade goes on") {
    struct Stubborn : toolkit::FormView {
        void Refresh(toolkit::FormAspect what) override {
            if (what == toolkit::FormAspect::LayerAttributes) throw runtime::Failure(5);
        }
    } stubborn;
    form.Show();
    form.SetView(&stubborn);
    Tick(127);
    CHECK(cmdOK.Enabled());
    cmdOK.Press();
    Tick(126);
    CHECK_FALSE(form.Loaded());
}
