#include "core/bilder.h"

#include "core/pfad.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QPixmapCache>

#include <array>
#include <functional>
#include <map>
#include <string>

namespace {

std::map<std::string, QIcon, std::less<>> bildzeichen;

QString Pfad(std::string_view name, bool doppelt) {
    return QStringLiteral(":/bilder/%1%2.png")
        .arg(QLatin1String(name.data(), static_cast<qsizetype>(name.size())),
             QLatin1String(doppelt ? "@2x" : ""));
}

// The format is known: asking every picture plug-in for it would cost more than reading the picture.
QPixmap Lesen(const QString& pfad, const char* format) {
    if (!QFile::exists(pfad)) {
        return {}; // the reader would grumble
    }
    QImageReader leser(pfad, format);
    leser.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(leser.read());
}

} // namespace

QPixmap Bild(std::string_view name, double aufloesung) {
    const bool doppelt = aufloesung > 1.0;
    const QString pfad = Pfad(name, doppelt);
    QPixmap bild;
    if (!QPixmapCache::find(pfad, &bild)) {
        bild = Lesen(pfad, "png");
        bild.setDevicePixelRatio(doppelt ? 2.0 : 1.0);
        QPixmapCache::insert(pfad, bild);
    }
    return bild;
}

// Each is made once: the toolkit keeps the sizes it has made of an icon as long as it runs, also of one that
// a closed window took along.
QIcon Bildzeichen(std::string_view name) {
    const auto fund = bildzeichen.find(name);
    if (fund != bildzeichen.end()) {
        return fund->second;
    }
    if (bildzeichen.empty()) {
        qAddPostRoutine(
            [] { bildzeichen.clear(); }); // the pictures must go before the application object does
    }
    QIcon neu;
    for (const bool doppelt : {false, true}) {
        if (const QString pfad = Pfad(name, doppelt); QFile::exists(pfad)) {
            neu.addFile(pfad);
        }
    }
    return bildzeichen.emplace(name, neu).first->second;
}

void TastenbildSetzen(QAbstractButton* taste, std::string_view name) {
    taste->setIcon(Bildzeichen(name));
    taste->setIconSize(QSize(tastenbildKante, tastenbildKante));
}

void TastenbilderSetzen(const QObject* unter, std::span<const Tastenbild> bilder) {
    for (const auto& [taste, bild] : bilder) {
        if (auto* gefunden = unter->findChild<QAbstractButton*>(QLatin1String(taste)); gefunden != nullptr) {
            TastenbildSetzen(gefunden, bild);
        }
    }
}

QPixmap Feinbild(const QPixmap& einfach, const std::string& pfad, double aufloesung) {
    if (aufloesung <= 1.0) {
        return einfach;
    }
    const std::string fein = pfad.substr(0, pfad.rfind('.')) + "@2x.bmp";
    const QPixmap doppelt = Lesen(NativerPfad(fein), "bmp");
    return doppelt.size() == 2 * einfach.size() ? doppelt : einfach;
}

QIcon Programmzeichen(int groesste) {
    QIcon zeichen;
    for (const int kante : {16, 22, 24, 32, 48, 64, 128, 256}) {
        if (kante <= groesste) {
            zeichen.addFile(QStringLiteral(":/bilder/programm/%1.png").arg(kante), QSize(kante, kante));
        }
    }
    return zeichen;
}
