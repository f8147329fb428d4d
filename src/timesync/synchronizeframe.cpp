#include "timesync/synchronizeframe.h"

#include <vector>

#include "controls/chameleonbutton.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace timesync {
namespace {

using toolkit::Box;
using toolkit::Leaf;

constexpr int SourceGroup = 1;
// The label is empty as long as nothing is told, and keeps room for one line.
constexpr int LineHeight = 13;

}  // namespace

Box AddSynchronizeFrame(toolkit::Form& form, platform::Clock& clock) {
    auto& frame =
        form.Add<toolkit::Frame>("fraSynchronize", "Uhrzeit und Kalender synchronisieren");
    const auto option = [&](const char* name, const char* caption) {
        return Leaf(form.Add<toolkit::OptionButton>(name, caption, SourceGroup));
    };
    std::vector<Box> column;
    column.push_back(option("optAtomUhr", "Mit Atomuhr synchronisieren"));
    column.push_back(option("optSynServer", "Mit diesem Server synchronisieren:"));
    column.push_back(
        Leaf(form.Add<toolkit::TextBox>("txtSyncServer", toolkit::TextBoxStyle{.columns = 30})));
    column.push_back(
        toolkit::AtLeast(Leaf(form.Add<toolkit::Label>("lblDateAndTime", "")), 0, LineHeight));
    auto& button = form.Add<controls::chameleonButton>(
        "cmdSynchronizeDateTime", controls::Persisted{"TX=Synchronisieren"}, clock);
    column.push_back(toolkit::Row({toolkit::Filler(), Leaf(button)}));
    return toolkit::InFrame(frame, toolkit::Column(std::move(column)));
}

}  // namespace timesync
