// Repainting the cells of the open form from their letters, and counting the letters.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "dialogs/meldung.h"
#include "quizform/feldbild.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"
#include "rules/spielwerte.h"

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

// No value is system face, which an invalid colour stands for.
QColor Grund(const std::optional<Farbe>& farbe) {
    return farbe ? Qfarbe(*farbe) : QColor();
}

std::string Buchstabe(const frmFKFragen& form, int n) {
    return Modelltext(form.pnlSpezial.at(Stelle(n))->caption());
}

void RahmenZeigen(QWidget* rahmen, const std::optional<Farbe>& farbe) {
    const bool zeigen = farbe.has_value() && Spiel.OptionRahmen;
    if (zeigen) {
        QPalette farben = rahmen->palette();
        farben.setColor(QPalette::Window, Qfarbe(*farbe));
        rahmen->setPalette(farben);
    }
    rahmen->setVisible(zeigen);
}

// Marker texts stand also while a blanking runs, the stored texts don't.
void TexteSetzen(frmFKFragen& form, int n, const FeldBild& bild, bool blanken) {
    if (!bild.frageMarke.empty()) {
        form.txtFrage.at(Stelle(n))->setText(bild.frageMarke);
        form.txtAntwort.at(Stelle(n))->setText(bild.antwortMarke);
    } else if (!blanken) {
        form.txtFrage.at(Stelle(n))->setText(FKForm.FrageText.at(Stelle(n)));
        form.txtAntwort.at(Stelle(n))->setText(FKForm.AntwortText.at(Stelle(n)));
    }
}

void Faerben(frmFKFragen& form, int n, bool einzeln, bool blanken) {
    const std::string buchstabe = Buchstabe(form, n);
    TexteSetzen(form, n, FeldBildFuer(buchstabe, false, einzeln), blanken);
    const bool leer = form.txtFrage.at(Stelle(n))->text().empty();
    const FeldBild bild = FeldBildFuer(buchstabe, leer, einzeln);
    form.pnlSpezial.at(Stelle(n))->setFarben(Grund(bild.spezialGrund), Qfarbe(bild.spezialSchrift));
    for (Textfeld* feld : {form.txtFrage.at(Stelle(n)), form.txtAntwort.at(Stelle(n))}) {
        feld->setGrund(Grund(bild.textGrund));
        feld->setZentriert(bild.zentriert);
    }
    RahmenZeigen(form.shpFrage.at(Stelle(n)), bild.rahmen);
    MiniaturFaerben(n, bild.miniatur);
}

void PunkteMalen(frmFKFragen& form, int n) {
    const PunkteBild bild = PunkteBildFuer(Spiel, Buchstabe(form, n), FKForm.FeldPunkte.at(Stelle(n)));
    Panel* panel = form.pnlPunkte.at(Stelle(n));
    panel->setCaption(Anzeige(bild.caption));
    panel->setFarben(Grund(bild.grund), Qfarbe(bild.schrift));
}

void Zaehlen(frmFKFragen& form) {
    std::vector<std::string> buchstaben;
    for (int n = 1; n <= anzahlFelder; ++n) {
        buchstaben.push_back(Buchstabe(form, n));
    }
    form.SpezialAnzahl = SpezialAnzahl(buchstaben);
}

// The letters are blanked on the screen as a whole and wait in the stored copy.
bool BuchstabenGeblankt(const frmFKFragen& form) {
    bool gemerkt = false;
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (!Buchstabe(form, n).empty()) {
            return false;
        }
        gemerkt = gemerkt || !FKForm.FeldSpezial.at(Stelle(n)).empty();
    }
    return gemerkt;
}

bool FeldDa(const frmFKFragen* form) {
    return form != nullptr && form->AktuellesFeld >= 1 && form->AktuellesFeld <= anzahlFelder;
}

} // namespace

void AlleFaerben(frmFKFragen& form, bool blanken) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        Faerben(form, n, false, blanken);
    }
}

void FK_FelderFaerben() {
    frmFKFragen* form = FKFragenOffen();
    if (form != nullptr) {
        AlleFaerben(*form, false);
    }
}

void FK_FeldFaerben() {
    frmFKFragen* form = FKFragenOffen();
    if (FeldDa(form)) {
        Faerben(*form, form->AktuellesFeld, true, false);
    }
}

void FK_SpezialZaehlen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        PunkteMalen(*form, n);
    }
    Zaehlen(*form);
    FK_RegelHinweis();
}

void FK_SpezialFeldZaehlen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    if (FeldDa(form)) {
        PunkteMalen(*form, form->AktuellesFeld);
    }
    Zaehlen(*form);
    FK_RegelHinweis();
}

void FK_SpezialMerken() {
    const frmFKFragen* form = FKFragenOffen();
    if (FeldDa(form)) {
        FKForm.FeldSpezial.at(Stelle(form->AktuellesFeld)) = Buchstabe(*form, form->AktuellesFeld);
    }
}

void FK_RegelHinweis() {
    // No key is ever noted: the hint never speaks, and that is meant.
    constexpr char regelTaste = '\0';
    const frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || !Spiel.OptionMaxSpezial) {
        return;
    }
    if (const auto art = FaelligerRegelHinweis(regelTaste, form->SpezialAnzahl)) {
        Meldung(ArtzeileVon(*art).hinweis);
    }
}

void FK_Auffrischen() {
    if (const frmFKFragen* form = FKFragenOffen(); form != nullptr && !BuchstabenGeblankt(*form)) {
        FK_SpezialMerken();
    }
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    if (frmFKFragen* form = FKFragenOffen(); form != nullptr) {
        form->SpezialTippsErneuern(); // they name the limits
    }
}

void FK_HintergrundMalen(int farbe) {
    if (frmFKFragen* form = FKFragenOffen(); form != nullptr) {
        form->HintergrundMalen(farbe);
    }
}
