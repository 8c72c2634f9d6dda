#include "quizform/fkformular.h"

#include "catalogue/katalogladen.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/ziehen.h"
#include "quizform/fkereignisse.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"

#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<frmFKFragen> fenster;

// What others may do with the open quiz form.
class FKSicht : public Formularfenster {
public:
    [[nodiscard]] Formart art() const override { return Formart::Quiz; }
    [[nodiscard]] QWidget* fenster() override { return FKFragenOffen(); }
    void NachVorn() override { FK_NachVorn(); }
    void TitelSetzen(std::string_view titel) override { FK_FenstertitelSetzen(titel); }
    bool Schliessen() override { return FK_Schliessen(); }
    void Entladen() override { FK_Entladen(); }
    void EingabeAbschliessen() override { FK_EingabeAbschliessen(); }
    void Merken() override { FK_Merken(); }
    void KopfMerken() override { FK_KopfMerken(); }
    void Faerben() override { FK_FelderFaerben(); }
    void FeldLeeren(int feld) override { FK_FeldLeeren(feld); }
};

FKSicht& Sicht() {
    static FKSicht sicht;
    return sicht;
}

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void Freigeben(const FKAnlass& anlass) {
    OhneMausLoslassen(Formart::Quiz);
    fenster = nullptr;
    FormularAbmelden(Sicht());
    anlass.geschlossen();
    BefehleFreigeben(Formart::Quiz, false);
}

void Platzieren() {
    QWidget* rahmen = KindfensterAufnehmen(fenster);
    if (rahmen == nullptr) {
        return; // without a main window the form stands alone
    }
    rahmen->move(fenster->Platz(rahmen->size(), rahmen->pos()));
    FormularEinpassen();
}

// The child window around the form, or the form itself where it stands alone.
QWidget* Rahmen() {
    QWidget* rahmen = fenster->parentWidget();
    return qobject_cast<QMdiSubWindow*>(rahmen) != nullptr ? rahmen : fenster.data();
}

void TitelFuellen(frmFKFragen& form) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        form.pnlWissen.at(Stelle(a))->setCaption(Anzeige(FKForm.WissenTitel.at(Stelle(a))));
    }
}

void TexteAblesen(const frmFKFragen& form, Quizformular& ziel) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        ziel.WissenTitel.at(Stelle(a)) = Modelltext(form.pnlWissen.at(Stelle(a))->caption());
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        ziel.FrageText.at(Stelle(n)) = form.txtFrage.at(Stelle(n))->text();
        ziel.AntwortText.at(Stelle(n)) = form.txtAntwort.at(Stelle(n))->text();
        ziel.FeldSpezial.at(Stelle(n)) = Modelltext(form.pnlSpezial.at(Stelle(n))->caption());
    }
}

void KopfAblesen(const frmFKFragen& form, Quizformular& ziel) {
    ziel.FormNr = form.txtNr->wert();
    ziel.FormDatum = form.txtDatum->wert();
    ziel.FormZeit = form.txtZeit->wert();
}

} // namespace

frmFKFragen* FKFragenOffen() {
    return fenster;
}

frmFKFragen& FK_Fenster(const FKAnlass& anlass) {
    if (fenster.isNull()) {
        fenster = new frmFKFragen(anlass.darfSchliessen); // owned by the child window that takes it
        QObject::connect(fenster, &frmFKFragen::geschlossen, fenster, [anlass] { Freigeben(anlass); });
        FormularAnmelden(Sicht());
        Platzieren();
        BefehleFreigeben(Formart::Quiz, true);
        if (ThemenschalterGedrueckt()) {
            HBUnterthemenLaden();
            FK_TitellisteFuellen(Katalog.UnterthemenListe);
        }
        FK_FragenRegel();
        FK_WissenRegel();
    }
    return *fenster;
}

void FK_Entladen() {
    if (fenster.isNull()) {
        return;
    }
    QWidget* alt = Rahmen();
    Q_EMIT fenster->geschlossen();
    delete alt;
}

bool FK_Schliessen() {
    if (!fenster.isNull()) {
        Rahmen()->close();
    }
    return fenster.isNull();
}

void FK_FormularZeigen() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    OhneMausLoslassen(Formart::Quiz); // it held a question of the form before
    ListenSchliessen(*form);
    FK_AlleFelderZeigen();
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->pnlSpezial.at(Stelle(n))->setCaption(QString()); // no marker text of a former form stays
    }
    form->txtNr->setWert(FKForm.FormNr);
    form->txtDatum->setWert(FKForm.FormDatum);
    form->txtZeit->setWert(FKForm.FormZeit);
    form->HintergrundMalen(Spiel.FarbeHintergrund);
    form->SpezialTippsErneuern();
    FK_FragenEinfuegen();
    FK_FragenRegel();
    FK_WissenRegel();
    FK_SpezialEinfuegen();
}

void FK_NachVorn() {
    if (!fenster.isNull()) {
        fenster->show();
        KindNachVorn(fenster);
    }
}

void FK_FenstertitelSetzen(std::string_view titel) {
    if (!fenster.isNull()) {
        fenster->setWindowTitle(Anzeige(titel));
    }
}

void FK_Leeren() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    FK_KopfLeeren();
    FK_TitelLeeren();
    for (int n = 1; n <= anzahlFelder; ++n) {
        FK_FeldLeeren(n); // what the cells look like comes with the letters
    }
    FK_Merken();
    FK_KopfMerken();
    FK_SpezialLoeschen();
    FK_SpezialMerken();
    form->Alt = {};
}

void FK_KopfLeeren() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    form->txtNr->setWert("");
    form->txtZeit->setWert("");
    form->txtDatum->setWert("");
}

void FK_TitelLeeren() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    for (int a = 1; a <= anzahlGebiete; ++a) {
        FKForm.WissenTitel.at(Stelle(a)).clear();
        form->pnlWissen.at(Stelle(a))->setCaption(QStringLiteral("Wissen"));
    }
}

void FK_Merken() {
    if (!fenster.isNull()) {
        TexteAblesen(*fenster, FKForm);
    }
}

void FK_KopfMerken() {
    if (!fenster.isNull()) {
        KopfAblesen(*fenster, FKForm);
    }
}

Quizformular FK_Ablesen() {
    Quizformular form = FKForm;
    if (!fenster.isNull()) {
        TexteAblesen(*fenster, form);
        KopfAblesen(*fenster, form);
    }
    return form;
}

void FK_FragenEinfuegen() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    TitelFuellen(*form);
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Stelle(n))->setText(FKForm.FrageText.at(Stelle(n)));
        form->txtAntwort.at(Stelle(n))->setText(FKForm.AntwortText.at(Stelle(n)));
    }
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    FK_EingabeGilt();
}

void FK_TitellisteFuellen(const Namensliste& liste) {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    form->cmbWissen->clear();
    for (int i = 1; i <= anzahlListenplaetze; ++i) {
        form->cmbWissen->addItem(Anzeige(liste.at(Stelle(i))));
    }
}
