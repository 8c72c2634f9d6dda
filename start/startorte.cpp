#include "start/startorte.h"

#include "core/konfiguration.h"
#include "core/plattform.h"

#include <QDir>
#include <QStandardPaths>

namespace {

[[nodiscard]] QString Daneben(const QString& ordner, std::string_view weg) {
    return QDir::cleanPath(ordner + QLatin1Char('/') +
                           QString::fromUtf8(weg.data(), static_cast<qsizetype>(weg.size())));
}

[[nodiscard]] bool Ordner(const QString& pfad) {
    return plattform::ArtVon(pfad) == plattform::Art::Ordner;
}

} // namespace

Startorte StartorteFinden(const QString& ausfuehrbar, const QString& datenheim) {
    const QString daten = Daneben(ausfuehrbar, konfiguration::datenweg);
    const bool eigene = Ordner(Daneben(ausfuehrbar, "WISSEN")) || Ordner(Daneben(ausfuehrbar, "CONFIG"));
    if (eigene || plattform::ArtVon(daten + QStringLiteral("/LIEFERUNG")) != plattform::Art::Datei) {
        return {ausfuehrbar, {}, ausfuehrbar};
    }
    return {datenheim + QStringLiteral("/Feldkranz"), daten, Daneben(ausfuehrbar, konfiguration::zusatzweg)};
}

QString Datenheim() {
    const QString heim = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // A relative one is to be ignored.
    return QDir::isAbsolutePath(heim) ? QDir::cleanPath(heim)
                                      : QDir::homePath() + QStringLiteral("/.local/share");
}
