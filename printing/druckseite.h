// One sheet on its way to the printer or into a PDF file. What stands on it comes as a list of elements;
// asking and telling the user is left to the callers.
#pragma once

#include "printing/drucker.h"
#include "printing/druckschrift.h"
#include "printing/zeichnung.h"

#include <QPageLayout>

#include <functional>
#include <string>

class Druckseite {
public:
    // Turns the printer for the time of the object. pdfPfad: where the sheet goes as a PDF if there is no
    // printer, in the program's notation. titel: name of the print job, UTF-8.
    Druckseite(QPageLayout::Orientation ausrichtung, const std::string& pdfPfad, const std::string& titel);
    ~Druckseite();
    Druckseite(const Druckseite&) = delete;
    Druckseite& operator=(const Druckseite&) = delete;

    [[nodiscard]] const Seitenmasse& masse() const { return masse_; }
    [[nodiscard]] bool hochkant() const { return masse_.breite <= hochkantBreite; }
    [[nodiscard]] const Schriftmass& schriftmass() const { return schriften_; }

    // Paints the page, relative to the printable origin, and sends it; fortschritt is called thirty times.
    // Returns the path of the PDF file in the program's notation, or "" when the sheet went to a printer.
    // Throws Laufzeitfehler; no page is sent and no file is touched then.
    std::string Drucken(const Zeichnung& zeichnung, const std::function<void()>& fortschritt);

private:
    static constexpr Millimeter hochkantBreite = 210_mm; // of a page that counts as upright, at most

    void Malen(const Zeichnung& zeichnung);
    std::string AlsPdf(const Zeichnung& zeichnung);

    QPrinter& drucker_;
    QPageLayout::Orientation AltOrientierung_;
    std::string pdfPfad_;
    Druckschriften schriften_;
    Seitenmasse masse_;
};
