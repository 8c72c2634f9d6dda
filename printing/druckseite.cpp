#include "printing/druckseite.h"

#include "core/laufzeitfehler.h"
#include "printing/druckannahme.h"
#include "printing/pdfdatei.h"
#include "printing/zeichnungmalen.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

Druckseite::Druckseite(QPageLayout::Orientation ausrichtung, const std::string& pdfPfad,
                       const std::string& titel)
    : drucker_(Drucker()),
      AltOrientierung_(drucker_.pageLayout().orientation()),
      pdfPfad_(PdfZiel(pdfPfad)),
      schriften_(drucker_) {
    drucker_.setFullPage(true);
    drucker_.setPageOrientation(ausrichtung);
    drucker_.setDocName(QString::fromStdString(titel));
    masse_ = SeiteMessen(drucker_);
}

Druckseite::~Druckseite() {
    drucker_.setPageOrientation(AltOrientierung_);
}

std::string Druckseite::Drucken(const Zeichnung& zeichnung, const std::function<void()>& fortschritt) {
    SchriftenLaden(zeichnung, schriften_, fortschritt);
    if (drucker_.outputFormat() == QPrinter::PdfFormat) {
        return AlsPdf(zeichnung);
    }
    if (QPrinterInfo::printerInfo(drucker_.printerName()).isNull()) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    Malen(zeichnung);
    if (!AuftragAngenommen()) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    return {};
}

void Druckseite::Malen(const Zeichnung& zeichnung) {
    QPainter maler;
    if (!maler.begin(&drucker_)) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    // The elements count from the printable origin in whole mm, the sheet from its corner: with the same
    // whole mm added, a margin of 10 mm is one of 10 mm on paper.
    ZeichnungMalen(maler, zeichnung, schriften_, masse_.links, masse_.oben);
    if (!maler.end() || drucker_.printerState() == QPrinter::Error) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
}

std::string Druckseite::AlsPdf(const Zeichnung& zeichnung) {
    PdfDatei datei(pdfPfad_);
    drucker_.setOutputFileName(datei.schreibname());
    drucker_.setOutputFormat(QPrinter::PdfFormat); // whatever the name ends in
    Malen(zeichnung);
    datei.Einsetzen();
    return pdfPfad_;
}
