// What stands in the rows and the head of the open test form: into the stored copy, back from it, blanked on
// the screen. The stored copy stays untouched by a blanking. Meant: what was typed since the last merge isn't
// in it and doesn't come back.
#include "core/oberflaeche.h"
#include "quizform/formdaten.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/hbformular.h"
#include "testform/punkte.h"

#include <functional>

namespace {

void ZeileMerken(const frmHBFragen& form, std::size_t i) {
    HBFrageText.at(i) = form.txtFrage.at(i)->text();
    HBAntwortText.at(i) = form.txtAntwort.at(i)->text();
    HBPunkte.at(i) = PunkteWert(Modelltext(form.pnlPunkte.at(i)->caption()));
}

// Runs for each row of the open form; without one for none.
void JedeZeile(const std::function<void(frmHBFragen&, std::size_t)>& schritt) {
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        schritt(*form, i);
    }
}

bool Vorhanden(const frmHBFragen* form, int n) {
    return form != nullptr && n >= 1 && n <= anzahlTestfragen;
}

} // namespace

void HB_Merken() {
    const frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        return;
    }
    HBFach = Modelltext(form->fach.panel->caption());
    JedeZeile([](const frmHBFragen& f, std::size_t i) { ZeileMerken(f, i); });
}

void HB_FeldMerken() {
    const frmHBFragen* form = HBFragenOffen();
    if (Vorhanden(form, AktuellesFeld)) {
        ZeileMerken(*form, static_cast<std::size_t>(AktuellesFeld));
    }
}

void HB_KopfMerken() {
    const frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        return;
    }
    HBKopf1 = Modelltext(form->titel.panel->caption());
    HBKopf2 = Modelltext(form->fach.panel->caption());
    HBKopf3 = Modelltext(form->lblGruppe->text());
}

void HB_FelderFaerben() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { ZeileFaerben(form, static_cast<int>(i)); });
}

void HB_FragenLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtFrage.at(i)->setText(""); });
}

void HB_FragenEinfuegen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtFrage.at(i)->setText(HBFrageText.at(i)); });
}

void HB_AntwortenLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtAntwort.at(i)->setText(""); });
}

void HB_AntwortenEinfuegen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtAntwort.at(i)->setText(HBAntwortText.at(i)); });
}

void HB_PunkteLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.pnlPunkte.at(i)->setCaption(QString()); });
}

void HB_PunkteEinfuegen() {
    // A row that held no points shows 0, and that is meant.
    JedeZeile([](frmHBFragen& form, std::size_t i) {
        form.pnlPunkte.at(i)->setCaption(QString::number(HBPunkte.at(i)));
    });
}

std::string HB_Frage(int n) {
    const frmHBFragen* form = HBFragenOffen();
    return Vorhanden(form, n) ? form->txtFrage.at(static_cast<std::size_t>(n))->text() : std::string();
}

std::string HB_Antwort(int n) {
    const frmHBFragen* form = HBFragenOffen();
    return Vorhanden(form, n) ? form->txtAntwort.at(static_cast<std::size_t>(n))->text() : std::string();
}

void HB_FeldLeeren(int n) {
    const frmHBFragen* form = HBFragenOffen();
    if (Vorhanden(form, n)) {
        form->txtFrage.at(static_cast<std::size_t>(n))->setText("");
        form->txtAntwort.at(static_cast<std::size_t>(n))->setText("");
    }
}
