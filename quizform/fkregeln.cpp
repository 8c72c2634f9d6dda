// The rules of the settings on the open form: which cells show, and that a cell which doesn't loses its
// contents.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "quizform/feldregeln.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void Verbergen(QWidget* teil, bool bleibt) {
    if (!bleibt) {
        teil->hide();
    }
}

void SichtenAnwenden(frmFKFragen& form, const Feldsichten& sichten) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        const FeldSicht& sicht = sichten.at(Stelle(n));
        Verbergen(form.txtFrage.at(Stelle(n)), sicht.frage);
        Verbergen(form.txtAntwort.at(Stelle(n)), sicht.antwort);
        Verbergen(form.pnlPunkte.at(Stelle(n)), sicht.punkte);
        Verbergen(form.pnlSpezial.at(Stelle(n)), sicht.spezial);
    }
}

// A cell whose question doesn't show loses all its contents, in the stored copy as well, with no way back.
void VerborgeneLeeren(frmFKFragen& form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (!form.txtFrage.at(Stelle(n))->isHidden()) {
            continue;
        }
        FKForm.FeldSpezial.at(Stelle(n)).clear();
        form.pnlSpezial.at(Stelle(n))->setCaption(QString());
        form.txtFrage.at(Stelle(n))->setText("");
        FKForm.FrageText.at(Stelle(n)).clear();
        form.txtAntwort.at(Stelle(n))->setText("");
        FKForm.AntwortText.at(Stelle(n)).clear();
        form.shpFrage.at(Stelle(n))->hide();
        MiniaturFaerben(n, std::nullopt);
    }
}

} // namespace

void FK_AlleFelderZeigen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Stelle(n))->show();
        form->txtAntwort.at(Stelle(n))->show();
        form->pnlPunkte.at(Stelle(n))->show();
        form->pnlSpezial.at(Stelle(n))->show();
    }
}

void FK_AlleSpezialZeigen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->pnlSpezial.at(Stelle(n))->show();
    }
}

void FK_VorgabenAnwenden() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    // A list that still stands open over a cell or a title belongs to a board that is gone.
    form->cmbSpezial->hide();
    form->cmbWissen->hide();
    for (int a = 1; a <= anzahlGebiete; ++a) {
        form->pnlWissen.at(Stelle(a))->show();
    }
    FK_AlleFelderZeigen();
    FK_FragenRegel();
    FK_WissenRegel();
}

void FK_FragenRegel() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || !Spiel.OptionMaxFelder) {
        return;
    }
    FK_AlleFelderZeigen();
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, Spiel.FragenProWissen);
    SichtenAnwenden(*form, sichten);
    VerborgeneLeeren(*form);
}

void FK_WissenRegel() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const bool zu = Spiel.OptionMaxWissen && GebietGeschlossen(a, Spiel.AnzahlWissen);
        Panel* titel = form->pnlWissen.at(Stelle(a));
        titel->setEnabled(!zu);
        if (zu) {
            titel->setCaption(QStringLiteral("Wissen"));
        }
    }
    if (Spiel.OptionMaxWissen) {
        Feldsichten sichten;
        WissenRegelAnwenden(sichten, Spiel.AnzahlWissen);
        SichtenAnwenden(*form, sichten);
    }
    VerborgeneLeeren(*form);
}

void FK_SpezialRegel() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || !Spiel.OptionMaxFelder) {
        return;
    }
    FK_AlleSpezialZeigen();
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, Spiel.FragenProWissen);
    for (int n = 1; n <= anzahlFelder; ++n) {
        Verbergen(form->pnlSpezial.at(Stelle(n)), sichten.at(Stelle(n)).spezial);
    }
}

void FK_SpezialWissenRegel() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    // Meant: unlike the rule of areas this one doesn't ask whether the rule is in force.
    Feldsichten sichten;
    WissenRegelAnwenden(sichten, Spiel.AnzahlWissen);
    for (int n = 1; n <= anzahlFelder; ++n) {
        Verbergen(form->pnlSpezial.at(Stelle(n)), sichten.at(Stelle(n)).spezial);
    }
}
