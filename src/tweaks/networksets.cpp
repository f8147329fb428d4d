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

// The packet size takes the window size along, so the window size of the set comes behind it.
void LoadNetworkSet(toolkit::Form& form, const NetworkSet& set) {
    const auto show = [&](std::string_view name, std::int32_t number) {
        SetTextOfControl(form, name, runtime::ToText(number));
    };
    const auto put = [&](std::string_view name, int value) {
        form.Find<toolkit::CheckBox>(name).SetValue(value);
    };
    show("cboMTU", set.cboMTU);
    show("txtRWIN", set.txtRWIN);
    show("txtTTL", set.txtTTL);
    show("cboHTTP10", set.cboHTTP10);
    show("cboHTTP11", set.cboHTTP11);
    put("chkMUTBH", set.chkMUTBH);
    put("chkAutoMTU", set.chkAutoMTU);
    put("chkSACK", set.chkSACK);
}

}  // namespace

std::span<const NetworkSet> NetworkSets() {
    return Sets;
}

bool HoldsNetworkSet(const toolkit::Form& form, const NetworkSet& set,
                     const runtime::NumberSigns& signs) {
    const auto shows = [&](std::string_view name, std::int32_t wanted) {
        const auto number = runtime::ParseNumber(TextOfControl(form, name), signs);
        if (!number) throw runtime::Failure(runtime::TypeMismatch);
        return *number == wanted;
    };
    const auto stands = [&](std::string_view name, int wanted) {
        return form.Find<toolkit::CheckBox>(name).Value() == wanted;
    };
    return shows("cboMTU", set.cboMTU) && shows("txtRWIN", set.txtRWIN) &&
           shows("txtTTL", set.txtTTL) && shows("cboHTTP10", set.cboHTTP10) &&
           shows("cboHTTP11", set.cboHTTP11) && stands("chkMUTBH", set.chkMUTBH) &&
           stands("chkAutoMTU", set.chkAutoMTU) && stands("chkSACK", set.chkSACK);
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
