#include "tweaks/presetfixture.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "runtime/number.h"
#include "support/golden.h"
#include "toolkit/combobox.h"

namespace tweak_tests {
namespace {

const std::vector<golden::PresetLine>& GoldenLines() {
    static const auto lines = golden::PresetLines(FileText("tests/golden/presets.tsv"));
    return lines;
}

std::string Shown(const toolkit::Control* control) {
    if (auto* box = dynamic_cast<const toolkit::CheckBox*>(control)) {
        return std::to_string(box->Value());
    }
    if (auto* option = dynamic_cast<const toolkit::OptionButton*>(control)) {
        return option->Value() ? "selected" : "not selected";
    }
    if (auto* slider = dynamic_cast<const toolkit::Slider*>(control)) {
        return std::to_string(slider->Value());
    }
    if (auto* text = dynamic_cast<const toolkit::TextBox*>(control)) {
        return '"' + text->Text() + '"';
    }
    if (auto* combo = dynamic_cast<const toolkit::ComboBox*>(control)) {
        return '"' + combo->Text() + '"';
    }
    return "";
}

// The line of a call that does something, without its handle and what it gave back.
std::string DoingOf(std::string line) {
    static const char* const doings[] = {
        "SaveSetting",    "MessageBox",    "Start",           "DeleteFile", "OpenTextFile",
        "RegSetValueExA", "RegDeleteKeyA", "RegDeleteValueA", "SetLayered", "GlobalMemoryStatus",
    };
    if (std::none_of(std::begin(doings), std::end(doings),
                     [&](const char* doing) { return line.starts_with(doing); })) {
        return "";
    }
    line = line.substr(0, line.find(" -> "));
    const std::size_t handle = line.find(" #");
    if (handle != std::string::npos) line.erase(handle, line.find(' ', handle + 1) - handle);
    return line;
}

}  // namespace

const Lines& GoldenPresets() {
    static const Lines names = [] {
        Lines found;
        for (const auto& line : GoldenLines()) {
            if (std::find(found.begin(), found.end(), line.preset) == found.end()) {
                found.push_back(line.preset);
            }
        }
        return found;
    }();
    return names;
}

std::vector<PresetStep> GoldenSteps(const std::string& preset, bool passesMemoryTest) {
    std::vector<PresetStep> steps;
    for (const auto& line : GoldenLines()) {
        if (line.preset == preset) steps.push_back({line.control, line.value});
    }
    if (steps.empty()) throw std::runtime_error("no such preset: " + preset);
    for (PresetStep& step : steps) {
        if (step.value == "memory > 256000") step.value = passesMemoryTest ? "1" : "0";
    }
    return steps;
}

std::string LineOf(const PresetStep& step) {
    return step.control + " = " + step.value;
}

Lines LinesOf(const std::vector<PresetStep>& steps) {
    Lines lines;
    for (const PresetStep& step : steps) lines.push_back(LineOf(step));
    return lines;
}

class ChangeNotes::View final : public toolkit::ControlView {
  public:
    View(ChangeNotes& notes, toolkit::Control& control) : notes_(notes), control_(control) {
        control.SetView(this);
    }
    ~View() override { control_.SetView(nullptr); }

    void Refresh(toolkit::Aspect what) override {
        if (what != toolkit::Aspect::Value) return;
        notes_.CatchUp();
        notes_.lines.push_back(control_.Name() + " = " + tweak_tests::Shown(&control_));
    }
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

