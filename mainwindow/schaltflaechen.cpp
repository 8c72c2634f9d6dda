#include "mainwindow/schaltflaechen.h"

#include <array>

namespace {

constexpr std::string_view fk = "Feldkranz-Formular";
constexpr std::string_view hb = "Testformular";
constexpr std::string_view auswahlTipp = "Dialogbox für die Auswahl der :\r\n"
                                         "- Themen (Wissensgebiete)\r\n"
                                         "- Unterthemen\r\n"
                                         "- Fragen und Antworten\r\n"
                                         "aufrufen.";
constexpr std::string_view fkSchliessenTipp =
    "Feldkranz-Formular schließen;\r\n"
    "es folgt noch eine Abfrage, ob das aktuelle Formular gespeichert werden soll.";
constexpr std::string_view hbSchliessenTipp =
    "Testformular schließen;\r\n"
    "es folgt noch eine Abfrage, ob das aktuelle Formular gespeichert werden soll.";
constexpr std::string_view fkZurueckTipp =
    "Zurück zum Hauptmenü;\r\n"
    "es folgt noch eine Abfrage, ob das aktuelle Formular gespeichert werden soll.";

constexpr std::array schaltflaechen{
    Schaltflaeche{Leiste::Kranz, "cmdNeuFK", "leiste/neu_feldkranz", "Neuer Feldkranz",
                  "Neues Formular für Feldkranz anlegen.", fk, " Feldkranz vorbereiten"},
    Schaltflaeche{Leiste::Kranz, "cmdNeuHB", "leiste/neu_test", "Neuer Test", "Neues Testformular anlegen.",
                  hb, " Test vorbereiten"},
    Schaltflaeche{Leiste::Kranz, "cmdLaden", "leiste/oeffnen", "Öffnen",
                  "Vorhandenes Formular für Feldkranz oder Test laden.", "Formular",
                  " Formular für Feldkranz oder Test laden", true},
    Schaltflaeche{Leiste::Kranz, "cmdDateiliste", "leiste/dateiliste", "Dateiliste",
                  "Liste der vorhandenen Formulare einblenden.", "Hinweis", " Liste der Formulare"},

    Schaltflaeche{Leiste::FK, "cmdDateiFK(1)", "leiste/neu_feldkranz", "Neu",
                  "Neues Formular für Feldkranz anlegen.", fk, " Neues Formular für Feldkranz"},
    Schaltflaeche{Leiste::FK, "cmdDateiFK(2)", "leiste/oeffnen", "Öffnen",
                  "Vorhandenes Formular für Feldkranz laden.", fk, " Formular für Feldkranz laden"},
    Schaltflaeche{Leiste::FK, "cmdDateiFK(3)", "leiste/speichern", "Speichern",
                  "Formular für Feldkranz speichern.", fk, " Formular für Feldkranz speichern"},
    Schaltflaeche{Leiste::FK, "cmdDateiFK(4)", "leiste/speichern_unter", "... unter",
                  "Formular für Feldkranz unter neuem Namen speichern.", fk,
                  " Formular für Feldkranz speichern unter ..."},
    Schaltflaeche{Leiste::FK, "cmdDateiFK(5)", "leiste/beenden", "Beenden", fkSchliessenTipp, fk,
                  " Formular für Feldkranz beenden"},
    Schaltflaeche{Leiste::FK, "cmdDruckenFK(1)", "leiste/drucker", "Drucker",
                  "Drucker auswählen und einrichten.", "Drucken", " Drucker einrichten ...", true},
    Schaltflaeche{Leiste::FK, "cmdDruckenFK(2)", "leiste/drucken", "Drucken",
                  "Feldkranz-Formular ausdrucken.", "Drucken", " Feldkranz-Formular drucken ..."},
    Schaltflaeche{Leiste::FK, "cmdAuswahl(0)", "leiste/auswahl", "Auswahl", auswahlTipp, "Hinweis",
                  " Fragenauswahl laden", true},
    Schaltflaeche{Leiste::FK, "grpFKHB", "leiste/haeuptlingsbuch", "HB",
                  "Themen aus dem Häuptlingsbuch verwenden.", "Feldkranz-Häuptlingsbuch",
                  " Themen aus Häuptlingsbuch laden", false, true},
    Schaltflaeche{Leiste::FK, "cmdFKFLaden", "leiste/fragen_zurueck", "Fragen +",
                  "Gelöschte Fragen und Antworten wieder einfügen.", fk,
                  " Fragen in das Feldkranz-Formular schreiben", true},
    Schaltflaeche{Leiste::FK, "cmdFKFLoeschen", "leiste/fragen_weg", "Fragen −",
                  "Fragen und Antworten aus dem Formular löschen.\r\n"
                  "(Die Fragen und Antworten werden zwischengespeichert "
                  "und können wieder eingefügt werden.)",
                  "Löschen", " Fragen aus dem Feldkranz-Formular loeschen"},
    Schaltflaeche{Leiste::FK, "cmdFKSLaden", "leiste/spezial_zurueck", "Spezial +",
                  "Gelöschte Spezialfelder wieder einfügen.", fk,
                  " Spezialfelder in das Feldkranz-Formular schreiben"},
    // Meant: the tips of all deleting buttons end in the same words, whatever is deleted.
    Schaltflaeche{Leiste::FK, "cmdFKSLoeschen", "leiste/spezial_weg", "Spezial −",
                  "Spezialfelder aus dem Formular löschen.\r\n"
                  "(Die Fragen und Antworten werden zwischengespeichert "
                  "und können wieder eingefügt werden.)",
                  "Löschen", " Spezialfelder aus dem Feldkranz-Formular loeschen"},
    Schaltflaeche{Leiste::FK, "cmdIni", "leiste/vorgaben", "Vorgaben",
                  "Dialogbox für verschiedene Vorgaben und Einstellungen aufrufen.", "Einstellungen",
                  " Register für Voreinstellungen laden", true},
    Schaltflaeche{Leiste::FK, "cmdFKSchliessen", "leiste/schliessen", "Schließen", fkSchliessenTipp, fk,
                  " Feldkranz-Formular schließen"},
    Schaltflaeche{Leiste::FK, "cmdFKZurueck", "leiste/zurueck", "Zurück", fkZurueckTipp, fk,
                  " Zurück zum Hauptmenü"},

    Schaltflaeche{Leiste::HB, "cmdDateiHB(1)", "leiste/neu_test", "Neu", "Neues Testformular anlegen.", hb,
                  " Neues Testformular"},
    Schaltflaeche{Leiste::HB, "cmdDateiHB(2)", "leiste/oeffnen", "Öffnen", "Vorhandenes Testformular laden.",
                  hb, " Testformular laden"},
    Schaltflaeche{Leiste::HB, "cmdDateiHB(3)", "leiste/speichern", "Speichern", "Testformular speichern.", hb,
                  " Testformular speichern"},
    Schaltflaeche{Leiste::HB, "cmdDateiHB(4)", "leiste/speichern_unter", "... unter",
                  "Testformular unter neuem Namen speichern.", hb, " Testformular speichern unter ..."},
    Schaltflaeche{Leiste::HB, "cmdDateiHB(5)", "leiste/beenden_test", "Beenden", hbSchliessenTipp, hb,
                  " Testformular beenden"},
    Schaltflaeche{Leiste::HB, "cmdDruckenHB(1)", "leiste/drucker", "Drucker",
                  "Drucker auswählen und einrichten.", "Drucken", " Drucker einrichten ...", true},
    Schaltflaeche{Leiste::HB, "cmdDruckenHB(2)", "leiste/drucken", "Drucken", "Testformular ausdrucken.",
                  "Drucken", " Testformular drucken ..."},
    Schaltflaeche{Leiste::HB, "cmdAuswahl(1)", "leiste/auswahl", "Auswahl", auswahlTipp, "Hinweis",
                  " Fragenauswahl laden", true},
    Schaltflaeche{Leiste::HB, "cmdHBFLaden", "leiste/fragen_zurueck", "Fragen +",
                  "Gelöschte Fragen wieder einfügen.", hb, " Fragen in das Testformular schreiben", true},
    Schaltflaeche{Leiste::HB, "cmdHBFLoeschen", "leiste/fragen_weg", "Fragen −",
                  "Fragen aus dem Testformular löschen.\r\n"
                  "(Die Fragen und Antworten werden zwischengespeichert "
                  "und können wieder eingefügt werden.)",
                  "Löschen", " Fragen aus dem Testformular loeschen"},
    Schaltflaeche{Leiste::HB, "cmdHBALaden", "leiste/antworten_zurueck", "Antworten +",
                  "Gelöschte Antworten wieder einfügen.", hb, " Antworten in das Testformular schreiben"},
    Schaltflaeche{Leiste::HB, "cmdHBALoeschen", "leiste/antworten_weg", "Antworten −",
                  "Antworten aus dem Testformular löschen.\r\n"
                  "(Die Fragen und Antworten werden zwischengespeichert "
                  "und können wieder eingefügt werden.)",
                  "Löschen", " Antworten aus dem Testformular loeschen"},
    Schaltflaeche{Leiste::HB, "cmdHBPLaden", "leiste/punkte_zurueck", "Punkte +",
                  "Gelöschte Punkte wieder einfügen.", hb, " Punkte in das Testformular schreiben"},
    Schaltflaeche{Leiste::HB, "cmdHBPLoeschen", "leiste/punkte_weg", "Punkte −",
                  "Punkte aus dem Testformular löschen.\r\n"
                  "(Die Fragen und Antworten werden zwischengespeichert "
                  "und können wieder eingefügt werden.)",
                  "Löschen", " Punkte aus dem Testformular loeschen"},
    Schaltflaeche{Leiste::HB, "cmdHBSchliessen", "leiste/schliessen_test", "Schließen", hbSchliessenTipp, hb,
                  " Testformular schließen", true},
    Schaltflaeche{Leiste::HB, "cmdHBZurueck", "leiste/zurueck", "Zurück", fkZurueckTipp, hb,
                  " Zurück zum Hauptmenü"},

    Schaltflaeche{Leiste::Immer, "cmdSpielregel", "leiste/regel", "Regel",
                  "Spielregel für Feldkranz! aufrufen.", "Hiiiilfee", ""},
    Schaltflaeche{Leiste::Immer, "cmdEdit", "leiste/editor", "Editor",
                  "Editor für die Fragensammlung aufrufen.", "Editor", " Editor für Fragensammlung"},
    Schaltflaeche{Leiste::Immer, "cmdHilfe", "leiste/hilfe", "Hilfe", "Hilfe für Feldkranz aufrufen.",
                  "Hiiiilfee", " Hilfe für Feldkranz in Anspruch nehmen ..."},
    Schaltflaeche{Leiste::Immer, "cmdTarvo", "leiste/tarvo", "Tarvo", "Wer die Fragen gesammelt hat.",
                  "Initiator", " Initiator"},
    Schaltflaeche{Leiste::Immer, "cmdBrennek", "leiste/brennek", "Brennek",
                  "Wer das Programm geschrieben hat.", "Programmierer", " Programmierer"},
    Schaltflaeche{Leiste::Immer, "cmdHomepage", "leiste/netz", "Netz", "Internetseite aufrufen.", "Internet",
                  " Internetseite des Programm-Entwicklers aufrufen."},
    Schaltflaeche{Leiste::Immer, "cmdeMail", "leiste/mail", "eMail", "eMail schreiben.", "eMail",
                  " eMail an den Programm-Entwickler schicken."},
    Schaltflaeche{Leiste::Immer, "cmdEnde", "leiste/ende", "Ende", "Feldkranz verlassen.", "Schließen !",
                  " Feldkranz beenden"},
};

} // namespace

std::span<const Schaltflaeche> Schaltflaechen() {
    return schaltflaechen;
}
