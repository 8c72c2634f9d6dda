// The texts of the search for questions: captions, tips, what is said about the catalogue's files and the
// board.
#pragma once

#include "core/hinweistext.h"

#include <array>
#include <string_view>

namespace suchtexte {

inline constexpr std::string_view fenstertitel = " Fragen suchen";
inline constexpr std::string_view alleThemen = "alle Themen";
inline constexpr std::string_view allePunkte = "alle Punkte";

inline constexpr std::string_view lesen = " Ich lese alle Fragen ...";
inline constexpr std::string_view anzahl = "{} von {} Fragen";

// A file's name; a file's name and how many more.
inline constexpr std::string_view unlesbar = " Ich kann [ {} ] nicht lesen und suche ohne diese Fragen.";
inline constexpr std::string_view mehrUnlesbar =
    " Ich kann [ {} ] und {} weitere nicht lesen und suche ohne diese Fragen.";

inline constexpr std::string_view keinFormular = " Ich habe kein offenes Formular, in das die Frage passt.";
inline constexpr std::string_view allesVoll = " Ich finde kein leeres Feld mehr: Das Formular ist voll.";
inline constexpr std::string_view eingesetzt = " Die Frage steht in [ {} ].";
inline constexpr std::string_view gehalten = " Ich halte die Frage: F8 legt sie ab, Esc lässt sie los.";
inline constexpr std::string_view kopiert = " Frage und Antwort liegen in der Zwischenablage.";

// What stands for a form without a file: "schon benutzt in diesem Formular".
inline constexpr std::string_view diesesFormular = "diesem Formular";

inline constexpr std::array<std::string_view, 6> spalten{"Frage",      "Antwort", "Thema",
                                                         "Unterthema", "Punkte",  "Benutzt"};

inline constexpr std::string_view tipptitel = "Fragen suchen";
inline constexpr std::string_view suchTipp = "Hier die gesuchten Wörter eintippen: Alle müssen vorkommen,\r\n"
                                             "in Frage, Antwort, Thema oder Unterthema.\r\n"
                                             "- Groß und klein, ä und ae sind mir gleich.\r\n"
                                             "- \"rote Nase\" hält Wörter zusammen.\r\n"
                                             "- -Bibel lässt Fragen mit diesem Wort weg.";
inline constexpr std::string_view suchStatus = " Wörter eintippen, nach denen ich suchen soll";
inline constexpr std::string_view themaTipp = "Nur in diesem Thema suchen.";
inline constexpr std::string_view themaStatus = " Thema auswählen, in dem ich suchen soll";
inline constexpr std::string_view punkteTipp = "Nur Fragen mit dieser Punktzahl suchen.";
inline constexpr std::string_view punkteStatus = " Punktzahl auswählen, nach der ich suchen soll";

inline constexpr std::array hinweise{std::to_array<Hinweistext>({
    {"txtSuche", suchTipp, tipptitel, suchStatus},
    {"lblSuche", suchTipp, tipptitel, suchStatus},
    {"cmbSuchThema", themaTipp, tipptitel, themaStatus},
    {"lblSuchThema", themaTipp, tipptitel, themaStatus},
    {"cmbSuchPunkte", punkteTipp, tipptitel, punkteStatus},
    {"lblSuchPunkte", punkteTipp, tipptitel, punkteStatus},
    {"chkUnbenutzt",
     "Fragen weglassen, die schon in einem gespeicherten Formular stehen\r\n"
     "oder in dem, das gerade offen ist.",
     tipptitel, " Nur Fragen zeigen, die noch in keinem Formular stehen"},
    {"tblTreffer",
     "Gefundene Fragen, die beste zuerst.\r\n"
     "- mit der Maus in ein Feld ziehen\r\n"
     "- Eingabe setzt die Frage in das zuletzt besuchte Feld\r\n"
     "   oder in das nächste leere\r\n"
     "- Doppelklick zeigt sie in der Fragenauswahl\r\n"
     "- Strg+C kopiert Frage und Antwort",
     tipptitel, " Frage in das Formular ziehen, oder Eingabe drücken"},
    {"lblFrage", "Der gewählte Fund, ungekürzt.", tipptitel, " Gewählte Frage mit ihrer Antwort"},
    {"lblTreffer", "So viele Fragen habe ich gefunden.", tipptitel, " Anzahl der gefundenen Fragen"},
    {"cmdAbbruch", "Suche schließen.", "Schließen", " Suche schließen"},
})};

} // namespace suchtexte
