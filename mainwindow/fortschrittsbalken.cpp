#include "mainwindow/fortschrittsbalken.h"

#include "core/fortschritt.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"

#include <QPointer>

namespace {

QPointer<Panel> pnlKaro;

constexpr int linkerRand = 2700; // twips; the status text stays legible to the left of it

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
    constexpr int rechts = 3600 + 2400 + 60 + 1200;
    TwipsGeometrie(pnlKaro, linkerRand, 45, rechts - linkerRand, 285);
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
