#include "tools/shortcutspage.h"

#include <doctest/doctest.h>

#include "platform/simulated/machine.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

TEST_CASE("the page holds ten descriptions and then their ten keys") {
    platform::simulated::Machine machine;
    toolkit::Form form(machine.forms, "frmMain", "", {});
    tools::AddShortcutsPage(form);
    const std::vector<std::string> captions = {
        "Hilfsprogramm-Manager öffnen",
        "Benutzer wechseln",
        "Systemeigenschaften anzeigen",
        "Ausführen-Dialog anzeigen",
        "Hilfe- und Supportcenter anzeigen",
        "Suche nach Computern anzeigen",
        "Suchen-Dialog anzeigen",
        "Windows Explorer öffnen",
        "Alle Fenster minimieren oder wiederherstellen",
        "Startmenü anzeigen",
        "Windows + U",
        "Windows + L",
        "Windows + Pause",
        "Windows + R",
        "Windows + F1",
        "Windows + STRG + F",
        "Windows + F",
        "Windows + E",
        "Windows + D",
        "Windows-Taste",
    };
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const std::string name = "lblXPShortCuts(" + std::to_string(i) + ")";
        CAPTURE(name);
        CHECK(form.Find<toolkit::Label>(name).Caption() == captions[i]);
    }
    CHECK(form.FindControl("lblXPShortCuts(20)") == nullptr);
    CHECK(form.Find<toolkit::Label>("lblShortcuts").Caption() == "Windows XP Shortcuts");
}
