// What the check of a form says. Only texts.
#pragma once

#include "core/hinweistext.h"

#include <array>
#include <string_view>

namespace pruefungtexte {

// --- The findings ---

inline constexpr std::string_view fehler = "Fehler";
inline constexpr std::string_view hinweis = "Hinweis";

inline constexpr std::string_view nr = "Nr.";
inline constexpr std::string_view datum = "Datum";
inline constexpr std::string_view zeit = "Zeit";
inline constexpr std::string_view titel = "Titel";
inline constexpr std::string_view fach = "Fach";
inline constexpr std::string_view gruppe = "Gruppe";
inline constexpr std::string_view gebiet = "Gebiet";
inline constexpr std::string_view frage = "Frage";
inline constexpr std::string_view antwort = "Antwort";
inline constexpr std::string_view feld = "Feld";
inline constexpr std::string_view punkte = "Punkte";

// {} is in millimetres.
inline constexpr std::string_view untenHinaus =
    "Auf dem Papier ragt der Text unten {} mm über das Feld hinaus.";
inline constexpr std::string_view rechtsHinaus =
    "Auf dem Papier ragt der Text rechts {} mm über das Feld hinaus.";
inline constexpr std::string_view inDieAntwort =
    "Mit Antworten gedruckt ragt die Frage {} mm in die Antwort hinein.";
inline constexpr std::string_view titelHinaus =
    "Auf dem Papier ragt der Titel links und rechts je {} mm über die Spalte hinaus.";
inline constexpr std::string_view kopfHinaus =
    "Auf dem Papier ragt der Text rechts {} mm über seinen Platz im Kopf hinaus.";

inline constexpr std::string_view anfuehrung =
    "Was hinter dem Zeichen \" steht, finde ich beim nächsten Öffnen nicht wieder.";
inline constexpr std::string_view ungedruckt = "Diese Antwort drucke ich nicht, denn ihre Frage fehlt.";
inline constexpr std::string_view leeresFeld = "Hier steht noch nichts.";
inline constexpr std::string_view frageFehlt = "Hier fehlt noch die Frage.";
inline constexpr std::string_view antwortFehlt = "Hier fehlt noch die Antwort.";
inline constexpr std::string_view leeresFormular = "Hier steht noch keine einzige Frage.";

// {} is the other place.
inline constexpr std::string_view doppelt = "Dieselbe Frage steht schon in [ {} ].";
inline constexpr std::string_view fastDoppelt = "Fast dieselbe Frage steht schon in [ {} ].";
inline constexpr std::string_view verraten = "Die Antwort steht schon in der Frage.";

// Kind, count, limit.
inline constexpr std::string_view zuViele = "{} habe ich {}-mal gezählt, vorgesehen ist es {}-mal.";
inline constexpr std::string_view ohnePunkte = "Für diese Frage gibt es noch keine Punkte.";

// --- The window ---

inline constexpr std::string_view fenstertitel = "Formular prüfen";
inline constexpr std::array<std::string_view, 3> spalten{"Art", "Feld", "Befund"};
inline constexpr std::string_view listenname = "Befunde"; // for who can't see the list
inline constexpr std::string_view ueberallErsetzen = "Alle \" &ersetzen";
inline constexpr std::string_view hierErsetzen = "Hier \" &ersetzen";
inline constexpr std::string_view schliessen = "&Schließen";

inline constexpr std::string_view nichtsOffen = "Es ist kein Formular offen.";
inline constexpr std::string_view inOrdnung = "Ich habe nichts gefunden, das Formular ist in Ordnung.";
inline constexpr std::string_view gefunden = "Ich habe {} gefunden.";
inline constexpr std::string_view und = " und ";
inline constexpr std::string_view einFehler = "einen Fehler";
inline constexpr std::string_view mehrFehler = "{} Fehler";
inline constexpr std::string_view einHinweis = "einen Hinweis";
inline constexpr std::string_view mehrHinweise = "{} Hinweise";

// Status help.
inline constexpr std::string_view ohneFormular = " Ich kann nichts prüfen: Es ist kein Formular offen.";
inline constexpr std::string_view ersetzt = " {} Texte haben jetzt „ und “.";
inline constexpr std::string_view einenErsetzt = " Ein Text hat jetzt „ und “.";
inline constexpr std::string_view schrittname = "Anführungszeichen ersetzen";

inline constexpr std::string_view hinweistitel = "Formular prüfen";
inline constexpr std::array hinweise{
    Hinweistext{"lblBefunde",
                "Was ich am offenen Formular gefunden habe.\r\nIch sehe bei jeder Änderung nach.",
                hinweistitel, " Anzahl der Befunde"},
    Hinweistext{"tblBefunde",
                "Mit einem Klick oder [Enter] geht es zum Feld.\r\n"
                "\r\n"
                "Fehler : Text geht verloren oder passt nicht aufs Papier\r\n"
                "Hinweis : Das entscheidest du selbst",
                hinweistitel, " Befunde (mit Klick oder [Enter] zum Feld)"},
    Hinweistext{"cmdErsetzen",
                "Setzt „ und “ an die Stelle von \" :\r\n"
                "im markierten Feld oder, wenn dort keines steht, in allen.",
                hinweistitel, " Anführungszeichen ersetzen, die einen Text abschneiden"},
    Hinweistext{"cmdAbbruch", "Schließt dieses Fenster.\r\n[Esc]", hinweistitel, " Fenster schließen"},
};

} // namespace pruefungtexte
