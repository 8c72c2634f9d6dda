// Questions that leave a row of the test form and questions that land in one.
#include "catalogue/auswahl.h"
#include "core/ablage.h"
#include "core/hauptfenster.h"
#include "core/ziehen.h"
#include "dialogs/meldung.h"
#include "quizform/formdaten.h"
#include "quizform/ziehregeln.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/hbformular.h"
#include "testform/texte.h"

namespace {

// Meant: a copy bears this number and not that of the quiz form's copy, so that its drop takes the answer
// from the selection dialog.
constexpr std::int16_t testkopie = 27;

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

// A press on the question of row n. True when it was more than an ordinary click.
bool Druck(frmHBFragen& form, int n, Qt::KeyboardModifiers tasten) {
    DragHerkunft = "HBFragen";
    const ZiehBeginn beginn =
        ZiehBeginnFuer(tasten.testFlag(Qt::ShiftModifier), tasten.testFlag(Qt::ControlModifier),
                       tasten.testFlag(Qt::AltModifier), "", false);
    if (beginn.art == 0) {
        return false;
    }
    Textfeld* frage = form.txtFrage.at(Stelle(n));
    if (frage->text().empty()) {
        Systemkasten(Kastenart::Schlicht, "", hbtexte::keineFrage);
        return true;
    }
    frage->setFocus(Qt::MouseFocusReason);
    DragArt = beginn.art == 2 ? testkopie : beginn.art;
    DragFeld = static_cast<std::int16_t>(n);
    Ziehen(frage, frage->text());
    return true;
}

} // namespace

void TestziehenVerbinden(frmHBFragen& form) {
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        DruckEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { return Druck(form, n, tasten); });
        ZielEinrichten(frage, ZiehBild::Ablegen, [n] { HB_Ablegen(n, GezogeneFrage()); });
        TastenEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { Druck(form, n, tasten); });
        KeinZiel(form.txtAntwort.at(Stelle(n)));
        KeinZiel(form.pnlNr.at(Stelle(n)));
        KeinZiel(form.pnlPunkte.at(Stelle(n)));
        KeinZiel(form.spnPunkte.at(Stelle(n)));
    }
    for (QWidget* teil : std::initializer_list<QWidget*>{
             form.titel.panel, form.fach.panel, form.gruppe.panel, form.pnlTest, form.pnlName,
             form.pnlBewertet, form.pnlNote, form.pnlPunktkontrolle, form.pnlGesamtpunkte}) {
        KeinZiel(teil);
    }
}

void HB_Ablegen(int n, const std::string& frage) {
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr || n < 1 || n > anzahlTestfragen) {
        return;
    }
    const std::string bisher = HB_Frage(n);
    if (!bisher.empty() && bisher != hbtexte::platzhalter && !ErsetzenErlaubt(hbtexte::zeileBesetzt)) {
        return;
    }
    const bool ausForm = DragArt == 1 || DragArt == 2;
    const std::string antwort =
        !ausForm ? AuswahlAntwort() : (DragFeld == 0 ? AblageAntwort() : HB_Antwort(DragFeld));
    form->txtFrage.at(Stelle(n))->setText(frage);
    form->txtAntwort.at(Stelle(n))->setText(antwort);
    if (DragArt == 1) {
        // Meant: a row dropped on itself loses its question here, and the stored copy keeps the source row
        // until HB_Merken.
        HB_FeldLeeren(DragFeld);
    }
    if (ausForm) {
        DragArt = 0;
    }
    AktuellesFeld = static_cast<std::int16_t>(n);
    HB_FeldMerken();
    HB_FelderFaerben();
    FormStatusSetzen(1);
}
