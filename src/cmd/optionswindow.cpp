#include "cmd/optionswindow.h"

#include <algorithm>
#include <optional>

#include "cmd/badinput.h"
#include "controls/chameleonbutton.h"
#include "platform/locale.h"
#include "platform/machinewith.h"
#include "platform/settings.h"
#include "runtime/failure.h"
#include "runtime/number.h"
#include "runtime/text.h"
#include "toolkit/combobox.h"
#include "toolkit/controls.h"
#include "tweaks/autotuning.h"
#include "tweaks/catalogue.h"
#include "tweaks/controltext.h"
#include "tweaks/networksets.h"
#include "tweaks/presets.h"
#include "tweaks/previewlibrary.h"
#include "tweaks/receivewindow.h"

namespace cmd {
namespace {

using runtime::EqualsIgnoringCase;
using tweaks::Option;
using tweaks::Step;

constexpr char PathsPageButton[] = "cmdPathDefault";

// A page and its two buttons; the paths have no recommended values.
struct PageButtons {
    std::string_view page;
    const char* standard;
    const char* recommended;
};

constexpr PageButtons Pages[] = {
    {"System", "cmdNormal", "cmdOptimal"},
    {"Tweaks", "cmdNormalWindows2", "cmdOptimalWindows2"},
    {"Pfade", PathsPageButton, nullptr},
    {"Sicherheit", "cmdDefaultMisc", "cmdOptimalMisc"},
    {"DFÜ", "cmdStandardDfue", "cmdOptimalDfue"},
};

struct ConnectionType {
    std::string_view name;
    const char* option;
};

constexpr ConnectionType ConnectionTypes[] = {
    {"analog", "optOptimalDFUESets(1)"},
    {"isdn", "optOptimalDFUESets(2)"},
    {"dsl", "optOptimalDFUESets(3)"},
    {"netzwerk", "optOptimalDFUESets(4)"},
};

constexpr std::string_view Everything = "autotuning";

// What a preset does: the buttons to press, or the one thing else.
struct Preset {
    std::vector<const char*> buttons = {};
    const char* connectionType = nullptr;
    bool isEverything = false;
};

std::optional<Preset> FindPreset(std::string_view name) {
    const std::size_t colon = name.find(':');
    const std::string_view which = name.substr(0, colon);
    const bool ofOnePage = colon != std::string_view::npos;
    const std::string page = ofOnePage ? runtime::ToLower(name.substr(colon + 1)) : "";
    const bool isStandard = EqualsIgnoringCase(which, "standard");
    if (isStandard || EqualsIgnoringCase(which, "empfohlen")) {
        Preset preset;
        for (const PageButtons& buttons : Pages) {
            const char* button = isStandard ? buttons.standard : buttons.recommended;
            if (!button || (ofOnePage && page != runtime::ToLower(buttons.page))) continue;
            preset.buttons.push_back(button);
        }
        if (preset.buttons.empty()) return std::nullopt;
        return preset;
    }
    if (EqualsIgnoringCase(name, Everything)) return Preset{.isEverything = true};
    for (const ConnectionType& type : ConnectionTypes) {
        if (EqualsIgnoringCase(name, type.name)) return Preset{.connectionType = type.option};
    }
    return std::nullopt;
}

Preset PresetNamed(std::string_view name) {
    const auto preset = FindPreset(name);
    if (!preset) throw BadInput("unbekannte Voreinstellung \"" + std::string(name) + '"');
    return *preset;
}

// Each ampersand is doubled in a caption that shows one.
std::string WithoutAccessMarks(const std::string& caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        text += caption[i];
    }
    return text;
}

template <typename Visit>
void ForEachStepThatAsks(std::string_view control, const Visit& visit) {
    for (const tweaks::CataloguePage& page : tweaks::Catalogue()) {
        for (const Option& option : page.options) {
            for (const tweaks::Steps* steps : {&option.on, &option.off, &option.always}) {
                for (const Step& step : *steps) {
                    const bool writesIt = step.action == tweaks::Action::WriteNumberOf &&
                                          (step.text ? step.text : option.control) == control;
                    const bool asksIt = step.numericControl && step.numericControl == control;
                    if (writesIt || asksIt) visit(writesIt);
                }
            }
        }
    }
}

int LongestText(const toolkit::Control& control) {
    if (const auto* box = dynamic_cast<const toolkit::TextBox*>(&control)) {
        return box->Style().maxLength;
    }
    if (const auto* box = dynamic_cast<const toolkit::ComboBox*>(&control)) {
        return box->Style().maxLength;
    }
    return 0;
}

bool TakesLines(const toolkit::Control& control) {
    const auto* box = dynamic_cast<const toolkit::TextBox*>(&control);
    return box && box->Style().multiLine;
}

}  // namespace

OptionsWindow::OptionsWindow(const platform::Machine& machine)
    : registry_(machine.registry),
      dry_(platform::With(machine, {.registry = &registry_})),
      form_(dry_.services),
      passes_(form_, dry_.services) {
    tweaks::ConnectPresets(form_, dry_.services.memory);
    tweaks::ConnectNetworkSets(form_);
    tweaks::ConnectReceiveWindow(form_, dry_.services.locale);
    form_.Find<controls::chameleonButton>(PathsPageButton).onClick = [this] {
        tweaks::SetDefaultPaths(form_, dry_.services.systemFacts);
    };
}