  private:
    ChangeNotes& notes_;
    toolkit::Control& control_;
};

ChangeNotes::ChangeNotes(toolkit::Form& form) {
    for (const auto& control : form.Controls()) {
        if (tweak_tests::Shown(control.get()).empty()) continue;
        views_.push_back(std::make_unique<View>(*this, *control));
    }
}

ChangeNotes::ChangeNotes(toolkit::Form& form, const platform::simulated::Journal& journal)
    : ChangeNotes(form) {
    journal_ = &journal;
    read_ = journal.Lines().size();
}

ChangeNotes::~ChangeNotes() = default;

void ChangeNotes::CatchUp() {
    if (!journal_) return;
    for (; read_ < journal_->Lines().size(); ++read_) {
        const std::string doing = DoingOf(journal_->Lines()[read_]);
        if (!doing.empty()) lines.push_back(doing);
    }
}

Presets::Presets() {
    machine.files.MakeDirectory("C:\\WINDOWS\\inf");
    machine.files.Put("C:\\WINDOWS\\inf\\Sysoc.inf", "[Components]\r\na,hide,7\r\n");
    machine.messages.AnswerAll("AutoTuning", platform::message::Yes);
    tweaks::ConnectSideEffects(form, machine.services);
    tweaks::ConnectPresets(form, machine.services.memory);
    tweaks::ConnectNetworkSets(form);
    machine.journal.Clear();
}

void Presets::Press(const std::string& preset) {
    if (preset == AutoTuningButton) return tweaks::AutoTuning(form, machine.services);
    if (auto* type = dynamic_cast<toolkit::OptionButton*>(form.FindControl(preset))) {
        return type->SetValue(true);
    }
    form.Find<controls::chameleonButton>(preset).Press();
}

std::string Presets::Shown(const std::string& control) {
    return tweak_tests::Shown(form.FindControl(control));
}

void Presets::Put(const std::string& name, const std::string& value) {
    toolkit::Control* control = form.FindControl(name);
    if (auto* box = dynamic_cast<toolkit::CheckBox*>(control)) {
        box->SetValue(std::stoi(value));
    } else if (auto* option = dynamic_cast<toolkit::OptionButton*>(control)) {
        option->SetValue(value == "selected");
    } else if (auto* slider = dynamic_cast<toolkit::Slider*>(control)) {
        slider->SetValue(std::stoi(value));
    } else {
        tweaks::SetTextOfControl(form, name, value.substr(1, value.size() - 2));
    }
}

PresetStates Presets::States() {
    PresetStates states;
    for (const auto& control : form.Controls()) {
        const std::string shown = tweak_tests::Shown(control.get());
        if (!shown.empty()) states[control->Name()] = shown;
    }
    return states;
}

// Whatever takes others along comes before them, but for the sliders, whose boxes go along.
void Presets::PutAll(const char* box, const char* text, bool highest) {
    const PresetStates controls = States();
    for (const auto& [name, shown] : controls) {
        if (!name.starts_with("opt")) continue;
        Put(name, highest && name.ends_with("(4)") ? "selected" : "not selected");
    }
    for (const auto& [name, shown] : controls) {
        if (name.starts_with("chk")) Put(name, box);
        if (shown.starts_with('"')) Put(name, text);
    }
    Put("txtRWIN", text);
    for (const char* name : {"Level", "sldStartmenu"}) {
        auto& slider = form.Find<toolkit::Slider>(name);
        slider.SetValue(highest ? slider.Range().maximum : slider.Range().minimum);
    }
    machine.journal.Clear();
}

void Presets::Baseline() {
    machine.registry.Load(FileText("resources/xp-baseline.reg"));
    passes.Read();
    machine.journal.Clear();
}

toolkit::Handler& Presets::EventOf(const std::string& name) {
    toolkit::Control* control = form.FindControl(name);
    if (auto* box = dynamic_cast<toolkit::CheckBox*>(control)) return box->onClick;
    if (auto* option = dynamic_cast<toolkit::OptionButton*>(control)) return option->onClick;
    if (auto* slider = dynamic_cast<toolkit::Slider*>(control)) return slider->onChange;
    if (auto* combo = dynamic_cast<toolkit::ComboBox*>(control)) return combo->onChange;
    return form.Find<toolkit::TextBox>(name).onChange;
}

void Presets::Isolate() {
    for (const auto& [name, shown] : States()) EventOf(name) = {};
    for (const auto& [name, shown] : States()) {
        if (name.starts_with("chk")) Put(name, "2");
        if (shown.starts_with('"')) Put(name, "\"?\"");
    }
    Put("Level", "100");
    Put("sldStartmenu", "100");
}

}  // namespace tweak_tests
