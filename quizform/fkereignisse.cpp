#include "quizform/fkereignisse.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "dialogs/meldung.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/spezialfelder.h"
#include "quizform/texte.h"
#include "settings/einstellungen.h"

#include <QAbstractItemView>

#include <algorithm>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

// Typed text reaches the stored copy when its box loses the focus with another text than the one it took it
// with.
void NachAenderungMerken(frmFKFragen& form, int n) {
    if (form.txtFrage.at(Stelle(n))->text() == form.AlteFrage &&
        form.txtAntwort.at(Stelle(n))->text() == form.AlteAntwort) {
        return;
    }
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(1);
}

// Puts a list over a panel and opens it.
void ListeZeigen(frmFKFragen& form, QComboBox* liste, QWidget* panel, int breite) {
    const int links = std::min(panel->x(), form.width() - breite - 2);
    liste->setGeometry(links, panel->y(), breite, std::max(panel->height(), 22));
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

// True when the limits let the letter through; else the user is told and the panel reads empty.
bool GrenzeErlaubt(Panel* panel, const std::string& buchstabe) {
    const int art = SpezialIndex(buchstabe);
    if (OptionMaxSpezial != 1 || art < 0 || !GrenzeErreicht(art)) {
        return true;
    }
    Meldung(fktexte::grenze.at(Stelle(art)), {std::to_string(FelderGrenze(art))});
    // Meant: the old letter isn't restored, and the cell keeps its colours until the next repaint.
    panel->setCaption(QString());
    return false;
}

} // namespace

void FeldEreignisseVerbinden(frmFKFragen& form) {
    for (Textzeile* zeile : {form.txtNr, form.txtDatum, form.txtZeit}) {
        QObject::connect(zeile, &QLineEdit::textChanged, &form, [] { FormStatusSetzen(1); });
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        Textfeld* antwort = form.txtAntwort.at(Stelle(n));
        for (Textfeld* feld : {frage, antwort}) {
            QObject::connect(feld, &QPlainTextEdit::textChanged, &form, [] { FormStatusSetzen(1); });
            QObject::connect(feld, &Textfeld::fokusVerloren, &form,
                             [&form, n] { NachAenderungMerken(form, n); });
        }
        QObject::connect(frage, &Textfeld::fokusErhalten, &form, [&form, n, frage, antwort] {
            TextMarkieren(frage);
            form.AlteFrage = frage->text();
            form.AlteAntwort = antwort->text();
        });
        // Meant: the answer's own focus takes no texts to compare with.
        QObject::connect(antwort, &Textfeld::fokusErhalten, &form, [antwort] { TextMarkieren(antwort); });
        QObject::connect(form.pnlSpezial.at(Stelle(n)), &Panel::geklickt, &form,
                         [&form, n] { SpezialListeOeffnen(form, n); });
    }
}

void SpezialListeOeffnen(frmFKFragen& form, int feld) {
    SpezialListeSchliessen(form);
    WissenListeSchliessen(form);
    AktuellesFeld = static_cast<std::int16_t>(feld);
    Panel* panel = form.pnlSpezial.at(Stelle(feld));
    const std::string buchstabe = Modelltext(panel->caption());
    for (int i = 0; i < form.cmbSpezial->count(); ++i) {
        if (SpezialBuchstabe(Modelltext(form.cmbSpezial->itemText(i))) == buchstabe) {
            form.cmbSpezial->setCurrentIndex(i);
        }
    }
    ListeZeigen(form, form.cmbSpezial, panel, std::max(140, form.cmbSpezial->sizeHint().width()));
}

void SpezialGewaehlt(frmFKFragen& form, int eintrag) {
    form.cmbSpezial->hide();
    if (AktuellesFeld < 1 || eintrag < 0) {
        return;
    }
    const std::string buchstabe = SpezialBuchstabe(Modelltext(form.cmbSpezial->itemText(eintrag)));
    Panel* panel = form.pnlSpezial.at(Stelle(AktuellesFeld));
    panel->show();
    panel->setFocus(Qt::OtherFocusReason);
    if (buchstabe == Modelltext(panel->caption())) {
        return;
    }
    panel->setCaption(Anzeige(buchstabe));
    if (!GrenzeErlaubt(panel, buchstabe)) {
        return;
    }
    FK_SpezialMerken();
    FK_SpezialFeldZaehlen();
    FK_FeldFaerben();
    FormStatusSetzen(1);
}

void WissenListeOeffnen(frmFKFragen& form, int gebiet) {
    SpezialListeSchliessen(form);
    WissenListeSchliessen(form);
    AktuellesFeld = static_cast<std::int16_t>(gebiet);
    Panel* panel = form.pnlWissen.at(Stelle(gebiet));
    form.cmbWissen->setCurrentIndex(form.cmbWissen->findText(panel->caption()));
    ListeZeigen(form, form.cmbWissen, panel, panel->width());
}

void WissenGewaehlt(frmFKFragen& form, int eintrag) {
    form.cmbWissen->hide();
    if (AktuellesFeld < 1 || AktuellesFeld > anzahlGebiete || eintrag < 0) {
        return;
    }
    Panel* panel = form.pnlWissen.at(Stelle(AktuellesFeld));
    panel->setCaption(form.cmbWissen->itemText(eintrag));
    panel->show();
    panel->setFocus(Qt::OtherFocusReason);
    FormStatusSetzen(1);
}

void frmFKFragen::EreignisseVerbinden() {
    FeldEreignisseVerbinden(*this);
    ZiehenVerbinden(*this);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        connect(pnlWissen.at(Stelle(a)), &Panel::geklickt, this, [this, a] { WissenListeOeffnen(*this, a); });
    }
    connect(cmbSpezial, &QComboBox::activated, this, [this](int i) { SpezialGewaehlt(*this, i); });
    connect(cmbWissen, &QComboBox::activated, this, [this](int i) { WissenGewaehlt(*this, i); });
    connect(cmdFKSchliessen, &QPushButton::clicked, this, [] { FK_Schliessen(); });
}
