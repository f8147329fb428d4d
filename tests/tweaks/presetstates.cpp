// Every preset from three states of the controls: what they say behind it, and each change and each
// effect on the way, in order, by a model of what one control does to another and to the machine.
#include <doctest/doctest.h>

#include <cstdlib>

#include "tweaks/presetfixture.h"

using namespace tweak_tests;

namespace {

std::string JoinedLines(const Lines& lines) {
    std::string all;
    for (const std::string& line : lines) all += line + '\n';
    return all;
}

std::string QuotedNumber(int number) {
    return '"' + std::to_string(number) + '"';
}

class Model {
  public:
    explicit Model(PresetStates states) : states(std::move(states)) {}

    void Run(const std::string& preset) {
        if (preset.starts_with("opt")) return Set(preset, "selected");
        const bool tunes = preset == AutoTuningButton;
        if (tunes) Do("MessageBox \"AutoTuning\" 36 \"AutoTuning dieses Systems starten?\"");
        for (const PresetStep& step : GoldenSteps(preset)) {
            if (step.control == "chkSecondLevelDataCache" && preset != "cmdNormal") {
                Do("GlobalMemoryStatus");
            }
            Set(step.control, step.value);
        }
        if (tunes) Do(Success);
    }

    PresetStates states;
    Lines changes;

  private:
    static constexpr char Success[] =
        "MessageBox \"AutoTuning\" 64 \"AutoTuning erfolgreich ausgeführt.\\r\\n\\r\\n"
        "Bitte stellen Sie die DFÜ-Verbindungsart manuell auf Ihren genutzten Verbindungstyp "
        "(ISDN, DSL ...) ein.\\r\\n\\r\\n"
        "Betätigen Sie dann den 'Übernehmen' Button um die Änderungen zu speichern!\"";

    void Do(const std::string& doing) { changes.push_back(doing); }

    void Save(const std::string& setting, const std::string& text) {
        Do("SaveSetting \"Quillmore\" " + setting + " \"" + text + '"');
    }

    void Act(const std::string& box, bool on) {
        if (box == "chkIcons") {
            Save("\"Desktop\" \"TransparentIcons\"", on ? "1" : "0");
        } else if (box == "chkHideWinComponents") {
            Save("\"WinComponents\" \"Show\"", on ? "true" : "false");
            Do("DeleteFile \"C:\\WINDOWS\\inf\\Sysoc.inf\" force");
            Do("OpenTextFile \"C:\\WINDOWS\\inf\\Sysoc.inf\" write 20 bytes");
        } else if (box == "chkSecureWindows") {
            Save("\"SecureWindows\" \"Regged\"", on ? "true" : "false");
            Do(std::string("Start \"regsvr32.exe %windir%\\system32\\upnp.dll ") +
               (on ? "/u " : "") + "/s\" 0");
        } else if (box == "chk1RecycleBinDelete" && !on) {
            Do("RegSetValueExA \"(Standard)\" type 1 size 0 data \"\"");
        }
    }

    // A value that stays as it is changes nothing else either.
    void Set(const std::string& control, const std::string& value) {
        if (states.at(control) == value) return;
        states[control] = value;
        changes.push_back(control + " = " + value);
        if (control == "cboMTU") {
            Set("txtRWIN", QuotedNumber((std::atoi(value.c_str() + 1) - 40) * 4));
        } else if (control == "txtStartmenu") {
            Set("sldStartmenu", value.substr(1, value.size() - 2));
        } else if (control == "txtLevelValue") {
            Set("Level", value.substr(1, value.size() - 2));
        } else if (control.starts_with("chk")) {
            Act(control, value == "1");
        } else if (control == "sldStartmenu") {
            Set("txtStartmenu", '"' + value + '"');
        } else if (control == "Level") {
            Save("\"TaskBar\" \"Luminance\"", value);
            Do("SetLayeredWindowAttributes key 0x00 alpha " + value + " flags 0x02");
            Set("txtLevelValue", '"' + value + '"');
        } else if (control.starts_with("opt") && value == "selected") {
            Select(control);
        }
    }

    void Select(const std::string& type) {
        for (int index = 0; index < 5; ++index) {
            const std::string other = "optOptimalDFUESets(" + std::to_string(index) + ")";
            if (other != type) Set(other, "not selected");
        }
        for (const PresetStep& step : GoldenSteps(type)) Set(step.control, step.value);
    }
};

void CheckFrom(void (*prepare)(Presets&)) {
    for (const std::string& preset : GoldenPresets()) {
        CAPTURE(preset);
        Presets program;
        program.machine.otherWindows.Open("Shell_TrayWnd");
        prepare(program);
        Model model(program.States());
        model.Run(preset);
        ChangeNotes changes(program.form, program.machine.journal);
        program.Press(preset);
        changes.CatchUp();
        CHECK(JoinedLines(changes.lines) == JoinedLines(model.changes));
        CHECK(program.States() == model.states);

        changes.lines.clear();
        program.Press(preset);
        INFO("pressed once more");
        CHECK(changes.lines.empty());
    }
}

}  // namespace

TEST_CASE("every preset from all off: each change and effect in its order, each control") {
    CheckFrom([](Presets& program) { program.AllOff(); });
}

TEST_CASE("every preset from all on: each change and effect in its order, each control") {
    CheckFrom([](Presets& program) { program.AllOn(); });
}

TEST_CASE("every preset from the baseline: each change and effect in its order, each control") {
    CheckFrom([](Presets& program) { program.Baseline(); });
}

TEST_CASE_FIXTURE(Presets, "a derived window size shows on the way and is overwritten") {
    AllOff();
    ChangeNotes changes(form);
    Press("cmdOptimalDfue");
    CHECK(
        Lines(changes.lines.end() - 4, changes.lines.end()) ==
        Lines{"cboMTU = \"1472\"", "txtRWIN = \"5728\"", "txtRWIN = \"11680\"", "txtTTL = \"64\""});
}

TEST_CASE_FIXTURE(Presets, "the derived window size of Analog is the type's own") {
    AllOff();
    ChangeNotes changes(form);
    Press(AnalogOption);
    CHECK(changes.lines == Lines{"optOptimalDFUESets(1) = selected", "cboMTU = \"576\"",
                                 "txtRWIN = \"2144\"", "txtTTL = \"128\"", "cboHTTP10 = \"4\"",
                                 "cboHTTP11 = \"2\"", "chkAutoMTU = 1", "chkSACK = 1"});
}

TEST_CASE_FIXTURE(Presets, "the standard of the page DFÜ loads Analog on its way") {
    AllOn();
    ChangeNotes changes(form);
    Press("cmdStandardDfue");
    CHECK(changes.lines ==
          Lines{"chkNotifyDownloadReady = 0",
                "chkScriptDebugging = 0",
                "chkIEWinPos = 0",
                "chkNetworkSpeed = 0",
                "chkNetworkTasks = 0",
                "chkDNSSpeed = 0",
                "chkTCPTuning = 0",
                "chkOutlookTray = 0",
                "optOptimalDFUESets(1) = selected",
                "optOptimalDFUESets(4) = not selected",
                "cboMTU = \"576\"",
                "txtRWIN = \"2144\"",
                "txtTTL = \"128\"",
                "cboHTTP10 = \"4\"",
                "cboHTTP11 = \"2\"",
                "chkMUTBH = 0",
                "chkIEExtensions = 0",
                "txtExtensions = \"\"",
                "chkIPForwarding = 0",
                "txtIETitel = \"http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch\""});
}
