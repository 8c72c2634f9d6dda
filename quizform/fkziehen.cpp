// Questions that leave a cell of the quiz form and questions that land in one.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/schritt.h"
#include "core/ziehen.h"
#include "dialogs/meldung.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/texte.h"
#include "quizform/ziehregeln.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

Ziehbeginn Beginn(const frmFKFragen& form, int n, std::optional<Zugart> art) {
    const std::string buchstabe = Modelltext(form.pnlSpezial.at(Stelle(n))->caption());
    return FeldZiehbeginn(art, buchstabe, FK_Frage(n).empty());
}

Ziehwert Feldwert(Zugart art, int n) {
    return {art, Formart::Quiz, n, FK_Frage(n), FK_Antwort(n)};
}

// A press on the question of cell n. True when it was more than an ordinary click.
bool Druck(frmFKFragen& form, int n, Qt::KeyboardModifiers tasten) {
    Textfeld* frage = form.txtFrage.at(Stelle(n));
    const Ziehbeginn beginn = Beginn(form, n, ZugartFuer(tasten));
    if (beginn.ablehnung) {
        Meldung(*beginn.ablehnung);
        return true;
    }
    if (!beginn.art) {
        return false;
    }
    frage->setFocus(Qt::MouseFocusReason);
    Ziehen(frage, Feldwert(*beginn.art, n), [&form, n, art = *beginn.art] {
        const Ziehbeginn jetzt = Beginn(form, n, art);
        return jetzt.art ? std::optional(Feldwert(art, n)) : std::nullopt;
    });
    return true;
}

} // namespace

void ZiehenVerbinden(frmFKFragen& form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        DruckEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { return Druck(form, n, tasten); });
        ZielEinrichten(frage, ZiehBild::Ablegen, [n](const Ziehwert& wert) { FK_Ablegen(n, wert); });
        TastenEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { Druck(form, n, tasten); });
        KeinZiel(form.txtAntwort.at(Stelle(n)));
        KeinZiel(form.pnlSpezial.at(Stelle(n)));
        KeinZiel(form.pnlPunkte.at(Stelle(n)));
    }
    for (int a = 1; a <= anzahlGebiete; ++a) {
        KeinZiel(form.pnlWissen.at(Stelle(a)));
    }
    for (QWidget* teil :
         std::initializer_list<QWidget*>{form.pnlKranz, form.pnlNr, form.pnlDatum, form.pnlZeit, form.txtNr,
                                         form.txtDatum, form.txtZeit}) {
        KeinZiel(teil);
    }
}

void FK_Ablegen(int n, const Ziehwert& wert) {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || n < 1 || n > anzahlFelder) {
        return;
    }
    const Schritt schritt(Schrittname(wert));
    // The visible text counts, so a Joker's marker is an occupied cell as well.
    if (!FK_Frage(n).empty() && !ErsetzenErlaubt(fktexte::feldBesetzt)) {
        return;
    }
    form->txtFrage.at(Stelle(n))->setText(wert.frage);
    form->txtAntwort.at(Stelle(n))->setText(wert.antwort);
    if (wert.art == Zugart::Verschieben) {
        // Meant: a cell dropped on itself loses its question here.
        FK_FeldLeeren(wert.feld);
    }
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(true);
}
