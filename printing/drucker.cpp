#include "printing/drucker.h"

#include "core/meldungstext.h"
#include "core/pfad.h"
#include "printing/texte.h"

#include <QCoreApplication>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>

#include <cmath>

namespace {

std::unique_ptr<QPrinter> derDrucker;
bool gewaehlt = false;     // by the user, in the dialog
std::string gewaehltesPdf; // file that the user named there, in the program's notation
std::string vorschlag;     // file beside the form, when the dialog opened

// The printer must go before the application object does.
void DruckerFreigeben() {
    derDrucker.reset();
    gewaehlt = false;
    gewaehltesPdf.clear();
}

bool SystemKenntDrucker() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::unique_ptr<QPrinter> NeuerDrucker() {
    auto drucker = std::make_unique<QPrinter>(QPrinter::HighResolution);
    drucker->setPageSize(QPageSize(QPageSize::A4));
    drucker->setFullPage(true);
    drucker->setCreator(QStringLiteral("Feldkranz!"));
    return drucker;
}

std::int32_t Ganz(double mm) {
    return static_cast<std::int32_t>(std::lrint(mm));
}

} // namespace

Seitenmasse SeiteMessen(const QPrinter& drucker) {
    QPageLayout seite = drucker.pageLayout();
    seite.setUnits(QPageLayout::Millimeter);
    const QRectF blatt = seite.fullRect();
    const QMarginsF rand = seite.minimumMargins();
    Seitenmasse masse;
    masse.links = Ganz(rand.left());
    masse.oben = Ganz(rand.top());
    masse.breite = Ganz(blatt.width());
    masse.hoehe = Ganz(blatt.height());
    masse.rechts = masse.breite - masse.links - Ganz(blatt.width() - rand.left() - rand.right());
    masse.unten = masse.hoehe - masse.oben - Ganz(blatt.height() - rand.top() - rand.bottom());
    return masse;
}

std::string SeitenmasseText(const Seitenmasse& m) {
    return Einsetzen(drucktexte::seitenmasse,
                     {std::to_string(m.breite), std::to_string(m.hoehe), std::to_string(m.links),
                      std::to_string(m.rechts), std::to_string(m.oben), std::to_string(m.unten)});
}

QPrinter& Drucker() {
    if (!derDrucker) {
        derDrucker = NeuerDrucker();
        static const bool einmal = [] {
            qAddPostRoutine(DruckerFreigeben);
            return true;
        }();
        static_cast<void>(einmal);
    } else if (!gewaehlt) {
        // Printers may come and go while the program runs.
        const bool aufPapier = derDrucker->outputFormat() == QPrinter::NativeFormat;
        if (aufPapier != SystemKenntDrucker()) {
            derDrucker = NeuerDrucker();
        }
    }
    return *derDrucker;
}

std::unique_ptr<QPrinter> DruckerKopie(const std::string& pdfVorschlag) {
    const QPrinter& vorbild = Drucker();
    auto kopie = NeuerDrucker();
    vorschlag = pdfVorschlag;
    if (vorbild.outputFormat() == QPrinter::NativeFormat) {
        kopie->setPrinterName(vorbild.printerName());
    } else {
        kopie->setOutputFormat(QPrinter::PdfFormat);
        kopie->setOutputFileName(NativerPfad(PdfZiel(pdfVorschlag)));
    }
    kopie->setPageLayout(vorbild.pageLayout());
    return kopie;
}

void DruckerUebernehmen(std::unique_ptr<QPrinter> gewaehlterDrucker) {
    gewaehltesPdf.clear();
    if (gewaehlterDrucker->outputFormat() == QPrinter::PdfFormat) {
        const QString datei = gewaehlterDrucker->outputFileName();
        if (!datei.isEmpty() && datei != NativerPfad(vorschlag)) {
            gewaehltesPdf = EigenerPfad(datei);
        }
    }
    derDrucker = std::move(gewaehlterDrucker);
    derDrucker->setFullPage(true);
    gewaehlt = true;
}

std::string PdfZiel(const std::string& pdfVorschlag) {
    return gewaehltesPdf.empty() ? pdfVorschlag : gewaehltesPdf;
}
