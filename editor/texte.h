// Every text with which the editor for the catalogue's files speaks.
#pragma once

#include "core/hinweistext.h"
#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace editortexte {

inline constexpr std::string_view fenstertitel = " Feldkranz! - Fragensammlung";

// --- Loading ---

inline constexpr std::string_view oeffnen = "Öffnen";
inline constexpr MeldungsText keineDatei{4, "Keine Datei ausgewählt !", "1", "Is' wahr"};
inline constexpr MeldungsText keinText{5, "Evtl. keine Textdatei !\r\n[ {} ]", "1", "Grrr"};
inline constexpr std::string_view ichLade = " Ich lade ...  ";

// --- Saving ---

inline constexpr std::string_view speichernUnter = "Speichern unter ...";
inline constexpr NachrichtText ueberschreiben{
    7, " Speichern unter ...",
    "Die Datei\r\n[ {} ]\r\nist bereits vorhanden !\r\nSoll ich diese Datei überschreiben ?", 1, 1111};
inline constexpr MeldungsText abgebrochen{7, "Speichern unter... abgebrochen", "1", "OK"};
inline constexpr std::string_view kastentitel = "Feldkranz!";
inline constexpr std::string_view nameFehlt = "SpeichernUnter abgebrochen\r\nwegen fehlendem Dateinamen !";
inline constexpr MeldungsText gespeichert{7, "Fragen sind gespeichert unter\r\n[ {} ] !", "157",
                                          "Ganz große Klasse"};

// --- Questions ---

inline constexpr NachrichtText ablageLeeren{7, "Zwischenablage löschen !",
                                            "Soll die Zwischenablage gelöscht werden ?", 1, 1111};
inline constexpr NachrichtText textLeeren{7, "Text löschen !", "Soll der Text gelöscht werden ?", 1, 1111};
inline constexpr NachrichtText textSpeichern{7, "Text speichern !",
                                             "Soll der aktuelle Text gespeichert werden ?", 2, 1111};
inline constexpr MeldungsText nichtGespeichert{7, "Text nicht gespeichert !", "1", "Damit kann ich leben"};

// --- Run-time errors: places that FehlerMelden names, and the one of the window's making ---

inline constexpr std::string_view ortZwischenablage = "Notiz : cmdCopy";
inline constexpr std::string_view ortLaden = "DATEI : Oeffnen_Fragen";
inline constexpr std::string_view ortDatei = "Notiz : cmdDatei";
inline constexpr MeldungsText formfehler{1, "Notizformfehler", "1", "Grrr"};

// --- Buttons, in the order in which they stand ---

enum class Vorher { Nichts, Luecke, NeueReihe, SelberPlatz };

struct Taste {
    std::string_view name;
    std::string_view bild; // as core/bilder.h names it
    std::string_view aufschrift;
    Vorher vorher = Vorher::Nichts; // what stands before the button; of two in one place one shows
    bool schalter = false;
};
inline constexpr std::array tasten{
    Taste{"cmdDatei(1)", "leiste/oeffnen", "Laden"},
    Taste{"cmdDatei(0)", "leiste/speichern", "Speichern"},
    Taste{"cmdDatei(2)", "leiste/speichern_unter", "... unter"},
    Taste{"grpBackUp", "editor/backup", "BackUp", Vorher::Nichts, true},
    Taste{"cmdSchreiben", "editor/nicht_schreiben", "Sperren", Vorher::Luecke},
    Taste{"cmdNichtSchreiben", "editor/schreiben", "Freigeben", Vorher::SelberPlatz},
    Taste{"cmdTexteingabeRot", "lampe/rot", "", Vorher::Luecke},
    Taste{"cmdTexteingabeGruen", "lampe/gruen", "", Vorher::SelberPlatz},
    Taste{"cmdHilfe", "leiste/hilfe", "Hilfe", Vorher::Luecke},
    Taste{"cmdEnde", "datei/abbrechen", "Ende"},
    Taste{"cmdCopy(0)", "editor/kopieren", "Kopieren", Vorher::NeueReihe},
    Taste{"cmdCopy(1)", "editor/anhaengen", "Anhängen"},
    Taste{"cmdCopy(2)", "editor/ausschneiden", "Ausschneiden"},
    Taste{"cmdCopy(3)", "editor/ausschneiden_anhaengen", "Ausschn. u. anhängen"},
    Taste{"cmdCopy(4)", "editor/einfuegen", "Einfügen"},
    Taste{"cmdCopy(5)", "editor/text_loeschen", "Löschen", Vorher::Luecke},
    Taste{"cmdCopy(6)", "editor/ablage_leeren", "Ablage leeren"},
    Taste{"cmdCopy(7)", "editor/text_leeren", "Text leeren"},
};

