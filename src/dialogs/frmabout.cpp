#include "dialogs/frmabout.h"

#include <utility>

#include "controls/chameleonbutton.h"
#include "platform/browser.h"
#include "platform/messages.h"
#include "platform/systeminformation.h"
#include "runtime/failure.h"
#include "runtime/programtitle.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"

namespace dialogs {
namespace {

using controls::chameleonButton;
using controls::Persisted;
using runtime::Skip;

// Both timers.
constexpr int Interval = 1;
constexpr int Step = 2;
constexpr int Shown = 254;
constexpr int Gone = 4;

constexpr toolkit::Colour Blue = 0xFF0000;

constexpr const char* WebPage = "http://www.quillmore.example/";
// What stays free below the browser, for the taskbar.
constexpr int BelowBrowser = 25;

constexpr const char* Purpose =
    "Einstellungen, Pflege und Wartung von Windows XP unter einer Oberfläche:\r\n"
    "System, Anmeldung, Netzwerk, Internet Explorer, Aufräumen und Uhrzeit.";

constexpr const char* Risk =
    "Die Benutzung geschieht auf eigene Gefahr. Ungeeignete Einstellungen können\r\n"
    "Windows beeinträchtigen und Daten kosten. Für Ihre Sicherungen sorgen Sie selbst.";

}  // namespace

frmAbout::frmAbout(const platform::Machine& machine, const std::string& strVersion)
    : Form(machine.forms, "frmAbout", "Über Quillmore", {}),
      machine_(machine),
      version_(strVersion) {
    auto& name = Add<toolkit::Label>("Label2", std::string(runtime::ProgramTitle),
                                     toolkit::LabelStyle::Heading);
    auto& lblVersion = Add<toolkit::Label>("lblVersion", "");
    auto& purpose = Add<toolkit::Label>("Label3", Purpose);
    auto& risk = Add<toolkit::Label>("Label4", Risk);
    auto& internet = Add<toolkit::Label>("Label5", "Im Internet:");
    auto& webPage = Add<toolkit::Label>("Label1", WebPage);
    auto& cmdOK = Add<chameleonButton>("cmdOK", Persisted{"TX=OK"}, machine.clock);
    webPage.SetTextColour(Blue);
    webPage.onClick = [this] { Label1_Click(); };
    cmdOK.onClick = [this] { FadeOut(); };

    defaultButton = &cmdOK;
    sizeToContent = true;
    SetLayout(
        Margin(Gap(toolkit::Column({
                       Gap(toolkit::Column({Leaf(name), Leaf(lblVersion)}), 4),
                       Leaf(purpose),
                       Leaf(risk),
                       Gap(toolkit::Row({Leaf(internet), Leaf(webPage), toolkit::Filler()}), 8),
                       toolkit::Row({toolkit::Filler(), Leaf(cmdOK)}),
                   }),
                   16),
               16));
}

frmAbout::~frmAbout() {
    Disable(tmrBlend_);
    Disable(tmrOut_);
}

// The first call comes before the window is layered, so that the system refuses it.
void frmAbout::OnLoad() {
    alpha_ = 0;
    SetLayerAttributes({alpha_, 0});

    Find<toolkit::Label>("lblVersion").SetCaption(version_);
    Find<chameleonButton>("cmdOK").SetEnabled(false);
    alpha_ = 1;
    MakeLayered();
    Enable(tmrBlend_, &frmAbout::tmrBlend_Timer);
}

void frmAbout::tmrBlend_Timer() {
    alpha_ += Step;
    if (alpha_ >= Shown) {
        Skip([&] { Disable(tmrBlend_); });
        Skip([&] { Find<chameleonButton>("cmdOK").SetEnabled(true); });
    }
    Skip([&] { ShowAlpha(); });
}

void frmAbout::tmrOut_Timer() {
    alpha_ -= Step;
    if (alpha_ <= Gone) {
        Skip([&] { Unload(); });
        return;
    }
    Skip([&] { ShowAlpha(); });
}

bool frmAbout::OnKeyDown(int virtualKey) {
    if (virtualKey != toolkit::key::Escape) return false;
    FadeOut();
    Unload();
    return true;
}

void frmAbout::OnUnload() {
    Disable(tmrBlend_);
    Disable(tmrOut_);
}

// Only a browser that cannot be created is told of here; one that refuses ends in the platform's
// default message.
void frmAbout::Label1_Click() {
    std::unique_ptr<platform::BrowserWindow> browser;
    try {
        browser = machine_.browser.CreateInternetExplorer();
    } catch (const runtime::Failure&) {
        machine_.messages.Show(
            "Funktioniert nur wenn Sie den Microsoft Internet Explorer installiert haben!",
            platform::message::Critical, "Fehler");
        return;
    }
    browser->SetVisible(true);
    browser->Navigate(WebPage);
    const auto screen = machine_.systemInformation.MainScreen();
    if (!screen) return;
    browser->SetWidth(screen->width);
    browser->SetHeight(screen->height - BelowBrowser);
}

void frmAbout::FadeOut() {
    Find<chameleonButton>("cmdOK").SetEnabled(false);
    // Without a timer there is no fade.
    if (!Skip([this] { Enable(tmrOut_, &frmAbout::tmrOut_Timer); })) Unload();
}

void frmAbout::ShowAlpha() {
    SetLayerAttributes({alpha_, toolkit::LayerAttributes::AlphaFlag});
}

void frmAbout::Enable(Timer& timer, void (frmAbout::*tick)()) {
    if (timer != 0) return;
    timer = machine_.clock.StartTimer(Interval, [this, tick] { (this->*tick)(); });
}

void frmAbout::Disable(Timer& timer) {
    if (timer == 0) return;
    machine_.clock.StopTimer(std::exchange(timer, 0));
}

}  // namespace dialogs
