#include <array>

#include "sweep/workflow.h"
#include "toolkit/drivelistbox.h"
#include "toolkit/keys.h"
#include "toolkit/listview.h"
#include "tools/launcherlabels.h"
#include "tweaks/presetlists.h"

namespace sweep_test {
namespace {

using app_test::Program;
using platform::Registry;
using platform::simulated::DwordValue;
using platform::simulated::TextValue;
namespace message = platform::message;
using Step = Workflow::Step;

constexpr char UninstallKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr char UserTemp[] = "C:\\Dokumente und Einstellungen\\Besitzer\\Lokale Einstellungen\\Temp";
constexpr char Recent[] = "C:\\Dokumente und Einstellungen\\Besitzer\\Recent";

// 2026-11-21 15:05:09 UTC.
const std::string TimeAnswer = "\xEE\xAC\x31\xA5";

void File(Program& program, const std::string& path) {
    program.machine.disk.MakeFile(path).content = "x";
}

void PressIn(toolkit::Form& form, const char* button) {
    form.Find<controls::chameleonButton>(button).Press();
}

// A machine with something of everything.
void Furnish(Program& program) {
    auto& machine = program.machine;
    machine.registry.Put(Registry::LocalMachine, app_test::MemoryKey, "LargeSystemCache",
                         DwordValue(1));
    machine.registry.Put(Registry::LocalMachine, app_test::SystemKey, "CSDVersion",
                         TextValue("Service Pack 3"));
    for (const char* name : {"Eins", "Zwei", "Drei"}) {
        for (const char* value : {"DisplayName", "UninstallString"}) {
            machine.registry.Put(Registry::LocalMachine, std::string(UninstallKey) + name, value,
                                 TextValue(name));
        }
    }
    for (const char* url : {"http://a/", "Cookie:b", "http://c/"}) {
        machine.internetCache.Add({.url = url});
    }
    machine.disk.MakeFolder("C:\\WINDOWS\\Temp\\Rest");
    machine.disk.MakeFolder("C:\\Programme\\Quillmore");
    machine.systemFacts.tempPath = std::string(UserTemp) + '\\';
    for (const char* path : {"C:\\WINDOWS\\Temp\\Rest\\a.txt", "C:\\a.tmp", "C:\\Ordner\\b.bak",
                             "C:\\Ordner\\Thumbs.db", "C:\\Ordner\\bleibt.txt"}) {
        File(program, path);
    }
    File(program, std::string(Recent) + "\\brief.lnk");
    File(program, std::string(UserTemp) + "\\c.dat");
    File(program, std::string(UserTemp) + "\\Unter\\d.dat");
    File(program, "C:\\WINDOWS\\inf\\sysoc.inf");
    machine.disk.At("C:\\WINDOWS\\inf\\sysoc.inf").content =
        "[Components]\r\nGames=ocgen.dll,OcEntry,games.inf,HIDE,7\r\nx=y,z,u,,7\r\n";
    const auto tray = machine.otherWindows.Open("Shell_TrayWnd");
    machine.otherWindows.Open("BaseBar");
    (void)tray;
    const auto desktop = machine.otherWindows.Open("Progman", "Program Manager");
    machine.otherWindows.Open("SysListView32", "",
                              machine.otherWindows.Open("SHELLDLL_DefView", "", desktop));
    machine.network.dialUpConnections = 1;
    for (const char* key : {"TrayIcon", "SyncServer"}) {
        machine.settingsStore.Put("Options", key, "1");
    }
    machine.settingsStore.Put("Options", "SyncServer", "0");
    machine.settingsStore.Put("Options", "ServerName", "zeit");
    machine.settingsStore.Put("Options", "Tab", "7");
    machine.settingsStore.Put("Options", "Left", "120");
    machine.settingsStore.Put("TaskBar", "Luminance", "100");
    // Where it cannot be read that the warning was accepted, it comes again.
    machine.forms.WhenModal("frmFirstInfo", [](toolkit::Form& form) { PressIn(form, "Command2"); });
    machine.network.SetTimeOf("\\\\zeit", {.hours = 10, .day = 7, .month = 8, .year = 2005});
}

void Start(Program& program) {
    program.Start();
}

void FillIn(Program& program) {
    program.FillNumbers();
    program.Check("chkMFTTuning").SetValue(1);
    program.Check("chkUnloadDll").SetValue(1);
}

Step Press(const char* button) {
    return [button](Program& program) { program.Ends([&] { program.Press(button); }); };
}

// Answers every question with Yes, as often as it comes.
void SayYes(Program& program, std::initializer_list<const char*> titles) {
    for (const char* title : titles) program.machine.messages.AnswerAll(title, message::Yes);
}

void ShowDialog(Program& program, const char* button, const char* dialog,
                const std::function<void(toolkit::Form&)>& user) {
    program.machine.forms.WhenModal(dialog, [user](toolkit::Form& form) {
        // Whatever fails, the user closes it.
        const struct Closing {
            toolkit::Form& form;
            ~Closing() {
                try {
                    form.Unload();
                } catch (const runtime::Failure&) {
                    form.Hide();
                }
            }
        } closing{form};
        user(form);
    });
    program.Press(button);
}

void PrepareSearch(Program& program) {
    for (const char* box :
         {"chkRecentDocFolder", "chkCleanUserTempFolder", "chkDeleteThumbs", "chkScanAll"}) {
        program.Check(box).SetValue(1);
    }
}

void PrepareRemoval(Program& program) {
    PrepareSearch(program);
    program.Press("cmdSearchTempFiles");
    auto& list = program.form->Find<toolkit::ListView>("lvwFiles");
    for (int row = 0; row < list.Count(); ++row) list.SetTicked(row, true);
    SayYes(program, {"Tempdateien löschen"});
}

void PrepareApply(Program& program) {
    FillIn(program);
    SayYes(program, {"Einstellungen speichern", "Systemwiederherstellungspunkt"});
    program.machine.messages.AnswerAll("Einstellungen gespeichert", message::No);
}

void PrepareApplyWithPassword(Program& program) {
    FillIn(program);
    program.Check("chkAutoLogin").SetValue(1);
    program.Text("txtALPassword").SetText("geheim");
    SayYes(program, {"Einstellungen speichern", "Einstellungen gespeichert"});
    program.machine.messages.AnswerAll("Systemwiederherstellungspunkt", message::No);
}

void ApplyWithPassword(Program& program) {
    program.machine.forms.WhenModal("frmPassword", [](toolkit::Form& form) {
        form.Find<toolkit::TextBox>("txtPasswort").SetText("geheim");
        PressIn(form, "cmdOK");
    });
    program.Ends([&] { program.Press("cmdApply"); });
}

void PrepareAutoTuning(Program& program) {
    SayYes(program, {"AutoTuning"});
}

void PrepareRemovalIntoBin(Program& program) {
    program.Check("chkMoveToRecycleBin").SetValue(1);
    program.Check("chkCleanRecycleBin").SetValue(1);
    program.machine.shell.recycleBin = {"C:\\alt"};
    PrepareRemoval(program);
}

void PrepareBin(Program& program) {
    program.machine.shell.recycleBin = {"C:\\alt"};
    SayYes(program, {"Papierkorb von Laufwerk 'c: [SYSTEM]' löschen"});
}

void GrowCache(Program& program) {
    program.machine.internetCache.Add({.url = "http://d/"});
}

void SynchronizeOverInternet(Program& program) {
    program.form->Find<toolkit::OptionButton>("optAtomUhr").SetValue(true);
    program.machine.socket.Serve(37, {{TimeAnswer}});
    program.Press("cmdSynchronizeDateTime");
    program.machine.socket.RaiseAll();
}

void SynchronizeWithComputer(Program& program) {
    program.form->Find<toolkit::OptionButton>("optSynServer").SetValue(true);
    program.Press("cmdSynchronizeDateTime");
}

void PrepareLauncher(Program& program) {
    SayYes(program, {"Überprüfung der Windows XP Systemdateien"});
}

void PrepareFirstStart(Program& program) {
    Furnish(program);
    program.machine.settingsStore.Put("Options", "Accepted", "No");
}

void Add(std::vector<Workflow>& all, std::string name, Step prepare, Step act) {
    all.push_back({std::move(name), Furnish, std::move(prepare), std::move(act)});
}

void Add(std::vector<Workflow>& all, std::string name, Step act) {
    const Step nothing = [](Program&) {};
    Add(all, std::move(name), nothing, std::move(act));
}

// False when it is not listed.
bool SelectSoftware(toolkit::Form& form) {
    auto& list = form.Find<toolkit::ListView>("lvwSoftware");
    for (int row = 0; row < list.Count(); ++row) {
        if (list.Text(row) != "Eins") continue;
        list.SetSelected(row, true);
        return true;
    }
    return false;
}

void AddDialogs(std::vector<Workflow>& all) {
    using toolkit::Form;
    const auto dialog = [&](std::string name, const char* button, const char* form,
                            std::function<void(Form&, Program&)> user) {
        Add(all, std::move(name), [=](Program& program) {
            ShowDialog(program, button, form, [&](Form& shown) { user(shown, program); });
        });
    };
    dialog("about: fade, link, OK", "cmdAbout", "frmAbout", [](Form& form, Program& program) {
        program.machine.clock.Advance(300);
        form.Find<toolkit::Label>("Label1").Click();
        PressIn(form, "cmdOK");
        program.machine.clock.Advance(300);
    });
    dialog("about: Escape", "cmdAbout", "frmAbout",
           [](Form& form, Program&) { form.KeyPressed(toolkit::key::Escape); });
    dialog("system information: Kopieren, Schließen", "cmdSysInfo", "frmSystemInformation",
           [](Form& form, Program&) {
               PressIn(form, "cmdCopy");
               PressIn(form, "cmdClose");
           });
    dialog("logged-on users: Aktualisieren, OK", "cmdShowAllLoggedOnUsers",
           "frmShowAllLoggedInUsers", [](Form& form, Program&) {
               PressIn(form, "cmdRefresh");
               PressIn(form, "cmdOK");
           });
    const auto software = [&](std::string name, std::function<void(Form&, Program&)> user) {
        dialog("installed software: " + name, "cmdInstalledSoftware", "frmInstalledSoftware",
               std::move(user));
    };
    software("Aktualisieren, OK", [](Form& form, Program&) {
        PressIn(form, "cmdRefresh");
        PressIn(form, "cmdOK");
    });
    software("Ungültige Einträge suchen", [](Form& form, Program&) {
        PressIn(form, "cmdFindInvalidLinks");
        form.KeyPressed(toolkit::key::F5);
    });
    software("Deinstallieren", [](Form& form, Program& program) {
        if (SelectSoftware(form)) PressIn(form, "cmdUninstall");
        program.machine.clock.Advance(5000);
    });
    software("double click", [](Form& form, Program& program) {
        SayYes(program, {"Deinstallieren"});
        if (SelectSoftware(form)) form.Find<toolkit::ListView>("lvwSoftware").DoubleClick();
        program.machine.clock.Advance(5000);
    });
    software("Eintrag löschen", [](Form& form, Program& program) {
        SayYes(program, {"Eins löschen"});
        if (SelectSoftware(form)) PressIn(form, "cmdDeleteItem");
    });
    const auto drives = [&](std::string name, std::function<void(Form&, Program&)> user) {
        dialog("virtual drives: " + name, "cmdVirtualDrive", "frmVirtualDrive", std::move(user));
    };
    const auto browse = [](Form& form, Program& program) {
        program.machine.shell.WhenBrowsing([](platform::simulated::FolderDialog& chooser) {
            chooser.Select("C:\\Ordner");
            return true;
        });
        PressIn(form, "cmdbroswe");
    };
    drives("Durchsuchen, erstellen, Schließen", [browse](Form& form, Program& program) {
        browse(form, program);
        PressIn(form, "cmdcreate");
        // A path that is left there would be asked for.
        if (form.Find<toolkit::TextBox>("txtPathName").Text().empty()) PressIn(form, "cmdexit");
    });
    drives("entfernen", [](Form& form, Program& program) {
        SayYes(program, {"Virtuelles Laufwerk löschen"});
        auto& list = form.Find<toolkit::ListView>("lstDrives");
        if (list.Count() == 0) return;
        list.SetSelected(0, true);
        list.Click();
        PressIn(form, "cmddelete");
    });
    drives("wieder herstellen",
           [](Form& form, Program&) { form.Find<toolkit::CheckBox>("chkrestore").SetValue(1); });
}

// The command shell of the drives writes one drive into the file that its command names.
void ServeSubst(Program& program) {
    auto& machine = program.machine;
    machine.processes.whenStarted = [&machine](const std::string& command) {
        if (command.find("> tmpout.txt") != std::string::npos) {
            machine.disk.MakeFile("C:\\tmpout.txt").content = "X:\\: => C:\\Ordner\r\n";
        }
        return platform::simulated::Processes::Run{};
    };
}

constexpr std::array SessionButtons = {"cmdShutdown(0)", "cmdShutdown(1)", "cmdShutdown(2)",
                                       "cmdLockWS"};
constexpr std::array TrayItems = {"Quillmore",
                                  "Workstation sperren",
                                  "Benutzer abmelden",
                                  "Computer neu starten",
                                  "Computer ausschalten",
                                  "Beenden"};

void AddSessions(std::vector<Workflow>& all) {
    const auto sayYes = [](Program& program) {
        SayYes(program, {"Benutzer abmelden", "Computer neu starten", "Computer herunterfahren"});
    };
    for (const char* button : SessionButtons) {
        Add(all, std::string("session: ") + button, sayYes, Press(button));
    }
    for (const char* item : TrayItems) {
        const Step hide = [=](Program& program) {
            sayYes(program);
            program.form->SetState(toolkit::WindowState::Minimised);
        };
        const Step pick = [item](Program& program) {
            program.Ends([&] {
                program.machine.menus.Pick(item);
                program.machine.tray.onMouseUp(platform::Tray::RightButton);
            });
        };
        Add(all, std::string("tray: ") + item, hide, pick);
    }
    Add(all, "tray: minimise and restore", [](Program& program) {
        program.form->SetState(toolkit::WindowState::Minimised);
        program.machine.tray.onRestore();
    });
}

void AddBoxes(std::vector<Workflow>& all) {
    for (const char* box :
         {"chkHideWinComponents", "chkSecureWindows", "chk1RecycleBinDelete", "chkSHMediaDLL",
          "chkIcons", "chkCreateAutoStart", "chkScanAll", "chkCleanUserTempFolder"}) {
        Add(all, std::string("box: ") + box,
            [box](Program& program) { program.Check(box).Toggle(); });
    }
    Add(all, "slider: taskbar",
        [](Program& program) { program.form->Find<toolkit::Slider>("Level").SetValue(80); });
    Add(all, "slider: by its box",
        [](Program& program) { program.Text("txtLevelValue").SetText("90"); });
}

void AddLaunchers(std::vector<Workflow>& all) {
    Program program;
    program.Start();
    for (const auto& control : program.form->Controls()) {
        const auto* label = dynamic_cast<const toolkit::Label*>(control.get());
        if (!label || !label->onClick) continue;
        const std::string name = label->Name();
        const Step click = [name](Program& started) {
            started.form->Find<toolkit::Label>(name).Click();
        };
        Add(all, "launcher: " + name, PrepareLauncher, click);
    }
    Add(all, "launcher: cmdHilfe", Press("cmdHilfe"));
}

}  // namespace

std::vector<Workflow> Workflows() {
    std::vector<Workflow> all;
    all.push_back({"start", Furnish, nullptr, Start});
    all.push_back({"first start", PrepareFirstStart, nullptr, Start});
    Add(all, "close", [](Program& program) { program.Close(); });
    Add(all, "Apply", PrepareApply, Press("cmdApply"));
    Add(all, "Apply with password and restart", PrepareApplyWithPassword, ApplyWithPassword);
    for (const tweaks::PresetButton& button : tweaks::PresetButtons()) {
        Add(all, std::string("preset: ") + button.name, Press(button.name));
    }
    Add(all, "preset: cmdPathDefault", Press("cmdPathDefault"));
    for (const char* type : {"1", "2", "3", "4"}) {
        const std::string name = std::string("optOptimalDFUESets(") + type + ')';
        Add(all, "preset: " + name, [name](Program& program) {
            program.form->Find<toolkit::OptionButton>(name).SetValue(true);
        });
    }
    Add(all, "AutoTuning", PrepareAutoTuning, Press("cmdSetAllOptimal"));
    Add(all, "search", PrepareSearch, Press("cmdSearchTempFiles"));
    Add(all, "removal", PrepareRemoval, Press("cmdCleanTempFiles"));
    Add(all, "removal into the bin, with the bin emptied", PrepareRemovalIntoBin,
        Press("cmdCleanTempFiles"));
    Add(all, "bin", PrepareBin, Press("cmdCleanBinDirect"));
    Add(all, "cache: Aktualisieren", GrowCache, Press("cmdUpdateIECache"));
    Add(all, "cache: löschen", Press("cmdClearIECache"));
    Add(all, "time: server of the Internet", SynchronizeOverInternet);
    Add(all, "time: computer of the network", SynchronizeWithComputer);
    Add(all, "memory", Press("cmdFreeMemory"));
    AddDialogs(all);
    AddSessions(all);
    AddBoxes(all);
    AddLaunchers(all);
    for (Workflow& workflow : all) {
        if (workflow.name.starts_with("virtual drives")) {
            workflow.seed = [](Program& program) {
                Furnish(program);
                ServeSubst(program);
            };
        }
    }
    return all;
}

}  // namespace sweep_test
