#include "tweaks/previewlibrary.h"

#include "platform/machine.h"
#include "platform/settings.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "tweaks/registerlibrary.h"

namespace tweaks {
namespace {

constexpr char Section[] = "VideoPrv";
constexpr char Key[] = "Regged";

}  // namespace

void RestorePreviewLibrary(toolkit::Form& form, const platform::Settings& settings) {
    const bool registered = settings.GetSetting(Section, Key, "false") == "true";
    form.Find<toolkit::CheckBox>("chkSHMediaDLL").SetValue(registered ? 0 : 1);
}

void SetPreviewLibrary(const platform::Machine& machine, bool previewOff) {
    RegisterLibrary(machine.processes, "shmedia.dll", !previewOff);
    platform::Settings settings(machine.settingsStore);
    settings.SaveSetting(Section, Key, previewOff ? "false" : "true");
}

}  // namespace tweaks
