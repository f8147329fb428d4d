#include "tweaks/catalogue.h"

namespace tweaks {
namespace {

using registry::HKCU;
using registry::HKLM;

// The neighbour "User Shell Folders", from which Windows would fill this key again, is not touched,
// on purpose.
constexpr char FoldersKey[] =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr char WindowsKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

// The paths are captions of labels. Each is written as it stands by every pass, the empty one too,
// so that an Apply makes the value that was not there; no path is examined.
constexpr Option PathsRows[] = {
    Option{
        .control = "lblVerwaltung(0)",
        .place = {HKLM, FoldersKey, "Common Administrative Tools"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(1)",
        .place = {HKLM, FoldersKey, "Common AppData"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(2)",
        .place = {HKLM, FoldersKey, "Common Desktop"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(3)",
        .place = {HKLM, FoldersKey, "Common Documents"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(4)",
        .place = {HKLM, FoldersKey, "Common Favorites"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(5)",
        .place = {HKLM, FoldersKey, "Common Programs"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(6)",
        .place = {HKLM, FoldersKey, "Common Start Menu"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(7)",
        .place = {HKLM, FoldersKey, "Common Startup"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(8)",
        .place = {HKLM, FoldersKey, "Common Templates"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(9)",
        .place = {HKCU, FoldersKey, "My Music"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(10)",
        .place = {HKCU, FoldersKey, "My Pictures"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(11)",
        .place = {HKCU, FoldersKey, "My Video"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(12)",
        .place = {HKCU, FoldersKey, "Personal"},
        .always = {TextOfOwn()},
    },
    Option{
        .control = "lblVerwaltung(13)",
        .place = {HKLM, WindowsKey, "ProgramFilesDir"},
        .always = {TextOfOwn()},
    },
};

}  // namespace

std::span<const Option> PathsOptions() {
    return PathsRows;
}

}  // namespace tweaks
