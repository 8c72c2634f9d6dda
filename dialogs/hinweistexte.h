// Tips and status lines of the message, the question and the input line.
#pragma once

#include "core/hinweistext.h"

#include <array>

namespace dialogtexte {

inline constexpr std::string_view hinweis = "Hinweis";
inline constexpr std::string_view schliessen = "Schließen";
inline constexpr std::string_view hilfe = "Hiiiilfee !";
inline constexpr std::string_view hilfeTipp = "Wenn erforderlich, wird hier ein Hilfesystem implementiert.";
inline constexpr std::string_view bildTipp = "Bild zur Meldung.";
inline constexpr std::string_view bildStatus = " Bild zur Meldung";
inline constexpr std::string_view nummerTipp = "Nummer der Meldung.";
inline constexpr std::string_view nummerStatus = " Nummer der Meldung";

inline constexpr std::array meldung{std::to_array<Hinweistext>({
    {"lblMeldung", "Das wollte ich dir nur sagen.", hinweis, " Meldung lesen"},
    {"cmdKenntnis", "Meldung zur Kenntnis nehmen und weitermachen.", hinweis, " Meldung zur Kenntnis nehmen"},
    {"pnlNr", nummerTipp, hinweis, nummerStatus},
    {"lblNr", nummerTipp, hinweis, nummerStatus},
    {"pnlPic", bildTipp, hinweis, bildStatus},
    {"picMeldung", bildTipp, hinweis, bildStatus},
})};

inline constexpr std::array nachricht{std::to_array<Hinweistext>({
    {"lblNachrichtentext", "Das möchte ich von dir wissen.", hinweis, " Frage lesen und beantworten"},
    {"cmdAntwort(0)", "Ja, das soll so gemacht werden.", hinweis, " Frage mit Ja beantworten"},
    {"cmdAntwort(1)", "Nein, das soll nicht gemacht werden.", hinweis, " Frage mit Nein beantworten"},
    {"cmdAntwort(2)", "Abbrechen, es bleibt alles so, wie es war.", schliessen, " Vorgang abbrechen"},
    {"cmdAntwort(3)", hilfeTipp, hilfe, " Hilfe zur Frage aufrufen"},
    {"cmdAntwort(4)", "OK, einverstanden.", hinweis, " Einverstanden"},
    {"picSymbol", "Bild zur Frage.", hinweis, " Bild zur Frage"},
})};

inline constexpr std::array eingabe{std::to_array<Hinweistext>({
    {"lblInput", "Das möchte ich von dir wissen.", hinweis, " Text eingeben"},
    {"txtInput", "Hier den Text eingeben.\r\n([Enter] übernimmt die Eingabe.)", hinweis, " Text eingeben"},
    {"cmdOK", "Eingabe übernehmen.", hinweis, " Eingabe übernehmen"},
    {"cmdAbbruch", "Eingabe abbrechen.", schliessen, " Eingabe abbrechen"},
    {"cmdHilfe", hilfeTipp, hilfe, " Hilfe zur Eingabe aufrufen"},
    {"picSymbol", "Bild zur Eingabe.", hinweis, " Bild zur Eingabe"},
})};

} // namespace dialogtexte
