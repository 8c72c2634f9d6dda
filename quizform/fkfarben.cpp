// Repainting the cells of the open form from their letters, and counting the letters.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "dialogs/meldung.h"
#include "quizform/feldbild.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/texte.h"
#include "settings/einstellungen.h"

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
    const bool zeigen = farbe.has_value() && OptionRahmen == 1;
    if (zeigen) {
        QPalette farben = rahmen->palette();
        farben.setColor(QPalette::Window, Qfarbe(*farbe));
        rahmen->setPalette(farben);
    }
    rahmen->setVisible(zeigen);
}

// Marker texts stand whatever LoeschLauf says; the stored texts only while no blanking runs.
void TexteSetzen(frmFKFragen& form, int n, const FeldBild& bild) {
    if (!bild.frageMarke.empty()) {
        form.txtFrage.at(Stelle(n))->setText(bild.frageMarke);
        form.txtAntwort.at(Stelle(n))->setText(bild.antwortMarke);
    } else if (LoeschLauf == 0) {
        form.txtFrage.at(Stelle(n))->setText(FrageText.at(Stelle(n)));
        form.txtAntwort.at(Stelle(n))->setText(AntwortText.at(Stelle(n)));
    }
}

void Faerben(frmFKFragen& form, int n, bool einzeln) {
    const std::string buchstabe = Buchstabe(form, n);
    TexteSetzen(form, n, FeldBildFuer(buchstabe, false, einzeln));
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
    const PunkteBild bild = PunkteBildFuer(Buchstabe(form, n), FeldPunkte.at(Stelle(n)));
    Panel* panel = form.pnlPunkte.at(Stelle(n));
    panel->setCaption(Anzeige(bild.caption));
    panel->setFarben(Grund(bild.grund), Qfarbe(bild.schrift));
}

void Zaehlen(const frmFKFragen& form) {
    std::array<std::string, anzahlFelder + 1> buchstaben;
    for (int n = 1; n <= anzahlFelder; ++n) {
        buchstaben.at(Stelle(n)) = Buchstabe(form, n);
    }
    SpezialAnzahlZaehlen(buchstaben);
}

} // namespace

void FK_FelderFaerben() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        Faerben(*form, n, false);
    }
}

void FK_FeldFaerben() {
    frmFKFragen* form = FKFragenOffen();
    if (form != nullptr && AktuellesFeld >= 1 && AktuellesFeld <= anzahlFelder) {
        Faerben(*form, AktuellesFeld, true);
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
    if (AktuellesFeld >= 1 && AktuellesFeld <= anzahlFelder) {
        PunkteMalen(*form, AktuellesFeld);
    }
    Zaehlen(*form);
    FK_RegelHinweis();
}

void FK_SpezialMerken() {
    frmFKFragen* form = FKFragenOffen();
    if (form != nullptr && AktuellesFeld >= 1 && AktuellesFeld <= anzahlFelder) {
        FeldSpezial.at(Stelle(AktuellesFeld)) = Buchstabe(*form, AktuellesFeld);
    }
}

void FK_RegelHinweis() {
    if (OptionMaxSpezial != 1) {
        return;
    }
    const int art = FaelligerRegelHinweis();
    if (art >= 0) {
        Meldung(fktexte::hinweis.at(Stelle(art)));
    }
}
