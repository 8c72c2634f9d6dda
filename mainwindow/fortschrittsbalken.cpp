#include "mainwindow/fortschrittsbalken.h"

#include "core/fortschritt.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"

#include <QPointer>

namespace {

QPointer<Panel> pnlKaro;

constexpr Twips linkerRand = 2700_tw; // the status text stays legible to the left of it

// Nothing else runs beside a long step, so the bar paints itself at once.
void Zeichnen(double prozent, Farbe farbe) {
    if (pnlKaro.isNull()) {
        return;
    }
    pnlKaro->setFarben(Qfarbe(farbe), Qt::black);
    pnlKaro->setValue(prozent);
    pnlKaro->repaint();
}

} // namespace

void FortschrittsbalkenBauen(QWidget* hilfepanel) {
    pnlKaro = new Panel(hilfepanel, QStringLiteral("pnlKaro"));
    pnlKaro->setAccessibleName(QStringLiteral("Fortschritt"));
    pnlKaro->setValue(0.0);
    pnlKaro->hide();
}

void FortschrittStart(std::string_view text) {
    if (Fortschritt.FortschrittAktiv) {
        Fortschritt.FortschrittWert += 1.0F;
        if (!pnlKaro.isNull()) {
            pnlKaro->setValue(2.0 * static_cast<double>(Fortschritt.FortschrittWert));
            pnlKaro->repaint();
        }
        return;
    }
    Fortschritt.FortschrittAktiv = true;
    Fortschritt.FortschrittWert = 1.0F;
    SanduhrZeigen();
    HilfeText(text);
    if (pnlKaro.isNull()) {
        return;
    }
    // It reaches the right edge of the clipboard panels.
    constexpr Twips rechts = 3600_tw + 2400_tw + 60_tw + 1200_tw;
    TwipsGeometrie(pnlKaro, linkerRand, 45_tw, rechts - linkerRand, 285_tw);
    pnlKaro->raise();
    pnlKaro->show();
    Zeichnen(0.0, {223, 0, 0});
}

void FortschrittSchritt(float n) {
    Fortschritt.FortschrittWert += n;
    const float prozent = FortschrittProzent(Fortschritt.FortschrittWert);
    Zeichnen(static_cast<double>(prozent), FortschrittFarbe(prozent));
}

void FortschrittEnde() {
    Zeichnen(100.0, {0, 223, 0});
    Fortschritt.FortschrittAktiv = false;
    if (!pnlKaro.isNull()) {
        pnlKaro->hide();
        pnlKaro->setValue(0.0);
    }
    NormalerZeiger();
}
