// What of a form doesn't fit on its paper, measured on the print's own layout: each text is laid out alone,
// and what reaches over the edge of its place is told with its millimetres. Opens no printer.
#pragma once

#include "checking/befund.h"
#include "printing/zeichnung.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"

// Nothing while no paper has been chosen.
[[nodiscard]] Befunde PapierPruefen(const Quizformular& form, const Spielwerte& spiel,
                                    const Schriftmass& mass);
// The name of the file, which stands on a test's sheet too, isn't looked at: it belongs to no place of the
// form.
[[nodiscard]] Befunde PapierPruefen(const Testformular& form, const Schriftmass& mass);

// "3,2"
[[nodiscard]] std::string Millimetertext(Millimeter laenge);