// --- What each control tells about itself ---

inline constexpr std::string_view tipptitel = "Editor";
inline constexpr std::string_view feldTipp = "Textfenster für Texteingabe.";
inline constexpr std::string_view feldStatus = " Textfenster für Texteingabe";
inline constexpr std::array<Hinweistext, 24> hinweise{{
    {"pnlToolbar", "Befehle für den Text im Textfenster.", tipptitel, " Befehle des Editors"},
    {"cmdCopy(0)", "Markierten Text in die Zwischenablage kopieren.", tipptitel,
     " wenn Text markiert : Kopieren in Zwischenablage"},
    {"cmdCopy(1)", "Markierten Text an die Zwischenablage anhängen.", tipptitel,
     " wenn Text markiert : Anhängen an Zwischenablage"},
    {"cmdCopy(2)", "Markierten Text ausschneiden und in die Zwischenablage kopieren.", tipptitel,
     " wenn Text markiert : Ausschneiden und in Zwischenablage"},
    {"cmdCopy(3)", "Markierten Text ausschneiden und an die Zwischenablage anhängen.", tipptitel,
     " Ausschneiden und Anhängen an Zwischenablage"},
    {"cmdCopy(4)", "Text aus der Zwischenablage an Cursorposition einfügen.", tipptitel,
     " wenn Text in Zwischenablage : Einfügen aus Zwischenablage"},
    {"cmdCopy(5)", "Markierten Text löschen.", tipptitel, " wenn Text markiert : markierten Text löschen"},
    {"cmdCopy(6)", "Zwischenablage leeren.", tipptitel,
     " wenn Text in Zwischenablage : Zwischenablage leeren"},
    {"cmdCopy(7)", "Textfenster leeren.", tipptitel, " Notizfenster leeren"},
    {"cmdDatei(0)", "Text im Textfenster speichern.", tipptitel, " Text speichern"},
    {"cmdDatei(1)", "Text ins Textfenster laden.", tipptitel, " Text laden"},
    {"cmdDatei(2)", "Text im Textfenster speichern unter einem anderen Namen.", tipptitel, ""},
    {"grpBackUp", "BackUp der geladenen Datei anlegen und Text speichern.", tipptitel, ""},
    {"cmdSchreiben", "Text für Bearbeiten sperren.", tipptitel, " Text für Bearbeiten sperren"},
    {"cmdNichtSchreiben", "Text für Bearbeiten freigeben.", tipptitel, " Text zum Editieren freigeben"},
    {"cmdEnde", "Editor schließen.", "Schließen", ""},
    {"cmdHilfe", "Wenn erforderlich, wird hier ein Hilfesystem implementiert.", "Hiiiilfee !",
     " Hilfe zur Bemerkung aufrufen"},
    {"cmdTexteingabeRot", "Der Text hat Änderungen, die noch nicht gespeichert sind.", tipptitel,
     " Text ist verändert"},
    {"cmdTexteingabeGruen", "Am Text ist nichts Ungespeichertes.", tipptitel, " Text ist unverändert"},
    {"pnlLaufname", "Bezeichnung der Auswertung.", tipptitel, " Bezeichnung der Auswertung"},
    {"pnlDatei", "Name der geladenen/abgespeicherten Datei.", tipptitel, " Name der Datei"},
    {"pnlEdit", feldTipp, tipptitel, feldStatus},
    {"pnlNotiz", feldTipp, tipptitel, feldStatus},
    {"txtNotiz", feldTipp, tipptitel, feldStatus},
}};

} // namespace editortexte
