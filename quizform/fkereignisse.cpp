#include "quizform/fkereignisse.h"

#include "core/hauptfenster.h"
#include "core/klappliste.h"
#include "core/oberflaeche.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"
#include "rules/spielwerte.h"

#include <QAbstractItemView>

#include <algorithm>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void TexteGelten(frmFKFragen& form, int n) {
    form.Alt = form.Texte(n);
}

void Merken() {
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(true);
}

// Typed text reaches the stored copy when its box loses the focus with another text than the one it took it
// with; a box that was only looked at merges nothing, so that what was blanked can come back. A form that is
// closing loses it too, and must not count as changed any more.
void NachAenderungMerken(frmFKFragen& form, int n) {
    if (FKFragenOffen() == &form && form.Texte(n) != form.Alt) {
        Merken();
    }
}

// The cell whose question or answer has the focus in the form's window, 0 for none.
int FokusZelle(const frmFKFragen& form) {
    const QWidget* fokus = form.window()->focusWidget();
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (fokus != nullptr &&
            (fokus == form.txtFrage.at(Stelle(n)) || fokus == form.txtAntwort.at(Stelle(n)))) {
            return n;
        }
    }
    return 0;
}

// A letter's list is wider than its panel.
void ListeStellen(const frmFKFragen& form, QComboBox* liste, const QWidget* panel) {
    const int breite = liste == form.cmbSpezial
                           ? std::max(form.massstab().Kante(140), liste->sizeHint().width())
                           : panel->width();
    const int links = std::min(panel->x(), form.width() - breite - 2);
    liste->setGeometry(links, panel->y(), breite, std::max(panel->height(), form.massstab().Kante(22)));
}

// Puts a list over a panel and opens it.
void ListeZeigen(const frmFKFragen& form, QComboBox* liste, QWidget* panel) {
    ListeStellen(form, liste, panel);
    panel->hide();
    liste->show();
    liste->raise();
    liste->setFocus(Qt::OtherFocusReason);
    liste->showPopup();
}

// A panel that an unfinished choice left hidden comes back.
void SpezialListeSchliessen(frmFKFragen& form) {
    form.cmbSpezial->hide();
    FK_AlleSpezialZeigen();
    FK_SpezialRegel();
    FK_SpezialWissenRegel();
}

void WissenListeSchliessen(frmFKFragen& form) {
    form.cmbWissen->hide();
    for (int a = 1; a <= anzahlGebiete; ++a) {
        form.pnlWissen.at(Stelle(a))->show();
    }
}

// To the panel that a list stood over.
template <std::size_t anzahl>
void FokusZurueck(const std::array<Panel*, anzahl>& panels, int n) {
    if (n > 0 && Stelle(n) < anzahl) {
        panels.at(Stelle(n))->setFocus(Qt::OtherFocusReason);
    }
}

// True when the limits let the letter through; else the user is told and the panel reads empty.
bool GrenzeErlaubt(const frmFKFragen& form, Panel* panel, const std::string& buchstabe) {
    const auto art = ArtVon(buchstabe);
    if (!Spiel.OptionMaxSpezial || !art || !GrenzeErreicht(Spiel, *art, form.SpezialAnzahl[*art])) {
        return true;
    }
    Meldung(ArtzeileVon(*art).grenze, {std::to_string(Spiel.Felder[*art])});
    // Meant: the old letter isn't restored, and the cell keeps its colours until the next repaint.
    panel->setCaption(QString());
    return false;
}

} // namespace

void FK_EingabeAbschliessen() {
    frmFKFragen* form = FKFragenOffen();
    const int n = form == nullptr ? 0 : FokusZelle(*form);
    if (n > 0 && form->Texte(n) != form->Alt) {
        Merken();
        TexteGelten(*form, n);
    }
}

void FK_EingabeGilt() {
    frmFKFragen* form = FKFragenOffen();
    const int n = form == nullptr ? 0 : FokusZelle(*form);
    if (n > 0) {
        TexteGelten(*form, n);
    }
}

void OffeneListeStellen(frmFKFragen& form) {
    if (!form.cmbSpezial->isHidden()) {
        ListeStellen(form, form.cmbSpezial, form.pnlSpezial.at(Stelle(form.AktuellesFeld)));
    }
    if (!form.cmbWissen->isHidden()) {
        ListeStellen(form, form.cmbWissen, form.pnlWissen.at(Stelle(form.AktuellesFeld)));
    }
}

void ListenSchliessen(frmFKFragen& form) {
    SpezialListeSchliessen(form);
    WissenListeSchliessen(form);
}

