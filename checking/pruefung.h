// The check of a form before it goes to the printer and to the group: all rules together, from the form's
// value to a list of findings. Asks no window; what the sheet measures and which question is known come from
// the caller.
#pragma once

#include "checking/befund.h"
#include "checking/fragenpruefung.h"
#include "forms/formularstand.h"

class Schriftmass;

struct Pruefmittel {
    const Schriftmass& mass;
    Benutzungstext benutzt; // none: nothing is said about other forms
};

// Fehler before Hinweise, each in the order of the form.
[[nodiscard]] Befunde FormularPruefen(const Formularstand& stand, const Pruefmittel& mittel);

// Special fields in play beyond the limits in force, whether these are enforced or not; told at the first
// cell that is one too many.
[[nodiscard]] Befunde GrenzenPruefen(const Quizformular& form, const Spielwerte& spiel);
// Rows of a test with a question that show no points, or 0.
[[nodiscard]] Befunde PunktePruefen(const Testformular& form, const Punktanzeige& punkte);

// "Ich habe einen Fehler und 3 Hinweise gefunden."
[[nodiscard]] std::string Befundzahl(const Befunde& befunde);