template <typename Body>
void OptionsWindow::Report(const char* procedure, const Body& body) {
    try {
        body();
    } catch (const runtime::Failure& failure) {
        failed_ = true;
        complaints_.push_back(std::string(procedure) + " endet mit Fehler " +
                              std::to_string(failure.number) + ": " + failure.description);
    }
    for (const platform::dryrun::Message& message : dry_.messages.shown) {
        complaints_.push_back("Meldung: " + message.text);
    }
    dry_.messages.shown.clear();
}

void OptionsWindow::Read() {
    Report("ReadRegistry", [&] { passes_.Read(); });
    const platform::Settings settings(dry_.services.settingsStore);
    runtime::Skip([&] { tweaks::RestorePreviewLibrary(form_, settings); });
    tweaks::MarkNetworkSet(form_, dry_.services.locale.Signs());
}

void OptionsWindow::CheckPreset(std::string_view name) {
    PresetNamed(name);
}

void OptionsWindow::UsePreset(std::string_view name) {
    const Preset preset = PresetNamed(name);
    if (preset.isEverything) {
        // It asks, and tells of its end, which nobody needs to hear.
        tweaks::AutoTuning(form_, dry_.services);
        dry_.messages.shown.clear();
        return;
    }
    if (preset.connectionType) {
        // Selected already, it would load nothing: nobody sees here that it is.
        Report(preset.connectionType, [&] {
            auto& type = form_.Find<toolkit::OptionButton>(preset.connectionType);
            type.Value() ? type.onClick() : type.SetValue(true);
        });
        return;
    }
    for (const char* button : preset.buttons) PressButton(button);
}

void OptionsWindow::PressButton(const char* name) {
    Report(name, [&] { form_.Find<controls::chameleonButton>(name).onClick(); });
}

std::string OptionsWindow::Caption(std::string_view name) const {
    const toolkit::Control* own = form_.FindControl(name);
    if (IsCheckBox(name)) return WithoutAccessMarks(own->Caption());
    // A box is called what the label before it says, or else the frame around it.
    std::string caption;
    for (const auto& control : form_.Controls()) {
        if (control.get() == own) break;
        const bool names = dynamic_cast<const toolkit::Label*>(control.get()) ||
                           dynamic_cast<const toolkit::Frame*>(control.get());
        if (names && !control->Caption().empty()) caption = control->Caption();
    }
    caption = runtime::Trim(WithoutAccessMarks(caption));
    if (caption.ends_with(':')) caption.pop_back();
    return caption;
}

std::string OptionsWindow::Shown(std::string_view name) const {
    if (!IsCheckBox(name)) return tweaks::TextOfControl(form_, name);
    return std::to_string(form_.Find<toolkit::CheckBox>(name).Value());
}

bool OptionsWindow::WantsNumber(std::string_view control) {
    bool wants = false;
    ForEachStepThatAsks(control, [&](bool) { wants = true; });
    return wants;
}

void OptionsWindow::CheckNumber(std::string_view control, const std::string& text) const {
    const runtime::NumberSigns signs = dry_.services.locale.Signs();
    ForEachStepThatAsks(control, [&](bool writesIt) {
        if (!runtime::IsNumeric(text, signs)) {
            throw BadInput(std::string(control) + " will eine Zahl, \"" + text + "\" ist keine");
        }
        if (!writesIt) return;
        std::optional<std::int32_t> number;
        runtime::Skip([&] { number = runtime::ToWholeNumber(text, signs); });
        if (!number || *number < 0) {
            throw BadInput(std::string(control) + " will eine Zahl von 0 bis 2147483647, nicht \"" +
                           text + '"');
        }
    });
}

void OptionsWindow::Set(std::string_view which, const std::string& value) {
    if (value == Shown(which)) return;
    const std::string name(which);
    const toolkit::Control& control = *form_.FindControl(name);
    if (!control.Enabled()) {
        complaints_.push_back(name + " ist hier nicht wählbar und bleibt, wie es ist.");
        return;
    }
    if (IsCheckBox(name)) {
        if (value != "0" && value != "1") {
            throw BadInput(name + " kann nur 0 oder 1 sein, nicht \"" + value + '"');
        }
        return form_.Find<toolkit::CheckBox>(name).SetValue(value == "1" ? 1 : 0);
    }
    const int longest = LongestText(control);
    const std::size_t length = runtime::Length(value);
    if (longest > 0 && length > static_cast<std::size_t>(longest)) {
        throw BadInput("der Text von " + name + " hat " + std::to_string(length) +
                       " Zeichen, Platz ist für " + std::to_string(longest));
    }
    const platform::Locale& locale = dry_.services.locale;
    if (locale.FromAnsi(locale.ToAnsi(value)) != value) {
        throw BadInput("der Text von " + name +
                       " hat ein Zeichen, das dieses Windows hier nicht speichern kann");
    }
    const bool hasControls = std::any_of(value.begin(), value.end(), [&](char c) {
        const bool ofLines = c == '\r' || c == '\n' || c == '\t';
        return static_cast<unsigned char>(c) < ' ' && !(ofLines && TakesLines(control));
    });
    if (hasControls) {
        throw BadInput("der Text von " + name + " hat ein Zeichen, das niemand eingeben kann");
    }
    CheckNumber(name, value);
    try {
        tweaks::SetTextOfControl(form_, name, value);
    } catch (const runtime::Failure& failure) {
        throw BadInput(name + " kann nicht \"" + value + "\" sein: " + failure.description);
    }
}

Changes OptionsWindow::Write() {
    Report("WriteRegistry", [&] { passes_.Write(); });
    return ChangesOf(dry_.registry.Changes(platform::dryrun::Registry::Telling::Writes),
                     dry_.services.locale);
}

}  // namespace cmd
