#pragma once

namespace cmd {

// One screen: 24 lines of at most 79 characters.
inline constexpr char Help[] =
    "Quillmore: Einstellungen von Windows XP zeigen, planen, setzen, zurückholen.\n"
    "\n"
    "QuillmoreCmd state [/csv]            zeigt alle Einstellungen und ihre Orte\n"
    "QuillmoreCmd profile DATEI           schreibt die Einstellungen in ein Profil\n"
    "QuillmoreCmd plan [DATEI] [/preset:NAME,...] [/reg:DATEI.reg]\n"
    "                                     zeigt, was apply ändern würde\n"
    "QuillmoreCmd backup DATEI.reg        sichert alle Orte, die apply ändern kann\n"
    "QuillmoreCmd apply [DATEI] [/preset:NAME,...] /backup:DATEI.reg | /nobackup\n"
    "                   [/yes]            fragt, sichert, setzt alle Einstellungen\n"
    "QuillmoreCmd restore DATEI.reg [/yes]\n"
    "                                     holt eine Sicherung zurück\n"
    "\n"
    "DATEI ist ein Profil. Danach gelten der Reihe nach die Voreinstellungen:\n"
    "  standard, empfohlen, autotuning    alle Seiten\n"
    "  standard:SEITE, empfohlen:SEITE    System, Tweaks, Sicherheit, DFÜ, auch\n"
    "                                     standard:Pfade\n"
    "  analog, isdn, dsl, netzwerk        Art der Verbindung\n"
    "/yes fragt nicht; /utf8 gibt UTF-8 aus; /raw läuft auch auf anderem Windows.\n"
    "\n"
    "Rückgabe: 0 getan oder nichts zu tun, 1 plan: es gäbe Änderungen, 2 falsche\n"
    "Eingabe, 3 etwas ließ sich nicht lesen oder schreiben, 4 falsches Windows,\n"
    "5 abgelehnt.\n";

}  // namespace cmd
