// The program's printer: one object from its first use to the end of the program, and the measures of its
// page. Where the system knows no printer it makes PDF files. Prints nothing: that is printing/druckseite.h.
#pragma once

#include "core/laenge.h"

#include <memory>
#include <string>

class QPrinter;

// Physical page in whole mm: offsets of the printable area, size of the paper, margins at the far side.
struct Seitenmasse {
    Millimeter links, oben, breite, hoehe, rechts, unten;
};
[[nodiscard]] Seitenmasse SeiteMessen(const QPrinter& drucker);
// The measures as a text for the user.
[[nodiscard]] std::string SeitenmasseText(const Seitenmasse& masse);

// The printer, made at the first call: the system's default one on A4, or PDF where it knows none. The
// system's printers are looked up here, never at start-up.
[[nodiscard]] QPrinter& Drucker();
// The same as it was found last: asking the system's print service may take its time, and whoever only
// measures does it often.
[[nodiscard]] QPrinter& DruckerWieZuletzt();
// A second object for the same printer, for the printer dialog to work on. pdfVorschlag: path of the PDF file
// that the dialog proposes where there is no printer, in the program's notation.
[[nodiscard]] std::unique_ptr<QPrinter> DruckerKopie(const std::string& pdfVorschlag);
// A printer for PDF files alone, with the page and the resolution of the one that serves.
[[nodiscard]] std::unique_ptr<QPrinter> DruckerFuerPdf();
// Takes the printer chosen in the dialog; it serves until the program ends. A PDF file named by the user
// there counts as a choice too, for the form that is open now.
void DruckerUebernehmen(std::unique_ptr<QPrinter> gewaehlt);

// Where the open form's sheet goes as a PDF: the file that the user named for it in the dialog, else the
// proposal.
[[nodiscard]] std::string PdfZiel(const std::string& pdfVorschlag);
