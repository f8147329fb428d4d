#include "app/startup.h"

#include <cstdint>
#include <string>

#include "app/frmmain.h"
#include "app/programoptions.h"
#include "dialogs/forminform.h"
#include "dialogs/frmfirstinfo.h"
#include "platform/locale.h"
#include "platform/messages.h"
#include "platform/operatingsystem.h"
#include "platform/program.h"
#include "platform/settings.h"
#include "registry/registry.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "toolkit/controls.h"
#include "tweaks/cataloguekeys.h"
#include "tweaks/networksets.h"

namespace app {
namespace {

using platform::Settings;
using runtime::Skip;

constexpr char RawSwitch[] = "-RAW";
// One more than the last page's number: the spare one passes the test and is then refused by the
// tab control itself, so that the designed first page stays. On purpose.
constexpr std::int16_t LastStoredTab = 8;

bool WarningAccepted(const Settings& settings) {
    bool accepted = false;
    Skip([&] { accepted = settings.GetSetting("Options", "Accepted", "No") == "Yes"; });
    return accepted;
}

// Refusing leaves no trace, so nothing of the ordinary closing runs.
void AskForAcceptance(frmMain& form, const platform::Machine& machine, const Settings& settings) {
    if (WarningAccepted(settings)) return;
    Skip([&] {
        dialogs::frmFirstInfo warning(machine);
        warning.Load();
        dialogs::fFormInFormZentrieren(warning, form, machine.forms.WorkArea());
        warning.ShowModal();
    });
    if (!WarningAccepted(settings)) machine.program.End();
}

void RestoreWindow(frmMain& form, const platform::Machine& machine, const Settings& settings) {
    const runtime::NumberSigns signs = machine.locale.Signs();
    const auto stored = [&](const char* key, const std::string& current) {
        return settings.GetSetting("Options", key, current);
    };
    Skip([&] {
        const auto current = static_cast<std::int32_t>(form.State());
        const std::int16_t state =
            runtime::ToShortNumber(stored("State", runtime::ToText(current)), signs);
        if (state < 0 || state > 2) throw runtime::Failure(runtime::InvalidPropertyValue);
        form.SetState(static_cast<toolkit::WindowState>(state));
    });
    const auto restore = [&](const char* key, float current) {
        return runtime::ToSingle(stored(key, runtime::ToText(current, signs)), signs);
    };
    Skip([&] { form.SetLeft(restore("Left", form.Place().left)); });
    Skip([&] { form.SetTop(restore("Top", form.Place().top)); });
    // A window left on a screen to the left or above comes back to the edge of the main one.
    if (form.Place().left < 0) form.SetLeft(1);
    if (form.Place().top < 0) form.SetTop(1);
}

// Only the build number counts. A system that does not tell it is not the right one.
bool OperatingSystemFits(const platform::Machine& machine) {
    platform::OperatingSystemFacts facts;
    Skip([&] { facts = machine.operatingSystem.Facts(); });
    if (facts.build == platform::WindowsXpBuild) return true;
    Skip([&] {
        machine.messages.Show(
            "Dieses Programm ist NUR unter Windows XP (Build 2600) lauffähig!\r\n\r\n"
            "Ihr Betriebssystem: " +
                facts.name + " (" + std::to_string(facts.major) + "." +
                std::to_string(facts.minor) + ")\r\n\r\nZum beenden OK drücken",
            platform::message::Exclamation, "Quillmore - Falsches Betriebssystem");
    });
    return false;
}

void ShowRawNotice(const platform::Machine& machine) {
    Skip([&] {
        machine.messages.Show(
            "Sie benutzen den 'RAW MODE'. Für Schäden sind sie selbst verantwortlich!",
            platform::message::Exclamation, "RAW MODE");
    });
}

void ShowServicePack(frmMain& form, const platform::Machine& machine) {
    auto& label = form.Find<toolkit::Label>("lblSP");
    const registry::Registry values(machine.registry, machine.locale);
    if (values.RegValuePresent(registry::HKLM, tweaks::SystemKey, "CSDVersion")) {
        label.SetCaption(values.RegReadValue(registry::HKLM, tweaks::SystemKey, "CSDVersion"));
    } else {
        label.SetVisible(false);
        form.Find<toolkit::Label>("lblSPLabel").SetVisible(false);
    }
}

void RestoreTab(frmMain& form, const platform::Machine& machine, const Settings& settings) {
    std::int16_t tab = 0;
    Skip([&] {
        tab = runtime::ToShortNumber(settings.GetSetting("Options", "Tab", "0"),
                                     machine.locale.Signs());
    });
    if (tab < 0 || tab > LastStoredTab) tab = 0;
    Skip([&] { form.Find<toolkit::TabStrip>("SSTab1").SetTab(tab); });
}

// Nothing ever stores these two keys, so the choice of the time source is not remembered: only an
// entry put into the store by hand brings up the server.
void ChooseTimeSource(frmMain& form, const Settings& settings) {
    const auto choose = [&](const char* key, const char* unset, const char* option) {
        if (settings.GetSetting("Options", key, unset) != "1") return;
        form.Find<toolkit::OptionButton>(option).SetValue(true);
    };
    Skip([&] { choose("SyncAtom", "1", "optAtomUhr"); });
    Skip([&] { choose("SyncServer", "0", "optSynServer"); });
}

}  // namespace

void StartUp(frmMain& form, const platform::Machine& machine) {
    const Settings settings(machine.settingsStore);

    AskForAcceptance(form, machine, settings);
    form.StoreAtClosing();
    RestoreWindow(form, machine, settings);
    if (machine.program.CommandLine() == RawSwitch) {
        ShowRawNotice(machine);
    } else if (!OperatingSystemFits(machine)) {
        form.Unload();
        return;
    }
    Skip([&] { form.Find<toolkit::TextBox>("txtLevelValue").SetText("255"); });
    Skip([&] { form.BuildVersion(); });
    Skip([&] { form.ReadRegistry(); });
    cleanup::CleanUpPage& cleanUp = form.CleanUp();
    Skip([&] { cleanUp.internetCache.Fill(); });
    RestoreProgramOptions(form, machine);
    Skip([&] { ShowServicePack(form, machine); });
    Skip([&] { form.SetHelpTexts(); });
    Skip([&] {
        form.Find<toolkit::TextBox>("txtSyncServer")
            .SetText(settings.GetSetting("Options", "ServerName"));
    });
    Skip([&] { cleanUp.tempFiles.Start(); });
    cleanUp.tempFiles.ShowDriveSpace();
    cleanUp.internetCache.EnableClear();
    RestoreTab(form, machine, settings);
    ChooseTimeSource(form, settings);
    tweaks::MarkNetworkSet(form, machine.locale.Signs());
}

}  // namespace app
