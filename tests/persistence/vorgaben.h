// Values that several tests of the files start from: a quiz form and a test form with a different value at
// every place, and the way of a value through the bytes of a file and back.
#pragma once

#include "persistence/formulardatei.h"

#include <algorithm>
#include <string>
#include <string_view>

// The values that a test writes and reads.
inline Formularwerte W;

inline void AllesLeeren() {
    W = {};
}

// Reads over the values, as while the form of their kind is open.
inline FormularErgebnis Lesen(std::string_view bytes, const WertLeser::Fehlermelder& melder = {}) {
    return FormularAusBytes(bytes, W.art, W, melder);
}

inline std::string Quizdatei() {
    return FormularBytes(W.quiz, W.spiel);
}

inline std::string Testdatei() {
    return FormularBytes(W.test);
}

// A quiz form with a different value at every place.
inline void QuizFuellen() {
    AllesLeeren();
    W.art = Formart::Quiz;
    W.spiel.FelderGesamt = 24;
    W.spiel.FragenProWissen = 4;
    W.spiel.AnzahlWissen = 6;
    W.quiz.FormNr = "7";
    W.quiz.FormDatum = "24. Dezember";
    W.quiz.FormZeit = "1½ Stunden";
    W.spiel.Felder = {2, 5, 3, 4, 1};
    W.spiel.Punkte = {5, 11, 10, 6, -3};
    W.spiel.Zwischenabstand = 1.5F;
    W.spiel.FarbeHintergrund = 3;
    for (std::size_t a = 1; a < W.quiz.WissenTitel.size(); ++a) {
        W.quiz.WissenTitel[a] = "Gebiet " + std::to_string(a);
    }
    for (std::size_t n = 1; n < W.quiz.FrageText.size(); ++n) {
        W.quiz.FrageText[n] = "Frage " + std::to_string(n) + "\r\nüber zwei Zeilen, mit Komma";
        W.quiz.AntwortText[n] = "Antwört " + std::to_string(n);
        W.quiz.FeldSpezial[n] = n % 6 == 0 ? "" : std::string(1, "AEGJR"[n % 6 - 1]);
    }
}

inline void TestFuellen() {
    AllesLeeren();
    W.art = Formart::Test;
    W.test.HBKopf1 = " TEST  HFZ";
    W.test.HBKopf2 = " Knoten";
    W.test.HBKopf3 = " II";
    W.test.HBFach = " Knoten";
    W.test.HBGesamtpunkte = 55;
    for (std::size_t i = 1; i < W.test.HBFrageText.size(); ++i) {
        W.test.HBFrageText[i] = "Aufgabe " + std::to_string(i);
        W.test.HBAntwortText[i] = "Lösung, " + std::to_string(i);
        W.test.HBPunkte[i] = static_cast<std::int16_t>(i);
    }
}

inline auto Zeilenzahl(std::string_view bytes) {
    return std::count(bytes.begin(), bytes.end(), '\n');
}

// The line of a file, counted from 1, without its end.
inline std::string Zeile(std::string_view bytes, int nummer) {
    for (; nummer > 1; --nummer) {
        bytes.remove_prefix(bytes.find("\r\n") + 2);
    }
    return std::string(bytes.substr(0, bytes.find("\r\n")));
}
