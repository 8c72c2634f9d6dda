#include "quizform/fkformular.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/formularliste.h"
#include "persistence/speichern.h"
#include "quizform/fkereignisse.h"
#include "quizform/frmFKFragen.h"
#include "quizform/texte.h"
#include "settings/einstellungen.h"
#include "testform/hbformular.h"

#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<frmFKFragen> fenster;

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void Freigeben() {
    fenster = nullptr;
    FormTyp.clear();
    FKDateiName.clear();
    BefehleFKFreigeben(false);
}

void Platzieren() {
    QWidget* rahmen = KindfensterAufnehmen(fenster);
    if (rahmen == nullptr) {
        return; // without a main window the form stands alone
    }
    rahmen->move(fenster->Platz(rahmen->size(), rahmen->pos()));
}

// The child window around the form, or the form itself where it stands alone.
QWidget* Rahmen() {
    QWidget* rahmen = fenster->parentWidget();
    return qobject_cast<QMdiSubWindow*>(rahmen) != nullptr ? rahmen : fenster.data();
}

// The window, made on first touch.
frmFKFragen& Fenster() {
    if (fenster.isNull()) {
        fenster = new frmFKFragen; // owned by the child window that takes it
        QObject::connect(fenster, &frmFKFragen::geschlossen, fenster, [] { Freigeben(); });
        Platzieren();
        BefehleFKFreigeben(true);
        FK_FragenRegel();
        FK_WissenRegel();
    }
    return *fenster;
}

void TitelFuellen(frmFKFragen& form) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        form.pnlWissen.at(Stelle(a))->setCaption(Anzeige(WissenTitel.at(Stelle(a))));
    }
}

} // namespace

frmFKFragen* FKFragenOffen() {
    return fenster;
}

void FK_Neu() {
    NachrichtAntwort = antwortAbbrechen;
    if (Nachricht(fktexte::neu) == antwortAbbrechen) {
        return;
    }
    if (FormGeaendert == 1) {
        NachrichtAntwort = antwortAbbrechen;
        if (Nachricht(fktexte::neuSpeichern) == antwortAbbrechen) {
            return;
        }
        if (NachrichtAntwort == antwortJa) {
            FK_Merken();
            HB_Merken(); // does nothing while there is no test form
            if (!Speichern()) {
                return; // a save that did not come about counts as Abbrechen
            }
        }
    }
    FK_Entladen();
    HB_Entladen(); // only one form can be open
    FK_ModusSetzen();
    FK_Leeren();
    DateiName.clear();
    FKDateiName.clear();
    Fenster().show();
    KindNachVorn("FKFragen");
    FK_FenstertitelSetzen(fktexte::neuerTitel);
    FormularlisteTastenSetzen("FK");
    FormStatusSetzen(0);
}

void FK_Entladen() {
    if (fenster.isNull()) {
        return;
    }
    QWidget* alt = Rahmen();
    fenster->disconnect();
    Freigeben();
    delete alt;
}

bool FK_Schliessen() {
    if (!fenster.isNull()) {
        Rahmen()->close();
    }
    return fenster.isNull();
}

void FK_ModusSetzen() {
    try {
        ModusFK();
    } catch (const Laufzeitfehler& fehler) {
        // A shape whose product fits no counter would keep every new form away: the full board takes its
        // place.
        FehlerMelden("FK : FK_ModusSetzen", fehler);
        AnzahlWissen = FragenProWissen = 0;
        ModusFK();
    }
}

void FK_FormularZeigen(std::string_view titel) {
    frmFKFragen& form = Fenster();
    ListenSchliessen(form);
    FK_AlleFelderZeigen();
    for (int n = 1; n <= anzahlFelder; ++n) {
        form.pnlSpezial.at(Stelle(n))->setCaption(QString()); // no marker text of a former form stays
    }
    form.txtNr->setWert(FormNr);
    form.txtDatum->setWert(FormDatum);
    form.txtZeit->setWert(FormZeit);
    form.HintergrundMalen(FarbeHintergrund);
    form.SpezialTippsErneuern();
    FK_FragenEinfuegen();
    FK_FragenRegel();
    FK_WissenRegel();
    FK_SpezialEinfuegen();
    FK_FenstertitelSetzen(titel);
    form.show();
    KindNachVorn("FKFragen");
}

void FK_Zeigen() {
    if (fenster.isNull()) {
        FK_ModusSetzen();
        Fenster();
        FK_FenstertitelSetzen(fktexte::neuerTitel);
        FormStatusSetzen(0);
    }
    Fenster().show();
    KindNachVorn("FKFragen");
}

void FK_FenstertitelSetzen(std::string_view titel) {
    frmFKFragen* form = fenster;
    if (form != nullptr) {
        form->setWindowTitle(Anzeige(titel));
    }
}

void FK_Leeren() {
    frmFKFragen& form = Fenster();
    FK_KopfLeeren();
    FK_TitelLeeren();
    FK_FragenLoeschen();
    FK_Merken();
    FK_KopfMerken();
    FK_SpezialLoeschen();
    FK_SpezialMerken();
    for (std::string* text : {&form.AlteFrage, &form.AlteAntwort, &form.FokusFrage, &form.FokusAntwort}) {
        text->clear();
    }
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
        WissenTitel.at(Stelle(a)).clear();
        form->pnlWissen.at(Stelle(a))->setCaption(QStringLiteral("Wissen"));
    }
}

void FK_Merken() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    for (int a = 1; a <= anzahlGebiete; ++a) {
        WissenTitel.at(Stelle(a)) = Modelltext(form->pnlWissen.at(Stelle(a))->caption());
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        FrageText.at(Stelle(n)) = form->txtFrage.at(Stelle(n))->text();
        AntwortText.at(Stelle(n)) = form->txtAntwort.at(Stelle(n))->text();
        FeldSpezial.at(Stelle(n)) = Modelltext(form->pnlSpezial.at(Stelle(n))->caption());
    }
}

void FK_KopfMerken() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    FormNr = form->txtNr->wert();
    FormDatum = form->txtDatum->wert();
    FormZeit = form->txtZeit->wert();
}

void FK_FragenEinfuegen() {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    TitelFuellen(*form);
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Stelle(n))->setText(FrageText.at(Stelle(n)));
        form->txtAntwort.at(Stelle(n))->setText(AntwortText.at(Stelle(n)));
    }
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    FK_EingabeGilt();
}

void FK_TitellisteFuellen(const std::array<std::string, anzahlListenplaetze + 1>& liste) {
    frmFKFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    form->cmbWissen->clear();
    for (int i = 1; i <= anzahlListenplaetze; ++i) {
        form->cmbWissen->addItem(Anzeige(liste.at(Stelle(i))));
    }
}
