#include "tweaks/helptexts.h"

#include "controls/ctooltip.h"
#include "toolkit/form.h"

namespace tweaks {
namespace {

// The slider and its box.
constexpr char MenuDelay[] =
    "Hier können Sie festlegen, nach wie vielen Millisekunden Menüs aufklappen. Standard sind 400 "
    "ms, mit kleineren Werten reagiert das Startmenü schneller. Bei sehr kleinen Werten klappen "
    "Menüs schon auf, wenn die Maus sie nur streift.";

// Both protocols.
constexpr char Connections[] =
    "Hier können Sie festlegen wie viele simultane http Verbindungen mit dem jeweiligen Protokoll "
    "möglich sind. Zu hohe Werte können die Performance aber auch negativ beeinflussen.";

// In the order in which the texts are hung up.
constexpr HelpText HelpTextRows[] = {
    {"chkAutoLogin",
     "Meldet den angegebenen Benutzer beim Start von Windows XP ohne Nachfrage an, standardmäßig "
     "ist dies ausgeschaltet. Auch ein Eintrag mit dem Wert 0 erscheint als eingeschaltet, und "
     "das Übernehmen schaltet ihn dann ein. ACHTUNG: Das Passwort steht unverschlüsselt in der "
     "Registrierung, jeder mit Zugang zu Ihrem Rechner kann es lesen!"},
    {"chkmemorymanagement",
     "Windows XP stellt hohe Anforderungen an die Systemressourcen, auch an den Arbeitsspeicher. "
     "Leider lagert Windows XP auch bei freiem RAM Programme in den virtuellen Speicher aus. "
     "Verfügt Ihr Rechner über 128 MB Arbeitsspeicher oder mehr, sollte diese Paging Funktion "
     "deaktiviert werden."},
    {"chkLargeSystemCache",
     "Verfügt Ihr System 256 MB oder mehr, sollten Sie diese Funktion aktivieren. Dann stellt "
     "Windows XP den ganzen verfügbaren Speicherbereich (außer 4 MB für den zentralen "
     "Systemspeicher) für den Dateisystem-Cache zur Verfügung. Das Betriebssystem reagiert bei "
     "großem Systemcache schneller, da der Kernel in den Arbeitsspeicher geladen wird. Bei weniger "
     "als 256 MB kann diese Option aber auch zu Performance-Einbußen führen. ACHTUNG: Besitzer von "
     "ATI Grafikkarten sollten diese Funktion nicht nutzen, es kann dort zu Problemen führen!"},
    {"chkSecondLevelDataCache",
     "Teilt Windows XP mit, dass der Second Level Cache Ihres Prozessors 512 KB groß ist, "
     "standardmäßig ermittelt Windows die Größe selbst. Sinnvoll ist dies nur bei älteren "
     "Prozessoren mit mehr als 256 KB Cache. Fehlt der Eintrag, erscheint die Option als "
     "eingeschaltet, und beim Übernehmen werden 512 KB eingetragen."},
    {"chkLastAccessTimestamp",
     "Windows XP vermerkt auf NTFS-Laufwerken bei jedem Zugriff auf eine Datei oder einen Ordner "
     "den Zeitpunkt. Standardmäßig ist dies aktiv. Schalten Sie es ab, gewinnen Sie etwas "
     "Geschwindigkeit, manche Backup-Programme sind aber auf diese Angabe angewiesen."},
    {"chkMFTTuning",
     "Hier wird der Platz definiert den die sogenannte MFT für sich reserviert. Erhöhen Sie den "
     "Wert auf 25% des Plattenplatzes durch markieren der Option, erhöhen Sie die "
     "Plattenperformance ein wenig."},
    {"chkBoostLoading",
     "Beim Prefetch merkt sich Windows XP, welche Dateien beim Booten und beim Start von "
     "Programmen gebraucht werden, und lädt sie im Voraus. Standardmäßig steht der Wert auf 3, "
     "diese Option setzt ihn auf 5. Startet Ihr Rechner damit nicht schneller, schalten Sie sie "
     "wieder ab."},
    {"chkCDFSTune",
     "Vergrößert die Werte, mit denen Windows XP beim Lesen von CDs Daten im Voraus in den Cache "
     "lädt. CD-Laufwerke arbeiten damit etwas schneller, dafür wird ein wenig Arbeitsspeicher "
     "belegt. Standardmäßig ist die Option ausgeschaltet."},
    {"chkFastServices",
     "Windows XP reserviert 'nur' 512 KB für Serverdienste was die Ein-/Ausgabeleistung mindert. "
     "Ist diese Option aktiviert haben die Serverdienste 12 MB zur Verfügung."},
    {"chkUltraDMA66",
     "Schaltet für den ersten IDE-Controller den Modus Ultra-DMA/66 ein, den Windows XP bei "
     "manchen Chipsätzen nicht von selbst benutzt. Standardmäßig fehlt dieser Eintrag. ACHTUNG: "
     "Festplatte, Controller und Kabel müssen diesen Modus beherrschen, sonst drohen Datenfehler!"},
    {"chkBootOptimizeFunction",
     "Windows XP legt die zum Booten benötigten Dateien auf der Festplatte zusammen, sobald der "
     "Rechner nichts zu tun hat, standardmäßig ist dies eingeschaltet. Die Option ändert nur den "
     "Eintrag des Benutzers. Da Windows XP den des Rechners liest, hat sie keine Wirkung."},
    {"chkIcons",
     "Macht den Hintergrund der Texte unter den Symbolen auf dem Desktop durchsichtig, was bei "
     "Texten mit Schatten schon der Standard ist. Die Option wirkt sofort und wieder bei jedem "
     "Start von Quillmore. ACHTUNG: Nach dem Abschalten erhalten die Texte bis zur nächsten "
     "Anmeldung einen fast schwarzen Hintergrund!"},
    {"Level",
     "Stellt ein, wie durchsichtig die Taskleiste ist: 255 ist deckend (Standard), 55 der "
     "kleinste Wert. Die Einstellung wirkt sofort und wird bei jedem Start von Quillmore wieder "
     "gesetzt. Bei langsamen Grafikkarten kann sie den Bildaufbau bremsen."},
    {"chkBalloonTipps",
     "Windows XP meldet vieles in Sprechblasen (BalloonTipps) neben der Uhr, auch wichtige "
     "Hinweise. Standardmäßig werden sie angezeigt und lassen sich hier abschalten, wenn sie "
     "stören. Fehlt der Eintrag, erscheint die Option als ausgeschaltet und wird beim Übernehmen "
     "abgeschaltet."},
    {"chkCDAutoPlay",
     "Startet eingelegte CDs automatisch, wie es Windows XP standardmäßig tut. Die Option ist nur "
     "für die Windows XP Home Edition gedacht. ACHTUNG: Ist sie eingeschaltet, löscht jedes "
     "Übernehmen den ganzen Schlüssel mit den Richtlinien für den Explorer samt allen anderen "
     "Einträgen, nur einer mit Unterschlüsseln bleibt, wie er ist!"},
    {"chkDescriptionPopups",
     "Zeigt eine kurze Beschreibung an, wenn die Maus auf einer Datei, einem Ordner oder einem "
     "Desktopsymbol stehen bleibt. Standardmäßig ist dies eingeschaltet. ACHTUNG: Solange die "
     "Suche des Windows Media Players nach Updates nicht eingeschaltet ist, erscheint die Option "
     "als ausgeschaltet und wird beim Übernehmen abgeschaltet!"},
    {"chkTaskBarGlooming",
     "Fasst bei voller Taskleiste die Fenster eines Programms unter einer gemeinsamen "
     "Schaltfläche zusammen, so dass sie einen Klick mehr benötigen. Standardmäßig ist dies "
     "eingeschaltet. Fehlt der Eintrag, erscheint die Option als ausgeschaltet und wird beim "
     "Übernehmen abgeschaltet."},
    {"chkNoSpaceCheck",
     "Windows XP warnt, wenn auf einer Festplatte der Speicherplatz knapp wird. Standardmäßig ist "
     "diese Meldung eingeschaltet. Schalten Sie sie ab, müssen Sie den freien Platz selbst im Auge "
     "behalten."},
    {"chkImagePreview",
     "Bietet im Kontextmenü von Bildern die Vorschau mit dem Bildbetrachter von Windows XP an. "
     "Standardmäßig ist dies eingeschaltet. ACHTUNG: Die Option erscheint bei jedem Start von "
     "Quillmore als ausgeschaltet und wird beim Übernehmen dann abgeschaltet!"},
    {"chkShortCutInk",
     "Entfernt den kleinen Pfeil, mit dem Windows XP Verknüpfungen kennzeichnet. Standardmäßig "
     "wird er angezeigt. Ohne den Pfeil lassen sich Verknüpfungen und Dateien leicht verwechseln, "
     "seien Sie also beim Löschen vorsichtig!"},
    {"chkAutoEndTasks",
     "Beendet beim Herunterfahren alle noch laufenden Programme ohne Nachfrage. Standardmäßig "
     "fragt Windows XP nach, wenn ein Programm nicht mehr reagiert. ACHTUNG: Nicht gespeicherte "
     "Daten gehen dabei verloren!"},
    {"chkOldSearchAssistent",
     "Ersetzt den animierten Suchassistenten von Windows XP durch die klassische Suche, wie Sie "
     "sie von Windows 2000 kennen. Standardmäßig ist der Assistent aktiv. Die klassische Suche ist "
     "schneller und zeigt alle Optionen auf einen Blick."},
    {"chkOSVersionOnDesktop",
     "Zeigt nach der nächsten Anmeldung unten rechts auf dem Desktop die Versionsnummer von "
     "Windows XP an. Standardmäßig ist dies ausgeschaltet. Fehlt der Eintrag, erscheint die "
     "Option als eingeschaltet und wird beim Übernehmen eingeschaltet."},
    {"chkEncryptionContext",
     "Nimmt 'Verschlüsseln' und 'Entschlüsseln' in das Kontextmenü des Explorers auf (nur NTFS), "
     "standardmäßig fehlen die Einträge. Einmal übernommen lässt sich die Option hier nicht "
     "wieder abschalten. ACHTUNG: Ohne Sicherung des Schlüssels sind verschlüsselte Dateien nach "
     "einer Neuinstallation verloren!"},
    {"chkHideWinComponents",
     "Aktiviert zeigt diese Option alle versteckten Windowskomponenten in der Systemsteuerung "
     "unter 'Software -> Windows Komponenten hinzufügen/entfernen' zur Deinstallation an. Achtung: "
     "Deinstallation von Windows Komponenten sollten Sie nur vornehmen, wenn es wirklich nötig ist "
     "und Sie sich damit auskennen."},
    {"chkDisableThumbnails",
     "Windows XP speichert die Bilder der Miniaturansicht in der Datei Thumbs.db, damit sie beim "
     "nächsten Mal schneller erscheinen. Standardmäßig ist dieser Cache aktiv, ohne ihn sparen "
     "Sie etwas Platz. Fehlt der Eintrag, erscheint die Option als ausgeschaltet und wird beim "
     "Übernehmen abgeschaltet."},
    {"chkWindowsTour",
     "Windows XP bietet nach der Installation mehrmals eine Tour an, mit dieser Option erscheint "
     "das Angebot nicht mehr. Zugleich wird das Script Debugging des Internet Explorers "
     "deaktiviert. Solange die Option ausgeschaltet ist (Standard), aktiviert jedes Übernehmen "
     "beides wieder."},
    {"chkCascadeExplorer",
     "Die Systemsteuerung klappt im klassischen Startmenü als Menü auf, statt sich in einem "
     "Fenster zu öffnen. Standardmäßig ist die Option ausgeschaltet. Auf die Anordnung neuer "
     "Fenster des Internet Explorers hat der Eintrag keine Wirkung."},
    {"chkDOSComp",
     "Windows XP legt auf NTFS-Laufwerken zu langen Dateinamen kurze (8.3) an, die DOS-Programme "
     "und manche Installationsprogramme noch benötigen. Standardmäßig ist dies aktiv, ohne die "
     "kurzen Namen gewinnen Sie etwas Geschwindigkeit. Fehlt der Eintrag, erscheint die Option als "
     "ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkIconCache",
     "Sollten sich Icons während des Arbeitens verändern bzw. das aussehen anderer Icons annehmen, "
     "so ist unter Umständen der Icon Cache zu klein. Durch aktivieren dieser Option steht Ihnen "
     "ein Icon Cache von 1024 Kilobyte zur Verfügung, der ausreichend sein sollte. Standardmäßig "
     "verwaltet Windows XP den Cache selber und hält ihn unter 512 KB."},
    {"chkShowAdminToolsInStartMenue",
     "Zeigt im Startmenü den Ordner 'Verwaltung' mit Werkzeugen wie der Ereignisanzeige und der "
     "Computerverwaltung an. Standardmäßig ist er ausgeblendet. Ändern Sie mit diesen Werkzeugen "
     "nur, womit Sie sich auskennen."},
    {"chkMP3BitRate",
     "Der Windows Media Player bietet beim Kopieren von CDs vier MP3-Qualitäten von 56 bis 320 "
     "Kilobit pro Sekunde an, wenn ein passender Codec vorhanden ist. Standardmäßig fehlen diese "
     "Einträge. Höhere Bitraten klingen besser, die Dateien werden aber auch größer."},
    {"chkSystemSpeaker",
     "Schaltet die erweiterten Systemklänge über den PC Speaker ein, ohne sie sind Warntöne nicht "
     "mehr zu hören. Standardmäßig sind sie eingeschaltet. Fehlt der Eintrag, erscheint die "
     "Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkSystemRestore",
     "Mit der Systemwiederherstellung können Sie Windows XP auf einen früheren Stand "
     "zurücksetzen, standardmäßig ist sie aktiv und belegt bis zu 12% jeder Platte. ACHTUNG: Beim "
     "Abschalten können alle Wiederherstellungspunkte verloren gehen! Fehlt der Eintrag, "
     "erscheint die Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkBSODAutostart",
     "Nach einem schweren Fehler (BlueScreen) startet Windows XP den Rechner standardmäßig sofort "
     "neu. Schalten Sie die Option ab, bleibt die Fehlermeldung stehen und Sie können sie in Ruhe "
     "lesen. Bei Rechnern ohne Aufsicht sollte sie eingeschaltet bleiben."},
    {"chkNeroBurnSpeed",
     "Zeigt in Nero beim Brennen die tatsächliche Geschwindigkeit des Brenners an. Standardmäßig "
     "fehlt der Eintrag, die Option erscheint dann als eingeschaltet und wird beim Übernehmen "
     "eingetragen. Das geschieht auch, wenn Nero nicht installiert ist, hat dann aber keine "
     "Wirkung."},
    {"txtTimeOut",
     "Hier kann ein Wert in Millisekunden angegeben werden, der entscheidet wann Programme die "
     "nicht mehr reagieren (Keine Rückmeldung) beendet werden. Standardmäßig dauert es bei Windows "
     "XP 10000 ms (10 Sekunden)."},
    {"sldStartmenu", MenuDelay},
    {"txtStartmenu", MenuDelay},
    {"chkWinLogOn",
     "Zeigt vor jeder Anmeldung ein Fenster mit der Meldung und dem Titel an, die Sie darunter "
     "eingeben. Standardmäßig gibt es keine Meldung. ACHTUNG: Beim Übernehmen mit abgeschalteter "
     "Option werden beide Texte in der Registrierung geleert!"},
    {"chkDatensicherheit(1)",
     "Der Internet Explorer überträgt beim Anzeigen verwandter Links die Adresse der besuchten "
     "Seite an den Dienst ALEXA. Diese Option entfernt den Eintrag dafür, standardmäßig ist er "
     "vorhanden. Schalten Sie die Option ab, wird er wieder angelegt."},
    {"chkDatensicherheit(2)",
     "Der Windows Media Player sucht im Internet selbst nach neuen Versionen. Standardmäßig ist "
     "dies eingeschaltet, ohne die Suche müssen Sie an wichtige Updates selbst denken. Fehlt der "
     "Eintrag, erscheint die Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chk1RecycleBinDelete",
     "Entfernt den Papierkorb vom Desktop, standardmäßig wird er angezeigt. Die Option wirkt nicht "
     "erst beim Übernehmen, zu sehen ist die Änderung aber erst nach einem Neustart. Gelöschte "
     "Dateien landen auch danach im Papierkorb."},
    {"chkNTLogin",
     "Ist die Option aktiviert, müssen Sie vor der Anmeldung nicht STRG+ALT+ENTF drücken. Das ist "
     "auf Rechnern ohne Domäne der Standard. Schalten Sie sie ab, verlangt Windows XP diese "
     "Tasten, was vor gefälschten Anmeldefenstern schützt."},
    {"chkDelegateFolders",
     "Entfernt die gemeinsamen Dokumente und die Dokumente der anderen Benutzer aus dem "
     "Arbeitsplatz, die Dateien selbst bleiben erhalten. Standardmäßig werden sie angezeigt. "
     "ACHTUNG: Die Option erscheint auch dann als eingeschaltet, und das Übernehmen entfernt die "
     "Ordner!"},
    {"chkPageFileDelete",
     "Überschreibt die Auslagerungsdatei bei jedem Herunterfahren, damit niemand Reste Ihrer "
     "Daten darin lesen kann; das Herunterfahren dauert dadurch deutlich länger. Standardmäßig "
     "ist dies ausgeschaltet. Fehlt der Eintrag, erscheint die Option als eingeschaltet und wird "
     "beim Übernehmen eingeschaltet."},
    {"chkDisableTM",
     "Trägt eine Sperre für den Taskmanager ein, standardmäßig gibt es keine. Da Windows XP die "
     "Sperre an einer anderen Stelle der Registrierung sucht, hat die Option keine Wirkung. Auch "
     "ein bereits gesperrter Taskmanager wird durch Abschalten nicht wieder zugänglich."},
    {"chkSecureWindows",
     "Schaltet den Dienst Universal Plug'n'Play (UPnP) ab, mit dem Windows XP Geräte im Netzwerk "
     "findet. Standardmäßig ist er aktiv, wegen seiner Sicherheitslücken sollten Sie ihn "
     "abschalten, wenn Sie ihn nicht benötigen. Die Option wirkt sofort, manche Geräte und "
     "Programme sind aber auf ihn angewiesen."},
    {"chkWindowsUpdate",
     "Ändert einen Eintrag, der bei Windows XP nur das Auffrischen der Explorerfenster betrifft. "
     "Auf die automatischen Updates, die standardmäßig gesucht werden, hat die Option keine "
     "Wirkung. Abschalten können Sie diese in der Systemsteuerung, ohne Updates bleiben aber "
     "Sicherheitslücken offen."},
    {"chkErrorReporting",
     "Stürzt ein Programm ab, bietet Windows XP standardmäßig an, einen Fehlerbericht an Microsoft "
     "zu senden. Mit dieser Option entfallen Bericht und Nachfrage. Da der Bericht Teile Ihrer "
     "Daten enthalten kann, ist das Abschalten zu empfehlen."},
    {"chkWindowsDesktop",
     "Startet Desktop und Taskleiste in einem eigenen Prozess, so dass sie weiterlaufen, wenn ein "
     "Explorerfenster abstürzt. Standardmäßig ist dies ausgeschaltet, da es mehr Arbeitsspeicher "
     "benötigt. Gelesen wird ein anderer Eintrag, beim nächsten Start erscheint die Option daher "
     "als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkClearRecentDocs",
     "Löscht beim Verlassen von Windows die Liste der zuletzt verwendeten Dokumente, so dass "
     "niemand sieht, woran Sie gearbeitet haben. Standardmäßig bleibt die Liste erhalten. Die "
     "Dokumente selbst werden nicht gelöscht."},
    {"chkLogOnAdmin",
     "Standardmäßig wird das Administrator Benutzerkonto nicht beim Starten von Windows XP im "
     "Anmeldebildschirm angezeigt. Ist die Funktion aktiviert wird auch dieses Konto zur Auswahl "
     "angezeigt. ACHTUNG: Wenn Sie nur mit dem Administratorkonto arbeiten und KEINEN weiteren "
     "Benutzer mit Adminrechten haben, sollten Sie diese Funktion NICHT ABSCHALTEN! Sie sperren "
     "sich unter Umständen selber aus. Falls es dennoch mal passiert, kein Grund zur Sorge. Im "
     "Anmeldedialog (wo nun der Admin fehlt) einfach gleichzeitig STRG+ALT+ENTF drücken. Nun "
     "können Sie die Anmeldedaten 'manuell' eintragen!"},
    {"chkWatsonIE",
     "Nach einem Absturz des Internet Explorers erstellt Dr. Watson einen Fehlerbericht und "
     "bietet an, ihn an Microsoft zu senden. Standardmäßig ist dies aktiv und kann ohne Nachteil "
     "abgeschaltet werden. Fehlt der Eintrag, erscheint die Option als ausgeschaltet und wird "
     "beim Übernehmen abgeschaltet."},
    {"chkWatsonXP",
     "Legt fest, ob Dr. Watson nach einem Absturz von Office XP Fehlerberichte und Dateien an "
     "Microsoft senden darf. Standardmäßig ist dies erlaubt. Gelesen wird ein anderer Eintrag, "
     "bei jedem Start erscheint die Option daher meist als ausgeschaltet und wird beim Übernehmen "
     "abgeschaltet."},
    {"cboMTU",
     "Die MTU ist die größte Länge eines Datenpakets in Bytes, falsche Werte bremsen die "
     "Verbindung. Üblich sind 576 für analoge Zugänge, 1492 für DSL und 1500 im Netzwerk (die "
     "Verbindungsart 'Netzwerk' setzt 3000), ohne Eintrag wählt Windows XP selbst. Bei jeder "
     "Änderung wird auch RWIN neu berechnet."},
    {"txtRWIN",
     "RWIN legt fest, wie viele Bytes empfangen werden, bevor eine Bestätigung gesendet wird. "
     "Ohne Eintrag wählt Windows XP den Wert selbst (Standard), beim Ändern der MTU wird das "
     "Vierfache von MTU minus 40 eingetragen. Zu kleine Werte bremsen schnelle Verbindungen, zu "
     "große kosten bei Störungen Zeit."},
    {"txtTTL",
     "TTL (Time To Live) ist die Anzahl der Stationen, die ein Datenpaket höchstens durchlaufen "
     "darf. Standardmäßig sind es bei Windows XP 128. Mit zu kleinen Werten sind weit entfernte "
     "Server nicht mehr zu erreichen."},
    {"chkMUTBH",
     "Erkennt Router, die zu große Datenpakete ohne Meldung verwerfen, und verkleinert die Pakete "
     "dann. Standardmäßig ist dies ausgeschaltet. Da die Erkennung Zeit kostet, sollten Sie sie "
     "nur bei Verbindungsproblemen aktivieren."},
    {"chkAutoMTU",
     "Windows XP ermittelt für jede Verbindung selbst die größtmögliche Paketlänge. Das ist der "
     "Standard und sollte so bleiben, sonst sind die Pakete außerhalb des eigenen Netzes nur 576 "
     "Bytes groß. Fehlt der Eintrag, erscheint die Option als ausgeschaltet und wird beim "
     "Übernehmen abgeschaltet."},
    {"chkSACK",
     "Mit SACK werden bei Störungen nur die wirklich verlorenen Datenpakete erneut gesendet. "
     "Windows XP benutzt es standardmäßig, vor allem bei großem RWIN sollte es aktiv sein. Fehlt "
     "der Eintrag, erscheint die Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkIPForwarding",
     "Der Rechner leitet Datenpakete zwischen seinen Netzwerkkarten weiter und arbeitet so als "
     "Router. Standardmäßig ist dies ausgeschaltet. ACHTUNG: Unbedacht aktiviert öffnet die Option "
     "Ihr Netzwerk möglicherweise nach außen!"},
    {"cboHTTP10", Connections},
    {"cboHTTP11", Connections},
    {"optOptimalDFUESets(0)", "Beste DFÜ-Einstellungen manuell setzen."},
    {"optOptimalDFUESets(1)", "Beste DFÜ-Einstellungen für analogen Zugang setzen."},
    {"optOptimalDFUESets(2)", "Beste DFÜ-Einstellungen für ISDN Zugang setzen."},
    {"optOptimalDFUESets(3)", "Beste DFÜ-Einstellungen für Netzwerk Zugang setzen."},
    {"optOptimalDFUESets(4)", "Beste DFÜ-Einstellungen für DSL Zugang setzen."},
    {"chkNetworkSpeed",
     "Erhöht die Anzahl der gleichzeitigen Befehle und Threads für Zugriffe auf andere Rechner im "
     "Netzwerk auf 104, was etwas mehr Arbeitsspeicher benötigt. Standardmäßig fehlen diese "
     "Einträge."},
    {"chkNetworkTasks",
     "Öffnen Sie einen Rechner im Netzwerk, sucht Windows XP dort standardmäßig nach geplanten "
     "Tasks, was einige Sekunden dauern kann. Mit dieser Option entfällt die Suche, Tasks anderer "
     "Rechner werden nicht mehr angezeigt. Die Option erscheint auch beim Standard als "
     "eingeschaltet und wird beim Übernehmen wirksam."},
    {"chkDNSSpeed",
     "Ändert vier Werte für den Zwischenspeicher der DNS-Namen, so dass bereits besuchte Adressen "
     "schneller gefunden werden. Standardmäßig fehlen diese Einträge. Zieht ein Server um, bleibt "
     "seine alte Adresse höchstens 64000 Sekunden (knapp 18 Stunden) gespeichert."},
    {"chkTCPTuning",
     "Setzt zwei Werte des Netzwerktreibers AFD (TransmitWorker 16 und PriorityBoost 10), damit "
     "Programme mit Netzwerkverbindungen schneller bedient werden. Standardmäßig fehlen diese "
     "Einträge. Bringt dies keine Verbesserung, schalten Sie die Option wieder ab."},
    {"chkOutlookTray",
     "Outlook XP und 2003 verschwinden beim Minimieren aus der Taskleiste und liegen dann als "
     "Symbol neben der Uhr. Standardmäßig bleibt das Programm in der Taskleiste. Ist Outlook "
     "nicht installiert, wird nichts geändert."},
    {"chkIEExtensions",
     "Outlook 'verbietet' Anhänge wie .exe, .vbs und andere als Standardeinstellung. Um solche "
     "Dateien dennoch empfangen zu können tragen Sie in das Textfeld darunter die entsprechenden "
     "Dateierweiterungen ein, getrennt durch jeweils ein Semikolon. Achtung: Das zulassen von "
     "einigen Dateianhängen stellt ein Sicherheitsrisiko dar!"},
    {"chkIEWinPos",
     "Löscht die gespeicherte Fensterposition des Internet Explorers, er merkt sich dann beim "
     "Schließen wie standardmäßig eine neue. Ist die Option ausgeschaltet, trägt jedes Übernehmen "
     "eine feste Position ein. Sie erscheint als ausgeschaltet, wenn bereits eine Position "
     "gespeichert ist."},
    {"chkScriptDebugging",
     "Zeigt an, ob der Internet Explorer bei Fehlern in Skripten auf das Debugging verzichtet. "
     "Standardmäßig ist es deaktiviert. Geändert wird der Wert nur zusammen mit der Option "
     "'Windows Tour nicht mehr anzeigen'."},
    {"chkNotifyDownloadReady",
     "Der Internet Explorer meldet sich, wenn ein Download abgeschlossen ist. Standardmäßig ist "
     "dies aktiv, bei vielen Downloads können Sie die Meldung abschalten. Fehlt der Eintrag, "
     "erscheint die Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"txtIETitel",
     "Hier können Sie die Adresse der Seite eintragen, die der Internet Explorer zum Suchen "
     "öffnet (höchstens 255 Zeichen). Standardmäßig ist dies eine Seite von Microsoft. Ein leeres "
     "Feld wird ebenfalls übernommen, der Internet Explorer hat dann keine Suchseite mehr."},
    {"cmdSynchronizeDateTime",
     "Hier können Sie das Datum und die Uhrzeit Ihres Systems über einen 'TimeServer' im Internet "
     "oder mit einem Server im Netzwerk synchronisieren. Durch die Übertragung kann es aber zu "
     "einigen Sekunden Verlust kommen."},
    {"cmdShutdown(2)",
     "Meldet den aktuellen Benutzer ab. Speichern Sie vorher Ihre Daten! Ob nachgefragt wird und "
     "ob Programme ohne Rückfrage beendet werden, legen Sie unter 'Optionen' fest."},
    {"cmdShutdown(0)",
     "Fährt den Computer herunter und schaltet ihn aus. Speichern Sie vorher Ihre Daten! Ob "
     "nachgefragt wird und ob Programme ohne Rückfrage beendet werden, legen Sie unter 'Optionen' "
     "fest."},
    {"cmdShutdown(1)",
     "Startet den Computer neu, was viele Änderungen erst wirksam macht. Speichern Sie vorher Ihre "
     "Daten! Ob nachgefragt wird und ob Programme ohne Rückfrage beendet werden, legen Sie unter "
     "'Optionen' fest."},
    {"cmdLockWS",
     "Sperrt den Computer, ohne Programme zu beenden. Sinnvoll ist dies, wenn Sie den Arbeitsplatz "
     "kurz verlassen. Ohne Passwort für Ihr Benutzerkonto bietet die Sperre keinen Schutz."},
    {"chkWinAnimate",
     "Das Minimieren und Maximieren von Fenstern wird animiert dargestellt, ohne dies arbeiten "
     "langsame Rechner flüssiger. Standardmäßig ist die Animation eingeschaltet. Fehlt der "
     "Eintrag, erscheint die Option als ausgeschaltet und wird beim Übernehmen abgeschaltet."},
    {"chkUnloadDll",
     "Windows XP behält DLLs beendeter Programme noch eine Weile im Arbeitsspeicher. Mit dieser "
     "Option werden sie sofort entladen, standardmäßig ist sie ausgeschaltet. Sie sparen damit "
     "Speicher, häufig benutzte Programme starten aber etwas langsamer."},
    {"chkPWEntrys",
     "Der Internet Explorer bietet standardmäßig an, eingegebene Passwörter zu speichern. Mit "
     "dieser Option geschieht dies nicht mehr. Benutzen mehrere Personen den Rechner, sollten Sie "
     "sie aktivieren."},
    {"chkHideComputer",
     "Soll den Rechner in der Netzwerkumgebung der anderen Rechner verbergen, standardmäßig ist "
     "er dort zu sehen. Da Windows XP einen Eintrag mit anderem Namen liest, hat die Option keine "
     "Wirkung. Ihre Freigaben sollten Sie mit Passwörtern und einer Firewall schützen."},
    {"chkShowALLFiles",
     "Soll im Explorer auch geschützte Systemdateien anzeigen, standardmäßig sind sie "
     "ausgeblendet. Da Windows XP einen Eintrag mit anderem Namen liest, hat die Option keine "
     "Wirkung. Sie finden die Einstellung in den Ordneroptionen des Explorers, löschen oder "
     "ändern Sie aber keine dieser Dateien!"},
    {"chkFixAthlonPCIAGP",
     "Behebt Abstürze, die bei Athlon-Prozessoren zusammen mit AGP-Grafikkarten durch große "
     "Speicherseiten auftreten können. Standardmäßig fehlt dieser Eintrag. Auf anderen Rechnern "
     "ist die Option nicht nötig und kann etwas Leistung kosten."},
    {"chkEnableNetworkProcessor",
     "Überlässt das Berechnen von Prüfsummen dem Prozessor der Netzwerkkarte, was Windows XP auch "
     "standardmäßig tut. Die Option hebt daher nur eine frühere Abschaltung auf. Ist sie "
     "ausgeschaltet, wird der Eintrag gelöscht, was ebenso wirkt."},
    {"cmdShowAllLoggedOnUsers",
     "Zeigt alle Benutzer an, die gerade an diesem System angemeldet sind. Auch Anmeldungen von "
     "Diensten können darunter sein. Sinnvoll ist dies vor dem Herunterfahren, damit niemand Daten "
     "verliert."},
    {"chkRemoveLastDocsFolder",
     "Blendet den Ordner 'Zuletzt verwendete Dokumente' im Startmenü aus. Standardmäßig wird er "
     "angezeigt. Die Liste wird weiterhin geführt, sie ist nur nicht mehr zu sehen."},
    {"chkEnableAGP4x",
     "Schaltet bei NVIDIA-Grafikkarten auf Mainboards mit VIA-Chipsatz den Modus AGP 4x ein. "
     "Standardmäßig ist er ausgeschaltet, ohne den passenden Treiber ist die Option gesperrt. "
     "ACHTUNG: Arbeitet der Rechner damit nicht stabil, schalten Sie sie wieder ab!"},
    {"cmdFreeMemory",
     "Windows gibt teilweise Speicher nicht mehr frei der mit 'Datenmüll' gefüllt ist. Diese "
     "Option räumt abhängig von Ihrer Hardwarekonfiguration den verfügbaren Speicher auf. Sinnvoll "
     "ist dies nach längeren Sitzungen oder nach Anwendungen die einen großen Bedarf an Speicher "
     "haben (z.B. Spiele)."},
    {"chkScanAll",
     "Durchsucht alle lokalen Festplatten nach Tempdateien. Standardmäßig ist die Option "
     "ausgeschaltet und nur das gewählte Laufwerk wird durchsucht. Bei großen Festplatten kann "
     "die Suche lange dauern."},
    {"chkRecentDocFolder",
     "Alle Einträge des Ordners 'Zuletzt verwendete Dokumente' werden ebenfalls in die Dateiliste "
     "eingetragen, standardmäßig geschieht dies nicht. Es sind nur Verknüpfungen, die Dokumente "
     "selbst bleiben beim Löschen erhalten."},
    {"chkNullByteFiles",
     "Alle Dateien die 0 Bytes groß sind werden ebenfalls zum löschen in die Dateiliste "
     "eingetragen. Achten Sie darauf das es auch 0 Byte große Dateien gibt die Windows zum "
     "aufräumen noch benötigt!"},
    {"chkCleanUserTempFolder",
     "Jeder Benutzer hat unter 'Dokumente und Einstellungen' auch ein 'Temporäres' Verzeichnis das "
     "Reste von Installation oder Tempdateien von gerade geöffneten Dokumenten enthält. Vor "
     "Benutzung sollten Sie daher auch ALLE noch offenen Anwendungen schließen um Datenverluste zu "
     "vermeiden! Möglicherweise lassen sich nach dem Reinigungsvorgang die noch geöffneten Dateien "
     "bzw. Dokumente nicht mehr speichern."},
    {"chkDeleteThumbs",
     "Die Archive Thumbs.db mit den Bildern der Miniaturansicht werden ebenfalls in die "
     "Dateiliste eingetragen, standardmäßig geschieht dies nicht. Windows XP legt sie bei Bedarf "
     "neu an, die Miniaturansicht erscheint dann beim ersten Mal etwas langsamer."},
    {"chkCleanRecycleBin",
     "Leert vor dem Löschen der markierten Dateien die Papierkörbe aller Laufwerke, standardmäßig "
     "geschieht dies nicht. ACHTUNG: Deren Inhalt lässt sich danach nicht wiederherstellen!"},
    {"cmdCleanBinDirect",
     "Leert nach einer Nachfrage sofort die Papierkörbe aller Laufwerke, ohne nach Tempdateien zu "
     "suchen. ACHTUNG: Deren Inhalt lässt sich danach nicht wiederherstellen!"},
    {"chkMoveToRecycleBin",
     "Verschiebt die Dateien in den Papierkorb, standardmäßig werden sie endgültig gelöscht. So "
     "können Sie eine Datei wiederherstellen, die doch noch gebraucht wird. Der Speicherplatz "
     "wird aber erst frei, wenn Sie den Papierkorb leeren."},
    {"cmdCleanTempFiles",
     "Löscht nach einer Nachfrage alle markierten Dateien der Liste. Dateien, die gerade in "
     "Benutzung sind, bleiben erhalten. ACHTUNG: Ordner in der Liste werden immer gelöscht, auch "
     "wenn sie nicht markiert sind!"},
    {"chkSHMediaDLL",
     "Der Explorer zeigt zu Videos keine Vorschau und keine Angaben mehr an. Standardmäßig ist "
     "die Vorschau eingeschaltet, kann aber Videodateien sperren, so dass sie sich nicht löschen "
     "oder umbenennen lassen. ACHTUNG: Beim ersten Start von Quillmore ist die Option bereits "
     "gesetzt, das erste Übernehmen schaltet die Vorschau ab!"},
};

}  // namespace

std::span<const HelpText> HelpTexts() {
    return HelpTextRows;
}

void HangHelpTexts(const toolkit::Form& form, controls::cToolTip& tips) {
    tips.SetStyle(controls::cToolTip::Standard);
    tips.SetDelayTime(1000);
    tips.SetVisibleTime(3320000);
    for (const HelpText& row : HelpTextRows) {
        const toolkit::Control& control = form.Find<toolkit::Control>(row.control);
        tips.SetToolTipObj(form.Host().HandleOf(control), row.text);
    }
}

}  // namespace tweaks
