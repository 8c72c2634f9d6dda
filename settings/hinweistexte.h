// Tips and status lines of the settings dialog's controls. Rows of control arrays stand under the name
// without an index and hold for all members, or under the index of each. What the panels and spin controls of
// the special fields tell is in rules/spezialarten.h.
#pragma once

#include <array>
#include <string_view>

namespace initexte {

inline constexpr std::string_view tippTitel = "Hinweis";

struct Hinweis {
    std::string_view name, tipp, status;
    std::string_view titel = tippTitel;
};

inline constexpr std::string_view standardTipp =
    "Anzahl der Spezialfelder und Punkte nach Vorgabe für 30 Felder.";
inline constexpr std::string_view rahmenTipp = "Rahmen der Spezialfelder in verschiedenen Farben drucken.";
inline constexpr std::string_view farbTipp = "Formularhintergrund auf dem Bildschirm.";
inline constexpr std::string_view dateiTipp = "Einstellung von Dateioptionen.";
inline constexpr std::string_view druckTipp = "Voreinstellung der Formulargröße für den Ausdruck.";
inline constexpr std::string_view regelTipp = "Hier wird die Einhaltung der Spielregel geregelt.";
inline constexpr std::string_view spielregelTipp = "Spielregel für Feldkranz! aufrufen.";
inline constexpr std::string_view schattierung = "Schattierung (farbig) der verschiedenen Feldtypen.";
inline constexpr std::string_view abstandStatus = " Abstand der Fragefelder auf dem Ausdruck";
inline constexpr std::string_view schattierungStatus = " Schattierung auf dem Ausdruck";
inline constexpr std::string_view rahmenStatus = " Rahmenfarbe auf dem Ausdruck";
inline constexpr std::string_view farbStatus = " Formularhintergrund am Bildschirm";
inline constexpr std::string_view dateiStatus = " Backup anlegen";
inline constexpr std::string_view druckStatus = " Formulargröße für den Ausdruck";
inline constexpr std::string_view regelStatus = " Spielregeln beachten";
inline constexpr std::string_view wissenStatus = " Anzahl der Wissensgebiete";
inline constexpr std::string_view fragenStatus = " Anzahl der Fragen pro Wissensgebiet";

inline constexpr std::string_view punkteStatus = " Punkte für Spezialfelder";
inline constexpr std::string_view felderStatus = " Anzahl der zulässigen Spezialfelder";

inline constexpr std::array hinweise{
    Hinweis{"tabIni", "Register für die Voreinstellungen auswählen.", " Register für Voreinstellungen"},
    Hinweis{"pnlIni(0)", "Punkte und Anzahl der Spezialfelder für das Formular.", " Spezialfelder"},
    Hinweis{"pnlIni(1)", "Aussehen des Formulars auf dem Ausdruck.", " Formular auf dem Ausdruck"},
    Hinweis{"pnlIni(2)", farbTipp, farbStatus},
    Hinweis{"pnlIni(3)", "Standardwerte für Punkte und Anzahl der Spezialfelder.", " Standardvorgaben"},
    Hinweis{"pnlIni(4)", "Einstellung von Dateioptionen und Formulargröße.", " Datei und Drucken"},
    Hinweis{"pnlIni(5)", regelTipp, regelStatus},
    Hinweis{"pnlToolbar", "Anzahl der Fragen und Befehle zu den Voreinstellungen.",
            " Befehle zu den Voreinstellungen"},
    Hinweis{"fraPunkte", "Punkte für die Spezialfelder im Formular.", punkteStatus},
    Hinweis{"fraFelder", "Anzahl der zulässigen Spezialfelder im Formular.", felderStatus},
    Hinweis{"fraPunkteV", "Standardwerte der Punkte für die Spezialfelder.", punkteStatus},
    Hinweis{"fraFelderV", "Standardwerte für die Anzahl der Spezialfelder.", felderStatus},
    Hinweis{"lblFragenFKW", "Anzahl der Wissensgebiete.", wissenStatus},
    Hinweis{"lblFragenFKF", "Anzahl der Fragen pro Wissensgebiet.", fragenStatus},
    Hinweis{"lblFragenFK", "Anzahl der Fragen insgesamt.", " Anzahl der Fragen insgesamt"},
    Hinweis{"cmdStandard", standardTipp, " Standwerte übernehmen"}, // meant: the word is the program's own
    Hinweis{"cmdStandard2",
            "Anzahl der Spezialfelder und Punkte nach Vorgabe für die aktuelle Anzahl der Felder.",
            " Standardwerte abhängig von der Fragenanzahl umrechnen und übernehmen"},
    Hinweis{"cmdAbsolut", standardTipp, " Punktvorgaben nach Spielregel eintragen"},
    Hinweis{"cmdNull", "Anzahl der Spezialfelder auf 0 zurücksetzen.", " Einstellungen auf 0 setzen"},
    Hinweis{"cmdIniLaden", "Voreinstellungen aus Ini-Datei [FELDKRANZ.INI] laden.", " Standardpunkte laden"},
    Hinweis{"cmdIniSpeichern", "Voreinstellungen in Ini-Datei [FELDKRANZ.INI] speichern.",
            " als Standardpunkte speichern"},
    Hinweis{"pnlFragenFKW", "Anzahl der Wissensgebiete.", wissenStatus},
    Hinweis{"cmdWissenPlus", "Anzahl der Wissensgebiete erhöhen.", " Anzahl der Wissensgebiete erhöhen"},
    Hinweis{"cmdWissenMinus", "Anzahl der Wissensgebiete zurücksetzen.",
            " Anzahl der Wissensgebiete zurücksetzen"},
    Hinweis{"pnlFragenFKF", "Anzahl der Fragen pro Wissensgebiet.", fragenStatus},
    Hinweis{"cmdFragenPlus", "Anzahl der Fragen pro Wissensgebiet erhöhen.",
            " Anzahl der Fragen pro Wissensgebiet erhöhen"},
    Hinweis{"cmdFragenMinus", "Anzahl der Fragen pro Wissensgebiet zurücksetzen.",
            " Anzahl der Fragen pro Wissensgebiet zurücksetzen"},
    Hinweis{"pnlFragenFK", "Anzahl der Fragen insgesamt.", " Anzahl der Fragen insgesamt"},
    Hinweis{"cmdAbbrechen", "Dialogbox verlassen.\r\n(Geänderte Einstellungen werden wieder verworfen.)",
            " Dialogbox verlassen", "Schließen"},
    Hinweis{"cmdEinOK", "Einstellungen übernehmen und Dialogbox verlassen.",
            " Einstellungen übernehmen und Dialogbox verlassen"},
    Hinweis{"cmdHilfe", "Wenn erforderlich, wird hier ein Hilfesystem implementiert.",
            " Hilfe für Feldkranz aufrufen", "Hiiiilfee !"},
    Hinweis{"cmdSpielregel", spielregelTipp, " Spielregel für Feldkranz! aufrufen"},
    Hinweis{"fraSpielregel", spielregelTipp, " Spielregel für Feldkranz! aufrufen"},
    Hinweis{
        "fraZwischen",
        "Abstand der Frage- und Antwortfelder auf dem Ausdruck.\r\n(Standardwert = 0 mm, also kein Abstand.)",
        abstandStatus},
    Hinweis{"optZwischen(0)", "Kein Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck.",
            abstandStatus},
    Hinweis{"optZwischen(1)", "1 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck.",
            abstandStatus},
    Hinweis{"optZwischen(2)", "1,5 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck.",
            abstandStatus},
    Hinweis{"optZwischen(3)", "2 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck.",
            abstandStatus},
    Hinweis{"optZwischen(4)", "2,5 mm Abstand zwischen den Frage- und Antwortfeldern auf dem Ausdruck.",
            abstandStatus},
    Hinweis{"fraSchraffur", schattierung, schattierungStatus},
    Hinweis{"chkTitel", "Titelzeile farbig/grau unterlegt.", schattierungStatus},
    Hinweis{"chkWissen", "Titel der Wissensgebiete farbig/grau unterlegt.", schattierungStatus},
    Hinweis{"chkJoker", "Joker-Felder farbig/grau unterlegt.", schattierungStatus},
    Hinweis{"chkEreignis", "Ereignis-Felder farbig/grau unterlegt.", schattierungStatus},
    Hinweis{"fraRahmen", rahmenTipp, rahmenStatus},
    Hinweis{"chkRahmen", rahmenTipp, rahmenStatus},
    Hinweis{"fraFarbe", farbTipp, farbStatus},
    Hinweis{"optFarbe", farbTipp, farbStatus},
    Hinweis{"pnlFarbe", farbTipp, farbStatus},
    Hinweis{"fraDatei", dateiTipp, dateiStatus},
    Hinweis{"chkDatei", dateiTipp, dateiStatus},
    Hinweis{"fraDrucken", druckTipp, druckStatus},
    Hinweis{"optDrucken", druckTipp, druckStatus},
    Hinweis{"imgPapier", druckTipp, druckStatus},
    Hinweis{"fraSpielregeln", regelTipp, regelStatus},
    Hinweis{"chkMaxWissen", regelTipp, regelStatus},
    Hinweis{"chkMaxSpezial", regelTipp, regelStatus},
    Hinweis{"chkMaxFelder", regelTipp, regelStatus},
};

// What stands behind the tips of a kind's points: the tab on which the other set is found.
inline constexpr std::string_view imTabStandard = "\r\n(Werden im Tab [Standardvorgaben] eingestellt.)";
inline constexpr std::string_view imTabSpezial = "\r\n(Werden im Tab [Spezialfelder] eingestellt.)";

} // namespace initexte