void FeldEreignisseVerbinden(frmFKFragen& form) {
    for (const auto& [zeile, name] :
         {std::pair{form.txtNr, "Nr."}, std::pair{form.txtDatum, "Datum"}, std::pair{form.txtZeit, "Zeit"}}) {
        QObject::connect(zeile, &QLineEdit::textChanged, &form, [] { FormStatusSetzen(true); });
        QObject::connect(zeile, &QLineEdit::editingFinished, &form,
                         [zeile = zeile, name = name] { AnfuehrungMelden(zeile, zeile->wert(), name); });
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        Textfeld* antwort = form.txtAntwort.at(Stelle(n));
        for (Textfeld* feld : {frage, antwort}) {
            QObject::connect(feld, &Textfeld::textAnders, &form, [] { FormStatusSetzen(true); });
            QObject::connect(feld, &Textfeld::fokusErhalten, &form, [&form, n, feld] {
                TextMarkieren(feld);
                TexteGelten(form, n);
            });
            QObject::connect(feld, &Textfeld::fokusVerloren, &form,
                             [&form, n, feld, name = Zellenname(n, feld == frage ? "Frage" : "Antwort")] {
                                 NachAenderungMerken(form, n);
                                 AnfuehrungMelden(feld, feld->text(), name);
                             });
            QObject::connect(feld, &Textfeld::fokusUnterbrochen, &form, [] { FK_EingabeAbschliessen(); });
        }
        QObject::connect(form.pnlSpezial.at(Stelle(n)), &Panel::geklickt, &form,
                         [&form, n] { SpezialListeOeffnen(form, n); });
    }
}

void SpezialListeOeffnen(frmFKFragen& form, int feld) {
    ListenSchliessen(form);
    form.AktuellesFeld = feld;
    Panel* panel = form.pnlSpezial.at(Stelle(feld));
    const std::string buchstabe = Modelltext(panel->caption());
    for (int i = 0; i < form.cmbSpezial->count(); ++i) {
        if (SpezialBuchstabe(Modelltext(form.cmbSpezial->itemText(i))) == buchstabe) {
            form.cmbSpezial->setCurrentIndex(i);
        }
    }
    ListeZeigen(form, form.cmbSpezial, panel);
}

void SpezialGewaehlt(frmFKFragen& form, int eintrag) {
    form.cmbSpezial->hide();
    if (form.AktuellesFeld < 1 || eintrag < 0) {
        return;
    }
    const Schritt schritt("Spezialfeld wählen");
    const std::string buchstabe = SpezialBuchstabe(Modelltext(form.cmbSpezial->itemText(eintrag)));
    Panel* panel = form.pnlSpezial.at(Stelle(form.AktuellesFeld));
    panel->show();
    panel->setFocus(Qt::OtherFocusReason);
    if (buchstabe == Modelltext(panel->caption())) {
        return;
    }
    panel->setCaption(Anzeige(buchstabe));
    if (!GrenzeErlaubt(form, panel, buchstabe)) {
        return;
    }
    FK_SpezialMerken();
    FK_SpezialFeldZaehlen();
    FK_FeldFaerben();
    FormStatusSetzen(true);
}

void WissenListeOeffnen(frmFKFragen& form, int gebiet) {
    ListenSchliessen(form);
    form.AktuellesFeld = gebiet;
    Panel* panel = form.pnlWissen.at(Stelle(gebiet));
    form.cmbWissen->setCurrentIndex(form.cmbWissen->findText(panel->caption()));
    ListeZeigen(form, form.cmbWissen, panel);
}

void WissenGewaehlt(frmFKFragen& form, int eintrag) {
    form.cmbWissen->hide();
    if (form.AktuellesFeld < 1 || form.AktuellesFeld > anzahlGebiete || eintrag < 0) {
        return;
    }
    const Schritt schritt("Titel wählen");
    Panel* panel = form.pnlWissen.at(Stelle(form.AktuellesFeld));
    panel->setCaption(form.cmbWissen->itemText(eintrag));
    panel->show();
    panel->setFocus(Qt::OtherFocusReason);
    FormStatusSetzen(true);
}

void frmFKFragen::EreignisseVerbinden() {
    FeldEreignisseVerbinden(*this);
    ZiehenVerbinden(*this);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        connect(pnlWissen.at(Stelle(a)), &Panel::geklickt, this, [this, a] { WissenListeOeffnen(*this, a); });
    }
    EscBeendet(cmbSpezial, [this] {
        SpezialListeSchliessen(*this);
        FokusZurueck(pnlSpezial, AktuellesFeld);
    });
    EscBeendet(cmbWissen, [this] {
        WissenListeSchliessen(*this);
        FokusZurueck(pnlWissen, AktuellesFeld);
    });
    connect(cmbSpezial, &QComboBox::activated, this, [this](int i) { SpezialGewaehlt(*this, i); });
    connect(cmbWissen, &QComboBox::activated, this, [this](int i) { WissenGewaehlt(*this, i); });
    connect(cmdFKSchliessen, &QPushButton::clicked, this, [] { FK_Schliessen(); });
}
