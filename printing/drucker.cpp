#include "printing/drucker.h"

#include "core/formularfenster.h"
#include "core/meldungstext.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "printing/pdftitel.h"
#include "printing/texte.h"

#include <QCoreApplication>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>

namespace {

std::unique_ptr<QPrinter> derDrucker;
bool gewaehlt = false; // by the user, in the dialog
std::string vorschlag; // file beside the form, when the dialog opened

// The file that the user named there, and the form that was open then.
struct Pdfwahl {
    std::string pdf; // "" for none
    int formular = 0;
    std::string datei;
};
Pdfwahl pdfwahl;

const std::string& Formulardatei() {
    return OffeneArt() == Formart::Test ? Stand.HBDateiName : Stand.FKDateiName;
}

// Opened again, a form is known by its file; saved under a name, it is the one it was.
bool GiltFuerOffenes(const Pdfwahl& wahl) {
    return !wahl.pdf.empty() &&
           (wahl.formular == Formularnummer() || (!wahl.datei.empty() && wahl.datei == Formulardatei()));
}

// The printer must go before the application object does.
void DruckerFreigeben() {
    derDrucker.reset();
    gewaehlt = false;
    pdfwahl = {};
}

bool SystemKenntDrucker() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::unique_ptr<QPrinter> NeuerDrucker() {
    auto drucker = std::make_unique<QPrinter>(QPrinter::HighResolution);
    drucker->setPageSize(QPageSize(QPageSize::A4));
    drucker->setFullPage(true);
    drucker->setCreator(QLatin1String(blattersteller.data(), blattersteller.size())); // known by it again
    return drucker;
}

std::string Zahl(Millimeter laenge) {
    return std::to_string(GanzeZahl(laenge));
}

} // namespace

Seitenmasse SeiteMessen(const QPrinter& drucker) {
    QPageLayout seite = drucker.pageLayout();
    seite.setUnits(QPageLayout::Millimeter);
    const QRectF blatt = seite.fullRect();
    const QMarginsF rand = seite.minimumMargins();
    Seitenmasse masse;
    masse.links = GanzeMillimeter(rand.left());
    masse.oben = GanzeMillimeter(rand.top());
    masse.breite = GanzeMillimeter(blatt.width());
    masse.hoehe = GanzeMillimeter(blatt.height());
    masse.rechts = masse.breite - masse.links - GanzeMillimeter(blatt.width() - rand.left() - rand.right());
    masse.unten = masse.hoehe - masse.oben - GanzeMillimeter(blatt.height() - rand.top() - rand.bottom());
    return masse;
}

std::string SeitenmasseText(const Seitenmasse& m) {
    return Einsetzen(drucktexte::seitenmasse, {Zahl(m.breite), Zahl(m.hoehe), Zahl(m.links), Zahl(m.rechts),
                                               Zahl(m.oben), Zahl(m.unten)});
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

QPrinter& DruckerWieZuletzt() {
    return derDrucker ? *derDrucker : Drucker();
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

std::unique_ptr<QPrinter> DruckerFuerPdf() {
    const QPrinter& vorbild = Drucker();
    auto drucker = NeuerDrucker();
    drucker->setOutputFormat(QPrinter::PdfFormat);
    drucker->setResolution(vorbild.resolution());
    drucker->setPageSize(vorbild.pageLayout().pageSize());
    drucker->setPageOrientation(vorbild.pageLayout().orientation());
    return drucker;
}

void DruckerUebernehmen(std::unique_ptr<QPrinter> gewaehlterDrucker) {
    pdfwahl = {};
    if (gewaehlterDrucker->outputFormat() == QPrinter::PdfFormat) {
        const QString datei = gewaehlterDrucker->outputFileName();
        if (!datei.isEmpty() && datei != NativerPfad(vorschlag)) {
            pdfwahl = {EigenerPfad(datei), Formularnummer(), Formulardatei()};
        }
    }
    derDrucker = std::move(gewaehlterDrucker);
    derDrucker->setFullPage(true);
    gewaehlt = true;
}

std::string PdfZiel(const std::string& pdfVorschlag) {
    return GiltFuerOffenes(pdfwahl) ? pdfwahl.pdf : pdfVorschlag;
}
