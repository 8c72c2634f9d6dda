// What of a form doesn't fit on its paper, measured on the print's own layout: each text is laid out alone,
// and what reaches over the edge of its place is told with its millimetres. Opens no printer.
#pragma once

#include "checking/befund.h"
#include "printing/zeichnung.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"

#include <vector>

// A finding with what it is about on the page: the box around the text, from the printable origin.
struct Papierbefund {
    Befund befund;
    Flaeche kasten;
};
using Papierbefunde = std::vector<Papierbefund>;

// Physical offsets of the printer's printable area.
struct Druckursprung {
    Millimeter links, oben;
};

// Nothing while no paper has been chosen. blanko: printed without the titles, which then aren't looked at.
[[nodiscard]] Papierbefunde Ueberstaende(const Quizformular& form, const Spielwerte& spiel, bool blanko,
                                         const Druckursprung& ursprung, const Schriftmass& mass);
// The name of the file, which stands on a test's sheet too, isn't looked at: it belongs to no place of the
// form.
[[nodiscard]] Papierbefunde Ueberstaende(const Testformular& form, bool mitAntworten,
                                         const Druckursprung& ursprung, const Schriftmass& mass);

// The findings alone, for a form that may be printed either way. Where the printable area begins moves a quiz
// form's sheet as a whole.
[[nodiscard]] Befunde PapierPruefen(const Quizformular& form, const Spielwerte& spiel,
                                    const Schriftmass& mass);
[[nodiscard]] Befunde PapierPruefen(const Testformular& form, const Schriftmass& mass);

// "3,2"
[[nodiscard]] std::string Millimetertext(Millimeter laenge);
