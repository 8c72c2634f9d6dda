// The questions of a form in one shape, whichever kind it is: what the rules about questions look at.
#pragma once

#include "checking/befund.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"

#include <string>
#include <vector>

struct Pruefzeile {
    Befundort ort; // of the question
    std::string frage, antwort;

    [[nodiscard]] Befundort antwortort() const { return {ort.art, Teil::Antwort, ort.nummer}; }
};

// Nothing but blanks and line ends.
[[nodiscard]] bool IstLeer(std::string_view text);

// Cells in play but those whose kind shows no question, as a Joker; all rows of a test.
[[nodiscard]] std::vector<Pruefzeile> Pruefzeilen(const Quizformular& form, const Spielwerte& spiel);
[[nodiscard]] std::vector<Pruefzeile> Pruefzeilen(const Testformular& form);
