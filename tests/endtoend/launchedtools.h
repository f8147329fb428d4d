#pragma once

#include <memory>
#include <string>
#include <vector>

#include "endtoend/registrystate.h"
#include "endtoend/tools.h"

// What the labels of the page " Utilities" start.
namespace endtoend {

struct Tool {
    std::string label;
    const char* caption;
    // Below the Windows directory, as it is started.
    const char* file;
};

inline const Tool Programs[] = {
    {"lblCMD", "Eingabeaufforderung", "\\System32\\cmd.exe"},
    {"lblDatenträgerbereinigung", "Datenträgerbereinigung", "\\System32\\cleanmgr.exe"},
    {"lblDirectXDiag", "DirectX Diagnose", "\\System32\\dxdiag.exe"},
    {"lblMSConfig", "MS Config", "\\PCHEALTH\\HELPCTR\\Binaries\\msconfig"},
    {"lblRegEdit32", "Registrierungs Editor", "\\System32\\regedt32.exe"},
    {"lblTaskManager", "TaskManager", "\\System32\\taskmgr.exe"},
};

inline const Tool Consoles[] = {
    {"lblComputerverwaltung", "Computerverwaltung", "\\System32\\compmgmt.msc"},
    {"lblDatenträgerverwaltung", "Datenträgerverwaltung", "\\System32\\diskmgmt.msc"},
    {"lblDefragmentierung", "Defragmentierung", "\\System32\\dfrg.msc"},
    {"lblDiensteverwaltung", "Diensteverwaltung", "\\System32\\services.msc"},
    {"lblEreignisanzeige", "Ereignisanzeige", "\\System32\\eventvwr.msc"},
    {"lblFreigegebeneOrdner", "Freigegebene Ordner", "\\System32\\fsmgmt.msc"},
    {"lblGeräteManager", "Geräte-Manager", "\\System32\\devmgmt.msc"},
    {"lblGruppenrichtlinienEditor", "Gruppenrichtlinien-Editor", "\\System32\\gpedit.msc"},
    {"lblIndexdienst", "Indexdienst", "\\System32\\ciadv.msc"},
    {"lblKomponentendienste", "Komponentendienste ", "\\System32\\com\\comexp.msc"},
    {"lblLeistungsmonitor", "Leistungsmonitor", "\\System32\\perfmon.msc"},
    {"lblLokaleBenutzerundGruppen", "Lokale Benutzer und Gruppen", "\\System32\\lusrmgr.msc"},
    {"lblSicherheitseinstellungen", "Sicherheitseinstellungen", "\\System32\\secpol.msc"},
    {"lblWechselmedienverwaltung", "Wechselmedienverwaltung", "\\System32\\ntmsmgr.msc"},
    {"lblZertifikatManager", "Zertifikat-Manager", "\\System32\\certmgr.msc"},
};

inline const Tool Checks[] = {
    {"lblRestorePoint", "Systemwiederherstellungspunkt", "\\system32\\restore\\rstrui.exe"},
    {"lblSFC", "Systemdatei-Überprüfung", "\\System32\\sfc.exe"},
};

// Starts nothing.
inline const Tool System = {"lblSystem", "System", ""};

inline std::string PathOfTool(const Tool& tool) {
    const std::string path = WindowsFolder() + tool.file;
    // Started without it, found with it.
    return path.ends_with("msconfig") ? path + ".exe" : path;
}

template <typename Place, std::size_t Count>
std::vector<std::unique_ptr<Place>> At(const Tool (&tools)[Count]) {
    std::vector<std::unique_ptr<Place>> places;
    for (const Tool& tool : tools) places.push_back(std::make_unique<Place>(PathOfTool(tool)));
    return places;
}

// How the shell opens consoles: with a stand-in for their host.
class ConsoleHost {
  public:
    ConsoleHost() {
        WriteValue({"HKCR", ".msc", ""}, TerminatedText("MSCFile"));
        WriteValue({"HKCR", "MSCFile\\shell\\Open\\command", ""},
                   TerminatedText(standIn_.Path() + " \"%1\" %*"));
    }
    ~ConsoleHost() {
        DeleteTree("HKCR", ".msc");
        DeleteTree("HKCR", "MSCFile");
    }
    ConsoleHost(const ConsoleHost&) = delete;
    ConsoleHost& operator=(const ConsoleHost&) = delete;

    const StandIn* operator->() const { return &standIn_; }

  private:
    StandIn standIn_{SystemFolder() + "\\mmc.exe"};
};

}  // namespace endtoend
