#pragma once

#include <cstdint>
#include <span>

#include "runtime/number.h"

namespace toolkit {
class Form;
}

namespace tweaks {

// The values that suit one type of connection, each named after the control that holds it.
struct NetworkSet {
    // The option button that stands for the type.
    const char* option;
    std::int32_t cboMTU;
    std::int32_t txtRWIN;
    std::int32_t txtTTL;
    std::int32_t cboHTTP10;
    std::int32_t cboHTTP11;
    int chkMUTBH = 0;
    int chkAutoMTU = 1;
    int chkSACK = 1;
};

// The four types with values, in the order of their buttons. The button "Manuell" has none: it
// keeps the values of the type chosen before.
std::span<const NetworkSet> NetworkSets();

// Whether all eight controls of the form hold the set's values, the texts compared as numbers.
// Throws Failure TypeMismatch when one of the texts is no number.
bool HoldsNetworkSet(const toolkit::Form& form, const NetworkSet& set,
                     const runtime::NumberSigns& signs);

// Selects the type whose values the form's controls hold, or leaves the group as it is when no type
// fits. A comparison that fails is passed over, and the others run.
void MarkNetworkSet(toolkit::Form& form, const runtime::NumberSigns& signs);

// Lets each type, once it is selected, load its values into the form's controls. A failure of one
// of them ends the loading and passes to whoever selected the type.
void ConnectNetworkSets(toolkit::Form& form);

}  // namespace tweaks
