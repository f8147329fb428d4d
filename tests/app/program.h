#pragma once

#include <memory>
#include <string>

#include "app/frmmain.h"
#include "controls/chameleonbutton.h"
#include "platform/messages.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"

namespace app_test {

inline constexpr char MemoryKey[] =
    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management";
inline constexpr char SystemKey[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
inline constexpr char TcpKey[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters";
inline constexpr char LogPath[] = "C:\\Programme\\Quillmore\\Quillmore.log";

// The whole program on a simulated machine whose user has accepted the warning.
struct Program {
    platform::simulated::Machine machine;
    std::unique_ptr<app::frmMain> form;

    // Complaints about numbers are answered with Cancel, which cancels nothing.
    Program() {
        machine.settingsStore.Put("Options", "Accepted", "Yes");
        machine.messages.AnswerAll("Fehler", platform::message::Cancel);
    }

    // Starts the program as main does; false when it ended on the way.
    bool Start() {
        form = std::make_unique<app::frmMain>(machine.services);
        try {
            form->Load();
            if (form->Loaded()) form->Show();
        } catch (const platform::simulated::ProgramEnded&) {
        }
        return !machine.program.ended;
    }

    // Runs what may end the program; true when it did.
    template <typename Action>
    bool Ends(Action action) {
        try {
            action();
        } catch (const platform::simulated::ProgramEnded&) {
        }
        return machine.program.ended;
    }

    bool Close() {
        return Ends([&] { form->Unload(); });
    }

    toolkit::CheckBox& Check(const char* name) { return form->Find<toolkit::CheckBox>(name); }
    toolkit::TextBox& Text(const char* name) { return form->Find<toolkit::TextBox>(name); }
    toolkit::ComboBox& Combo(const char* name) { return form->Find<toolkit::ComboBox>(name); }
    // Numbers where the write pass asks for some, so that it complains about nothing.
    void FillNumbers() {
        for (const char* name : {"cboMTU", "cboHTTP10", "cboHTTP11"}) Combo(name).SetText("64");
        for (const char* name : {"txtRWIN", "txtTTL"}) Text(name).SetText("64");
    }
    void Press(const char* name) { form->Find<controls::chameleonButton>(name).Press(); }

    std::string Stored(const char* key) const {
        return machine.settingsStore.Stored("Options", key).value_or("absent");
    }
};

}  // namespace app_test
