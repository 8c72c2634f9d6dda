#include "printing/druckseite.h"

#include "core/laufzeitfehler.h"
#include "printing/druckannahme.h"
#include "printing/pdfdatei.h"
#include "printing/zeichnungmalen.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

Druckseite::Druckseite(const Druckziel& ziel)
    : drucker_(ziel.nurMessen ? DruckerWieZuletzt() : Drucker()),
      AltOrientierung_(drucker_.pageLayout().orientation()),
      AltBeidseitig_(drucker_.duplex()),
      ziel_(ziel),
      schriften_(drucker_) {
    drucker_.setFullPage(true);
    drucker_.setPageOrientation(ziel.ausrichtung);
    if (ziel.wenden != Wenden::Nicht) {
        drucker_.setDuplex(ziel.wenden == Wenden::LangeKante ? QPrinter::DuplexLongSide
                                                             : QPrinter::DuplexShortSide);
    }
    masse_ = SeiteMessen(drucker_);
}

Druckseite::Druckseite(QPageLayout::Orientation ausrichtung, const std::string& pdfPfad,
                       const std::string& titel)
    : Druckseite(Druckziel{ausrichtung, PdfZiel(pdfPfad), titel, Wenden::Nicht, false, false}) {}

Druckseite::~Druckseite() {
    drucker_.setPageOrientation(AltOrientierung_);
    if (ziel_.wenden != Wenden::Nicht) {
        drucker_.setDuplex(AltBeidseitig_);
    }
}

std::string Druckseite::SeitenDrucken(std::span<const Zeichnung> seiten,
                                      const std::function<void()>& fortschritt) {
    SchriftenLaden(seiten, schriften_, fortschritt);
    if (ziel_.alsPdf || drucker_.outputFormat() == QPrinter::PdfFormat) {
        return AlsPdf(seiten);
    }
    if (QPrinterInfo::printerInfo(drucker_.printerName()).isNull()) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    Malen(drucker_, seiten);
    if (!AuftragAngenommen()) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    return {};
}

void Druckseite::Malen(QPrinter& geraet, std::span<const Zeichnung> seiten) const {
    geraet.setDocName(QString::fromStdString(ziel_.titel));
    QPainter maler;
    if (!maler.begin(&geraet)) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    bool ganz = true;
    for (const Zeichnung& seite : seiten) {
        ganz = ganz && (&seite == &seiten.front() || geraet.newPage());
        // The elements count from the printable origin in whole mm, the sheet from its corner: with the same
        // whole mm added, a margin of 10 mm is one of 10 mm on paper.
        ZeichnungMalen(maler, seite, schriften_, masse_.links, masse_.oben);
    }
    if (!maler.end() || !ganz || geraet.printerState() == QPrinter::Error) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
}

std::string Druckseite::AlsPdf(std::span<const Zeichnung> seiten) {
    PdfDatei datei(ziel_.pdfPfad);
    const std::unique_ptr<QPrinter> eigener =
        drucker_.outputFormat() == QPrinter::PdfFormat ? nullptr : DruckerFuerPdf();
    QPrinter& geraet = eigener ? *eigener : drucker_;
    geraet.setOutputFileName(datei.schreibname());
    geraet.setOutputFormat(QPrinter::PdfFormat); // whatever the name ends in
    Malen(geraet, seiten);
    datei.Einsetzen();
    return ziel_.pdfPfad;
}
