// What stands in the rows and the head of the open test form: into the stored copy, back from it, blanked on
// the screen. The stored copy stays untouched by a blanking. Meant: what was typed since the last merge isn't
// in it and doesn't come back.
#include "core/oberflaeche.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/hbformular.h"
#include "testform/punkte.h"
#include "testform/texte.h"

#include <functional>

namespace {

void ZeileAblesen(const frmHBFragen& form, Testformular& ziel, std::size_t i) {
    ziel.HBFrageText.at(i) = form.txtFrage.at(i)->text();
    ziel.HBAntwortText.at(i) = form.txtAntwort.at(i)->text();
    ziel.HBPunkte.at(i) = PunkteWert(Modelltext(form.pnlPunkte.at(i)->caption()));
}

void ZeilenAblesen(const frmHBFragen& form, Testformular& ziel) {
    ziel.HBFach = Modelltext(form.fach.panel->caption());
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        ZeileAblesen(form, ziel, i);
    }
}

void KopfAblesen(const frmHBFragen& form, Testformular& ziel) {
    ziel.HBKopf1 = Modelltext(form.titel.panel->caption());
    ziel.HBKopf2 = Modelltext(form.fach.panel->caption());
    ziel.HBKopf3 = Modelltext(form.lblGruppe->text());
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

void ZeileSetzen(frmHBFragen* form, int n, std::string_view frage, std::string_view antwort) {
    if (Vorhanden(form, n)) {
        form->txtFrage.at(static_cast<std::size_t>(n))->setText(frage);
        form->txtAntwort.at(static_cast<std::size_t>(n))->setText(antwort);
    }
}

} // namespace

void HB_Merken() {
    if (const frmHBFragen* form = HBFragenOffen(); form != nullptr) {
        ZeilenAblesen(*form, HBForm);
    }
}

void HB_FeldMerken(int n) {
    const frmHBFragen* form = HBFragenOffen();
    if (Vorhanden(form, n)) {
        ZeileAblesen(*form, HBForm, static_cast<std::size_t>(n));
    }
}

void HB_KopfMerken() {
    if (const frmHBFragen* form = HBFragenOffen(); form != nullptr) {
        KopfAblesen(*form, HBForm);
    }
}

Testformular HB_Ablesen() {
    Testformular ziel = HBForm;
    if (const frmHBFragen* form = HBFragenOffen(); form != nullptr) {
        ZeilenAblesen(*form, ziel);
        KopfAblesen(*form, ziel);
    }
    return ziel;
}

Punktanzeige HB_PunkteAblesen() {
    Punktanzeige anzeige;
    if (const frmHBFragen* form = HBFragenOffen(); form != nullptr) {
        for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
            anzeige.punkte.at(i) = Modelltext(form->pnlPunkte.at(i)->caption());
        }
        anzeige.summe = form->pnlGesamtpunkte->caption() != Anzeige(hbtexte::gesamtpunkte);
    }
    return anzeige;
}

void HB_StandZeigen(const Testformular& gezeigt, const Punktanzeige& punkte, const Testformular& gemerkt) {
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        return;
    }
    HBForm = gezeigt; // the window is filled from the stored copy
    HB_FormularZeigen();
    form->titel.panel->setCaption(Anzeige(gezeigt.HBKopf1));
    form->fach.panel->setCaption(Anzeige(gezeigt.HBKopf2));
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        form->pnlPunkte.at(i)->setCaption(Anzeige(punkte.punkte.at(i)));
    }
    if (!punkte.summe) {
        SummeLeeren(form);
    }
    HBForm = gemerkt;
}

void HB_FelderFaerben() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { ZeileFaerben(form, static_cast<int>(i)); });
}

void HB_FragenLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtFrage.at(i)->setText(""); });
}

void HB_FragenEinfuegen() {
    JedeZeile(
        [](frmHBFragen& form, std::size_t i) { form.txtFrage.at(i)->setText(HBForm.HBFrageText.at(i)); });
}

void HB_AntwortenLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.txtAntwort.at(i)->setText(""); });
}

void HB_AntwortenEinfuegen() {
    JedeZeile(
        [](frmHBFragen& form, std::size_t i) { form.txtAntwort.at(i)->setText(HBForm.HBAntwortText.at(i)); });
}

void HB_PunkteLoeschen() {
    JedeZeile([](frmHBFragen& form, std::size_t i) { form.pnlPunkte.at(i)->setCaption(QString()); });
}

void HB_PunkteEinfuegen() {
    // A row that held no points shows 0, and that is meant.
    JedeZeile([](frmHBFragen& form, std::size_t i) {
        form.pnlPunkte.at(i)->setCaption(QString::number(HBForm.HBPunkte.at(i)));
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
    ZeileSetzen(HBFragenOffen(), n, "", "");
}

void HB_FeldSetzen(int n, std::string_view frage, std::string_view antwort) {
    ZeileSetzen(HBFragenOffen(), n, frage, antwort);
    HB_FeldMerken(n);
}

Testblatt HB_Bildschirm() {
    Testblatt blatt;
    const frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        blatt.fach = hbtexte::fach;
        return blatt;
    }
    blatt.titel = form->titel.panel->caption().toStdString();
    blatt.fach = form->fach.panel->caption().toStdString();
    blatt.gruppenwort = form->gruppe.panel->caption().toStdString();
    blatt.gruppe = form->lblGruppe->text().toStdString();
    blatt.name = form->pnlName->caption().toStdString();
    JedeZeile([&blatt](const frmHBFragen& f, std::size_t i) {
        blatt.zeilen.at(i) = {f.txtFrage.at(i)->text(), f.txtAntwort.at(i)->text(),
                              f.pnlPunkte.at(i)->caption().toStdString()};
    });
    return blatt;
}
