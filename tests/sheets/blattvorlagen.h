// Forms whose sheets are looked at, as values.
#pragma once

#include "sheets/blaetter.h"

#include <array>
#include <string>

// A full board: titles of one word, a question and an answer a cell ("Frage7", "Antwort7"), and a special
// field of each kind in the rows of the second area.
inline Quizvorlage VollesQuiz() {
    constexpr std::array<const char*, 7> titel{"", "Musik", "Natur", "Sport", "Bibel", "Technik", "Länder"};
    constexpr std::array<const char*, 5> arten{"J", "G", "R", "A", "E"};
    Quizvorlage quiz;
    quiz.spiel.AnzahlWissen = anzahlGebiete;
    quiz.spiel.FragenProWissen = fragenJeGebiet;
    quiz.spiel.Papierformat = "A4 quer";
    quiz.spiel.Punkte[Spezialart::Joker] = 7;
    quiz.spiel.Punkte[Spezialart::Ereignis] = 20;
    quiz.spiel.Punkte[Spezialart::Glueck] = 10;
    quiz.form.FormNr = "17";
    quiz.form.FormDatum = "24.12.2008";
    quiz.form.FormZeit = "90 Minuten";
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        quiz.form.WissenTitel.at(a) = titel.at(a);
    }
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        quiz.form.FrageText.at(n) = "Frage" + std::to_string(n);
        quiz.form.AntwortText.at(n) = "Antwort" + std::to_string(n);
    }
    for (std::size_t i = 0; i < arten.size(); ++i) {
        quiz.form.FeldSpezial.at(6 + i) = arten.at(i);
    }
    return quiz;
}

// Three questions, the second without an answer.
inline Testvorlage KleinerTest() {
    Testvorlage test;
    test.druck.titel = " Lernzielkontrolle";
    test.druck.fach = " Knoten";
    test.druck.gruppenwort = " Gruppe :";
    test.druck.gruppe = " III";
    test.druck.dateiname = "Knoten.FKR";
    test.druck.gesamtpunkte = 12;
    for (std::size_t i = 2; i <= 4; ++i) {
        const std::string nr = std::to_string(i);
        const std::string antwort = i == 3 ? std::string() : "Antwort" + nr;
        test.form.HBFrageText.at(i) = "Frage" + nr;
        test.form.HBAntwortText.at(i) = antwort;
        test.druck.zeilen.at(i) = {"Frage" + nr, antwort, std::to_string(i)};
    }
    return test;
}
