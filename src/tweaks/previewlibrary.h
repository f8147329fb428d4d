#pragma once

namespace platform {
class Settings;
struct Machine;
}  // namespace platform
namespace toolkit {
class Form;
}

// The library that shows previews of videos, chkSHMediaDLL. The setting tells that it is
// registered, the box that the preview is off: the senses are opposite on purpose, and a store
// without the setting shows the box as set.
namespace tweaks {

// Sets the box.
void RestorePreviewLibrary(toolkit::Form& form, const platform::Settings& settings);

// Registers the library or takes it out, and remembers that. A command that cannot be started is a
// Failure, and nothing is remembered then.
void SetPreviewLibrary(const platform::Machine& machine, bool previewOff);

}  // namespace tweaks
