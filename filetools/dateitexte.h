// Every text with which the file dialog speaks.
#pragma once

#include "core/hinweistext.h"
#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace dateitexte {

inline constexpr std::string_view titelOeffnen = "Öffnen";
inline constexpr std::string_view titelSpeichern = "Speichern unter ...";

// Deleting a file; {} is its name.
inline constexpr MeldungsText nichtLoeschbar{5, "Die Datei  [ {} ]  kann ich nicht löschen !", "1",
                                             "Dann eben nicht"};
inline constexpr NachrichtText dateiLoeschen{7, "Datei löschen", "Ich lösche die Datei \r\n[ {} ]  !", 2,
                                             1111};
inline constexpr NachrichtText dateiWirklichLoeschen{
    7, "Datei löschen", "Soll ich die Datei \r\n[ {} ] \r\n wirklich löschen ?", 2, 1111};
inline constexpr MeldungsText keineGeloescht{7, "Keine Datei gelöscht !", "1", "Aha"};
inline constexpr MeldungsText dateiGeloescht{7, "{} gelöscht !", "1", "Aha"};

// Copying a file.
inline constexpr MeldungsText kopierQuelle{7, "{}", "1", "... zur Kenntnis genommen !"};
inline constexpr int kopierBild = 3;
inline constexpr std::string_view kopierTitel = "Datei kopieren !";
inline constexpr std::string_view kopierFrage = "Wie soll die neue Datei\r\n( Auswertung, etc. )\r\nheißen ?";
inline constexpr NachrichtText kopieUeberschreiben{
    7, "Datei kopieren !",
    "Die Datei\r\n[ {} ]\r\nist bereits vorhanden !\r\nSoll ich diese Datei überschreiben ?", 2, 1111};
inline constexpr MeldungsText kopiert{7, "{}", "1", "zur Kenntnis genommen"};
// In the order of Namensfehler; the last one is told in the run time's words.
inline constexpr std::array<MeldungsText, 4> namensfehler{{
    {5, "Ich konnte keine neue Datei anlegen", "1", "Ist das wahr ?!"},
    {5, "Der Name darf kein Leerzeichen enthalten !", "1", "Immer diese Einschränkungen !"},
    {5, "Der Name darf keinen Punkt enthalten !", "1", "Dann mach den Punkt doch selbst !"},
    {5, "Der Dateiname darf nur 8 Zeichen enthalten", "1", "Ist das wahr ?!"},
}};

// Making a folder; {} is its name, then the folder it lies in.
inline constexpr int ordnerBild = 4;
inline constexpr std::string_view ordnerTitel = "Ordner anlegen !";
inline constexpr std::string_view ordnerFrage = "Wie soll der neue Ordner\r\n( Verzeichnis )\r\nheißen ?";
inline constexpr MeldungsText keinOrdnerAngelegt{5, "Ich konnte keinen Ordner anlegen", "1",
                                                 "Ist das wahr ?!"};
inline constexpr MeldungsText ordnerVorhanden{
    5, "Ordner  '{}'  ist schon vorhanden, bitte neuen Namen wählen !", "1", "wird gemacht ..."};
inline constexpr MeldungsText ordnerAngelegt{7, "Neuer Ordner  '{}'  angelegt in  [ {} ]", "1", "Sehr gut"};

// Deleting a folder; {} is its name.
inline constexpr NachrichtText ordnerLoeschen{7, "Ordner löschen", "Ich lösche den Ordner {} !", 2, 1111};
inline constexpr NachrichtText ordnerWirklichLoeschen{7, "Ordner löschen",
                                                      "Soll ich den Ordner {} wirklich löschen ?", 2, 1111};
inline constexpr MeldungsText ordnerBehaltenErst{7, "Keinen Ordner gelöscht !", "1", "Danke"};
inline constexpr MeldungsText ordnerBehaltenDann{7, "Keinen Ordner gelöscht !", "1", "In Ordnung"};
inline constexpr MeldungsText ordnerGeloescht{7, "Ich habe den Ordner\r\n '{}' \r\ngelöscht !", "1",
                                              "Na also"};

// Stock boxes.
inline constexpr std::string_view hinweisTitel = "Hinweis";
inline constexpr std::string_view nichtsSelektiert = "Keine Datei selektiert!";
inline constexpr std::string_view pfadTitel = "Pfad";
inline constexpr std::string_view pfadZeilen = "Datenträger:{}\r\nPfad: {}\r\nDatei: {}\r\nExtension: {}";

// Places that FehlerMelden names.
inline constexpr std::string_view ortDateiliste = "DATEI : filDateiliste";
inline constexpr std::string_view ortVorschau = "DATEI : Oeffnen_Vorschau";

// Counters and drives.
inline constexpr std::string_view anzahl = "{} Datei(en) ";
inline constexpr std::string_view laufwerkTipp = "Laufwerk {}";
inline constexpr std::string_view laufwerkStatus = " Laufwerk {}\\ ";

// What each control tells about itself.
inline constexpr std::string_view standard = "Hinweis";
inline constexpr std::string_view alleTipp = "Anzahl aller Dateien im aktuellen Ordner.";
inline constexpr std::string_view alleStatus = " Anzahl aller Dateien";
inline constexpr std::string_view sicherungTipp = "Speichern mit Back Up.";
inline constexpr std::string_view sicherungStatus = " Speichern mit Back Up (sichert vor dem Speichern)";
inline constexpr std::string_view vorschauTipp =
    "Vorschau der ausgewählten Datei.\r\n(Mit Linksklick wird sie wieder ausgeblendet.)";
