#include "tools/shortcutspage.h"

#include <array>
#include <string>

#include "controls/pageheading.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tools {
namespace {

using toolkit::Box;

struct Shortcut {
    const char* description;
    const char* key;
};

constexpr std::array<Shortcut, 10> Shortcuts = {{
    {"Hilfsprogramm-Manager öffnen", "Windows + U"},
    {"Benutzer wechseln", "Windows + L"},
    {"Systemeigenschaften anzeigen", "Windows + Pause"},
    {"Ausführen-Dialog anzeigen", "Windows + R"},
    {"Hilfe- und Supportcenter anzeigen", "Windows + F1"},
    {"Suche nach Computern anzeigen", "Windows + STRG + F"},
    {"Suchen-Dialog anzeigen", "Windows + F"},
    {"Windows Explorer öffnen", "Windows + E"},
    {"Alle Fenster minimieren oder wiederherstellen", "Windows + D"},
    {"Startmenü anzeigen", "Windows-Taste"},
}};

// Descriptions come first in the group, then the keys in the same order.
Box AddShortcutLabel(toolkit::Form& form, std::size_t index, const char* caption) {
    return Leaf(form.Add<toolkit::Label>("lblXPShortCuts(" + std::to_string(index) + ")", caption));
}

}  // namespace

Box AddShortcutsPage(toolkit::Form& form) {
    Box heading = controls::PageHeading(form, "lblShortcuts", "Windows XP Shortcuts");
    std::vector<Box> cells;
    for (std::size_t index = 0; index < Shortcuts.size(); ++index) {
        cells.push_back(AddShortcutLabel(form, index, Shortcuts[index].description));
        cells.push_back(AddShortcutLabel(form, Shortcuts.size() + index, Shortcuts[index].key));
    }
    Box table = toolkit::Margin(Gap(toolkit::Grid(2, std::move(cells)), 16), 8);
    return toolkit::Column({std::move(heading), std::move(table), toolkit::Filler()});
}

}  // namespace tools
