#include "sweep/snapshot.h"

#include "platform/simulated/wording.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "toolkit/drivelistbox.h"
#include "toolkit/listbox.h"
#include "toolkit/listview.h"
#include "toolkit/progressbar.h"

namespace sweep_test {
namespace {

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += text + '\n';
    return all;
}

std::string ContentsOf(const toolkit::Control& control) {
    using namespace toolkit;
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
        return std::to_string(box->Value());
    }
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
        return option->Value() ? "on" : "off";
    }
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Text();
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
        return combo->Text() + '\n' + Joined(combo->Items());
    }
    if (const auto* slider = dynamic_cast<const Slider*>(&control)) {
        return std::to_string(slider->Value());
    }
    if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) {
        return std::to_string(tabs->Tab());
    }
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) return Joined(list->Items());
    if (const auto* drives = dynamic_cast<const DriveListBox*>(&control)) {
        return drives->Drive() + '\n' + Joined(drives->Items());
    }
    if (const auto* bar = dynamic_cast<const ProgressBar*>(&control)) {
        return std::to_string(bar->Value());
    }
    return "";
}

// Each row by its own name, so that one that is missing is told from one that is another.
void LookAt(const toolkit::ListView& list, Snapshot& all) {
    for (int row = 0; row < list.Count(); ++row) {
        std::string name = "row " + list.Name() + ' ';
        for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
            name += list.Text(row, column) + '|';
        }
        all[name] =
            std::string(list.Ticked(row) ? "ticked" : "") + (list.Selected(row) ? "selected" : "");
    }
}

void LookAt(const toolkit::Form& form, Snapshot& all) {
    for (const auto& control : form.Controls()) {
        std::string text = control->Caption() + '\n' + ContentsOf(*control);
        if (!control->Enabled()) text += "\nshut";
        if (!control->Visible()) text += "\nunseen";
        if (!control->ToolTip().empty()) text += "\ntip " + control->ToolTip();
        all["control " + control->Name()] = text;
        if (const auto* list = dynamic_cast<const toolkit::ListView*>(control.get())) {
            LookAt(*list, all);
        }
    }
    all["window loaded"] = form.Loaded() ? "yes" : "no";
    all["window visible"] = form.Visible() ? "yes" : "no";
    all["window state"] = std::to_string(static_cast<int>(form.State()));
    all["window entry"] = form.InTaskbar() ? "yes" : "no";
    all["window caption"] = form.Caption();
    all["window pointer"] = std::to_string(form.Pointer());
    all["window place"] = std::to_string(form.Place().left) + ' ' +
                          std::to_string(form.Place().top) + ' ' +
                          std::to_string(form.Place().width);
}

std::string TextOf(const platform::LocalTime& time) {
    std::string text;
    for (const int part : {time.year, time.month, time.day, time.hour, time.minute, time.second}) {
        text += std::to_string(part) + ' ';
    }
    return text;
}

// What happens more than once is told apart by its number.
void Count(Snapshot& all, const std::string& name) {
    std::string& count = all[name];
    count = std::to_string(std::atoi(count.c_str()) + 1);
}

}  // namespace

Snapshot Look(const platform::simulated::Machine& machine, const toolkit::Form* form) {
    Snapshot all;
    for (const auto& [place, value] : machine.registry.Dump()) {
        std::string& text = all["registry " + place];
        text = std::to_string(value.type) + ':';
        text.append(value.bytes.begin(), value.bytes.end());
    }
    for (const auto& [place, text] : machine.settingsStore.All()) all["setting " + place] = text;
    for (const auto& [path, content] : machine.disk.Snapshot()) all["disk " + path] = content;
    for (const auto& [title, command] : machine.autostart.entries) {
        all["autostart " + title] = command;
    }
    for (const auto& process : machine.processes.All()) {
        Count(all, "process " + process.commandLine);
    }
    for (const auto& process : machine.processes.launched) {
        Count(all, "process " + process.commandLine);
    }
    for (const auto& executed : machine.shell.executed) {
        Count(all, "execute " + executed.verb + ' ' + executed.file + ' ' + executed.parameters +
                       " in " + executed.directory);
    }
    for (const auto kind : machine.shell.propertySheets) {
        Count(all, "properties " + std::to_string(kind));
    }
    for (const auto& path : machine.shell.recycleBin) Count(all, "bin " + path);
    for (const auto& request : machine.session.requests) {
        Count(all,
              "session " + std::to_string(request.action) + ' ' + std::to_string(request.force));
    }
    for (const auto& message : machine.messages.Shown()) {
        Count(all, "message " + message.title + ": " + message.text);
    }
    for (const auto& entry : machine.internetCache.entries) Count(all, "cache " + entry.url);
    for (const std::string& line : machine.journal.Lines()) {
        if (line.starts_with("InternetExplorer.") && line.find(" -> ") == std::string::npos) {
            Count(all, "browser " + line);
        }
    }
    for (const auto& [handle, window] : machine.otherWindows.All()) {
        all["shell window " + window.className] =
            std::to_string(window.extendedStyle) + ' ' + std::to_string(window.alpha) + ' ' +
            std::to_string(window.textBackground) + ' ' + std::to_string(window.redraws) +
            (window.visible ? "" : " hidden");
    }
    all["tray"] = std::string(machine.tray.hasIcon ? "icon " : "") +
                  (machine.tray.shown ? "shown " : "") + machine.tray.tip;
    all["clock"] = TextOf(machine.clock.now);
    all["clipboard"] = machine.clipboard.text.value_or("");
    all["timers"] = std::to_string(machine.clock.RunningTimers());
    all["help texts"] = std::to_string(machine.toolTips.OpenWindows());
    all["screen pointer"] = std::to_string(machine.forms.ScreenPointer());
    all["ended"] = machine.program.ended ? "yes" : "no";
    all["open keys"] = std::to_string(machine.registry.OpenHandles());
    all["open processes"] = std::to_string(machine.processes.OpenHandles());
    all["open files"] = std::to_string(machine.files.OpenHandles());
    all["open searches"] = std::to_string(machine.internetCache.OpenSearches());
    all["open blocks"] = std::to_string(machine.internetCache.HeldBlocks());
    all["open buffers"] = std::to_string(machine.workstation.BuffersInUse());
    all["open fonts"] = std::to_string(machine.toolTips.OpenFonts());
    all["open memory"] = std::to_string(machine.memory.Held());
    all["open dialogs"] = std::to_string(machine.forms.OpenForms().size());
    all["list lock"] = machine.forms.LockedList() ? "on" : "";
    if (form) LookAt(*form, all);
    return all;
}

const std::string& At(const Snapshot& snapshot, const std::string& name) {
    const auto found = snapshot.find(name);
    return found == snapshot.end() ? Missing : found->second;
}

std::set<std::string> Differing(const Snapshot& one, const Snapshot& other) {
    std::set<std::string> names;
    for (const auto& [name, text] : one) {
        if (At(other, name) != text) names.insert(name);
    }
    for (const auto& [name, text] : other) {
        if (!one.contains(name)) names.insert(name);
    }
    return names;
}

}  // namespace sweep_test
