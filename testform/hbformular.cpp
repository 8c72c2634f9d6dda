#include "testform/hbformular.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/formularliste.h"
#include "persistence/speichern.h"
#include "quizform/fkformular.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/texte.h"

#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<frmHBFragen> fenster;

void Freigeben() {
    fenster = nullptr;
    FormTyp.clear();
    HBDateiName.clear();
    SummeLeeren(nullptr);
    BefehleHBFreigeben(false);
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
frmHBFragen& Fenster() {
    if (fenster.isNull()) {
        fenster = new frmHBFragen; // owned by the child window that takes it
        QObject::connect(fenster, &frmHBFragen::geschlossen, fenster, [] { Freigeben(); });
        Platzieren();
        BefehleHBFreigeben(true);
    }
    return *fenster;
}

void ModellLeeren() {
    HBFrageText.fill({});
    HBAntwortText.fill({});
    HBPunkte.fill(0);
    HBFach.clear();
    HBKopf1.clear();
    HBKopf2.clear();
    HBKopf3.clear();
    HBGesamtpunkte = 0;
}

// False when the user wants to keep what is open.
bool NeuErlaubt() {
    NachrichtAntwort = antwortAbbrechen;
    if (Nachricht(hbtexte::neu) == antwortAbbrechen) {
        return false;
    }
    if (FormGeaendert != 1) {
        return true;
    }
    NachrichtAntwort = antwortAbbrechen;
    Nachricht(hbtexte::neuSpeichern);
    if (NachrichtAntwort == antwortJa) {
        FK_Merken(); // does nothing while there is no quiz form
        HB_Merken();
        return Speichern(); // a save that did not come about counts as Abbrechen
    }
    return NachrichtAntwort != antwortAbbrechen;
}

// The caption that was saved, or the one of an untouched form.
QString Kopftext(const std::string& gespeichert, std::string_view sonst) {
    return Anzeige(gespeichert.empty() ? sonst : std::string_view(gespeichert));
}

void KopfFuellen(frmHBFragen& form) {
    form.titel.panel->setCaption(Kopftext(HBKopf1, hbtexte::titel));
    form.fach.panel->setCaption(Kopftext(HBFach.empty() ? HBKopf2 : HBFach, hbtexte::fach));
    form.lblGruppe->setText(Anzeige(HBKopf3));
}

} // namespace

frmHBFragen* HBFragenOffen() {
    return fenster;
}

bool HB_Neu() {
    if (!NeuErlaubt()) {
        return false;
    }
    HB_Entladen();
    FK_Entladen(); // only one form can be open
    HB_ModusSetzen();
    ModellLeeren();
    DateiName.clear();
    HBDateiName.clear();
    Fenster().show();
    HB_FragenLoeschen();
    KindNachVorn("HBFragen");
    HB_FenstertitelSetzen(hbtexte::neuerTitel);
    FormularlisteTastenSetzen("Test");
    FormStatusSetzen(0);
    return true;
}

void HB_Entladen() {
    if (fenster.isNull()) {
        return;
    }
    QWidget* alt = Rahmen();
    fenster->disconnect();
    Freigeben();
    delete alt;
}

bool HB_Schliessen() {
    if (!fenster.isNull()) {
        Rahmen()->close();
    }
    return fenster.isNull();
}

void HB_ModusSetzen() {
    ModusTest();
}

void HB_FormularZeigen(std::string_view titel) {
    frmHBFragen& form = Fenster();
    HB_ModusSetzen();
    form.HintergrundMalen();
    KopfFuellen(form);
    HB_FragenEinfuegen();
    HB_AntwortenEinfuegen();
    HB_PunkteEinfuegen();
    HB_FelderFaerben();
    SummeZeigen(form, HBGesamtpunkte);
    HB_FenstertitelSetzen(titel);
    form.show();
    KindNachVorn("HBFragen");
}

void HB_FenstertitelSetzen(std::string_view titel) {
    frmHBFragen* form = fenster;
    if (form != nullptr) {
        form->setWindowTitle(Anzeige(titel));
    }
}
