// Puts every picture that travels in the program on one sheet: plain size, double size, name. No test: it is
// for people to look at. The argument names the file.
#include "core/bilder.h"
#include "core/oberflaeche.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int spalten = 5;
constexpr int breite = 250; // of a place, in pixels
constexpr int zeile = 16;
constexpr int luft = 6;

struct Platz {
    QString name;
    QPixmap einfach;
    QPixmap doppelt; // null where there is none
};

QList<Platz> PlaetzeIn(const QString& ordner) {
    QList<Platz> plaetze;
    for (const QString& datei :
         QDir(QStringLiteral(":/bilder/") + ordner).entryList({QStringLiteral("*.png")})) {
        if (!datei.contains(QLatin1String("@2x"))) {
            const std::string name = (ordner + QLatin1Char('/') + datei.chopped(4)).toStdString();
            QPixmap doppelt = Bild(name, 2.0);
            doppelt.setDevicePixelRatio(1.0); // pixel for pixel
            plaetze.append({datei.chopped(4), Bild(name, 1.0), doppelt});
        }
    }
    return plaetze;
}

int HoeheVon(const Platz& platz) {
    const int bild = std::max(platz.einfach.height(), platz.doppelt.height());
    return bild + zeile + luft;
}

void Malen(QPainter& maler, const Platz& platz, int x, int y) {
    maler.drawPixmap(x, y, platz.einfach);
    maler.drawPixmap(x + platz.einfach.width() + luft, y, platz.doppelt);
    const int unten = y + std::max(platz.einfach.height(), platz.doppelt.height());
    maler.drawText(QRect(x, unten, breite, zeile), Qt::AlignLeft | Qt::AlignVCenter, platz.name);
}

// Lays one folder out from y on and returns where it ends. Wide pictures take several places.
int Ordner(QPainter* maler, const QString& ordner, int y) {
    if (maler != nullptr) {
        maler->setFont(Schrift(11_pt, true));
        maler->drawText(luft, y + zeile, ordner);
        maler->setFont(Schrift(8.25_pt));
    }
    y += zeile + 2 * luft;
    int spalte = 0;
    int hoehe = 0;
    for (const Platz& platz : PlaetzeIn(ordner)) {
        const int noetig = platz.einfach.width() + platz.doppelt.width() + 2 * luft;
        const int felder = std::min(spalten, (noetig + breite - 1) / breite);
        if (spalte + felder > spalten) {
            y += hoehe;
            spalte = hoehe = 0;
        }
        if (maler != nullptr) {
            Malen(*maler, platz, luft + spalte * breite, y);
        }
        spalte += felder;
        hoehe = std::max(hoehe, HoeheVon(platz));
    }
    return y + hoehe + luft;
}

int Alle(QPainter* maler) {
    int y = luft;
    for (const QString& ordner : QDir(QStringLiteral(":/bilder")).entryList(QDir::Dirs)) {
        y = Ordner(maler, ordner, y);
    }
    return y;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    OberflaecheEinrichten();
    const QString ziel = QApplication::arguments().value(1, QStringLiteral("bilderbogen.png"));
    QImage bogen(spalten * breite + 2 * luft, Alle(nullptr), QImage::Format_RGB32);
    bogen.fill(Systemflaeche());
    QPainter maler(&bogen);
    maler.setPen(Qt::black);
    Alle(&maler);
    maler.end();
    if (!bogen.save(ziel)) {
        std::fprintf(stderr, "Can't write %s\n", qPrintable(ziel));
        return 1;
    }
    return 0;
}
