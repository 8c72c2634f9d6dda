// The way of a sheet from the open form to the printer or into a PDF file. Which sheet is wanted, and under
// which name, is the callers' affair.
#pragma once

#include "printing/drucker.h"
#include "sheets/blaetter.h"

#include <optional>

class QWidget;

// The open form as its sheets are made of it; no value while none is open.
[[nodiscard]] std::optional<Blattvorlage> VorlageJetzt();
[[nodiscard]] Formart FormartVon(const Blattvorlage& vorlage);

// A sheet with the page of the printer that it was made for.
struct Fertigblatt {
    Blattsatz blatt;
    Seitenmasse masse;
};
[[nodiscard]] Fertigblatt BlattFertigen(const Blattvorlage& vorlage, const Blattwunsch& wunsch);

// Prints the sheet, without a question: it has been seen. Where there is no printer it goes beside the form.
// What became of it is told.
void BlattDrucken(const Blattvorlage& vorlage, const Blattwunsch& wunsch);
// Asks for a name and writes the sheet there.
void BlattAlsPdf(const Blattvorlage& vorlage, const Blattwunsch& wunsch, QWidget* eltern);
