// One sheet on its way to the printer or into a PDF file. What stands on it comes as a list of elements;
// asking and telling the user is left to the callers.
#pragma once

#include "printing/drucker.h"
#include "printing/druckschrift.h"
#include "printing/wenden.h"
#include "printing/zeichnung.h"

#include <QPageLayout>
#include <QPrinter>

#include <functional>
#include <memory>
#include <span>
#include <string>

struct Druckziel {
    QPageLayout::Orientation ausrichtung = QPageLayout::Portrait;
    std::string pdfPfad; // where the sheet goes as a PDF, in the program's notation
    std::string titel;   // name of the print job, UTF-8
    Wenden wenden = Wenden::Nicht;
    bool alsPdf = false; // as a PDF also where there is a printer, whose page and measures serve all the same
    bool nurMessen = false; // nothing will be printed, so that nobody asks which printers there are by now
};

class Druckseite {
public:
    // Turns the printer for the time of the object.
    explicit Druckseite(const Druckziel& ziel);
    // The form's own sheet: it goes into the PDF file that the user named for it, else into that one.
    Druckseite(QPageLayout::Orientation ausrichtung, const std::string& pdfPfad, const std::string& titel);
    ~Druckseite();
    Druckseite(const Druckseite&) = delete;
    Druckseite& operator=(const Druckseite&) = delete;

    [[nodiscard]] const Seitenmasse& masse() const { return masse_; }
    [[nodiscard]] bool hochkant() const { return masse_.breite <= hochkantBreite; }
    [[nodiscard]] const Schriftmass& schriftmass() const { return schriften_; }

    // Paints the pages, relative to the printable origin, and sends them; fortschritt is called thirty times.
    // Returns the path of the PDF file in the program's notation, or "" when the sheet went to a printer.
    // Throws Laufzeitfehler; no page is sent and no file is touched then.
    std::string SeitenDrucken(std::span<const Zeichnung> seiten, const std::function<void()>& fortschritt);
    std::string Drucken(const Zeichnung& seite, const std::function<void()>& fortschritt) {
        return SeitenDrucken(std::span(&seite, 1), fortschritt);
    }

private:
    static constexpr Millimeter hochkantBreite = 210_mm; // of a page that counts as upright, at most

    void Malen(QPrinter& geraet, std::span<const Zeichnung> seiten) const;
    std::string AlsPdf(std::span<const Zeichnung> seiten);

    QPrinter& drucker_;
    QPageLayout::Orientation AltOrientierung_;
    QPrinter::DuplexMode AltBeidseitig_;
    Druckziel ziel_;
    Druckschriften schriften_;
    Seitenmasse masse_;
};
