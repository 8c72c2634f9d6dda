#include "printing/pdfdatei.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "printing/pdfordnung.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace {

std::filesystem::path Systempfad(const QString& nativ) {
    return std::filesystem::path(nativ.toStdU16String());
}

// A disk that filled up while the toolkit wrote leaves a file without an end.
std::string GanzeDatei(const QString& datei) {
    QFile quelle(datei);
    if (!quelle.open(QIODevice::ReadOnly)) {
        throw Laufzeitfehler(Fehler::GeraetEA);
    }
    std::string bytes = quelle.readAll().toStdString();
    constexpr std::size_t ende = 32;
    const std::string_view schluss =
        std::string_view(bytes).substr(bytes.size() - std::min(ende, bytes.size()));
    if (schluss.find("%%EOF") == std::string_view::npos) {
        throw Laufzeitfehler(Fehler::DatentraegerVoll);
    }
    return bytes;
}

// Over the old bytes, which belong to nobody yet and whose room is kept. What can't be written again lacks
// room.
void NeuSchreiben(const QString& datei, const std::string& bytes) {
    QFile ziel(datei);
    const auto groesse = static_cast<qint64>(bytes.size());
    const bool ganz = ziel.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) &&
                      ziel.write(bytes.data(), groesse) == groesse &&
                      (ziel.size() == groesse || ziel.resize(groesse));
    ziel.close(); // some file systems tell of a full disk only here
    if (!ganz || ziel.error() != QFileDevice::NoError) {
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
    const std::string bytes = PdfOrdnen(GanzeDatei(schreibname_));
    if (zwischenlager_) {
        DateiSchreiben(ziel_, bytes); // knows what stands in the way, and says so
        return;
    }
    NeuSchreiben(schreibname_, bytes);
    std::error_code fehler;
    std::filesystem::rename(Systempfad(schreibname_), Systempfad(nativ_), fehler);
    if (fehler) {
        throw Laufzeitfehler(Fehler::PfadZugriff);
    }
    schreibname_.clear();
}
