#include "printing/druckseite.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "printing/druckannahme.h"
#include "printing/zeichnungmalen.h"

#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <utility>

namespace {

// The bytes of a PDF that the toolkit has written; a disk that filled up meanwhile leaves it without an end.
QByteArray FertigesPdf(const QString& datei) {
    QFile quelle(datei);
    if (!quelle.open(QIODevice::ReadOnly)) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    const QByteArray bytes = quelle.readAll();
    if (!bytes.trimmed().endsWith("%%EOF")) {
        throw Laufzeitfehler(Fehler::DatentraegerVoll);
    }
    return bytes;
}

} // namespace

Druckseite::Druckseite(QPageLayout::Orientation ausrichtung, std::string pdfPfad, const std::string& titel)
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
    if (drucker_.outputFormat() == QPrinter::PdfFormat) {
        return AlsPdf(zeichnung, fortschritt);
    }
    if (QPrinterInfo::printerInfo(drucker_.printerName()).isNull()) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    Malen(zeichnung, fortschritt);
    if (!AuftragAngenommen()) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    return {};
}

void Druckseite::Malen(const Zeichnung& zeichnung, const std::function<void()>& fortschritt) {
    QPainter maler;
    if (!maler.begin(&drucker_)) {
        throw Laufzeitfehler(Fehler::GeraetFehlt);
    }
    // The elements count from the printable origin in whole mm, the sheet from its corner: with the same
    // whole mm added, a margin of 10 mm is one of 10 mm on paper.
    ZeichnungMalen(maler, zeichnung, schriften_, masse_.links, masse_.oben, fortschritt);
    if (!maler.end() || drucker_.printerState() == QPrinter::Error) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
}

std::string Druckseite::AlsPdf(const Zeichnung& zeichnung, const std::function<void()>& fortschritt) {
    const QTemporaryDir zwischenlager;
    if (!zwischenlager.isValid()) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    const QString datei = zwischenlager.filePath(QStringLiteral("Blatt.pdf"));
    drucker_.setOutputFileName(datei);
    Malen(zeichnung, fortschritt);
    const QByteArray bytes = FertigesPdf(datei);
    DateiSchreiben(pdfPfad_, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    return pdfPfad_;
}
