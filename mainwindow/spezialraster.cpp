#include "mainwindow/spezialraster.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "quizform/quizformular.h"

#include <QEvent>
#include <QWidget>

#include <array>

namespace {

std::array<QWidget*, anzahlFelder + 1> zellen{}; // owned by picSpezial

// A cell by column (1 to 6) and row (0 to 4): 60 by 45 twips, 75 and 60 apart.
void ZelleBauen(QWidget* picSpezial, int spalte, int reihe) {
    const int n = (spalte - 1) * fragenJeGebiet + reihe + 1;
    auto* zelle = new QWidget(picSpezial);
    zelle->setObjectName(QStringLiteral("picJoker(%1)").arg(n));
    zelle->setAccessibleName(QStringLiteral("Feld %1").arg(n));
    zelle->setAutoFillBackground(true);
    zelle->setGeometry(Pixel((spalte - 1) * 75 + 45), Pixel(reihe * 60 + 45), Pixel(60), Pixel(45));
    zellen.at(static_cast<std::size_t>(n)) = zelle;
}

} // namespace

void SpezialRasterAufbauen(QWidget* picSpezial) {
    QObject::connect(picSpezial, &QObject::destroyed, [] { zellen.fill(nullptr); });
    for (int spalte = 1; spalte <= anzahlGebiete; ++spalte) {
        for (int reihe = 0; reihe < fragenJeGebiet; ++reihe) {
            ZelleBauen(picSpezial, spalte, reihe);
        }
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        MiniaturFaerben(n, std::nullopt);
    }
}

void MiniaturFaerben(int n, std::optional<Farbe> farbe) {
    if (n < 1 || n > anzahlFelder || zellen.at(static_cast<std::size_t>(n)) == nullptr) {
        return;
    }
    QWidget* zelle = zellen.at(static_cast<std::size_t>(n));
    const QColor grund = farbe ? Qfarbe(*farbe) : Systemflaeche();
    if (zelle->palette().color(QPalette::Window) != grund) {
        QPalette farben = zelle->palette();
        farben.setColor(QPalette::Window, grund);
        zelle->setPalette(farben);
    }
}