inline constexpr std::string_view ordnerStatus = " Ordnerauswahl";
inline constexpr std::array hinweise{std::to_array<Hinweistext>({
    {"cmdLaden", "Ausgewählte Auswertungsdatei laden.", standard, " Laden ..."},
    {"cmdSpeichern", "Auswertungsdatei speichern.", standard, " Speichern ..."},
    {"cmdAbbrechen", "Dateidialogbox ausblenden!", "Schließen", " Dateidialog ausblenden"},
    {"cmdHilfe", "Wenn erforderlich, wird hier ein Hilfesystem implementiert.", "Hiiiilfee !", " Hilfe"},
    {"cmdOrdner(0)", "Neuen Ordner im aktuellen Verzeichnis anlegen.", standard,
     " Neuen Ordner (Verzeichnis) anlegen"},
    {"cmdOrdner(1)", "Aktuellen Ordner löschen.\r\n(Es folgen zunächst noch zwei Sicherheitsabfragen!)",
     standard, " Ordner (Verzeichnis) löschen"},
    {"cmdOrdner(2)",
     "Ordnerserie A-Z im aktuellen Verzeichnis anlegen.\r\n(Es folgt zunächst noch eine Abfrage!)", standard,
     " Ordnerserie A-Z (Verzeichnisse) anlegen"},
    {"cmdDatei(0)", "Ausgewählte Datei kopieren.", standard,
     " Dateioperation  -->  Datei (Auswertung, etc.) kopieren"},
    {"cmdDatei(1)", "Ausgewählte Datei löschen.", standard,
     " Dateioperation  -->  Datei (Auswertung, etc.) löschen"},
    {"cmdDatei(2)",
     "Datei suchen.\r\nEs öffnet sich ein erweitertes Fenster zur Eingabe der Suchkriterien \r\nund zur "
     "Ausgabe "
     "der gefundenen Dateien.",
     standard, " Dateioperation  -->  Datei (Auswertung, etc.) suchen"},
    {"cmdDatei(3)", "Ausgewählte Auswertungsdatei im Texteditor (Notepad) anzeigen.", standard,
     " Dateioperation  -->  Datei (Auswertung, etc.) mit Notepad editieren"},
    {"fraLaufwerk", "Mit Doppelklick auf diesen Rahmen Laufwerk-Buttons ausblenden \r\nund Liste einblenden.",
     standard, "Laufwerksauswahl umschalten (Buttons - Liste)"},
    {"fraOrdner",
     "Die Buttons (Ordneroptionen) in diesem Rahmen werden nach Doppelklick \r\nabwechselnd aktiv/inaktiv.",
     standard, " Ordneraktionen"},
    {"fraDatei",
     "Die Buttons (Dateioptionen) in diesem Rahmen werden nach Doppelklick \r\nabwechselnd aktiv/inaktiv.",
     standard, " Dateioperationen"},
    {"fraButtons", "Ausgewählte Datei übernehmen oder Dateidialogbox ausblenden.", standard,
     " Laden ... / Speichern ..."},
    {"chkBackUp", sicherungTipp, standard, sicherungStatus},
    {"lblBackUp", sicherungTipp, standard, sicherungStatus},
    {"cmdVorschau", "Größe, Datum und Fragenzahl der ausgewählten Datei anzeigen.", standard, " Vorschau"},
    {"cmdPfadZerlegen", "Pfad und Datum der ausgewählten Datei anzeigen.", standard, " Pfad"},
    {"drvList", "Laufwerk aus der Liste auswählen.", standard, " Laufwerksauswahl"},
    {"dirVerzeichnisliste", "Ordner mit Doppelklick auswählen.", standard, ordnerStatus},
    {"fraDir", "Ordner im aktuellen Verzeichnis.", standard, ordnerStatus},
    {"filDateiliste", "Datei mit Linksklick auswählen.\r\n(Mit Doppelklick wird sie gleich übernommen.)",
     standard, " Dateiauswahl"},
    {"picList", "Dateien im aktuellen Ordner.", standard, " Dateiauswahl"},
    {"picDatei", "Anzahl der Dateien im aktuellen Ordner.", standard, " Anzahl der Dateien"},
    {"picButtons", "Dateioptionen und Ordneroptionen.", standard, " Dateioperationen, Ordneraktionen"},
    {"lblDateienAnzahl", "Anzahl der Dateien mit der ausgewählten Endung.", standard,
     " Anzahl der angezeigten Dateien"},
    {"lblAlleDateienAnzahl", alleTipp, standard, alleStatus},
    {"lblAlle", alleTipp, standard, alleStatus},
    {"txtDateiname", "Name der ausgewählten Datei.\r\n(Kann auch eingegeben werden.)", standard,
     " Dateiname"},
    {"cmbAppend", "Dateityp aus der Liste auswählen.", standard, " Dateityp"},
    {"optAppend", "Dateien mit dieser Endung anzeigen.", standard, " Dateien mit dieser Endung anzeigen"},
    {"pnlDatei", vorschauTipp, standard, " Vorschau"},
    {"grdDatei", vorschauTipp, standard, " Vorschau"},
    {"cmdDateiInfoEnde", "Vorschau ausblenden.", standard, " Vorschau ausblenden"},
})};
inline constexpr std::string_view ordnerTipptitel = "Ordner"; // above the whole path

} // namespace dateitexte
