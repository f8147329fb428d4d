#include "tweaks/networksets.h"

#include "runtime/failure.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/controltext.h"

namespace tweaks {
namespace {

constexpr NetworkSet Sets[] = {
    {.option = "optOptimalDFUESets(1)",
     .cboMTU = 576,
     .txtRWIN = 2144,
     .txtTTL = 128,
     .cboHTTP10 = 4,
     .cboHTTP11 = 2},
    {.option = "optOptimalDFUESets(2)",
     .cboMTU = 1472,
     .txtRWIN = 11680,
     .txtTTL = 64,
     .cboHTTP10 = 8,
     .cboHTTP11 = 6},
    {.option = "optOptimalDFUESets(3)",
     .cboMTU = 3000,
     .txtRWIN = 32767,
     .txtTTL = 64,
     .cboHTTP10 = 20,
     .cboHTTP11 = 8},
    {.option = "optOptimalDFUESets(4)",
     .cboMTU = 1492,
     .txtRWIN = 32767,
     .txtTTL = 64,
     .cboHTTP10 = 20,
     .cboHTTP11 = 8},
};

using NumberOfSet = std::int32_t NetworkSet::*;
using StateOfSet = int NetworkSet::*;

struct NumberBox {
    const char* control;
    NumberOfSet number;
};

// The packet size takes the window size along, so the window size of the set comes behind it.
constexpr NumberBox NumberBoxes[] = {
    {"cboMTU", &NetworkSet::cboMTU},       {"txtRWIN", &NetworkSet::txtRWIN},
    {"txtTTL", &NetworkSet::txtTTL},       {"cboHTTP10", &NetworkSet::cboHTTP10},
    {"cboHTTP11", &NetworkSet::cboHTTP11},
};

struct OnOffBox {
    const char* control;
    StateOfSet state;
};

constexpr OnOffBox OnOffBoxes[] = {
    {"chkMUTBH", &NetworkSet::chkMUTBH},
    {"chkAutoMTU", &NetworkSet::chkAutoMTU},
    {"chkSACK", &NetworkSet::chkSACK},
};

void LoadNetworkSet(toolkit::Form& form, const NetworkSet& set) {
    for (const auto& [control, number] : NumberBoxes) {
        SetTextOfControl(form, control, runtime::ToText(set.*number));
    }
    for (const auto& [control, state] : OnOffBoxes) {
        form.Find<toolkit::CheckBox>(control).SetValue(set.*state);
    }
}

}  // namespace

std::span<const NetworkSet> NetworkSets() {
    return Sets;
}

bool HoldsNetworkSet(const toolkit::Form& form, const NetworkSet& set,
                     const runtime::NumberSigns& signs) {
    for (const auto& [control, wanted] : NumberBoxes) {
        const auto number = runtime::ParseNumber(TextOfControl(form, control), signs);
        if (!number) throw runtime::Failure(runtime::TypeMismatch);
        if (*number != set.*wanted) return false;
    }
    for (const auto& [control, wanted] : OnOffBoxes) {
        if (form.Find<toolkit::CheckBox>(control).Value() != set.*wanted) return false;
    }
    return true;
}

void MarkNetworkSet(toolkit::Form& form, const runtime::NumberSigns& signs) {
    for (const NetworkSet& set : NetworkSets()) {
        runtime::Skip([&] {
            if (!HoldsNetworkSet(form, set, signs)) return;
            form.Find<toolkit::OptionButton>(set.option).SetValue(true);
        });
    }
}

void ConnectNetworkSets(toolkit::Form& form) {
    for (const NetworkSet& set : NetworkSets()) {
        form.Find<toolkit::OptionButton>(set.option).onClick = [&form, &set] {
            LoadNetworkSet(form, set);
        };
    }
}

}  // namespace tweaks
