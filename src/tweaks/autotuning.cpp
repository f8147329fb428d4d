#include "tweaks/autotuning.h"

#include <string_view>

#include "platform/machine.h"
#include "platform/messages.h"
#include "runtime/failure.h"
#include "tweaks/presetlists.h"
#include "tweaks/presets.h"

namespace tweaks {
namespace {

namespace message = platform::message;
using runtime::Skip;

constexpr char Title[] = "AutoTuning";

struct Difference {
    std::string_view control;
    const char* value;
};

// The five differences from the four buttons "Empfohlen", on purpose. These four controls are the
// user's own matter here and stay. And the connection type goes to Analog, while the numbers set
// behind it are those of ISDN: no type fits them then, and the last message asks the user to choose
// the real one.
constexpr Difference Differences[] = {
    {"chkWinAnimate", Leave}, {"chkUnloadDll", Leave},        {"chk1RecycleBinDelete", Leave},
    {"chkLogOnAdmin", Leave}, {"optOptimalDFUESets(1)", "1"},
};

const char* ValueFor(const PresetRow& row) {
    for (const Difference& difference : Differences) {
        if (difference.control == row.control) return difference.value;
    }
    return row.recommended;
}

}  // namespace

void AutoTuning(toolkit::Form& form, const platform::Machine& machine) {
    int answer = 0;
    Skip([&] {
        answer = machine.messages.Show("AutoTuning dieses Systems starten?",
                                       message::YesNo + message::Question, Title);
    });
    if (answer != message::Yes) return;
    for (const PresetRows& rows : RecommendedLists()) {
        for (const PresetRow& row : rows) {
            const char* value = ValueFor(row);
            if (value == Leave) continue;
            Skip([&] { SetToPreset(form, machine.memory, row.control, value); });
        }
    }
    Skip([&] {
        machine.messages.Show(
            "AutoTuning erfolgreich ausgeführt.\r\n\r\n"
            "Bitte stellen Sie die DFÜ-Verbindungsart manuell auf Ihren genutzten Verbindungstyp "
            "(ISDN, DSL ...) ein.\r\n\r\n"
            "Betätigen Sie dann den 'Übernehmen' Button um die Änderungen zu speichern!",
            message::Information, Title);
    });
}

}  // namespace tweaks
