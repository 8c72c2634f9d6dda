#include "checking/pruefen.h"

#include "checking/frmPruefung.h"
#include "checking/texte.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "search/fragendienst.h"

#include <QMdiSubWindow>
#include <QPointer>

#include <algorithm>

namespace {

QPointer<frmPruefung> offen;

// At the bottom on the right, above the form: so one sees the list while working on the form, and most of the
// form beside it. What it leaves on the left is the list of forms'.
void Platzieren(QMdiSubWindow& rahmen) {
    constexpr int luft = 8;
    constexpr int dateiliste = 402;
    const QSize flaeche = rahmen.parentWidget()->size();
    const int breite = std::clamp(flaeche.width() - 2 * luft - dateiliste, 440, 700);
    const int hoehe = std::clamp(flaeche.height() / 3, 190, 320);
    rahmen.setWindowFlag(Qt::WindowStaysOnTopHint);
    rahmen.setGeometry(flaeche.width() - breite - luft, std::max(0, flaeche.height() - hoehe - luft), breite,
                       hoehe);
}

} // namespace

void PruefungZeigen() {
    if (OffenesFormular() == nullptr) {
        HilfeText(pruefungtexte::ohneFormular);
        if (offen.isNull()) {
            return;
        }
    }
    if (offen.isNull()) {
        offen = new frmPruefung; // owned by the child window that takes it
        if (QMdiSubWindow* rahmen = KindfensterAufnehmen(offen); rahmen != nullptr) {
            Platzieren(*rahmen);
            rahmen->show();
        }
    }
    Fragen().Pruefen();
    offen->Nachsehen();
    offen->show();
    KindNachVorn(offen);
    offen->setFocus();
}
