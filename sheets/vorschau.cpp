#include "sheets/vorschau.h"

#include "core/bilder.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "printing/drucker.h"
#include "sheets/frmVorschau.h"
#include "sheets/texte.h"

#include <QMdiSubWindow>
#include <QPointer>

#include <algorithm>

namespace {

QPointer<frmVorschau> offen;

// On the right, above the form, so that one sees the sheet while working on the form beside it.
void Platzieren(QMdiSubWindow& rahmen) {
    constexpr int luft = 8;
    const QSize flaeche = rahmen.parentWidget()->size();
    const int breite = std::min(flaeche.width() - 2 * luft, std::clamp(flaeche.width() / 2, 520, 900));
    const int hoehe = std::min(flaeche.height() - 2 * luft, std::clamp(breite * 9 / 10, 420, 760));
    rahmen.setWindowFlag(Qt::WindowStaysOnTopHint);
    rahmen.setGeometry(flaeche.width() - breite - luft, luft, breite, hoehe);
}

} // namespace

void VorschauZeigen() {
    if (OffenesFormular() == nullptr) {
        HilfeText(blatttexte::ohneFormular);
        if (offen.isNull()) {
            return;
        }
    }
    if (offen.isNull()) {
        offen = new frmVorschau; // owned by the child window that takes it
        if (QMdiSubWindow* rahmen = KindfensterAufnehmen(offen); rahmen != nullptr) {
            rahmen->setWindowIcon(Bildzeichen("leiste/drucken"));
            Platzieren(*rahmen);
            rahmen->show();
        }
    }
    static_cast<void>(Drucker()); // which printer there is by now
    offen->show();
    offen->Auffrischen();
    KindNachVorn(offen);
    offen->setFocus();
}
