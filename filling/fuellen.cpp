#include "filling/fuellen.h"

#include "core/bilder.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "filling/frmFuellen.h"
#include "filling/texte.h"

#include <QMdiSubWindow>
#include <QPointer>

#include <algorithm>

namespace {

QPointer<frmFuellen> fenster;

// In the middle of the child area, as large as it asks for and the area allows.
void Platzieren(QMdiSubWindow& rahmen) {
    constexpr QSize gewuenscht(1000, 560); // pixels
    const QSize flaeche = rahmen.parentWidget()->size();
    const QSize groesse = gewuenscht.boundedTo(flaeche).expandedTo(rahmen.minimumSizeHint());
    rahmen.resize(groesse);
    rahmen.move(std::max(0, (flaeche.width() - groesse.width()) / 2),
                std::max(0, (flaeche.height() - groesse.height()) / 2));
}

} // namespace

void FuellenZeigen() {
    if (OffenesFormular() == nullptr) {
        HilfeText(fuelltexte::keinFormular);
        return;
    }
    if (!fenster.isNull() && !fenster->gilt()) {
        fenster->Schliessen(); // it belongs to a form before
        fenster = nullptr;
    }
    if (fenster.isNull()) {
        fenster = new frmFuellen; // owned by the child window that takes it
        if (QMdiSubWindow* rahmen = KindfensterAufnehmen(fenster); rahmen != nullptr) {
            rahmen->setWindowIcon(Bildzeichen("leiste/auswahl"));
            Platzieren(*rahmen);
            rahmen->show();
        }
        fenster->show();
    }
    KindNachVorn(fenster);
    if (QWidget* erstes = fenster->focusProxy(); !fenster->isAncestorOf(fenster->window()->focusWidget())) {
        erstes->setFocus();
    }
}

void FuellenAngleichen() {
    if (!fenster.isNull()) {
        fenster->Angleichen();
    }
}
