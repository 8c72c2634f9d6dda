// What the program says while it saves and opens forms. Only texts; who says them when is speichern.h and
// oeffnen.h.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace persistenztexte {

// --- Saving ---

inline constexpr MeldungsText nameFehlt{7, "Speichern unter abgebrochen", "234", "Machst du später"};
inline constexpr MeldungsText gespeichert{7, "Datei gespeichert unter  [ {} ]", "998", "Schön"};
inline constexpr MeldungsText abgebrochen{7, "Speichern unter... abgebrochen", "1", "Jawohl"};
inline constexpr NachrichtText ueberschreiben{
    7, " Speichern unter ...",
    "{}\r\n[ {} ]\r\nist bereits vorhanden !\r\nSoll ich diese Datei überschreiben ?", 4, 1111};
inline constexpr std::string_view dieAuswertung = "Die Auswertung"; // also for a quiz form: it is meant
inline constexpr std::string_view dieIniDatei = "Die Ini-Datei";
inline constexpr std::string_view speichernUnter = "Speichern unter ...";

// --- What others have written meanwhile; {} is the file, its name, and what Nein means ---

inline constexpr NachrichtText fremdGeaendert{
    7, "Da war jemand dran !",
    "{}\r\n[ {} ]\r\nist nicht mehr so, wie ich sie kenne !\r\nSoll ich sie überschreiben ?\r\n{}", 2, 1111};
inline constexpr NachrichtText fremdUnlesbar{
    7, "Da komme ich nicht dran !",
    "{}\r\n[ {} ]\r\nkann ich gerade nicht nachlesen !\r\nSoll ich sie überschreiben ?\r\n{}", 2, 1111};
inline constexpr MeldungsText fremdesBleibt{7, "Nichts gespeichert !\r\n[ {} ]\r\nbleibt, wie sie ist.", "1",
                                            "Vorsicht ist besser"};
inline constexpr std::string_view dieFormulardatei = "Die Formulardatei";
inline constexpr std::string_view dieFragendatei = "Die Fragendatei";
inline constexpr std::string_view neinAndererName = "( Nein : Du nennst mir einen anderen Namen )";
inline constexpr std::string_view neinBleibt = "( Nein : Ich lasse sie in Ruhe )";

// --- Backup ---

inline constexpr MeldungsText sicherungAngelegt{7, "BackUp angelegt :   [ {} ]", "994", "Schön"};
inline constexpr MeldungsText sicherungKatalog{7, "BackUp angelegt : \r\n[ {}.BAK ]", "1", "Wirklich ?!"};
inline constexpr MeldungsText keineSicherung{5, "Ich konnte kein BackUp anlegen von : \r\n[ {} ]", "1",
                                             "Das finde ich nicht so gut"};
inline constexpr std::string_view dateiWarNeu = "\r\n(Die Datei gab es bisher wahrscheinlich noch nicht.)";

// --- Settings file; {} is the system's text of the failure ---

inline constexpr MeldungsText iniFehler{5, "Feldkranz.INI konnte ich nicht schreiben !\r\n{}", "987",
                                        "Dann eben beim nächsten Mal"};

// --- Unsaved changes ---

inline constexpr NachrichtText aenderungen{
    7, "Auswertung speichern !", "Soll das aktuelle Feldkranz-Formular\r\ngespeichert werden ?", 2, 1111};
inline constexpr MeldungsText wurdeGespeichert{7, "Formular wurde gespeichert !", "2", "Aha"};
inline constexpr MeldungsText nichtGespeichert{7, "Formular wird nicht gespeichert !", "2",
                                               "Das will ich auch meinen"};
// One title for both kinds of form: it is meant.
inline constexpr NachrichtText schliessen{7, "Neues Test-Formular",
                                          "Soll ich das vorhandene Formular vorher speichern ?", 2, 1111};

// --- Opening ---

inline constexpr MeldungsText keineDatei{4, "Keine Datei ausgewählt !", "1", "Nicht doch"};
inline constexpr MeldungsText keinFormular{5, "Evtl. keine Feldkranz-Datei !", "1", "Grrr"};
inline constexpr MeldungsText testOffen{
    5, "Ich kann jetzt kein Feldkranzformular laden.\r\nDu mußt erst das Testformular schließen.", "1",
    "Das ist kein Problem, das mache ich doch sofort !"};
inline constexpr MeldungsText quizOffen{
    5, "Ich kann jetzt kein Testformular laden.\r\nDu mußt erst das Feldkranzformular schließen.", "1",
    "Den Gefallen kann ich dir tun !"};
inline constexpr std::string_view oeffnen = "Öffnen";
inline constexpr std::string_view ichLade = " Ich lade ...  ";

// Place that FehlerMelden names when that could not be kept.
inline constexpr std::string_view ortRettung = "DATEI : Ungesichertes_Retten";
// What became of an open form's unsaved changes, {} the file's name.
inline constexpr std::string_view rettungsort =
    " Ungesichertes liegt in [ {} ]; unter *.BAK hole ich es zurück.";

// --- The journal of unsaved work, in the status help ---

// {} the reason.
inline constexpr std::string_view journalFehler =
    " Nebenher sichern kann ich gerade nicht ({}) - speichere lieber bald selbst !";
// {} the name of the first one, and how many more there are.
inline constexpr std::string_view journalDa =
    " Ich wurde abgewürgt - dein ungespeicherter Stand liegt unter *.BAK in [ {} ].";
inline constexpr std::string_view journaleDa =
    " Ich wurde abgewürgt - dein ungespeicherter Stand liegt unter *.BAK in [ {} ] (und {} mehr).";
// The editor shows a text that was never saved.
inline constexpr std::string_view journalText =
    " Ich wurde abgewürgt - hier ist dein ungespeicherter Text von [ {} ].";
// A form that was blanked took the place of a full one; {} is the backup's name.
inline constexpr std::string_view geleertGesichert =
    " Das Formular war geleert - das volle liegt unter *.BAK in [ {} ].";
inline constexpr std::string_view geleertVerloren =
    " Das Formular war geleert - vom vollen konnte ich keine Sicherung anlegen.";
inline constexpr std::string_view katalogordner = "\\WISSEN";

// --- Run-time errors while a form is read, in stock boxes ---

inline constexpr std::string_view fehlerTitel = "Fehler beim Laden !";
inline constexpr std::string_view fehlerStelle =
    "Fehler Nummer {} occurred at line {}"; // the mixture is kept
inline constexpr std::string_view nameFalsch = "Mit dem Dateinamen stimmt etwas nicht !";
inline constexpr std::string_view laufwerk = "Laufwerk nicht bereit.\r\nVersuche es noch einmal !";
inline constexpr std::string_view dateiZuKurz = "Dateilänge nicht korrekt oder so ...";

} // namespace persistenztexte
