#include "tweaks/tweakspage.h"

#include "controls/pageheading.h"
#include "platform/machine.h"
#include "toolkit/form.h"
#include "tweaks/pageparts.h"

namespace tweaks {
namespace {

using toolkit::Box;
using toolkit::Form;

Box TimeOutOn(Form& form) {
    Box label = LabelOn(form, {"Label9", "Timeout für \"hängende\" Programme"});
    Box box = TextBoxOn(form, "txtTimeOut", {.maxLength = 5, .columns = 6});
    return Gap(toolkit::Row({label, KeepSize(box), toolkit::Filler()}), 8);
}

// In the order of reading, line by line. The two long captions have a line of their own.
Box VariousTweaks(Form& form) {
    auto& group = form.Add<toolkit::Frame>("Frame1", "Verschiedenes");
    std::vector<Box> lines;
    const auto pair = [&](Named left, Named right) {
        lines.push_back(CheckBoxPair(form, left, right));
    };
    const auto line = [&](Named box) { lines.push_back(CheckBoxOn(form, box)); };

    pair({"chkSHMediaDLL", "Video-/Bildvorschau deaktivieren"},
         {"chkUnloadDll", "Nicht benötigte DLL's direkt entladen"});
    pair({"chkWinAnimate", "Window Animation"},
         {"chkNeroBurnSpeed", "Nero Brenngeschwindigkeit anzeigen"});
    lines.push_back(TimeOutOn(form));
    line({"chkEncryptionContext", "Ver- und Entschlüsselungsoption im Explorer-Kontextmenü"});
    pair({"chkOSVersionOnDesktop", "Windows Versionsnummer auf Desktop anzeigen"},
         {"chkOldSearchAssistent", "\"Klassische\" Suche wiederherstellen"});
    pair({"chkBalloonTipps", "BalloonTipps anzeigen"}, {"chkCDAutoPlay", "CD Autostart aktiviert"});
    form.FindControl("chkCDAutoPlay")->SetToolTip("Nur Windows XP Home Edition");
    pair({"chkDescriptionPopups", "Tooltips anzeigen"},
         {"chkDisableThumbnails", "Thumbnailcache aktiv"});
    pair({"chkBSODAutostart", "Auto Reboot bei BlueScreen (BSOD)"},
         {"chkImagePreview", "XP interner Bildbetrachter"});
    pair({"chkShortCutInk", "Shortcutpfeil bei Desktop-Icons entfernen"},
         {"chkSystemRestore", "Systemwiederherstellung aktiv"});
    pair({"chkNoSpaceCheck", "Meldung 'Zu wenig Speicherplatz'"},
         {"chkTaskBarGlooming", "Taskbarelemente gruppieren"});
    pair({"chkSystemSpeaker", "PC Speaker eingeschaltet"}, {"chkMP3BitRate", "Höhere MP3 Bitrate"});
    line({"chkHideWinComponents",
          "Windows Komponenten zur Deinstallation unter \"Software\" anzeigen"});
    pair({"chkAutoEndTasks", "Alle Tasks beim Shutdown autom. beenden"},
         {"chkShowAdminToolsInStartMenue", "Ordner \"Verwaltung\" im Startmenü anzeigen"});
    pair({"chkWindowsTour", "Windows Tour nicht mehr anzeigen"},
         {"chkCascadeExplorer", "Neue IE/Explorerfenster kaskadisch ordnen"});
    pair({"chkDOSComp", "DOS 8.3 Kompatibilität"},
         {"chkIconCache", "Icon Cache auf 1024KB erhöhen"});
    return InFrame(group, Gap(toolkit::Column(std::move(lines)), 4));
}

}  // namespace

Box AddTweaksPage(Form& form, const platform::Machine& machine) {
    Box heading = controls::PageHeading(form, "lblWindows2", "Windows Tuning #2");
    Box group = VariousTweaks(form);
    Box buttons = ButtonsOfPage(
        form, machine.clock,
        {{"cmdNormalWindows2", "TX=Standard"}, {"cmdOptimalWindows2", "TX=Empfohlen"}});
    return Gap(toolkit::Column({heading, group, toolkit::Filler(), buttons}), 6);
}

}  // namespace tweaks
