// Questions that leave a row of the test form and questions that land in one.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/schritt.h"
#include "core/ziehen.h"
#include "dialogs/meldung.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/hbformular.h"
#include "testform/texte.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

// Meant: a copy takes the answer from the selection dialog.
Ziehwert Zeilenwert(Zugart art, int n) {
    if (art == Zugart::Kopieren) {
        return {Zugart::Testkopie, Formart::Test, n, HB_Frage(n), AuswahlAntwort()};
    }
    return {art, Formart::Test, n, HB_Frage(n), HB_Antwort(n)};
}

// A press on the question of row n. True when it was more than an ordinary click.
bool Druck(frmHBFragen& form, int n, Qt::KeyboardModifiers tasten) {
    const std::optional<Zugart> art = ZugartFuer(tasten);
    if (!art) {
        return false;
    }
    Textfeld* frage = form.txtFrage.at(Stelle(n));
    if (frage->text().empty()) {
        Systemkasten(Kastenart::Schlicht, "", hbtexte::keineFrage);
        return true;
    }
    frage->setFocus(Qt::MouseFocusReason);
    Ziehen(frage, Zeilenwert(*art, n), [n, art = *art] {
        return HB_Frage(n).empty() ? std::nullopt : std::optional(Zeilenwert(art, n));
    });
    return true;
}

} // namespace

void TestziehenVerbinden(frmHBFragen& form) {
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        DruckEinrichten(frage, [&form, n](Qt::KeyboardModifiers tasten) { return Druck(form, n, tasten); });
        ZielEinrichten(frage, ZiehBild::Ablegen, [n](const Ziehwert& wert) { HB_Ablegen(n, wert); });
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

void HB_Ablegen(int n, const Ziehwert& wert) {
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr || n < 1 || n > anzahlTestfragen) {
        return;
    }
    const Schritt schritt(Schrittname(wert));
    const std::string bisher = HB_Frage(n);
    if (!bisher.empty() && bisher != hbtexte::platzhalter && !ErsetzenErlaubt(hbtexte::zeileBesetzt)) {
        return;
    }
    form->txtFrage.at(Stelle(n))->setText(wert.frage);
    form->txtAntwort.at(Stelle(n))->setText(wert.antwort);
    if (wert.art == Zugart::Verschieben) {
        // Meant: a row dropped on itself loses its question here, and the stored copy keeps the source row
        // until HB_Merken.
        HB_FeldLeeren(wert.feld);
    }
    HB_FeldMerken(n);
    HB_FelderFaerben();
    FormStatusSetzen(true);
}
