#include "printing/pdfdatei.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <utility>

namespace {

std::filesystem::path Systempfad(const QString& nativ) {
    return std::filesystem::path(nativ.toStdU16String());
}

// A disk that filled up while the toolkit wrote leaves a file without an end.
void VollstaendigkeitPruefen(const QString& datei) {
    QFile quelle(datei);
    if (!quelle.open(QIODevice::ReadOnly)) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    constexpr qint64 ende = 32;
    if (!quelle.seek(qMax(qint64{0}, quelle.size() - ende)) || !quelle.readAll().contains("%%EOF")) {
        throw Laufzeitfehler(Fehler::DatentraegerVoll);
    }
}

} // namespace

PdfDatei::PdfDatei(std::string ziel) : ziel_(std::move(ziel)), nativ_(NativerPfad(ziel_)) {
    const QFileInfo info(nativ_);
    if (info.isSymLink() && info.exists()) {
        nativ_ = info.canonicalFilePath();
    }
    if (!DanebenAnlegen()) {
        zwischenlager_ = std::make_unique<QTemporaryDir>();
        if (!zwischenlager_->isValid()) {
            throw Laufzeitfehler(Fehler::PfadZugriff);
        }
        schreibname_ = zwischenlager_->filePath(QStringLiteral("Blatt.pdf"));
    }
}

PdfDatei::~PdfDatei() {
    if (!schreibname_.isEmpty()) {
        QFile::remove(schreibname_);
    }
}

// A new file beside the target, with the target's permissions; false where there can't be one.
bool PdfDatei::DanebenAnlegen() {
    const QFileInfo ziel(nativ_);
    if (ziel.exists() && (!ziel.isFile() || !ziel.isWritable())) {
        return false;
    }
    schreibname_ =
        QStringLiteral("%1/Feldkranz-%2.neu").arg(ziel.path()).arg(QCoreApplication::applicationPid());
    QFile neu(schreibname_);
    if (!neu.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        schreibname_.clear();
        return false;
    }
    if (ziel.exists()) {
        neu.setPermissions(ziel.permissions());
    }
    return true;
}

void PdfDatei::Einsetzen() {
    VollstaendigkeitPruefen(schreibname_);
    if (zwischenlager_) {
        QFile quelle(schreibname_);
        if (!quelle.open(QIODevice::ReadOnly)) {
            throw Laufzeitfehler(Fehler::GeraetEA);
        }
        DateiSchreiben(ziel_, quelle.readAll().toStdString()); // knows what stands in the way, and says so
        return;
    }
    std::error_code fehler;
    std::filesystem::rename(Systempfad(schreibname_), Systempfad(nativ_), fehler);
    if (fehler) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    schreibname_.clear();
}
