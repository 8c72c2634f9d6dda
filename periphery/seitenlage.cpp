#include "periphery/seitenlage.h"

#include "core/laenge.h"

#include <algorithm>

namespace {

constexpr int laengste = 20000;  // no page gets longer than this many pixels, whatever its file claims
constexpr int tiefste = 1 << 30; // no page begins below: a document of tens of thousands of the longest

// Bounded before it becomes a whole number: what a file claims may go beyond all of these.
int Kante(double laenge) {
    return static_cast<int>(std::clamp(laenge, 1.0, static_cast<double>(laengste)));
}

QSize Seitengroesse(QSizeF mass, QSize flaeche, Passung passung, double groesse) {
    const QSizeF frei(flaeche.width() - 2 * seitenabstand, flaeche.height() - 2 * seitenabstand);
    QSizeF ziel = mass * pixelJeSchriftpunkt * groesse;
    if (passung == Passung::Breite) {
        ziel = mass * (frei.width() / mass.width());
    } else if (passung == Passung::Seite) {
        ziel = mass.scaled(frei, Qt::KeepAspectRatio);
    }
    return {Kante(ziel.width()), Kante(ziel.height())};
}

} // namespace

int Seitenlage::SeiteBei(int hoehe) const {
    const auto darunter =
        std::ranges::find_if(plaetze, [hoehe](const QRect& platz) { return platz.top() > hoehe; });
    const auto stelle = static_cast<int>(darunter - plaetze.begin());
    return plaetze.empty() ? -1 : std::max(stelle - 1, 0);
}

Seitenlage SeitenLegen(std::span<const QSizeF> masse, QSize flaeche, Passung passung, double groesse) {
    Seitenlage lage;
    int breite = flaeche.width();
    for (const QSizeF& mass : masse) {
        lage.plaetze.emplace_back(QPoint(), Seitengroesse(mass, flaeche, passung, groesse));
        breite = std::max(breite, lage.plaetze.back().width() + 2 * seitenabstand);
    }
    int oben = seitenabstand;
    for (QRect& platz : lage.plaetze) {
        platz.moveTopLeft(QPoint((breite - platz.width()) / 2, oben));
        oben = std::min(oben + platz.height() + seitenabstand, tiefste);
    }
    lage.gesamt = QSize(breite, oben);
    return lage;
}
