// Blanking the open form on the screen and putting the stored copy back. The stored copy itself stays
// untouched.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void SpezialfeldLoeschen(frmFKFragen& form, int n) {
    Panel* spezial = form.pnlSpezial.at(Stelle(n));
    Panel* punkte = form.pnlPunkte.at(Stelle(n));
    Textfeld* frage = form.txtFrage.at(Stelle(n));
    Textfeld* antwort = form.txtAntwort.at(Stelle(n));
    const auto art = ArtVon(Modelltext(spezial->caption()));
    if (art && !ArtzeileVon(*art).frageMarke.empty()) {
        frage->setText(""); // the marker texts go, no stored text comes back
        antwort->setText("");
    }
    spezial->setCaption(QString());
    MiniaturFaerben(n, farbeSilber);
    spezial->setFarben(QColor(), Qt::black);
    punkte->setFarben(QColor(), Qt::black);
    punkte->setCaption(QString::number(FKForm.FeldPunkte.at(Stelle(n))));
    for (Textfeld* feld : {frage, antwort}) {
        feld->setGrund(Qt::white);
        feld->setZentriert(false);
    }
    form.shpFrage.at(Stelle(n))->hide();
}

} // namespace

void FK_FragenLoeschen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        FK_FeldLeeren(n);
    }
    FK_SpezialZaehlen();
    AlleFaerben(*form, true);
    FK_EingabeGilt();
}

void FK_SpezialLoeschen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        SpezialfeldLoeschen(*form, n);
    }
    FK_EingabeGilt();
}

void FK_SpezialEinfuegen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->pnlSpezial.at(Stelle(n))->setCaption(Anzeige(FKForm.FeldSpezial.at(Stelle(n))));
    }
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    FK_EingabeGilt();
}
