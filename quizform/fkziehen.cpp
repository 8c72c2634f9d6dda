// Questions that leave a cell of the quiz form and questions that land in one.
#include "catalogue/auswahl.h"
#include "core/ablage.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
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

// A press on the question of cell n. True when it was more than an ordinary click.
bool Druck(frmFKFragen& form, int n, Qt::KeyboardModifiers tasten) {
    DragHerkunft = "FKFragen";
    Textfeld* frage = form.txtFrage.at(Stelle(n));
    const std::string buchstabe = Modelltext(form.pnlSpezial.at(Stelle(n))->caption());
    const ZiehBeginn beginn =
        ZiehBeginnFuer(tasten.testFlag(Qt::ShiftModifier), tasten.testFlag(Qt::ControlModifier),
                       tasten.testFlag(Qt::AltModifier), buchstabe, frage->text().empty());
    if (beginn.ablehnung != nullptr) {
        Meldung(*beginn.ablehnung);
        return true;
    }
    if (beginn.art == 0) {
        return false;
    }
    frage->setFocus(Qt::MouseFocusReason);
    DragArt = beginn.art;
    DragFeld = static_cast<std::int16_t>(n);
    Ziehen(frage, frage->text());
    return true;
}

} // namespace

void ZiehenVerbinden(frmFKFragen& form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        DruckEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { return Druck(form, n, tasten); });
        ZielEinrichten(frage, ZiehBild::Ablegen, [n] { FK_Ablegen(n, GezogeneFrage()); });
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

void FK_Ablegen(int n, const std::string& frage) {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || n < 1 || n > anzahlFelder) {
        return;
    }
    // The visible text counts, so a Joker's marker is an occupied cell as well.
    if (!FK_Frage(n).empty() && !ErsetzenErlaubt(fktexte::feldBesetzt)) {
        return;
    }
    const bool ausForm = DragArt == 1 || DragArt == 2;
    const std::string antwort =
        !ausForm ? AuswahlAntwort() : (DragFeld == 0 ? AblageAntwort() : FK_Antwort(DragFeld));
    form->txtFrage.at(Stelle(n))->setText(frage);
    form->txtAntwort.at(Stelle(n))->setText(antwort);
    if (DragArt == 1) {
        // Meant: a cell dropped on itself loses its question here.
        FK_FeldLeeren(DragFeld);
    }
    if (ausForm) {
        DragArt = 0;
    }
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(1);
}
