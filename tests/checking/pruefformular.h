// Forms about which the check has nothing to say, as values.
#pragma once

#include "quizform/quizformular.h"
#include "rules/spielwerte.h"

#include <array>
#include <string>

inline Spielwerte VollesBrett() {
    Spielwerte spiel;
    spiel.AnzahlWissen = anzahlGebiete;
    spiel.FragenProWissen = fragenJeGebiet;
    spiel.Felder.fill(2);
    spiel.Papierformat = "A4 quer";
    return spiel;
}

// Thirty questions about which there is nothing to say, and their answers.
inline Quizformular GutesFormular() {
    constexpr std::array<const char*, 6> was{"Berg", "Fluss", "Turm", "Vogel", "Fisch", "Baum"};
    constexpr std::array<const char*, 5> woher{"Peru", "Kuba", "Iran", "Oman", "Togo"};
    Quizformular form;
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        const auto gebiet = static_cast<std::size_t>(GebietVon(static_cast<int>(n)) - 1);
        const auto zeile = static_cast<std::size_t>(ZeileVon(static_cast<int>(n)) - 1);
        form.FrageText.at(n) = std::string("Welcher ") + was.at(gebiet) + " aus " + woher.at(zeile) + "?";
        form.AntwortText.at(n) = "Antwort";
    }
    return form;
}
